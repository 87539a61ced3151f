#ifndef VENDLINGUA_CLI_CARRY_REPORT_H_
#define VENDLINGUA_CLI_CARRY_REPORT_H_

#include <array>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "cli/session.h"
#include "core/transfer/carry_over.h"

namespace vendlingua::cli {

/// What "pretranslate" and "update" tell about every message: as JSON, as a table, and in words.
class CarryReport {
 public:
  /// Suggestions are texts of `older_width` cells in the characters of `alphabet`.
  CarryReport(const Alphabet& alphabet, std::size_t older_width)
      : alphabet_(alphabet), older_width_(older_width) {}

  void Add(int language, const std::string& name, const std::vector<CarriedMessage>& messages);

  /// Writes the table, comma-separated values, if `file` is not empty. Throws FileError.
  void WriteTable(const std::string& file) const;

  const Json& messages() const { return messages_; }
  Json counts() const { return AsJson(counts_); }
  /// A line a language, and one for each message that is left to a person.
  const std::string& text() const { return text_; }

 private:
  static constexpr std::array<const char*, 5> kResults = {"kept", "filled", "adapted", "suggested",
                                                          "none"};
  using Counts = std::array<std::size_t, kResults.size()>;

  static Json AsJson(const Counts& counts);
  Json AsJson(int language, std::size_t message, const CarriedMessage& carried) const;

  const Alphabet& alphabet_;
  std::size_t older_width_;
  Json messages_ = Json::array();
  Counts counts_{};
  std::string text_;
};

/// Throws CommandFailed when `table` would take the place of one of `files`.
void RefuseTableInPlaceOf(std::initializer_list<std::filesystem::path> files,
                          const std::string& table);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_CARRY_REPORT_H_
