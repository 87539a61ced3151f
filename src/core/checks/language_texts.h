#ifndef VENDLINGUA_CORE_CHECKS_LANGUAGE_TEXTS_H_
#define VENDLINGUA_CORE_CHECKS_LANGUAGE_TEXTS_H_

#include <cstddef>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// A language as a file holds it.
struct LanguageTexts {
  /// Messages 0 to `LastMsg`; those that the file does not hold are blank.
  MessageTexts texts;
  /// How many messages the file holds.
  std::size_t held = 0;
};

/// All languages of the open file by their numbers, also one that ends inside a message. Throws
/// Error when the file cannot be read or a line of a ".MSX" file holds no message.
std::vector<LanguageTexts> ReadLanguages(const MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_LANGUAGE_TEXTS_H_
