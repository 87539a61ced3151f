#include "desktop/desk/mark_panel.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <algorithm>
#include <array>
#include <utility>

#include "core/platform/errors.h"
#include "core/texts/ui_sentence.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

struct MarkEntry {
  Mark mark;
  UiTextId text;
};

constexpr std::array<MarkEntry, 3> kMarkEntries = {{{Mark::kNone, UiTextId::kNoMark},
                                                    {Mark::kDone, UiTextId::kMarkedDone},
                                                    {Mark::kNeedsWork, UiTextId::kNeedsWork}}};

int EntryOf(Mark mark) {
  const auto* found = std::ranges::find(kMarkEntries, mark, &MarkEntry::mark);
  return static_cast<int>(found - kMarkEntries.begin());
}

}  // namespace

MarkPanel::MarkPanel(QWidget* parent)
    : QWidget(parent), mark_(new QComboBox(this)), remark_(new QLineEdit(this)) {
  mark_->setObjectName(QStringLiteral("DeskMark"));
  remark_->setObjectName(QStringLiteral("DeskRemark"));
  for (std::size_t i = 0; i < kMarkEntries.size(); ++i) {
    mark_->addItem(QString());
  }
  mark_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mark_);
  layout->addWidget(remark_, 1);
  connect(mark_, &QComboBox::activated, this, &MarkPanel::TakeMark);
  connect(remark_, &QLineEdit::editingFinished, this, &MarkPanel::Finish);
}

void MarkPanel::Show(const DocumentMarks& marks, std::size_t message, const UiText& ui_text) {
  const MessageMark& mark = marks.Of(message);
  setEnabled(marks.CanMark());
  const auto unreadable = marks.Unreadable();
  const std::string why =
      unreadable
          ? UiSentence(UiTextId::kMarksUnreadable, PathText(unreadable->filename())).In(ui_text)
          : "";
  setToolTip(FromUtf8(why));
  if (message == message_ && mark == shown_) {
    return;
  }
  if (message != message_ && remark_->isModified()) {
    // A key led on while the remark was typed. What shows the document must not change it.
    left_.push_back({message_, Entered()});
    QMetaObject::invokeMethod(this, "TellLeftRemarks", Qt::QueuedConnection);
  }
  message_ = message;
  shown_ = mark;
  mark_->setCurrentIndex(EntryOf(mark.mark));
  remark_->setText(FromUtf8(mark.remark));
}

void MarkPanel::TellLeftRemarks() {
  for (const LeftRemark& left : std::exchange(left_, {})) {
    emit Marked(left.message, left.mark);
  }
}

void MarkPanel::SetCaptions(const UiText& ui_text) {
  for (std::size_t i = 0; i < kMarkEntries.size(); ++i) {
    mark_->setItemText(static_cast<int>(i), FromUtf8(ui_text[kMarkEntries.at(i).text]));
  }
  mark_->setAccessibleName(FromUtf8(ui_text[UiTextId::kMark]));
  mark_->setToolTip(QStringLiteral("%1 (%2)").arg(
      mark_->accessibleName(),
      QKeySequence(Qt::CTRL | Qt::Key_M).toString(QKeySequence::NativeText)));
  remark_->setPlaceholderText(FromUtf8(ui_text[UiTextId::kRemark]));
  remark_->setAccessibleName(remark_->placeholderText());
}

void MarkPanel::Step() {
  if (isEnabled()) {
    mark_->setCurrentIndex((mark_->currentIndex() + 1) % mark_->count());
    TakeMark();
  }
}

void MarkPanel::Finish() {
  if (remark_->isModified()) {
    TakeMark();
  }
}

void MarkPanel::TakeMark() {
  remark_->setModified(false);
  if (const MessageMark mark = Entered(); mark != shown_) {
    emit Marked(message_, mark);
  }
}

MessageMark MarkPanel::Entered() const {
  const auto entry = static_cast<std::size_t>(mark_->currentIndex());
  return {kMarkEntries.at(entry).mark, remark_->text().trimmed().toStdString()};
}

}  // namespace vendlingua
