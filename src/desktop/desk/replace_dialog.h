#ifndef VENDLINGUA_DESKTOP_DESK_REPLACE_DIALOG_H_
#define VENDLINGUA_DESKTOP_DESK_REPLACE_DIALOG_H_

#include <QDialog>
#include <QTableWidget>
#include <vector>

#include "core/document/workspace.h"
#include "desktop/desk/finder.h"

namespace vendlingua {

/// Shows every text before and after it is replaced in, and asks whether it shall be.
class ReplaceDialog : public QDialog {
  Q_OBJECT

 public:
  ReplaceDialog(const Workspace& workspace, const std::vector<ReplacedText>& plan, QWidget* parent);

 private:
  void Fill(QTableWidget& table, const std::vector<ReplacedText>& plan);

  const UiText& ui_text_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_REPLACE_DIALOG_H_
