#include "core/layout/text_layout.h"

#include <algorithm>
#include <vector>

#include "core/layout/standing.h"

namespace vendlingua {
namespace {

using CellSpan = std::span<const DisplayCode>;

// Blanks, and the placeholders of `board`.
DisplayCodes EmptyLine(std::span<const CellRange> board, std::size_t width) {
  DisplayCodes line(width, kBlank);
  for (const CellRange& range : board) {
    std::fill_n(line.begin() + static_cast<std::ptrdiff_t>(range.first), range.count, kPlaceholder);
  }
  return line;
}

void Put(CellSpan part, std::size_t first, DisplayCodes& line) {
  std::copy(part.begin(), part.end(), line.begin() + static_cast<std::ptrdiff_t>(first));
}

Overflow NoRoom(CellSpan part, const CellRange& room) { return {{part.begin(), part.end()}, room}; }

// The blanks before words in a line without placeholders; nothing when they do not fit.
std::optional<std::size_t> IndentInLine(CellSpan origin, std::size_t length) {
  if (length > origin.size()) {
    return std::nullopt;
  }
  const std::size_t room = origin.size() - length;
  const Standing standing = StandingOf(origin);
  if (standing.right && !standing.left) {
    return room;
  }
  return standing.centred && !standing.left ? room / 2 : std::min(BlanksBefore(origin), room);
}

// The blanks before words in a field beside placeholders; nothing when they do not fit. A blank
// that the origin has next to a placeholder stays.
std::optional<std::size_t> IndentInField(CellSpan origin, std::size_t length, bool is_first,
                                         bool is_last) {
  const bool is_blank = !origin.empty() && Trim(origin).empty();
  const std::size_t before = is_blank ? 1 : BlanksBefore(origin);
  const std::size_t least_before = is_first ? 0 : std::min<std::size_t>(before, 1);
  const std::size_t least_behind = !is_last && BlanksBehind(origin) > 0 ? 1 : 0;
  if (least_before + length + least_behind > origin.size()) {
    return std::nullopt;
  }
  const std::size_t wanted = std::max(least_before, BlanksBefore(origin));
  return std::min(wanted, origin.size() - length - least_behind);
}

}  // namespace

Layout LayOut(const LooseText& text, std::span<const CellRange> board, std::size_t width) {
  const std::vector<CellRange> fields = FieldsBetween(board, width);
  DisplayCodes line = EmptyLine(board, width);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const CellSpan part = TrimRight(text.parts().at(i));
    if (part.size() > fields[i].count) {
      return {{}, NoRoom(part, fields[i])};
    }
    Put(part, fields[i].first, line);
  }
  return {line, std::nullopt};
}

std::optional<DisplayCodes> LayOutLike(CellSpan origin, CellSpan text) {
  const std::vector<CellRange> board = PlaceholdersOf(origin);
  const std::vector<CellRange> fields = FieldsBetween(board, origin.size());
  const LooseText loose(text);
  if (loose.parts().size() != fields.size()) {
    return std::nullopt;
  }
  DisplayCodes line = EmptyLine(board, origin.size());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const CellSpan words = Trim(loose.parts()[i]);
    if (words.empty()) {
      continue;
    }
    const CellSpan field = CellsOf(origin, fields[i]);
    const auto indent = board.empty()
                            ? IndentInLine(field, words.size())
                            : IndentInField(field, words.size(), i == 0, i + 1 == fields.size());
    if (!indent) {
      return std::nullopt;
    }
    Put(words, fields[i].first + *indent, line);
  }
  return line;
}

Layout Centred(CellSpan text, std::size_t width) {
  const CellSpan words = Trim(text);
  if (words.size() > width) {
    return {{}, NoRoom(words, {0, width})};
  }
  return {LaidOut(FitTo(words, width), {.centred = true}), std::nullopt};
}

}  // namespace vendlingua
