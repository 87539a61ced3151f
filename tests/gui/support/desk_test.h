#ifndef VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_
#define VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_

#include <QLabel>
#include <QObject>
#include <QString>
#include <cstddef>
#include <memory>
#include <string_view>

#include "core/texts/ui_sentence.h"
#include "gui/support/desk.h"

namespace vendlingua::test {

/// Tests that each work at a desk of their own. A dialog that a test did not expect fails it.
class DeskTest : public QObject {
  Q_OBJECT

 protected:
  /// A control of the main window.
  template <typename Control>
  Control& Get(const char* name) {
    return desk_->program.Get<Control>(name);
  }

  /// Cell `index` of the origin.
  QLabel& Cell(int index) {
    return Get<QLabel>(qPrintable(QStringLiteral("Label5(%1)").arg(index)));
  }

  /// Makes the main window the active one, in which shortcuts hold.
  void Activate();

  /// Opens a ".MES" file at the translator's desk, from its first language into its second.
  void OpenAtDesk(std::string_view mes_content);

  /// Entry `number` of the interface texts in use.
  QString UiText(std::size_t number) const;

  QString UiText(UiTextId id) const { return UiText(static_cast<std::size_t>(id)); }

  /// What `sentence` says in the interface language.
  QString Say(const UiSentence& sentence) const;

  /// How the last command ended, as the status line says it in full.
  QString Status() const;

  /// Rows for a test in every interface language: "entry" is the name of its menu entry.
  static void AddEntriesOfLanguages();

  std::unique_ptr<Desk> desk_;

 private slots:
  void init();
  void cleanup();
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_GUI_SUPPORT_DESK_TEST_H_
