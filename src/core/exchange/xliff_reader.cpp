#include "core/exchange/xliff_reader.h"

#include <algorithm>
#include <pugixml.hpp>
#include <string>
#include <utility>

#include "core/exchange/table_rows.h"
#include "core/exchange/xliff_names.h"
#include "core/exchange/xliff_unit.h"
#include "core/texts/ascii_case.h"

namespace vendlingua {
namespace {

using Kind = TableProblem::Kind;

// As many tags and attributes as no message file needs by far. The parser takes 64 bytes for each,
// a file only five.
constexpr std::size_t kMostMarkup = std::size_t{1} << 20U;

// References are left to Unescaped().
constexpr unsigned int kParserOptions = pugi::parse_cdata | pugi::parse_ws_pcdata |
                                        pugi::parse_eol | pugi::parse_wconv_attribute |
                                        pugi::parse_declaration | pugi::parse_doctype;

TableReading Refused(TableProblem problem) {
  TableReading reading;
  reading.problems.Add(std::move(problem));
  return reading;
}

std::size_t LineAt(std::string_view content, std::ptrdiff_t offset) {
  return 1 + static_cast<std::size_t>(std::count(content.begin(), content.begin() + offset, '\n'));
}

// Takes the units wherever they stand in a document, which tools divide as they like.
class UnitCollector : public pugi::xml_tree_walker {
 public:
  explicit UnitCollector(TableReading& reading) : reading_(reading) {}

  bool for_each(pugi::xml_node& node) override {
    const bool is_unit = xliff::LocalName(node) == xliff::kUnit;
    if (is_unit && node.attribute("restype").value() != std::string_view(kPoHeader)) {
      Take(node);
    }
    return true;
  }

 private:
  // What the conversion of a PO file makes of its header.
  static constexpr const char* kPoHeader = "x-gettext-domain-header";

  void Take(pugi::xml_node element) {
    ++place_;
    auto [unit, problem] = xliff::ReadUnit(element);
    if (problem) {
      problem->place = place_;
      problem->message = unit.messages.front();
      reading_.problems.Add(std::move(*problem));
    } else if (unit.is_translated) {
      for (const std::string& message : unit.messages) {
        rows_.Add(place_, message, {unit.source, unit.target}, reading_);
      }
    }
  }

  TableReading& reading_;
  TableRows rows_;
  std::size_t place_ = 0;
};

// Windows-1252 must be declared; whatever else is no UTF-8 would be read as that.
bool DeclaresWindows1252(const pugi::xml_document& document) {
  const std::string declared = UpperCase(document.first_child().attribute("encoding").value());
  return declared == "WINDOWS-1252" || declared == "ISO-8859-1";
}

std::optional<TableProblem> ProblemOf(const pugi::xml_document& document, TextEncoding encoding) {
  if (encoding == TextEncoding::kWindows1252 && !DeclaresWindows1252(document)) {
    const std::string declared = document.first_child().attribute("encoding").value();
    return TableProblem{.kind = Kind::kOtherEncoding, .text = declared};
  }
  const auto is_document_type = [](pugi::xml_node node) {
    return node.type() == pugi::node_doctype;
  };
  if (document.find_child(is_document_type)) {
    return TableProblem{.kind = Kind::kDocumentType};
  }
  const pugi::xml_node root = document.document_element();
  if (xliff::LocalName(root) != xliff::kRoot) {
    return TableProblem{.kind = Kind::kNoXliff, .text = root.name()};
  }
  const std::string_view version = root.attribute("version").value();
  if (!version.starts_with("1.")) {
    return TableProblem{.kind = Kind::kOtherXliffVersion, .text = std::string(version)};
  }
  return std::nullopt;
}

// po2xliff leaves the units of a template as they are and adds a file element with those of the PO
// file, which then are the ones that count.
pugi::xml_node UnitsOf(const pugi::xml_document& document) {
  const pugi::xml_node root = document.document_element();
  const pugi::xml_node added = root.find_child([](pugi::xml_node file) {
    return file.attribute("datatype").value() == std::string_view("po");
  });
  return added ? added : root;
}

TableReading ReadUtf8(std::string_view content, TextEncoding encoding) {
  const auto is_markup = [](char c) { return c == '<' || c == '='; };
  if (std::count_if(content.begin(), content.end(), is_markup) > std::ptrdiff_t{kMostMarkup}) {
    return Refused({.kind = Kind::kTooMuchMarkup, .limit = kMostMarkup});
  }
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer(content.data(), content.size(), kParserOptions, pugi::encoding_utf8);
  if (!parsed) {
    return Refused({.kind = Kind::kBadXml,
                    .text = parsed.description(),
                    .number = LineAt(content, parsed.offset)});
  }
  if (auto problem = ProblemOf(document, encoding)) {
    return Refused(std::move(*problem));
  }
  TableReading reading;
  reading.table.format = TableFormat::kXliff;
  UnitCollector units(reading);
  UnitsOf(document).traverse(units);
  return reading;
}

}  // namespace

TableReading ReadXliff(std::string_view content, const DetectedEncoding& encoding) {
  if (encoding.encoding == TextEncoding::kUtf8) {
    return ReadUtf8(content.substr(encoding.mark), encoding.encoding);
  }
  std::string text;
  Utf8Pieces pieces(content, encoding);
  while (const auto piece = pieces.Next()) {
    text += *piece;
  }
  return pieces.problem() ? Refused(*pieces.problem()) : ReadUtf8(text, encoding.encoding);
}

}  // namespace vendlingua
