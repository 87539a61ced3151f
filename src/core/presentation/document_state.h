#ifndef VENDLINGUA_CORE_PRESENTATION_DOCUMENT_STATE_H_
#define VENDLINGUA_CORE_PRESENTATION_DOCUMENT_STATE_H_

#include <optional>
#include <string>

#include "core/document/workspace.h"

namespace vendlingua {

/// Where in the document one is (`StatusState`), UTF-8.
struct DocumentState {
  std::string languages;  ///< origin → destination
  std::string place;      ///< message of the last one, cells used, and a dot while not all is saved
};
DocumentState DocumentStateOf(const Workspace& workspace);

/// What to do next while no file, no origin or no destination is open.
std::optional<UiTextId> NextStepOf(const MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_DOCUMENT_STATE_H_
