#include "core/transfer/layout.h"

#include <algorithm>
#include <vector>

namespace vendlingua {
namespace {

using CellSpan = std::span<const DisplayCode>;

// CellSpan between two placeholder runs, or between a run and an end of the text.
struct Gap {
  std::size_t start;
  CellSpan cells;

  CellSpan Text() const { return Trim(cells); }
  std::size_t BlanksBehind() const { return cells.size() - TrimRight(cells).size(); }
  std::size_t BlanksBefore() const { return cells.size() - BlanksBehind() - Text().size(); }
};

// One more than there are placeholder runs; those at the ends may be empty.
std::vector<Gap> GapsOf(CellSpan text) {
  std::vector<Gap> gaps;
  for (auto start = text.begin();;) {
    const auto end = std::find(start, text.end(), kPlaceholder);
    gaps.push_back({static_cast<std::size_t>(start - text.begin()), {start, end}});
    if (end == text.end()) {
      return gaps;
    }
    start = std::find_if(end, text.end(), [](DisplayCode code) { return code != kPlaceholder; });
  }
}

// The blanks before a text in a line without placeholders; nothing when it does not fit.
std::optional<std::size_t> IndentOfLine(const Gap& origin, std::size_t length) {
  if (length > origin.cells.size()) {
    return std::nullopt;
  }
  const std::size_t before = origin.BlanksBefore();
  const std::size_t behind = origin.BlanksBehind();
  const std::size_t room = origin.cells.size() - length;
  if (before > 0 && behind == 0) {
    return room;
  }
  const bool is_centred = before > 0 && before <= behind + 1 && behind <= before + 1;
  return is_centred ? room / 2 : std::min(before, room);
}

// The blanks before a text in a gap beside placeholders; nothing when it does not fit. A blank that
// the origin has next to a placeholder stays.
std::optional<std::size_t> IndentOfGap(const Gap& origin, std::size_t length, bool follows_run,
                                       bool precedes_run) {
  const bool is_blank = origin.Text().empty() && !origin.cells.empty();
  const std::size_t least_before = follows_run && (is_blank || origin.BlanksBefore() > 0) ? 1 : 0;
  const std::size_t least_behind = precedes_run && origin.BlanksBehind() > 0 ? 1 : 0;
  if (least_before + length + least_behind > origin.cells.size()) {
    return std::nullopt;
  }
  const std::size_t wanted = std::max(least_before, origin.BlanksBefore());
  return std::min(wanted, origin.cells.size() - length - least_behind);
}

}  // namespace

std::optional<DisplayCodes> LayOut(CellSpan translation, CellSpan origin) {
  const std::vector<Gap> gaps = GapsOf(origin);
  const std::vector<Gap> pieces = GapsOf(translation);
  if (pieces.size() != gaps.size()) {
    return std::nullopt;
  }
  DisplayCodes line(origin.begin(), origin.end());
  std::replace_if(
      line.begin(), line.end(), [](DisplayCode code) { return code != kPlaceholder; }, kBlank);
  for (std::size_t i = 0; i < gaps.size(); ++i) {
    const CellSpan text = pieces[i].Text();
    if (text.empty()) {
      continue;
    }
    const auto indent = gaps.size() == 1
                            ? IndentOfLine(gaps[i], text.size())
                            : IndentOfGap(gaps[i], text.size(), i > 0, i + 1 < gaps.size());
    if (!indent) {
      return std::nullopt;
    }
    std::copy(text.begin(), text.end(),
              line.begin() + static_cast<std::ptrdiff_t>(gaps[i].start + *indent));
  }
  return line;
}

}  // namespace vendlingua
