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

// The parser takes so many bytes for a tag, an attribute or a text between tags; a file may have
// five. All together may take three times what the file has, and a little more for small ones.
constexpr std::size_t kBytesOfMarkup = 64;
constexpr std::size_t kMarkupOfAnyFile = std::size_t{1} << 16U;
constexpr std::size_t kMostMemory = 3;

// What is shown of an attribute that is not as it should be.
constexpr std::size_t kShownCharacters = 64;

// References are left to Unescaped().
constexpr unsigned int kParserOptions = pugi::parse_cdata | pugi::parse_ws_pcdata |
                                        pugi::parse_eol | pugi::parse_wconv_attribute |
                                        pugi::parse_declaration | pugi::parse_doctype;

TableReading Refused(TableProblem problem) {
  TableReading reading;
  reading.problems.Add(std::move(problem));
  return reading;
}

std::string Shown(std::string_view value) { return std::string(value.substr(0, kShownCharacters)); }

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

const char* DeclaredEncoding(const pugi::xml_document& document) {
  return document.first_child().attribute("encoding").value();
}

// Windows-1252 must be declared; whatever else is no UTF-8 would be read as that.
bool DeclaresWindows1252(const pugi::xml_document& document) {
  const std::string declared = UpperCase(Shown(DeclaredEncoding(document)));
  return declared == "WINDOWS-1252" || declared == "ISO-8859-1";
}

std::optional<TableProblem> ProblemOf(const pugi::xml_document& document, TextEncoding encoding) {
  if (encoding == TextEncoding::kWindows1252 && !DeclaresWindows1252(document)) {
    return TableProblem{.kind = Kind::kOtherEncoding, .text = Shown(DeclaredEncoding(document))};
  }
  const auto is_document_type = [](pugi::xml_node node) {
    return node.type() == pugi::node_doctype;
  };
  if (document.find_child(is_document_type)) {
    return TableProblem{.kind = Kind::kDocumentType};
  }
  const pugi::xml_node root = document.document_element();
  if (xliff::LocalName(root) != xliff::kRoot) {
    return TableProblem{.kind = Kind::kNoXliff, .text = Shown(root.name())};
  }
  const std::string_view version = root.attribute("version").value();
  if (!version.starts_with("1.")) {
    return TableProblem{.kind = Kind::kOtherXliffVersion, .text = Shown(version)};
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

// Elements, attributes and texts between tags, of which there may be fewer.
std::size_t MarkupIn(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '<') {
      const bool begins_element = text.substr(i + 1, 1) != "/";
      const bool ends_text = i > 0 && text[i - 1] != '>';
      count += std::size_t{begins_element} + std::size_t{ends_text};
    } else if (text[i] == '=') {
      ++count;
    }
  }
  return count;
}

std::size_t MostMarkup(std::size_t file_bytes, std::size_t text_bytes) {
  const std::size_t held = file_bytes + text_bytes;
  const std::size_t left = std::max(kMostMemory * file_bytes, held) - held;
  return kMarkupOfAnyFile + left / kBytesOfMarkup;
}

// Makes `text` the file in UTF-8, in memory that is not much more than it needs.
std::optional<TableProblem> Convert(std::string_view content, const DetectedEncoding& encoding,
                                    std::string& text) {
  std::size_t size = 0;
  Utf8Pieces counted(content, encoding);
  while (const auto piece = counted.Next()) {
    size += piece->size();
  }
  if (counted.problem()) {
    return counted.problem();
  }
  if (content.size() + size > kMostMemory * content.size()) {
    // Nobody's tags are made of such characters.
    return TableProblem{.kind = Kind::kOtherEncoding};
  }
  text.clear();
  text.reserve(size);
  Utf8Pieces pieces(content, encoding);
  while (const auto piece = pieces.Next()) {
    text += *piece;
  }
  return std::nullopt;
}

}  // namespace

TableReading ReadXliff(std::string_view content, const DetectedEncoding& encoding) {
  std::string text;
  if (auto problem = Convert(content, encoding, text)) {
    return Refused(std::move(*problem));
  }
  const std::size_t most = MostMarkup(content.size(), text.size());
  if (MarkupIn(text) > most) {
    return Refused({.kind = Kind::kTooMuchMarkup, .limit = most});
  }
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer_inplace(text.data(), text.size(), kParserOptions, pugi::encoding_utf8);
  if (!parsed) {
    // The parser has written into the text.
    document.reset();
    Convert(content, encoding, text);
    return Refused({.kind = Kind::kBadXml,
                    .text = parsed.description(),
                    .number = LineAt(text, parsed.offset)});
  }
  if (auto problem = ProblemOf(document, encoding.encoding)) {
    return Refused(std::move(*problem));
  }
  TableReading reading;
  reading.table.format = TableFormat::kXliff;
  UnitCollector units(reading);
  UnitsOf(document).traverse(units);
  return reading;
}

}  // namespace vendlingua
