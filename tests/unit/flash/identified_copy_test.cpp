#include "core/flash/identified_copy.h"

#include <gtest/gtest.h>

#include "core/platform/path_of.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::HexOf;

// The identification of a header record, as text.
std::string Identification(std::string_view base_name) {
  const auto header = HeaderFromBaseName(base_name);
  if (!header) {
    return "none";
  }
  std::string text;
  for (std::size_t i = 12; i < 24; i += 2) {
    text += static_cast<char>(std::stoi(header->substr(i, 2), nullptr, 16));
  }
  return text;
}

TEST(HeaderFromBaseName, IsAnS0RecordWithTheIdentificationAndEightBlanks) {
  EXPECT_EQ(HeaderFromBaseName("FW0417AB"), "S013000044543034313741422020202020202020E7");
}

TEST(HeaderFromBaseName, PadsItsChecksumToTwoDigits) {
  EXPECT_EQ(HeaderFromBaseName("FW0417BZ"), "S0130000445430343137425A202020202020202000");
}

TEST(HeaderFromBaseName, TakesModelAndVersionFromCharacters3To8) {
  EXPECT_EQ(Identification("FW0417AB"), "0417AB");
  EXPECT_EQ(Identification("xy1234cd_test"), "1234CD");
}

TEST(HeaderFromBaseName, StepsTheSecondVersionLetterBackForModel0267) {
  EXPECT_EQ(Identification("FW0267AA"), "0267AD");
  EXPECT_EQ(Identification("FW0267AB"), "0267AA");
  EXPECT_EQ(Identification("FW0267AC"), "0267AB");
  EXPECT_EQ(Identification("FW0267AD"), "0267AC");
}

TEST(HeaderFromBaseName, SumsTheLetterThatWasSteppedBack) {
  EXPECT_EQ(HeaderFromBaseName("FW0267AA"), "S013000044543032363741442020202020202020EC");
}

TEST(HeaderFromBaseName, CountsLowerCaseVersionsAsCapitals) {
  EXPECT_EQ(Identification("fw0267ab"), "0267AA");
  EXPECT_EQ(Identification("fw0417ab"), "0417AB");
}

TEST(HeaderFromBaseName, KeepsAnyOtherSecondVersionLetter) {
  EXPECT_EQ(Identification("FW0267AE"), "0267AE");
  EXPECT_EQ(Identification("FW0267A1"), "0267A1");
}

TEST(HeaderFromBaseName, KeepsTheVersionWhenItDoesNotBeginWithA) {
  EXPECT_EQ(Identification("FW0267BB"), "0267BB");
}

TEST(HeaderFromBaseName, KeepsTheVersionOfOtherModels) {
  EXPECT_EQ(Identification("FW0268AB"), "0268AB");
}

TEST(HeaderFromBaseName, TakesAModelOfDecimalDigitsOnly) {
  for (const char* name : {"FWX417AA", "FW041xAA", "FW04 7AA", "FW-417AA", "FW4.17AA", "FW&H17AA",
                           "FW1E10AA", "FW+417AA"}) {
    EXPECT_EQ(HeaderFromBaseName(name), std::nullopt) << name;
  }
}

TEST(HeaderFromBaseName, IsNothingForANameTooShortForModelAndVersion) {
  EXPECT_EQ(HeaderFromBaseName(""), std::nullopt);
  EXPECT_EQ(HeaderFromBaseName("FW"), std::nullopt);
  EXPECT_EQ(HeaderFromBaseName("FW0417"), std::nullopt);
  EXPECT_EQ(HeaderFromBaseName("FW0417A"), std::nullopt);
}

// Characters are counted, not the bytes of their encoding.
TEST(HeaderFromBaseName, TakesAnyCharactersOutsideModelAndVersion) {
  for (const char* name :
       {"ФВ0417AB", "水牛0417AB", "è€0417ab-снэк", "\U0001F36B\u05D00417AB", "a\u03010417AB",
        "\xFF\x80"
        "0417AB",
        "\xE8"
        "F0417AB\xE8"}) {
    EXPECT_EQ(HeaderFromBaseName(name), "S013000044543034313741422020202020202020E7") << name;
  }
}

TEST(HeaderFromBaseName, IsNothingForAModelOrVersionOfOtherCharacters) {
  for (const char* name :
       {"ФВ04Ф7AB", "ФВ041٧AB", "FW0417AФ", "FW0417水B", "FW0417A\xE8", "ФВ0417A"}) {
    EXPECT_EQ(HeaderFromBaseName(name), std::nullopt) << name;
  }
}

TEST(HeaderFromBaseName, TakesAVersionLetterWithAnAccentByItsCode) {
  // 98 + 30 + 34 + 31 + 37 + 41 + C8 = 26D
  EXPECT_EQ(HeaderFromBaseName("FW0417Aè"),
            "S01300004454"
            "3034313741C8"
            "2020202020202020"
            "6D");
}

TEST(HeaderFromFirstRecord, TakesTheSixBytesBehindTheFirstP) {
  const std::string record = test::S2Line(0xFF0000, "    MP0417AB    ");
  EXPECT_EQ(HeaderFromFirstRecord(record), "S013000044543034313741422020202020202020E7");
}

TEST(HeaderFromFirstRecord, TakesTheFirstOfSeveral) {
  EXPECT_EQ(HeaderFromFirstRecord("S214FF0000" + HexOf("P0417ABPxxxxxx")).substr(12, 12),
            HexOf("0417AB"));
}

TEST(HeaderFromFirstRecord, LooksOnlyAtPairs) {
  // "45 05" holds the digits 50, but not as a pair.
  EXPECT_EQ(HeaderFromFirstRecord("S214FF00004505" + HexOf("0417AB")),
            "S01300004454202020202020202098");
}

TEST(HeaderFromFirstRecord, LooksAtThePairsOfCountAndAddressToo) {
  EXPECT_EQ(HeaderFromFirstRecord("S214FF5000303132333435363738").substr(12, 12), "003031323334");
}

TEST(HeaderFromFirstRecord, IsWithoutIdentificationWhenThereIsNoP) {
  EXPECT_EQ(HeaderFromFirstRecord(test::S2Line(0xFF0000, "    MQ0417AB    ")),
            "S01300004454202020202020202098");
  EXPECT_EQ(HeaderFromFirstRecord(""), "S01300004454202020202020202098");
}

TEST(HeaderFromFirstRecord, DoesNotPadItsChecksum) {
  EXPECT_EQ(HeaderFromFirstRecord("S214FF0000" + HexOf("P0417BZ")),
            "S0130000445430343137425A20202020202020200");
}

TEST(HeaderFromFirstRecord, TakesWhatIsThereWhenTheRecordEndsBehindP) {
  // 0x98 + 0x30 + 0x34 = 0xFC
  EXPECT_EQ(HeaderFromFirstRecord("S214FF0000503034"), "S0130000445430342020202020202020FC");
}

// Base name and extension of the copy, joined.
std::string CopyName(const std::filesystem::path& flash_file) {
  const auto name = CopyNameFor(flash_file);
  return name ? name->base_name + " + " + name->extension : "none";
}

TEST(CopyNameFor, IsMsxForAMhxFile) {
  EXPECT_EQ(CopyName("/flash/FW0417AB.MHX"), "FW0417AB + .MSX");
}

TEST(CopyNameFor, IsHsxForAHexFile) {
  EXPECT_EQ(CopyName("/flash/FW0417AB.hex"), "FW0417AB + .HSX");
}

TEST(CopyNameFor, IgnoresTheCaseOfTheExtension) {
  EXPECT_EQ(CopyName("/flash/fw0417ab.mhx"), "fw0417ab + .MSX");
  EXPECT_EQ(CopyName("/flash/FW0417AB.HEX"), "FW0417AB + .HSX");
}

TEST(CopyNameFor, StartsBehindTheLastSeparatorOfEitherKind) {
  EXPECT_EQ(CopyName("C:\\flash\\FW0417AB.MHX"), "FW0417AB + .MSX");
  EXPECT_EQ(CopyName("C:\\flash/FW0417AB.MHX"), "FW0417AB + .MSX");
  EXPECT_EQ(CopyName("/flash\\FW0417AB.MHX"), "FW0417AB + .MSX");
  EXPECT_EQ(CopyName("FW0417AB.MHX"), "FW0417AB + .MSX");
}

TEST(CopyNameFor, EndsWhereTheExtensionIsFoundFirst) {
  EXPECT_EQ(CopyName("/flash/FW0417AB.MHX.bak"), "FW0417AB + .MSX");
  EXPECT_EQ(CopyName("/flash/A.MHX.MHX"), "A + .MSX");
}

TEST(CopyNameFor, LooksForMhxBeforeHex) {
  EXPECT_EQ(CopyName("/flash/FW0417AB.hex.MHX"), "FW0417AB.hex + .MSX");
  EXPECT_EQ(CopyName("/flash/FW0417AB.MHX.hex"), "FW0417AB + .MSX");
}

TEST(CopyNameFor, LooksAtTheWholePath) {
  EXPECT_EQ(CopyName("/a.mhx/FW0417AB.MHX"), "a + .MSX");
  EXPECT_EQ(CopyName("/a.mhx/FW0417AB.hex"), "a + .MSX");
  EXPECT_EQ(CopyName("/a.hex/FW0417AB.hex"), "a + .HSX");
}

TEST(CopyNameFor, KeepsCharactersAboveAscii) {
  EXPECT_EQ(CopyName(PathOf("/flash/caffè.MHX")), "caffè + .MSX");
}

TEST(CopyNameFor, MayBeEmpty) { EXPECT_EQ(CopyName("/flash/.MHX"), " + .MSX"); }

TEST(CopyNameFor, IsNothingWithoutAKnownExtension) {
  EXPECT_FALSE(CopyNameFor("/flash/FW0417AB"));
  EXPECT_FALSE(CopyNameFor("/flash/FW0417AB.txt"));
  EXPECT_FALSE(CopyNameFor("/flash/FW0417ABMHX"));
  EXPECT_FALSE(CopyNameFor(""));
}

}  // namespace
}  // namespace vendlingua
