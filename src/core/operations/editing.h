#ifndef VENDLINGUA_CORE_OPERATIONS_EDITING_H_
#define VENDLINGUA_CORE_OPERATIONS_EDITING_H_

#include <cstddef>
#include <span>

#include "core/document/workspace.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// What the user does in the editing view, one call a gesture. Texts are in the message set as soon
/// as they are edited.
class Editing {
 public:
  explicit Editing(Workspace& workspace) : workspace_(workspace) {}

  /// The scroll bar moved to `message`: stores the message being left and shows the other one.
  /// Nothing while there is no origin to show.
  void GoTo(std::size_t message);

  /// What the edit box shows of a message that nobody has edited goes into the set: characters that
  /// its file holds in the board's cells give way to placeholders. Nothing while no destination is
  /// open.
  void StoreCurrentMessage();

  /// The edit box holds `text` now: cut to the message width. The status tells when it was cut, and
  /// when something was typed where the board writes.
  void ChangeText(std::span<const DisplayCode> text);

  /// A key was pressed in the edit box that did not change its text.
  void KeyPressed();

  /// A character of the map was dropped on the edit box, `x` units right of where its text begins;
  /// the text of the message width is `text_width` of the same units wide.
  void Drop(DisplayCode character, int x, int text_width);

  /// Copies the whole origin into the edit box (`mnuCopy`).
  void CopyOrigin();

  /// Gives several messages new texts, which are taken back together.
  void ReplaceTexts(std::span<const NewText> texts);

  /// Appends a message to a ".MES" set after asking (`Command2`).
  void AddMessage(Dialogs& dialogs);

  /// Typing paused: what is typed from now on is taken back by a step of its own.
  void EndTyping() { workspace_.set.history.EndTyping(); }

  /// Takes the last change of the destination back, or does it again, and shows its message.
  void Undo();
  void Redo();

  /// Switches between compact and full height (`Command1`). Returns by how many twips the window
  /// moves down.
  int ToggleHeight();

  /// The user chose display type `index` (0 to 3) in `mnuLCD`: another one than before is a change
  /// of the set, except for the first choice. The status tells when the file does not keep it.
  void ChooseDisplayType(std::size_t index);

 private:
  void Show(std::size_t message);
  void Enter(DisplayCodes text, EditKind kind);
  DisplayCodes TextInCells() const;

  Workspace& workspace_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_EDITING_H_
