#include "desktop/dialogs/conflict_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <utility>

#include "core/document/alphabet.h"
#include "desktop/desk/cell_painting.h"
#include "desktop/fonts/display_font.h"
#include "desktop/qt_text.h"

namespace vendlingua {
namespace {

/// A message in its cells, only to be looked at.
class CellRow : public QWidget {
 public:
  CellRow(DisplayCodes codes, std::size_t display, QWidget* parent) : QWidget(parent) {
    cells_.board_fills.resize(codes.size());
    for (std::size_t cell = 0; cell < codes.size(); ++cell) {
      cells_.board_fills[cell] = codes[cell] == kPlaceholder;
    }
    setAccessibleName(FromUtf8(Alphabet::Of(display).TextOf(codes)));
    cells_.codes = std::move(codes);
    setFont(SpacedLikeCells(DisplayFont(display)));
    setFixedSize(SizeOfCells(cells_.codes.size()));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    PaintCells(painter, {0, 0}, cells_);
  }

 private:
  ShownCells cells_;
};

}  // namespace

ConflictBox::ConflictBox(const ConflictRequest& request, std::size_t index, QWidget* parent)
    : QDialog(parent) {
  const EditConflict& conflict = request.conflicts.at(index);
  setObjectName(QStringLiteral("ConflictBox"));
  setWindowTitle(FromUtf8(request.title));
  auto* question = new QLabel(FromUtf8(request.questions.at(index)), this);
  question->setTextFormat(Qt::PlainText);
  question->setWordWrap(true);
  auto* layout = new QGridLayout(this);
  layout->addWidget(question, 0, 0, 1, 2);
  AddChoice(conflict.mine, request.display, request.keep_mine, ConflictAnswer::kKeepMine);
  AddChoice(conflict.theirs, request.display, request.take_theirs, ConflictAnswer::kTakeTheirs);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ConflictBox::AddChoice(const DisplayCodes& codes, std::size_t display,
                            const std::string& caption, ConflictAnswer answer) {
  auto* button = new QPushButton(FromUtf8(caption), this);
  button->setObjectName(answer == ConflictAnswer::kKeepMine ? QStringLiteral("KeepMine")
                                                            : QStringLiteral("TakeTheirs"));
  connect(button, &QPushButton::clicked, this, [this, answer] {
    answer_ = answer;
    accept();
  });
  auto* cells = new CellRow(codes, display, this);
  button->setAccessibleDescription(cells->accessibleName());
  auto* grid = static_cast<QGridLayout*>(layout());
  const int row = grid->rowCount();
  grid->addWidget(cells, row, 0, Qt::AlignLeft | Qt::AlignVCenter);
  grid->addWidget(button, row, 1);
}

std::optional<ConflictAnswer> ConflictBox::Ask() {
  exec();
  return answer_;
}

}  // namespace vendlingua
