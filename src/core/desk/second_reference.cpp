#include "core/desk/second_reference.h"

#include <algorithm>

#include "core/formats/message_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Of the language that is being edited as it stands; none where the file ends before the language.
MessageTexts TextsToRead(const MessageSet& set, int language) {
  if (set.DestinationIsOpen() && set.DestLang == language) {
    return set.DestText;
  }
  try {
    return TextsOf(set, language);
  } catch (const Error&) {
    return {};
  }
}

}  // namespace

void SecondReference::Follow(const MessageSet& set) {
  texts_.clear();
  width_ = set.Width();
  const auto& names = set.language_names;
  const auto found = name_.empty() || names.empty()
                         ? names.end()
                         : std::find(names.begin() + 1, names.end(), name_);
  if (found != names.end()) {
    texts_ = TextsToRead(set, static_cast<int>(found - names.begin()));
  }
  // A message may have been added since.
  if (!texts_.empty()) {
    texts_.resize(std::max(texts_.size(), set.MessageCount()));
  }
}

std::span<const DisplayCode> SecondReference::Of(std::size_t message) const {
  return texts_.at(message).First(width_);
}

}  // namespace vendlingua
