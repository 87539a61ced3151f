#include "desktop/fonts/display_font.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <array>

#include "core/presentation/menu_state.h"
#include "core/presentation/twips.h"

namespace vendlingua {
namespace {

constexpr std::array<const char*, kDisplayTypes> kFamilies = {"LCD", "LCD_Cy", "LCD KTV",
                                                              "LCD HBR"};
constexpr qreal kPoints = 17;
constexpr qreal kDotsPerInch = 96;

}  // namespace

QFont DisplayFont(std::size_t index) {
  QFont font(QString::fromLatin1(kFamilies.at(index)));
  // The layout is made for 96 dots to the inch, whatever the screen takes a point for.
  font.setPointSizeF(kPoints * kDotsPerInch /
                     QGuiApplication::primaryScreen()->logicalDotsPerInchY());
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(QFont::NoFontMerging);
  font.setKerning(false);
  return font;
}

QFont SpacedLikeCells(QFont font) {
  const qreal pitch = static_cast<qreal>(kCellPitch) / kTwipsPerPixel;
  font.setLetterSpacing(QFont::AbsoluteSpacing,
                        pitch - QFontMetricsF(font).horizontalAdvance(QLatin1Char('M')));
  return font;
}

}  // namespace vendlingua
