#include "core/desk/live_findings.h"

#include "core/checks/language_check.h"
#include "core/checks/language_texts.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// What the state of a row says already.
bool IsAboutMissingTranslation(const Finding& finding) {
  return finding.rule == "blank" || finding.rule == "same-as-origin";
}

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
  const LanguageCheck check(*basis_, is_new ? kNewLanguage : set.DestLang, set.DestText,
                            set.MessageCount(), rules);
  for (const std::size_t message : messages) {
    findings_[message] = check.FindingsOf(message);
    std::erase_if(findings_[message], IsAboutMissingTranslation);
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

std::vector<Finding> LiveFindings::All() const {
  std::vector<Finding> all;
  for (const auto& of_message : findings_) {
    all.insert(all.end(), of_message.begin(), of_message.end());
  }
  return all;
}

}  // namespace vendlingua
