#include "core/checks/rules/placeholder_rules.h"

namespace vendlingua {

bool PlaceholderRule::IsBrokenBy(const CheckedMessage& message) const {
  if (message.IsBlank()) {
    return false;
  }
  const auto text = message.Text();
  for (std::size_t cell = 0; cell < text.size(); ++cell) {
    if (IsWrong(text[cell], message.basis.BoardFills(message.number, cell))) {
      return true;
    }
  }
  return false;
}

std::optional<DisplayCodes> PlaceholderRule::Fix(const CheckedMessage& message) const {
  DisplayCodes text = message.CopyOfText();
  for (std::size_t cell = 0; cell < text.size(); ++cell) {
    if (message.basis.BoardFills(message.number, cell)) {
      text[cell] = kPlaceholder;
    } else if (text[cell] == kPlaceholder) {
      text[cell] = kBlank;
    }
  }
  return text;
}

}  // namespace vendlingua
