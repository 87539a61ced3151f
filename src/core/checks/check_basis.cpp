#include "core/checks/check_basis.h"

#include <algorithm>
#include <map>

#include "core/checks/words.h"
#include "core/document/name_field.h"

namespace vendlingua {
namespace {

std::optional<std::size_t> NameMessageOf(const MessageSet& set) {
  const int message = set.NameMessage();
  if (message < 0 || message > set.LastMsg) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(message);
}

}  // namespace

int UsualOrigin(const MessageSet& set) { return set.IsMes() && set.HoldsLanguage(1) ? 1 : 0; }

CheckBasis::CheckBasis(const MessageSet& set, const std::vector<LanguageTexts>& languages,
                       int origin, const Alphabet& alphabet)
    : alphabet_(alphabet),
      width_(std::min(set.Width(), DisplayText::kCells)),
      stores_blanks_for_placeholders_(set.IsMsx()),
      origin_language_(origin),
      board_(languages.front().texts),
      origin_(languages.at(static_cast<std::size_t>(origin)).texts),
      name_message_(NameMessageOf(set)) {
  for (std::size_t message = 0; message < origin_.size(); ++message) {
    origin_[message] = WithPlaceholders(message, origin_[message]);
  }
  TakeNames(set, languages);
  FindSameWords();
}

void CheckBasis::TakeNames(const MessageSet& set, const std::vector<LanguageTexts>& languages) {
  for (std::size_t language = 0; language < languages.size(); ++language) {
    LanguageName name{NameField::FromAnswer(set.language_names.at(language)).Caption(), {}};
    if (name_message_) {
      const auto shown = Trim(languages[language].texts.at(*name_message_).First(width_));
      name.shown.assign(shown.begin(), shown.end());
    }
    names_.push_back(std::move(name));
  }
}

void CheckBasis::FindSameWords() {
  std::map<DisplayCodes, std::size_t> first;
  for (std::size_t message = 0; message < origin_.size(); ++message) {
    const auto found = first.try_emplace(WordsOf(origin_[message].First(width_)), message).first;
    first_of_same_words_.push_back(found->second);
  }
}

DisplayText CheckBasis::WithPlaceholders(std::size_t message, const DisplayText& text) const {
  if (!stores_blanks_for_placeholders_) {
    return text;
  }
  DisplayCodes codes(text.Cells().begin(), text.Cells().end());
  for (std::size_t cell = 0; cell < width_; ++cell) {
    if (codes[cell] == kBlank && BoardFills(message, cell)) {
      codes[cell] = kPlaceholder;
    }
  }
  return DisplayText(codes);
}

DisplayCodes CheckBasis::AsStored(std::size_t message, DisplayCodes text) const {
  for (std::size_t cell = 0; stores_blanks_for_placeholders_ && cell < text.size(); ++cell) {
    if (BoardFills(message, cell)) {
      text[cell] = kBlank;
    }
  }
  return text;
}

bool CheckBasis::IsOrigin(int language) const {
  const std::string* name = ListedName(language);
  return language == origin_language_ ||
         (name != nullptr && *name == *ListedName(origin_language_));
}

const std::string* CheckBasis::ListedName(int language) const {
  const auto number = static_cast<std::size_t>(language);
  return number < names_.size() ? &names_[number].listed : nullptr;
}

}  // namespace vendlingua
