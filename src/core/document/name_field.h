#ifndef VENDLINGUA_CORE_DOCUMENT_NAME_FIELD_H_
#define VENDLINGUA_CORE_DOCUMENT_NAME_FIELD_H_

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/document/display_code.h"

namespace vendlingua {

/// The name of a language as a ".MES" block carries it: 20 bytes, padded with blanks.
class NameField {
 public:
  static constexpr std::size_t kBytes = 20;

  /// Pads with blanks and cuts to 20.
  explicit NameField(std::span<const DisplayCode> codes) : codes_(FitTo(codes, kBytes)) {}

  /// A menu caption as a name, its case unchanged. Throws Error when a character of it has no
  /// display code.
  static NameField FromCaption(std::string_view utf8);

  /// What a user typed as a name: as FromCaption, in upper case.
  static NameField FromAnswer(std::string_view utf8);

  bool IsBlank() const { return TrimRight(codes_).empty(); }

  /// The name without the blanks at its end, as the menus show it (UTF-8).
  std::string Caption() const { return ToUtf8(TrimRight(codes_)); }

  /// All 20 characters (UTF-8).
  std::string PaddedText() const { return ToUtf8(codes_); }

  /// The 20 bytes of the file.
  std::string Bytes() const { return BytesFromCodes(codes_); }

 private:
  DisplayCodes codes_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_NAME_FIELD_H_
