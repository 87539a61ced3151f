#include "gui/support/desk_test.h"

#include <QByteArray>
#include <QLabel>
#include <QTest>

namespace vendlingua::test {

void DeskTest::Activate() {
  desk_->program.window().activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&desk_->program.window()));
}

void DeskTest::OpenAtDesk(std::string_view mes_content) {
  desk_->Open("TEST.MES", mes_content);
  desk_->program.Choose("mnuori(1)");
  desk_->program.Choose("mnuDes(2)");
  desk_->program.Choose("mnuDesk");
  QVERIFY(QTest::qWaitForWindowActive(&desk_->program.desk()));
}

QString DeskTest::UiText(std::size_t number) const {
  return QString::fromStdString(desk_->program.workspace().ui_text.Entry(number));
}

QString DeskTest::Say(const UiSentence& sentence) const {
  return QString::fromStdString(sentence.In(desk_->program.workspace().ui_text));
}

QString DeskTest::Status() const { return desk_->program.Get<QLabel>("Status").toolTip(); }

void DeskTest::AddEntriesOfLanguages() {
  QTest::addColumn<QByteArray>("entry");
  for (int language = 0; language < 9; ++language) {
    const QByteArray entry = "smnuLingue(" + QByteArray::number(language) + ")";
    QTest::newRow(entry.constData()) << entry;
  }
}

void DeskTest::init() { desk_ = std::make_unique<Desk>(); }

void DeskTest::cleanup() {
  const QStringList surprises = desk_->user.Surprises();
  desk_.reset();
  QVERIFY2(surprises.isEmpty(), qPrintable(surprises.join(QLatin1Char('\n'))));
}

}  // namespace vendlingua::test
