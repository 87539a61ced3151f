#include "cli/address_text.h"

#include "core/formats/hex.h"

namespace vendlingua::cli {

std::string RangeText(const AddressRange& range) {
  const std::string first = AddressText(range.first);
  return range.length == 1 ? first : first + " to " + AddressText(range.End() - 1);
}

std::string FieldText(std::string_view field, const Json& value) {
  return field == "memStart" ? AddressText(value.get<std::uint32_t>()) : value.dump();
}

}  // namespace vendlingua::cli
