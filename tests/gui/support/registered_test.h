#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_REGISTERED_TEST_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_REGISTERED_TEST_H_

#include <QApplication>
#include <QSettings>
#include <QtTest>
#include <map>
#include <string>

#include "desktop/qt_path.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

/// Runs the test functions that the command line names, or all.
using TestMain = int (*)(int argc, char** argv);

/// The test classes of the program by their names. Each run of the program runs one of them, so
/// that none finds what another one left.
std::map<std::string, TestMain>& RegisteredTests();

/// Puts a test class among them: a constant of the file that holds the class.
struct RegisteredTest {
  RegisteredTest(const char* name, TestMain run) { RegisteredTests().emplace(name, run); }
};

/// File dialogs remember things from run to run: here they neither read nor write what those of the
/// user do.
template <typename Test, typename Application = QApplication>
int RunTest(int argc, char** argv) {
  const TemporaryFolder settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ToQString(settings.path()));
  const Application application(argc, argv);
  Test test;
  return QTest::qExec(&test, argc, argv);
}

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_REGISTERED_TEST_H_
