#ifndef VENDLINGUA_CORE_EXCHANGE_XLIFF_UNIT_H_
#define VENDLINGUA_CORE_EXCHANGE_XLIFF_UNIT_H_

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "core/exchange/translation_table.h"

namespace vendlingua::xliff {

/// The name of an element without its namespace prefix.
std::string_view LocalName(pugi::xml_node element);

/// The first child element of that local name; none where there is none.
pugi::xml_node Child(pugi::xml_node parent, std::string_view local_name);

/// What a trans-unit says.
struct Unit {
  /// Of the messages that it translates, as they stand there. Of a unit that a PO file made of
  /// several there are several.
  std::vector<std::string> messages;
  TextRuns source;
  TextRuns target;
  bool is_translated = false;  ///< there is a target to take
};

/// Reads a trans-unit, or tells what is wrong with it; problems lack their place.
struct UnitReading {
  Unit unit;
  std::optional<TableProblem> problem;
};
UnitReading ReadUnit(pugi::xml_node element);

}  // namespace vendlingua::xliff

#endif  // VENDLINGUA_CORE_EXCHANGE_XLIFF_UNIT_H_
