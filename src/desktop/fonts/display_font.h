#ifndef VENDLINGUA_DESKTOP_FONTS_DISPLAY_FONT_H_
#define VENDLINGUA_DESKTOP_FONTS_DISPLAY_FONT_H_

#include <QFont>
#include <cstddef>

namespace vendlingua {

/// From one origin cell to the next, in twips.
inline constexpr int kCellPitch = 180;

/// The font that draws what display type `index` (0 to 3) shows, 17 points high.
QFont DisplayFont(std::size_t index);

/// The same font, spaced so that its characters follow each other at the pitch of the origin cells.
QFont SpacedLikeCells(QFont font);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_FONTS_DISPLAY_FONT_H_
