#include "core/texts/valid_utf8.h"

#include <utf8.h>

#include <iterator>

namespace vendlingua {

std::string ValidUtf8(std::string_view text) {
  std::string valid;
  utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid));
  return valid;
}

}  // namespace vendlingua
