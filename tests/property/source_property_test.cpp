#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <stdexcept>

#include "core/document/message_set.h"
#include "core/formats/source_line.h"
#include "core/formats/source_parser.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

struct CannotBeRead : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The reading of one line as it is told, step by step, with positions counted from 1 and strings
// cut from the left and from the right.
std::optional<std::string> TextByTheSteps(const std::string& source_line) {
  const auto left = [](const std::string& s, std::int64_t n) {
    return s.substr(0, static_cast<std::size_t>(n));
  };
  const auto right = [](const std::string& s, std::int64_t n) {
    if (n < 0) {
      throw CannotBeRead("negative length");
    }
    return s.substr(s.size() - std::min(s.size(), static_cast<std::size_t>(n)));
  };
  const auto positions = [&source_line](char quote) {
    std::vector<std::int64_t> table(68, 0);
    std::size_t k = 1;
    for (std::size_t i = 0; i < source_line.size() && k <= 67; ++i) {
      if (source_line[i] == quote) {
        table[k++] = static_cast<std::int64_t>(i) + 1;
      }
    }
    return table;
  };
  const std::vector<std::int64_t> single = positions('\'');
  const std::vector<std::int64_t> twofold = positions('"');
  std::string line = source_line;
  std::int64_t first = 255;
  std::int64_t last = 0;
  std::int64_t adjustment = 0;
  for (std::size_t k = 1; k <= 67; ++k) {
    const auto length = static_cast<std::int64_t>(line.size());
    first = single[k] != 0 && single[k] < first ? single[k] : first;
    first = twofold[k] != 0 && twofold[k] < first ? twofold[k] : first;
    last = std::max({last, single[k], twofold[k]});
    if (single[k] != 0 && single[k - 1] == single[k] - 1) {
      adjustment = 1;
      if (single[k] < length - 1) {
        line = left(line, single[k - 1]) + right(line, length - 1 - single[k - 1]);
      }
    }
    if (twofold[k] != 0 && twofold[k - 1] == twofold[k] - 1) {
      adjustment = 1;
      const auto now = static_cast<std::int64_t>(line.size());
      line = left(line, single[k - 1]) + right(line, now - 1 - single[k - 1]);
    }
  }
  if (first == 255) {
    return std::nullopt;
  }
  const std::int64_t text_length = last - adjustment - first - 1;
  if (text_length < 0) {
    throw CannotBeRead("negative length");
  }
  return left(
      right(line, std::max(static_cast<std::int64_t>(line.size()) - first, std::int64_t{0})),
      text_length);
}

// Mostly quotes; long ones pass column 255 and the 67th quote.
rc::Gen<std::string> RandomLines() {
  return rc::gen::mapcat(rc::gen::element(1.0, 1.0, 10.0), [](double stretch) {
    return rc::gen::scale(stretch, rc::gen::container<std::string>(
                                       rc::gen::elementOf(std::string("''''\"\"\"\"AB \xFE"))));
  });
}

std::string Concatenated(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) {
    text += part;
  }
  return text;
}

// Lines as sources have them, and some that have gone wrong.
rc::Gen<std::string> RandomSourceLines() {
  using Lines = std::vector<std::string>;
  const auto words =
      rc::gen::elementOf(Lines{"'", "\"", "''", "\"\"", "'AB'", " DC.B ", "ORG", ".SECT", "MNLING",
                               ".SDATA", "\r", "'" + std::string(41, 'x') + "'"});
  return rc::gen::weightedOneOf<std::string>(
      {{6, rc::gen::elementOf(Lines{" DC.B 'A'", " DC.B \"AB\"", " DC.B '\"", " DC.B 'A''B'"})},
       {2,
        rc::gen::elementOf(Lines{" ORG $6000", " .SECT text", "MNLING:", " .SDATA", "; no text"})},
       {1, rc::gen::map(rc::gen::resize(4, rc::gen::container<Lines>(words)), Concatenated)}});
}

rc::Gen<std::string> RandomSources() {
  return rc::gen::map(
      rc::gen::container<std::vector<std::string>>(
          rc::gen::map(RandomSourceLines(), [](const std::string& line) { return line + "\n"; })),
      Concatenated);
}

RC_GTEST_PROP(QuotedTextProperty, AnyLineIsReadByTheStepsOrRefused, ()) {
  const std::string line = *RandomLines();
  std::optional<std::string> expected;
  bool refused = false;
  try {
    expected = TextByTheSteps(line);
  } catch (const CannotBeRead&) {
    refused = true;
  }
  RC_CLASSIFY(refused, "refused");
  RC_CLASSIFY(expected.has_value(), "text");
  if (refused) {
    RC_ASSERT_THROWS_AS(QuotedText(line), Error);
  } else {
    RC_ASSERT(QuotedText(line) == expected);
  }
}

RC_GTEST_PROP(QuotedTextProperty, AnyBytesAreReadOrRefused, (const std::string& line)) {
  try {
    const auto text = QuotedText(line);
    RC_ASSERT((!text || text->size() < line.size()));
  } catch (const Error&) {
    RC_SUCCEED("refused");
  }
}

// Splits a source by the rules, one after the other; throws CannotBeRead where it must be refused.
std::vector<SourceSection> SectionsByTheRules(std::string source) {
  std::vector<SourceSection> sections(1);
  std::size_t directives = 0;
  std::size_t widest = 0;
  std::size_t number = 0;
  const auto end_section = [&] {
    SourceSection& section = sections.back();
    if (section.texts.empty() && !section.width_error) {
      throw CannotBeRead("no text");
    }
    if (widest == 0) {
      throw CannotBeRead("no width");
    }
    section.width = static_cast<std::uint8_t>(widest--);
    section.directives = directives;
  };
  while (!source.empty()) {
    const std::size_t end = std::min(source.find('\n'), source.size() - 1) + 1;
    std::string line = source.substr(0, end);
    source.erase(0, end);
    ++number;
    line.resize(line.size() - (line.ends_with("\r\n") ? 2 : line.ends_with('\n') ? 1 : 0));
    const auto holds = [&line](const char* word) { return line.find(word) != std::string::npos; };
    if (holds("\r")) {
      throw CannotBeRead("lone carriage return");
    }
    if ((holds("ORG") || holds(".SECT")) && ++directives > 1) {
      if (source.empty()) {
        break;
      }
      end_section();
      sections.emplace_back();
      continue;
    }
    SourceSection& section = sections.back();
    if (holds("MNLING")) {
      section.name_labels.push_back(static_cast<std::uint16_t>(section.texts.size()));
    }
    section.has_sdata = section.has_sdata || holds(".SDATA");
    const auto text = TextByTheSteps(line);
    if (!text) {
      continue;
    }
    if (text->size() < widest) {
      section.width_error = true;
      end_section();
      return sections;
    }
    widest = text->size();
    if (widest > 255) {
      throw CannotBeRead("too wide");
    }
    section.texts.push_back(CodesFromBytes(text->substr(0, 40)));
    if (widest > 40) {
      section.cut_lines.push_back(number);
    }
  }
  end_section();
  sections.back().ends_file = true;
  return sections;
}

RC_GTEST_PROP(ParseSourceProperty, AnySourceIsSplitByTheRulesOrRefused, ()) {
  const std::string source = *RandomSources();
  std::vector<SourceSection> expected;
  try {
    expected = SectionsByTheRules(source);
  } catch (const CannotBeRead&) {
    RC_ASSERT_THROWS_AS(ParseSource(source), Error);
    RC_SUCCEED("refused");
  }
  const std::vector<SourceSection> sections = ParseSource(source);
  RC_ASSERT(sections.size() == expected.size());
  for (std::size_t s = 0; s < sections.size(); ++s) {
    RC_ASSERT(sections[s].texts == expected[s].texts);
    RC_ASSERT(sections[s].cut_lines == expected[s].cut_lines);
    RC_ASSERT(sections[s].name_labels == expected[s].name_labels);
    RC_ASSERT(sections[s].has_sdata == expected[s].has_sdata);
    RC_ASSERT(sections[s].width == expected[s].width);
    RC_ASSERT(sections[s].directives == expected[s].directives);
    RC_ASSERT(sections[s].ends_file == expected[s].ends_file);
    RC_ASSERT(sections[s].width_error == expected[s].width_error);
  }
}

RC_GTEST_PROP(ParseSourceProperty, AnyBytesAreReadOrRefused, (const std::string& source)) {
  try {
    RC_ASSERT(!ParseSource(source).empty());
  } catch (const Error&) {
    RC_SUCCEED("refused");
  }
}

}  // namespace
}  // namespace vendlingua
