#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_

#include <QObject>
#include <QString>
#include <cstddef>
#include <memory>

#include "core/texts/ui_sentence.h"
#include "gui/support/desk.h"

namespace vendlingua::test {

/// Tests that each work at a desk of their own. A dialog that a test did not expect fails it.
class DeskTest : public QObject {
  Q_OBJECT

 protected:
  /// Entry `number` of the interface texts in use.
  QString UiText(std::size_t number) const;

  /// What `sentence` says in the interface language.
  QString Say(const UiSentence& sentence) const;

  /// How the last command ended, as the status line says it in full.
  QString Status() const;

  std::unique_ptr<Desk> desk_;

 private slots:
  void init();
  void cleanup();
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_
