#include "core/exchange/table_rows.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <system_error>
#include <utility>

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;

// Room for as many messages as there can be, of a cell each; a language block has less than 32 KiB.
constexpr std::size_t kMostBytes = std::size_t{12} << 20U;

// Of what should be a number.
constexpr std::size_t kShownOfNumber = 64;

std::size_t BytesOf(const TextRuns& runs) {
  std::size_t bytes = runs.size() * sizeof(TextRun);
  for (const TextRun& run : runs) {
    bytes += run.characters.size();
  }
  return bytes;
}

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
    reading.problems.Add({.kind = Kind::kNoSuchMessage,
                          .place = place,
                          .text = std::string(message.substr(0, kShownOfNumber))});
    return;
  }
  if (*number >= seen_.size()) {
    seen_.resize(std::size_t{*number} + 1);
  }
  if (seen_[*number]) {
    reading.problems.Add({.kind = Kind::kRepeated, .place = place, .text = std::string(message)});
    return;
  }
  if (!HasRoomFor(texts)) {
    reading.problems.Add({.kind = Kind::kTableTooLong, .place = place, .limit = kMostBytes});
    return;
  }
  seen_[*number] = true;
  reading.table.rows.push_back({place, *number, std::move(texts.origin), std::move(texts.text)});
}

bool TableRows::HasRoomFor(const Texts& texts) {
  bytes_ += sizeof(TranslationRow) + BytesOf(texts.origin) + BytesOf(texts.text);
  return bytes_ <= kMostBytes;
}

}  // namespace vendlingua
