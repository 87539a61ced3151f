#ifndef VENDLINGUA_DESKTOP_DESK_GLASS_H_
#define VENDLINGUA_DESKTOP_DESK_GLASS_H_

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "core/desk/glass_rows.h"
#include "core/document/workspace.h"

namespace vendlingua {

/// The light behind the glass.
enum class Backlight { kGreen, kBlue, kWhite };

/// The display of the board (`DeskGlass`), dot by dot: two rows with the current message and its
/// partner. The digits of the board's cells run while it can be seen.
class Glass : public QWidget {
  Q_OBJECT

 public:
  Glass(const Workspace& workspace, QWidget* parent);

  /// Shows the current message of the document.
  void Mirror();
  void SetBacklight(Backlight backlight);

  /// The glass as a picture of its own.
  QImage Picture() const;

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;

 protected:
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Draw(QPainter& painter, int dot) const;
  void DrawCell(QPainter& painter, QPoint place, int dot, DisplayCode code) const;
  QSize SizeInDots() const;
  int DotIn(int width) const;
  void RunDigits();

  const Workspace& workspace_;
  GlassRows rows_;
  std::size_t display_type_ = 0;
  Backlight backlight_ = Backlight::kGreen;
  QTimer timer_;
  unsigned ticks_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_GLASS_H_
