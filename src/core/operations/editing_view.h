#ifndef VENDLINGUA_CORE_OPERATIONS_EDITING_VIEW_H_
#define VENDLINGUA_CORE_OPERATIONS_EDITING_VIEW_H_

#include <cstddef>

namespace vendlingua {

/// What reading and writing files ask of the view that edits the set.
class EditingView {
 public:
  EditingView() = default;
  EditingView(const EditingView&) = delete;
  EditingView& operator=(const EditingView&) = delete;
  virtual ~EditingView() = default;

  /// Copies the edit box into `DestText`; nothing while no set is loaded.
  virtual void StoreCurrentMessage() = 0;

  /// Lays the view out for the dimensions of the set.
  virtual void VisRef() = 0;

  /// Takes display type `index` (0 to 3) from a file, which never counts as a change of the set.
  virtual void LoadDisplayType(std::size_t index) = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_EDITING_VIEW_H_
