#include "core/marks/document_marks.h"

#include <algorithm>

#include "core/formats/message_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Empty where nothing can be marked: a new language has no name in the file yet.
std::string MarkedLanguage(const MessageSet& set) {
  return set.phase == Phase::kDestinationOpen && set.HoldsLanguage(set.DestLang)
             ? set.language_names[set.DestLang]
             : std::string();
}

std::vector<std::string> ReferenceOf(const MessageSet& set) {
  std::vector<std::string> reference;
  for (const DisplayText& text : TextsOf(set, set.file_content, 0)) {
    reference.push_back(ToUtf8(TrimRight(text.First(set.Width()))));
  }
  reference.resize(set.MessageCount());
  return reference;
}

}  // namespace

void DocumentMarks::Follow(const MessageSet& set) {
  const Source source{set.OpenedFiles, set.CurrentFileName, MarkedLanguage(set),
                      set.MessageCount()};
  if (source_ == source) {
    return;
  }
  source_ = source;
  file_ = source.path;
  language_ = source.language;
  marks_.clear();
  is_readable_ = true;
  if (language_.empty()) {
    return;
  }
  try {
    reference_ = ReferenceOf(set);
  } catch (const Error&) {
    language_.clear();
    return;
  }
  const auto kept = ReadMarks(file_);
  is_readable_ = kept.has_value();
  Take(kept.value_or(KeptMarks()));
}

const MessageMark& DocumentMarks::Of(std::size_t message) const {
  static const MessageMark kNoMark;
  return message < marks_.size() ? marks_[message] : kNoMark;
}

std::optional<std::filesystem::path> DocumentMarks::Unreadable() const {
  return is_readable_ ? std::nullopt : std::optional(MarksFileOf(file_));
}

// By message: which of the marks is its own.
std::vector<std::optional<std::size_t>> DocumentMarks::PlacesOf(const KeptMarks& kept) const {
  std::vector<std::optional<std::size_t>> places(reference_.size());
  std::vector<std::size_t> moved;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    const KeptMark& mark = kept[i];
    if (mark.language != language_) {
      continue;
    }
    if (mark.message < reference_.size() && reference_[mark.message] == mark.origin) {
      places[mark.message] = i;
    } else {
      moved.push_back(i);
    }
  }
  for (const std::size_t i : moved) {
    const auto found = std::ranges::find(reference_, kept[i].origin);
    const bool is_only_one = std::ranges::count(reference_, kept[i].origin) == 1;
    if (is_only_one) {
      auto& place = places[static_cast<std::size_t>(found - reference_.begin())];
      place = place.value_or(i);
    }
  }
  return places;
}

void DocumentMarks::Take(const KeptMarks& kept) {
  marks_.assign(reference_.size(), MessageMark());
  const auto places = PlacesOf(kept);
  for (std::size_t message = 0; message < places.size(); ++message) {
    if (places[message]) {
      marks_[message] = kept[*places[message]].mark;
    }
  }
}

// Somebody else may have marked something meanwhile.
void DocumentMarks::Put(std::size_t message, const MessageMark& mark) {
  auto kept = ReadMarks(file_);
  if (!CanMark() || message >= marks_.size() || !kept) {
    return;
  }
  if (const auto place = PlacesOf(*kept)[message]) {
    kept->erase(kept->begin() + static_cast<std::ptrdiff_t>(*place));
  }
  if (!mark.IsEmpty()) {
    kept->push_back({language_, message, reference_[message], mark});
  }
  WriteMarks(file_, *kept);
  Take(*kept);
}

}  // namespace vendlingua
