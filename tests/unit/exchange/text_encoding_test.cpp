#include "core/exchange/text_encoding.h"

#include <gmock/gmock.h>

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using namespace std::string_view_literals;

std::optional<Kind> KindOf(const std::optional<TableProblem>& problem) {
  return problem ? std::optional(problem->kind) : std::nullopt;
}

struct Decoded {
  std::string text;
  std::optional<Kind> problem;
};

Decoded Decode(std::string_view content) {
  const DetectedEncoding detected = DetectEncoding(content);
  if (detected.problem) {
    return {{}, KindOf(detected.problem)};
  }
  Utf8Pieces pieces(content, detected);
  Decoded decoded;
  while (const auto piece = pieces.Next()) {
    decoded.text += *piece;
  }
  decoded.problem = KindOf(pieces.problem());
  return decoded;
}

TEST(TextEncoding, IsUtf8WithAndWithoutMark) {
  EXPECT_EQ(Decode("Caffè").text, "Caffè");
  EXPECT_EQ(Decode("\xEF\xBB\xBF"
                   "Caffè")
                .text,
            "Caffè");
  EXPECT_EQ(Decode("").text, "");
}

TEST(TextEncoding, IsUtf16OfBothOrders) {
  EXPECT_EQ(Decode("\xFF\xFE"
                   "a\0\xE8\0\x1F\x04"sv)
                .text,
            "aèП");
  EXPECT_EQ(Decode("\xFE\xFF"
                   "\0a\0\xE8\x04\x1F"sv)
                .text,
            "aèП");
  EXPECT_EQ(Decode("\xFF\xFE"
                   "\x3D\xD8\x00\xDE"sv)
                .text,
            "\U0001F600");
}

TEST(TextEncoding, IsWindows1252WhereItHoldsNoUtf8) {
  EXPECT_EQ(Decode("Caff\xE8,\x80\r\n").text, "Caffè,€\r\n");
  EXPECT_EQ(Decode("Caff\xE8 \xE8\r\n").text, "Caffè è\r\n");
}

TEST(TextEncoding, OfADamagedUtf8FileIsNotTakenForWindows1252) {
  const DetectedEncoding detected = DetectEncoding("a\nCaffè\nCaff\xE8\n");
  ASSERT_TRUE(detected.problem);
  EXPECT_EQ(detected.problem->kind, Kind::kMalformedUtf8);
  EXPECT_EQ(detected.problem->number, 3U);
  EXPECT_EQ(Decode("Caff\xE8\nCaffè\n").problem, Kind::kMalformedUtf8);
  EXPECT_EQ(Decode("\xEF\xBB\xBF"
                   "Caff\xE8\n")
                .problem,
            Kind::kMalformedUtf8);
}

TEST(TextEncoding, OfAFileThatEndsInsideACharacterIsNotTakenForWindows1252) {
  EXPECT_EQ(Decode("Caff\xC3").problem, Kind::kCutUtf8);
  EXPECT_EQ(Decode("60\xE2\x82").problem, Kind::kCutUtf8);
}

TEST(TextEncoding, OfAFileWithAByte0IsNone) {
  EXPECT_EQ(Decode("a\0b"sv).problem, Kind::kNotText);
  EXPECT_EQ(Decode("\xFF\xFE"
                   "a\0\0\0"sv)
                .problem,
            Kind::kNotText);
}

TEST(TextEncoding, OfMalformedUtf16IsTold) {
  EXPECT_EQ(Decode("\xFF\xFE"
                   "a\0b"sv)
                .problem,
            Kind::kMalformedUtf16);
  EXPECT_EQ(Decode("\xFF\xFE"
                   "\x3D\xD8"
                   "a\0"sv)
                .problem,
            Kind::kMalformedUtf16);
  EXPECT_EQ(Decode("\xFF\xFE"
                   "\x3D\xD8"sv)
                .problem,
            Kind::kMalformedUtf16);
  EXPECT_EQ(Decode("\xFF\xFE"
                   "\x00\xDE"sv)
                .problem,
            Kind::kMalformedUtf16);
}

std::string Repeated(std::size_t times, std::string_view piece) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) {
    text += piece;
  }
  return text;
}

TEST(TextEncoding, OfLargeFilesIsConvertedWithoutLossBetweenPieces) {
  constexpr std::size_t kTimes = 100'000;
  EXPECT_EQ(Decode(Repeated(kTimes, "\xE8 ")).text, Repeated(kTimes, "è "));
  // An odd number of units before pairs, so that a piece would end inside one.
  const std::string mark_and_letter(
      "\xFF\xFE"
      "a\0",
      4);
  const std::string pair("\x3D\xD8\x00\xDE", 4);
  EXPECT_EQ(Decode(mark_and_letter + Repeated(kTimes, pair)).text,
            "a" + Repeated(kTimes, "\U0001F600"));
}

}  // namespace
}  // namespace vendlingua
