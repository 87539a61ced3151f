#include "desktop/desk/second_reference_box.h"

#include <QStringList>
#include <cstddef>

#include "desktop/desk/narrow_box.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kNone = 0;

}  // namespace

SecondReferenceBox::SecondReferenceBox(QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("DeskSecondReference"));
  addItem(QString());
  setSizeAdjustPolicy(AdjustToContents);
  LetBeNarrow(*this);
  connect(this, &QComboBox::activated, this, [this](int entry) {
    emit Chosen(entry == kNone ? std::string() : itemText(entry).toStdString());
  });
}

void SecondReferenceBox::Show(const MessageSet& set, const std::string& name) {
  QStringList names{itemText(kNone)};
  for (std::size_t language = 1; language < set.language_names.size(); ++language) {
    names += FromUtf8(set.language_names[language]);
  }
  QStringList shown;
  for (int entry = 0; entry < count(); ++entry) {
    shown += itemText(entry);
  }
  if (shown != names) {
    clear();
    addItems(names);
  }
  const qsizetype entry = name.empty() ? kNone : names.indexOf(FromUtf8(name), kNone + 1);
  setCurrentIndex(static_cast<int>(qMax<qsizetype>(entry, kNone)));
}

void SecondReferenceBox::SetCaptions(const UiText& ui_text) {
  setItemText(kNone, FromUtf8(ui_text[UiTextId::kNoSecondReference]));
  setAccessibleName(FromUtf8(ui_text[UiTextId::kSecondReference]));
  setToolTip(accessibleName());
}

}  // namespace vendlingua
