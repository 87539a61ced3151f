#include <gmock/gmock.h>

#include <cstdlib>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "core/engine.h"
#include "core/formats/srecord.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/skip_on_windows.h"
#include "support/temporary_folder.h"

// The flash files are decoded by programs that know nothing of this one.

namespace vendlingua {
namespace {

using test::Slurp;

std::string Quoted(const std::filesystem::path& path) { return "'" + path.string() + "'"; }

// Runs a program and expects it to succeed. It may warn that flash files have neither header nor
// terminator.
void Run(const std::string& command, const std::filesystem::path& output) {
  EXPECT_EQ(std::system((command + " >" + Quoted(output) + " 2>&1").c_str()), 0) << command << "\n"
                                                                                 << Slurp(output);
}

// The bytes of a flash file from address `start` on, as srec_cat reads them.
std::string DecodedBySrecCat(const std::filesystem::path& flash_file, std::uint32_t start) {
  const test::TemporaryFolder folder;
  Run("srec_cat " + Quoted(flash_file) + " -Motorola -Offset -" + std::to_string(start) + " -o " +
          Quoted(folder / "image") + " -Binary",
      folder / "output");
  return Slurp(folder / "image");
}

// The bytes of a flash file as objcopy reads them: from its lowest address on.
std::string DecodedByObjcopy(const std::filesystem::path& flash_file) {
  const test::TemporaryFolder folder;
  Run("objcopy -I srec -O binary " + Quoted(flash_file) + " " + Quoted(folder / "image"),
      folder / "output");
  return Slurp(folder / "image");
}

struct Memory {
  const char* name;
  std::uint32_t start;
  std::size_t length;
};

void PrintTo(const Memory& memory, std::ostream* out) { *out << memory.name; }

class IndependentToolsTest : public testing::TestWithParam<Memory> {
 protected:
  IndependentToolsTest() : image_(GetParam().length) {
    std::mt19937 random(7);
    for (std::uint8_t& byte : image_) {
      byte = static_cast<std::uint8_t>(random());
    }
    flash_file_ = folder_.Write(
        "FLASH", FormatSRecords(image_, GetParam().start, SRecordTypeFor(GetParam().start)));
  }

  void SetUp() override { SKIP_ON_WINDOWS("srec_cat and objcopy"); }

  std::string Image() const { return test::Text(image_); }

  std::vector<std::uint8_t> image_;
  test::TemporaryFolder folder_;
  std::filesystem::path flash_file_;
};

TEST_P(IndependentToolsTest, SrecCatReadsTheImage) {
  EXPECT_EQ(DecodedBySrecCat(flash_file_, GetParam().start), Image());
}

TEST_P(IndependentToolsTest, ObjcopyReadsTheImage) {
  EXPECT_EQ(DecodedByObjcopy(flash_file_), Image());
}

// No starts whose addresses have fewer digits than their record type asks for: they are written
// as they come, which these tools do not take.
INSTANTIATE_TEST_SUITE_P(
    Memories, IndependentToolsTest,
    testing::Values(Memory{"S1", 0x6000, 0x2000}, Memory{"S1ShortLastRecord", 0x6000, 0x2005},
                    Memory{"S1UpToTheLastAddress", 0x8000, 0x8000}, Memory{"S2", 0xFF8000, 0x2000},
                    Memory{"S2ShortLastRecord", 0xFF8000, 0x2005},
                    Memory{"S2OfOneByte", 0xFF8000, 1}, Memory{"S2FromALowStart", 0x100000, 33},
                    Memory{"S2OfNineLanguages", 0xFF0000, 0xFFF0}));

// The whole way: from a message file through the compiler into a flash file.
class CompiledFileTest : public testing::Test {
 protected:
  std::filesystem::path Compile(const test::MesFile& file, std::string_view flash_file) {
    std::string bytes = file.Bytes();
    bytes.replace(24 + 36 + 20, 4,
                  "A\xFE\xFE"
                  "B");
    dialogs_.file_answers = {folder_.Write("SET.MES", bytes), folder_ / flash_file};
    EXPECT_EQ(engine_.opener.Open(), OpenOutcome::kOpened);
    engine_.compiler_state.ticked[1] = true;
    engine_.compiler_state.ticked[2] = true;
    engine_.compiler.Compile();
    return folder_ / flash_file;
  }

  test::TemporaryFolder folder_;
  test::ScriptedDialogs dialogs_;
  Engine engine_{dialogs_};
};

TEST_F(CompiledFileTest, HoldsTheMessagesForBothToolsInTheHexFamily) {
  SKIP_ON_WINDOWS("srec_cat and objcopy");
  const auto flash_file =
      Compile({.flags = "01", .names = {"Default", "ITALIANO", "ENGLISH"}}, "FW0417AB.hex");
  EXPECT_EQ(DecodedBySrecCat(flash_file, 0x6000), "A  B11111222200021112222");
  EXPECT_EQ(DecodedByObjcopy(flash_file), "A  B11111222200021112222");
}

TEST_F(CompiledFileTest, HoldsTheMessagesForBothToolsInTheMhxFamily) {
  SKIP_ON_WINDOWS("srec_cat and objcopy");
  const auto flash_file =
      Compile({.flags = "03", .mem_start = "00FF8000", .names = {"Default", "ITALIANO", "ENGLISH"}},
              "FW0417AB.MHX");
  EXPECT_EQ(DecodedBySrecCat(flash_file, 0xFF8000), "A  B11111222200021112222");
  EXPECT_EQ(DecodedByObjcopy(flash_file), "A  B11111222200021112222");
}

}  // namespace
}  // namespace vendlingua
