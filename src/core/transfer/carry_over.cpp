#include "core/transfer/carry_over.h"

#include <algorithm>

#include "core/layout/text_layout.h"
#include "core/transfer/matching.h"
#include "core/transfer/text_keys.h"
#include "core/transfer/translation_memory.h"

namespace vendlingua {
namespace {

bool Fits(const DisplayText& text, std::size_t width) {
  return TrimRight(text.Cells()).size() <= width;
}

class Carrier {
 public:
  explicit Carrier(const CarryTask& task)
      : task_(task),
        matches_(SameMessages(task.reference, task.older_reference)),
        memory_(task.older_reference, task.older_texts) {}

  CarriedMessage CarryOver(std::size_t message) const {
    const auto& match = matches_[message];
    if (match && Fits(task_.older_texts.at(*match), task_.width)) {
      return {CarryResult::kKept, task_.older_texts[*match], match, {}, 0};
    }
    return Fill(message, task_.origin[message]);
  }

  CarriedMessage Pretranslate(std::size_t message, const DisplayText& current) const {
    if (!IsToDo(message, current)) {
      return {CarryResult::kKept, current, {}, {}, 0};
    }
    const auto text = TextOfMatch(message);
    CarriedMessage carried =
        text ? CarriedMessage{CarryResult::kFilled, *text, matches_[message], {}, 0}
             : Fill(message, current);
    const bool is_found =
        carried.result == CarryResult::kFilled || carried.result == CarryResult::kAdapted;
    if (is_found && carried.text == current) {
      carried.result = CarryResult::kKept;
    }
    return carried;
  }

 private:
  bool IsToDo(std::size_t message, const DisplayText& current) const {
    return HasWords(task_.reference[message].Cells()) &&
           (!HasWords(current.Cells()) || current == task_.origin[message] ||
            current == task_.reference[message]);
  }

  std::optional<DisplayText> TextOfMatch(std::size_t message) const {
    const auto& match = matches_[message];
    return match && HasWords(task_.older_texts.at(*match).Cells())
               ? InPlace(message, task_.older_texts[*match].Cells())
               : std::nullopt;
  }

  // What is found elsewhere; `start` is the text where that is nothing certain.
  CarriedMessage Fill(std::size_t message, const DisplayText& start) const {
    const DisplayText& reference = task_.reference[message];
    if (!HasWords(reference.Cells())) {
      return {CarryResult::kKept, start, {}, {}, 0};
    }
    if (const Translated* same = memory_.SameText(reference)) {
      if (const auto text = InPlace(message, same->translation.Cells())) {
        return {CarryResult::kFilled, *text, same->message, {}, 0};
      }
    }
    if (const Translated* same = memory_.SameWords(reference)) {
      const auto line = LayOutLike(reference.First(task_.width), same->translation.Cells());
      if (const auto text = line ? InPlace(message, *line) : std::nullopt) {
        return {CarryResult::kAdapted, *text, same->message, {}, 0};
      }
    }
    return Suggest(reference, start);
  }

  CarriedMessage Suggest(const DisplayText& reference, const DisplayText& start) const {
    const auto similar = task_.looks_for_similar ? memory_.SimilarTo(reference)
                                                 : std::vector<TranslationMemory::Similar>();
    if (similar.empty()) {
      return {CarryResult::kNone, start, {}, {}, 0};
    }
    const auto& [best, ratio] = similar.front();
    return {CarryResult::kSuggested, start, best->message, best->translation, ratio};
  }

  // A text with the placeholders of the origin; nothing when that would change more than blanks, or
  // when it does not fit.
  std::optional<DisplayText> InPlace(std::size_t message,
                                     std::span<const DisplayCode> codes) const {
    const DisplayText text(codes);
    if (!Fits(text, task_.width)) {
      return std::nullopt;
    }
    DisplayCodes cells(text.Cells().begin(), text.Cells().end());
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
      const bool board_fills = task_.origin[message][cell] == kPlaceholder;
      if (board_fills && cells[cell] == kBlank) {
        cells[cell] = kPlaceholder;
      }
      if (board_fills != (cells[cell] == kPlaceholder)) {
        return std::nullopt;
      }
    }
    return DisplayText(cells);
  }

  const CarryTask& task_;
  Matches matches_;
  TranslationMemory memory_;
};

}  // namespace

std::vector<CarriedMessage> CarryOver(const CarryTask& task) {
  const Carrier carrier(task);
  std::vector<CarriedMessage> carried;
  for (std::size_t message = 0; message < task.reference.size(); ++message) {
    carried.push_back(carrier.CarryOver(message));
  }
  return carried;
}

std::vector<CarriedMessage> Pretranslate(const CarryTask& task, const MessageTexts& current) {
  const Carrier carrier(task);
  std::vector<CarriedMessage> carried;
  for (std::size_t message = 0; message < task.reference.size(); ++message) {
    carried.push_back(carrier.Pretranslate(message, current.at(message)));
  }
  return carried;
}

}  // namespace vendlingua
