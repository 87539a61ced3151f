#include "desktop/desk/find_bar.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <array>

#include "desktop/announce.h"
#include "desktop/desk/narrow_box.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

constexpr int kResultLetters = 20;

constexpr std::array<UiTextId, 3> kTexts = {UiTextId::kBothTexts, UiTextId::kOriginHeading,
                                            UiTextId::kDestinationHeading};

QString WithKey(const std::string& text, QLatin1String key) {
  return QStringLiteral("%1 (%2)").arg(FromUtf8(text), key);
}

void Name(QWidget& widget, const QString& name) {
  widget.setAccessibleName(name);
  widget.setToolTip(name);
}

}  // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent),
      find_(new QLineEdit(this)),
      texts_(new QComboBox(this)),
      expression_(new QToolButton(this)),
      previous_(new QToolButton(this)),
      next_(new QToolButton(this)),
      result_(new QLabel(this)),
      replace_by_(new QLineEdit(this)),
      replace_(new QPushButton(this)),
      beside_(new QHBoxLayout) {
  find_->setObjectName(QStringLiteral("DeskFind"));
  texts_->setObjectName(QStringLiteral("DeskFindTexts"));
  expression_->setObjectName(QStringLiteral("DeskFindExpression"));
  previous_->setObjectName(QStringLiteral("DeskFindPrevious"));
  next_->setObjectName(QStringLiteral("DeskFindNext"));
  result_->setObjectName(QStringLiteral("DeskFindResult"));
  replace_by_->setObjectName(QStringLiteral("DeskReplaceBy"));
  replace_->setObjectName(QStringLiteral("DeskReplace"));
  BuildFindRow();
  BuildReplaceRow();
  LayOut();
  ShowResult(QString(), false);
}

void FindBar::BuildFindRow() {
  find_->setClearButtonEnabled(true);
  find_->installEventFilter(this);
  for (std::size_t i = 0; i < kTexts.size(); ++i) {
    texts_->addItem(QString());
  }
  LetBeNarrow(*texts_);
  expression_->setText(QStringLiteral(".*"));
  expression_->setCheckable(true);
  previous_->setArrowType(Qt::UpArrow);
  next_->setArrowType(Qt::DownArrow);
  for (QToolButton* button : {expression_, previous_, next_}) {
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
  }
  result_->setTextFormat(Qt::PlainText);
  result_->setMinimumWidth(kResultLetters * result_->fontMetrics().averageCharWidth());
  connect(find_, &QLineEdit::textChanged, this, &FindBar::SearchChanged);
  connect(texts_, &QComboBox::currentIndexChanged, this, &FindBar::SearchChanged);
  connect(expression_, &QToolButton::toggled, this, &FindBar::SearchChanged);
  connect(previous_, &QToolButton::clicked, this, &FindBar::PreviousWanted);
  connect(next_, &QToolButton::clicked, this, &FindBar::NextWanted);
}

void FindBar::BuildReplaceRow() {
  replace_by_->installEventFilter(this);
  connect(replace_, &QPushButton::clicked, this, &FindBar::ReplaceWanted);
}

void FindBar::LayOut() {
  auto* steps = new QHBoxLayout;
  for (QToolButton* button : {expression_, previous_, next_}) {
    steps->addWidget(button);
  }
  steps->addWidget(result_, 1);
  auto* rows = new QGridLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(find_, 0, 0);
  rows->addWidget(texts_, 0, 1);
  rows->addLayout(steps, 0, 2);
  rows->addWidget(replace_by_, 1, 0);
  rows->addWidget(replace_, 1, 1);
  rows->addLayout(beside_, 1, 2);
  rows->setColumnStretch(0, 1);
}

void FindBar::SetCaptions(const UiText& ui_text) {
  const QSignalBlocker blocker(texts_);
  find_->setPlaceholderText(FromUtf8(ui_text[UiTextId::kFind]));
  Name(*find_, WithKey(ui_text[UiTextId::kFind], QLatin1String("Ctrl+F")));
  Name(*texts_, FromUtf8(ui_text[UiTextId::kSearchedTexts]));
  for (int i = 0; i < texts_->count(); ++i) {
    texts_->setItemText(i, FromUtf8(ui_text[kTexts.at(static_cast<std::size_t>(i))]));
  }
  Name(*expression_, FromUtf8(ui_text[UiTextId::kRegularExpression]));
  Name(*next_, WithKey(ui_text[UiTextId::kFindNext], QLatin1String("F3")));
  Name(*previous_, WithKey(ui_text[UiTextId::kFindPrevious], QLatin1String("Shift+F3")));
  replace_by_->setPlaceholderText(FromUtf8(ui_text[UiTextId::kReplaceWith]));
  Name(*replace_by_, FromUtf8(ui_text[UiTextId::kReplaceWith]));
  replace_->setText(FromUtf8(ui_text[UiTextId::kReplaceAll]));
}

TextSearch FindBar::SearchIn(const Alphabet& alphabet) const {
  return {
      find_->text(),
      expression_->isChecked() ? TextSearch::Kind::kRegularExpression : TextSearch::Kind::kPlain,
      static_cast<SearchedTexts>(texts_->currentIndex()), alphabet};
}

void FindBar::ShowResult(const QString& result, bool found) {
  result_->setText(result);
  result_->setToolTip(result);
  Announce(*result_, result);
  previous_->setEnabled(found);
  next_->setEnabled(found);
  replace_->setEnabled(found);
}

void FindBar::Begin() {
  find_->setFocus(Qt::ShortcutFocusReason);
  find_->selectAll();
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (key.key() == Qt::Key_Escape) {
      emit Left();
      return true;
    }
    if (enter && watched == find_) {
      emit key.modifiers().testFlag(Qt::ShiftModifier) ? PreviousWanted() : NextWanted();
      return true;
    }
    if (enter) {
      replace_->click();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace vendlingua
