#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_

#include <QValidator>

namespace vendlingua {

/// Lets only characters into an edit box that the display has, however they come: typed, pasted or
/// dropped. The others are taken out.
class DisplayTextValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& input, int& caret) const override;

 signals:
  /// `character` has no display code and was not taken.
  void Refused(const QString& character) const;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_
