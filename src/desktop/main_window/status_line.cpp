#include "desktop/main_window/status_line.h"

#include "desktop/announce.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kGap = 6;  // pixels between the parts

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      status_(AddLabel(QStringLiteral("Status"))),
      details_(new QToolButton(this)),
      state_(AddLabel(QStringLiteral("StatusState"))) {
  details_->setObjectName(QStringLiteral("StatusDetails"));
  details_->setText(QStringLiteral("\u2026"));
  details_->setAutoRaise(true);
  details_->setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(details_);
  details_->hide();
  connect(details_, &QToolButton::clicked, this, &StatusLine::DetailsWanted);
}

QLabel* StatusLine::AddLabel(const QString& name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void StatusLine::SetCaptions(const UiText& ui_text) {
  status_->setAccessibleName(FromUtf8(ui_text[UiTextId::kStatus]));
  state_->setAccessibleName(FromUtf8(ui_text[UiTextId::kState]));
  details_->setAccessibleName(FromUtf8(ui_text[UiTextId::kDetails]));
  details_->setToolTip(details_->accessibleName());
}

void StatusLine::Show(const ViewState& view, const UiText& ui_text) {
  status_text_ = FromUtf8(view.status);
  hint_ = view.next_step ? FromUtf8(ui_text[*view.next_step]) : QString();
  languages_ = FromUtf8(view.StatusState.languages);
  place_ = FromUtf8(view.StatusState.place);
  ShowState();
  ShowStatus();
  Announce(*status_, status_text_);
}

// Beside a status half of the line is left to the state, where the languages stand whole or not at
// all; alone it has all of the line.
void StatusLine::ShowState() {
  const QFontMetrics metrics = state_->fontMetrics();
  const bool is_alone = status_text_.isEmpty() && hint_.isEmpty();
  const int room =
      (is_alone ? width() : width() / 2) - metrics.horizontalAdvance(place_) - 2 * kGap;
  const bool is_too_long = metrics.horizontalAdvance(languages_) > room;
  const QString languages =
      is_too_long && !is_alone ? QString() : metrics.elidedText(languages_, Qt::ElideMiddle, room);
  const QString gap = languages.isEmpty() ? QString() : QStringLiteral("  ");
  state_->setText(languages + gap + place_);
  const QString state = QStringLiteral("%1  %2").arg(languages_, place_).trimmed();
  state_->setToolTip(state);
  state_->setAccessibleDescription(state);
  const int state_width = metrics.horizontalAdvance(state_->text());
  state_->setGeometry(width() - state_width, 0, state_width, height());
}

// A path that is too long shows its two ends.
void StatusLine::ShowStatus() {
  const QString& text = status_text_.isEmpty() ? hint_ : status_text_;
  const QFontMetrics metrics = status_->fontMetrics();
  int room = state_->x() - (state_->text().isEmpty() ? 0 : kGap);
  const bool hides_something = metrics.horizontalAdvance(status_text_) > room;
  details_->setVisible(hides_something);
  if (hides_something) {
    const int button = height();
    room -= button;
    details_->setGeometry(room, 0, button, height());
  }
  status_->setGeometry(0, 0, room, height());
  status_->setText(metrics.elidedText(text, Qt::ElideMiddle, room));
  status_->setToolTip(status_text_);
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowState();
  ShowStatus();
}

}  // namespace vendlingua
