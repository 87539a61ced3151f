#ifndef VENDLINGUA_CORE_COMPARE_MESSAGE_FILES_H_
#define VENDLINGUA_CORE_COMPARE_MESSAGE_FILES_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// The value of a header field.
using FieldValue = std::variant<bool, std::uint32_t, std::string>;

struct FieldDifference {
  std::string_view field;
  FieldValue a;
  FieldValue b;
};

struct NumberedLanguage {
  int number;
  std::string name;  ///< UTF-8
};

/// A language of another name at the same place.
struct RenamedLanguage {
  int number;
  std::string a;
  std::string b;
};

/// A language of the same name at another place.
struct MovedLanguage {
  std::string name;
  int a;
  int b;
};

/// A message that reads otherwise, or is in one of the files only.
struct MessageDifference {
  int language;  ///< its number in the first file
  std::size_t message;
  std::optional<DisplayCodes> a;
  std::optional<DisplayCodes> b;
};

/// What differs between two message files: how they are laid out, which languages they hold, and
/// what those say.
struct MessageFileComparison {
  std::vector<FieldDifference> header;
  std::vector<NumberedLanguage> added;
  std::vector<NumberedLanguage> removed;
  std::vector<RenamedLanguage> renamed;
  std::vector<MovedLanguage> moved;
  std::vector<MessageDifference> messages;  ///< by language and number
  std::size_t unlisted = 0;                 ///< differing messages beyond kMostDifferences

  bool Same() const;
};

/// Compares two files as ReadMessageFile() reads them. Languages belong together by name, those
/// left over by number; blanks at the end of a message do not count, nor do the placeholders of a
/// ".MES" file beside a ".MSX" file, which has blanks there. Throws Error when a file ends inside a
/// message.
MessageFileComparison CompareMessageFiles(const MessageSet& a, const MessageSet& b);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_COMPARE_MESSAGE_FILES_H_
