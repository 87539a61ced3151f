#ifndef VENDLINGUA_TESTS_FUZZ_TRANSLATION_TABLE_FUZZ_H_
#define VENDLINGUA_TESTS_FUZZ_TRANSLATION_TABLE_FUZZ_H_

#include <memory>
#include <string>
#include <string_view>

#include "core/exchange/translation_plan.h"
#include "core/formats/message_texts.h"
#include "core/platform/files.h"
#include "fuzz_support.h"
#include "support/message_files.h"

namespace vendlingua::fuzz {

/// A small file that tables go into: its first message has placeholders, its second one stands
/// centred.
inline std::string FileForTables() {
  const test::MesFile file{.width = 8};
  std::string bytes = file.Bytes();
  bytes.replace(24 + 20, 16,
                "ab\xFE"
                "d\xFE\xFE"
                "gh  abcd  ");
  return bytes;
}

/// Reads `content` as a table with `read`, and plans it for a small file on every display. What is
/// planned can be stored as it is.
template <typename Reader>
void ReadAndPlan(std::string_view content, const Reader& read) {
  FuzzDialogs dialogs;
  const auto engine = std::make_unique<Engine>(dialogs);
  const std::filesystem::path path = EmptyFolder() / "FILE.MES";
  WriteFile(path, FileForTables());
  dialogs.files = {path};
  Require(engine->opener.Open() == OpenOutcome::kOpened, "the file opens");
  MessageSet& set = engine->workspace.set;
  const TableReading reading = read(content);
  Require(reading.table.rows.size() <= 65'536, "there are no more rows than messages");
  for (std::size_t display = 0; display < kDisplayTypes; ++display) {
    const TranslationPlan plan = PlanTranslation(
        set, TextsOf(set, 1), reading, Alphabet::Of(display), {.centre = display % 2 == 0});
    Require(plan.problems.listed().size() >= reading.problems.listed().size(),
            "no problem of the table is forgotten");
    if (!plan.IsRefused()) {
      engine->languages.ChooseOrigin(0);
      engine->languages.ChooseDestination(1);
      ApplyPlan(plan, set);
      for (const PlannedText& text : plan.changes) {
        const auto stored = set.DestText.at(text.message).First(set.Width());
        Require(std::equal(stored.begin(), stored.end(), text.after.begin(), text.after.end()),
                "what is planned is what is stored");
      }
    }
  }
}

}  // namespace vendlingua::fuzz

#endif  // VENDLINGUA_TESTS_FUZZ_TRANSLATION_TABLE_FUZZ_H_
