#ifndef VENDLINGUA_CORE_FORMATS_MESSAGE_FILE_H_
#define VENDLINGUA_CORE_FORMATS_MESSAGE_FILE_H_

#include <filesystem>
#include <string>

#include "core/document/message_set.h"

namespace vendlingua {

/// The type of a message file: its name from the first dot on, in upper case. "TEST.MSX.MES" has
/// the type ".MSX.MES", which is none.
std::string MessageFileType(const std::filesystem::path& path);

/// Whether the type is that of a message file: ".MES" or ".MSX".
bool IsMessageFileType(const std::string& type);

/// Whether a file that is chosen as ".MES" is an assembler source: its first byte, which is the
/// number of languages of a binary file, is 32 or more. Throws FileError when it cannot be read or
/// is empty.
bool IsAssemblerSource(const std::filesystem::path& path);

/// Gives a set the dimensions of every ".MSX" file.
void TakeMsxDimensions(MessageSet& set);

/// Takes dimensions, display type and language names from the content of a file of the set's
/// `CurrentFileType`, and keeps the content. False when it is a ".MSX" file of a firmware that is
/// not managed: its names are not known. Throws Error when the file cannot be taken; the set is
/// then partly changed.
bool TakeMessageFile(MessageSet& set, std::string content);

/// Reads a message file beside the open one, without a question: a set with its dimensions,
/// display type, language names and content, from which TextsOf() and CellsOf() take the messages.
/// Throws FileError when it is no message file or cannot be taken.
MessageSet ReadMessageFile(const std::filesystem::path& path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MESSAGE_FILE_H_
