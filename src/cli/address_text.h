#ifndef VENDLINGUA_CLI_ADDRESS_TEXT_H_
#define VENDLINGUA_CLI_ADDRESS_TEXT_H_

#include <string>
#include <string_view>

#include "cli/session.h"
#include "core/formats/flash_memory.h"

// Addresses as people read them; JSON has them as numbers.

namespace vendlingua::cli {

/// The first and the last address of a range: "0x6000 (24576) to 0x60FF (24831)"; one address alone
/// where they are the same.
std::string RangeText(const AddressRange& range);

/// The value of a header field, which may be an address.
std::string FieldText(std::string_view field, const Json& value);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_ADDRESS_TEXT_H_
