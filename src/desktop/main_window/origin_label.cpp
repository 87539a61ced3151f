#include "desktop/main_window/origin_label.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

#include "core/presentation/twips.h"
#include "desktop/element_name.h"
#include "desktop/fonts/cell_colors.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kFirstLeft = 1200;
constexpr int kTop = 480;
constexpr int kWidth = 195;
constexpr int kHeight = 345;

}  // namespace

OriginLabel::OriginLabel(int index, QWidget* parent) : QLabel(parent), index_(index) {
  setObjectName(ElementName("Label5", index));
  setTextFormat(Qt::PlainText);
  setGeometry(PixelsFromTwips(kFirstLeft + kCellPitch * index), PixelsFromTwips(kTop),
              PixelsFromTwips(kWidth), PixelsFromTwips(kHeight));
  if (index == 0) {
    // The whole row is one stop on the way of the Tab key: its menu copies all of it.
    setFocusPolicy(Qt::TabFocus);
  }
}

void OriginLabel::Show(const OriginCell& cell, const UiText& ui_text) {
  dark_ = cell.dark;
  setText(cell.caption ? QString(ToWidgetCharacter(*cell.caption)) : QString());
  setAccessibleName(
      FromUtf8(ui_text[UiTextId::kCell]) + QStringLiteral(" %1: ").arg(index_ + 1) +
      (cell.dark ? FromUtf8(ui_text[UiTextId::kPlaceholderName]) : ToPlainText(text())));
  setVisible(cell.visible);
  update();
}

void OriginLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard) {
    emit CopyMenuWanted(index_);
  }
}

void OriginLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    emit CopyMenuWanted(index_);
  } else {
    QLabel::mousePressEvent(event);
  }
}

// Drawn here, because the character has to begin at the cell's left edge: so it stands above the
// same character of the edit box.
void OriginLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(dark_ ? kBoardCell : kOrdinaryCell));
  painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(kCellBorder));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(Qt::black);
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text());
}

}  // namespace vendlingua
