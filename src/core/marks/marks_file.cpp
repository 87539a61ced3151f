#include "core/marks/marks_file.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kFormat = "vendlingua-marks";
constexpr int kFormatVersion = 1;
constexpr int kIndent = 1;

constexpr std::array<std::pair<Mark, std::string_view>, 3> kMarkWords = {
    {{Mark::kNeedsWork, "needs work"}, {Mark::kDone, "done"}, {Mark::kNone, ""}}};

std::string_view WordOf(Mark mark) {
  return std::ranges::find(kMarkWords, mark, &std::pair<Mark, std::string_view>::first)->second;
}

// Throws for a word that is none.
Mark MarkOf(std::string_view word) {
  const auto* found =
      std::ranges::find(kMarkWords, word, &std::pair<Mark, std::string_view>::second);
  if (found == kMarkWords.end()) {
    throw Json::other_error::create(kFormatVersion, "no mark", nullptr);
  }
  return found->first;
}

KeptMark FromJson(const Json& entry) {
  return {.language = entry.at("language").get<std::string>(),
          .message = entry.at("message").get_ref<const Json::number_unsigned_t&>(),
          .origin = entry.at("origin").get<std::string>(),
          .mark = {.mark = MarkOf(entry.at("mark").get<std::string>()),
                   .remark = entry.at("remark").get<std::string>()}};
}

}  // namespace

std::filesystem::path MarksFileOf(const std::filesystem::path& message_file) {
  std::filesystem::path file = message_file;
  file += ".marks";
  return file;
}

std::string MarksText(const KeptMarks& marks) {
  Json entries = Json::array();
  for (const KeptMark& kept : marks) {
    entries.push_back({{"language", kept.language},
                       {"message", kept.message},
                       {"origin", kept.origin},
                       {"mark", WordOf(kept.mark.mark)},
                       {"remark", kept.mark.remark}});
  }
  const Json file = {
      {"format", kFormat}, {"version", kFormatVersion}, {"marks", std::move(entries)}};
  return file.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<KeptMarks> ParseMarks(std::string_view content) try {
  const Json file = Json::parse(content);
  if (file.at("format") != kFormat || file.at("version") != kFormatVersion) {
    return std::nullopt;
  }
  KeptMarks marks;
  for (const Json& entry : file.at("marks").get_ref<const Json::array_t&>()) {
    marks.push_back(FromJson(entry));
  }
  return marks;
} catch (const Json::exception&) {
  return std::nullopt;
}

std::optional<KeptMarks> ReadMarks(const std::filesystem::path& message_file) try {
  const std::filesystem::path file = MarksFileOf(message_file);
  std::error_code unknown;
  return exists(symlink_status(file, unknown)) ? ParseMarks(ReadFile(file)) : KeptMarks();
} catch (const FileError&) {
  return std::nullopt;
}

void WriteMarks(const std::filesystem::path& message_file, const KeptMarks& marks) {
  const std::filesystem::path file = MarksFileOf(message_file);
  std::error_code not_there;
  if (!marks.empty()) {
    WriteFile(file, MarksText(marks));
  } else {
    remove(file, not_there);
  }
}

void RenameInMarks(const std::filesystem::path& message_file, std::string_view old_name,
                   const std::string& new_name) {
  auto marks = ReadMarks(message_file).value_or(KeptMarks());
  if (std::ranges::find(marks, old_name, &KeptMark::language) == marks.end()) {
    return;
  }
  for (KeptMark& kept : marks) {
    if (kept.language == old_name) {
      kept.language = new_name;
    }
  }
  WriteMarks(message_file, marks);
}

void CopyMarks(const std::filesystem::path& message_file, const std::filesystem::path& copy) {
  const auto marks = ReadMarks(message_file).value_or(KeptMarks());
  std::error_code unknown;
  if (!marks.empty() && !exists(symlink_status(MarksFileOf(copy), unknown))) {
    WriteMarks(copy, marks);
  }
}

}  // namespace vendlingua
