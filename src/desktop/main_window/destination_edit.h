#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_DESTINATION_EDIT_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_DESTINATION_EDIT_H_

#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QList>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <vector>

#include "core/document/display_code.h"
#include "core/presentation/view_state.h"
#include "desktop/main_window/display_text_validator.h"

namespace vendlingua {

/// The type of data that a character of the map is dragged as: one byte, its display code.
inline constexpr QLatin1String kDraggedCodeType("application/x-vendlingua-display-code");

/// The destination edit box (`Text1`): its characters stand under the origin cells, it takes
/// characters from the map and it can type any code with Alt + 0nnn.
class DestinationEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit DestinationEdit(QWidget* parent);

  /// Puts `entries` on top of the menu of the edit box, in the place of its own for taking back.
  void OfferInMenu(const QList<QAction*>& entries) { menu_entries_ = entries; }

  /// Shows the text of the view, the caret where it was; another message begins at its first
  /// character.
  void Show(const ViewState& view);

  /// The letters of display type `display` can be typed.
  void SetDisplay(std::size_t display);

 signals:
  /// The user changed the text.
  void TextChanged(const DisplayCodes& text);

  /// A key that stands for `code` was pressed, or `code` was typed as a number.
  void CharacterTyped(DisplayCode code);

  /// A key that stands for a code was pressed and did not change the text.
  void KeyPressed();

  /// `code` was dropped `x` pixels from the beginning of the text, which may be scrolled.
  void CharacterDropped(DisplayCode code, int x);

  /// `characters` have no display code and were not taken.
  void Refused(const QStringList& characters);

 protected:
  bool event(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int TextLeft() const;
  void LimitLength(int limit);
  bool TakeAltDigit(const QKeyEvent& event);
  void TypeAltCode();
  void PutPlainTextOnClipboard(QClipboard::Mode mode);

  DisplayTextValidator validator_;
  QList<QAction*> menu_entries_;
  std::vector<bool> board_cells_;  // that are drawn dark
  std::size_t display_ = 0;
  QString alt_digits_;
  int message_ = 0;
  bool edited_ = false;  // by the key that is being pressed
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_DESTINATION_EDIT_H_
