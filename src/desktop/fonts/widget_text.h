#ifndef VENDLINGUA_DESKTOP_FONTS_WIDGET_TEXT_H_
#define VENDLINGUA_DESKTOP_FONTS_WIDGET_TEXT_H_

#include <QString>
#include <cstddef>
#include <optional>
#include <span>

#include "core/document/display_code.h"

namespace vendlingua {

// Display codes as the text of widgets, and back. The characters are those of Windows-1252; codes
// that a text widget cannot hold, or that text layout would swallow, travel as U+F000 + code, where
// the display fonts have their glyphs too.

QChar ToWidgetCharacter(DisplayCode code);
QString ToWidgetText(std::span<const DisplayCode> codes);

/// The display code of a character that was typed, pasted or put there by ToWidgetCharacter.
std::optional<DisplayCode> FromWidgetCharacter(char32_t character);

/// The cells that a character which was typed or pasted enters as on display type `display`: its
/// own code, or those that draw it there. None when that display lacks it.
DisplayCodes EnteredCodes(char32_t character, std::size_t display);

/// The display codes of a widget's text; characters that have none are left out.
DisplayCodes FromWidgetText(const QString& text);

/// A widget's text as other programs know it, without the characters from U+F000 on.
QString ToPlainText(const QString& text);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_FONTS_WIDGET_TEXT_H_
