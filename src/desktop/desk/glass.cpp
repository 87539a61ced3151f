#include "desktop/desk/glass.h"

#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <array>

#include "core/document/alphabet.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kCountInterval = 500;  // milliseconds
constexpr int kFrameDots = 4;        // around all cells
constexpr int kUsualDot = 3;         // pixels
constexpr int kPictureDot = 6;
constexpr std::size_t kBoardCells = 16;

constexpr int kCellDotsAcross = static_cast<int>(kGlassCellColumns);
constexpr int kCellDotsDown = static_cast<int>(kGlassCellRows);

struct Light {
  QRgb glass;
  QRgb cell;
  QRgb dot;
};

// By Backlight. A blue glass is lit through its dots, the others around them.
constexpr std::array<Light, 3> kLights = {{{0xFFA4C639, 0xFF98BA30, 0xFF1E2B0A},
                                           {0xFF1738C4, 0xFF2245D2, 0xFFF4F8FF},
                                           {0xFFE9EDF0, 0xFFDCE2E7, 0xFF1B2530}}};

}  // namespace

Glass::Glass(const Workspace& workspace, QWidget* parent) : QWidget(parent), workspace_(workspace) {
  setObjectName(QStringLiteral("DeskGlass"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  timer_.setInterval(kCountInterval);
  connect(&timer_, &QTimer::timeout, this, [this] {
    ++ticks_;
    update();
  });
}

void Glass::Mirror() {
  const MessageSet& set = workspace_.set;
  rows_ = set.phase >= Phase::kOriginChosen ? GlassRowsOf(set, set.current_message) : GlassRows();
  display_type_ = set.DisplayType;
  const Alphabet& alphabet = Alphabet::Of(display_type_);
  setAccessibleName(FromUtf8(workspace_.ui_text[UiTextId::kDisplay]));
  setAccessibleDescription(
      FromUtf8(alphabet.TextOf(rows_.codes[0]) + "\n" + alphabet.TextOf(rows_.codes[1])));
  updateGeometry();
  RunDigits();
  update();
}

void Glass::SetBacklight(Backlight backlight) {
  backlight_ = backlight;
  update();
}

QSize Glass::SizeInDots() const {
  const auto cells = static_cast<int>(std::max(rows_.codes[0].size(), kBoardCells));
  return {cells * kCellDotsAcross - 1 + 2 * kFrameDots,
          static_cast<int>(kGlassRows) * kCellDotsDown - 1 + 2 * kFrameDots};
}

QSize Glass::sizeHint() const { return SizeInDots() * kUsualDot; }

// Dots are whole pixels of the screen, so that all are alike.
int Glass::DotIn(int width) const {
  return std::max(static_cast<int>(width * devicePixelRatioF()) / SizeInDots().width(), 1);
}

int Glass::heightForWidth(int width) const {
  return qCeil(SizeInDots().height() * DotIn(width) / devicePixelRatioF());
}

QImage Glass::Picture() const {
  QImage picture(SizeInDots() * kPictureDot, QImage::Format_RGB32);
  QPainter painter(&picture);
  Draw(painter, kPictureDot);
  return picture;
}

void Glass::paintEvent(QPaintEvent* /*event*/) {
  const qreal ratio = devicePixelRatioF();
  const int dot = DotIn(width());
  QPainter painter(this);
  painter.scale(1 / ratio, 1 / ratio);
  const int free = static_cast<int>(width() * ratio) - SizeInDots().width() * dot;
  painter.translate(std::max(free / 2, 0), 0);
  Draw(painter, dot);
}

void Glass::Draw(QPainter& painter, int dot) const {
  const Light& light = kLights.at(static_cast<std::size_t>(backlight_));
  painter.fillRect(QRect(QPoint(), SizeInDots() * dot), QColor(light.glass));
  const std::size_t width = std::max(rows_.codes[0].size(), kBoardCells);
  for (std::size_t row = 0; row < kGlassRows; ++row) {
    const std::vector<GlassCell> cells = GlassCells(FitTo(rows_.codes.at(row), width), ticks_);
    for (std::size_t cell = 0; cell < width; ++cell) {
      const QPoint place(kFrameDots + static_cast<int>(cell) * kCellDotsAcross,
                         kFrameDots + static_cast<int>(row) * kCellDotsDown);
      DrawCell(painter, place * dot, dot, cells[cell].code);
    }
  }
}

// A gap of one pixel parts the dots where there is room for it.
void Glass::DrawCell(QPainter& painter, QPoint place, int dot, DisplayCode code) const {
  const Light& light = kLights.at(static_cast<std::size_t>(backlight_));
  const int lit = dot > 2 ? dot - 1 : dot;
  const Glyph& glyph = Alphabet::Of(display_type_).GlyphOf(code);
  for (std::size_t row = 0; row < Glyph::kRows; ++row) {
    for (std::size_t column = 0; column < Glyph::kColumns; ++column) {
      painter.fillRect(place.x() + static_cast<int>(column) * dot,
                       place.y() + static_cast<int>(row) * dot, lit, lit,
                       QColor(glyph.HasDot(column, row) ? light.dot : light.cell));
    }
  }
}

void Glass::RunDigits() {
  if (isVisible() && rows_.HasBoardCells()) {
    if (!timer_.isActive()) {
      timer_.start();
    }
  } else {
    timer_.stop();
  }
}

void Glass::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  RunDigits();
}

void Glass::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  RunDigits();
}

}  // namespace vendlingua
