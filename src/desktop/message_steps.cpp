#include "desktop/message_steps.h"

#include <QKeySequence>
#include <QShortcut>
#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <utility>

#include "core/desk/message_list.h"
#include "core/texts/ui_sentence.h"

namespace vendlingua {
namespace {

// Nothing when `text` is no number, or one that no message has.
std::optional<std::size_t> MessageAnswered(const std::string& text, const MessageSet& set) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool is_number = error == std::errc() && end == text.data() + text.size();
  return is_number && number <= set.LastMsg ? std::optional(number) : std::nullopt;
}

}  // namespace

MessageSteps::MessageSteps(Engine& engine, Dialogs& dialogs, RunCommand run, QWidget& window)
    : QObject(&window), engine_(engine), dialogs_(dialogs), run_(std::move(run)), window_(window) {
  AddKey(Qt::CTRL | Qt::Key_Down, &MessageSteps::GoToNextToDo);
  AddKey(Qt::CTRL | Qt::Key_Up, &MessageSteps::GoToPreviousToDo);
  AddKey(Qt::CTRL | Qt::Key_G, &MessageSteps::AskForMessage);
}

void MessageSteps::AddPageKeys() {
  AddKey(Qt::Key_PageUp, &MessageSteps::GoBack);
  AddKey(Qt::Key_PageDown, &MessageSteps::GoForward);
  AddKey(Qt::ALT | Qt::Key_Left, &MessageSteps::GoBack);
  AddKey(Qt::ALT | Qt::Key_Right, &MessageSteps::GoForward);
  AddKey(Qt::CTRL | Qt::Key_Home, &MessageSteps::GoToFirst);
  AddKey(Qt::CTRL | Qt::Key_End, &MessageSteps::GoToLast);
}

void MessageSteps::AddKey(QKeyCombination key, void (MessageSteps::*go)()) {
  auto* shortcut = new QShortcut(QKeySequence(key), &window_);
  connect(shortcut, &QShortcut::activated, this, go);
}

bool MessageSteps::LeadsOn(const QKeyEvent& event) {
  return event.modifiers() == Qt::ControlModifier &&
         (event.key() == Qt::Key_Home || event.key() == Qt::Key_End);
}

void MessageSteps::GoTo(std::size_t message) {
  if (message == engine_.workspace.set.current_message) {
    return;
  }
  run_([&] { engine_.editing.GoTo(message); }, window_);
}

void MessageSteps::GoBack() {
  const std::size_t message = engine_.workspace.set.current_message;
  GoTo(message == 0 ? 0 : message - 1);
}

void MessageSteps::GoForward() {
  const MessageSet& set = engine_.workspace.set;
  GoTo(std::min<std::size_t>(set.current_message + 1, set.LastMsg));
}

void MessageSteps::GoToLast() { GoTo(engine_.workspace.set.LastMsg); }

void MessageSteps::GoToNextToDo() {
  const MessageSet& set = engine_.workspace.set;
  if (const auto next = CanGo() ? NextToDo(set, set.current_message) : std::nullopt) {
    GoTo(*next);
  }
}

void MessageSteps::GoToPreviousToDo() {
  const MessageSet& set = engine_.workspace.set;
  if (const auto previous = CanGo() ? PreviousToDo(set, set.current_message) : std::nullopt) {
    GoTo(*previous);
  }
}

void MessageSteps::AskForMessage() {
  Workspace& workspace = engine_.workspace;
  if (!CanGo()) {
    return;
  }
  run_(
      [&] {
        const UiText& ui_text = workspace.ui_text;
        const std::string answer = dialogs_.InputBox(
            {InputPurpose::kMessageNumber,
             UiSentence(UiTextId::kGoToPrompt, workspace.set.LastMsg).In(ui_text),
             ui_text[UiTextId::kGoToMessage], std::to_string(workspace.set.current_message)});
        if (answer.empty()) {
          return;
        }
        if (const auto message = MessageAnswered(answer, workspace.set)) {
          engine_.editing.GoTo(*message);
        } else {
          workspace.window.status = UiSentence(UiTextId::kNoSuchMessage, answer).In(ui_text);
        }
      },
      window_);
}

}  // namespace vendlingua
