#include "core/operations/rename_language.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/document/name_field.h"
#include "core/formats/mes_layout.h"
#include "core/marks/marks_file.h"
#include "core/operations/message_file_change.h"
#include "core/operations/taken_names.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

// Nothing when the user gave no name.
std::optional<NameField> AskName(const Workspace& workspace, Dialogs& dialogs, int language) {
  const UiText& ui_text = workspace.ui_text;
  const std::string& old_name = workspace.set.language_names.at(static_cast<std::size_t>(language));
  for (;;) {
    const std::string answer =
        dialogs.InputBox({InputPurpose::kRenamedLanguageName, ui_text[UiTextId::kRenamePrompt],
                          ui_text[UiTextId::kRenameTitle], old_name});
    try {
      const NameField name = NameField::FromAnswer(answer);
      if (name.IsBlank()) {
        return std::nullopt;
      }
      if (!NameIsTaken(workspace.set, language, name)) {
        return name;
      }
      dialogs.MessageBox({MessageIcon::kExclamation,
                          ui_text[UiTextId::kNameTakenBefore] + "\n" + name.Caption() + "\n" +
                              ui_text[UiTextId::kNameTakenAfter],
                          ui_text[UiTextId::kNameInUseTitle]});
    } catch (const Error& error) {
      dialogs.MessageBox({MessageIcon::kCritical, error.In(ui_text), "ERROR"});
    }
  }
}

std::vector<FilePatch> NamePatches(const MessageSet& set) {
  std::vector<FilePatch> patches;
  for (std::size_t i = 1; i < set.language_names.size(); ++i) {
    patches.push_back({MesBlockOffset(set, static_cast<int>(i)),
                       NameField::FromCaption(set.language_names[i]).Bytes()});
  }
  return patches;
}

// Returns the old name.
std::string RenameInFile(Workspace& workspace, Dialogs& dialogs, int language,
                         const NameField& name) {
  MessageSet& set = workspace.set;
  std::string& listed = set.language_names.at(static_cast<std::size_t>(language));
  std::string old_name = std::exchange(listed, name.Caption());
  set.LangStride = MesLangStride(set.MemLength, set.LangCount, set.Width());
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  ChangeMessageFile(workspace, dialogs,
                    [&set](const std::string& /*content*/) { return NamePatches(set); });
  return old_name;
}

}  // namespace

void RenameLanguage(Workspace& workspace, Dialogs& dialogs, int language, const NameField& name) {
  const std::string old_name = RenameInFile(workspace, dialogs, language, name);
  RenameInMarks(workspace.set.CurrentFileName, old_name, name.Caption());
}

void RenameLanguage(Workspace& workspace, Dialogs& dialogs, int language) {
  const UiText& ui_text = workspace.ui_text;
  const auto name = AskName(workspace, dialogs, language);
  if (!name || dialogs.MessageBox({MessageIcon::kQuestion, ui_text[UiTextId::kRenameQuestion],
                                   ui_text[UiTextId::kRenameTitle], MessageButtons::kYesNo}) !=
                   MessageAnswer::kYes) {
    return;
  }
  std::string old_name;
  try {
    old_name = RenameInFile(workspace, dialogs, language, *name);
  } catch (const FileChangedError& error) {
    dialogs.MessageBox({MessageIcon::kCritical, error.In(ui_text), "ERROR"});
    return;
  } catch (const FileError&) {
    dialogs.MessageBox({MessageIcon::kCritical,
                        "File Error: This file is only reading!\nPlease change the property File",
                        "Error Property"});
    return;
  }
  RenameInMarks(workspace.set.CurrentFileName, old_name, name->Caption());
}

}  // namespace vendlingua
