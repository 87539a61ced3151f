#include "desktop/main_window/editor_panel.h"

#include <QFontDatabase>
#include <algorithm>

#include "core/presentation/twips.h"
#include "desktop/announce.h"
#include "desktop/fonts/display_font.h"
#include "desktop/fonts/widget_text.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

// The places of the controls, in pixels. Those of the design are kept where it gives them.
constexpr int kPanelWidth = 347;
constexpr int kTextLeft = PixelsFromTwips(1200);
constexpr int kTextHeight = PixelsFromTwips(345);
constexpr int kDesignTextWidth = PixelsFromTwips(3660);
constexpr int kLeft = 8;
constexpr int kRight = 339;
constexpr int kLineHeight = 18;
constexpr int kCaptionPixels = 12;
// So that the edit box can stand under the cells without a frame, its frame stands around it.
constexpr int kFrameMargin = 4;

constexpr QRect kNumberPlace{kLeft, 18, 57, 20};
constexpr QRect kSelectorPlace{PixelsFromTwips(120), PixelsFromTwips(600), PixelsFromTwips(855),
                               PixelsFromTwips(255)};
constexpr QRect kPreviewPlace{23, 63, 27, 28};
constexpr QRect kOriginHeadingPlace{kTextLeft, 11, kDesignTextWidth, kLineHeight};
constexpr QRect kMarkerTextPlace{kTextLeft, 55, 140, kLineHeight};
constexpr QRect kMarkerArrowsPlace{kTextLeft + 140, 55, 52, kLineHeight};
constexpr QRect kEditHeadingPlace{kTextLeft, 73, kDesignTextWidth, kLineHeight - 2};
constexpr QPoint kEditPlace{kTextLeft, PixelsFromTwips(1380)};
constexpr QRect kHeightButtonPlace{PixelsFromTwips(180), PixelsFromTwips(1440),
                                   PixelsFromTwips(735), PixelsFromTwips(345)};
constexpr QRect kMessageButtonPlace{kTextLeft - kFrameMargin, 122, 150, 24};
constexpr int kMapTop = 152;
// The last line of the window.
constexpr int kStatusHeight = 20;

QFont CaptionFont(const QWidget& widget) {
  QFont font = widget.font();
  font.setPixelSize(kCaptionPixels);
  return font;
}

// The symbol font draws arrows for this text. Where it is missing, ordinary fonts have the same
// picture.
void ShowArrows(QLabel& label) {
  const QString symbol_font = QStringLiteral("Wingdings");
  if (QFontDatabase::hasFamily(symbol_font)) {
    QFont font = label.font();
    font.setFamily(symbol_font);
    label.setFont(font);
    label.setText(QStringLiteral("\u00F2 \u00F2 \u00F2"));
  } else {
    label.setText(QStringLiteral("\u21E9 \u21E9 \u21E9"));
  }
}

QString WithoutMnemonic(const std::string& text) {
  return FromUtf8(text).replace(QLatin1Char('&'), QString());
}

}  // namespace

EditorPanel::EditorPanel(QWidget* parent)
    : QWidget(parent),
      HScroll1_(new MessageSelector(this)),
      Label6_(AddLabel(QStringLiteral("Label6"))),
      Label7_(AddLabel(QStringLiteral("Label7"))),
      Command1_(new QPushButton(this)),
      Command2_(new QPushButton(this)),
      edit_frame_(new QFrame(this)),
      status_(AddLabel(QStringLiteral("Status"))) {
  setObjectName(QStringLiteral("EditorPanel"));
  setFont(CaptionFont(*this));
  for (std::size_t i = 0; i < Label8_.size(); ++i) {
    Label8_.at(i) = AddLabel(QStringLiteral("Label8(%1)").arg(i));
    Label9_.at(i) = AddLabel(QStringLiteral("Label9(%1)").arg(i));
    Label9_.at(i)->setAutoFillBackground(true);
  }
  for (std::size_t i = 0; i < Label5_.size(); ++i) {
    Label5_.at(i) = new OriginLabel(static_cast<int>(i), this);
  }
  Text1_ = new DestinationEdit(this);
  map_ = new CharacterMap(this);
  Command1_->setObjectName(QStringLiteral("Command1"));
  Command2_->setObjectName(QStringLiteral("Command2"));
  PlaceControls();
  ConnectControls();
}

QLabel* EditorPanel::AddLabel(const QString& name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void EditorPanel::PlaceControls() {
  Label6_->setGeometry(kNumberPlace);
  Label6_->setAlignment(Qt::AlignCenter);
  HScroll1_->setGeometry(kSelectorPlace);
  Label7_->setGeometry(kPreviewPlace);
  Label7_->setAlignment(Qt::AlignCenter);
  Label7_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  Label8_[0]->setGeometry(kOriginHeadingPlace);
  Label8_[1]->setGeometry(kEditHeadingPlace);
  Label9_[0]->setGeometry(kMarkerTextPlace);
  Label9_[1]->setGeometry(kMarkerArrowsPlace);
  ShowArrows(*Label9_[1]);
  Command1_->setGeometry(kHeightButtonPlace);
  Command2_->setGeometry(kMessageButtonPlace);
  map_->setGeometry(QRect(QPoint((kPanelWidth - CharacterMap::MapSize().width()) / 2, kMapTop),
                          CharacterMap::MapSize()));
  edit_frame_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  edit_frame_->setBackgroundRole(QPalette::Base);
  edit_frame_->setAutoFillBackground(true);
  edit_frame_->stackUnder(Text1_);
  SetTextWidth(0);
  const std::array<QWidget*, 6> tab_order = {HScroll1_, Label5_[0], Text1_,
                                             Command1_, Command2_,  map_};
  for (std::size_t i = 1; i < tab_order.size(); ++i) {
    setTabOrder(tab_order.at(i - 1), tab_order.at(i));
  }
}

void EditorPanel::ConnectControls() {
  connect(HScroll1_, &QScrollBar::valueChanged, this, &EditorPanel::Scrolled);
  connect(Text1_, &DestinationEdit::TextChanged, this, &EditorPanel::TextChanged);
  connect(Text1_, &DestinationEdit::Refused, this, &EditorPanel::CharactersRefused);
  connect(Text1_, &DestinationEdit::KeyPressed, this, &EditorPanel::KeyPressed);
  connect(Text1_, &DestinationEdit::CharacterTyped, this, &EditorPanel::Preview);
  connect(Text1_, &DestinationEdit::CharacterDropped, this,
          [this](DisplayCode code, int x) { emit CharacterDropped(code, x, text_width_); });
  connect(map_, &CharacterMap::Picked, this, &EditorPanel::Preview);
  connect(map_, &CharacterMap::Typed, this, [this](DisplayCode code) {
    if (Text1_->isEnabled()) {
      Text1_->insert(ToWidgetCharacter(code));
      Preview(code);
    }
  });
  for (OriginLabel* cell : Label5_) {
    connect(cell, &OriginLabel::CopyMenuWanted, this, [this](int index) {
      // The step is a little wider than a cell: the menu drifts to the right of its cell.
      emit CopyMenuWanted({PixelsFromTwips(1200 + 190 * index), PixelsFromTwips(600)});
    });
  }
  connect(Command1_, &QPushButton::clicked, this, &EditorPanel::HeightToggled);
  connect(Command2_, &QPushButton::clicked, this, &EditorPanel::MessageAdded);
}

void EditorPanel::Show(const ViewState& view, const UiText& ui_text) {
  ShowDisplayType(view.display_type);
  for (std::size_t i = 0; i < Label5_.size(); ++i) {
    Label5_.at(i)->Show(view.Label5.at(i), ui_text);
  }
  SetTextWidth(view.label_width);
  text_width_ = static_cast<int>(view.Text1.cells) * PixelsFromTwips(kCellPitch);
  Text1_->Show(view);
  edit_frame_->setEnabled(view.Text1.enabled);
  HScroll1_->Show(view);
  Label6_->setText(QString::number(view.Label6));
  Label6_->setAccessibleDescription(Label6_->text());
  status_text_ = FromUtf8(view.status);
  ShowStatus();
  Announce(*status_, status_text_);
  for (std::size_t i = 0; i < Label8_.size(); ++i) {
    Label8_.at(i)->setEnabled(view.Label8Enabled.at(i));
    Label9_.at(i)->setVisible(view.Label9Visible);
  }
  Command1_->setEnabled(view.Command1Enabled);
  Command2_->setVisible(view.Command2Visible);
  map_->setVisible(view.height > WindowState::kCompactHeight);
}

// At the bottom of the window, whatever its height. A path that is too long shows its two ends.
void EditorPanel::ShowStatus() {
  status_->setGeometry(kLeft, height() - kStatusHeight, kRight - kLeft, kStatusHeight);
  status_->setText(
      status_->fontMetrics().elidedText(status_text_, Qt::ElideMiddle, status_->width()));
  status_->setToolTip(status_text_);
}

void EditorPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowStatus();
}

// The character map has a fixed set of characters: only another font changes it.
void EditorPanel::ShowDisplayType(std::size_t type) {
  if (type == display_type_) {
    return;
  }
  display_type_ = type;
  const QFont font = DisplayFont(type);
  for (OriginLabel* cell : Label5_) {
    cell->setFont(font);
  }
  Text1_->setFont(SpacedLikeCells(font));
  Label7_->setFont(font);
  map_->SetDisplayFont(font);
}

// `label_width` in twips; 0 before the first file. A set that is wider than the window scrolls in
// the edit box.
void EditorPanel::SetTextWidth(int label_width) {
  const int wanted = label_width == 0 ? kDesignTextWidth : PixelsFromTwips(label_width);
  const int width = std::min(wanted, kPanelWidth - kFrameMargin - 1 - kTextLeft);
  Text1_->setGeometry(QRect(kEditPlace, QSize(width, kTextHeight)));
  edit_frame_->setGeometry(Text1_->geometry().adjusted(-kFrameMargin, -kFrameMargin / 2,
                                                       kFrameMargin, kFrameMargin / 2));
  for (QLabel* heading : Label8_) {
    heading->resize(width, heading->height());
  }
}

void EditorPanel::SetEditorCaptions(const UiText& ui_text) {
  Label8_[0]->setText(FromUtf8(ui_text[UiTextId::kOriginHeading]));
  Label8_[1]->setText(FromUtf8(ui_text[UiTextId::kDestinationHeading]));
  Label9_[0]->setText(FromUtf8(ui_text[UiTextId::kLanguageNameMarker]));
  Command2_->setText(FromUtf8(ui_text[UiTextId::kNewMessage]));
  Command1_->setText(FromUtf8(ui_text[UiTextId::kFont]));
  Text1_->setAccessibleName(WithoutMnemonic(ui_text[UiTextId::kDestinationHeading]));
  Label6_->setAccessibleName(FromUtf8(ui_text[UiTextId::kMessageNumber]));
  HScroll1_->setAccessibleName(FromUtf8(ui_text[UiTextId::kMessage]));
  map_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Command1_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Command1_->setToolTip(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Label7_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterPreview]));
  status_->setAccessibleName(FromUtf8(ui_text[UiTextId::kStatus]));
}

void EditorPanel::Step(int messages) {
  if (HScroll1_->isEnabled()) {
    HScroll1_->setValue(HScroll1_->value() + messages);
  }
}

void EditorPanel::Preview(DisplayCode code) {
  Label7_->setText(ToWidgetCharacter(code));
  Label7_->setAccessibleDescription(ToPlainText(Label7_->text()));
}

}  // namespace vendlingua
