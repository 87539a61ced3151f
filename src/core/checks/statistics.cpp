#include "core/checks/statistics.h"

#include "core/checks/words.h"

namespace vendlingua {

LanguageStatistics StatisticsOf(const CheckBasis& basis, const MessageTexts& texts) {
  LanguageStatistics statistics;
  for (std::size_t message = 0; message < basis.MessageCount(); ++message) {
    const auto origin = basis.Origin(message).First(basis.width());
    const auto text = texts.at(message).First(basis.width());
    if (WordsOf(text) == WordsOf(origin)) {
      ++statistics.same;
    } else if (DrawsNothing(basis.alphabet(), text)) {
      ++statistics.blank;
    } else {
      ++statistics.translated;
    }
  }
  return statistics;
}

}  // namespace vendlingua
