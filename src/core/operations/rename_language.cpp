#include "core/operations/rename_language.h"

#include <cstddef>
#include <optional>

#include "core/document/name_field.h"
#include "core/formats/mes_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

bool NameIsTaken(const CompilerState& compiler, std::size_t language, const NameField& name) {
  for (std::size_t i = 1; i < compiler.Check1.size(); ++i) {
    if (i != language && compiler.Check1[i].caption == name.Caption()) {
      return true;
    }
  }
  return false;
}

// Nothing when the user gave no name.
std::optional<NameField> AskName(const UiText& ui_text, const CompilerState& compiler,
                                 Dialogs& dialogs, std::size_t language) {
  for (;;) {
    const std::string answer = dialogs.InputBox({InputPurpose::kRenamedLanguageName, ui_text[49],
                                                 ui_text[48], compiler.Check1[language].caption});
    try {
      const NameField name = NameField::FromAnswer(answer);
      if (name.IsBlank()) {
        return std::nullopt;
      }
      if (!NameIsTaken(compiler, language, name)) {
        return name;
      }
      dialogs.MessageBox({MessageIcon::kExclamation,
                          ui_text[34] + "\n" + name.Caption() + "\n" + ui_text[35], ui_text[51]});
    } catch (const Error& error) {
      dialogs.MessageBox({MessageIcon::kCritical, error.what(), "ERROR"});
    }
  }
}

void WriteNames(Workspace& workspace) {
  const MessageSet& set = workspace.set;
  const auto& languages = workspace.menus.mnuDes;
  PatchFile file(set.CurrentFileName, PatchFile::IfMissing::kFail);
  for (std::size_t i = 1; i < languages.size(); ++i) {
    if (languages[i].visible) {
      file.WriteAt(MesBlockOffset(set, static_cast<int>(i)) + 1,
                   NameField::FromCaption(languages[i].caption).Bytes());
    }
  }
  file.Close();
  workspace.file_content = ReadFile(set.CurrentFileName);
}

}  // namespace

void RenameLanguage(Workspace& workspace, CompilerState& compiler, Dialogs& dialogs, int language) {
  const auto index = static_cast<std::size_t>(language);
  const UiText& ui_text = workspace.ui_text;
  const auto name = AskName(ui_text, compiler, dialogs, index);
  if (!name || dialogs.MessageBox({MessageIcon::kQuestion, ui_text[50], ui_text[48],
                                   MessageButtons::kYesNo}) != MessageAnswer::kYes) {
    return;
  }
  MenuState& menus = workspace.menus;
  for (MenuState::LanguageMenu* menu : {&menus.mnuori, &menus.mnuDes, &menus.mnuNew}) {
    menu->at(index).caption = name->Caption();
  }
  compiler.Check1[index].caption = name->Caption();
  MessageSet& set = workspace.set;
  set.LangStride = MesLangStride(set.MemLength, set.LangCount, set.Width());
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  try {
    WriteNames(workspace);
  } catch (const FileError&) {
    dialogs.MessageBox({MessageIcon::kCritical,
                        "File Error: This file is only reading!\nPlease change the property File",
                        "Error Property"});
  }
}

}  // namespace vendlingua
