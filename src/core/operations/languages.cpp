#include "core/operations/languages.h"

#include <algorithm>

#include "core/formats/message_texts.h"

namespace vendlingua {

Languages::Languages(Workspace& workspace, Dialogs& dialogs, EditorView& view,
                     MessageFileWriter& writer)
    : workspace_(workspace), dialogs_(dialogs), view_(view), writer_(writer) {}

void Languages::ChooseOrigin(int language) {
  MessageSet& set = workspace_.set;
  if (set.IsMsx()) {
    set.LoadDefaultMessages();
  }
  if (set.IsMsx() && language == 0) {
    for (std::size_t n = 0; n < set.MessageCount(); ++n) {
      set.OriginText[n] = DisplayText(set.DefaultMessages.at(n));
    }
  } else {
    ReadLanguageTexts(set, language, set.OriginText);
  }
  view_.VisRef();
  ViewState& view = workspace_.view;
  for (std::size_t i = 0; i < std::min(set.Width(), kOriginCells); ++i) {
    view.Label5[i].visible = true;
  }
  view.Label8Enabled[0] = true;
  view.HScroll1.enabled = true;
  workspace_.menus.mnuDest.enabled = true;
  view_.VisMes();
}

void Languages::OpenDestinationMenu() {
  auto& destinations = workspace_.menus.mnuDes;
  destinations[0].enabled = workspace_.set.IsMes() && !destinations.back().visible;
}

bool Languages::ChooseDestination(int language) {
  if (language == 0 || !writer_.NonSave()) {
    return false;
  }
  MessageSet& set = workspace_.set;
  const UiText& ui_text = workspace_.ui_text;
  if (set.IsMes() && language == kNewLanguage && workspace_.menus.mnuDes.back().visible) {
    dialogs_.MessageBox({MessageIcon::kInformation, ui_text[31], ui_text[30]});
    return false;
  }
  ReadLanguageTexts(set, language, set.DestText);
  set.DestLang = static_cast<std::uint8_t>(language);
  EnableEditing();
  view_.VisMes();
  return true;
}

void Languages::StartNewLanguage(int language) {
  if (ChooseDestination(language == 0 ? kNewLanguage : language)) {
    workspace_.set.DestLang = 0;
    workspace_.set.Modified = kTrue;
  }
}

void Languages::EnableEditing() {
  ViewState& view = workspace_.view;
  MenuState& menus = workspace_.menus;
  view.Label8Enabled[1] = true;
  view.Command1Enabled = true;
  view.Text1.enabled = true;
  menus.mnuTLCD.enabled = true;
  menus.mnuSave.enabled = true;
  menus.mnuSaas.enabled = true;
}

}  // namespace vendlingua
