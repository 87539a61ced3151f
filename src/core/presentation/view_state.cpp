#include "core/presentation/view_state.h"

#include <algorithm>

#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Lays the view out for the dimensions of the set.
void VisRef(const MessageSet& set, ViewState& view) {
  view.HScroll1.max = set.LastMsg;
  view.Text1.cells = set.Width();
  // One character more than fits, so that it shows when something was too much.
  view.Text1.max_length = std::size_t{set.LastCol} + 2;
  view.label_width = 186 * set.LastCol + 206;
}

// Shows the current message. The placeholders of a ".MES" set are those of its origin text. In a
// ".MSX" set they are those of the built-in table, and show as empty cells.
void VisMes(const MessageSet& set, ViewState& view) {
  view.HScroll1.enabled = true;
  view.Label8Enabled[0] = true;
  const std::size_t message = set.current_message;
  for (std::size_t cell = 0; cell < std::min(set.Width(), kOriginCells); ++cell) {
    view.Label5.at(cell) = {.visible = true,
                            .dark = set.BoardFills(message, cell),
                            .caption = set.OriginCaption(message, cell)};
  }
}

void ShowDestination(const Workspace& workspace, ViewState& view) {
  const MessageSet& set = workspace.set;
  view.Label8Enabled[1] = true;
  view.Label9Visible = static_cast<int>(set.current_message) == set.NameMessage();
  view.Text1.enabled = true;
  for (std::size_t cell = 0; cell < set.Width(); ++cell) {
    view.Text1.board_cells.push_back(set.BoardFills(set.current_message, cell));
  }
  view.Text1.text = workspace.window.typed.value_or(set.EditedText(set.current_message));
}

}  // namespace

ViewState ViewOf(const Workspace& workspace) {
  const MessageSet& set = workspace.set;
  ViewState view;
  view.Label6 = static_cast<int>(set.current_message);
  view.HScroll1.value = view.Label6;
  const bool origin_chosen = set.phase >= Phase::kOriginChosen;
  if (origin_chosen || set.file_was_imported) {
    VisRef(set, view);
  }
  if (origin_chosen) {
    VisMes(set, view);
  }
  if (set.DestinationIsOpen()) {
    ShowDestination(workspace, view);
  }
  view.Command1Enabled = set.FileIsThere();
  view.Command2Visible = workspace.window.offers_new_message;
  view.height = workspace.window.height;
  view.caption = set.CurrentFileName.empty() ? std::string(kApplicationTitle)
                                             : PathText(set.CurrentFileName.filename());
  view.status = workspace.window.status;
  view.StatusState = DocumentStateOf(workspace);
  view.next_step = NextStepOf(set);
  view.display_type = set.DisplayType;
  return view;
}

}  // namespace vendlingua
