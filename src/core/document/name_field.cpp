#include "core/document/name_field.h"

#include <algorithm>

#include "core/platform/errors.h"

namespace vendlingua {

NameField NameField::FromCaption(std::string_view utf8) {
  const CodesFromUtf8 converted = ToDisplayCodes(utf8);
  if (converted.unknown) {
    throw Error(UiTextId::kNameNotOnDisplay, utf8, *converted.unknown);
  }
  return NameField(converted.codes);
}

NameField NameField::FromAnswer(std::string_view utf8) {
  NameField name = FromCaption(utf8);
  std::transform(name.codes_.begin(), name.codes_.end(), name.codes_.begin(), ToUpper);
  return name;
}

}  // namespace vendlingua
