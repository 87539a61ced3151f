#include "core/desk/finding_text.h"

#include <map>
#include <string_view>

namespace vendlingua {
namespace {

struct FindingTexts {
  UiTextId sentence;
  UiTextId fix = UiTextId::kRestoreText;
};

const FindingTexts* TextsOfRule(std::string_view rule) {
  static const std::map<std::string_view, FindingTexts> kTexts = {
      {"placeholder-lost", {UiTextId::kPlaceholderLost, UiTextId::kPutPlaceholdersBack}},
      {"placeholder-stray", {UiTextId::kPlaceholderStray, UiTextId::kPutPlaceholdersBack}},
      {"placeholder-overtyped", {UiTextId::kPlaceholderOvertyped, UiTextId::kPutPlaceholdersBack}},
      {"number-missing", {UiTextId::kNumberMissing}},
      {"glyph-missing", {UiTextId::kGlyphMissing, UiTextId::kPutBlanks}},
      {"glyph-differs", {UiTextId::kGlyphDiffers}},
      {"inconsistent", {UiTextId::kInconsistent}},
      {"alignment", {UiTextId::kAlignment, UiTextId::kAlignAsOrigin}},
      {"language-name", {UiTextId::kLanguageNameMissing}}};
  const auto found = kTexts.find(rule);
  return found != kTexts.end() ? &found->second : nullptr;
}

}  // namespace

std::string SentenceOf(const Finding& finding, const UiText& ui_text) {
  const FindingTexts* texts = TextsOfRule(finding.rule);
  return texts != nullptr ? ui_text[texts->sentence] : std::string(finding.rule);
}

UiTextId FixNameOf(const Finding& finding) {
  const FindingTexts* texts = TextsOfRule(finding.rule);
  return texts != nullptr ? texts->fix : UiTextId::kRestoreText;
}

}  // namespace vendlingua
