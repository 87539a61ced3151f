#ifndef VENDLINGUA_DESKTOP_DIALOGS_QT_TEXTS_H_
#define VENDLINGUA_DESKTOP_DIALOGS_QT_TEXTS_H_

#include <QStringList>
#include <QTranslator>
#include <memory>
#include <string>
#include <vector>

#include "core/document/workspace.h"

namespace vendlingua {

/// The texts that come with Qt (its file dialog, the OK button, the menu of the edit box) in the
/// interface language: from Qt's translations, then from the interface texts, else in English. Qt's
/// translations are looked for in "translations" beside the program and where Qt has its own.
class QtTexts {
 public:
  /// Speaks the interface language of `workspace` from now on.
  void Follow(const Workspace& workspace);

 private:
  void Install(std::unique_ptr<QTranslator> translator);

  std::string language_name_;
  std::vector<std::unique_ptr<QTranslator>> translators_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DIALOGS_QT_TEXTS_H_
