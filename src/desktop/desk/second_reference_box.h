#ifndef VENDLINGUA_DESKTOP_DESK_SECOND_REFERENCE_BOX_H_
#define VENDLINGUA_DESKTOP_DESK_SECOND_REFERENCE_BOX_H_

#include <QComboBox>
#include <QString>
#include <string>

#include "core/document/message_set.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// Chooses the language that is shown beneath the origin (`DeskSecondReference`): none, or one of
/// the open file.
class SecondReferenceBox : public QComboBox {
  Q_OBJECT

 public:
  explicit SecondReferenceBox(QWidget* parent);

  /// Offers the languages of the file; `name` is chosen where the file has it.
  void Show(const MessageSet& set, const std::string& name);
  void SetCaptions(const UiText& ui_text);

 signals:
  /// The name of a language in its files, UTF-8; empty for none.
  void Chosen(const std::string& name);
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_SECOND_REFERENCE_BOX_H_
