#include <gmock/gmock.h>

#include "core/flash/flash_compiler.h"
#include "support/skip_on_windows.h"
#include "unit/flash/flash_compiler_test.h"

// No output takes the place of the message file or of another output of the same run. What can be
// known beforehand is refused before the first byte is written.

namespace vendlingua {
namespace {

namespace fs = std::filesystem;

using test::Slurp;
using testing::AllOf;
using testing::HasSubstr;

class SafeCompilationTest : public test::FlashCompilerTest {
 protected:
  // Compiles languages 1 and 2, and expects `output` to be refused as being `what` while nothing
  // in the folder changes.
  void ExpectRefusal(std::string_view flash_file, std::string_view output, const char* what) {
    const std::string names = folder_.Names();
    EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / flash_file),
                AllOf(HasSubstr((folder_ / output).string() + ": "), HasSubstr(what)));
    EXPECT_EQ(folder_.Names(), names);
    EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
    ExpectReady();
  }

  void Link(std::string_view link, const fs::path& to) { fs::create_symlink(to, folder_ / link); }
};

TEST_F(SafeCompilationTest, KeepsTheMessageFileFromTheFlashFile) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenHexFile();
  Link("link.hex", "SET.MES");
  fs::create_hard_link(folder_ / "SET.MES", folder_ / "hard.hex");
  for (const char* name : {"SET.MES", "./SET.MES", "link.hex", "hard.hex"}) {
    ExpectRefusal(name, name, "is the message file");
  }
}

TEST_F(SafeCompilationTest, KeepsTheMessageFileFromTheNamedCopy) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  Link("FW0417AB.MSX", "SET.MES");
  ExpectRefusal("FW0417AB.MHX", "FW0417AB.MSX", "is the message file");
}

TEST_F(SafeCompilationTest, KeepsTheFlashFileFromTheNamedCopy) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  Link("FW0417AB.MSX", "FW0417AB.MHX");
  ExpectRefusal("FW0417AB.MHX", "FW0417AB.MSX", "is the flash file");
  // The name of the copy is looked for in the whole path.
  fs::create_directory(folder_ / "FW0417AC.mhx");
  ExpectRefusal("FW0417AC.mhx/FW0417AC.MSX", "FW0417AC.mhx/FW0417AC.MSX", "is the flash file");
}

TEST_F(SafeCompilationTest, KeepsTheMessageFileFromTheSectionFiles) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  for (const char* name : {"F.mtx", "F.SA0", "F.SA1", "F.SA2", "F.SA3", "F.SA4"}) {
    Link(name, "SET.MES");
    ExpectRefusal("F.MHX", name, "is the message file");
    fs::remove(folder_ / name);
  }
}

TEST_F(SafeCompilationTest, KeepsTheFlashFileFromTheSectionFiles) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  for (const char* name : {"F.mhx.mtx", "F.mhx.SA0", "F.mhx.SA4"}) {
    ExpectRefusal(name, name, "is the flash file");
  }
  Link("F.SA1", "F.MHX");
  ExpectRefusal("F.MHX", "F.SA1", "is the flash file");
}

TEST_F(SafeCompilationTest, KeepsTheNamedCopyFromTheSectionFiles) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  Link("FW0417AB.SA0", "FW0417AB.MSX");
  ExpectRefusal("FW0417AB.MHX", "FW0417AB.SA0", "is the identified copy");
}

TEST_F(SafeCompilationTest, LooksThroughLinksOfLinksAndFolders) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  fs::create_directory(folder_ / "sub");
  Link("here", ".");
  Link("sub/next", "../here/F.MHX");
  Link("F.SA3", folder_ / "sub" / "next");
  ExpectRefusal("F.MHX", "F.SA3", "is the flash file");
}

TEST_F(SafeCompilationTest, LetsNoLinkThatLeadsToItselfBeTakenForAFileOfTheRun) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  Link("F.SA3", "F.SA3");
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "F.MHX"),
              AllOf(HasSubstr("F.SA3"), Not(HasSubstr("is the"))));
}

TEST_F(SafeCompilationTest, MindsNoSectionFilesInTheHexFamily) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenHexFile();
  Link("FW0417AB.SA1", "SET.MES");
  EXPECT_TRUE(Compile({1, 2}, folder_ / "FW0417AB.hex").completed);
}

TEST_F(SafeCompilationTest, MindsNoCopyThatIsNotMade) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  Link("FWX417AB.SA1", "FWX417AB.MSX");
  EXPECT_TRUE(Compile({1, 2}, folder_ / "FWX417AB.MHX").completed);
}

TEST_F(SafeCompilationTest, KeepsFilesThatLieBeside) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  folder_.Write("FW0417AB.MSX", "older");
  folder_.Write("OTHER", "other");
  Link("FW0417AB.SA1", "OTHER");
  EXPECT_TRUE(Compile({1, 2}, folder_ / "FW0417AB.MHX").completed);
}

TEST_F(SafeCompilationTest, KeepsTheFilesOfAMsxSourceFromTheSectionFiles) {
  SKIP_ON_WINDOWS("links for everybody");
  Open("SOURCE.MSX", test::MsxFile(9));
  EXPECT_THAT(ReasonOfRefusal({}, folder_ / "F.SA0"), HasSubstr("F.SA0: is the flash file"));
  Link("F.mtx", "SOURCE.MSX");
  EXPECT_THAT(ReasonOfRefusal({}, folder_ / "F.MHX"), HasSubstr("F.mtx: is the message file"));
  EXPECT_EQ(folder_.Names(), "F.mtx SOURCE.MSX");
  EXPECT_EQ(Slurp(folder_ / "SOURCE.MSX"), test::MsxFile(9));
}

// A file may come to lie where an output goes while the run goes on.
TEST_F(SafeCompilationTest, LooksAgainBeforeItWritesTheCopy) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenHexFile();
  dialogs_.while_pending_events_run = [this] { Link("FW0417AB.HSX", "FW0417AB.hex"); };
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "FW0417AB.hex"), HasSubstr("is the flash file"));
  EXPECT_EQ(folder_.Names(), "FW0417AB.HSX SET.MES");
}

TEST_F(SafeCompilationTest, LooksAgainBeforeItWritesTheSectionFiles) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMhxFile();
  dialogs_.while_pending_events_run = [this] {
    if (!fs::exists(folder_ / "FW0417AB.SA0")) {
      Link("FW0417AB.SA0", "SET.MES");
    }
  };
  EXPECT_THAT(ReasonOfRefusal({1, 2}, folder_ / "FW0417AB.MHX"), HasSubstr("is the message file"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
}

// Nine slots: the copy is asked for when the flash file is made, but has not its name yet.
class SafeNineLanguageCopyTest : public SafeCompilationTest {
 protected:
  SafeNineLanguageCopyTest() {
    file_ = {.lang_count = 9,
             .width = 16,
             .last_msg = 454,
             .flags = "03",
             .header_count = "00A9",
             .mem_start = "00FF0000",
             .stride = 455,
             .names = std::vector<std::string>(10, "NAME")};
  }

  std::string Refusal(const fs::path& flash_file, const fs::path& copy) {
    try {
      Compile({1, 2, 3, 4, 5, 6, 7, 8, 9}, flash_file, copy);
    } catch (const Error& error) {
      return error.what();
    }
    return "not refused";
  }
};

TEST_F(SafeNineLanguageCopyTest, KeepsTheMessageFileFromTheCopy) {
  OpenMes();
  EXPECT_THAT(Refusal(folder_ / "F.MHX", folder_ / "SET.MES"), HasSubstr("is the message file"));
  EXPECT_EQ(Slurp(folder_ / "SET.MES"), file_.Bytes());
  ExpectReady();
}

TEST_F(SafeNineLanguageCopyTest, KeepsTheFlashFileFromTheCopy) {
  SKIP_ON_WINDOWS("links for everybody");
  OpenMes();
  Compile({1, 2, 3, 4, 5, 6, 7, 8, 9}, folder_ / "F.MHX", folder_ / "COPY.MSX");
  fs::remove(folder_ / "F.MHX");
  Link("LINK.MSX", "F.MHX");
  fs::create_directory(folder_ / "sub");
  for (const char* copy : {"F.MHX", "./F.MHX", "sub/../F.MHX", "LINK.MSX"}) {
    EXPECT_THAT(Refusal(folder_ / "F.MHX", folder_ / copy),
                HasSubstr((folder_ / copy).string() + ": is the flash file"));
    EXPECT_FALSE(fs::exists(folder_ / "F.MHX"));
    ExpectReady();
  }
}

TEST_F(SafeNineLanguageCopyTest, KeepsTheCopyFromTheSectionFiles) {
  OpenMes();
  EXPECT_THAT(Refusal(folder_ / "F.MHX", folder_ / "F.SA2"), HasSubstr("is the identified copy"));
  EXPECT_EQ(folder_.Names(), "SET.MES");
  ExpectReady();
}

}  // namespace
}  // namespace vendlingua
