#ifndef VENDLINGUA_CORE_DESK_PROOF_OF_H_
#define VENDLINGUA_CORE_DESK_PROOF_OF_H_

#include <cstddef>
#include <functional>
#include <string>

#include "core/checks/check_basis.h"
#include "core/checks/language_check.h"
#include "core/proof/proof_sheet.h"

namespace vendlingua {

/// A finding in words, UTF-8.
using FindingInWords = std::function<std::string(const Finding&)>;

/// The cells of a text as a proof shows them: with the placeholders that the board fills.
DisplayCodes ProofCells(const CheckBasis& basis, std::size_t message, const DisplayText& text);

/// A language for the proof sheet, each message with what the check finds in it. `texts` are those
/// that are checked.
ProofLanguage ProofOf(const CheckBasis& basis, const LanguageCheck& check, std::string name,
                      const MessageTexts& texts, const FindingInWords& in_words);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_PROOF_OF_H_
