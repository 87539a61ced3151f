#ifndef VENDLINGUA_CORE_FORMATS_FILE_MERGE_H_
#define VENDLINGUA_CORE_FORMATS_FILE_MERGE_H_

#include <string>
#include <string_view>
#include <vector>

#include "core/document/message_set.h"
#include "core/platform/dialogs.h"

// Two programs may work on one message file. What the set was read from (`file_content`), what the
// set has now and what the file holds now are brought together, name by name and message by
// message.

namespace vendlingua {

/// Throws FileChangedError when `content` is not what another program can have made of the open
/// file by saving into it: another kind of file, other dimensions, fewer languages or shorter
/// blocks.
void RequireSameFile(const MessageSet& set, std::string_view content);

/// Conflicts that were decided.
struct DecidedConflict {
  EditConflict conflict;
  ConflictAnswer answer;
};

/// Makes the set one that was read from `content` and edited since: what only the other program
/// changed is taken over, what only the set changed stays, of two `LastMsg` the higher one counts.
/// Returns what both changed and nobody has decided yet; the set is then as it was. Throws as
/// RequireSameFile().
std::vector<EditConflict> TakeOverChanges(MessageSet& set, const std::string& content,
                                          const std::vector<DecidedConflict>& decided);

/// The same for a set whose destination texts are not needed any more: names, origin texts,
/// `LastMsg` and display type.
void TakeOverFile(MessageSet& set, const std::string& content);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_FILE_MERGE_H_
