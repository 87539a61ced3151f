#include "desktop/fonts/widget_text.h"

#include <QList>

#include "core/document/alphabet.h"

namespace vendlingua {
namespace {

constexpr char32_t kPrivateStart = 0xF000;
constexpr char32_t kPrivateEnd = 0xF0FF;

bool IsPrivate(char32_t character) {
  return character >= kPrivateStart && character <= kPrivateEnd;
}

bool WidgetsCanHold(DisplayCode code) {
  constexpr DisplayCode kDelete = 127;
  constexpr DisplayCode kSoftHyphen = 173;
  const bool unassigned = code >= 0x80 && code <= 0x9F && ToUnicode(code) == code;
  return code >= kBlank && code != kDelete && code != kSoftHyphen && !unassigned;
}

}  // namespace

QChar ToWidgetCharacter(DisplayCode code) {
  return {static_cast<char16_t>(WidgetsCanHold(code) ? ToUnicode(code) : kPrivateStart + code)};
}

QString ToWidgetText(std::span<const DisplayCode> codes) {
  QString text;
  for (const DisplayCode code : codes) {
    text += ToWidgetCharacter(code);
  }
  return text;
}

std::optional<DisplayCode> FromWidgetCharacter(char32_t character) {
  if (IsPrivate(character)) {
    return static_cast<DisplayCode>(character - kPrivateStart);
  }
  return ToDisplayCode(character);
}

DisplayCodes EnteredCodes(char32_t character, std::size_t display) {
  if (const auto code = FromWidgetCharacter(character)) {
    return {*code};
  }
  const DrawnText drawn =
      Alphabet::Of(display).CodesOf(QString::fromUcs4(&character, 1).toStdString());
  return drawn.unknown.empty() ? drawn.codes : DisplayCodes();
}

DisplayCodes FromWidgetText(const QString& text) {
  DisplayCodes codes;
  for (const char32_t character : text.toUcs4()) {
    if (const auto code = FromWidgetCharacter(character)) {
      codes.push_back(*code);
    }
  }
  return codes;
}

QString ToPlainText(const QString& text) {
  QString plain = text;
  for (QChar& character : plain) {
    if (IsPrivate(character.unicode())) {
      const char32_t code = character.unicode() - kPrivateStart;
      character = QChar(static_cast<char16_t>(ToUnicode(static_cast<DisplayCode>(code))));
    }
  }
  return plain;
}

}  // namespace vendlingua
