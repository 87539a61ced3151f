#include "core/operations/answers.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace vendlingua {
namespace {

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) {
    return {};
  }
  return text.substr(start, text.find_last_not_of(' ') - start + 1);
}

struct Number {
  std::uint64_t value;
  std::string_view rest;  // what stands behind it
};

std::optional<Number> ParseNumber(std::string_view text) {
  const bool hexadecimal = text.starts_with("&H") || text.starts_with("&h");
  if (hexadecimal) {
    text.remove_prefix(2);
  }
  std::uint64_t value = 0;
  const char* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, value, hexadecimal ? 16 : 10);
  if (parsed.ec == std::errc::invalid_argument) {
    return std::nullopt;
  }
  if (parsed.ec == std::errc::result_out_of_range) {
    value = std::numeric_limits<std::uint64_t>::max();
  }
  return Number{value, {parsed.ptr, static_cast<std::size_t>(end - parsed.ptr)}};
}

}  // namespace

std::uint64_t LeadingNumber(std::string_view answer) {
  const auto number = ParseNumber(WithoutBlanks(answer));
  return number ? number->value : 0;
}

std::optional<std::uint64_t> WholeNumber(std::string_view answer) {
  const auto number = ParseNumber(WithoutBlanks(answer));
  if (!number || !number->rest.empty()) {
    return std::nullopt;
  }
  return number->value;
}

}  // namespace vendlingua
