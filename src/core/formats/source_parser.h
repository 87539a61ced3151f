#ifndef VENDLINGUA_CORE_FORMATS_SOURCE_PARSER_H_
#define VENDLINGUA_CORE_FORMATS_SOURCE_PARSER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/display_code.h"

namespace vendlingua {

/// One section of a firmware assembler source: the message texts of one language.
struct SourceSection {
  std::vector<DisplayCodes> texts;     ///< of each the first 40 characters
  std::vector<std::size_t> cut_lines;  ///< numbers of the lines with more, counted from 1
  /// The label "MNLING" was met after so many texts (one entry a line that carries it).
  std::vector<std::uint16_t> name_labels;
  bool has_sdata = false;      ///< a line contains ".SDATA"
  std::uint8_t width = 0;      ///< cells, of its widest text and never less than before minus one
  std::size_t directives = 0;  ///< lines with "ORG" or ".SECT" seen when it ended
  bool ends_file = false;      ///< closed by the end of the file
  /// A text was shorter than one before it, which ends the import there. Its texts up to then
  /// stand.
  bool width_error = false;
};

/// Splits a source into its sections. A line that contains "ORG" or ".SECT" ends a section when one
/// was met before, and is not looked at further; as the last line of the file it begins no further
/// one. Throws Error with the number of the line when its quotes cannot be read, when a section has
/// no texts, more than 65535, or one of more than 255 characters, and when there are more than 128
/// sections or 131072 texts in all.
std::vector<SourceSection> ParseSource(std::string_view content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_SOURCE_PARSER_H_
