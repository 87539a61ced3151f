#ifndef VENDLINGUA_DESKTOP_DESK_CELLS_EDIT_H_
#define VENDLINGUA_DESKTOP_DESK_CELLS_EDIT_H_

#include "core/desk/cell_text.h"
#include "desktop/main_window/destination_edit.h"

namespace vendlingua {

/// The edit box of the desk: a message in its cells, those of the board dark. It takes what the
/// edit box of the main window takes.
class CellsEdit : public DestinationEdit {
  Q_OBJECT

 public:
  CellsEdit(CellText text, CellText::Mode mode, QWidget* parent);

  /// Shows another text in the same cells; the caret stays.
  void ShowText(const CellText& text);

  /// The text as it was at first.
  void Revert();

 signals:
  /// The text is `text` now, as the edit box of the main window would have it.
  void Edited(const DisplayCodes& text);
  void NoRoom();
  void ModeChanged(CellText::Mode mode);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void TakeEdit(const QString& edited);
  void TakeDrop(DisplayCode code, int x);
  void ShowCells(std::size_t caret);
  void LeaveBoardCells(bool backward);
  std::size_t Caret() const { return static_cast<std::size_t>(cursorPosition()); }

  CellText text_;
  DisplayCodes first_text_;
  CellText::Mode mode_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_CELLS_EDIT_H_
