#include "core/operations/message_file_reader.h"

#include <optional>
#include <string_view>
#include <utility>

#include "core/formats/mes_file.h"
#include "core/formats/msx_file.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

void Show(MenuEntry& entry, const std::string& caption) {
  entry.caption = caption;
  entry.visible = true;
}

}  // namespace

MessageFileReader::MessageFileReader(Workspace& workspace, Dialogs& dialogs,
                                     EditingView& editing_view)
    : workspace_(workspace), dialogs_(dialogs), editing_view_(editing_view) {}

void MessageFileReader::Reset(const std::string& title) {
  MessageSet& set = workspace_.set;
  MenuState& menus = workspace_.menus;
  ViewState& view = workspace_.view;

  view.Label5.fill(OriginCell());
  view.Label8Enabled.fill(false);
  view.Label9Visible = false;
  view.Label6 = 0;
  view.Command1Enabled = false;
  view.Command2Visible = false;
  view.Text1.enabled = false;
  view.Text1.text.clear();
  view.HScroll1.enabled = false;
  view.HScroll1.value = 0;
  view.caption = title;
  for (MenuEntry* menu : {&menus.mnuOrig, &menus.mnuDest, &menus.mnuMake, &menus.mnuSave,
                          &menus.mnuSaas, &menus.mnuTLCD}) {
    menu->enabled = false;
  }
  set.HeaderBit1 = kFalse;
  set.HeaderBit0 = kFalse;
  set.HeaderCount = 0;
  set.DestLang = 0;
  set.DestText.fill(DisplayText());
  set.Modified = kFalse;
  ++set.OpenedFiles;
  for (MenuState::LanguageMenu* menu : {&menus.mnuori, &menus.mnuDes, &menus.mnuNew}) {
    for (std::size_t i = 1; i < menu->size(); ++i) {
      (*menu)[i].caption.clear();
      (*menu)[i].visible = false;
    }
  }
}

void MessageFileReader::ResetForMes(const std::string& title) {
  Reset(title);
  workspace_.view.height = ViewState::kCompactHeight;
  dialogs_.LetPendingEventsRun();
}

bool MessageFileReader::OpenMsxFile(const std::string& title) {
  Reset(title);
  return Reload();
}

bool MessageFileReader::Reload() {
  if (workspace_.set.IsMsx()) {
    return ReloadMsx();
  }
  if (workspace_.set.IsMes()) {
    NamingFile(workspace_.set.CurrentFileName, [this] { ReloadMes(); });
  }
  return true;
}

void MessageFileReader::ReloadMes() {
  MessageSet& set = workspace_.set;
  MenuState& menus = workspace_.menus;
  std::string content = ReadFile(set.CurrentFileName);
  const MesHeader header = ParseMesHeader(content);
  ApplyMesHeader(header, set);
  editing_view_.LoadDisplayType(header.DisplayType());

  const std::vector<std::string> names = ReadMesNames(set, content);
  if (names.empty()) {
    throw Error("the file ends before the name of its first language block");
  }
  for (std::size_t k = 0; k < names.size(); ++k) {
    Show(menus.mnuori[k], names[k]);
    Show(menus.mnuDes[k], names[k]);
    Show(menus.mnuNew[k], names[k]);
  }
  EnableLoadedMenus();
  workspace_.file_content = std::move(content);
}

bool MessageFileReader::ReloadMsx() {
  MessageSet& set = workspace_.set;
  MenuState& menus = workspace_.menus;
  for (std::size_t k = 1; k <= kMsxLanguages; ++k) {
    menus.mnuori[k].visible = false;
    menus.mnuDes[k].visible = false;
  }
  const MesHeader configuration = ParseMesHeader(kMsxConfiguration);
  ApplyDimensions(configuration, set);
  set.LangStride = MsxLangStride(set.MemLength);
  editing_view_.LoadDisplayType(configuration.DisplayType());

  std::string content = ReadFile(set.CurrentFileName);
  const auto names = ReadMsxNames(set, content);
  if (!names) {
    dialogs_.MessageBox({MessageIcon::kCritical, " File not managed ! ", "ERROR"});
    return false;
  }
  for (std::size_t k = 1; k <= names->size(); ++k) {
    const std::string& name = (*names)[k - 1];
    Show(menus.mnuori[k], name);
    Show(menus.mnuDes[k], name);
    Show(menus.mnuNew[k], workspace_.ui_text[14] + " " + name);
  }
  EnableLoadedMenus();
  workspace_.file_content = std::move(content);
  return true;
}

void MessageFileReader::EnableLoadedMenus() {
  workspace_.menus.mnuOrig.enabled = true;
  workspace_.menus.mnuMake.enabled = true;
  workspace_.menus.mnuNew[0].enabled = false;
}

}  // namespace vendlingua
