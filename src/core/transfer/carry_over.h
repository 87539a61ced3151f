#ifndef VENDLINGUA_CORE_TRANSFER_CARRY_OVER_H_
#define VENDLINGUA_CORE_TRANSFER_CARRY_OVER_H_

#include <cstddef>
#include <optional>
#include <vector>

#include "core/document/display_text.h"

namespace vendlingua {

/// What became of a message. Only what is certain is stored; a text that is merely similar is
/// offered and no more.
enum class CarryResult {
  kKept,       ///< its text is what it was before
  kFilled,     ///< the translation of the same text
  kAdapted,    ///< the translation of the same words, laid out anew
  kSuggested,  ///< nothing certain, but a similar text was translated
  kNone,       ///< there is nothing to go by
};

struct CarriedMessage {
  CarryResult result = CarryResult::kNone;
  DisplayText text;                       ///< what the language holds in the end
  std::optional<std::size_t> from;        ///< the older message that the text or suggestion is of
  std::optional<DisplayText> suggestion;  ///< its translation as it stands there
  double ratio = 0;                       ///< of the suggestion
};

/// The texts that a language is carried over by. All of a file have one text a message.
struct CarryTask {
  std::size_t width = 0;          ///< cells of a message
  MessageTexts origin;            ///< whose placeholders the board fills
  MessageTexts reference;         ///< what messages are known by
  MessageTexts older_reference;   ///< the same of the older file
  MessageTexts older_texts;       ///< the older file's translations
  bool looks_for_similar = true;  ///< nothing is suggested otherwise, which is much faster
};

/// Carries a language over into a file that does not have it yet. A message that is the same as an
/// older one keeps that text as it stands; others are filled, adapted or suggested, and hold the
/// origin's text where nothing is certain.
std::vector<CarriedMessage> CarryOver(const CarryTask& task);

/// Fills the messages of the texts `current` that are blank, or equal to the origin or the
/// reference; all others are kept.
std::vector<CarriedMessage> Pretranslate(const CarryTask& task, const MessageTexts& current);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TRANSFER_CARRY_OVER_H_
