#ifndef VENDLINGUA_CORE_OPERATIONS_ANSWERS_H_
#define VENDLINGUA_CORE_OPERATIONS_ANSWERS_H_

#include <cstdint>
#include <optional>
#include <string_view>

namespace vendlingua {

/// The number that an answer begins with, decimal or "&H" hexadecimal, blanks before it passed
/// over; 0 when it begins with none. A number beyond 64 bits counts as the largest one.
std::uint64_t LeadingNumber(std::string_view answer);

/// The number that an answer is as a whole, decimal or "&H" hexadecimal, blanks around it allowed;
/// nothing for any other answer.
std::optional<std::uint64_t> WholeNumber(std::string_view answer);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_ANSWERS_H_
