#ifndef VENDLINGUA_CORE_TRANSFER_LANGUAGE_UPDATE_H_
#define VENDLINGUA_CORE_TRANSFER_LANGUAGE_UPDATE_H_

#include <string>
#include <vector>

#include "core/document/message_set.h"
#include "core/platform/file_patch.h"
#include "core/transfer/carry_over.h"

namespace vendlingua {

/// What messages are known by: the language of the firmware.
inline constexpr int kReferenceLanguage = 1;

/// A language of an older file on its way into a new one.
struct CarriedLanguage {
  int number;        ///< in the new file
  std::string name;  ///< UTF-8
  std::vector<CarriedMessage> messages;
};

/// The name that a language of an older file has in an updated one: as if it had been typed,
/// because a ".MSX" file names its languages in its messages.
std::string NameInUpdate(const MessageSet& set, int language);

/// Carries the languages of `older` over into `file`, in their order: all but those that the file
/// holds already and the reference, which there is the language that has the name of the file's,
/// or else language 1. Throws Error when texts cannot be read or are wider than can be edited, or
/// when the file would hold more than 100 languages.
std::vector<CarriedLanguage> CarryLanguages(const MessageSet& file, const MessageSet& older);

/// What puts carried languages behind those that `file` holds, and its display type into the
/// header.
std::vector<FilePatch> PatchesFor(MessageSet file, const std::vector<CarriedLanguage>& languages);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_LANGUAGE_UPDATE_H_
