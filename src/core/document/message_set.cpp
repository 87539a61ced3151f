#include "core/document/message_set.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/platform/errors.h"

namespace vendlingua {

bool MessageSet::BoardFills(std::size_t message, std::size_t cell) const {
  return IsMsx() ? DefaultMessages.at(message).at(cell) == kPlaceholder
                 : OriginText.at(message)[cell] == kPlaceholder;
}

std::optional<DisplayCode> MessageSet::OriginCaption(std::size_t message, std::size_t cell) const {
  if (IsMsx() && BoardFills(message, cell)) {
    return std::nullopt;
  }
  return OriginText.at(message)[cell];
}

DisplayCodes MessageSet::EditedText(std::size_t message) const {
  const auto cells = DestText.at(message).First(Width());
  DisplayCodes text(cells.begin(), cells.end());
  std::replace(text.begin(), text.end(), kPlaceholder, kBlank);
  text.resize(TrimRight(text).size());
  return text;
}

void MessageSet::Reset() {
  ForgetFile();
  HeaderBit1 = kFalse;
  HeaderBit0 = kFalse;
  HeaderCount = 0;
  DestText.assign(kLeastTexts, DisplayText());
  ++OpenedFiles;
}

void MessageSet::ForgetFile() {
  DestLang = 0;
  Modified = kFalse;
  phase = Phase::kNoFile;
  origin_language.reset();
  new_language_name.reset();
  file_was_imported = false;
  ShowMessage(0);
  language_names.clear();
  file_content.clear();
  saved.reset();
  opened_texts.clear();
  save_failed = false;
  history = EditHistory();
}

void MessageSet::FitTexts() {
  const std::size_t texts = std::max(MessageCount(), kLeastTexts);
  OriginText.resize(texts);
  DestText.resize(texts);
}

void MessageSet::CloseFile() {
  ForgetFile();
  CurrentFileName.clear();
  CurrentFileType.clear();
}

void MessageSet::TakeDestination(const MessageTexts& texts, int language) {
  std::copy(texts.begin(), texts.end(), DestText.begin());
  opened_texts = DestText;
  history = EditHistory();
  ShowMessage(current_message);
  const bool is_new = language == 0;
  DestLang = static_cast<std::uint8_t>(language);
  phase = is_new ? Phase::kDestinationUnnamed : Phase::kDestinationOpen;
  new_language_name.reset();
  saved = is_new ? std::nullopt : std::optional(ToSave());
}

void MessageSet::ShowMessage(std::size_t message) {
  current_message = message;
  current_message_stored = false;
  history.EndTyping();
}

std::optional<Edit> MessageSet::Store(std::size_t message, std::span<const DisplayCode> codes) {
  DisplayCodes text = FitTo(codes, Width());
  for (std::size_t cell = 0; cell < text.size(); ++cell) {
    if (OriginCaption(message, cell) == kPlaceholder) {
      text[cell] = kPlaceholder;
    }
  }
  current_message_stored = current_message_stored || message == current_message;
  const DisplayText after(text);
  const DisplayText before = std::exchange(DestText.at(message), after);
  if (after == before) {
    return std::nullopt;
  }
  Modified = kTrue;
  return Edit{DestLang, static_cast<std::uint16_t>(message), before, after, LastMsg, LastMsg};
}

bool MessageSet::SetText(std::size_t message, std::span<const DisplayCode> codes, EditKind kind) {
  const auto edit = Store(message, codes);
  if (edit) {
    history.Add(*edit, kind);
  }
  return edit.has_value();
}

bool MessageSet::SetTexts(std::span<const NewText> texts) {
  EditStep step;
  for (const NewText& text : texts) {
    if (const auto edit = Store(text.message, text.codes)) {
      step.push_back(*edit);
    }
  }
  if (step.empty()) {
    return false;
  }
  history.Add(std::move(step));
  return true;
}

void MessageSet::AppendMessage() {
  const auto added = static_cast<std::uint16_t>(LastMsg + 1);
  const std::uint16_t last_before = LastMsg;
  LastMsg = added;
  FitTexts();
  const DisplayText& text = DestText.at(added);
  history.Add({DestLang, added, text, text, last_before, added}, EditKind::kWhole);
  Modified = kTrue;
}

bool MessageSet::Undo() {
  const EditStep step = history.StepBack();
  // Clang 14 cannot compile std::views::reverse with GCC's library.
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (auto edit = step.rbegin(); edit != step.rend(); ++edit) {
    DestText.at(edit->message) = edit->before;
    LastMsg = edit->last_msg_before;
  }
  ShowApplied(step);
  return !step.empty();
}

bool MessageSet::Redo() {
  const EditStep step = history.StepForward();
  for (const Edit& edit : step) {
    DestText.at(edit.message) = edit.after;
    LastMsg = edit.last_msg_after;
  }
  ShowApplied(step);
  return !step.empty();
}

void MessageSet::ShowApplied(const EditStep& step) {
  if (!step.empty()) {
    ShowMessage(std::min(step.front().message, LastMsg));
    Modified = ToBoolean16(saved != ToSave());
  }
}

void MessageSet::NoteSaved() {
  saved = ToSave();
  save_failed = false;
  history.EndTyping();
}

MessageSet::Saved MessageSet::ToSave() const { return {DestText, LastMsg, DisplayType}; }

std::uint16_t MesLangStride(std::uint32_t mem_length, std::uint32_t lang_count, std::size_t width) {
  if (lang_count == 0) {
    throw Error(UiTextId::kNoLanguages);
  }
  if (width == 0) {
    throw Error(UiTextId::kNoWidth);
  }
  const std::size_t stride = mem_length / lang_count / width;
  if (stride > std::numeric_limits<std::uint16_t>::max()) {
    throw Error(UiTextId::kTooManySlots, mem_length, stride);
  }
  return static_cast<std::uint16_t>(stride);
}

std::uint16_t MsxLangStride(std::uint32_t mem_length) {
  return static_cast<std::uint16_t>(mem_length / kMsxLanguages / kDefaultMessageWidth);
}

float MesBlockLength(std::uint8_t last_col, std::uint16_t lang_stride) {
  const std::size_t length =
      (std::size_t{last_col} + 1) * (std::size_t{lang_stride} + 1) + NameField::kBytes;
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(length));
}

}  // namespace vendlingua
