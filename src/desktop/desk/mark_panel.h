#ifndef VENDLINGUA_DESKTOP_DESK_MARK_PANEL_H_
#define VENDLINGUA_DESKTOP_DESK_MARK_PANEL_H_

#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <cstddef>
#include <vector>

#include "core/marks/document_marks.h"
#include "core/texts/ui_text.h"

namespace vendlingua {

/// What the translator notes beside the current message: a mark (`DeskMark`) and a remark
/// (`DeskRemark`), which counts when it is left.
class MarkPanel : public QWidget {
  Q_OBJECT

 public:
  explicit MarkPanel(QWidget* parent);

  void Show(const DocumentMarks& marks, std::size_t message, const UiText& ui_text);
  void SetCaptions(const UiText& ui_text);

  /// Goes on to the next mark, around to none.
  void Step();
  /// A remark that is being typed counts.
  void Finish();

 signals:
  void Marked(std::size_t message, const MessageMark& mark);

 private:
  struct LeftRemark {
    std::size_t message;
    MessageMark mark;
  };

  Q_INVOKABLE void TellLeftRemarks();
  void TakeMark();
  MessageMark Entered() const;

  QComboBox* mark_;
  QLineEdit* remark_;
  std::size_t message_ = 0;
  MessageMark shown_;
  std::vector<LeftRemark> left_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_MARK_PANEL_H_
