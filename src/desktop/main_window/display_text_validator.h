#ifndef VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_
#define VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_

#include <QStringList>
#include <QValidator>
#include <cstddef>

namespace vendlingua {

/// Lets only characters into an edit box that the display has, however they come: typed, pasted or
/// dropped. The others are taken out; a change that brings no other leaves the box as it is.
class DisplayTextValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  State validate(QString& input, int& caret) const override;

  /// The letters of display type `display` are taken, too.
  void SetDisplay(std::size_t display) { display_ = display; }

  /// `length` characters stay of the text that stood there before the change that comes.
  void Expect(qsizetype length) { kept_length_ = length; }

 signals:
  /// `characters` have no display code and were not taken.
  void Refused(const QStringList& characters) const;

 private:
  qsizetype kept_length_ = 0;
  std::size_t display_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_MAIN_WINDOW_DISPLAY_TEXT_VALIDATOR_H_
