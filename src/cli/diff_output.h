#ifndef VENDLINGUA_CLI_DIFF_OUTPUT_H_
#define VENDLINGUA_CLI_DIFF_OUTPUT_H_

#include <string>

#include "cli/session.h"
#include "core/compare/flash_files.h"
#include "core/compare/message_files.h"

// What "diff" prints.

namespace vendlingua::cli {

/// The characters that the messages of the two files are in.
struct DiffTexts {
  const Alphabet& a;
  const Alphabet& b;
};

/// What the messages in two flash files are read by.
struct FlashTexts {
  const FlashMemory& a;
  const FlashMemory& b;
  const MessageSet& dimensions;
  const Alphabet& alphabet;
};

Json DifferencesAsJson(const MessageFileComparison& comparison, const DiffTexts& texts);
Json DifferencesAsJson(const FlashComparison& comparison);

/// Messages by number, old above new, between bars that stand where the glass ends; nothing for
/// what is the same. `a` names the languages.
std::string DifferencesAsText(const MessageFileComparison& comparison, const DiffTexts& texts,
                              const MessageSet& a);

/// Runs of bytes by address, and below them, where the board is known, the messages they are of.
std::string DifferencesAsText(const FlashComparison& comparison);
std::string DifferencesAsText(const FlashComparison& comparison, const FlashTexts& texts);

}  // namespace vendlingua::cli

#endif  // VENDLINGUA_CLI_DIFF_OUTPUT_H_
