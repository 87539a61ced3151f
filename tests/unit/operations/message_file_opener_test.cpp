#include "core/operations/message_file_opener.h"

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform/errors.h"
#include "support/engine_test.h"
#include "support/ordinary_user.h"

namespace vendlingua {
namespace {

namespace fs = std::filesystem;
using test::MesFile;
using test::MsxFile;
using test::Slurp;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MessageFileOpenerTest : public test::EngineTest {
 protected:
  // Opens a file in which "1000" of language 1 is being edited.
  void EditAFile() {
    Open("EDITED.MES", MesFile().Bytes());
    engine_.languages.ChooseOrigin(0);
    engine_.languages.ChooseDestination(1);
    dialogs_.open_requests.clear();
  }

  void Modify() {
    engine_.editing.ChangeText(test::Codes("NEW"));
    engine_.editing.KeyPressed();
  }

  void ExpectTheEditedFileStillOpen() const {
    EXPECT_EQ(set_.CurrentFileName, folder_ / "EDITED.MES");
    EXPECT_EQ(set_.CurrentFileType, ".MES");
    EXPECT_EQ(set_.LangCount, 2);
    EXPECT_EQ(set_.DestLang, 1);
    EXPECT_EQ(Destination(1), "1111");
    EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
    EXPECT_TRUE(menus().mnuSave.enabled);
    EXPECT_TRUE(view().Text1.enabled);
    EXPECT_EQ(view().caption, "EDITED.MES");
  }

  std::string ReasonAgainst(const fs::path& path) {
    try {
      Open(path);
    } catch (const FileError& error) {
      return error.what();
    }
    return "none";
  }
};

TEST_F(MessageFileOpenerTest, AsksForAMessageFile) {
  engine_.workspace.folders.program = folder_.path();
  Open("");
  ASSERT_THAT(dialogs_.open_requests, SizeIs(1));
  const FileRequest& request = dialogs_.open_requests[0];
  EXPECT_EQ(request.purpose, FilePurpose::kOpenMessages);
  EXPECT_EQ(request.initial_name, "");
  EXPECT_THAT(request.filters,
              ElementsAre(FileFilter{"Message", "MES"}, FileFilter{"Message", "MSX"}));
  EXPECT_TRUE(request.must_exist);
  EXPECT_EQ(request.folder, folder_.path());
}

TEST_F(MessageFileOpenerTest, StartsInTheProgramsFolderEveryTime) {
  engine_.workspace.folders.program = "program";
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
  Open("");
  EXPECT_EQ(dialogs_.open_requests.back().folder, "program");
  EXPECT_EQ(engine_.workspace.folders.current, "program");
}

TEST_F(MessageFileOpenerTest, OpensMesFiles) {
  EXPECT_EQ(Open("FILE.MES", MesFile().Bytes()), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "FILE.MES");
  EXPECT_EQ(set_.CurrentFileType, ".MES");
  EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
}

TEST_F(MessageFileOpenerTest, OpensMsxFiles) {
  EXPECT_EQ(Open("FILE.MSX", MsxFile(1)), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "FILE.MSX");
  EXPECT_EQ(set_.CurrentFileType, ".MSX");
  EXPECT_EQ(menus().mnuDes[1].caption, "LANGUAGE 1");
}

TEST_F(MessageFileOpenerTest, KnowsTypesInLowerCase) {
  EXPECT_EQ(Open("file.mes", MesFile().Bytes()), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileType, ".MES");
  EXPECT_EQ(Open("file.msx", MsxFile(1)), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileType, ".MSX");
}

TEST_F(MessageFileOpenerTest, LeavesEverythingAsItWasWhenCancelled) {
  EditAFile();
  for (const char* answer : {"", "*.MES", "*.MSX"}) {
    EXPECT_EQ(Open(answer), OpenOutcome::kCancelled) << answer;
  }
  ExpectTheEditedFileStillOpen();
}

TEST_F(MessageFileOpenerTest, IgnoresAFileOfAnotherType) {
  EditAFile();
  for (const char* name : {"TEST.MSX.MES", "TEST.MES.bak", "TEST.TXT", "TEST"}) {
    EXPECT_EQ(Open(name, MesFile().Bytes()), OpenOutcome::kCancelled) << name;
  }
  ExpectTheEditedFileStillOpen();
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(MessageFileOpenerTest, SaysThatAFileOfAnotherTypeIsNone) {
  engine_.workspace.ui_text.Set(static_cast<std::size_t>(UiTextId::kNoMessageFile), "no messages");
  Open("TEST.TXT", "");
  EXPECT_EQ(window_.status, "TEST.TXT: no messages");
}

TEST_F(MessageFileOpenerTest, OpensAFileThatWasChosenElsewhere) {
  EditAFile();
  const fs::path file = folder_.Write("OTHER.MES", MesFile().Bytes());
  EXPECT_EQ(engine_.opener.Open(file), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileName, file);
  EXPECT_EQ(engine_.workspace.folders.current, folder_.path());
  EXPECT_THAT(dialogs_.open_requests, IsEmpty());
}

TEST_F(MessageFileOpenerTest, OffersToSaveChangesBeforeItOpensAFileThatWasChosenElsewhere) {
  EditAFile();
  Modify();
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  engine_.opener.Open(folder_.Write("OTHER.MES", MesFile().Bytes()));
  EXPECT_THAT(Slurp(folder_ / "EDITED.MES"), HasSubstr("NEW 11111222"));
}

TEST_F(MessageFileOpenerTest, OffersToSaveChangesBeforeItAsksForAFile) {
  EditAFile();
  Modify();
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  Open("FILE.MES", MesFile().Bytes());
  ASSERT_THAT(dialogs_.messages, SizeIs(1));
  EXPECT_EQ(dialogs_.messages[0].text, "text 43");
  EXPECT_THAT(Slurp(folder_ / "EDITED.MES"), HasSubstr("NEW 11111222"));
}

TEST_F(MessageFileOpenerTest, HasOfferedToSaveEvenWhenItIsCancelled) {
  EditAFile();
  Modify();
  dialogs_.yes_no_answers = {MessageAnswer::kNo};
  EXPECT_EQ(Open(""), OpenOutcome::kCancelled);
  EXPECT_EQ(set_.Modified, kFalse);
  EXPECT_EQ(Slurp(folder_ / "EDITED.MES"), MesFile().Bytes());
}

TEST_F(MessageFileOpenerTest, AsksForNoFileWhenChangesCannotBeSaved) {
  EditAFile();
  Modify();
  fs::remove(folder_ / "EDITED.MES");
  dialogs_.yes_no_answers = {MessageAnswer::kYes};
  EXPECT_EQ(engine_.opener.Open(), OpenOutcome::kCancelled);
  EXPECT_THAT(dialogs_.open_requests, IsEmpty());
  ExpectTheEditedFileStillOpen();
}

TEST_F(MessageFileOpenerTest, NeverTakesABinaryFileForASource) {
  for (const std::size_t languages : {1U, 31U}) {
    EXPECT_EQ(Open("FILE.MES", MesFile{.lang_count = languages}.Bytes()), OpenOutcome::kOpened);
    EXPECT_EQ(set_.LangCount, languages);
  }
  EXPECT_THAT(dialogs_.inputs, IsEmpty());
}

TEST_F(MessageFileOpenerTest, TakesABinaryFileWith32LanguagesForASource) {
  const fs::path path = folder_.Write("FILE.MES", MesFile{.lang_count = 32}.Bytes());
  EXPECT_THAT(ReasonAgainst(path), HasSubstr("no quoted text"));
}

TEST_F(MessageFileOpenerTest, ImportsASource) {
  dialogs_.input_answers = {"2", "1", "&H6000", "24", "italiano"};
  dialogs_.file_answers = {folder_.Write("SOURCE.MES", " DC.B 'ABCD'\n DC.B 'EFGH'\n"),
                           folder_ / "NEW.MES"};
  EXPECT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "NEW.MES");
  EXPECT_EQ(menus().mnuDes[1].caption, "ITALIANO");
}

TEST_F(MessageFileOpenerTest, ImportsASourceOfAnyName) {
  dialogs_.input_answers = {"2", "1", "&H6000", "24", "italiano"};
  dialogs_.file_answers = {folder_ / "NEW.MES"};
  EXPECT_EQ(engine_.opener.Import(folder_.Write("firmware.src", " DC.B 'ABCD'\n")),
            OpenOutcome::kOpened);
  EXPECT_EQ(set_.CurrentFileName, folder_ / "NEW.MES");
}

TEST_F(MessageFileOpenerTest, ImportsNoBinaryFile) {
  EditAFile();
  const fs::path path = folder_.Write("firmware.src", MesFile().Bytes());
  EXPECT_THROW(engine_.opener.Import(path), FileError);
  ExpectTheEditedFileStillOpen();
}

TEST_F(MessageFileOpenerTest, LeavesEverythingAsItWasWhenAFileIsRefused) {
  const std::string mes = MesFile().Bytes();
  const std::string msx = MsxFile(1);
  const std::size_t name_data = msx.find(test::HexOf("   LANGUAGE 1   "));
  const std::vector<std::pair<std::string_view, std::string>> refused = {
      {"NONE.MES", MesFile{.lang_count = 0}.Bytes()},
      {"DIGIT.MES", MesFile{.mem_start = "0000600G"}.Bytes()},
      {"HEADER.MES", mes.substr(0, 23)},
      {"NAME.MES", mes.substr(0, 43)},
      {"QUOTE.MES", " DC.B 'ABCD'\r\n; don't\r\n"},
      {"EMPTY.MES", "; no text\r\n"},
      {"NAME.MSX", msx.substr(0, name_data + 20)},
      {"DIGIT.MSX", std::string(msx).replace(name_data, 1, "G")},
      {"RETURN.MSX", std::string(msx).replace(msx.find("\r\n"), 2, "\r")},
  };
  EditAFile();
  const std::uint32_t opened = set_.OpenedFiles;
  for (const auto& [name, content] : refused) {
    EXPECT_THAT(ReasonAgainst(folder_.Write(name, content)), HasSubstr((folder_ / name).string()));
    ExpectTheEditedFileStillOpen();
    EXPECT_EQ(set_.OpenedFiles, opened) << name;
    EXPECT_EQ(Slurp(folder_ / name), content);
  }
  EXPECT_THAT(dialogs_.messages, IsEmpty());
}

TEST_F(MessageFileOpenerTest, RefusesWhatIsNoReadableFile) {
  EditAFile();
  for (const char* name : {"DIR.MES", "DIR.MSX"}) {
    fs::create_directory(folder_ / name);
    EXPECT_THAT(ReasonAgainst(folder_ / name), HasSubstr(name));
  }
  for (const char* name : {"none.MES", "none.MSX", "none/none.MES"}) {
    EXPECT_THAT(ReasonAgainst(folder_ / name), HasSubstr(name));
  }
  EXPECT_NE(ReasonAgainst(folder_.Write("EMPTY.MES", "")), "none");
  ExpectTheEditedFileStillOpen();
}

TEST_F(MessageFileOpenerTest, RefusesAFileThatMayNotBeRead) {
  EditAFile();
  for (const char* name : {"LOCKED.MES", "LOCKED.MSX"}) {
    const fs::path path = folder_.Write(name, MesFile().Bytes());
    fs::permissions(path, fs::perms::none);
    const test::OrdinaryUser ordinary_user;
    if (!ordinary_user.holds()) {
      GTEST_SKIP() << "this user may read every file";
    }
    EXPECT_THAT(ReasonAgainst(path), HasSubstr(path.string()));
  }
  ExpectTheEditedFileStillOpen();
}

TEST_F(MessageFileOpenerTest, RefusesAFileOfGigabytes) {
  for (const char* name : {"HUGE.MES", "HUGE.MSX"}) {
    const fs::path path = folder_.Write(name, MsxFile(0));
    fs::resize_file(path, std::uintmax_t{1} << 31U);
    EXPECT_THAT(ReasonAgainst(path), HasSubstr("too large"));
  }
}

TEST_F(MessageFileOpenerTest, RemovesWhatAProgramThatWasEndedLeftBesideTheFile) {
  const fs::path piece = folder_.Write(".vendlingua-17.tmp", "half of a file");
  fs::last_write_time(piece, fs::file_time_type::clock::now() - std::chrono::hours(1));
  Open("FILE.MES", MesFile().Bytes());
  EXPECT_EQ(folder_.Names(), "FILE.MES");
}

}  // namespace
}  // namespace vendlingua
