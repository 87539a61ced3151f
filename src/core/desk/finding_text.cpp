#include "core/desk/finding_text.h"

#include <map>
#include <string_view>

namespace vendlingua {

std::string SentenceOf(const Finding& finding, const UiText& ui_text) {
  static const std::map<std::string_view, UiTextId> kSentences = {
      {"placeholder-lost", UiTextId::kPlaceholderLost},
      {"placeholder-stray", UiTextId::kPlaceholderStray},
      {"placeholder-overtyped", UiTextId::kPlaceholderOvertyped},
      {"number-missing", UiTextId::kNumberMissing},
      {"glyph-missing", UiTextId::kGlyphMissing},
      {"glyph-differs", UiTextId::kGlyphDiffers},
      {"inconsistent", UiTextId::kInconsistent},
      {"alignment", UiTextId::kAlignment},
      {"language-name", UiTextId::kLanguageNameMissing}};
  const auto found = kSentences.find(finding.rule);
  return found != kSentences.end() ? ui_text[found->second] : std::string(finding.rule);
}

}  // namespace vendlingua
