#include "core/formats/file_check.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "core/formats/mes_file.h"
#include "core/formats/mes_layout.h"
#include "core/formats/srecord.h"
#include "core/formats/srecord_check.h"
#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"
#include "core/platform/locked_file.h"
#include "core/texts/english_texts.h"

namespace vendlingua {
namespace {

void CheckDimensions(const MessageSet& set, Findings& findings) {
  if (set.LastMsg > set.LangStride) {
    findings.push_back(fmt::format("LastMsg is {}, but a language block has only {} message slots",
                                   set.LastMsg, set.LangStride + 1));
  }
  if (set.LangCount * set.MessageCount() * set.Width() > set.MemLength) {
    findings.push_back(
        fmt::format("{} languages of {} messages do not fit the message memory of {} bytes",
                    set.LangCount, set.MessageCount(), set.MemLength));
  }
  if (set.HeaderCount > set.LastMsg) {
    findings.push_back(fmt::format("HeaderCount is {}, but the last message is number {}",
                                   set.HeaderCount, set.LastMsg));
  }
  if (MesBlocksOverlap(set)) {
    findings.push_back(fmt::format(
        "the block length wraps to {:.0f} bytes: language blocks overlap", set.BlockLength));
  }
}

void CheckNames(const std::vector<std::string>& names, Findings& findings) {
  if (names.front() != kReferenceName) {
    findings.push_back(fmt::format("the reference block is named \"{}\" instead of \"{}\"",
                                   names.front(), kReferenceName));
  }
  for (auto name = names.begin() + 1; name != names.end(); ++name) {
    const auto language = name - names.begin();
    if (name->empty() || name->find_first_not_of('\0') == std::string::npos) {
      findings.push_back(fmt::format("language {} has no name", language));
    } else if (std::find(names.begin() + 1, name, *name) != name) {
      findings.push_back(
          fmt::format("language {} has the name \"{}\" of a language before it", language, *name));
    }
  }
}

// A block whose bytes never reached the disk, or that lay in the gap before another one.
void CheckForNulBytes(const MessageSet& set, std::string_view content, int language,
                      Findings& findings) {
  std::size_t count = 0;
  std::size_t first = 0;
  for (std::size_t message = set.MessageCount(); message-- > 0;) {
    const auto at = static_cast<std::size_t>(MesMessageOffset(set, language, message));
    const std::string_view cells = content.substr(std::min(at, content.size()), set.Width());
    if (!cells.empty() && cells.find_first_not_of('\0') == std::string_view::npos) {
      ++count;
      first = message;
    }
  }
  if (count > 0) {
    findings.push_back(
        fmt::format("language {}: {} of its messages are NUL bytes, the first is message {}",
                    language, count, first));
  }
}

void CheckBlocks(const MessageSet& set, std::string_view content, Findings& findings) {
  const std::vector<std::string> names = ReadMesNames(set, content);
  const auto last = static_cast<int>(names.size()) - 1;
  if (names.empty()) {
    findings.emplace_back("the file ends before the name of its first language block");
    return;
  }
  const auto end_of_last =
      static_cast<std::size_t>(MesMessageOffset(set, last, set.MessageCount()));
  if (content.size() < end_of_last) {
    findings.push_back(
        fmt::format("the file has {} bytes, but the messages of language {} end at byte {}",
                    content.size(), last, end_of_last));
  }
  if (content.size() > static_cast<std::size_t>(MesBlockOffset(set, last + 1))) {
    findings.emplace_back(names.size() == kLanguageEntries
                              ? "the file has more than 100 languages"
                              : "bytes that are no language block stand behind the last one");
  }
  CheckNames(names, findings);
  for (int language = 0; language <= last; ++language) {
    CheckForNulBytes(set, content, language, findings);
  }
}

Findings CheckMes(std::string_view content) {
  Findings findings;
  try {
    MessageSet set;
    ApplyMesHeader(ParseMesHeader(content), set);
    CheckDimensions(set, findings);
    if (findings.empty()) {
      CheckBlocks(set, content, findings);
    }
  } catch (const Error& error) {
    findings.emplace_back(error.what());
  }
  return findings;
}

}  // namespace

Findings CheckFile(const std::filesystem::path& path) {
  LockedFile file(path, LockedFile::Access::kRead);
  const std::string content = file.Read(kSRecordFileLimit);
  if (content.empty()) {
    return {"the file is empty"};
  }
  if (PendingChangeOf(path, content).state == PendingChange::State::kInterrupted) {
    return {EnglishTexts()[UiTextId::kSaveWasInterrupted]};
  }
  const bool is_mes = static_cast<std::uint8_t>(content.front()) < kFirstSourceByte;
  return is_mes ? CheckMes(content) : CheckSRecords(content);
}

}  // namespace vendlingua
