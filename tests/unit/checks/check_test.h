#ifndef VENDLINGUA_TESTS_UNIT_CHECKS_CHECK_TEST_H_
#define VENDLINGUA_TESTS_UNIT_CHECKS_CHECK_TEST_H_

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/checks/check_basis.h"
#include "core/checks/language_check.h"
#include "support/display_types.h"
#include "support/message_files.h"

namespace vendlingua::test {

/// A set of three languages that is put together message by message: the reference "Default",
/// "ITALIANO", which is the origin and the same, and "ENGLISH", which is checked. It has no name
/// message unless one is set.
class CheckTest : public ::testing::Test {
 protected:
  CheckTest() {
    set_.CurrentFileType = kMesType;
    set_.LastCol = kDefaultMessageWidth - 1;
    set_.HeaderCount = 0xFFFF;
    set_.language_names = {"Default", "ITALIANO", "ENGLISH"};
  }

  /// Adds a message to all languages, in the characters of the display.
  void Add(std::string_view origin, std::string_view text) {
    const Alphabet& alphabet = Alphabet::Of(display_);
    AddCodes(alphabet.CodesOf(origin).codes, alphabet.CodesOf(text).codes);
  }

  /// The same, byte by byte.
  void AddBytes(std::string_view origin, std::string_view text) {
    AddCodes(Codes(origin), Codes(text));
  }

  CheckBasis Basis() const { return {set_, languages_, kOrigin, Alphabet::Of(display_)}; }

  /// What one rule finds in the language that is checked.
  std::vector<Finding> Findings(const std::string& rule, int language = kChecked) const {
    const CheckBasis basis = Basis();
    const LanguageTexts& read = languages_.at(static_cast<std::size_t>(language));
    return LanguageCheck(basis, language, read.texts, read.held, ChosenRules({rule}, {}))
        .Findings();
  }

  /// The messages in which it finds something.
  std::vector<std::size_t> Found(const std::string& rule, int language = kChecked) const {
    std::vector<std::size_t> messages;
    for (const Finding& finding : Findings(rule, language)) {
      messages.push_back(finding.message);
    }
    return messages;
  }

  /// The fix that a rule offers for the only message that it has something to say about, in the
  /// characters of the display; "none" when it offers none.
  std::string Fix(const std::string& rule) const {
    const std::vector<Finding> findings = Findings(rule);
    EXPECT_EQ(findings.size(), 1U);
    const auto& fix = findings.at(0).fix;
    return fix ? Alphabet::Of(display_).TextOf(*fix) : "none";
  }

  static constexpr int kOrigin = 1;
  static constexpr int kChecked = 2;

  MessageSet set_;
  std::size_t display_ = kNormal;
  std::vector<LanguageTexts> languages_{3};

 private:
  void AddCodes(const DisplayCodes& origin, const DisplayCodes& text) {
    for (LanguageTexts& language : languages_) {
      language.texts.emplace_back(&language == &languages_.back() ? text : origin);
      language.held = language.texts.size();
    }
    set_.LastMsg = static_cast<std::uint16_t>(languages_.front().held - 1);
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_CHECKS_CHECK_TEST_H_
