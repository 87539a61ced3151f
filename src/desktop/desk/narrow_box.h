#ifndef VENDLINGUA_DESKTOP_DESK_NARROW_BOX_H_
#define VENDLINGUA_DESKTOP_DESK_NARROW_BOX_H_

#include <QComboBox>

namespace vendlingua {

/// Lets a box become narrower than its entries where the screen has no room for them.
inline void LetBeNarrow(QComboBox& box) {
  constexpr int kLetters = 10;
  box.setMinimumWidth(kLetters * box.fontMetrics().averageCharWidth());
}

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_NARROW_BOX_H_
