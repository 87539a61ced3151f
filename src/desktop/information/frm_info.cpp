#include "desktop/information/frm_info.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "core/presentation/center_form.h"
#include "core/presentation/revision_line.h"
#include "core/presentation/twips.h"
#include "core/version.h"
#include "desktop/icon.h"

namespace vendlingua {
namespace {

constexpr QLatin1String kTitle("Vendlingua");
constexpr int kEmblemSize = 64;

QLabel* AddLabel(QGridLayout& grid, int row, const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(QLatin1String(name));
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  grid.addWidget(label, row, 1);
  return label;
}

}  // namespace

FrmInfo::FrmInfo(QWidget* main_window) : QWidget(main_window, Qt::Window) {
  setObjectName(QStringLiteral("FrmInfo"));
  setWindowTitle(QStringLiteral("Program Info"));
  setAccessibleName(windowTitle());
  setAttribute(Qt::WA_DeleteOnClose);
  const QIcon emblem = ProgramIcon();
  setWindowIcon(emblem);

  auto* frame = new QGroupBox(QStringLiteral("Program Info"));
  frame->setObjectName(QStringLiteral("Frame1"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(16, 12, 24, 16);
  grid->setHorizontalSpacing(20);
  auto* picture = new QLabel;
  picture->setObjectName(QStringLiteral("Image2"));
  picture->setAccessibleName(kTitle);
  picture->setPixmap(emblem.pixmap(QSize(kEmblemSize, kEmblemSize), devicePixelRatio()));
  grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignCenter);
  AddLabel(*grid, 0, "Label2", QStringLiteral("PROGRAMMA"));
  QLabel* title = AddLabel(*grid, 1, "Label1(0)", kTitle);
  QFont title_font = title->font();
  title_font.setBold(true);
  title_font.setPointSizeF(title_font.pointSizeF() * 1.4);
  title->setFont(title_font);
  AddLabel(*grid, 2, "Label1(1)",
           QString::fromStdString(RevisionLine(kVersionMajor, kVersionMinor, kVersionRevision)));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(frame);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  const QSize size = sizeHint();
  const FormSize form{TwipsFromPixels(size.width()), TwipsFromPixels(size.height())};
  const FormPlace place = CenterForm1(form, form);
  move(PixelsFromTwips(place.left), PixelsFromTwips(place.top));
}

void FrmInfo::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace vendlingua
