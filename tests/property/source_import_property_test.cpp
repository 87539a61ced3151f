#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "core/operations/source_import.h"
#include "core/platform/errors.h"
#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;
using test::HexDigits;

// Quotes and line ends end a text; "O", "M" and "." begin the words that have a meaning.
bool CannotBeQuoted(char c) {
  return std::string_view("'\"\n\rOM.").find(c) != std::string_view::npos;
}

struct MemoryLayout {
  std::size_t languages = 0;
  std::size_t start = 0;
  std::size_t length = 0;
};

using Texts = std::vector<std::string>;

// A firmware source of one or more sections, and what the questions about it are answered.
struct RandomSource {
  std::vector<Texts> sections;
  std::size_t label = 0;  ///< the text that carries "MNLING"; 0 for none
  bool has_sdata = false;
  std::size_t language_message = 0;
  std::vector<MemoryLayout> answers;  ///< for two sections they are asked twice

  std::string Content() const {
    std::string content = has_sdata ? " .SDATA\r\n" : " .DATA\r\n";
    for (const Texts& section : sections) {
      content += " .SECT\r\n";
      for (std::size_t i = 0; i < section.size(); ++i) {
        content += label != 0 && i == label ? "MNLING:\r\n" : "";
        content += " DC.B \"" + section[i] + "\"\r\n";
      }
    }
    return content;
  }
};

void showValue(const RandomSource& source, std::ostream& out) {
  out << source.Content() << "language message " << source.language_message;
  for (const MemoryLayout& answer : source.answers) {
    out << "; " << answer.languages << " languages, memory " << answer.start << " + "
        << answer.length;
  }
}

std::string AnyText(std::size_t width) {
  std::string text =
      test::RandomCells(*rc::gen::arbitrary<std::uint32_t>(), width, test::Placeholders::kMany);
  std::replace_if(text.begin(), text.end(), CannotBeQuoted, '-');
  return text;
}

Texts AnyTexts(std::size_t count, std::size_t width) {
  Texts texts;
  for (std::size_t i = 0; i < count; ++i) {
    texts.push_back(AnyText(width));
  }
  return texts;
}

// Memory for `texts` messages of `width` cells a language, and some more.
MemoryLayout AnyLayout(std::size_t texts, std::size_t width) {
  MemoryLayout layout;
  layout.languages = AnyOf(1, 31);
  layout.start = AnyOf(1, 0xFFFFFFFF);
  layout.length =
      layout.languages * width * AnyOf(texts, texts + 5) + AnyOf(0, layout.languages - 1);
  return layout;
}

// All sections of the same size, all questions answered the same way: as sources should be.
rc::Gen<RandomSource> SoundSources() {
  return rc::gen::exec([] {
    RandomSource source;
    const std::size_t width = AnyOf(1, 40);
    const std::size_t texts = AnyOf(1, 12);
    for (std::size_t sections = AnyOf(1, 4); sections > 0; --sections) {
      source.sections.push_back(AnyTexts(texts, width));
    }
    source.label = AnyOf(0, texts - 1);
    source.has_sdata = *rc::gen::arbitrary<bool>();
    source.language_message = AnyOf(1, texts);
    source.answers.assign(2, AnyLayout(texts, width));
    return source;
  });
}

// Sections that differ in the number and the width of their texts, answers that differ.
rc::Gen<RandomSource> UnevenSources() {
  return rc::gen::exec([] {
    RandomSource source;
    const std::size_t width = AnyOf(2, 6);
    for (std::size_t sections = AnyOf(2, 4); sections > 0; --sections) {
      source.sections.push_back(AnyTexts(AnyOf(1, 4), width + AnyOf(0, 2) - 1));
    }
    source.language_message = 1;
    source.answers = {AnyLayout(4, width), AnyLayout(4, width)};
    if (*rc::gen::arbitrary<bool>()) {
      source.answers[1] = source.answers[0];
    }
    return source;
  });
}

// Imports a source into a new file and opens that file with a fresh program.
class Import {
 public:
  explicit Import(const RandomSource& source) : again_(dialogs_) {
    dialogs_.file_answers = {folder_.Write("SOURCE.MES", source.Content()), message_file_};
    AnswerQuestions(source);
    Engine importing(dialogs_);
    try {
      opened_ = importing.opener.Open() == OpenOutcome::kOpened;
    } catch (const Error&) {
      return;
    }
    if (opened_) {
      RC_ASSERT(dialogs_.input_answers.empty());
      dialogs_.file_answers = {message_file_};
      RC_ASSERT(again_.opener.Open() == OpenOutcome::kOpened);
    }
  }

  bool opened() const { return opened_; }
  bool FileExists() const { return std::filesystem::exists(message_file_); }
  const Workspace& workspace() const { return again_.workspace; }

  // The texts of a language, `width` cells each.
  Texts TextsOf(std::size_t language, std::size_t count, std::size_t width) {
    again_.languages.ChooseOrigin(static_cast<int>(language));
    Texts texts;
    for (std::size_t m = 0; m < count; ++m) {
      texts.push_back(test::Text(again_.workspace.set.OriginText.at(m).First(width)));
    }
    return texts;
  }

 private:
  void AnswerQuestions(const RandomSource& source) {
    auto& answers = dialogs_.input_answers;
    for (std::size_t s = 0; s < source.sections.size(); ++s) {
      if (s == 0 || (s == 1 && source.sections.size() == 2)) {
        const MemoryLayout& layout = source.answers.at(s);
        answers.push_back(std::to_string(layout.languages));
        if (source.label == 0 && s == 0) {
          answers.push_back(std::to_string(source.language_message));
        }
        answers.push_back("&H" + HexDigits(layout.start, 1));
        answers.push_back(std::to_string(layout.length));
      }
      answers.push_back("lang " + std::to_string(s + 1));
    }
  }

  test::TemporaryFolder folder_;
  std::filesystem::path message_file_ = folder_ / "NEW.MES";
  test::ScriptedDialogs dialogs_;
  Engine again_;
  bool opened_ = false;
};

RC_GTEST_PROP(SourceImportProperty, ASoundSourceIsReadBackFromTheFileMadeOfIt, ()) {
  const RandomSource source = *SoundSources();
  const Texts& first = source.sections.front();
  const std::size_t width = first.front().size();
  Import import(source);
  RC_ASSERT(import.opened());
  const MessageSet& set = import.workspace().set;
  RC_ASSERT(set.LangCount == source.answers[0].languages);
  RC_ASSERT(set.Width() == width);
  RC_ASSERT(set.MessageCount() == first.size());
  RC_ASSERT(set.HeaderCount == (source.label != 0 ? source.label : source.language_message));
  RC_ASSERT((set.HeaderBit0 != kFalse) == (source.label != 0));
  RC_ASSERT((set.HeaderBit1 != kFalse) == source.has_sdata);
  RC_ASSERT(set.MemStart == source.answers[0].start);
  RC_ASSERT(set.MemLength == source.answers[0].length);
  const auto& names = import.workspace().set.language_names;
  RC_ASSERT(names.at(0) == "Default");
  RC_ASSERT(import.TextsOf(0, first.size(), width) == first);
  for (std::size_t k = 1; k <= source.sections.size(); ++k) {
    RC_ASSERT(names.at(k) == "LANG " + std::to_string(k));
    RC_ASSERT(import.TextsOf(k, first.size(), width) == source.sections[k - 1]);
  }
}

RC_GTEST_PROP(SourceImportProperty, AnUnevenSourceIsRefusedOrReadBackWhole, ()) {
  const RandomSource source = *UnevenSources();
  Import import(source);
  if (!import.opened()) {
    RC_SUCCEED("refused");
  }
  const std::size_t width = import.workspace().set.Width();
  for (std::size_t s = 0; s < source.sections.size(); ++s) {
    Texts expected = source.sections[s];
    // Fewer messages in a later section hide those behind them.
    expected.resize(std::min(expected.size(), import.workspace().set.MessageCount()));
    RC_ASSERT(import.TextsOf(s + 1, expected.size(), width) == expected);
  }
}

RC_GTEST_PROP(SourceImportProperty, ARefusedSourceOfOneSectionLeavesNoFile, ()) {
  RandomSource source;
  source.sections = {AnyTexts(AnyOf(1, 4), AnyOf(1, 40))};
  source.language_message = 1;
  source.answers = {{AnyOf(1, 31), 0x6000, AnyOf(1, 0x20000)}};
  const Import import(source);
  RC_CLASSIFY(import.opened(), "opened");
  RC_ASSERT(import.opened() == import.FileExists());
}

}  // namespace
}  // namespace vendlingua
