#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_ORIGIN_LABEL_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_ORIGIN_LABEL_H_

#include <QLabel>

#include "core/presentation/view_state.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// One origin cell (`Label5`): a character as the display draws it, on the colour of its kind. It
/// offers the copy menu to the right mouse button and to the menu key.
class OriginLabel : public QLabel {
  Q_OBJECT

 public:
  OriginLabel(int index, QWidget* parent);

  void Show(const OriginCell& cell, const UiText& ui_text);

 signals:
  /// The copy menu is wanted for cell `index`.
  void CopyMenuWanted(int index);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int index_;
  bool dark_ = false;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_ORIGIN_LABEL_H_
