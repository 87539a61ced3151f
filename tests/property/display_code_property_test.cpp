#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>

#include "core/document/display_code.h"
#include "support/message_files.h"

namespace vendlingua {
namespace {

// Sound characters, bytes that may be part of one, and any bytes at all.
rc::Gen<std::string> AlmostUtf8() {
  const auto character = rc::gen::oneOf(
      rc::gen::map(rc::gen::arbitrary<DisplayCode>(),
                   [](DisplayCode code) { return ToUtf8(DisplayCodes{code}); }),
      rc::gen::map(rc::gen::arbitrary<DisplayCode>(),
                   [](DisplayCode code) { return std::string(1, static_cast<char>(code)); }),
      rc::gen::elementOf(std::vector<std::string>{"\xC0\x80", "\xE0\x80\x80", "\xE0\x81\x81",
                                                  "\xED\xA0\x80", "\xF0\x80\x80\x80",
                                                  "\xF4\x90\x80\x80", "\xE2\x82", "\xE2\x82\xAC"}));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(character),
                      [](const std::vector<std::string>& characters) {
                        std::string text;
                        for (const std::string& c : characters) {
                          text += c;
                        }
                        return text;
                      });
}

TEST(DisplayCodeProperty, AllCodesHaveATextOfTheirOwn) {
  std::set<std::string> texts;
  for (int code = 0; code < 256; ++code) {
    texts.insert(ToUtf8(DisplayCodes{static_cast<DisplayCode>(code)}));
  }
  EXPECT_EQ(texts.size(), 256U);
}

RC_GTEST_PROP(DisplayCodeProperty, AnyCodesSurviveTheWayToUtf8AndBack,
              (const DisplayCodes& codes)) {
  const CodesFromUtf8 back = ToDisplayCodes(ToUtf8(codes));
  RC_ASSERT(!back.unknown);
  RC_ASSERT(back.codes == codes);
}

RC_GTEST_PROP(DisplayCodeProperty, AnyTextIsTakenAsItStandsUpToWhatHasNoCode, ()) {
  const std::string text = *AlmostUtf8();
  const CodesFromUtf8 taken = ToDisplayCodes(text);
  const std::string recognised = ToUtf8(taken.codes) + taken.unknown.value_or("");
  RC_ASSERT(text.substr(0, recognised.size()) == recognised);
  RC_ASSERT(taken.unknown.has_value() == (ToUtf8(taken.codes) != text));
}

RC_GTEST_PROP(DisplayCodeProperty, ACharacterThatHasACodeIsTheOneOfThatCode,
              (std::uint32_t character)) {
  const auto code = ToDisplayCode(static_cast<char32_t>(character));
  RC_ASSERT((!code || ToUnicode(*code) == static_cast<char32_t>(character)));
}

}  // namespace
}  // namespace vendlingua
