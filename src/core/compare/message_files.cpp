#include "core/compare/message_files.h"

#include <algorithm>
#include <utility>

#include "core/compare/most_differences.h"
#include "core/formats/message_texts.h"

namespace vendlingua {
namespace {

std::vector<std::pair<std::string_view, FieldValue>> FieldsOf(const MessageSet& set) {
  return {{"type", set.CurrentFileType},
          {"langCount", std::uint32_t{set.LangCount}},
          {"lastCol", std::uint32_t{set.LastCol}},
          {"headerBit1", set.HeaderBit1 != kFalse},
          {"headerBit0", set.HeaderBit0 != kFalse},
          {"displayType", static_cast<std::uint32_t>(set.DisplayType)},
          {"headerCount", std::uint32_t{set.HeaderCount}},
          {"lastMsg", std::uint32_t{set.LastMsg}},
          {"memStart", set.MemStart},
          {"memLength", set.MemLength}};
}

std::vector<FieldDifference> CompareHeaders(const MessageSet& a, const MessageSet& b) {
  std::vector<FieldDifference> differences;
  const auto fields_a = FieldsOf(a);
  const auto fields_b = FieldsOf(b);
  for (std::size_t i = 0; i < fields_a.size(); ++i) {
    if (fields_a[i].second != fields_b[i].second) {
      differences.push_back({fields_a[i].first, fields_a[i].second, fields_b[i].second});
    }
  }
  return differences;
}

// The languages of two files that belong together.
class LanguagePairs {
 public:
  LanguagePairs(const std::vector<std::string>& a, const std::vector<std::string>& b)
      : a_(a), b_(b), partner_(a.size()), is_taken_(b.size()) {
    Join(0, 0);
    PairWhere([this](std::size_t i, std::size_t j) { return i == j && a_[i] == b_[j]; });
    PairWhere([this](std::size_t i, std::size_t j) { return a_[i] == b_[j]; });
    PairWhere([](std::size_t i, std::size_t j) { return i == j; });
  }

  const std::vector<std::optional<std::size_t>>& partners() const { return partner_; }
  bool IsTaken(std::size_t b) const { return is_taken_[b]; }

 private:
  void Join(std::size_t i, std::size_t j) {
    partner_[i] = j;
    is_taken_[j] = true;
  }

  template <typename Condition>
  void PairWhere(const Condition& belong_together) {
    for (std::size_t i = 0; i < a_.size(); ++i) {
      for (std::size_t j = 0; j < b_.size() && !partner_[i]; ++j) {
        if (!is_taken_[j] && belong_together(i, j)) {
          Join(i, j);
        }
      }
    }
  }

  const std::vector<std::string>& a_;
  const std::vector<std::string>& b_;
  std::vector<std::optional<std::size_t>> partner_;
  std::vector<bool> is_taken_;
};

void CompareNames(const MessageSet& a, const MessageSet& b, const LanguagePairs& pairs,
                  MessageFileComparison& comparison) {
  for (std::size_t i = 0; i < a.language_names.size(); ++i) {
    const std::string& name = a.language_names[i];
    const auto number = static_cast<int>(i);
    const auto& partner = pairs.partners()[i];
    if (!partner) {
      comparison.removed.push_back({number, name});
    } else if (b.language_names[*partner] != name) {
      comparison.renamed.push_back({number, name, b.language_names[*partner]});
    } else if (*partner != i) {
      comparison.moved.push_back({name, number, static_cast<int>(*partner)});
    }
  }
  for (std::size_t j = 0; j < b.language_names.size(); ++j) {
    if (!pairs.IsTaken(j)) {
      comparison.added.push_back({static_cast<int>(j), b.language_names[j]});
    }
  }
}

// The messages of one language, all cells of them.
class Messages {
 public:
  Messages(const MessageSet& set, int language)
      : width_(set.Width()),
        count_(set.MessageCount()),
        cells_(CellsOf(set, set.file_content, language)) {}

  void BlankPlaceholders() { std::replace(cells_.begin(), cells_.end(), kPlaceholder, kBlank); }

  std::size_t count() const { return count_; }

  bool operator==(const Messages&) const = default;

  // Nothing behind the last one.
  std::optional<std::span<const DisplayCode>> At(std::size_t message) const {
    return message < count_ ? std::optional(std::span(cells_).subspan(message * width_, width_))
                            : std::nullopt;
  }

 private:
  std::size_t width_;
  std::size_t count_;
  DisplayCodes cells_;
};

using CellsOrNothing = std::optional<std::span<const DisplayCode>>;

bool ReadTheSame(const CellsOrNothing& a, const CellsOrNothing& b) {
  if (!a || !b) {
    return !a && !b;
  }
  const auto text_a = TrimRight(*a);
  const auto text_b = TrimRight(*b);
  return std::equal(text_a.begin(), text_a.end(), text_b.begin(), text_b.end());
}

std::optional<DisplayCodes> CodesOf(const CellsOrNothing& cells) {
  return cells ? std::optional(DisplayCodes(cells->begin(), cells->end())) : std::nullopt;
}

void CompareMessages(int language, const Messages& a, const Messages& b,
                     MessageFileComparison& comparison) {
  for (std::size_t message = 0; message < std::max(a.count(), b.count()); ++message) {
    const CellsOrNothing text_a = a.At(message);
    const CellsOrNothing text_b = b.At(message);
    if (ReadTheSame(text_a, text_b)) {
      continue;
    }
    if (comparison.messages.size() == kMostDifferences) {
      ++comparison.unlisted;
    } else {
      comparison.messages.push_back({language, message, CodesOf(text_a), CodesOf(text_b)});
    }
  }
}

}  // namespace

bool MessageFileComparison::Same() const {
  return header.empty() && added.empty() && removed.empty() && renamed.empty() && moved.empty() &&
         messages.empty();
}

MessageFileComparison CompareMessageFiles(const MessageSet& a, const MessageSet& b) {
  MessageFileComparison comparison;
  comparison.header = CompareHeaders(a, b);
  const LanguagePairs pairs(a.language_names, b.language_names);
  CompareNames(a, b, pairs, comparison);
  for (std::size_t i = 0; i < a.language_names.size(); ++i) {
    if (const auto& partner = pairs.partners()[i]) {
      Messages messages_a(a, static_cast<int>(i));
      Messages messages_b(b, static_cast<int>(*partner));
      if (a.IsMsx() != b.IsMsx()) {
        messages_a.BlankPlaceholders();
        messages_b.BlankPlaceholders();
      }
      if (messages_a != messages_b) {
        CompareMessages(static_cast<int>(i), messages_a, messages_b, comparison);
      }
    }
  }
  return comparison;
}

}  // namespace vendlingua
