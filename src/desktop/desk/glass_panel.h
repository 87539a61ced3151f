#ifndef VENDLINGUA_DESKTOP_DESK_GLASS_PANEL_H_
#define VENDLINGUA_DESKTOP_DESK_GLASS_PANEL_H_

#include <QByteArray>
#include <QComboBox>
#include <QToolButton>
#include <QWidget>

#include "core/texts/ui_text.h"
#include "desktop/desk/glass.h"

namespace vendlingua {

/// The glass with its light and what can be done with its picture.
class GlassPanel : public QWidget {
  Q_OBJECT

 public:
  GlassPanel(const Workspace& workspace, QWidget* parent);

  void Mirror() { glass_->Mirror(); }
  void SetCaptions(const UiText& ui_text);

  int backlight() const { return backlight_->currentIndex(); }
  void SetBacklight(int backlight);

 signals:
  /// The picture, a PNG file, is to be saved.
  void SaveWanted(const QByteArray& png);

 private:
  void Save();

  Glass* glass_;
  QComboBox* backlight_;
  QToolButton* copy_;
  QToolButton* save_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_GLASS_PANEL_H_
