#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_CHARACTER_MAP_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_CHARACTER_MAP_H_

#include <QLabel>
#include <QPoint>
#include <QWidget>
#include <array>
#include <optional>

#include "core/document/display_code.h"

namespace vendlingua {

/// The 255 characters of the display font (`Label1`), 16 to a row: each stands where its code says.
/// The mouse drags them, the arrow keys and Enter type them.
class CharacterMap : public QWidget {
  Q_OBJECT

 public:
  explicit CharacterMap(QWidget* parent);

  /// The size of the whole map, in pixels.
  static QSize MapSize();

  void SetDisplayFont(const QFont& font);

 signals:
  /// The mouse was pressed on the character of `code`.
  void Picked(DisplayCode code);

  /// The cursor stands on the cell at `cell` now.
  void CursorMoved(QRect cell);

  /// The character of `code` was chosen with the keyboard.
  void Typed(DisplayCode code);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  static constexpr int kCodes = 255;

  QLabel& CellOf(int code) { return *Label1_.at(static_cast<std::size_t>(code - 1)); }
  void MoveCursor(int code);
  void Highlight(bool on);
  void StartDrag(DisplayCode code);

  std::array<QLabel*, kCodes> Label1_{};
  int cursor_ = 'A';
  std::optional<DisplayCode> pressed_;
  QPoint pressed_at_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_CHARACTER_MAP_H_
