#include "core/operations/editor_view.h"

#include <algorithm>

namespace vendlingua {

void EditorView::VisRef() {
  const MessageSet& set = workspace_.set;
  ViewState& view = workspace_.view;
  view.HScroll1.max = set.LastMsg;
  // One character more than fits, so that ChangeText sees that something was too much.
  view.Text1.max_length = std::size_t{set.LastCol} + 2;
  view.label_width = 186 * set.LastCol + 206;
}

void EditorView::VisMes() {
  const int message = workspace_.view.Label6;
  ShowOrigin(message);
  ShowNameMarker(message);
  ShowDestination(message);
}

// The placeholders of a ".MES" set are those of its origin text. In a ".MSX" set they are those of
// the built-in table, and show as empty cells.
void EditorView::ShowOrigin(int message) {
  const MessageSet& set = workspace_.set;
  const auto index = static_cast<std::size_t>(message);
  const std::size_t cells = std::min(set.Width(), kOriginCells);
  for (std::size_t i = 0; i < cells; ++i) {
    OriginCell& cell = workspace_.view.Label5[i];
    const DisplayCode code = set.OriginText.at(index)[i];
    if (set.IsMsx()) {
      cell.dark = set.DefaultMessages.at(index).at(i) == kPlaceholder;
      cell.caption = cell.dark ? std::nullopt : std::optional(code);
    } else {
      cell.dark = code == kPlaceholder;
      cell.caption = code;
    }
  }
}

void EditorView::ShowNameMarker(int message) {
  ViewState& view = workspace_.view;
  view.Label9Visible = message == workspace_.set.NameMessage() && view.Label8Enabled[1];
}

void EditorView::ShowDestination(int message) {
  const MessageSet& set = workspace_.set;
  const auto cells = set.DestText.at(static_cast<std::size_t>(message)).First(set.Width());
  DisplayCodes text(cells.begin(), cells.end());
  std::replace(text.begin(), text.end(), kPlaceholder, kBlank);
  const auto trimmed = TrimRight(text);
  workspace_.view.Text1.text.assign(trimmed.begin(), trimmed.end());
}

void EditorView::StoreCurrentMessage() {
  if (!workspace_.menus.mnuOrig.enabled) {
    return;
  }
  DisplayCodes text = TextInCells();
  const std::size_t cells = std::min(text.size(), kOriginCells);
  for (std::size_t i = 0; i < cells; ++i) {
    if (workspace_.view.Label5[i].caption == kPlaceholder) {
      text[i] = kPlaceholder;
    }
  }
  MessageSet& set = workspace_.set;
  const auto message = static_cast<std::size_t>(workspace_.view.Label6);
  // Cells of a wide message that have no label.
  for (std::size_t i = kOriginCells; set.IsMes() && i < text.size(); ++i) {
    if (set.OriginText.at(message)[i] == kPlaceholder) {
      text[i] = kPlaceholder;
    }
  }
  set.DestText.at(message) = DisplayText(text);
}

void EditorView::Scroll(int value) {
  if (!workspace_.menus.mnuOrig.enabled) {
    return;
  }
  StoreCurrentMessage();
  workspace_.view.HScroll1.value = value;
  ShowNumber(value);
  VisMes();
}

// A further message can be appended behind the last one while the language has slots left.
void EditorView::ShowNumber(int message) {
  const MessageSet& set = workspace_.set;
  ViewState& view = workspace_.view;
  view.Label6 = message;
  if (set.IsMes()) {
    view.Command2Visible = message != 0 && message == set.LastMsg && set.LastMsg < set.LangStride &&
                           set.MessageCount() < kMaxMessages && view.Text1.enabled;
  }
}

bool EditorView::ChangeText(std::span<const DisplayCode> text) {
  const std::size_t width = workspace_.set.Width();
  const auto kept = text.first(std::min(text.size(), width));
  workspace_.view.Text1.text.assign(kept.begin(), kept.end());
  return kept.size() < text.size();
}

void EditorView::KeyPressed() {
  if (workspace_.view.Label8Enabled[1]) {
    MarkModified();
  }
}

void EditorView::Drop(DisplayCode character, int x, int box_width) {
  DisplayCodes text = TextInCells();
  const int cell_width = std::max(box_width / static_cast<int>(text.size()), 1);
  const auto cell = static_cast<std::size_t>(std::max(x, 0) / cell_width);
  text[std::min(cell, text.size() - 1)] = character;
  const auto trimmed = TrimRight(text);
  workspace_.view.Text1.text.assign(trimmed.begin(), trimmed.end());
  MarkModified();
}

void EditorView::CopyOrigin() {
  DisplayCodes origin;
  const std::size_t cells = std::min(workspace_.set.Width(), kOriginCells);
  for (std::size_t i = 0; i < cells; ++i) {
    const auto& caption = workspace_.view.Label5[i].caption;
    if (caption) {
      origin.push_back(*caption);
    }
  }
  const auto trimmed = TrimRight(origin);
  workspace_.view.Text1.text.assign(trimmed.begin(), trimmed.end());
  MarkModified();
}

void EditorView::AddMessage(Dialogs& dialogs) {
  MessageSet& set = workspace_.set;
  workspace_.view.Command2Visible = false;
  const MessageAnswer answer = dialogs.MessageBox(
      {MessageIcon::kQuestion, workspace_.ui_text[40], "", MessageButtons::kYesNo});
  if (answer == MessageAnswer::kNo) {
    return;
  }
  ++set.LastMsg;
  workspace_.view.HScroll1.max = set.LastMsg;
  MarkModified();
}

int EditorView::ToggleHeight() {
  constexpr int kTallFrom = 4000;
  constexpr int kMove = 1000;
  int& height = workspace_.view.height;
  const bool tall = height >= kTallFrom;
  height = tall ? ViewState::kCompactHeight : ViewState::kFullHeight;
  return tall ? kMove : -kMove;
}

void EditorView::LoadDisplayType(std::size_t index) {
  workspace_.menus.DisplayTypeChosen = false;
  ChooseDisplayType(index);
}

void EditorView::ChooseDisplayType(std::size_t index) {
  MenuState& menus = workspace_.menus;
  if (!menus.mnuLCD.at(index).checked && menus.DisplayTypeChosen) {
    MarkModified();
  }
  for (MenuEntry& entry : menus.mnuLCD) {
    entry.checked = false;
  }
  menus.mnuLCD.at(index).checked = true;
  menus.DisplayTypeChosen = true;
}

// The edit box padded with blanks, or cut, to the message width.
DisplayCodes EditorView::TextInCells() const {
  return FitTo(workspace_.view.Text1.text, workspace_.set.Width());
}

void EditorView::MarkModified() { workspace_.set.Modified = kTrue; }

}  // namespace vendlingua
