#include "core/formats/source_parser.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "core/document/display_text.h"
#include "core/formats/source_line.h"
#include "core/formats/text_lines.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// A line as it may be quoted in a message: as much of it as a box shows.
std::string Excerpt(std::string_view line) {
  constexpr std::size_t kMostCharacters = 60;
  const bool cut = line.size() > kMostCharacters;
  return ToUtf8(CodesFromBytes(line.substr(0, kMostCharacters))) + (cut ? "..." : "");
}

[[noreturn]] void FailAt(std::size_t line_number, const UiSentence& reason) {
  throw Error(UiTextId::kAtLine, line_number, reason);
}

// Width and number of the texts of a section are counted in a byte and in 16 bits.
constexpr std::size_t kMostCells = std::numeric_limits<std::uint8_t>::max();
constexpr std::size_t kMostTexts = std::numeric_limits<std::uint16_t>::max();

// More than a file of all its languages can have, and little enough to be held.
constexpr std::size_t kMostSections = 128;
constexpr std::size_t kMostTextsOfAll = std::size_t{1} << 17U;

bool Contains(std::string_view line, std::string_view word) {
  return line.find(word) != std::string_view::npos;
}

class SourceParser {
 public:
  explicit SourceParser(std::string_view content) : lines_(content) {}

  std::vector<SourceSection> Parse() {
    while (const auto line = lines_.Next()) {
      if (line->HasLoneCarriageReturn()) {
        FailAt(lines_.count(), UiSentence(UiTextId::kLoneReturn));
      }
      const bool is_directive = Contains(line->text, "ORG") || Contains(line->text, ".SECT");
      if (is_directive && ++directives_ > 1) {
        if (lines_.AtEnd()) {
          break;
        }
        EndSection();
        continue;
      }
      if (!TakeLine(line->text)) {
        section_.width_error = true;
        EndSection();
        return sections_;
      }
    }
    section_.ends_file = true;
    EndSection();
    return sections_;
  }

 private:
  // False when the line's text is shorter than an earlier one.
  bool TakeLine(std::string_view line) {
    if (Contains(line, "MNLING")) {
      section_.name_labels.push_back(static_cast<std::uint16_t>(section_.texts.size()));
    }
    section_.has_sdata = section_.has_sdata || Contains(line, ".SDATA");
    const std::optional<std::string> text = ReadText(line);
    if (!text) {
      return true;
    }
    if (text->size() < width_) {
      return false;
    }
    TakeText(CodesFromBytes(*text));
    return true;
  }

  void TakeText(const DisplayCodes& text) {
    if (text.size() > kMostCells) {
      FailAt(lines_.count(), UiSentence(UiTextId::kTextTooLong, text.size(), kMostCells));
    }
    if (section_.texts.size() == kMostTexts) {
      FailAt(lines_.count(), UiSentence(UiTextId::kTooManyTexts, kMostTexts + 1, kMostTexts));
    }
    if (text.size() > DisplayText::kCells) {
      section_.cut_lines.push_back(lines_.count());
    }
    if (++texts_ > kMostTextsOfAll) {
      FailAsTooLong();
    }
    width_ = static_cast<std::uint8_t>(text.size());
    section_.texts.push_back(FitTo(text, std::min(text.size(), DisplayText::kCells)));
  }

  std::optional<std::string> ReadText(std::string_view line) const {
    try {
      return QuotedText(line);
    } catch (const Error& error) {
      FailAt(lines_.count(), UiSentence(UiTextId::kQuotedLine, error.sentence(), Excerpt(line)));
    }
  }

  void EndSection() {
    if (width_ == 0 || (section_.texts.empty() && !section_.width_error)) {
      FailAt(lines_.count(), UiSentence(UiTextId::kNoQuotedText));
    }
    if (sections_.size() == kMostSections) {
      FailAsTooLong();
    }
    section_.width = width_;
    section_.directives = directives_;
    sections_.push_back(std::move(section_));
    section_ = SourceSection();
    // From here on the width counts as the index of the last column, and the next section starts
    // from that: its texts may be one cell narrower.
    --width_;
  }

  [[noreturn]] void FailAsTooLong() const {
    FailAt(lines_.count(), UiSentence(UiTextId::kSourceTooLong, kMostSections, kMostTextsOfAll));
  }

  TextLines lines_;
  std::size_t texts_ = 0;  // of all sections
  std::size_t directives_ = 0;
  std::uint8_t width_ = 0;
  SourceSection section_;
  std::vector<SourceSection> sections_;
};

}  // namespace

std::vector<SourceSection> ParseSource(std::string_view content) {
  return SourceParser(content).Parse();
}

}  // namespace vendlingua
