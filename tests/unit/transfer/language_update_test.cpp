#include "core/transfer/language_update.h"

#include <gmock/gmock.h>

#include <string>

#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LanguageUpdate : public testing::Test {
 protected:
  LanguageUpdate() {
    // What an import leaves: the reference and a first language.
    file_.names = {"Default", "ITALIANO"};
    older_.names = {"Default", "ITALIANO", "ENGLISH", "DEUTSCH"};
  }

  MessageSet ReadFile() const { return ReadMessageFile(folder_.Write("NEW.MES", file_.Bytes())); }
  MessageSet ReadOlder() const { return ReadMessageFile(folder_.Write("OLD.MES", older_.Bytes())); }

  std::vector<std::string> Carried() const {
    std::vector<std::string> names;
    for (const CarriedLanguage& language : CarryLanguages(ReadFile(), ReadOlder())) {
      names.push_back(std::to_string(language.number) + " " + language.name);
    }
    return names;
  }

  test::TemporaryFolder folder_;
  test::MesFile file_;
  test::MesFile older_;
};

TEST_F(LanguageUpdate, CarriesTheLanguagesBehindTheReference) {
  EXPECT_THAT(Carried(), ElementsAre("2 ENGLISH", "3 DEUTSCH"));
}

TEST_F(LanguageUpdate, CarriesNoLanguageThatTheFileHolds) {
  file_.names.emplace_back("ENGLISH");
  EXPECT_THAT(Carried(), ElementsAre("3 DEUTSCH"));
}

TEST_F(LanguageUpdate, KnowsMessagesByTheLanguageOfTheSameName) {
  file_.names = {"Default", "ENGLISH"};
  EXPECT_THAT(Carried(), ElementsAre("2 ITALIANO", "3 DEUTSCH"));
}

TEST_F(LanguageUpdate, KnowsMessagesByTheFirstLanguageOtherwise) {
  file_.names = {"Default", "ITALIAN"};
  EXPECT_THAT(Carried(), ElementsAre("2 ENGLISH", "3 DEUTSCH"));
}

TEST_F(LanguageUpdate, CarriesNothingOfAFileWithTheReferenceAlone) {
  older_.names = {"Default", "ITALIANO"};
  EXPECT_THAT(Carried(), IsEmpty());
}

TEST_F(LanguageUpdate, RefusesMoreThan100Languages) {
  for (int k = 0; k < 97; ++k) {
    file_.names.push_back("N" + std::to_string(k));
  }
  EXPECT_THAT(Carried(), ElementsAre("99 ENGLISH", "100 DEUTSCH"));
  file_.names.emplace_back("N97");
  EXPECT_THROW(Carried(), FileError);
}

TEST_F(LanguageUpdate, PutsTheLanguagesBehindTheFile) {
  const MessageSet file = ReadFile();
  const auto path = folder_ / "NEW.MES";
  // The file's own messages read as the older ones do: "1000", "1111", "1222".
  WriteFile(path, Patched(file.file_content, PatchesFor(file, CarryLanguages(file, ReadOlder()))));
  EXPECT_EQ(test::Slurp(path), file_.Bytes() + "ENGLISH             200021112222" +
                                   std::string(4, '\0') + "DEUTSCH             300031113222");
}

TEST_F(LanguageUpdate, PutsTheDisplayTypeIntoTheHeader) {
  MessageSet file = ReadFile();
  file.LoadDisplayType(1);
  const auto path = folder_ / "NEW.MES";
  WriteFile(path, Patched(file.file_content, PatchesFor(file, CarryLanguages(file, ReadOlder()))));
  EXPECT_EQ(test::Slurp(path).substr(2, 2), "04");
}

TEST_F(LanguageUpdate, RefusesTextsThatAreTooWide) {
  older_.width = 41;
  EXPECT_THROW(Carried(), FileError);
}

}  // namespace
}  // namespace vendlingua
