#include "desktop/main_window/editor_panel.h"

#include <QApplication>
#include <QFontDatabase>
#include <QKeySequence>
#include <algorithm>

#include "core/presentation/twips.h"
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
      Label6_(new MessageNumber(this)),
      Label7_(AddLabel(QStringLiteral("Label7"))),
      Command1_(new QPushButton(this)),
      Command2_(new QPushButton(this)),
      map_area_(new QScrollArea(this)),
      edit_frame_(new QFrame(this)),
      status_line_(new StatusLine(this)) {
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
  map_ = new CharacterMap(map_area_);
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
  map_->setFixedSize(CharacterMap::MapSize());
  map_area_->setWidget(map_);
  map_area_->setFrameShape(QFrame::NoFrame);
  map_area_->setFocusPolicy(Qt::NoFocus);
  map_area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  edit_frame_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  edit_frame_->setBackgroundRole(QPalette::Base);
  edit_frame_->setAutoFillBackground(true);
  edit_frame_->stackUnder(Text1_);
  SetTextWidth(0);
  const std::array<QWidget*, 7> tab_order = {HScroll1_, Label5_[0], Text1_,      Command1_,
                                             Command2_, map_,       status_line_};
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
  connect(map_, &CharacterMap::CursorMoved, this, [this](QRect cell) {
    map_area_->ensureVisible(cell.center().x(), cell.center().y(), cell.width(), cell.height());
  });
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
  connect(Label6_, &MessageNumber::Clicked, this, &EditorPanel::NumberClicked);
  connect(status_line_, &StatusLine::DetailsWanted, this, &EditorPanel::DetailsWanted);
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
  Label6_->Show(view.Label6, view.HScroll1.enabled);
  status_line_->Show(view, ui_text);
  for (std::size_t i = 0; i < Label8_.size(); ++i) {
    Label8_.at(i)->setEnabled(view.Label8Enabled.at(i));
    Label9_.at(i)->setVisible(view.Label9Visible);
  }
  Command1_->setEnabled(view.Command1Enabled);
  Command2_->setVisible(view.Command2Visible);
  map_area_->setVisible(view.height > WindowState::kCompactHeight);
}

// The status stands at the bottom of the window, whatever its height. The map has what is left.
void EditorPanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int map_left = (kPanelWidth - CharacterMap::MapSize().width()) / 2;
  const int status_top = height() - kStatusHeight;
  map_area_->setGeometry(map_left, kMapTop, width() - map_left, status_top - kMapTop);
  status_line_->setGeometry(kLeft, status_top, kRight - kLeft, kStatusHeight);
}

// Over the cells it pages as it does over the selector.
void EditorPanel::wheelEvent(QWheelEvent* event) {
  if (event->position().y() < kMapTop) {
    QApplication::sendEvent(HScroll1_, event);
  } else {
    QWidget::wheelEvent(event);
  }
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
  Label6_->setToolTip(FromUtf8(ui_text[UiTextId::kGoToMessage]) + QStringLiteral(" (") +
                      QKeySequence(Qt::CTRL | Qt::Key_G).toString(QKeySequence::NativeText) +
                      QLatin1Char(')'));
  HScroll1_->setAccessibleName(FromUtf8(ui_text[UiTextId::kMessage]));
  HScroll1_->setToolTip(FromUtf8(ui_text[UiTextId::kStepKeys]));
  map_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Command1_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Command1_->setToolTip(FromUtf8(ui_text[UiTextId::kCharacterMap]));
  Label7_->setAccessibleName(FromUtf8(ui_text[UiTextId::kCharacterPreview]));
  status_line_->SetCaptions(ui_text);
}

void EditorPanel::Preview(DisplayCode code) {
  Label7_->setText(ToWidgetCharacter(code));
  Label7_->setAccessibleDescription(ToPlainText(Label7_->text()));
}

}  // namespace vendlingua
