#include "core/formats/held_messages.h"

#include <algorithm>

#include "core/formats/mes_layout.h"
#include "core/formats/msx_file.h"
#include "core/formats/text_lines.h"

namespace vendlingua {
namespace {

std::size_t MessagesInBlock(const MessageSet& set, int language) {
  const auto start = static_cast<std::size_t>(MesMessageOffset(set, language, 0));
  const std::size_t size = set.file_content.size();
  return size > start ? (size - start) / set.Width() : 0;
}

std::size_t MessagesInLines(const MessageSet& set, int language) {
  TextLines lines(set.file_content);
  lines.Skip(MsxLinesBefore(set, language));
  std::size_t messages = 0;
  while (messages < set.MessageCount() && lines.Next()) {
    ++messages;
  }
  return messages;
}

}  // namespace

std::size_t MessagesHeld(const MessageSet& set, int language) {
  if (set.IsMes()) {
    return std::min(MessagesInBlock(set, language), set.MessageCount());
  }
  return language == 0 ? set.MessageCount() : MessagesInLines(set, language);
}

bool EndsEarly(const MessageSet& set, int language) {
  return set.IsMes() && set.HoldsLanguage(language) &&
         MessagesHeld(set, language) < set.MessageCount();
}

}  // namespace vendlingua
