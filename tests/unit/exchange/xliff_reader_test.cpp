#include "core/exchange/xliff_reader.h"

#include <gmock/gmock.h>

#include "xliff_test_units.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using test::Unit;
using test::Xliff;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kPlaceholder1 = "<x id=\"1\" equiv-text=\"þ\"/>";
constexpr const char* kPlaceholder2 = "<x id=\"2\" equiv-text=\"þþ\"/>";

TableReading ReadUnits(const std::string& content) {
  return ReadXliff(content, DetectEncoding(content));
}

// The only problem.
TableProblem Problem(const std::string& content) {
  const TableReading reading = ReadUnits(content);
  EXPECT_THAT(reading.problems.listed(), SizeIs(1)) << content;
  return reading.problems.empty() ? TableProblem{} : reading.problems.listed().front();
}

std::vector<std::string> TextsOf(const TableReading& reading) {
  EXPECT_TRUE(reading.problems.empty());
  std::vector<std::string> texts;
  for (const TranslationRow& row : reading.table.rows) {
    texts.push_back(std::to_string(row.message) + "=" + FlatText(row.text));
  }
  return texts;
}

TEST(ReadXliff, TakesMessageSourceAndTarget) {
  const TableReading reading = ReadUnits(Xliff(Unit("7", "Credito " + std::string(kPlaceholder1),
                                                    std::string(" Credit") + kPlaceholder1 + " ")));
  ASSERT_THAT(reading.table.rows, SizeIs(1));
  const TranslationRow& row = reading.table.rows.front();
  EXPECT_EQ(row.place, 1U);
  EXPECT_EQ(row.message, 7U);
  EXPECT_THAT(row.origin, ElementsAre(TextRun{"Credito "}, TextRun{"þ", true}));
  EXPECT_THAT(row.text, ElementsAre(TextRun{" Credit"}, TextRun{"þ", true}, TextRun{" "}));
}

TEST(ReadXliff, KeepsBlanksAloneBetweenPlaceholders) {
  const std::string text = std::string(kPlaceholder1) + " " + kPlaceholder2;
  EXPECT_THAT(ReadUnits(Xliff(Unit("7", text, text))).table.rows.front().text,
              ElementsAre(TextRun{"þ", true}, TextRun{" "}, TextRun{"þþ", true}));
}

TEST(ReadXliff, TakesReferencesAndCharacterData) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(Unit("7", "", "a &lt;&#x41F;<![CDATA[&<b>]]>")))),
              ElementsAre("7=a <П&<b>"));
}

TEST(ReadXliff, PassesOverTheSegmentsThatToolsMark) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(Unit(
                  "7", "", "<mrk mtype=\"seg\" mid=\"0\">a<mrk mtype=\"x-m\">b</mrk></mrk> c")))),
              ElementsAre("7=ab c"));
}

TEST(ReadXliff, FindsUnitsInGroupsFilesAndUnderPrefixes) {
  EXPECT_THAT(TextsOf(ReadUnits(
                  "<a:xliff xmlns:a=\"urn:x\" version=\"1.1\"><a:file><a:body><a:group><a:group>"
                  "<a:trans-unit id=\"1\"><a:source/><a:target>x</a:target></a:trans-unit>"
                  "</a:group></a:group></a:body></a:file><a:file><a:body>"
                  "<a:trans-unit id=\"2\"><a:source/><a:target>y</a:target></a:trans-unit>"
                  "</a:body></a:file></a:xliff>")),
              ElementsAre("1=x", "2=y"));
}

TEST(ReadXliff, LeavesOutWhatIsNotTranslated) {
  EXPECT_THAT(
      TextsOf(ReadUnits(Xliff("<trans-unit id=\"1\"><source>a</source></trans-unit>"
                              "<trans-unit id=\"2\"><source>a</source><target/></trans-unit>"
                              "<trans-unit id=\"3\"><source>a</source>"
                              "<target state=\"needs-translation\"></target></trans-unit>"
                              "<trans-unit id=\"4\"><source>a</source>"
                              "<target state=\"translated\"/></trans-unit>"
                              "<trans-unit id=\"5\"><source>a</source>"
                              "<target state=\"needs-translation\">b</target></trans-unit>"))),
      ElementsAre("4=", "5=b"));
}

TEST(ReadXliff, PassesOverOtherTranslationsOfAUnit) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff("<trans-unit id=\"1\"><source>a</source><target>b</target>"
                                      "<alt-trans><target>c</target></alt-trans></trans-unit>"))),
              ElementsAre("1=b"));
}

TEST(ReadXliff, GoesByTheNameOfAUnitBeforeItsId) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff("<trans-unit id=\"1\" resname=\"8\"><source>a</source>"
                                      "<target>b</target></trans-unit>"))),
              ElementsAre("8=b"));
}

// As po2xliff makes them.
std::string PoUnit(const std::string& id, const std::string& groups, const std::string& target) {
  return "<trans-unit id=\"" + id + "\"><source>a</source><target>" + target + "</target>" +
         groups + "</trans-unit>";
}

std::string Reference(const std::string& message) {
  return "<context-group name=\"po-reference\" purpose=\"location\"><context "
         "context-type=\"sourcefile\">" +
         message + "</context></context-group>";
}

TEST(ReadXliff, GoesByTheReferencesOfAPoFileBeforeIds) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff("<trans-unit id=\"2\" restype=\"x-gettext-domain-header\">"
                                      "<source>h</source><target>h</target></trans-unit>" +
                                      PoUnit("3", Reference("0"), "b") +
                                      PoUnit("4", Reference("7") + Reference("9"), "c")))),
              ElementsAre("0=b", "7=c", "9=c"));
}

TEST(ReadXliff, TakesTheUnitsOfAPoFileInsteadOfItsTemplates) {
  EXPECT_THAT(
      TextsOf(ReadUnits("<xliff version=\"1.2\"><file datatype=\"plaintext\"><body>" +
                        Unit("0", "a", "old") + "</body></file><file datatype=\"po\"><body>" +
                        PoUnit("9", Reference("0"), "new") + "</body></file></xliff>")),
      ElementsAre("0=new"));
}

TEST(ReadXliff, TakesTheSizeOfAPlaceholderFromTheSource) {
  const TableReading reading =
      ReadUnits(Xliff(Unit("7", std::string("a") + kPlaceholder2, "b<x id=\"2\"/>")));
  EXPECT_THAT(reading.table.rows.front().text, ElementsAre(TextRun{"b"}, TextRun{"þþ", true}));
}

TEST(ReadXliff, RefusesOtherPlaceholdersThanTheSourceHas) {
  const std::string source = std::string("a") + kPlaceholder1 + kPlaceholder2;
  for (const std::string& target :
       {std::string(kPlaceholder2) + kPlaceholder1, std::string(kPlaceholder1),
        source + kPlaceholder2, std::string("<x id=\"3\"/><x id=\"4\"/>")}) {
    const TableProblem problem = Problem(Xliff(Unit("7", source, target)));
    EXPECT_EQ(problem.kind, Kind::kOtherPlaceholders) << target;
    EXPECT_EQ(problem.message, "7");
    EXPECT_EQ(problem.place, 1U);
  }
}

TEST(ReadXliff, TakesATargetThatLostAllPlaceholders) {
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(Unit("7", std::string("a") + kPlaceholder1, "b")))),
              ElementsAre("7=b"));
}

TEST(ReadXliff, RefusesWhatNoTextCanHold) {
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a<b>c</b>"))).kind, Kind::kUnknownElement);
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a<g id=\"1\">c</g>"))).text, "g");
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a&foo;"))).kind, Kind::kUnknownEntity);
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a&#0;b"))).text, "&#0;");
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a\nb"))).kind, Kind::kControlCharacter);
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "a&#9;b"))).kind, Kind::kControlCharacter);
}

TEST(ReadXliff, RefusesUnitsOfNoMessageAndSecondOnes) {
  EXPECT_EQ(Problem(Xliff(Unit("x", "", "a"))).kind, Kind::kNoSuchMessage);
  EXPECT_EQ(Problem(Xliff("<trans-unit><target>a</target></trans-unit>")).kind,
            Kind::kNoSuchMessage);
  const TableProblem twice = Problem(Xliff(Unit("7", "", "a") + Unit("7", "", "a")));
  EXPECT_EQ(twice.kind, Kind::kRepeated);
  EXPECT_EQ(twice.place, 2U);
}

TEST(ReadXliff, NamesTheLineThatIsNoXml) {
  const TableProblem problem = Problem("<xliff version=\"1.2\">\n<file>\n</xliff>\n");
  EXPECT_EQ(problem.kind, Kind::kBadXml);
  EXPECT_EQ(problem.number, 3U);
  EXPECT_THAT(problem.text, ::testing::Not(IsEmpty()));
}

TEST(ReadXliff, RefusesADocumentType) {
  EXPECT_EQ(Problem("<!DOCTYPE xliff [<!ENTITY a \"b\">]>" + Unit("7", "", "a")).kind,
            Kind::kDocumentType);
}

TEST(ReadXliff, RefusesOtherDocuments) {
  EXPECT_EQ(Problem("<html/>").kind, Kind::kNoXliff);
  EXPECT_EQ(Problem("<html/>").text, "html");
  EXPECT_EQ(Problem(Xliff("", "2.0")).kind, Kind::kOtherXliffVersion);
  EXPECT_EQ(Problem("<xliff/>").kind, Kind::kOtherXliffVersion);
}

TEST(ReadXliff, TakesWindows1252WhereItIsDeclared) {
  const std::string xml = "<xliff version=\"1.2\">" + Unit("7", "", "\xE8") + "</xliff>";
  for (const std::string encoding : {"windows-1252", "ISO-8859-1"}) {
    EXPECT_THAT(TextsOf(ReadUnits("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + xml)),
                ElementsAre("7=è"));
  }
  EXPECT_EQ(Problem(xml).kind, Kind::kOtherEncoding);
  const TableProblem problem = Problem("<?xml version=\"1.0\" encoding=\"windows-1251\"?>" + xml);
  EXPECT_EQ(problem.kind, Kind::kOtherEncoding);
  EXPECT_EQ(problem.text, "windows-1251");
}

TEST(ReadXliff, TakesUtf16) {
  std::string content = "\xFE\xFF";
  for (const char c : Xliff(Unit("7", "", "a"))) {
    content += '\0';
    content += c;
  }
  EXPECT_THAT(TextsOf(ReadUnits(content)), ElementsAre("7=a"));
}

std::string ManyTimes(std::size_t times, const std::string& piece) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) {
    text += piece;
  }
  return text;
}

TEST(ReadXliff, StandsManyElementsAndDeepNesting) {
  EXPECT_EQ(Problem(Xliff(ManyTimes(300'000, "<a/>"))).kind, Kind::kTooMuchMarkup);
  const TableReading many = ReadUnits(Xliff(ManyTimes(70'000, "<trans-unit/>")));
  EXPECT_THAT(many.problems.listed(), IsEmpty());
  EXPECT_THAT(many.table.rows, IsEmpty());
  constexpr std::size_t kDepth = 60'000;
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(ManyTimes(kDepth, "<group>") + Unit("7", "", "a") +
                                      ManyTimes(kDepth, "</group>")))),
              ElementsAre("7=a"));
}

// The parser takes 64 bytes for a piece of markup; texts between tags and attributes count, too.
TEST(ReadXliff, AllowsMarkupInProportionToTheFile) {
  const std::string markup = ManyTimes(100'000, "<a/>");
  EXPECT_EQ(Problem(Xliff(markup)).kind, Kind::kTooMuchMarkup);
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(markup + std::string(4'000'000, ' ') + Unit("7", "", "a")))),
              ElementsAre("7=a"));
  EXPECT_EQ(Problem(Xliff(ManyTimes(80'000, "<a/> "))).kind, Kind::kTooMuchMarkup);
  EXPECT_EQ(Problem(Xliff(ManyTimes(80'000, "<a b=\"\"/>"))).kind, Kind::kTooMuchMarkup);
}

TEST(ReadXliff, RefusesTextsThatNoMessageNeeds) {
  const std::string longest(4096, 'a');
  EXPECT_THAT(TextsOf(ReadUnits(Xliff(Unit("7", "", longest)))), ElementsAre("7=" + longest));
  const TableProblem problem = Problem(Xliff(Unit("7", "", longest + "b")));
  EXPECT_EQ(problem.kind, Kind::kFieldTooLong);
  EXPECT_EQ(problem.limit, longest.size());
  EXPECT_EQ(Problem(Xliff(Unit("7", longest + "b", ""))).kind, Kind::kFieldTooLong);
  EXPECT_EQ(Problem(Xliff(Unit("7", "", "<![CDATA[" + longest + "b]]>"))).kind,
            Kind::kFieldTooLong);
  EXPECT_EQ(Problem(Xliff(Unit("7", "", ManyTimes(4097, "<mrk/>")))).kind, Kind::kFieldTooLong);
}

// One text that thousands of messages refer to would be held as often.
TEST(ReadXliff, RefusesMoreTextsThanAnyMessageFileHas) {
  std::string references;
  for (int message = 0; message < 4000; ++message) {
    references += "<context-group name=\"po-reference\"><context>" + std::to_string(message) +
                  "</context></context-group>";
  }
  const TableReading reading = ReadUnits(Xliff("<trans-unit>" + references + "<target>" +
                                               std::string(4000, 'a') + "</target></trans-unit>"));
  ASSERT_FALSE(reading.problems.empty());
  EXPECT_EQ(reading.problems.listed().front().kind, Kind::kTableTooLong);
  EXPECT_LT(reading.table.rows.size(), 3100U);
}

TEST(ReadXliff, TellsTheLineOfAFaultInAnyEncoding) {
  const std::string text = Xliff("<a>\r\n&amp;\r\n</b>");
  EXPECT_EQ(Problem(text).number, 4U);
  std::string utf16 = "\xFF\xFE";
  for (const char c : text) {
    utf16 += c;
    utf16 += '\0';
  }
  EXPECT_EQ(Problem(utf16).number, 4U);
}

}  // namespace
}  // namespace vendlingua
