#ifndef VENDLINGUA_DESKTOP_DESK_CELL_PAINTING_H_
#define VENDLINGUA_DESKTOP_DESK_CELL_PAINTING_H_

#include <QPainter>
#include <QPoint>
#include <QSize>
#include <cstddef>
#include <vector>

#include "core/desk/cell_run.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// A row of cells as the desk draws it.
struct ShownCells {
  DisplayCodes codes;
  std::vector<bool> board_fills;
  std::vector<CellRun> hits;  ///< of a search
};

/// From one cell to the next, and from top to bottom, in pixels.
int CellPitch();
int CellHeight();
QSize SizeOfCells(std::size_t cells);

/// Draws cells from `place` on, their fields alone or with their characters; nothing where there
/// are none. The painter has a font that is spaced like cells.
void PaintFields(QPainter& painter, QPoint place, const ShownCells& cells);
void PaintCells(QPainter& painter, QPoint place, const ShownCells& cells);

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_CELL_PAINTING_H_
