#ifndef VENDLINGUA_CORE_EXCHANGE_TABLE_PROBLEM_H_
#define VENDLINGUA_CORE_EXCHANGE_TABLE_PROBLEM_H_

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vendlingua {

/// Why a table of translations, or one row of it, cannot be taken.
struct TableProblem {
  enum class Kind {
    // Of the table as a whole.
    kNotText,            ///< it holds a byte 0
    kMalformedUtf8,      ///< in line `number`
    kCutUtf8,            ///< it ends inside a character
    kMalformedUtf16,     ///< a half character
    kOtherEncoding,      ///< XML that declares `text`, but holds Windows-1252
    kNoHeader,           ///< the columns are not message, origin, text
    kBadQuotes,          ///< row `number` is none
    kBadXml,             ///< in line `number`; `text` is what the parser says
    kDocumentType,       ///< XML with a document type, which could hold anything
    kTooMuchMarkup,      ///< more than `limit` tags and attributes
    kNoXliff,            ///< XML whose root is `text`
    kOtherXliffVersion,  ///< `text`
    // Of a row.
    kFieldCount,         ///< `number` fields instead of `limit`
    kFieldTooLong,       ///< more than `limit` bytes
    kTableTooLong,       ///< the texts up to here need more than `limit` bytes
    kNoSuchMessage,      ///< `text` is no message's number
    kRepeated,           ///< message `text` stands in a row before
    kUnknownElement,     ///< the target holds the element `text`
    kUnknownEntity,      ///< it holds `text`, which stands for no character
    kControlCharacter,   ///< it holds a tab or a line break
    kOtherPlaceholders,  ///< the target has other ones than the source, or in another order
    kNotDrawn,           ///< the display lacks `characters` of `text`
    kTooWide,            ///< `text` has `number` cells, at most `limit` fit
    kNoRoom,             ///< the same between placeholders, from cell `first_cell` on
    kCoversBoardCells,   ///< it covers what `text` says in words: cells that the board fills
  };

  Kind kind;
  std::size_t place = 0;  ///< row or unit, counted from 1; 0 for the table as a whole
  std::string message{};  ///< number of the message, where it is known
  std::string text{};
  std::size_t number = 0;
  std::size_t limit = 0;
  std::size_t first_cell = 0;  ///< counted from 0
  std::vector<std::string> characters{};
};

/// What is wrong with a table. A translator sees it all at once, but no more than can be read.
class TableProblems {
 public:
  static constexpr std::size_t kMostListed = 500;

  void Add(TableProblem problem) {
    if (listed_.size() < kMostListed) {
      listed_.push_back(std::move(problem));
    } else {
      ++more_;
    }
  }

  bool empty() const { return listed_.empty(); }
  const std::vector<TableProblem>& listed() const { return listed_; }
  /// How many there are beside those that are listed.
  std::size_t more() const { return more_; }

 private:
  std::vector<TableProblem> listed_;
  std::size_t more_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_EXCHANGE_TABLE_PROBLEM_H_
