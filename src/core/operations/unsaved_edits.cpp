#include "core/operations/unsaved_edits.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <system_error>
#include <utility>

#include "core/formats/journal_files.h"
#include "core/platform/errors.h"
#include "core/platform/file_errors.h"
#include "core/platform/files.h"
#include "core/platform/record_bytes.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

// Links and "..": one file has one name here.
fs::path PlaceOf(const fs::path& file) {
  std::error_code error;
  const fs::path place = fs::weakly_canonical(file, error);
  return error ? file : place;
}

// The message texts that the journal ends with.
std::vector<NewText> LastTexts(const EditJournal& journal, std::size_t width) {
  std::map<std::size_t, DisplayText> texts;
  for (const JournalEntry& entry : journal.entries) {
    texts[entry.message] = entry.text;
  }
  std::vector<NewText> last;
  for (const auto& [message, text] : texts) {
    const auto cells = text.First(width);
    last.push_back({message, DisplayCodes(cells.begin(), cells.end())});
  }
  return last;
}

}  // namespace

UnsavedEdits::UnsavedEdits(Workspace& workspace, Dialogs& dialogs, Languages& languages)
    : workspace_(workspace), dialogs_(dialogs), languages_(languages) {}

bool UnsavedEdits::HasUnsavedEdits() const {
  const MessageSet& set = workspace_.set;
  return (set.IsMes() || set.IsMsx()) && set.DestinationIsOpen() &&
         (set.Modified != kFalse || set.save_failed);
}

bool UnsavedEdits::IsBehind() const {
  if (workspace_.folders.journals.empty()) {
    return false;
  }
  return HasUnsavedEdits() ? !Continues() || !EntriesSince(kept_).empty() : file_.has_value();
}

void UnsavedEdits::Keep() {
  if (workspace_.folders.journals.empty()) {
    return;
  }
  if (!HasUnsavedEdits()) {
    Drop();
  } else if (Continues()) {
    Append();
  } else {
    Begin();
  }
}

// Whether what is edited now is what the journal is of.
bool UnsavedEdits::Continues() const {
  const MessageSet& set = workspace_.set;
  return file_ && kept_.subject.file == PlaceOf(set.CurrentFileName) &&
         kept_.subject.origin == set.origin_language && kept_.subject.destination == set.DestLang &&
         kept_.file_content == set.file_content;
}

JournalSubject UnsavedEdits::SubjectOf() const {
  const MessageSet& set = workspace_.set;
  return {PlaceOf(set.CurrentFileName), static_cast<std::uint32_t>(set.file_content.size()),
          Checksum(set.file_content), set.origin_language, set.DestLang};
}

// What the destination begins with when it is opened.
MessageTexts UnsavedEdits::BaseTexts() const {
  return workspace_.set.saved ? workspace_.set.saved->texts : MessageTexts();
}

std::vector<JournalEntry> UnsavedEdits::EntriesSince(const Kept& kept) const {
  const MessageSet& set = workspace_.set;
  const bool set_changed = kept.last_msg != set.LastMsg || kept.display_type != set.DisplayType;
  std::vector<JournalEntry> entries;
  const auto add = [&](std::size_t message) {
    entries.push_back({static_cast<std::uint16_t>(message), set.DestText.at(message), set.LastMsg,
                       static_cast<std::uint8_t>(set.DisplayType)});
  };
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    const DisplayText before = message < kept.texts.size() ? kept.texts[message] : DisplayText();
    if (set.DestText.at(message) != before) {
      add(message);
    }
  }
  if (set_changed && entries.empty()) {
    add(set.LastMsg);
  }
  return entries;
}

void UnsavedEdits::Begin() {
  const MessageSet& set = workspace_.set;
  Kept kept{SubjectOf(), set.file_content, BaseTexts(),
            set.saved ? set.saved->last_msg : set.LastMsg,
            set.saved ? set.saved->display_type : set.DisplayType};
  const std::vector<JournalEntry> entries = EntriesSince(kept);
  Drop();
  const fs::path& folder = workspace_.folders.journals;
  path_ = NewJournalPath(folder);
  file_.emplace();
  const std::error_code error = CreateJournal(*file_, path_, kept.subject);
  if (error) {
    Drop();
    ThrowFileError(path_, UiTextId::kCannotBeWritten, error);
  }
  kept_ = std::move(kept);
  WriteEntries(entries);
  FlushFolder(folder);
}

void UnsavedEdits::Append() {
  const std::vector<JournalEntry> entries = EntriesSince(kept_);
  if (!entries.empty()) {
    WriteEntries(entries);
  }
}

void UnsavedEdits::WriteEntries(const std::vector<JournalEntry>& entries) {
  std::string bytes;
  for (const JournalEntry& entry : entries) {
    bytes += ComposeJournalEntry(entry);
  }
  std::error_code error = file_->Write(bytes);
  if (!error) {
    error = file_->Flush();
  }
  if (error) {
    // Half an entry may stand there now, behind which none would count.
    Drop();
    ThrowFileError(path_, UiTextId::kCannotBeWritten, error);
  }
  kept_.texts = workspace_.set.DestText;
  kept_.last_msg = workspace_.set.LastMsg;
  kept_.display_type = workspace_.set.DisplayType;
}

void UnsavedEdits::Drop() {
  if (file_) {
    if (file_->IsOpen()) {
      RemoveJournal(*file_, path_);
    }
    file_.reset();
  }
}

void UnsavedEdits::Offer() {
  const fs::path& folder = workspace_.folders.journals;
  if (folder.empty() || workspace_.set.CurrentFileName.empty()) {
    return;
  }
  for (const fs::path& path : JournalsIn(folder)) {
    FileHandle file;
    const auto journal = TakeJournal(file, path);
    if (journal && IsOfThisFile(journal->subject)) {
      OfferJournal(*journal, file, path);
      return;
    }
  }
}

bool UnsavedEdits::IsOfThisFile(const JournalSubject& subject) const {
  return subject.file == PlaceOf(workspace_.set.CurrentFileName);
}

void UnsavedEdits::OfferJournal(const EditJournal& journal, FileHandle& file,
                                const fs::path& path) {
  if (journal.entries.empty()) {
    RemoveJournal(file, path);
    return;
  }
  const UiText& ui_text = workspace_.ui_text;
  const std::string name = PathText(workspace_.set.CurrentFileName);
  if (!Fits(journal)) {
    const fs::path put_aside = PutJournalAside(file, path);
    const UiSentence notice(UiTextId::kUnsavedEditsDoNotFit, name, PathText(put_aside));
    dialogs_.MessageBox(
        {MessageIcon::kExclamation, notice.In(ui_text), ui_text[UiTextId::kUnsavedTitle]});
    return;
  }
  const std::size_t messages = LastTexts(journal, workspace_.set.Width()).size();
  const UiSentence question(UiTextId::kUnsavedEditsQuestion, name, messages);
  const MessageAnswer answer =
      dialogs_.MessageBox({MessageIcon::kQuestion, question.In(ui_text),
                           ui_text[UiTextId::kUnsavedTitle], MessageButtons::kYesNo});
  if (answer == MessageAnswer::kNo) {
    RemoveJournal(file, path);
  } else if (TakeOver(journal)) {
    Keep();
    RemoveJournal(file, path);
  }
}

// Whether it is of the file as it is now, and speaks of nothing that is not there.
bool UnsavedEdits::Fits(const EditJournal& journal) const {
  const MessageSet& set = workspace_.set;
  const JournalSubject& subject = journal.subject;
  const std::size_t most = set.IsMes() ? set.LangStride : set.LastMsg;
  return subject.length == set.file_content.size() &&
         subject.checksum == Checksum(set.file_content) &&
         set.HoldsLanguage(subject.origin.value_or(0)) && set.HoldsLanguage(subject.destination) &&
         std::all_of(journal.entries.begin(), journal.entries.end(), [&](const auto& entry) {
           return entry.message <= entry.last_msg && entry.last_msg >= set.LastMsg &&
                  entry.last_msg <= most && entry.display_type < kDisplayTypes;
         });
}

// False when the user was told why the language cannot be opened.
bool UnsavedEdits::TakeOver(const EditJournal& journal) {
  MessageSet& set = workspace_.set;
  if (journal.subject.origin) {
    languages_.ChooseOrigin(*journal.subject.origin);
  }
  const int destination = journal.subject.destination;
  const DestinationOutcome outcome =
      destination == 0 ? languages_.StartNewLanguage(0) : languages_.ChooseDestination(destination);
  if (outcome != DestinationOutcome::kOpened) {
    return false;
  }
  const JournalEntry& last = journal.entries.back();
  while (set.LastMsg < last.last_msg) {
    set.AppendMessage();
  }
  if (set.DisplayType != last.display_type) {
    set.LoadDisplayType(last.display_type);
    set.Modified = kTrue;
  }
  std::vector<NewText> texts = LastTexts(journal, set.Width());
  std::erase_if(texts, [&](const NewText& text) { return text.message > set.LastMsg; });
  set.SetTexts(texts);
  set.ShowMessage(texts.empty() ? 0 : texts.front().message);
  workspace_.window.typed.reset();
  return true;
}

}  // namespace vendlingua
