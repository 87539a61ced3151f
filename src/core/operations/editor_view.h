#ifndef VENDLINGUA_CORE_OPERATIONS_EDITOR_VIEW_H_
#define VENDLINGUA_CORE_OPERATIONS_EDITOR_VIEW_H_

#include <cstddef>
#include <span>

#include "core/document/workspace.h"
#include "core/operations/editing_view.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// The editing view without its window: one message of the set, its origin text in cells, its
/// destination text in the edit box. It changes the plain data of `Workspace::view`, which the
/// window mirrors.
class EditorView : public EditingView {
 public:
  explicit EditorView(Workspace& workspace) : workspace_(workspace) {}

  void VisRef() override;
  void StoreCurrentMessage() override;
  void LoadDisplayType(std::size_t index) override;

  /// Shows the message whose number stands in `Label6`.
  void VisMes();

  /// The scroll bar moved to `value`: stores the message being left and shows the new one. Nothing
  /// while no set is loaded.
  void Scroll(int value);

  /// The edit box holds `text` now: cut to the message width. True when something was cut off.
  bool ChangeText(std::span<const DisplayCode> text);

  /// A character key was pressed in the edit box.
  void KeyPressed();

  /// A character of the map was dropped on the edit box, `x` units from its left edge; the box is
  /// `box_width` of the same units wide.
  void Drop(DisplayCode character, int x, int box_width);

  /// Copies the whole origin into the edit box (`mnuCopy`).
  void CopyOrigin();

  /// Appends a message to a ".MES" set after asking (`Command2`).
  void AddMessage(Dialogs& dialogs);

  /// Switches between compact and full height (`Command1`). Returns by how many twips the window
  /// moves down.
  int ToggleHeight();

  /// The user chose display type `index` (0 to 3) in `mnuLCD`: another one than before is a change
  /// of the set, except for the first choice.
  void ChooseDisplayType(std::size_t index);

 private:
  void ShowNumber(int message);
  void ShowOrigin(int message);
  void ShowDestination(int message);
  void ShowNameMarker(int message);
  DisplayCodes TextInCells() const;
  void MarkModified();

  Workspace& workspace_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_EDITOR_VIEW_H_
