#include "cli/carry_report.h"

#include <fmt/format.h>

#include <cmath>

#include "core/exchange/csv_row.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "core/platform/path_of.h"
#include "core/platform/same_file.h"

namespace vendlingua::cli {
namespace {

std::string AsField(const Json& value) {
  if (value.is_null()) {
    return "";
  }
  return value.is_string() ? value.get<std::string>() : value.dump();
}

// The lines of the text report: what a person has to look at.
std::string LineOf(const Json& row) {
  std::string line = fmt::format("{}\t{}", row["message"].dump(), AsField(row["result"]));
  if (!row["suggestion"].is_null()) {
    line += fmt::format("\t{}\t{}", AsField(row["ratio"]), AsField(row["suggestion"]));
  }
  return line + "\n";
}

}  // namespace

void CarryReport::Add(int language, const std::string& name,
                      const std::vector<CarriedMessage>& messages) {
  Counts counts{};
  std::string to_do;
  for (std::size_t message = 0; message < messages.size(); ++message) {
    const CarriedMessage& carried = messages[message];
    ++counts.at(static_cast<std::size_t>(carried.result));
    messages_.push_back(AsJson(language, message, carried));
    if (carried.result >= CarryResult::kSuggested) {
      to_do += LineOf(messages_.back());
    }
  }
  text_ += fmt::format("language {}: {}:", language, name);
  for (std::size_t i = 0; i < counts.size(); ++i) {
    text_ += fmt::format("{} {} {}", i == 0 ? "" : ",", counts.at(i), kResults.at(i));
    counts_.at(i) += counts.at(i);
  }
  text_ += "\n" + to_do;
}

Json CarryReport::AsJson(const Counts& counts) {
  Json json;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    json[kResults.at(i)] = counts.at(i);
  }
  return json;
}

Json CarryReport::AsJson(int language, std::size_t message, const CarriedMessage& carried) const {
  Json row = {{"language", language},
              {"message", message},
              {"result", kResults.at(static_cast<std::size_t>(carried.result))},
              {"from", nullptr},
              {"suggestion", nullptr},
              {"ratio", nullptr}};
  if (carried.from) {
    row["from"] = *carried.from;
  }
  if (carried.suggestion) {
    constexpr double kHundred = 100;
    row["suggestion"] = alphabet_.TextOf(carried.suggestion->First(older_width_));
    row["ratio"] = std::round(carried.ratio * kHundred) / kHundred;
  }
  return row;
}

void CarryReport::WriteTable(const std::string& file) const {
  if (file.empty()) {
    return;
  }
  std::string table;
  const std::vector<std::string> header = {"language", "message",    "result",
                                           "from",     "suggestion", "ratio"};
  AppendCsvRow(header, table);
  for (const Json& row : messages_) {
    std::vector<std::string> fields;
    for (const auto& [key, value] : row.items()) {
      fields.push_back(AsField(value));
    }
    AppendCsvRow(fields, table);
  }
  WriteFile(PathOf(file), table);
}

void RefuseTableInPlaceOf(std::initializer_list<std::filesystem::path> files,
                          const std::string& table) {
  for (const std::filesystem::path& file : files) {
    if (!table.empty() && LeadToSameFile(file, PathOf(table))) {
      throw CommandFailed(table + ": is read or written by this command; give another --report");
    }
  }
}

}  // namespace vendlingua::cli
