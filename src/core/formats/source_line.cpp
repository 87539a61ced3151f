#include "core/formats/source_line.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

constexpr std::size_t kMaxQuotes = 67;
constexpr std::size_t kNoFirstQuote = 255;

// Columns, counted from 1, of the 1st to 67th quote of one kind; 0 for none. Entry 0 is 0, so a
// quote in column 1 counts as the second half of a pair.
using QuoteTable = std::array<std::size_t, kMaxQuotes + 1>;

QuoteTable FindQuotes(std::string_view line, char quote) {
  QuoteTable table{};
  for (std::size_t k = 1; k <= kMaxQuotes; ++k) {
    const std::size_t index = line.find(quote, table[k - 1]);
    if (index == std::string_view::npos) {
      break;
    }
    table[k] = index + 1;
  }
  return table;
}

bool EndsPair(const QuoteTable& table, std::size_t k) {
  return table[k] != 0 && table[k - 1] == table[k] - 1;
}

// Removes the character behind column `column`.
void RemoveBehind(std::string& line, std::size_t column) {
  if (column >= line.size()) {
    throw Error(UiTextId::kBadDoubledQuotes);
  }
  line.erase(column, 1);
}

}  // namespace

std::optional<std::string> QuotedText(std::string_view source_line) {
  if (source_line.find_first_of("'\"") == std::string_view::npos) {
    return std::nullopt;
  }
  const QuoteTable apostrophes = FindQuotes(source_line, '\'');
  const QuoteTable double_quotes = FindQuotes(source_line, '"');
  std::string line(source_line);
  std::size_t first = kNoFirstQuote;
  std::size_t last = 0;
  std::size_t adjustment = 0;
  for (std::size_t k = 1; k <= kMaxQuotes; ++k) {
    for (const QuoteTable* table : {&apostrophes, &double_quotes}) {
      const std::size_t column = (*table)[k];
      if (column != 0) {
        first = std::min(first, column);
        last = std::max(last, column);
      }
    }
    if (EndsPair(apostrophes, k)) {
      adjustment = 1;
      if (apostrophes[k] + 1 < line.size()) {
        RemoveBehind(line, apostrophes[k - 1]);
      }
    }
    if (EndsPair(double_quotes, k)) {
      adjustment = 1;
      RemoveBehind(line, apostrophes[k - 1]);
    }
  }
  if (first == kNoFirstQuote) {
    return std::nullopt;
  }
  last -= adjustment;
  if (last <= first) {
    throw Error(UiTextId::kLoneQuote);
  }
  return line.substr(std::min(first, line.size()), last - first - 1);
}

}  // namespace vendlingua
