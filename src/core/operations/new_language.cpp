#include "core/operations/new_language.h"

#include <string>

#include "core/operations/taken_names.h"
#include "core/platform/errors.h"

namespace vendlingua {
namespace {

std::string AskForName(const Workspace& workspace, Dialogs& dialogs) {
  const UiText& ui_text = workspace.ui_text;
  return dialogs.InputBox({InputPurpose::kNewLanguageName, ui_text[UiTextId::kNewLanguagePrompt],
                           ui_text[UiTextId::kNewLanguageTitle], ""});
}

// Nothing when a language cannot be called so, which the user is told.
std::optional<NameField> NewName(const Workspace& workspace, Dialogs& dialogs,
                                 const std::string& answer) {
  const UiText& ui_text = workspace.ui_text;
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
  return std::nullopt;
}

}  // namespace

NameField AskNewLanguageName(const Workspace& workspace, Dialogs& dialogs) {
  for (;;) {
    if (const auto name = NewName(workspace, dialogs, AskForName(workspace, dialogs))) {
      return *name;
    }
  }
}

std::optional<NameField> OfferNewLanguage(const Workspace& workspace, Dialogs& dialogs) {
  for (;;) {
    const std::string answer = AskForName(workspace, dialogs);
    if (answer.empty()) {
      return std::nullopt;
    }
    if (auto name = NewName(workspace, dialogs, answer)) {
      return name;
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
