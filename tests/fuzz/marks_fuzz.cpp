#include <string>

#include "core/marks/marks_file.h"
#include "core/platform/files.h"
#include "fuzz_support.h"

namespace vendlingua {

using fuzz::Require;

// A marks file that says nothing is never written to; one that does says the same when it was
// written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string content(bytes, bytes + size);
    const std::filesystem::path file = fuzz::EmptyFolder() / "FILE.MES";
    WriteFile(MarksFileOf(file), content);
    const auto marks = ReadMarks(file);
    Require(marks == ParseMarks(content), "a file holds what its content says");
    RenameInMarks(file, "ENGLISH", "INGLESE");
    if (!marks) {
      Require(ReadFile(MarksFileOf(file)) == content, "what holds no marks stays as it is");
      return;
    }
    Require(ParseMarks(MarksText(*marks)) == marks, "marks read as they were written");
    const auto renamed = ReadMarks(file);
    Require(renamed && renamed->size() == marks->size(), "a new name of a language loses no mark");
  });
}

}  // namespace vendlingua
