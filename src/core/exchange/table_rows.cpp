#include "core/exchange/table_rows.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;

std::optional<std::uint16_t> NumberOf(std::string_view text) {
  std::uint16_t number = 0;
  const char* const end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, number);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

void TableRows::Add(std::size_t place, std::string_view message, Texts texts,
                    TableReading& reading) {
  const auto number = NumberOf(message);
  if (!number) {
    reading.problems.Add(
        {.kind = Kind::kNoSuchMessage, .place = place, .text = std::string(message)});
    return;
  }
  if (*number >= seen_.size()) {
    seen_.resize(std::size_t{*number} + 1);
  }
  if (seen_[*number]) {
    reading.problems.Add({.kind = Kind::kRepeated, .place = place, .text = std::string(message)});
    return;
  }
  seen_[*number] = true;
  reading.table.rows.push_back({place, *number, std::move(texts.origin), std::move(texts.text)});
}

}  // namespace vendlingua
