#include "core/checks/rules/alignment.h"

#include <algorithm>

#include "core/layout/standing.h"

namespace vendlingua {

bool Alignment::IsBrokenBy(const CheckedMessage& message) const {
  const auto field = FieldOfWords(message.Origin());
  if (!field || FieldOfWords(message.Text()) != field) {
    return false;
  }
  const Standing wanted = StandingOf(CellsOf(message.Origin(), *field));
  return wanted.IsAny() && !wanted.Shares(StandingOf(CellsOf(message.Text(), *field)));
}

std::optional<DisplayCodes> Alignment::Fix(const CheckedMessage& message) const {
  const auto field = FieldOfWords(message.Text());
  if (!field) {
    return std::nullopt;
  }
  const Standing wanted = StandingOf(CellsOf(message.Origin(), *field));
  const DisplayCodes moved = LaidOut(CellsOf(message.Text(), *field), wanted);
  DisplayCodes text = message.CopyOfText();
  std::copy(moved.begin(), moved.end(), text.begin() + static_cast<std::ptrdiff_t>(field->first));
  return text;
}

}  // namespace vendlingua
