#include "core/desk/row_state.h"

namespace vendlingua {

bool IsToDo(const MessageSet& set, std::size_t message) {
  return IsToDo(set, message, set.DestText.at(message));
}

bool IsToDo(const MessageSet& set, std::size_t message, const DisplayText& translation) {
  const auto origin = set.OriginText.at(message).First(set.Width());
  const auto text = translation.First(set.Width());
  bool origin_is_blank = true;
  bool text_is_blank = true;
  bool same = true;
  for (std::size_t cell = 0; cell < text.size(); ++cell) {
    if (!set.BoardFills(message, cell)) {
      origin_is_blank = origin_is_blank && origin[cell] == kBlank;
      text_is_blank = text_is_blank && text[cell] == kBlank;
      same = same && text[cell] == origin[cell];
    }
  }
  return !origin_is_blank && (text_is_blank || same);
}

bool IsChanged(const MessageSet& set, std::size_t message) {
  return message < set.opened_texts.size() && set.opened_texts[message] != set.DestText.at(message);
}

std::size_t CellsUsed(const MessageSet& set, std::size_t message) {
  return TrimRight(set.DestText.at(message).First(set.Width())).size();
}

RowState StateOf(const MessageSet& set, const LiveFindings& findings, std::size_t message) {
  if (findings.NeedsWork(message)) {
    return RowState::kFinding;
  }
  if (IsToDo(set, message)) {
    return RowState::kToDo;
  }
  return IsChanged(set, message) ? RowState::kChanged : RowState::kDone;
}

Progress ProgressOf(const MessageSet& set) { return ProgressOf(set, set.DestText); }

Progress ProgressOf(const MessageSet& set, const MessageTexts& texts) {
  Progress progress{.messages = set.MessageCount()};
  for (std::size_t message = 0; message < progress.messages; ++message) {
    progress.done += IsToDo(set, message, texts.at(message)) ? 0U : 1U;
  }
  return progress;
}

}  // namespace vendlingua
