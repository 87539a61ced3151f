#include "core/formats/file_check.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "core/document/name_field.h"
#include "core/formats/mes_file.h"
#include "core/formats/srecord_check.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

// An S-record file of a 16 MiB image has 48 MiB.
constexpr std::uint64_t kSRecordFileLimit = 1U << 30U;

void CheckDimensions(const MessageSet& set, Findings& findings) {
  const auto report = [&findings](const std::string& what) { findings.push_back(what); };
  if (set.LastMsg > set.LangStride) {
    report("LastMsg is " + std::to_string(set.LastMsg) + ", but a language block has only " +
           std::to_string(set.LangStride + 1) + " message slots");
  }
  if (set.LangCount * set.MessageCount() * set.Width() > set.MemLength) {
    report(std::to_string(set.LangCount) + " languages of " + std::to_string(set.MessageCount()) +
           " messages do not fit the message memory of " + std::to_string(set.MemLength) +
           " bytes");
  }
  if (set.HeaderCount > set.LastMsg) {
    report("HeaderCount is " + std::to_string(set.HeaderCount) +
           ", but the last message is number " + std::to_string(set.LastMsg));
  }
  if (set.BlockLength < static_cast<float>(NameField::kBytes + set.Width())) {
    report("the block length wraps to " +
           std::to_string(static_cast<std::int64_t>(set.BlockLength)) +
           " bytes: language blocks overlap");
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
    findings.push_back("the file has " + std::to_string(content.size()) +
                       " bytes, but the messages of language " + std::to_string(last) +
                       " end at byte " + std::to_string(end_of_last));
  }
  if (content.size() > static_cast<std::size_t>(MesBlockOffset(set, last + 1))) {
    findings.emplace_back(names.size() == kLanguageEntries
                              ? "the file has more than 100 languages"
                              : "bytes that are no language block stand behind the last one");
  }
  if (names.front() != "Default") {
    findings.push_back("the reference block is named \"" + names.front() +
                       "\" instead of \"Default\"");
  }
  for (std::size_t k = 1; k < names.size(); ++k) {
    if (names[k].empty()) {
      findings.push_back("language " + std::to_string(k) + " has no name");
    } else if (std::find(names.begin() + 1, names.begin() + static_cast<std::ptrdiff_t>(k),
                         names[k]) != names.begin() + static_cast<std::ptrdiff_t>(k)) {
      findings.push_back("language " + std::to_string(k) + " has the name \"" + names[k] +
                         "\" of a language before it");
    }
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
  const std::string content = ReadFile(path, kSRecordFileLimit);
  if (content.empty()) {
    return {"the file is empty"};
  }
  const bool is_mes = static_cast<std::uint8_t>(content.front()) < kFirstSourceByte;
  return is_mes ? CheckMes(content) : CheckSRecords(content);
}

}  // namespace vendlingua
