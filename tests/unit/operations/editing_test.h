#ifndef VENDLINGUA_TESTS_UNIT_OPERATIONS_EDITING_TEST_H_
#define VENDLINGUA_TESTS_UNIT_OPERATIONS_EDITING_TEST_H_

#include <gmock/gmock.h>

#include <string>

#include "core/operations/editing.h"
#include "core/presentation/view_state.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"

namespace vendlingua::test {

/// A set whose destination is being edited.
class EditingTest : public testing::Test {
 protected:
  static constexpr int kBoxWidth = 3660;  // of the text, in twips

  EditingTest() { set_.phase = Phase::kDestinationOpen; }

  void Show(std::size_t message) {
    set_.current_message = message;
    window_.typed.reset();
  }

  ViewState view() const { return ViewOf(workspace_); }

  // What Label5(0..`cells` - 1) shows; "_" for an empty cell.
  std::string Captions(std::size_t cells) const {
    std::string captions;
    for (std::size_t i = 0; i < cells; ++i) {
      captions += static_cast<char>(view().Label5.at(i).caption.value_or('_'));
    }
    return captions;
  }

  // "d" for a dark cell, "p" for a pale one.
  std::string Backgrounds(std::size_t cells) const {
    std::string backgrounds;
    for (std::size_t i = 0; i < cells; ++i) {
      backgrounds += view().Label5.at(i).dark ? 'd' : 'p';
    }
    return backgrounds;
  }

  std::string EditBox() const { return Text(view().Text1.text); }

  std::string Destination(std::size_t message) const {
    return Text(set_.DestText.at(message).Cells());
  }

  static std::string Field(std::string text) {
    text.resize(40, ' ');
    return text;
  }

  Workspace workspace_;
  MessageSet& set_ = workspace_.set;
  WindowState& window_ = workspace_.window;
  Editing editing_{workspace_};
  ScriptedDialogs dialogs_;
};

/// Three messages of six cells, of which message 1 has placeholders.
class MesEditingTest : public EditingTest {
 protected:
  MesEditingTest() {
    set_.CurrentFileType = kMesType;
    set_.LastCol = 5;
    set_.LastMsg = 2;
    set_.LangStride = 4;
    set_.HeaderCount = 2;
    set_.OriginText[0] = DisplayText(Codes("Prova "));
    set_.OriginText[1] = DisplayText(Codes("Nr. \xFE\xFE"));
    set_.OriginText[2] = DisplayText(Codes("Lingua"));
    set_.DestText[0] = DisplayText(Codes("Test  "));
    set_.DestText[1] = DisplayText(Codes("No. \xFE\xFE"));
    set_.DestText[2] = DisplayText(Codes("Engl. "));
  }
};

/// The built-in table as origin.
class MsxEditingTest : public EditingTest {
 protected:
  MsxEditingTest() {
    set_.CurrentFileType = kMsxType;
    set_.LastCol = 15;
    set_.LastMsg = 454;
    set_.LangStride = 455;
    set_.HeaderCount = 171;
    set_.LoadDefaultMessages();
    set_.OriginText[6] = DisplayText(Codes(" Plate: no. 1234"));
    set_.DestText[6] = DisplayText(Codes(" Teller Nr. \xFE\xFE\xFE"));
  }
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_UNIT_OPERATIONS_EDITING_TEST_H_
