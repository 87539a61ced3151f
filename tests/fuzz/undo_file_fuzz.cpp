#include <algorithm>
#include <string>

#include "core/operations/recovery.h"
#include "core/platform/change_record.h"
#include "core/platform/files.h"
#include "core/platform/in_place_change.h"
#include "core/platform/record_bytes.h"
#include "fuzz_support.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using fuzz::Require;

// A record that the fuzzer makes up has the right checksum here: nobody finds it by chance.
std::string WithChecksum(std::string bytes) {
  AppendNumber(bytes, Checksum(bytes));
  return bytes;
}

// Whatever lies beside a file, the file stays, or becomes what the record is of.
void RecoverWith(const std::string& undo_file, const std::string& content) {
  const fs::path file = fuzz::EmptyFolder() / "FILE.MES";
  WriteFile(file, content);
  WriteFile(file.parent_path() / "~FILE.MES.undo", undo_file);
  const PendingChange change = PendingChangeOf(file, content);
  try {
    Recover(file);
  } catch (const FileError&) {
    Require(ReadFile(file) == content, "a file that cannot be recovered stays as it is");
    return;
  }
  const std::string recovered = ReadFile(file);
  Require(recovered == content || (change.state == PendingChange::State::kInterrupted &&
                                   Checksum(recovered) == change.record.checksum_before),
          "a file that is recovered is the one of the record");
}

// A change that is cut off behind each of its runs is taken back.
void TakeBackAfterEachRun(const std::string& before, const std::string& after) {
  const ChangeRecord record = RecordOf(before, after);
  const std::string undo_file = ComposeRecord(record);
  Require(ParseRecord(undo_file).record == record, "a record reads as it was written");
  Require(ParseRecord(undo_file.substr(0, undo_file.size() - 1)).is_unfinished,
          "a record that is cut off was being written");
  std::string content = before;
  content.resize(after.size());
  for (const ChangedBytes& change : record.changes) {
    content.replace(change.position, change.after.size(), change.after);
    const ChangeState state = StateOf(record, content);
    Require(state == ChangeState::kInterrupted ||
                (state == ChangeState::kComplete) == (content == after),
            "how far a change came is known");
    Require(ContentBefore(record, content) == before, "it can be taken back");
  }
  Require(content == after, "a record holds all that changes");
}

}  // namespace

// An input is an undo file behind its first line, a byte 0, and the file beside it; the two are
// also a file before and after a change.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string input(bytes, bytes + size);
    const std::size_t end = std::min(input.rfind('\xFF'), input.size());
    const std::string first = input.substr(0, end);
    const std::string second = input.substr(std::min(end + 1, input.size()));
    RecoverWith(first, second);
    RecoverWith(WithChecksum("Vendlingua undo file 1\n" + first), second);
    const bool grows = first.size() <= second.size();
    TakeBackAfterEachRun(grows ? first : second, grows ? second : first);
  });
}

}  // namespace vendlingua
