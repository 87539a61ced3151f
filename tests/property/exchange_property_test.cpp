#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/exchange/csv_table.h"
#include "core/exchange/read_table.h"
#include "core/exchange/translation_plan.h"
#include "core/exchange/xliff_writer.h"
#include "core/formats/message_texts.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

// Placeholders and blanks more often than other codes.
std::string AnyMessage() {
  const auto code =
      rc::gen::weightedOneOf<DisplayCode>({{3, rc::gen::arbitrary<DisplayCode>()},
                                           {1, rc::gen::just(kPlaceholder)},
                                           {1, rc::gen::just(kBlank)},
                                           {2, rc::gen::inRange<DisplayCode>('a', 'e')}});
  return test::Text(*rc::gen::container<DisplayCodes>(kDefaultMessageWidth, code));
}

// A file whose first message is `reference`, and `text` in language 1.
std::string FileWith(const std::string& reference, const std::string& text) {
  const test::MesFile file{.width = kDefaultMessageWidth};
  std::string bytes = file.Bytes();
  bytes.replace(24 + 20, kDefaultMessageWidth, reference);
  bytes.replace(24 + file.BlockLength() + 20, kDefaultMessageWidth, text);
  return bytes;
}

class Exchange : public test::EngineTest {};

RC_GTEST_FIXTURE_PROP(Exchange, OfAnyTextsOnAnyDisplayChangesNothing, ()) {
  Open("FILE.MES", FileWith(AnyMessage(), AnyMessage()));
  const Alphabet& alphabet = Alphabet::Of(*rc::gen::inRange<std::size_t>(0, kDisplayTypes));
  const TranslationTable table = TableOf(set_, 1, 0, alphabet);
  for (const std::string& content : {WriteCsv(table), WriteXliff(table)}) {
    const TableReading reading = ReadTable(content);
    const TranslationPlan plan = PlanTranslation(set_, TextsOf(set_, 1), reading, alphabet);
    RC_ASSERT(plan.problems.empty());
    RC_ASSERT(plan.changes.empty());
    RC_ASSERT(plan.warnings.empty());
  }
}

RC_GTEST_FIXTURE_PROP(Exchange, KeepsThePlaceholdersOfTheReferenceWhateverATableSays, ()) {
  const std::string reference = AnyMessage();
  Open("FILE.MES", FileWith(reference, AnyMessage()));
  const Alphabet& alphabet = Alphabet::Of(0);
  TableReading reading;
  reading.table.rows.push_back({2, 0, {}, {{alphabet.TextOf(test::Codes(AnyMessage()))}}});
  const TranslationPlan plan = PlanTranslation(set_, TextsOf(set_, 1), reading, alphabet);
  for (const PlannedText& change : plan.changes) {
    RC_ASSERT(change.after.size() == kDefaultMessageWidth);
    for (std::size_t cell = 0; cell < kDefaultMessageWidth; ++cell) {
      RC_ASSERT(reference[cell] != '\xFE' || change.after[cell] == kPlaceholder);
    }
  }
}

}  // namespace
}  // namespace vendlingua
