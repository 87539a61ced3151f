#include "core/presentation/document_state.h"

#include <fmt/format.h>

#include "core/desk/row_state.h"

namespace vendlingua {
namespace {

constexpr std::string_view kUnsaved = "  \u25CF";

std::string NameOf(const MessageSet& set, int language) {
  return set.HoldsLanguage(language) ? set.language_names[static_cast<std::size_t>(language)] : "";
}

std::string NameOfDestination(const Workspace& workspace) {
  const MessageSet& set = workspace.set;
  if (set.phase != Phase::kDestinationUnnamed) {
    return NameOf(set, set.DestLang);
  }
  return set.new_language_name ? set.new_language_name->Caption()
                               : workspace.ui_text[UiTextId::kNewLanguageEntry];
}

}  // namespace

DocumentState DocumentStateOf(const Workspace& workspace) {
  const MessageSet& set = workspace.set;
  DocumentState state;
  if (set.origin_language) {
    state.languages = NameOf(set, *set.origin_language);
    state.place = fmt::format("{}/{}", set.current_message, set.LastMsg);
  }
  if (set.DestinationIsOpen()) {
    state.languages += fmt::format(" \u2192 {}", NameOfDestination(workspace));
    state.place += fmt::format("  {}/{}", CellsUsed(set, set.current_message), set.Width());
  }
  if (set.Modified != kFalse || set.save_failed) {
    state.place += kUnsaved;
  }
  return state;
}

std::optional<UiTextId> NextStepOf(const MessageSet& set) {
  switch (set.phase) {
    case Phase::kNoFile:
      return UiTextId::kHintOpen;
    case Phase::kFileOpen:
      return UiTextId::kHintOrigin;
    case Phase::kOriginChosen:
      return UiTextId::kHintDestination;
    default:
      return std::nullopt;
  }
}

}  // namespace vendlingua
