#ifndef VENDLINGUA_CORE_DESK_MEMORY_TEXTS_H_
#define VENDLINGUA_CORE_DESK_MEMORY_TEXTS_H_

#include <cstddef>
#include <optional>
#include <string>

#include "core/document/message_set.h"

namespace vendlingua {

/// Messages and what they were translated into, in the codes of the display of the open file. What
/// waits for its translation has a blank one.
struct MemoryTexts {
  MessageTexts origins;
  MessageTexts translations;
};

/// A text of the open file with placeholders in the cells that the board fills, which a ".MSX" file
/// stores as blanks.
DisplayText WithBoardCells(const MessageSet& set, std::size_t message, const DisplayText& text);

/// The name of the language that is being edited, UTF-8: that of the file or, of a new one, the one
/// that it was given when it was begun, else what its name message says.
std::string DestinationName(const MessageSet& set);

/// What message `message` of the language that is being edited was translated into.
DisplayText OwnTranslation(const MessageSet& set, std::size_t message);

/// What was translated of that language.
MemoryTexts OwnTexts(const MessageSet& set);

/// What the file `memory` says in the origin and in the destination of `set`. Its languages are
/// known by their names: by the same one, or by one of the same language ("DEUTSCH", "TEDESCO").
/// Nothing when it lacks one of the two. Throws Error when its texts cannot be read.
std::optional<MemoryTexts> TextsFromMemory(const MessageSet& set, const MessageSet& memory);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_MEMORY_TEXTS_H_
