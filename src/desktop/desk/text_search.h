#ifndef VENDLINGUA_DESKTOP_DESK_TEXT_SEARCH_H_
#define VENDLINGUA_DESKTOP_DESK_TEXT_SEARCH_H_

#include <QRegularExpression>
#include <QString>
#include <span>
#include <vector>

#include "core/desk/cell_run.h"
#include "core/document/alphabet.h"
#include "core/document/display_code.h"

namespace vendlingua {

/// Where is looked for something.
enum class SearchedTexts { kBoth, kOrigin, kDestination };

/// What is looked for, as the display draws it and whatever its case. Nothing is found until
/// something is looked for.
class TextSearch {
 public:
  enum class Kind { kPlain, kRegularExpression };

  TextSearch() = default;
  TextSearch(const QString& wanted, Kind kind, SearchedTexts texts, const Alphabet& alphabet);

  bool IsEmpty() const { return expression_.pattern().isEmpty(); }
  /// Why nothing can be found; empty when something can.
  QString error() const { return expression_.isValid() ? QString() : expression_.errorString(); }

  bool LooksAt(SearchedTexts text) const {
    return !IsEmpty() && (texts_ == SearchedTexts::kBoth || texts_ == text);
  }

  bool Hits(std::span<const DisplayCode> codes, const Alphabet& alphabet) const;

  /// The cells of each hit, from left to right. A hit without a cell is none.
  std::vector<CellRun> HitsIn(std::span<const DisplayCode> codes, const Alphabet& alphabet) const;

  /// A hit and what takes its place: "\1" is the first group of a regular expression.
  struct Replaced {
    CellRun range;
    QString by;
  };
  std::vector<Replaced> Replace(std::span<const DisplayCode> codes, const QString& by,
                                const Alphabet& alphabet) const;

 private:
  QRegularExpression expression_;
  Kind kind_ = Kind::kPlain;
  SearchedTexts texts_ = SearchedTexts::kBoth;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_DESK_TEXT_SEARCH_H_
