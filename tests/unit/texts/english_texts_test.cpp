#include "core/texts/english_texts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/operations/interface_language.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

TEST(EnglishTexts, AreThoseOfTheLanguageFile) {
  Workspace workspace;
  workspace.ui_text = UiText();
  workspace.folders.program = VENDLINGUA_LANGUAGES_FOLDER;
  LoadLanguageFile(workspace, "english.lng");
  EXPECT_EQ(EnglishTexts(), workspace.ui_text);
}

// The build takes the file's bytes for UTF-8.
TEST(EnglishTexts, AreAscii) {
  const std::string content =
      test::Slurp(std::filesystem::path(VENDLINGUA_LANGUAGES_FOLDER) / "english.lng");
  EXPECT_TRUE(std::all_of(content.begin(), content.end(), [](char c) { return c > 0; }));
}

}  // namespace
}  // namespace vendlingua
