#include "core/checks/language_check.h"

#include <iterator>
#include <utility>

#include "core/checks/words.h"

namespace vendlingua {
namespace {

// Of the messages with words a language that is related to the origin shares one in twenty.
constexpr std::size_t kUnfinishedFromOneIn = 10;

}  // namespace

LanguageCheck::LanguageCheck(const CheckBasis& basis, int language, const MessageTexts& texts,
                             std::size_t held, Rules rules)
    : basis_(basis),
      language_(language),
      texts_(texts),
      held_(held),
      rules_(std::move(rules)),
      is_unfinished_(IsUnfinished()) {}

std::vector<Finding> LanguageCheck::FindingsOf(std::size_t number) const {
  std::vector<Finding> findings;
  const CheckedMessage message = Message(number);
  for (const Rule* rule : rules_) {
    if ((number >= held_ && !rule->LooksBehindTheEnd()) || !rule->IsBrokenBy(message)) {
      continue;
    }
    std::optional<DisplayCodes> fix = rule->Fix(message);
    if (fix) {
      fix = basis_.AsStored(number, std::move(*fix));
    }
    const auto stored = texts_.at(number).First(basis_.width());
    findings.push_back({language_,
                        number,
                        rule->name(),
                        rule->SeverityOf(message),
                        {message.Origin().begin(), message.Origin().end()},
                        {stored.begin(), stored.end()},
                        std::move(fix)});
  }
  return findings;
}

std::vector<Finding> LanguageCheck::Findings() const {
  std::vector<Finding> findings;
  for (std::size_t message = 0; message < basis_.MessageCount(); ++message) {
    std::vector<Finding> of_message = FindingsOf(message);
    findings.insert(findings.end(), std::make_move_iterator(of_message.begin()),
                    std::make_move_iterator(of_message.end()));
  }
  return findings;
}

CheckedMessage LanguageCheck::Message(std::size_t number) const {
  return {.basis = basis_,
          .language = language_,
          .number = number,
          .held = held_,
          .origin_text = basis_.Origin(number),
          .translated_text = TextOf(number),
          .first_of_same_words = TextOf(basis_.FirstOfSameWords(number)),
          .language_is_unfinished = is_unfinished_};
}

DisplayText LanguageCheck::TextOf(std::size_t message) const {
  return basis_.WithPlaceholders(message, texts_.at(message));
}

bool LanguageCheck::IsUnfinished() const {
  std::size_t with_words = 0;
  std::size_t same = 0;
  for (std::size_t message = 0; message < held_; ++message) {
    const auto origin = basis_.Origin(message).First(basis_.width());
    if (!HoldsWords(basis_.alphabet(), origin)) {
      continue;
    }
    ++with_words;
    if (WordsOf(texts_.at(message).First(basis_.width())) == WordsOf(origin)) {
      ++same;
    }
  }
  return same * kUnfinishedFromOneIn > with_words;
}

}  // namespace vendlingua
