#include "core/exchange/csv_table.h"

#include <csv.h>

#include <array>
#include <memory>

#include "core/exchange/csv_row.h"
#include "core/exchange/table_rows.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;
using Fields = std::array<std::string, 3>;

const Fields kHeader = {"message", "origin", "text"};
constexpr std::string_view kSeparators = ",;\t";

// A field without its closing quote takes in the rest of the file.
constexpr std::size_t kSliceBytes = std::size_t{64} << 10U;

int IsNoSpace(unsigned char /*character*/) { return 0; }

// Takes the rows as the parser hands them over, field by field.
class CsvReader {
 public:
  CsvReader() {
    csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
    // The library would trim unquoted fields; blanks at the start of a message centre it.
    csv_set_space_func(&parser_, &IsNoSpace);
    // By itself the parser's buffer would grow by 128 bytes at a time.
    csv_set_blk_size(&parser_, kSliceBytes);
  }
  CsvReader(const CsvReader&) = delete;
  CsvReader& operator=(const CsvReader&) = delete;
  ~CsvReader() { csv_free(&parser_); }

  /// False when what is read so far cannot be taken.
  bool Read(std::string_view piece) {
    if (!has_separator_) {
      ChooseSeparator(piece);
    }
    while (!piece.empty() && !failed_) {
      const std::string_view slice = piece.substr(0, kSliceBytes);
      piece.remove_prefix(slice.size());
      const std::size_t fields = fields_;
      if (csv_parse(&parser_, slice.data(), slice.size(), &EndField, &EndRow, this) !=
              slice.size() ||
          (fields_ == fields && slice.size() == kSliceBytes)) {
        Fail({.kind = Kind::kBadQuotes, .number = place_ + 1});
      }
    }
    return !failed_;
  }

  TableReading Finish() {
    if (!failed_ && csv_fini(&parser_, &EndField, &EndRow, this) != 0) {
      Fail({.kind = Kind::kBadQuotes, .number = place_ + 1});
    }
    if (!failed_ && place_ == 0) {
      Fail({.kind = Kind::kNoHeader});
    }
    return std::move(reading_);
  }

  void Fail(TableProblem problem) {
    failed_ = true;
    reading_ = {};
    reading_.problems.Add(std::move(problem));
  }

 private:
  static void EndField(void* field, std::size_t length, void* reader) {
    static_cast<CsvReader*>(reader)->TakeField({static_cast<const char*>(field), length});
  }
  static void EndRow(int /*end*/, void* reader) { static_cast<CsvReader*>(reader)->TakeRow(); }

  void ChooseSeparator(std::string_view piece) {
    const std::size_t found = piece.find_first_of(kSeparators);
    if (found != std::string_view::npos) {
      csv_set_delim(&parser_, static_cast<unsigned char>(piece[found]));
    }
    has_separator_ = true;
  }

  void TakeField(std::string_view field) {
    ++fields_;
    if (columns_ < row_.size()) {
      row_[columns_] = field.substr(0, kLongestField);
      is_too_long_ = is_too_long_ || field.size() > kLongestField;
    }
    ++columns_;
  }

  void TakeRow() {
    ++place_;
    if (!failed_) {
      place_ == 1 ? CheckHeader() : AddRow();
    }
    columns_ = 0;
    is_too_long_ = false;
  }

  void CheckHeader() {
    if (row_ != kHeader || columns_ != kHeader.size()) {
      Fail({.kind = Kind::kNoHeader});
    }
  }

  void AddRow() {
    if (columns_ != row_.size()) {
      reading_.problems.Add(
          {.kind = Kind::kFieldCount, .place = place_, .number = columns_, .limit = row_.size()});
    } else if (is_too_long_) {
      reading_.problems.Add({.kind = Kind::kFieldTooLong, .place = place_, .limit = kLongestField});
    } else {
      rows_.Add(place_, row_[0], {.origin = {{row_[1]}}, .text = {{row_[2]}}}, reading_);
    }
  }

  csv_parser parser_{};
  bool has_separator_ = false;
  bool failed_ = false;
  std::size_t place_ = 0;    // the row that was read last, the header counted
  std::size_t fields_ = 0;   // of all rows
  std::size_t columns_ = 0;  // of the row that is being read
  bool is_too_long_ = false;
  Fields row_;
  TableRows rows_;
  TableReading reading_;
};

}  // namespace

std::string WriteCsv(const TranslationTable& table) {
  std::string content;
  AppendCsvRow(kHeader, content);
  for (const TranslationRow& row : table.rows) {
    AppendCsvRow(Fields{std::to_string(row.message), FlatText(row.origin), FlatText(row.text)},
                 content);
  }
  return content;
}

TableReading ReadCsv(std::string_view content, const DetectedEncoding& encoding) {
  CsvReader reader;
  Utf8Pieces pieces(content, encoding);
  bool goes_on = true;
  while (goes_on) {
    const auto piece = pieces.Next();
    goes_on = piece && reader.Read(*piece);
  }
  if (pieces.problem()) {
    reader.Fail(*pieces.problem());
  }
  return reader.Finish();
}

}  // namespace vendlingua
