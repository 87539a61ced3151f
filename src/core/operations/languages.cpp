#include "core/operations/languages.h"

#include <algorithm>
#include <utility>

#include "core/formats/file_merge.h"
#include "core/formats/held_messages.h"
#include "core/formats/message_texts.h"
#include "core/operations/new_language.h"
#include "core/platform/errors.h"
#include "core/platform/in_place_change.h"

namespace vendlingua {

Languages::Languages(Workspace& workspace, Dialogs& dialogs, MessageFileWriter& writer)
    : workspace_(workspace), dialogs_(dialogs), writer_(writer) {}

void Languages::ChooseOrigin(int language) {
  MessageSet& set = workspace_.set;
  if (set.IsMsx()) {
    set.LoadDefaultMessages();
  }
  if (IsInFile(set, language)) {
    // What both changed is asked about by the next save.
    TakeOverChanges(set, ReadSharedFile(set.CurrentFileName), {});
  }
  const MessageTexts texts = TextsOf(set, set.file_content, language);
  std::copy(texts.begin(), texts.end(), set.OriginText.begin());
  set.origin_language = language;
  set.phase = std::max(set.phase, Phase::kOriginChosen);
  set.ShowMessage(set.current_message);
  workspace_.window.typed.reset();
}

DestinationOutcome Languages::ChooseDestination(int language) {
  return language == 0 ? DestinationOutcome::kNothingChosen : Open(language, false);
}

DestinationOutcome Languages::StartNewLanguage(int language) {
  return Open(language == 0 ? kNewLanguage : language, true);
}

DestinationOutcome Languages::StartNamedLanguage() {
  const auto name = OfferNewLanguage(workspace_, dialogs_);
  if (!name) {
    return DestinationOutcome::kNothingChosen;
  }
  const DestinationOutcome outcome = StartNewLanguage(0);
  if (outcome == DestinationOutcome::kOpened) {
    workspace_.set.new_language_name = name;
  }
  return outcome;
}

DestinationOutcome Languages::Open(int language, bool as_new) {
  MessageSet& set = workspace_.set;
  RequireEditableWidth();
  const bool was_there = set.HoldsLanguage(language);
  if (!writer_.NonSave()) {
    return DestinationOutcome::kNotSaved;
  }
  // Before a destination is opened a save makes a new file, which has none of the older languages.
  if (was_there && !set.HoldsLanguage(language)) {
    return DestinationOutcome::kNothingChosen;
  }
  if (set.IsMes() && language == kNewLanguage && set.IsFull()) {
    const UiText& ui_text = workspace_.ui_text;
    dialogs_.MessageBox({MessageIcon::kInformation, ui_text[UiTextId::kFileFull],
                         ui_text[UiTextId::kFileFullTitle]});
    return DestinationOutcome::kFileIsFull;
  }
  MessageSet with_language = set;
  if (IsInFile(set, language)) {
    TakeOverFile(with_language, ReadSharedFile(set.CurrentFileName));
  }
  with_language.TakeDestination(TextsOf(with_language, with_language.file_content, language),
                                as_new ? 0 : language);
  set = std::move(with_language);
  if (as_new) {
    set.Modified = kTrue;
  }
  if (EndsEarly(set, language)) {
    workspace_.window.status =
        UiSentence(UiTextId::kLanguageEndsEarly, language).In(workspace_.ui_text);
  }
  workspace_.window.typed.reset();
  return DestinationOutcome::kOpened;
}

void Languages::RequireEditableWidth() const {
  const MessageSet& set = workspace_.set;
  if (set.Width() > DisplayText::kCells) {
    throw FileError(set.CurrentFileName, UiTextId::kTooWideToEdit, set.Width(),
                    DisplayText::kCells);
  }
}

}  // namespace vendlingua
