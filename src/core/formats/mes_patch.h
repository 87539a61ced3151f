#ifndef VENDLINGUA_CORE_FORMATS_MES_PATCH_H_
#define VENDLINGUA_CORE_FORMATS_MES_PATCH_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/document/message_set.h"
#include "core/document/name_field.h"
#include "core/platform/file_patch.h"

namespace vendlingua {

/// What saving the destination texts as language `language` changes in a ".MES" file that has
/// `file_size` bytes now: the flags and `LastMsg` of the header, the language's name and its
/// messages 0 to `LastMsg`. `BlockLength` of `set` says where its block begins. Throws FileError
/// when the messages would run into the next language.
std::vector<FilePatch> BuildMesPatch(const MessageSet& set, int language, const NameField& name,
                                     std::uint8_t flags, std::uintmax_t file_size);

/// What giving a file other flags changes in it.
FilePatch BuildFlagsPatch(std::uint8_t flags);

/// The content of a new ".MES" file: the header, the reference block with the origin texts, and a
/// first language that is a copy of it under `name`; where there is no name, nothing stands in its
/// place. Message slots that the set has no text for are blank.
std::string BuildNewMes(const MessageSet& set, const std::optional<NameField>& name,
                        std::uint8_t flags);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_MES_PATCH_H_
