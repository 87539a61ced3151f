#include "core/desk/memories.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/engine_test.h"
#include "support/message_files.h"

namespace vendlingua::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t kMost = 9;

using Texts = std::vector<std::string>;

// A ".MES" file of these languages with four messages of eight cells each.
std::string FileWith(const std::vector<std::string>& names, const std::vector<Texts>& languages) {
  MesFile mes;
  mes.names = names;
  mes.width = 8;
  mes.last_msg = 3;
  mes.stride = 4;
  std::string content = mes.Bytes();
  for (std::size_t block = 0; block < languages.size(); ++block) {
    for (std::size_t message = 0; message < languages[block].size(); ++message) {
      std::string text = languages[block][message];
      text.resize(mes.width, ' ');
      const std::string there = mes.Message(block, message);
      content.replace(content.find(there), there.size(), text);
    }
  }
  return content;
}

const Texts kItalian = {"Acqua", "Latte", "Acqua", "Nr. \xFE\xFE"};

// The open file says "Water" for "Acqua" once; what else there is to say is to do.
class MemoriesTest : public EngineTest {
 protected:
  MemoriesTest() {
    Open("TEST.MES", FileWith({"Default", "ITALIANO", "ENGLISH"},
                              {kItalian, kItalian, {"Water", "", "", "\xFE\xFE"}}));
    engine_.languages.ChooseOrigin(1);
    engine_.languages.ChooseDestination(2);
  }

  std::filesystem::path Memory(const std::string& name, const Texts& italian, const Texts& other) {
    return folder_.Write("OLD.MES",
                         FileWith({"Default", "ITALIANO", name}, {italian, italian, other}));
  }

  void Ask(std::vector<std::filesystem::path> files, std::filesystem::path samples = "none.MES") {
    memories_.SetFiles(std::move(files), std::move(samples));
    memories_.Follow(set_);
  }

  Texts Suggested(std::size_t message) {
    set_.ShowMessage(message);
    memories_.Follow(set_);
    Texts texts;
    for (const Suggestion& suggestion : memories_.SuggestionsFor(set_, kMost)) {
      texts.push_back(suggestion.laid_out ? Text(*suggestion.laid_out) : "no room");
    }
    return texts;
  }

  Texts Filled() {
    Texts texts;
    for (const FilledText& filled : memories_.Pretranslate(set_)) {
      texts.push_back(std::to_string(filled.text.message) + " " + Text(filled.text.codes));
    }
    return texts;
  }

  Memories memories_;
};

TEST_F(MemoriesTest, KnowNothingWithoutADestination) {
  set_.phase = Phase::kOriginChosen;
  Ask({});
  EXPECT_THAT(memories_.sources(), IsEmpty());
  EXPECT_THAT(Suggested(0), IsEmpty());
  EXPECT_THAT(Filled(), IsEmpty());
}

TEST_F(MemoriesTest, SuggestWhatThisFileSaysElsewhere) {
  Ask({});
  EXPECT_THAT(Suggested(2), ElementsAre("Water   "));
}

TEST_F(MemoriesTest, DoNotSuggestWhatTheMessageSays) {
  Ask({});
  EXPECT_THAT(Suggested(0), IsEmpty());
  set_.SetText(0, Codes("Wat"));
  EXPECT_THAT(Suggested(0), IsEmpty());
}

TEST_F(MemoriesTest, LearnFromTheMessageThatIsLeft) {
  Ask({});
  set_.ShowMessage(1);
  memories_.Follow(set_);
  set_.SetText(1, Codes("Milk"));
  EXPECT_THAT(Suggested(1), IsEmpty());
  set_.OriginText[3] = TextFrom("Latte");
  EXPECT_THAT(Suggested(3), ElementsAre("Milk    "));
}

TEST_F(MemoriesTest, LearnFromOtherMessagesAtOnce) {
  Ask({});
  EXPECT_THAT(Suggested(0), IsEmpty());
  set_.SetText(2, Codes("Waters"));
  EXPECT_THAT(Suggested(0), ElementsAre("Waters  "));
}

TEST_F(MemoriesTest, SuggestWhatAnotherMessageSaysLikeThisOne) {
  Ask({});
  set_.SetText(2, Codes("Water"));
  EXPECT_THAT(Suggested(1), IsEmpty());
  set_.ShowMessage(0);
  memories_.Follow(set_);
  set_.SetText(0, Codes("Wat"));
  EXPECT_THAT(Suggested(0), ElementsAre("Water   "));
}

TEST_F(MemoriesTest, ForgetWhatIsEmptied) {
  Ask({});
  EXPECT_THAT(Suggested(2), ElementsAre("Water   "));
  set_.SetText(0, Codes(""));
  EXPECT_THAT(Suggested(2), IsEmpty());
}

TEST_F(MemoriesTest, AskFilesForTheSameLanguages) {
  Ask({Memory("ENGLISH", kItalian, {"Aqua", "Milk", "Aqua", "No. \xFE\xFE"})});
  ASSERT_THAT(memories_.sources(), SizeIs(2));
  EXPECT_EQ(memories_.sources()[0].kind, MemorySource::Kind::kFile);
  EXPECT_THAT(Suggested(1), ElementsAre("Milk    "));
  EXPECT_THAT(Suggested(2), ElementsAre("Aqua    ", "Water   "));
  EXPECT_THAT(Suggested(3), ElementsAre("No. \xFE\xFE  "));
}

TEST_F(MemoriesTest, KnowALanguageByItsOtherNames) {
  Ask({Memory("INGLESE", kItalian, {"Aqua", "Milk", "Aqua", ""})});
  EXPECT_THAT(Suggested(1), ElementsAre("Milk    "));
}

TEST_F(MemoriesTest, LeaveFilesOutThatLackALanguage) {
  Ask({Memory("DEUTSCH", kItalian, {"Wasser", "Milch", "Wasser", ""})});
  EXPECT_THAT(memories_.sources(), SizeIs(1));
  EXPECT_THAT(memories_.unreadable(), IsEmpty());
}

TEST_F(MemoriesTest, NameFilesThatCannotBeRead) {
  const auto broken = folder_.Write("OLD.MES", "x");
  Ask({broken, "gone.MES"});
  EXPECT_THAT(memories_.unreadable(), ElementsAre(broken, "gone.MES"));
  EXPECT_THAT(Suggested(2), ElementsAre("Water   "));
}

TEST_F(MemoriesTest, AskTheSamplesLast) {
  Ask({}, Memory("ENGLISH", kItalian, {"Aqua", "Milk", "Aqua", ""}));
  EXPECT_THAT(Suggested(2), ElementsAre("Water   ", "Aqua    "));
}

TEST_F(MemoriesTest, TeachNothingThatIsToDoThere) {
  Ask({Memory("ENGLISH", kItalian, kItalian)});
  EXPECT_THAT(Suggested(1), IsEmpty());
}

TEST_F(MemoriesTest, TellWhatHasNoRoom) {
  Ask({Memory("ENGLISH", {"Acqua", "Latte", "Acqua", "Nr \xFE\xFE"},
              {"", "", "", "Number\xFE\xFE"})});
  EXPECT_THAT(Suggested(3), ElementsAre("no room"));
}

// Code 160 is "Б" on the Cyrillic display only; Latin letters are the same on both.
TEST_F(MemoriesTest, TakeOnlyWhatBothDisplaysDraw) {
  const auto file = Memory("ENGLISH", kItalian, {"Aqu\xA0", "Milk", "", ""});
  Ask({file});
  EXPECT_THAT(Suggested(2), ElementsAre("Aqu\xA0    ", "Water   "));
  set_.DisplayType = 1;
  Ask({file});
  EXPECT_THAT(Suggested(1), ElementsAre("Milk    "));
  EXPECT_THAT(Suggested(2), ElementsAre("Water   "));
}

TEST_F(MemoriesTest, CallANewLanguageByTheNameThatItWasGiven) {
  const auto file = Memory("TEDESCO", {"Acqua", "", "", ""}, {"Wasser", "", "", ""});
  dialogs_.input_answers = {"deutsch"};
  engine_.languages.StartNamedLanguage();
  Ask({file});
  EXPECT_THAT(Suggested(0), ElementsAre("Wasser  "));
}

TEST_F(MemoriesTest, CallANewLanguageByItsNameMessage) {
  const auto samples = Memory("DEUTSCH", kItalian, {"Wasser", "Milch", "Wasser", ""});
  engine_.languages.StartNewLanguage(0);
  Ask({}, samples);
  EXPECT_THAT(Suggested(2), IsEmpty());
  set_.SetText(static_cast<std::size_t>(set_.NameMessage()), Codes("Tedesco"));
  EXPECT_THAT(Suggested(2), ElementsAre("Wasser  "));
}

TEST_F(MemoriesTest, FillWhatIsCertain) {
  Ask({Memory("ENGLISH", kItalian, {"Water", "Milk", "Water", "No. \xFE\xFE"})});
  EXPECT_THAT(Filled(), ElementsAre("1 Milk    ", "2 Water   ", "3 No. \xFE\xFE  "));
  EXPECT_EQ(Destination(1), "        ");
}

TEST_F(MemoriesTest, FillEachMessageFromTheFirstThatKnowsIt) {
  Ask({}, Memory("ENGLISH", kItalian, {"Aqua", "Milk", "Aqua", ""}));
  EXPECT_THAT(Filled(), ElementsAre("1 Milk    ", "2 Water   "));
  const auto filled = memories_.Pretranslate(set_);
  EXPECT_EQ(memories_.sources().at(filled[0].memory).kind, MemorySource::Kind::kSamples);
  EXPECT_EQ(memories_.sources().at(filled[1].memory).kind, MemorySource::Kind::kThisFile);
}

TEST_F(MemoriesTest, FillNothingThatIsMerelySimilar) {
  Ask({Memory("ENGLISH", {"Latte2", "Latte3", "Te", "Te"}, {"Milk2", "Milk3", "Tea", "Tea"})});
  EXPECT_THAT(Filled(), ElementsAre("2 Water   "));
}

// The built-in table has placeholders where a ".MSX" file stores blanks.
TEST_F(MemoriesTest, StoreBlanksForPlaceholdersInAnMsxFile) {
  Open("TEST.MSX", MsxFile(2));
  engine_.languages.ChooseOrigin(0);
  engine_.languages.ChooseDestination(1);
  set_.SetText(1, {});
  MemoryTexts texts = OwnTexts(set_);
  EXPECT_EQ(Text(texts.origins[1].First(16)), "    Rev. \xFE.\xFE    ");
  EXPECT_EQ(texts.translations[1], DisplayText());
}

}  // namespace
}  // namespace vendlingua::test
