#include "core/operations/new_language.h"

#include <string>

#include "core/operations/taken_names.h"
#include "core/platform/errors.h"

namespace vendlingua {

NameField AskNewLanguageName(const Workspace& workspace, Dialogs& dialogs) {
  const UiText& ui_text = workspace.ui_text;
  for (;;) {
    const std::string answer =
        dialogs.InputBox({InputPurpose::kNewLanguageName, ui_text[UiTextId::kNewLanguagePrompt],
                          ui_text[UiTextId::kNewLanguageTitle], ""});
    try {
      NameField name = NameField::FromAnswer(answer);
      if (name.IsBlank()) {
        dialogs.MessageBox({MessageIcon::kCritical, ui_text[UiTextId::kNameIsBlank], ""});
      } else if (NameIsTaken(workspace.set, kNewLanguage, name)) {
        dialogs.MessageBox({MessageIcon::kExclamation,
                            ui_text[UiTextId::kNameTakenBefore] + "\n" + name.PaddedText() + "\n" +
                                ui_text[UiTextId::kNameTakenAfter],
                            ""});
      } else {
        return name;
      }
    } catch (const Error& error) {
      dialogs.MessageBox({MessageIcon::kCritical, error.In(ui_text), "ERROR"});
    }
  }
}

void AddLanguage(MessageSet& set, const NameField& name) {
  if (set.IsFull()) {
    throw FileError(set.CurrentFileName, UiTextId::kFileHolds100Languages);
  }
  if (NameIsTaken(set, kNewLanguage, name)) {
    throw FileError(set.CurrentFileName, UiTextId::kNameTakenMeanwhile, name.Caption());
  }
  set.DestLang = static_cast<std::uint8_t>(set.language_names.size());
  set.language_names.push_back(name.Caption());
}

}  // namespace vendlingua
