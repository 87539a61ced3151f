#include "core/desk/language_findings.h"

#include "core/checks/check_basis.h"
#include "core/checks/language_check.h"
#include "core/checks/language_texts.h"
#include "core/desk/missing_translation.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

std::size_t MessagesWithFindings(const LanguageCheck& check, std::size_t messages) {
  std::size_t count = 0;
  for (std::size_t message = 0; message < messages; ++message) {
    std::vector<Finding> findings = check.FindingsOf(message);
    std::erase_if(findings, IsAboutMissingTranslation);
    count += NeedsWork(findings) ? 1U : 0U;
  }
  return count;
}

}  // namespace

void LanguageFindings::Follow(const MessageSet& set) {
  Source source{set.file_content, set.origin_language, set.DisplayType, set.MessageCount()};
  if (source_ == source) {
    return;
  }
  source_ = std::move(source);
  counts_.clear();
  if (!set.origin_language) {
    return;
  }
  try {
    const std::vector<LanguageTexts> languages = ReadLanguages(set);
    const CheckBasis basis(set, languages, *set.origin_language, Alphabet::Of(set.DisplayType));
    counts_.resize(languages.size());
    for (std::size_t k = 1; k < languages.size(); ++k) {
      const auto language = static_cast<int>(k);
      if (!basis.IsOrigin(language)) {
        const LanguageCheck check(basis, language, languages[k].texts, languages[k].held);
        counts_[k] = MessagesWithFindings(check, basis.MessageCount());
      }
    }
  } catch (const Error&) {
    counts_.clear();
  }
}

std::optional<std::size_t> LanguageFindings::Of(int language) const {
  const auto k = static_cast<std::size_t>(language);
  return k < counts_.size() ? counts_[k] : std::nullopt;
}

}  // namespace vendlingua
