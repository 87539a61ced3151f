#include "desktop/desk/cell_painting.h"

#include <QColor>
#include <QLine>
#include <QRect>
#include <QVarLengthArray>

#include "core/presentation/twips.h"
#include "desktop/fonts/cell_colors.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"

namespace vendlingua {
namespace {

constexpr QRgb kHit = 0xFFFFB347;
constexpr int kUsualCells = 40;

QRect PlaceOf(QPoint place, std::size_t first, std::size_t count) {
  return {place.x() + static_cast<int>(first) * CellPitch(), place.y(),
          static_cast<int>(count) * CellPitch(), CellHeight()};
}

}  // namespace

int CellPitch() { return PixelsFromTwips(kCellPitch); }

int CellHeight() { return PixelsFromTwips(345); }

QSize SizeOfCells(std::size_t cells) {
  return {static_cast<int>(cells) * CellPitch() + 1, CellHeight()};
}

void PaintFields(QPainter& painter, QPoint place, const ShownCells& cells) {
  const std::size_t count = cells.codes.size();
  painter.fillRect(PlaceOf(place, 0, count), QColor(kOrdinaryCell));
  for (const CellRun& hit : cells.hits) {
    painter.fillRect(PlaceOf(place, hit.first, hit.count), QColor(kHit));
  }
  for (std::size_t cell = 0; cell < count; ++cell) {
    if (cells.board_fills[cell]) {
      painter.fillRect(PlaceOf(place, cell, 1), QColor(kBoardCell));
    }
  }
  QVarLengthArray<QLine, kUsualCells + 1> borders;
  for (std::size_t cell = 0; cell <= count; ++cell) {
    const int x = place.x() + static_cast<int>(cell) * CellPitch();
    borders.append({x, place.y(), x, place.y() + CellHeight() - 1});
  }
  painter.setPen(QColor(kCellBorder));
  painter.drawLines(borders.constData(), static_cast<int>(borders.size()));
  painter.drawRect(PlaceOf(place, 0, count).adjusted(0, 0, 0, -1));
}

void PaintCells(QPainter& painter, QPoint place, const ShownCells& cells) {
  if (cells.codes.empty()) {
    return;
  }
  PaintFields(painter, place, cells);
  painter.setPen(Qt::black);
  painter.drawText(PlaceOf(place, 0, cells.codes.size()),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip | Qt::TextSingleLine,
                   ToWidgetText(cells.codes));
}

}  // namespace vendlingua
