#include "cli/table_messages.h"

#include <fmt/format.h>

#include "cli/session.h"

namespace vendlingua::cli {
namespace {

using Kind = TableProblem::Kind;

std::string Place(const std::string& file, TableFormat format, std::size_t place) {
  return fmt::format("{}: {} {}: ", file, format == TableFormat::kCsv ? "row" : "unit", place);
}

std::string OfTable(const TableProblem& problem) {
  switch (problem.kind) {
    case Kind::kNotText:
      return "is no text: it holds a byte 0";
    case Kind::kMalformedUtf8:
      return fmt::format("line {} is no UTF-8; save it as UTF-8 once more", problem.number);
    case Kind::kCutUtf8:
      return "ends inside a character; it was cut";
    case Kind::kMalformedUtf16:
      return "is no UTF-16, as its first bytes say";
    case Kind::kOtherEncoding:
      return fmt::format("is no UTF-8; its encoding \"{}\" is not read, save it as UTF-8",
                         problem.text);
    case Kind::kNoHeader:
      return "the first row must be message,origin,text";
    case Kind::kBadQuotes:
      return fmt::format("row {} is no comma-separated row: check its quotes", problem.number);
    case Kind::kBadXml:
      return fmt::format("line {} is no XML: {}", problem.number, problem.text);
    case Kind::kDocumentType:
      return "holds a document type, which is not read";
    case Kind::kTooMuchMarkup:
      return fmt::format("holds more than {} tags and attributes", problem.limit);
    case Kind::kNoXliff:
      return fmt::format("is no XLIFF: its root is \"{}\"", problem.text);
    case Kind::kOtherXliffVersion:
      return fmt::format("is XLIFF \"{}\"; only version 1.2 is read", problem.text);
    default:
      return "";
  }
}

// What is wrong with the text of a message.
std::string OfText(const TableProblem& problem) {
  switch (problem.kind) {
    case Kind::kUnknownElement:
      return fmt::format("the element <{}> is not known here; only <x/> stands in a text",
                         problem.text);
    case Kind::kUnknownEntity:
      return fmt::format("\"{}\" stands for no character", problem.text);
    case Kind::kControlCharacter:
      return "the text holds a tab or a line break";
    case Kind::kOtherPlaceholders:
      return "the placeholders of the target are not those of the source, in their order";
    case Kind::kNotDrawn:
      return NotDrawn(problem.text, problem.characters);
    case Kind::kTooWide:
      return fmt::format("\"{}\" has {} cells, at most {} fit", problem.text, problem.number,
                         problem.limit);
    case Kind::kNoRoom:
      return fmt::format("\"{}\" has {} cells, at most {} fit from cell {} on", problem.text,
                         problem.number, problem.limit, problem.first_cell + 1);
    case Kind::kCoversBoardCells:
      return fmt::format("the text covers {}, which the board fills", problem.text);
    default:
      return "";
  }
}

std::string OfRow(const TableProblem& problem) {
  switch (problem.kind) {
    case Kind::kFieldCount:
      return fmt::format("has {} fields instead of {}", problem.number, problem.limit);
    case Kind::kFieldTooLong:
      return fmt::format("has a field of more than {} bytes", problem.limit);
    case Kind::kTableTooLong:
      return fmt::format(
          "up to here the texts need more than {} bytes: no message file has so many",
          problem.limit);
    case Kind::kNoSuchMessage:
      return fmt::format("there is no message \"{}\"", problem.text);
    case Kind::kRepeated:
      return fmt::format("message {} stands in a row before", problem.text);
    default:
      return fmt::format("message {}: {}", problem.message, OfText(problem));
  }
}

}  // namespace

std::string InWords(const std::string& file, TableFormat format, const TableProblems& problems) {
  const TableProblem& first = problems.listed().front();
  if (first.place == 0) {
    return file + ": " + OfTable(first);
  }
  std::string words;
  for (const TableProblem& problem : problems.listed()) {
    words += Place(file, format, problem.place) + OfRow(problem) + "\n";
  }
  if (problems.more() > 0) {
    words += fmt::format("{}: and {} more\n", file, problems.more());
  }
  return words + file + ": nothing was changed";
}

std::string InWords(const std::string& file, TableFormat format, const PlanWarning& warning) {
  const std::string cells = vendlingua::InWords(warning.cells);
  return Place(file, format, warning.place) + fmt::format("message {}: ", warning.message) +
         (warning.kind == PlanWarning::Kind::kOvertyped
              ? fmt::format("the text covers {}, which the board fills", cells)
              : fmt::format("the text has placeholders in {}, which the board does not fill",
                            cells));
}

}  // namespace vendlingua::cli
