#include "core/desk/proof_of.h"

#include <utility>

namespace vendlingua {

DisplayCodes ProofCells(const CheckBasis& basis, std::size_t message, const DisplayText& text) {
  const DisplayText shown = basis.WithPlaceholders(message, text);
  const auto cells = shown.First(basis.width());
  return {cells.begin(), cells.end()};
}

ProofLanguage ProofOf(const CheckBasis& basis, const LanguageCheck& check, std::string name,
                      const MessageTexts& texts, const FindingInWords& in_words) {
  ProofLanguage proof{std::move(name), {}};
  for (std::size_t message = 0; message < basis.MessageCount(); ++message) {
    ProofMessage& row = proof.messages.emplace_back();
    row.number = message;
    row.origin = ProofCells(basis, message, basis.Origin(message));
    row.text = ProofCells(basis, message, texts.at(message));
    for (const Finding& finding : check.FindingsOf(message)) {
      row.findings.push_back(in_words(finding));
    }
  }
  return proof;
}

}  // namespace vendlingua
