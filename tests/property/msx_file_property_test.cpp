#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <random>

#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;
using test::HexDigits;
using test::InCells;
using test::OpenedFile;

constexpr std::size_t kMessages = 455;
constexpr std::size_t kWidth = 16;
constexpr std::size_t kHead = 10;  // type, count and address of a line

// A file of `languages` languages; made once and cut, for it is large.
std::string FileOf(std::size_t languages) {
  static const std::string kNineLanguages = test::MsxFile(9);
  constexpr std::size_t kHeaderLength = 4 + 38 + 2;
  constexpr std::size_t kLineLength = kHead + 2 * kWidth + 2 + 2;
  return kNineLanguages.substr(0, kHeaderLength + languages * kMessages * kLineLength);
}

std::vector<std::string> LinesOf(const std::string& content) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = 0; (end = content.find("\r\n", start)) != std::string::npos;) {
    lines.push_back(content.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

std::string JoinedLines(const std::vector<std::string>& lines) {
  std::string content;
  for (const std::string& line : lines) {
    content += line + "\r\n";
  }
  return content;
}

// Counts, addresses and checksums of a file are whatever the file says: some of them are random
// here, and some digits are lower-case.
void Disturb(std::vector<std::string>& lines, std::uint32_t seed) {
  std::mt19937 random(seed);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    if (random() % 3 == 0) {
      lines[i].replace(2, 8, HexDigits(random(), 8).substr(0, 8));
      lines[i].replace(42, 2, random() % 2 == 0 ? "00" : "a5");
    }
  }
}

std::string WithFreshData(const std::string& line, const std::string& text) {
  std::size_t sum = 0;
  for (std::size_t i = 2; i < kHead; i += 2) {
    sum += std::stoul(line.substr(i, 2), nullptr, 16);
  }
  for (const char c : text) {
    sum += static_cast<unsigned char>(c);
  }
  return line.substr(0, kHead) + test::HexOf(text) + HexDigits(255 - sum % 256, 2);
}

RC_GTEST_PROP(MsxFileProperty, SavingALanguageChangesDataAndChecksumsOfItsLinesOnly, ()) {
  const std::size_t languages = AnyOf(1, 9);
  std::vector<std::string> lines = LinesOf(FileOf(languages));
  Disturb(lines, *rc::gen::arbitrary<std::uint32_t>());
  OpenedFile opened("SET.MSX", JoinedLines(lines));
  Engine& engine = opened.engine;
  const std::size_t language = AnyOf(1, languages);
  engine.languages.ChooseOrigin(static_cast<int>(AnyOf(0, languages)));
  engine.languages.ChooseDestination(static_cast<int>(language));
  const auto edits = *test::RandomEdits(kMessages - 1, kWidth);
  test::Apply(engine, edits);
  RC_ASSERT(engine.writer.Save().result == SaveOutcome::kSaved);

  std::vector<std::string> texts;
  for (std::size_t m = 0; m < kMessages; ++m) {
    texts.push_back(test::MsxMessage(language, m));
  }
  for (const auto& [message, text] : edits) {
    texts[message] = InCells(text, kWidth);
  }
  for (std::size_t m = 0; m < kMessages; ++m) {
    std::string& line = lines[1 + (language - 1) * kMessages + m];
    line = WithFreshData(line, texts[m]);
  }
  RC_ASSERT(opened.Content() == JoinedLines(lines));
}

RC_GTEST_PROP(MsxFileProperty, SavedTextsAreReadBack, ()) {
  OpenedFile opened("SET.MSX", FileOf(2));
  Engine& engine = opened.engine;
  engine.languages.ChooseOrigin(0);
  engine.languages.ChooseDestination(2);
  const auto edits = *test::RandomEdits(kMessages - 1, kWidth);
  test::Apply(engine, edits);
  RC_ASSERT(engine.writer.Save().result == SaveOutcome::kSaved);
  const auto saved = engine.workspace.set.DestText;

  OpenedFile reopened("COPY.MSX", opened.Content());
  reopened.engine.languages.ChooseOrigin(2);
  for (std::size_t m = 0; m < kMessages; ++m) {
    RC_ASSERT(reopened.engine.workspace.set.OriginText.at(m) == saved.at(m));
  }
}

}  // namespace
}  // namespace vendlingua
