#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "core/formats/edit_journal.h"
#include "core/platform/files.h"
#include "core/platform/record_bytes.h"
#include "fuzz_support.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using fuzz::Require;

std::string Composed(const EditJournal& journal) {
  std::string bytes = ComposeJournalHead(journal.subject);
  for (const JournalEntry& entry : journal.entries) {
    bytes += ComposeJournalEntry(entry);
  }
  return bytes;
}

// What can be read of a journal is what it begins with.
void ReadCut(const std::string& bytes) {
  const auto journal = ParseJournal(bytes);
  Require(!journal || bytes.starts_with(Composed(*journal)),
          "a journal is read up to where it is whole");
}

JournalEntry AnyEntry(FuzzedDataProvider& choices) {
  JournalEntry entry;
  entry.message = choices.ConsumeIntegralInRange<std::uint16_t>(0, 12);
  entry.last_msg = choices.ConsumeIntegralInRange<std::uint16_t>(0, 12);
  entry.display_type = choices.ConsumeIntegralInRange<std::uint8_t>(0, 5);
  const std::vector<DisplayCode> codes = choices.ConsumeBytes<DisplayCode>(DisplayText::kCells);
  entry.text = DisplayText(codes);
  return entry;
}

// A journal of the file that is opened, of its state of now or of another one.
EditJournal AnyJournal(FuzzedDataProvider& choices, const fs::path& file,
                       const std::string& content) {
  EditJournal journal;
  const std::uint32_t drift = choices.ConsumeIntegralInRange<std::uint32_t>(0, 7) == 0 ? 1 : 0;
  journal.subject = {file, static_cast<std::uint32_t>(content.size()) + drift, Checksum(content),
                     std::nullopt, choices.ConsumeIntegralInRange(-1, 4)};
  if (choices.ConsumeBool()) {
    journal.subject.origin = choices.ConsumeIntegralInRange(-1, 4);
  }
  for (int left = choices.ConsumeIntegralInRange(0, 6); left > 0; --left) {
    journal.entries.push_back(AnyEntry(choices));
  }
  return journal;
}

// Offered edits are taken over or not; the file itself stays as it is until it is saved.
void Offer(FuzzedDataProvider& choices) {
  const fs::path folder = fuzz::EmptyFolder();
  const fs::path file = fs::canonical(folder) / "FILE.MES";
  const std::string content = test::MesFile().Bytes();
  WriteFile(file, content);
  const EditJournal journal = AnyJournal(choices, file, content);
  fs::create_directory(folder / "journals");
  WriteFile(folder / "journals/a.journal", Composed(journal));
  fuzz::FuzzDialogs dialogs;
  dialogs.files = {file};
  const auto engine = std::make_unique<Engine>(dialogs);
  engine->workspace.folders.journals = folder / "journals";
  Require(engine->opener.Open() == OpenOutcome::kOpened, "the file opens");
  engine->unsaved_edits.Offer();
  engine->unsaved_edits.Keep();
  Require(ReadFile(file) == content, "edits that are offered change no file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string content(bytes, bytes + size);
    ReadCut(content);
    FuzzedDataProvider choices(bytes, size);
    Offer(choices);
  });
}

}  // namespace vendlingua
