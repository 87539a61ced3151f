#ifndef VENDLINGUA_DESKTOP_DESK_PREVIEW_DIALOG_H_
#define VENDLINGUA_DESKTOP_DESK_PREVIEW_DIALOG_H_

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <QTableWidget>
#include <cstddef>
#include <optional>
#include <vector>

#include "core/document/workspace.h"

namespace vendlingua {

/// What a message shows now and what it is to say.
struct PreviewRow {
  std::size_t message;
  DisplayCodes before;
  std::optional<DisplayCodes> after;  ///< nothing when that does not fit
  QString remark;
};

/// Changes of many messages.
struct Preview {
  UiTextId title;
  UiTextId accept;  ///< the button that makes them
  QString summary{};
  UiTextId before = UiTextId::kBefore;
  UiTextId after = UiTextId::kAfter;
  std::optional<UiTextId> remark{};  ///< heading of the remarks, if there are any
  std::vector<PreviewRow> rows{};
};

/// Shows what would be changed before it is, so that rows can be left out (`DeskPreview`).
class PreviewDialog : public QDialog {
  Q_OBJECT

 public:
  PreviewDialog(const Workspace& workspace, const Preview& preview, QWidget* parent);

  /// The changes that are checked.
  std::vector<NewText> Texts() const;

 private:
  void Fill(const Preview& preview, const QFont& display_font);
  void FillRow(int row, const PreviewRow& text, const QFont& display_font);

  const MessageSet& set_;
  const UiText& ui_text_;
  std::vector<PreviewRow> rows_;
  QTableWidget* table_;
  QPushButton* accept_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_PREVIEW_DIALOG_H_
