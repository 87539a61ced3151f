#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_STATUS_LINE_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_STATUS_LINE_H_

#include <QLabel>
#include <QString>
#include <QToolButton>
#include <QWidget>

#include "core/presentation/view_state.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The last line of the main window: how the last command ended, or what to do next (`Status`), and
/// where in the document one is (`StatusState`). What is cut can be read by a button
/// (`StatusDetails`).
class StatusLine : public QWidget {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent);

  void Show(const ViewState& view, const UiText& ui_text);
  void SetCaptions(const UiText& ui_text);

 signals:
  /// The status is to be shown in full.
  void DetailsWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QLabel* AddLabel(const QString& name);
  void ShowState();
  void ShowStatus();

  QLabel* status_;
  QToolButton* details_;
  QLabel* state_;
  QString status_text_;
  QString hint_;
  QString languages_;
  QString place_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_STATUS_LINE_H_
