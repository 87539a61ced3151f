#ifndef VENDLINGUA_DESKTOP_INFORMATION_FRM_INFO_H_
#define VENDLINGUA_DESKTOP_INFORMATION_FRM_INFO_H_

#include <QWidget>

namespace vendlingua {

/// The information window: title and revision of the program.
class FrmInfo : public QWidget {
  Q_OBJECT

 public:
  explicit FrmInfo(QWidget* main_window);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_INFORMATION_FRM_INFO_H_
