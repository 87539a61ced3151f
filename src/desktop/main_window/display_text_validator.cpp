#include "desktop/main_window/display_text_validator.h"

#include <algorithm>

#include "desktop/fonts/widget_text.h"

namespace vendlingua {

QValidator::State DisplayTextValidator::validate(QString& input, int& caret) const {
  QString taken;
  QStringList refused;
  int position = 0;
  int taken_before_caret = 0;
  for (const char32_t character : input.toUcs4()) {
    const DisplayCodes codes = EnteredCodes(character, display_);
    const QString text = QString::fromUcs4(&character, 1);
    taken += ToWidgetText(codes);
    taken_before_caret += position < caret ? static_cast<int>(codes.size()) : 0;
    if (codes.empty()) {
      refused += text;
    }
    position += static_cast<int>(text.size());
  }
  const bool brings_nothing = !refused.isEmpty() && taken.size() <= kept_length_;
  input = taken;
  caret = taken_before_caret;
  if (!refused.isEmpty()) {
    refused.removeDuplicates();
    emit Refused(refused);
  }
  return brings_nothing ? Invalid : Acceptable;
}

}  // namespace vendlingua
