#ifndef VENDLINGUA_DESKTOP_DESK_SUGGESTION_DELEGATE_H_
#define VENDLINGUA_DESKTOP_DESK_SUGGESTION_DELEGATE_H_

#include <QFont>
#include <QString>
#include <QStyledItemDelegate>
#include <optional>
#include <vector>

#include "desktop/desk/cell_painting.h"

namespace vendlingua {

/// A suggestion as the desk draws it.
struct ShownSuggestion {
  QString key;     ///< that takes it
  QString rating;  ///< how much of the origins is the same
  QString source;
  ShownCells origin;       ///< with what is different in it as hits
  ShownCells translation;  ///< laid out for the message
  /// The translation for the message; nothing when it has no room there.
  std::optional<DisplayCodes> codes;
};

/// Draws suggestions: the cells of the origin above those of the translation.
class SuggestionDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// `suggestions` are those of the rows; they are kept.
  SuggestionDelegate(const std::vector<ShownSuggestion>& suggestions, QObject* parent);

  void SetDisplayFont(const QFont& font) { font_ = font; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const std::vector<ShownSuggestion>& suggestions_;
  QFont font_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_SUGGESTION_DELEGATE_H_
