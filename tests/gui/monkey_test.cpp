#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "desktop/application.h"
#include "desktop/qt_path.h"
#include "gui/support/registered_test.h"
#include "gui/support/running_program.h"
#include "support/message_files.h"
#include "support/temporary_folder.h"

// A user who does anything, while other programs change the files: whatever comes of it, the
// document is whole and what was saved is on the disk.

namespace vendlingua::test {
namespace {

namespace fs = std::filesystem;

int FromEnvironment(const char* variable, int otherwise) {
  const int value = qEnvironmentVariableIntValue(variable);
  return value > 0 ? value : otherwise;
}

}  // namespace

class Chance {
 public:
  explicit Chance(unsigned seed) : source_(seed) {}

  // From 0 to below `end`.
  int Below(std::size_t end) { return static_cast<int>(source_() % end); }
  bool OneIn(std::size_t times) { return Below(times) == 0; }

  template <typename Item>
  const Item& Of(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>(Below(items.size()))];
  }

  std::string Text(std::size_t longest) {
    std::string text;
    for (int left = Below(longest + 1); left > 0; --left) {
      text += static_cast<char>(' ' + Below(95));
    }
    return text;
  }

 private:
  std::mt19937 source_;
};

// Answers every dialog somehow.
class MonkeyAnswers : public QObject {
 public:
  MonkeyAnswers(Chance& chance, std::vector<fs::path> files)
      : chance_(chance), files_(std::move(files)) {
    connect(&timer_, &QTimer::timeout, this, &MonkeyAnswers::Poll);
    timer_.start(1);
  }

 private:
  void Poll() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) {
      return;
    }
    const QPointer<QDialog> waiting(dialog);
    QMetaObject::invokeMethod(
        this,
        [this, waiting] {
          if (waiting && waiting->isVisible()) {
            Answer(*waiting);
          }
        },
        Qt::QueuedConnection);
  }

  void Answer(QDialog& dialog) {
    if (auto* files = qobject_cast<QFileDialog*>(&dialog); files != nullptr && !chance_.OneIn(4)) {
      files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
          ->setText(ToQString(chance_.Of(files_)));
      QMetaObject::invokeMethod(files, "accept");
    } else if (auto* input = qobject_cast<QInputDialog*>(&dialog)) {
      input->setTextValue(QString::fromStdString(chance_.Text(20)));
      chance_.OneIn(3) ? input->reject() : input->accept();
    } else if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
      const QList<QAbstractButton*> buttons = box->buttons();
      buttons.at(chance_.Below(static_cast<std::size_t>(buttons.size())))->click();
    } else if (auto* button = dialog.findChild<QPushButton*>(
                   chance_.OneIn(2) ? QStringLiteral("KeepMine") : QStringLiteral("TakeTheirs"))) {
      button->click();
    } else {
      dialog.reject();
    }
  }

  Chance& chance_;
  std::vector<fs::path> files_;
  QTimer timer_;
};

class MonkeyTest : public QObject {
  Q_OBJECT

 private:
  const unsigned seed_ = static_cast<unsigned>(FromEnvironment("MONKEY_SEED", 455));
  const int actions_ = FromEnvironment("MONKEY_ACTIONS", 2000);
  Chance chance_{seed_};
  TemporaryFolder folder_;
  const std::string content_ =
      MesFile({.last_msg = 9, .stride = 12, .names = {"Default", "ITALIANO", "ENGLISH"}}).Bytes();
  std::unique_ptr<RunningProgram> program_;
  std::string last_action_;

  std::vector<fs::path> Files() {
    return {folder_ / "A.MES", folder_ / "B.MSX", folder_ / "COPY.MES", folder_ / "COPY2.MES",
            folder_ / "FW0000AA.hex"};
  }

  void Do(const std::string& name, const std::function<void()>& action) {
    last_action_ = name;
    action();
    QApplication::processEvents();
  }

  void ChooseSome(const char* array, int below) {
    const std::string name = std::string(array) + "(" +
                             std::to_string(chance_.Below(static_cast<std::size_t>(below))) + ")";
    Do(name, [&] { program_->Choose(name.c_str()); });
  }

  void Type() {
    auto& edit = program_->Get<QLineEdit>("Text1");
    if (!edit.isEnabled()) {
      return;
    }
    if (chance_.OneIn(2)) {
      edit.selectAll();
    }
    const std::string text = chance_.Text(8);
    Do("type " + text, [&] { QTest::keyClicks(&edit, QString::fromStdString(text)); });
  }

  void Scroll() {
    auto& bar = program_->Get<QScrollBar>("HScroll1");
    const int value = chance_.Below(static_cast<std::size_t>(bar.maximum()) + 1);
    Do("scroll to " + std::to_string(value), [&] { bar.setValue(value); });
  }

  // Another program saves a text, or does worse.
  void Tamper() {
    const fs::path path = folder_ / "A.MES";
    std::string content = fs::exists(path) ? Slurp(path) : content_;
    const int kind = chance_.Below(8);
    if (kind == 0) {
      content = content_;
    } else if (kind == 1) {
      content.resize(content.size() / 2);
    } else if (kind == 2) {
      Do("remove the file", [&] { fs::remove(path); });
      return;
    } else if (content.size() > 200) {
      content.replace(std::size_t{100} + static_cast<std::size_t>(chance_.Below(80)), 4, "they");
    }
    Do("tamper " + std::to_string(kind), [&] { folder_.Write("A.MES", content); });
  }

  void Click(const char* button) {
    auto& found = program_->Get<QAbstractButton>(button);
    if (found.isVisible() && found.isEnabled()) {
      Do(button, [&] { found.click(); });
    }
  }

  void Compile() {
    Do("compile", [&] { program_->Choose("mnuMake"); });
    if (program_->compiler() != nullptr) {
      program_->GetInCompiler<QAbstractButton>("Check1(1)").click();
      Do("compile now", [&] { program_->GetInCompiler<QPushButton>("Command1").click(); });
    }
  }

  void Act() {
    const int action = chance_.Below(100);
    if (action < 35) {
      Type();
    } else if (action < 50) {
      Scroll();
    } else if (action < 55) {
      Do("undo", [&] { program_->Choose("mnuUndo"); });
    } else if (action < 59) {
      Do("redo", [&] { program_->Choose("mnuRedo"); });
    } else if (action < 66) {
      Save();
    } else if (action < 68) {
      Do("save as", [&] { program_->Choose("mnuSaas"); });
    } else if (action < 72) {
      Do("open", [&] { program_->Choose("mnuOpen"); });
    } else if (action < 77) {
      ChooseSome("mnuori", 4);
    } else if (action < 82) {
      ChooseSome("mnuDes", 4);
    } else if (action < 84) {
      ChooseSome("mnuNew", 4);
    } else if (action < 86) {
      ChooseSome("mnuLCD", 4);
    } else if (action < 87) {
      ChooseSome("smnuLingue", 9);
    } else if (action < 90) {
      Do("copy", [&] { program_->Choose("mnuCopy"); });
    } else if (action < 92) {
      Click("Command2");
    } else if (action < 93) {
      Click("Command1");
    } else if (action < 94) {
      Compile();
    } else if (action < 95) {
      Do("desk", [&] { program_->Choose("mnuDesk"); });
    } else {
      Tamper();
    }
  }

  // What a save says that it did is on the disk.
  void Save() {
    if (!program_->Entry("mnuSave").isEnabled()) {
      return;
    }
    Do("save", [&] { program_->Choose("mnuSave"); });
    const Workspace& workspace = program_->workspace();
    const bool is_done =
        !workspace.ui_text[UiTextId::kSaved].empty() &&
        workspace.window.status.starts_with(workspace.ui_text[UiTextId::kSaved] + " ");
    if (is_done) {
      QCOMPARE(Slurp(workspace.set.CurrentFileName), workspace.set.file_content);
      QVERIFY(workspace.set.Modified == kFalse);
    }
  }

  void ExpectAWholeDocument() {
    const MessageSet& set = program_->set();
    QVERIFY(set.DestText.size() >= set.MessageCount());
    QVERIFY(set.OriginText.size() >= set.MessageCount());
    QVERIFY(set.current_message < set.OriginText.size());
    if (set.DestinationIsOpen()) {
      QVERIFY(set.current_message <= set.LastMsg);
      QVERIFY(set.IsMes() || set.IsMsx());
      QVERIFY(set.EditedText(set.current_message).size() <= set.Width());
      QVERIFY(set.phase == Phase::kDestinationUnnamed || set.HoldsLanguage(set.DestLang));
    }
    // The built-in table is there for a .MSX file of any firmware.
    if (set.origin_language && *set.origin_language != 0) {
      QVERIFY(set.HoldsLanguage(*set.origin_language));
    }
  }

 private slots:
  void LeavesAWholeDocumentWhateverItDoes() {
    folder_.Write("A.MES", content_);
    folder_.Write("B.MSX", MsxFile(2));
    program_ = std::make_unique<RunningProgram>(folder_ / "bin");
    MonkeyAnswers answers(chance_, Files());
    for (int action = 0; action < actions_; ++action) {
      Act();
      ExpectAWholeDocument();
      if (QTest::currentTestFailed()) {
        qCritical("action %d of seed %u: %s", action, seed_, last_action_.c_str());
        return;
      }
    }
  }
};

namespace {
const RegisteredTest kMonkeyTest("monkey_test", (RunTest<MonkeyTest, vendlingua::Application>));
}  // namespace

}  // namespace vendlingua::test

#include "monkey_test.moc"
