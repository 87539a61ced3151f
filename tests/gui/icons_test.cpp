#include <QImage>
#include <QPixmap>
#include <QSize>

#include "desktop/icon.h"
#include "gui/support/registered_test.h"

namespace vendlingua::test {
namespace {

constexpr int kMenuSize = 16;

bool IsDrawn(const QImage& picture) {
  for (int x = 0; x < picture.width(); ++x) {
    if (qAlpha(picture.pixel(x, picture.height() / 2)) > 0x80) {
      return true;
    }
  }
  return false;
}

}  // namespace

class IconsTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryIconIsThere_data();
  void EveryIconIsThere();
  void NoneIsScaledOnALargerScreen_data();
  void NoneIsScaledOnALargerScreen();
  void TheProgramIsShownLarge();
};

void IconsTest::EveryIconIsThere_data() {
  QTest::addColumn<QString>("name");
  for (const char* name : {"changed", "done", "finding", "note", "plus", "todo", "vendlingua"}) {
    QTest::newRow(name) << QString::fromLatin1(name);
  }
}

void IconsTest::EveryIconIsThere() {
  QFETCH(QString, name);
  const QImage picture = Icon(QLatin1String(name.toLatin1())).pixmap(kMenuSize).toImage();
  QCOMPARE(picture.size(), QSize(kMenuSize, kMenuSize));
  QVERIFY(IsDrawn(picture));
  QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
}

void IconsTest::NoneIsScaledOnALargerScreen_data() {
  QTest::addColumn<qreal>("ratio");
  QTest::newRow("125 %") << 1.25;
  QTest::newRow("150 %") << 1.5;
  QTest::newRow("200 %") << 2.0;
  QTest::newRow("300 %") << 3.0;
}

void IconsTest::NoneIsScaledOnALargerScreen() {
  QFETCH(qreal, ratio);
  const QPixmap shown = Icon(QLatin1String("plus")).pixmap(QSize(kMenuSize, kMenuSize), ratio);
  const int drawn = qRound(kMenuSize * ratio);
  QImage picture(QStringLiteral(":/icons/plus-%1.png").arg(drawn));
  QVERIFY(!picture.isNull());
  picture.setDevicePixelRatio(ratio);
  QCOMPARE(shown.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
           picture.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void IconsTest::TheProgramIsShownLarge() {
  constexpr int kLargest = 256;
  QCOMPARE(ProgramIcon().pixmap(kLargest).size(), QSize(kLargest, kLargest));
}

namespace {
const RegisteredTest kIconsTest("icons_test", RunTest<IconsTest>);
}  // namespace

}  // namespace vendlingua::test

#include "icons_test.moc"
