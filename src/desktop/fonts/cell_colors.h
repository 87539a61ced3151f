#ifndef VENDLINGUA_DESKTOP_FONTS_CELL_COLORS_H_
#define VENDLINGUA_DESKTOP_FONTS_CELL_COLORS_H_

#include <QRgb>

namespace vendlingua {

// The colours of the cells. They belong to the display, not to the desktop's theme.
inline constexpr QRgb kOrdinaryCell = 0xFFFFFFC0;
inline constexpr QRgb kBoardCell = 0xFFC0C000;
inline constexpr QRgb kCellBorder = 0xFFDCDC8C;

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_FONTS_CELL_COLORS_H_
