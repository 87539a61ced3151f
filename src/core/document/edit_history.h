#ifndef VENDLINGUA_CORE_DOCUMENT_EDIT_HISTORY_H_
#define VENDLINGUA_CORE_DOCUMENT_EDIT_HISTORY_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua {

/// One change of a destination language that can be taken back: a text of one message, or a message
/// that was added behind the last one.
struct Edit {
  std::uint8_t language;  ///< `DestLang` when it was made
  std::uint16_t message;
  DisplayText before;
  DisplayText after;
  std::uint16_t last_msg_before;
  std::uint16_t last_msg_after;
};

/// Changes that are taken back together, in the order in which they were made.
using EditStep = std::vector<Edit>;

/// How a change came about: the keys that are typed in one message are taken back together,
/// everything else for itself.
enum class EditKind { kTyping, kWhole };

/// The changes of the destination texts since the language was opened, in their order.
class EditHistory {
 public:
  /// Notes a change. What was taken back before cannot be done again any more.
  void Add(const Edit& edit, EditKind kind);
  /// The same of changes that one command made together.
  void Add(EditStep step);

  /// The message was left, or typing paused: what is typed from now on is a step of its own.
  void EndTyping() { typing_ = false; }

  /// The step to take back, or to do again; it counts as taken back, or done, from then on. Empty
  /// when there is none.
  EditStep StepBack();
  EditStep StepForward();

  bool CanStepBack() const { return done_ > 0; }
  bool CanStepForward() const { return done_ < steps_.size(); }

 private:
  // Steps never change, so that every snapshot of the set can share them.
  std::vector<std::shared_ptr<const EditStep>> steps_;
  std::size_t done_ = 0;  // of them; those behind were taken back
  bool typing_ = false;   // the last one may grow
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_EDIT_HISTORY_H_
