#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;
using test::HexDigits;
using test::InCells;
using test::OpenedFile;
using test::Placeholders;
using test::RandomMes;
using test::RandomMesFiles;

std::string WithoutBlanksAtEnd(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string Utf8(std::string_view bytes) { return ToUtf8(test::Codes(bytes)); }

// The last block may end with its last message: the slots behind it were never written.
std::string MaybeCutAtLastMessage(const RandomMes& file, std::string bytes) {
  if (*rc::gen::arbitrary<bool>()) {
    bytes.resize(file.MessageOffset(file.Languages(), file.layout.last_msg + 1));
  }
  return bytes;
}

// What stands in the file for a language whose messages were edited.
class ExpectedTexts {
 public:
  ExpectedTexts(const RandomMes& file, const std::string& bytes, std::size_t language) {
    for (std::size_t m = 0; m <= file.layout.last_msg; ++m) {
      texts_.push_back(bytes.substr(file.MessageOffset(language, m), file.layout.width));
    }
  }
  ExpectedTexts(std::size_t count, std::size_t width) : texts_(count, std::string(width, ' ')) {}

  void Append() { texts_.emplace_back(texts_.front().size(), ' '); }
  void Apply(const std::vector<test::Edit>& edits) {
    for (const auto& [message, text] : edits) {
      texts_[message] = InCells(text, texts_[message].size());
    }
  }
  std::size_t last() const { return texts_.size() - 1; }
  std::string Joined() const {
    std::string joined;
    for (const std::string& text : texts_) {
      joined += text;
    }
    return joined;
  }

 private:
  std::vector<std::string> texts_;
};

// Display type 3 is stored as 0.
std::string SavedFlags(std::size_t display_type, std::size_t header_bits) {
  return HexDigits(4 * (display_type == 3 ? 0 : display_type) + header_bits, 2);
}

std::size_t FlagsOf(const RandomMes& file) { return std::stoul(file.layout.flags, nullptr, 16); }

RC_GTEST_PROP(MesFileProperty, OpensWithTheDimensionsOfItsHeader, ()) {
  const RandomMes file = *RandomMesFiles(Placeholders::kMany);
  OpenedFile opened("SET.MES", file.Bytes());
  const MessageSet& set = opened.engine.workspace.set;
  RC_ASSERT(set.LangCount == file.layout.lang_count);
  RC_ASSERT(set.Width() == file.layout.width);
  RC_ASSERT(set.LastMsg == file.layout.last_msg);
  RC_ASSERT(HexDigits(set.HeaderCount, 4) == file.layout.header_count);
  RC_ASSERT(HexDigits(set.MemStart, 8) == file.layout.mem_start);
  RC_ASSERT(set.MemLength == file.MemLength());
  RC_ASSERT(set.LangStride == file.layout.stride);
  RC_ASSERT(set.BlockLength == static_cast<float>(file.layout.BlockLength()));
  RC_ASSERT((set.HeaderBit0 != kFalse) == (FlagsOf(file) % 2 == 1));
  RC_ASSERT((set.HeaderBit1 != kFalse) == (FlagsOf(file) / 2 % 2 == 1));
  RC_ASSERT(opened.engine.workspace.set.DisplayType == FlagsOf(file) / 4);
}

RC_GTEST_PROP(MesFileProperty, ReadsEveryNameAndTextAsItStandsInTheFile, ()) {
  const RandomMes file = *RandomMesFiles(Placeholders::kMany);
  const std::string bytes = file.Bytes();
  OpenedFile opened("SET.MES", MaybeCutAtLastMessage(file, bytes));
  Engine& engine = opened.engine;
  for (std::size_t k = 0; k <= file.Languages(); ++k) {
    const std::string name = WithoutBlanksAtEnd(bytes.substr(file.BlockOffset(k), 20));
    RC_ASSERT(engine.workspace.set.language_names.at(k) == Utf8(name));
    engine.languages.ChooseOrigin(static_cast<int>(k));
    for (std::size_t m = 0; m <= file.layout.last_msg; ++m) {
      RC_ASSERT(test::Text(engine.workspace.set.OriginText.at(m).First(file.layout.width)) ==
                bytes.substr(file.MessageOffset(k, m), file.layout.width));
    }
  }
  RC_ASSERT(engine.workspace.set.language_names.size() == file.Languages() + 1);
}

RC_GTEST_PROP(MesFileProperty, SavingALanguageChangesItsMessagesFlagsAndLastMsgOnly, ()) {
  const RandomMes file = *RandomMesFiles(Placeholders::kNone);
  const std::string before = MaybeCutAtLastMessage(file, file.Bytes());
  OpenedFile opened("SET.MES", before);
  Engine& engine = opened.engine;
  const std::size_t language = AnyOf(1, file.Languages());
  ExpectedTexts texts(file, before, language);
  engine.languages.ChooseOrigin(static_cast<int>(AnyOf(0, file.Languages())));
  engine.languages.ChooseDestination(static_cast<int>(language));

  const auto edits = *test::RandomEdits(file.layout.last_msg, file.layout.width);
  test::Apply(engine, edits);
  texts.Apply(edits);
  if (file.layout.last_msg < file.layout.stride && *rc::gen::arbitrary<bool>()) {
    opened.dialogs.yes_no_answers = {MessageAnswer::kYes};
    engine.editing.AddMessage(opened.dialogs);
    texts.Append();
  }
  const std::size_t display_type = AnyOf(0, 3);
  engine.editing.ChooseDisplayType(display_type);
  RC_ASSERT(engine.writer.Save().result == SaveOutcome::kSaved);

  std::string expected = before;
  expected.replace(2, 2, SavedFlags(display_type, FlagsOf(file) % 4));
  expected.replace(8, 4, HexDigits(texts.last(), 4));
  const std::size_t first_message = file.MessageOffset(language, 0);
  expected.resize(std::max(expected.size(), first_message + texts.Joined().size()));
  expected.replace(first_message, texts.Joined().size(), texts.Joined());
  RC_ASSERT(opened.Content() == expected);
}

RC_GTEST_PROP(MesFileProperty, SavingANewLanguageAppendsOneBlockOnly, ()) {
  const RandomMes file = *RandomMesFiles(Placeholders::kNone);
  const std::string before = MaybeCutAtLastMessage(file, file.Bytes());
  OpenedFile opened("SET.MES", before);
  Engine& engine = opened.engine;
  const std::size_t starting_point = AnyOf(0, file.Languages());
  ExpectedTexts texts = starting_point == 0
                            ? ExpectedTexts(file.layout.last_msg + 1, file.layout.width)
                            : ExpectedTexts(file, before, starting_point);
  engine.languages.ChooseOrigin(0);
  engine.languages.StartNewLanguage(static_cast<int>(starting_point));
  const auto edits = *test::RandomEdits(file.layout.last_msg, file.layout.width);
  test::Apply(engine, edits);
  texts.Apply(edits);
  opened.dialogs.input_answers = {"lettone"};
  RC_ASSERT(engine.writer.Save().result == SaveOutcome::kSaved);

  std::string expected = before;
  expected.replace(2, 2, SavedFlags(FlagsOf(file) / 4, FlagsOf(file) % 4));
  expected.resize(file.BlockOffset(file.Languages() + 1), '\0');
  expected += "LETTONE             " + texts.Joined();
  RC_ASSERT(opened.Content() == expected);
}

}  // namespace
}  // namespace vendlingua
