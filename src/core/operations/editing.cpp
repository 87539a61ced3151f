#include "core/operations/editing.h"

#include <algorithm>
#include <utility>

#include "core/formats/mes_layout.h"

namespace vendlingua {
namespace {

// Whether `typed` has a character in a cell of the board that `before` did not have there.
bool TypesOverTheBoard(const MessageSet& set, std::span<const DisplayCode> before,
                       std::span<const DisplayCode> typed) {
  for (std::size_t cell = 0; cell < typed.size(); ++cell) {
    const bool stood_there = cell < before.size() && before[cell] == typed[cell];
    const bool says_something = typed[cell] != kBlank && typed[cell] != kPlaceholder;
    if (says_something && !stood_there && set.BoardFills(set.current_message, cell)) {
      return true;
    }
  }
  return false;
}

}  // namespace

void Editing::GoTo(std::size_t message) {
  if (workspace_.set.phase < Phase::kOriginChosen) {
    return;
  }
  StoreCurrentMessage();
  Show(std::min<std::size_t>(message, workspace_.set.LastMsg));
}

void Editing::StoreCurrentMessage() {
  MessageSet& set = workspace_.set;
  if (set.DestinationIsOpen() && !set.current_message_stored) {
    set.SetText(set.current_message, set.EditedText(set.current_message));
  }
}

// A further message can be appended behind the last one while the language has slots left.
void Editing::Show(std::size_t message) {
  MessageSet& set = workspace_.set;
  set.ShowMessage(message);
  workspace_.window.typed.reset();
  if (set.IsMes()) {
    workspace_.window.offers_new_message = message != 0 && message == set.LastMsg &&
                                           set.LastMsg < set.LangStride && set.DestinationIsOpen();
  }
}

void Editing::ChangeText(std::span<const DisplayCode> text) {
  const MessageSet& set = workspace_.set;
  const DisplayCodes before = workspace_.window.typed.value_or(set.EditedText(set.current_message));
  const bool cut = text.size() > set.Width();
  const bool pasted = text.size() > before.size() + 1;
  if (cut) {
    text = text.first(set.Width());
    workspace_.window.status = workspace_.ui_text[UiTextId::kTextShortened];
  } else if (TypesOverTheBoard(set, before, text)) {
    workspace_.window.status = workspace_.ui_text[UiTextId::kBoardWritesHere];
  }
  Enter({text.begin(), text.end()}, cut || pasted ? EditKind::kWhole : EditKind::kTyping);
}

// The edit box goes on showing what was typed, while the set has what the board will show.
void Editing::Enter(DisplayCodes text, EditKind kind) {
  MessageSet& set = workspace_.set;
  if (set.DestinationIsOpen()) {
    set.SetText(set.current_message, text, kind);
    set.Modified = kTrue;
    workspace_.window.typed = std::move(text);
  }
}

void Editing::KeyPressed() {
  if (workspace_.set.DestinationIsOpen()) {
    workspace_.set.Modified = kTrue;
  }
}

void Editing::Drop(DisplayCode character, int x, int text_width) {
  DisplayCodes text = TextInCells();
  const int cell_width = std::max(text_width / static_cast<int>(text.size()), 1);
  const auto cell = static_cast<std::size_t>(std::max(x, 0) / cell_width);
  text[std::min(cell, text.size() - 1)] = character;
  text.resize(TrimRight(text).size());
  Enter(std::move(text), EditKind::kWhole);
}

void Editing::CopyOrigin() {
  const MessageSet& set = workspace_.set;
  DisplayCodes origin;
  for (std::size_t cell = 0; cell < std::min(set.Width(), kOriginCells); ++cell) {
    if (const auto caption = set.OriginCaption(set.current_message, cell)) {
      origin.push_back(*caption);
    }
  }
  origin.resize(TrimRight(origin).size());
  Enter(std::move(origin), EditKind::kWhole);
}

void Editing::ReplaceTexts(std::span<const NewText> texts) {
  if (workspace_.set.DestinationIsOpen() && workspace_.set.SetTexts(texts)) {
    Show(workspace_.set.current_message);
  }
}

void Editing::AddMessage(Dialogs& dialogs) {
  workspace_.window.offers_new_message = false;
  const MessageAnswer answer =
      dialogs.MessageBox({MessageIcon::kQuestion, workspace_.ui_text[UiTextId::kAddMessageQuestion],
                          "", MessageButtons::kYesNo});
  if (answer != MessageAnswer::kNo) {
    workspace_.set.AppendMessage();
  }
}

void Editing::Undo() {
  if (workspace_.set.Undo()) {
    Show(workspace_.set.current_message);
  }
}

void Editing::Redo() {
  if (workspace_.set.Redo()) {
    Show(workspace_.set.current_message);
  }
}

int Editing::ToggleHeight() {
  constexpr int kTallFrom = 4000;
  constexpr int kMove = 1000;
  int& height = workspace_.window.height;
  const bool tall = height >= kTallFrom;
  height = tall ? WindowState::kCompactHeight : WindowState::kFullHeight;
  return tall ? kMove : -kMove;
}

void Editing::ChooseDisplayType(std::size_t index) {
  MessageSet& set = workspace_.set;
  if (set.DisplayTypeChosen && set.DisplayType != index) {
    set.Modified = kTrue;
  }
  set.LoadDisplayType(index);
  if (!set.IsMes() || index >= kStoredDisplayTypes) {
    workspace_.window.status = workspace_.ui_text[UiTextId::kDisplayTypeNotKept];
  }
}

// The text of the edit box padded with blanks, or cut, to the message width.
DisplayCodes Editing::TextInCells() const {
  const MessageSet& set = workspace_.set;
  return FitTo(workspace_.window.typed.value_or(set.EditedText(set.current_message)), set.Width());
}

}  // namespace vendlingua
