#include "desktop/dialogs/qt_texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QLatin1String>
#include <QLibraryInfo>
#include <QLocale>
#include <array>
#include <utility>

#include "desktop/interface_locale.h"
#include "desktop/qt_path.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

struct SharedText {
  const char* of_qt;
  UiTextId id;
};

// Texts of Qt that are among the interface texts.
constexpr std::array<SharedText, 9> kSharedTexts = {{{"&Yes", UiTextId::kYes},
                                                     {"&No", UiTextId::kNo},
                                                     {"Cancel", UiTextId::kCancel},
                                                     {"Cu&t", UiTextId::kCut},
                                                     {"&Copy", UiTextId::kCopyText},
                                                     {"&Paste", UiTextId::kPaste},
                                                     {"Delete", UiTextId::kDelete},
                                                     {"Select All", UiTextId::kSelectAll},
                                                     {"Look in:", UiTextId::kLookIn}}};

class InterfaceTexts : public QTranslator {
 public:
  explicit InterfaceTexts(const UiText& ui_text) : ui_text_(ui_text) {}

  bool isEmpty() const override { return false; }

  // A null string leaves the text to the next translator.
  QString translate(const char* context, const char* of_qt, const char* /*disambiguation*/,
                    int /*n*/) const override {
    for (const SharedText& text : kSharedTexts) {
      if (QLatin1String(of_qt) == QLatin1String(text.of_qt) && !ui_text_[text.id].empty()) {
        return FromUtf8(ui_text_[text.id]);
      }
    }
    return QLatin1String(context) == QLatin1String("QPlatformTheme") ? OlderButton(of_qt)
                                                                     : QString();
  }

 private:
  // Qt's older translations have the buttons of dialogs elsewhere.
  static QString OlderButton(const char* of_qt) {
    const QString text = QCoreApplication::translate("QDialogButtonBox", of_qt);
    return text == QLatin1String(of_qt) ? QString() : text;
  }

  const UiText& ui_text_;
};

// Qt's translations into `language` in `folder`: later ones come before earlier ones. Of a language
// of two countries both are there, because each may lack texts that the other has.
QStringList TranslationsIn(const QDir& folder, QLocale::Language language) {
  QStringList files;
  for (const QString& kind : {QStringLiteral("qtbase_"), QStringLiteral("qt_")}) {
    for (const QFileInfo& file : folder.entryInfoList({kind + QStringLiteral("*.qm")})) {
      if (QLocale(file.completeBaseName().mid(kind.size())).language() == language) {
        files += file.filePath();
      }
    }
  }
  return files;
}

}  // namespace

void QtTexts::Follow(const Workspace& workspace) {
  if (workspace.LanguageName == language_name_) {
    return;
  }
  language_name_ = workspace.LanguageName;
  translators_.clear();
  Install(std::make_unique<InterfaceTexts>(workspace.ui_text));
  const QLocale::Language language = LanguageOf(FromUtf8(language_name_));
  const std::array<QString, 2> folders = {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                                          ToQString(workspace.folders.program / "translations")};
  for (const QString& folder : folders) {
    for (const QString& file : TranslationsIn(folder, language)) {
      auto translator = std::make_unique<QTranslator>();
      if (language != QLocale::C && translator->load(file)) {
        Install(std::move(translator));
      }
    }
  }
}

// The one that is installed last is asked first.
void QtTexts::Install(std::unique_ptr<QTranslator> translator) {
  QCoreApplication::installTranslator(translator.get());
  translators_.push_back(std::move(translator));
}

}  // namespace vendlingua
