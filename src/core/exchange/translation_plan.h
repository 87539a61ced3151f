#ifndef VENDLINGUA_CORE_EXCHANGE_TRANSLATION_PLAN_H_
#define VENDLINGUA_CORE_EXCHANGE_TRANSLATION_PLAN_H_

#include <cstddef>
#include <vector>

#include "core/document/alphabet.h"
#include "core/document/message_set.h"
#include "core/exchange/table_problem.h"
#include "core/exchange/translation_table.h"

namespace vendlingua {

struct PlanOptions {
  /// Texts of messages whose reference stands centred are centred, too.
  bool centre = false;
};

/// A message that a table changes.
struct PlannedText {
  std::size_t message = 0;
  DisplayCodes before;  ///< as many cells as the message has
  DisplayCodes after;
};

/// What a table does not say as it will be stored.
struct PlanWarning {
  enum class Kind {
    kOvertyped,  ///< characters stand in cells that the board fills; its placeholders stay
    kStray,      ///< placeholders stand in cells that the board does not fill
  };

  Kind kind;
  std::size_t place = 0;
  std::size_t message = 0;
  std::vector<CellRange> cells;
};

/// What a table would do to a language. Where there are problems it must not be applied.
struct TranslationPlan {
  std::vector<PlannedText> changes;  ///< in the order of the table
  std::vector<PlanWarning> warnings;
  TableProblems problems;

  bool IsRefused() const { return !problems.empty(); }
};

/// Computes what `reading` would change in a language whose messages are `present` now. Nothing is
/// changed by it. A row that says what the message holds leaves it as it is, also where it says so
/// in Windows-1252, as older tables do, or lost its placeholders on the way through a PO file.
/// Throws Error when the reference of the open file cannot be read.
TranslationPlan PlanTranslation(const MessageSet& set, const MessageTexts& present,
                                const TableReading& reading, const Alphabet& alphabet,
                                PlanOptions options = {});

/// Stores the changes of a plan without problems in the destination of the set.
void ApplyPlan(const TranslationPlan& plan, MessageSet& set);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TRANSLATION_PLAN_H_
