#ifndef VENDLINGUA_CORE_CHECKS_RULES_GLYPH_RULES_H_
#define VENDLINGUA_CORE_CHECKS_RULES_GLYPH_RULES_H_

#include "core/checks/rule.h"

namespace vendlingua {

/// A code that the display draws as nothing, although it is no blank. The fix puts blanks.
class GlyphMissing : public Rule {
 public:
  GlyphMissing() : Rule("glyph-missing", Severity::kWarning) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
  std::optional<DisplayCodes> Fix(const CheckedMessage& message) const override;
};

/// A code that the display draws as something else than the letter, or the degree sign, that was
/// meant.
class GlyphDiffers : public Rule {
 public:
  GlyphDiffers() : Rule("glyph-differs", Severity::kWarning) {}
  bool IsBrokenBy(const CheckedMessage& message) const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_CHECKS_RULES_GLYPH_RULES_H_
