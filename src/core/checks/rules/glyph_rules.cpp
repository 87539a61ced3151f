#include "core/checks/rules/glyph_rules.h"

#include <algorithm>

#include "core/checks/meant_glyphs.h"

namespace vendlingua {
namespace {

// Finds codes that draw nothing and are no blanks.
auto IsInvisibleOn(const Alphabet& alphabet) {
  return
      [&alphabet](DisplayCode code) { return code != kBlank && alphabet.GlyphOf(code).IsEmpty(); };
}

}  // namespace

bool GlyphMissing::IsBrokenBy(const CheckedMessage& message) const {
  const auto text = message.Text();
  return !message.IsBlank() &&
         std::any_of(text.begin(), text.end(), IsInvisibleOn(message.basis.alphabet()));
}

std::optional<DisplayCodes> GlyphMissing::Fix(const CheckedMessage& message) const {
  DisplayCodes text = message.CopyOfText();
  std::replace_if(text.begin(), text.end(), IsInvisibleOn(message.basis.alphabet()), kBlank);
  return text;
}

bool GlyphDiffers::IsBrokenBy(const CheckedMessage& message) const {
  return DrawsAnotherGlyphThanMeant(message.basis.alphabet(), message.Text());
}

}  // namespace vendlingua
