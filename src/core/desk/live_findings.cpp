#include "core/desk/live_findings.h"

#include <algorithm>

#include "core/checks/language_check.h"
#include "core/checks/language_texts.h"
#include "core/checks/rules.h"
#include "core/desk/missing_translation.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

int LanguageOf(const MessageSet& set) {
  return set.phase == Phase::kDestinationUnnamed ? kNewLanguage : set.DestLang;
}

bool IsWithoutFix(const Finding& finding) { return !finding.fix; }

// The text that a message had when the language was opened, for what was not wrong with it then.
class OpenedTexts {
 public:
  OpenedTexts(const MessageSet& set, const CheckBasis& basis, const Rules& rules)
      : set_(set), basis_(basis), rules_(rules) {}

  void OfferTo(std::vector<Finding>& findings, std::size_t message) {
    if (std::ranges::none_of(findings, IsWithoutFix) || !IsChanged(message)) {
      return;
    }
    const auto text = set_.opened_texts[message].First(set_.Width());
    const std::vector<Finding> before = Check().FindingsOf(message);
    for (Finding& finding : findings) {
      if (!finding.fix && std::ranges::find(before, finding.rule, &Finding::rule) == before.end()) {
        finding.fix.emplace(text.begin(), text.end());
      }
    }
  }

 private:
  bool IsChanged(std::size_t message) const {
    return set_.opened_texts.size() >= set_.MessageCount() &&
           set_.opened_texts[message] != set_.DestText.at(message);
  }

  // Made when it is needed: it looks at the whole language first.
  const LanguageCheck& Check() {
    if (!check_) {
      check_.emplace(basis_, LanguageOf(set_), set_.opened_texts, set_.MessageCount(), rules_);
    }
    return *check_;
  }

  const MessageSet& set_;
  const CheckBasis& basis_;
  const Rules& rules_;
  std::optional<LanguageCheck> check_;
};

}  // namespace

void LiveFindings::Follow(const MessageSet& set) {
  if (!set.DestinationIsOpen() || !set.origin_language) {
    Clear();
    return;
  }
  const Source source{set.OpenedFiles, set.origin_language, set.DestLang,
                      set.DisplayType, set.MessageCount(),  set.language_names};
  if (source_ != source) {
    Clear();
    source_ = source;
    Begin(set);
  }
  if (!basis_) {
    return;
  }
  const auto is_new = [&](std::size_t message) {
    return message >= seen_.size() || seen_[message] != set.DestText.at(message);
  };
  std::vector<std::size_t> messages;
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    if (is_new(message) || is_new(basis_->FirstOfSameWords(message))) {
      messages.push_back(message);
    }
  }
  if (!messages.empty()) {
    LookAt(set, messages);
  }
}

void LiveFindings::Clear() {
  source_.reset();
  basis_.reset();
  seen_.clear();
  findings_.clear();
}

void LiveFindings::Begin(const MessageSet& set) {
  try {
    basis_.emplace(set, ReadLanguages(set), *set.origin_language, Alphabet::Of(set.DisplayType));
    findings_.resize(set.MessageCount());
  } catch (const Error&) {
    basis_.reset();
  }
}

void LiveFindings::LookAt(const MessageSet& set, const std::vector<std::size_t>& messages) {
  const bool is_new = set.phase == Phase::kDestinationUnnamed;
  const Rules rules = is_new ? ChosenRules({}, {"language-name"}) : AllRules();
  const LanguageCheck check(*basis_, LanguageOf(set), set.DestText, set.MessageCount(), rules);
  OpenedTexts opened_texts(set, *basis_, rules);
  for (const std::size_t message : messages) {
    findings_[message] = check.FindingsOf(message);
    std::erase_if(findings_[message], IsAboutMissingTranslation);
    opened_texts.OfferTo(findings_[message], message);
  }
  seen_.assign(set.DestText.begin(),
               set.DestText.begin() + static_cast<std::ptrdiff_t>(set.MessageCount()));
}

const std::vector<Finding>& LiveFindings::Of(std::size_t message) const {
  static const std::vector<Finding> kNone;
  return message < findings_.size() ? findings_[message] : kNone;
}

bool LiveFindings::NeedsWork(std::size_t message) const {
  return vendlingua::NeedsWork(Of(message));
}

std::optional<std::size_t> LiveFindings::MessagesThatNeedWork() const {
  return basis_ ? std::optional<std::size_t>(std::ranges::count_if(
                      findings_, [](const auto& found) { return vendlingua::NeedsWork(found); }))
                : std::nullopt;
}

std::vector<Finding> LiveFindings::All() const {
  std::vector<Finding> all;
  for (const auto& of_message : findings_) {
    all.insert(all.end(), of_message.begin(), of_message.end());
  }
  return all;
}

}  // namespace vendlingua
