#include "core/exchange/translation_plan.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "core/formats/message_texts.h"
#include "core/layout/cell_range.h"
#include "core/layout/standing.h"
#include "core/layout/text_layout.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;

bool SameText(std::span<const DisplayCode> a, std::span<const DisplayCode> b) {
  const auto left = TrimRight(a);
  const auto right = TrimRight(b);
  return std::equal(left.begin(), left.end(), right.begin(), right.end());
}

class Planner {
 public:
  Planner(const MessageSet& set, const MessageTexts& present, const Alphabet& alphabet,
          PlanOptions options)
      : set_(set),
        width_(std::min(set.Width(), DisplayText::kCells)),
        present_(present),
        reference_(TextsOf(set, 0)),
        alphabet_(alphabet),
        options_(options) {}

  TranslationPlan Plan(const TableReading& reading) {
    plan_.problems = reading.problems;
    for (const TranslationRow& row : reading.table.rows) {
      PlanRow(row, reading.table.format);
    }
    return std::move(plan_);
  }

 private:
  // What is known about the message of a row.
  struct Message {
    const TranslationRow& row;
    std::span<const DisplayCode> present;
    std::span<const DisplayCode> reference;
    std::vector<CellRange> board;
  };

  void PlanRow(const TranslationRow& row, TableFormat format) {
    if (row.message > set_.LastMsg) {
      Refuse(row, {.kind = Kind::kNoSuchMessage, .text = std::to_string(row.message)});
      return;
    }
    const auto reference = reference_.at(row.message).First(width_);
    const Message message = {row, present_.at(row.message).First(width_), reference,
                             PlaceholdersOf(reference)};
    if (const auto text = Read(row)) {
      if (!IsUnchanged(message, *text, format)) {
        Place(message, *text, format);
      }
    }
  }

  // The text in display codes; nothing where the display lacks characters.
  std::optional<LooseText> Read(const TranslationRow& row) {
    LooseText text;
    std::vector<std::string> unknown;
    for (const TextRun& run : row.text) {
      if (run.is_placeholder) {
        text.AppendPlaceholder(CellsOf(run));
        continue;
      }
      const DrawnText drawn = alphabet_.CodesOf(run.characters);
      text.Append(drawn.codes);
      std::copy_if(drawn.unknown.begin(), drawn.unknown.end(), std::back_inserter(unknown),
                   [&](const std::string& character) {
                     return std::find(unknown.begin(), unknown.end(), character) == unknown.end();
                   });
    }
    if (!unknown.empty()) {
      Refuse(
          row,
          {.kind = Kind::kNotDrawn, .text = FlatText(row.text), .characters = std::move(unknown)});
      return std::nullopt;
    }
    return text;
  }

  static bool IsUnchanged(const Message& message, const LooseText& text, TableFormat format) {
    if (SameText(text.AsItStands(), message.present)) {
      return true;
    }
    const CodesFromUtf8 windows1252 = ToDisplayCodes(FlatText(message.row.text));
    if (!windows1252.unknown && SameText(windows1252.codes, message.present)) {
      return true;
    }
    return format == TableFormat::kXliff && text.parts().size() == 1 &&
           SameText(text.parts().front(), WithoutBoardCells(message));
  }

  // What is left of a message's text without the elements that stand for the board's cells.
  static DisplayCodes WithoutBoardCells(const Message& message) {
    DisplayCodes cells(message.present.begin(), message.present.end());
    // Clang 14 cannot compile std::views::reverse with GCC's library.
    // NOLINTNEXTLINE(modernize-loop-convert)
    for (auto range = message.board.rbegin(); range != message.board.rend(); ++range) {
      const auto first = cells.begin() + static_cast<std::ptrdiff_t>(range->first);
      cells.erase(first, first + static_cast<std::ptrdiff_t>(range->count));
    }
    return LooseText(cells).WithoutPlaceholders();
  }

  void Place(const Message& message, const LooseText& text, TableFormat format) {
    if (options_.centre && message.board.empty() && StandsCentred(message.reference)) {
      Take(message, Centred(text.AsItStands(), width_));
    } else if (text.Matches(message.board)) {
      Take(message, LayOut(text, message.board, width_));
    } else {
      TakeCellByCell(message, text.AsItStands(), format);
    }
  }

  void Take(const Message& message, const Layout& layout) {
    if (!layout.overflow) {
      Change(message, layout.cells);
      return;
    }
    const auto& [part, room] = *layout.overflow;
    Refuse(message.row, {.kind = room.count == width_ ? Kind::kTooWide : Kind::kNoRoom,
                         .text = alphabet_.TextOf(part),
                         .number = part.size(),
                         .limit = room.count,
                         .first_cell = room.first});
  }

  // The placeholders are not the board's, so the text says nothing about their columns.
  void TakeCellByCell(const Message& message, const DisplayCodes& text, TableFormat format) {
    if (text.size() > width_) {
      Take(message, {{}, Overflow{text, {0, width_}}});
      return;
    }
    const DisplayCodes cells = FitTo(text, width_);
    const auto board_fills = [&](std::size_t cell) {
      return message.reference[cell] == kPlaceholder;
    };
    const auto overtyped = CellsWhere(width_, [&](std::size_t cell) {
      return board_fills(cell) && cells[cell] != kPlaceholder && cells[cell] != kBlank;
    });
    const auto stray = CellsWhere(width_, [&](std::size_t cell) {
      return !board_fills(cell) && cells[cell] == kPlaceholder;
    });
    if (!overtyped.empty() && format == TableFormat::kXliff) {
      Refuse(message.row, {.kind = Kind::kCoversBoardCells, .text = InWords(overtyped)});
      return;
    }
    Warn(message.row, PlanWarning::Kind::kOvertyped, overtyped);
    Warn(message.row, PlanWarning::Kind::kStray, stray);
    Change(message, cells);
  }

  // In a ".MES" file the board's cells hold placeholders; a ".MSX" file keeps what it has there,
  // unless it is told otherwise.
  void Change(const Message& message, DisplayCodes cells) {
    for (const CellRange& range : message.board) {
      for (std::size_t cell = range.first; cell < range.End(); ++cell) {
        if (set_.IsMes()) {
          cells[cell] = kPlaceholder;
        } else if (cells[cell] == kPlaceholder && message.present[cell] != kPlaceholder) {
          cells[cell] = kBlank;
        }
      }
    }
    if (!SameText(cells, message.present)) {
      plan_.changes.push_back({message.row.message,
                               {message.present.begin(), message.present.end()},
                               std::move(cells)});
    }
  }

  void Warn(const TranslationRow& row, PlanWarning::Kind kind, std::vector<CellRange> cells) {
    if (!cells.empty()) {
      plan_.warnings.push_back({kind, row.place, row.message, std::move(cells)});
    }
  }

  void Refuse(const TranslationRow& row, TableProblem problem) {
    problem.place = row.place;
    problem.message = std::to_string(row.message);
    plan_.problems.Add(std::move(problem));
  }

  const MessageSet& set_;
  std::size_t width_;
  const MessageTexts& present_;
  MessageTexts reference_;
  const Alphabet& alphabet_;
  PlanOptions options_;
  TranslationPlan plan_;
};

}  // namespace

TranslationPlan PlanTranslation(const MessageSet& set, const MessageTexts& present,
                                const TableReading& reading, const Alphabet& alphabet,
                                PlanOptions options) {
  return Planner(set, present, alphabet, options).Plan(reading);
}

void ApplyPlan(const TranslationPlan& plan, MessageSet& set) {
  for (const PlannedText& text : plan.changes) {
    set.SetText(text.message, text.after);
  }
}

}  // namespace vendlingua
