#include "desktop/desk/glass_panel.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

// By Backlight.
constexpr std::array<UiTextId, 3> kBacklights = {UiTextId::kGreen, UiTextId::kBlue,
                                                 UiTextId::kWhite};

}  // namespace

GlassPanel::GlassPanel(const Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      glass_(new Glass(workspace, this)),
      backlight_(new QComboBox(this)),
      copy_(new QToolButton(this)),
      save_(new QToolButton(this)) {
  backlight_->setObjectName(QStringLiteral("DeskBacklight"));
  copy_->setObjectName(QStringLiteral("DeskCopyPicture"));
  save_->setObjectName(QStringLiteral("DeskSavePicture"));
  for (std::size_t i = 0; i < kBacklights.size(); ++i) {
    backlight_->addItem(QString());
  }
  backlight_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  for (QToolButton* button : {copy_, save_}) {
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
  }
  auto* controls = new QHBoxLayout;
  controls->addWidget(backlight_);
  controls->addStretch();
  controls->addWidget(copy_);
  controls->addWidget(save_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(glass_);
  layout->addLayout(controls);
  connect(backlight_, &QComboBox::currentIndexChanged, this,
          [this](int light) { glass_->SetBacklight(static_cast<Backlight>(light)); });
  connect(copy_, &QToolButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setImage(glass_->Picture()); });
  connect(save_, &QToolButton::clicked, this, &GlassPanel::Save);
}

void GlassPanel::SetCaptions(const UiText& ui_text) {
  for (std::size_t i = 0; i < kBacklights.size(); ++i) {
    backlight_->setItemText(static_cast<int>(i), FromUtf8(ui_text[kBacklights.at(i)]));
  }
  // What the box asks for at least was told before its entries had their texts.
  backlight_->setMinimumWidth(backlight_->sizeHint().width());
  backlight_->setAccessibleName(FromUtf8(ui_text[UiTextId::kBacklight]));
  backlight_->setToolTip(backlight_->accessibleName());
  copy_->setText(FromUtf8(ui_text[UiTextId::kCopyPicture]));
  save_->setText(FromUtf8(ui_text[UiTextId::kSavePicture]));
}

void GlassPanel::SetBacklight(int backlight) {
  backlight_->setCurrentIndex(qBound(0, backlight, static_cast<int>(kBacklights.size()) - 1));
}

void GlassPanel::Save() {
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  glass_->Picture().save(&buffer, "PNG");
  emit SaveWanted(png);
}

}  // namespace vendlingua
