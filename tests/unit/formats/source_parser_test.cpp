#include "core/formats/source_parser.h"

#include <gmock/gmock.h>

#include <random>

#include "core/platform/errors.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

using test::Codes;
using test::SourceLine;
using test::SourceLines;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string ReasonOfRefusal(std::string_view source) {
  try {
    ParseSource(source);
  } catch (const Error& error) {
    return error.what();
  }
  return "not refused";
}

TEST(ParseSource, TakesTheQuotedTextsInOrder) {
  const auto sections =
      ParseSource("; messages\n" + SourceLine("ABCD") + "LABEL:\n" + SourceLine("EFGH"));
  ASSERT_THAT(sections, SizeIs(1));
  EXPECT_THAT(sections[0].texts, ElementsAre(Codes("ABCD"), Codes("EFGH")));
}

TEST(ParseSource, EndsTheOnlySectionWithTheFile) {
  const auto sections = ParseSource(SourceLine("ABCD"));
  ASSERT_THAT(sections, SizeIs(1));
  EXPECT_TRUE(sections[0].ends_file);
  EXPECT_EQ(sections[0].directives, 0U);
}

TEST(ParseSource, ReadsLinesThatEndInCrLf) {
  const auto sections = ParseSource(" DC.B 'ABCD'\r\n DC.B 'EFGH'\r\n");
  EXPECT_THAT(sections.at(0).texts, ElementsAre(Codes("ABCD"), Codes("EFGH")));
}

TEST(ParseSource, CountsALastLineWithoutItsEnd) {
  EXPECT_THAT(ParseSource(SourceLine("ABCD") + " DC.B 'EFGH'").at(0).texts,
              ElementsAre(Codes("ABCD"), Codes("EFGH")));
}

TEST(ParseSource, RefusesACarriageReturnThatEndsNoLine) {
  EXPECT_THAT(ReasonOfRefusal(SourceLine("ABCD") + " DC.B 'EFGH'\r DC.B 'IJKL'\r"),
              HasSubstr("line 2"));
}

TEST(ParseSource, KeepsPlaceholders) {
  EXPECT_THAT(ParseSource(SourceLine("Rev. \xFE.\xFE")).at(0).texts,
              ElementsAre(Codes("Rev. \xFE.\xFE")));
}

TEST(ParseSource, DoesNotEndASectionWithTheFirstDirective) {
  const auto sections = ParseSource(SourceLine("ABCD") + " ORG $6000\n" + SourceLine("EFGH"));
  ASSERT_THAT(sections, SizeIs(1));
  EXPECT_THAT(sections[0].texts, SizeIs(2));
  EXPECT_EQ(sections[0].directives, 1U);
}

TEST(ParseSource, EndsASectionWithEveryFurtherDirective) {
  const auto sections = ParseSource(" ORG $6000\n" + SourceLine("ABCD") + " .SECT two\n" +
                                    SourceLine("EFGH") + " ORG $8000\n" + SourceLine("IJKL"));
  ASSERT_THAT(sections, SizeIs(3));
  EXPECT_THAT(sections[0].texts, ElementsAre(Codes("ABCD")));
  EXPECT_THAT(sections[1].texts, ElementsAre(Codes("EFGH")));
  EXPECT_THAT(sections[2].texts, ElementsAre(Codes("IJKL")));
}

TEST(ParseSource, CountsTheDirectivesSeenAtTheEndOfEachSection) {
  const auto sections = ParseSource(" ORG 1\n" + SourceLine("ABCD") + " ORG 2\n" +
                                    SourceLine("EFGH") + " ORG 3\n" + SourceLine("IJKL"));
  ASSERT_THAT(sections, SizeIs(3));
  EXPECT_EQ(sections[0].directives, 2U);
  EXPECT_EQ(sections[1].directives, 3U);
  EXPECT_EQ(sections[2].directives, 3U);
  EXPECT_FALSE(sections[1].ends_file);
  EXPECT_TRUE(sections[2].ends_file);
}

TEST(ParseSource, EndsTheFileWithADirectiveThatIsItsLastLine) {
  for (const std::string_view end : {"", "\n", "\r\n"}) {
    const auto sections = ParseSource(" ORG 1\n" + SourceLine("ABCD") + " .SECT 2\n" +
                                      SourceLine("EFGH") + " ORG 3" + std::string(end));
    ASSERT_THAT(sections, SizeIs(2));
    EXPECT_THAT(sections[1].texts, ElementsAre(Codes("EFGH")));
    EXPECT_EQ(sections[1].directives, 3U);
    EXPECT_FALSE(sections[0].ends_file);
    EXPECT_TRUE(sections[1].ends_file);
  }
}

TEST(ParseSource, RefusesASectionOfWhichOnlyTheDirectiveAndABlankLineAreThere) {
  EXPECT_THAT(ReasonOfRefusal(" ORG 1\n" + SourceLine("ABCD") + " ORG 2\n\n"), HasSubstr("line 4"));
}

TEST(ParseSource, FindsADirectiveInsideAnyWord) {
  EXPECT_THAT(ParseSource("; FORGET\n" + SourceLine("ABCD") + "XORGX\n" + SourceLine("EFGH")),
              SizeIs(2));
}

TEST(ParseSource, TellsDirectivesByCase) {
  EXPECT_THAT(
      ParseSource(" ORG 1\n" + SourceLine("ABCD") + " org 2\n .sect 3\n" + SourceLine("EFGH")),
      SizeIs(1));
}

TEST(ParseSource, ReadsTheTextOfTheLineWithTheFirstDirective) {
  EXPECT_THAT(ParseSource(" ORG 'ABCD'\n").at(0).texts, ElementsAre(Codes("ABCD")));
}

TEST(ParseSource, DoesNotLookFurtherAtTheLineThatEndsASection) {
  const auto sections = ParseSource(" ORG 1\n" + SourceLine("ABCD") + "MNLING .SDATA ORG 'EFGH'\n" +
                                    SourceLine("IJKL"));
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_THAT(sections[0].texts, ElementsAre(Codes("ABCD")));
  EXPECT_THAT(sections[1].texts, ElementsAre(Codes("IJKL")));
  EXPECT_THAT(sections[1].name_labels, IsEmpty());
  EXPECT_FALSE(sections[1].has_sdata);
}

TEST(ParseSource, NotesHowManyTextsStandBeforeTheNameLabel) {
  const auto sections =
      ParseSource(SourceLines(11, "ABCD") + "MNLING DC.B 'NAME'\n" + SourceLine("EFGH"));
  EXPECT_THAT(sections.at(0).name_labels, ElementsAre(11));
}

TEST(ParseSource, NotesEveryLineWithTheNameLabel) {
  const auto sections = ParseSource("MNLING:\n" + SourceLine("ABCD") + "MNLING:\n");
  EXPECT_THAT(sections.at(0).name_labels, ElementsAre(0, 1));
}

TEST(ParseSource, CountsTheTextsBeforeTheNameLabelAnewInEachSection) {
  const auto sections = ParseSource(" ORG 1\n" + SourceLines(3, "ABCD") + " ORG 2\n" +
                                    SourceLine("EFGH") + "MNLING:\n");
  EXPECT_THAT(sections.at(1).name_labels, ElementsAre(1));
}

TEST(ParseSource, NotesSdata) {
  EXPECT_TRUE(ParseSource(" .SDATA\n" + SourceLine("ABCD")).at(0).has_sdata);
  EXPECT_FALSE(ParseSource(" .sdata\n" + SourceLine("ABCD")).at(0).has_sdata);
}

TEST(ParseSource, GivesTheWidthOfTheWidestText) {
  EXPECT_EQ(ParseSource(SourceLine("AB") + SourceLine("ABCD")).at(0).width, 4);
}

TEST(ParseSource, StopsAtATextThatIsShorterThanOneBefore) {
  const auto sections = ParseSource(SourceLine("ABCD") + SourceLine("ABC") + SourceLine("EFGH"));
  ASSERT_THAT(sections, SizeIs(1));
  EXPECT_TRUE(sections[0].width_error);
  EXPECT_FALSE(sections[0].ends_file);
  EXPECT_THAT(sections[0].texts, ElementsAre(Codes("ABCD")));
}

// The width is lowered by one when a section is saved, and the next section starts from that.
TEST(ParseSource, LetsTheTextsOfTheNextSectionBeOneCellNarrower) {
  const auto sections =
      ParseSource(" ORG 1\n" + SourceLine("ABCD") + " ORG 2\n" + SourceLine("EFG"));
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_FALSE(sections[1].width_error);
  EXPECT_EQ(sections[1].width, 3);
}

TEST(ParseSource, StopsAtATextOfTheNextSectionThatIsTwoCellsNarrower) {
  const auto sections =
      ParseSource(" ORG 1\n" + SourceLine("ABCD") + " ORG 2\n" + SourceLine("EF"));
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_FALSE(sections[0].width_error);
  EXPECT_TRUE(sections[1].width_error);
}

TEST(ParseSource, TakesTextsOf40Cells) {
  EXPECT_EQ(ParseSource(SourceLine(std::string(40, 'x'))).at(0).width, 40);
}

TEST(ParseSource, TakesTheFirst40CellsOfAWiderText) {
  const auto sections = ParseSource(SourceLine("ABCD") + SourceLine(std::string(40, 'x') + "y") +
                                    SourceLine(std::string(255, 'z')));
  ASSERT_THAT(sections, SizeIs(1));
  EXPECT_THAT(sections[0].texts,
              ElementsAre(Codes("ABCD"), Codes(std::string(40, 'x')), Codes(std::string(40, 'z'))));
  EXPECT_EQ(sections[0].width, 255);
}

TEST(ParseSource, NotesTheLinesWhoseTextsWereCut) {
  const auto sections =
      ParseSource(" ORG 1\n" + SourceLine(std::string(40, 'x')) + SourceLine(std::string(41, 'x')) +
                  SourceLine(std::string(41, 'y')) + " ORG 2\n" + SourceLine(std::string(42, 'z')));
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_THAT(sections[0].cut_lines, ElementsAre(3, 4));
  EXPECT_THAT(sections[1].cut_lines, ElementsAre(6));
}

TEST(ParseSource, ComparesTheWholeWidthsOfTextsThatAreCut) {
  EXPECT_TRUE(ParseSource(SourceLine(std::string(42, 'x')) + SourceLine(std::string(41, 'x')))
                  .at(0)
                  .width_error);
}

TEST(ParseSource, RefusesATextWhoseWidthDoesNotFitAByteNamingItsLine) {
  EXPECT_THAT(ReasonOfRefusal(SourceLine("ABCD") + SourceLine(std::string(256, 'x'))),
              testing::AllOf(HasSubstr("line 2"), HasSubstr("256")));
}

TEST(ParseSource, Takes65535TextsASection) {
  const auto sections =
      ParseSource(" ORG 1\n" + SourceLines(514, "AB") + " ORG 2\n" + SourceLines(65535, "CD"));
  ASSERT_THAT(sections, SizeIs(2));
  EXPECT_THAT(sections[0].texts, SizeIs(514));
  EXPECT_THAT(sections[1].texts, SizeIs(65535));
}

TEST(ParseSource, RefusesAFurtherTextNamingItsLineAndNumber) {
  EXPECT_THAT(ReasonOfRefusal("; first\n" + SourceLines(65536, "AB")),
              testing::AllOf(HasSubstr("line 65537"), HasSubstr("65536")));
}

TEST(ParseSource, RefusesAQuoteAloneNamingItsLine) {
  EXPECT_THAT(ReasonOfRefusal(SourceLine("ABCD") + "; don't\n"), HasSubstr("line 2"));
}

TEST(ParseSource, RefusesASourceWithoutTexts) {
  EXPECT_THAT(ReasonOfRefusal("; nothing\n ORG 1\n"), HasSubstr("line 2"));
  EXPECT_NE(ReasonOfRefusal(""), "not refused");
}

TEST(ParseSource, RefusesALaterSectionWithoutTexts) {
  EXPECT_THAT(
      ReasonOfRefusal(" ORG 1\n" + SourceLine("ABCD") + " ORG 2\n\n ORG 3\n" + SourceLine("EFGH")),
      HasSubstr("line 5"));
}

TEST(ParseSource, ReadsOrRefusesASourceCutAnywhere) {
  const std::string source =
      " ORG 1\n.SDATA\nMNLING DC.B 'AB''CD'\r\n DC.B \"EF\"\"GH\"\n ORG 2\n" + SourceLine("IJKL") +
      " ORG 3\n" + SourceLine("MNOP");
  for (std::size_t length = 0; length <= source.size(); ++length) {
    try {
      EXPECT_THAT(ParseSource(std::string_view(source).substr(0, length)), testing::Not(IsEmpty()));
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), HasSubstr("line "));
    }
  }
}

TEST(ParseSource, ReadsOrRefusesRandomBytes) {
  std::mt19937 random(2);
  constexpr std::string_view kBytes = "'\"'\"AB ORG.SECT\r\n\n\xFE";
  for (int round = 0; round < 2000; ++round) {
    std::string source(random() % 200, ' ');
    for (char& byte : source) {
      byte = kBytes[random() % kBytes.size()];
    }
    try {
      for (const SourceSection& section : ParseSource(source)) {
        EXPECT_GE(section.width, 1);
      }
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), HasSubstr("line "));
    }
  }
}

TEST(ParseSource, RefusesMoreThanAFileOfAllLanguagesCanHold) {
  std::string sections;
  for (int i = 0; i < 128; ++i) {
    sections += SourceLine("A") + " ORG $6000\n";
  }
  EXPECT_THAT(ParseSource(" ORG $6000\n" + sections), SizeIs(128));
  EXPECT_THAT(ReasonOfRefusal(" ORG $6000\n" + sections + SourceLine("A")),
              HasSubstr("at most 128 sections and 131072 texts in all"));
  const std::string many = SourceLines(50'000, "A");
  EXPECT_THAT(ReasonOfRefusal(many + " ORG $1\n ORG $2\n" + many + " ORG $3\n" + many),
              HasSubstr("at most 128 sections and 131072 texts in all"));
}

}  // namespace
}  // namespace vendlingua
