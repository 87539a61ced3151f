#ifndef VENDLINGUA_TESTS_UNIT_OPERATIONS_SOURCE_IMPORT_TEST_H_
#define VENDLINGUA_TESTS_UNIT_OPERATIONS_SOURCE_IMPORT_TEST_H_

#include <gmock/gmock.h>

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/operations/source_import.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua::test {

inline const std::string kText16(16, 'x');

/// Imports sources through File, Open and answers its questions: by default two languages whose
/// memory of 24 bytes holds three messages of four cells each.
class SourceImportTest : public EngineTest {
 protected:
  OpenOutcome Import(std::string_view source) { return ImportInto(source, folder_ / "NEW.MES"); }

  OpenOutcome ImportInto(std::string_view source, const std::filesystem::path& target) {
    dialogs_.file_answers = {folder_.Write("SOURCE.MES", source), target};
    dialogs_.input_answers = answers_;
    return engine_.opener.Open();
  }

  std::string ReasonOfRefusal(std::string_view source) {
    try {
      Import(source);
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }

  std::vector<InputPurpose> AskedQuestions() const {
    std::vector<InputPurpose> purposes;
    for (const InputRequest& input : dialogs_.inputs) {
      purposes.push_back(input.purpose);
    }
    return purposes;
  }

  void ExpectNothingWrittenAndNoFileOpen() const {
    EXPECT_EQ(folder_.Names(), "SOURCE.MES");
    EXPECT_EQ(set_.CurrentFileType, "");
    EXPECT_TRUE(set_.CurrentFileName.empty());
  }

  std::deque<std::string> answers_ = {"2", "1", "&H6000", "24", "italiano"};
  const std::string three_texts_ = SourceLine("ABCD") + SourceLine("EFGH") + SourceLine("IJKL");
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_OPERATIONS_SOURCE_IMPORT_TEST_H_
