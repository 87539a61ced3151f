#ifndef VENDLINGUA_CORE_PROOF_PROOF_SHEET_H_
#define VENDLINGUA_CORE_PROOF_PROOF_SHEET_H_

#include <cstddef>
#include <string>
#include <vector>

#include "core/document/alphabet.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// A message beside its origin, both as wide as the set and with the placeholders that the board
/// fills.
struct ProofMessage {
  std::size_t number = 0;
  DisplayCodes origin;
  DisplayCodes text;
  std::vector<std::string> findings;  ///< UTF-8, a line each
};

struct ProofLanguage {
  std::string name;  ///< UTF-8
  std::vector<ProofMessage> messages;
};

struct ProofSheet {
  std::string file;         ///< its name, UTF-8
  std::string origin_name;  ///< UTF-8
  std::vector<ProofLanguage> languages;
};

/// The sheet that a native speaker reads and signs, as one HTML file that needs no other: every
/// message as the display draws it, dot by dot, beside its origin. It prints on A4; the two rows
/// that the display shows together stay on one page.
std::string FormatProofSheet(const ProofSheet& sheet, const Alphabet& alphabet);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PROOF_PROOF_SHEET_H_
