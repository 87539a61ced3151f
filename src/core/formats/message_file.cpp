#include "core/formats/message_file.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/in_place_change.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

bool BeginsLikeASource(const std::filesystem::path& path, const std::string& content) {
  if (content.empty()) {
    throw FileError(path, UiTextId::kFileIsEmpty);
  }
  return static_cast<std::uint8_t>(content.front()) >= kFirstSourceByte;
}

std::vector<std::string> TakeMes(MessageSet& set, const std::string& content) {
  const MesHeader header = ParseMesHeader(content);
  ApplyMesHeader(header, set);
  set.LoadDisplayType(header.DisplayType());
  std::vector<std::string> names = ReadMesNames(set, content);
  if (names.empty()) {
    throw Error(UiTextId::kNoFirstBlock);
  }
  return names;
}

// Nothing for a firmware that is not managed.
std::optional<std::vector<std::string>> TakeMsx(MessageSet& set, const std::string& content) {
  TakeMsxDimensions(set);
  auto names = ReadMsxNames(set, content);
  if (names) {
    names->insert(names->begin(), std::string(kBuiltInLanguage));
  }
  return names;
}

}  // namespace

std::string MessageFileType(const std::filesystem::path& path) {
  std::string name = PathText(path.filename());
  const std::size_t dot = name.find('.');
  return dot == std::string::npos ? "" : UpperCase(name.substr(dot));
}

bool IsMessageFileType(const std::string& type) { return type == kMesType || type == kMsxType; }

bool IsAssemblerSource(const std::filesystem::path& path) {
  return BeginsLikeASource(path, ReadFile(path));
}

void TakeMsxDimensions(MessageSet& set) {
  const MesHeader configuration = ParseMesHeader(kMsxConfiguration);
  ApplyDimensions(configuration, set);
  set.CurrentFileType = kMsxType;
  set.LangStride = MsxLangStride(set.MemLength);
  set.LoadDisplayType(configuration.DisplayType());
}

bool TakeMessageFile(MessageSet& set, std::string content) {
  auto names = set.IsMes() ? std::optional(TakeMes(set, content)) : TakeMsx(set, content);
  if (!names) {
    return false;
  }
  set.FitTexts();
  set.language_names = std::move(*names);
  set.file_content = std::move(content);
  set.phase = std::max(set.phase, Phase::kFileOpen);
  set.history = EditHistory();
  return true;
}

MessageSet ReadMessageFile(const std::filesystem::path& path) {
  MessageSet set;
  set.CurrentFileName = path;
  set.CurrentFileType = MessageFileType(path);
  if (!IsMessageFileType(set.CurrentFileType)) {
    throw FileError(path, UiTextId::kNoMessageFile);
  }
  std::string content = ReadSharedFile(path);
  if (set.IsMes() && BeginsLikeASource(path, content)) {
    throw FileError(path, UiTextId::kIsASource);
  }
  if (!NamingFile(path, [&] { return TakeMessageFile(set, std::move(content)); })) {
    throw FileError(path, UiTextId::kFirmwareNotManaged);
  }
  return set;
}

}  // namespace vendlingua
