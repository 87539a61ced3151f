#include "gui/support/dialog_answerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <utility>

#include "desktop/qt_path.h"

namespace vendlingua::test {
namespace {

bool ClickIn(QDialog& dialog, QMessageBox::StandardButton button) {
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  if (box == nullptr || box->button(button) == nullptr) {
    return false;
  }
  box->button(button)->click();
  return true;
}

QStringList ShownFilters(const QFileDialog& dialog) {
  const auto* filters = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
  QStringList captions;
  for (int i = 0; i < filters->count(); ++i) {
    captions += filters->itemText(i);
  }
  return captions;
}

bool HasOneButton(QDialog& dialog) {
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  return box != nullptr && box->buttons().size() == 1;
}

}  // namespace

DialogAnswerer::DialogAnswerer() {
  constexpr int kMilliseconds = 5;
  connect(&timer_, &QTimer::timeout, this, &DialogAnswerer::Poll);
  timer_.start(kMilliseconds);
}

void DialogAnswerer::Click(const QString& button) {
  Expect([button](QDialog& dialog) {
    auto* found = dialog.findChild<QAbstractButton*>(button);
    if (found == nullptr) {
      return false;
    }
    found->click();
    return true;
  });
}

void DialogAnswerer::Type(const QString& text) {
  Expect([text](QDialog& dialog) {
    auto* input = qobject_cast<QInputDialog*>(&dialog);
    if (input == nullptr) {
      return false;
    }
    input->setTextValue(text);
    input->accept();
    return true;
  });
}

// Types the path as a user would, so that the questions of the file dialog itself are asked too.
void DialogAnswerer::Choose(const std::filesystem::path& path) {
  Expect([path](QDialog& dialog) {
    auto* files = qobject_cast<QFileDialog*>(&dialog);
    if (files == nullptr) {
      return false;
    }
    files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(ToQString(path));
    QMetaObject::invokeMethod(files, "accept");
    return true;
  });
}

QStringList DialogAnswerer::Surprises() const {
  QStringList surprises = surprises_;
  if (!answers_.empty()) {
    surprises += QStringLiteral("%1 answers were not asked for").arg(answers_.size());
  }
  return surprises;
}

// The timer does not fire again inside its own event, but an answer may bring up a further dialog:
// so the answer is given in an event of its own.
void DialogAnswerer::Poll() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible() || in_answer_.contains(dialog)) {
    return;
  }
  const QPointer<QDialog> waiting(dialog);
  in_answer_ += waiting;
  const auto answer = [this, waiting] {
    if (waiting) {
      AnswerNow(*waiting);
    }
    in_answer_.removeAll(waiting);
  };
  QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
}

void DialogAnswerer::AnswerNow(QDialog& dialog) {
  Note(dialog);
  if (on_dialog) {
    on_dialog(dialog);
  }
  if (HasOneButton(dialog)) {
    AcceptDialog(dialog);
  } else {
    const Answer answer = answers_.empty() ? Answer() : answers_.front();
    if (!answers_.empty()) {
      answers_.pop_front();
    }
    if (!answer || !answer(dialog)) {
      Surprise(dialog);
    }
  }
}

// Some questions are asked until they have an answer.
void DialogAnswerer::Surprise(QDialog& dialog) {
  constexpr qsizetype kMost = 20;
  surprises_ += dialog.windowTitle() + QStringLiteral(": no answer fits");
  if (surprises_.size() > kMost) {
    qFatal("%s", qPrintable(surprises_.join(QLatin1Char('\n'))));
  }
  dialog.done(QDialog::Rejected);
}

void DialogAnswerer::Note(QDialog& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    boxes_.push_back({box->icon(), box->text(), box->windowTitle(), box->standardButtons()});
  } else if (auto* input = qobject_cast<QInputDialog*>(&dialog)) {
    inputs_.push_back({input->labelText(), input->windowTitle(), input->textValue()});
  } else if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
    files_.push_back({files->windowTitle(), ShownFilters(*files), files->defaultSuffix(),
                      files->directory().absolutePath(),
                      files->acceptMode() == QFileDialog::AcceptSave,
                      !files->testOption(QFileDialog::DontConfirmOverwrite)});
  }
}

bool DialogAnswerer::AnswerYes(QDialog& dialog) { return ClickIn(dialog, QMessageBox::Yes); }

bool DialogAnswerer::AnswerNo(QDialog& dialog) { return ClickIn(dialog, QMessageBox::No); }

bool DialogAnswerer::Reject(QDialog& dialog) {
  dialog.reject();
  return true;
}

bool DialogAnswerer::AcceptDialog(QDialog& dialog) {
  QMetaObject::invokeMethod(&dialog, "accept");
  return true;
}

}  // namespace vendlingua::test
