#ifndef VENDLINGUA_DESKTOP_DIALOGS_CONFLICT_BOX_H_
#define VENDLINGUA_DESKTOP_DIALOGS_CONFLICT_BOX_H_

#include <QDialog>
#include <cstddef>
#include <optional>
#include <string>

#include "core/document/display_code.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// Asks which of two changes of one message counts (`ConflictBox`): both texts in cells as the
/// editor has them, each beside the button that chooses it (`KeepMine`, `TakeTheirs`).
class ConflictBox : public QDialog {
  Q_OBJECT

 public:
  /// About conflict `index` of the request.
  ConflictBox(const ConflictRequest& request, std::size_t index, QWidget* parent);

  /// Nothing when the box was closed without an answer.
  std::optional<ConflictAnswer> Ask();

 private:
  void AddChoice(const DisplayCodes& codes, std::size_t display, const std::string& caption,
                 ConflictAnswer answer);

  std::optional<ConflictAnswer> answer_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DIALOGS_CONFLICT_BOX_H_
