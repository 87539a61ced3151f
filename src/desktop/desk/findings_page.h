#ifndef VENDLINGUA_DESKTOP_DESK_FINDINGS_PAGE_H_
#define VENDLINGUA_DESKTOP_DESK_FINDINGS_PAGE_H_

#include <QIcon>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <cstddef>
#include <vector>

#include "core/checks/finding.h"
#include "core/document/message_set.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// The findings of the language (`DeskFindings`): the one that is chosen shows its message, and can
/// be mended where that needs no translator.
class FindingsPage : public QWidget {
  Q_OBJECT

 public:
  explicit FindingsPage(QWidget* parent);

  /// Shows `findings`, and chooses the first one of message `current` that has a fix, or the first
  /// of all.
  void Show(std::vector<Finding> findings, std::size_t current);
  void SetCaptions(const UiText& ui_text);

  /// Mends the finding that is chosen.
  void Fix();

 signals:
  void MessageChosen(std::size_t message);
  void FixWanted(const NewText& text);

 private:
  QTreeWidgetItem* NewRow(const Finding& finding) const;
  void ShowRows(std::vector<Finding> findings);
  void OfferFix();
  void Choose(std::size_t message);
  const Finding* Current() const;

  QTreeWidget* list_;
  QPushButton* fix_;
  QIcon needs_work_;
  QIcon note_;
  std::vector<Finding> shown_;
  UiText ui_text_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_FINDINGS_PAGE_H_
