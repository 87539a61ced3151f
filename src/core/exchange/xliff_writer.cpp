#include "core/exchange/xliff_writer.h"

#include <fmt/format.h>

#include <algorithm>
#include <pugixml.hpp>

#include "core/exchange/xliff_names.h"

namespace vendlingua {
namespace {

constexpr int kUnitDepth = 3;

// Breaks the line before what comes next. The writer would indent the texts, too, where every blank
// counts.
void BreakLine(pugi::xml_node parent, int depth) {
  const std::string indent = "\n" + std::string(2 * static_cast<std::size_t>(depth), ' ');
  parent.append_child(pugi::node_pcdata).set_value(indent.c_str());
}

pugi::xml_node AppendElement(pugi::xml_node parent, const char* name, int depth) {
  BreakLine(parent, depth);
  return parent.append_child(name);
}

void AppendAttribute(pugi::xml_node element, const char* name, const std::string& value) {
  element.append_attribute(name).set_value(value.c_str());
}

void AppendCharacters(pugi::xml_node element, const std::string& characters) {
  element.append_child(pugi::node_pcdata).set_value(characters.c_str());
}

std::vector<std::size_t> PlaceholderSizes(const TextRuns& runs) {
  std::vector<std::size_t> sizes;
  for (const TextRun& run : runs) {
    if (run.is_placeholder) {
      sizes.push_back(CellsOf(run));
    }
  }
  return sizes;
}

std::string WithoutBlanksAtTheEnd(std::string text) {
  text.resize(text.find_last_not_of(' ') + 1);
  return text;
}

void AppendRuns(pugi::xml_node element, const TextRuns& runs) {
  std::size_t placeholders = 0;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    if (runs[i].is_placeholder) {
      pugi::xml_node placeholder = element.append_child(xliff::kPlaceholder);
      AppendAttribute(placeholder, "id", std::to_string(++placeholders));
      AppendAttribute(placeholder, "equiv-text", xliff::EquivalentText(CellsOf(runs[i])));
    } else {
      const bool is_last = i + 1 == runs.size();
      AppendCharacters(element,
                       is_last ? WithoutBlanksAtTheEnd(runs[i].characters) : runs[i].characters);
    }
  }
}

// A placeholder of the target is one of the source's. Where they differ the text has an error,
// which only a text that can be edited lets people mend.
void AppendTarget(pugi::xml_node target, const TranslationRow& row) {
  if (PlaceholderSizes(row.text) == PlaceholderSizes(row.origin)) {
    AppendRuns(target, row.text);
  } else {
    AppendCharacters(target, WithoutBlanksAtTheEnd(FlatText(row.text)));
  }
}

void AppendUnit(pugi::xml_node body, const TranslationRow& row, const TranslationTable& table) {
  const std::string number = std::to_string(row.message);
  pugi::xml_node unit = AppendElement(body, xliff::kUnit, kUnitDepth);
  AppendAttribute(unit, "id", number);
  AppendAttribute(unit, "resname", number);
  AppendAttribute(unit, "maxwidth", std::to_string(table.width));
  AppendAttribute(unit, "size-unit", "char");
  AppendAttribute(unit, "xml:space", "preserve");
  AppendRuns(AppendElement(unit, xliff::kSource, kUnitDepth + 1), row.origin);
  pugi::xml_node target = AppendElement(unit, xliff::kTarget, kUnitDepth + 1);
  const bool is_origin = table.source_language == table.target_language;
  AppendAttribute(target, "state",
                  row.needs_translation && !is_origin ? "needs-translation" : xliff::kTranslated);
  AppendTarget(target, row);
  if (!row.board_cells.empty()) {
    pugi::xml_node note = AppendElement(unit, "note", kUnitDepth + 1);
    AppendAttribute(note, "from", "developer");
    AppendCharacters(note, fmt::format("The board fills {}.", InWords(row.board_cells)));
  }
  BreakLine(unit, kUnitDepth);
}

struct StringWriter : pugi::xml_writer {
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }

  std::string text;
};

}  // namespace

std::string WriteXliff(const TranslationTable& table) {
  pugi::xml_document document;
  pugi::xml_node root = document.append_child(xliff::kRoot);
  AppendAttribute(root, "version", "1.2");
  AppendAttribute(root, "xmlns", "urn:oasis:names:tc:xliff:document:1.2");
  pugi::xml_node file = AppendElement(root, "file", 1);
  AppendAttribute(file, "original", table.name);
  AppendAttribute(file, "source-language", table.source_language);
  AppendAttribute(file, "target-language", table.target_language);
  AppendAttribute(file, "datatype", "plaintext");
  pugi::xml_node body = AppendElement(file, "body", 2);
  for (const TranslationRow& row : table.rows) {
    AppendUnit(body, row, table);
  }
  BreakLine(body, 2);
  BreakLine(file, 1);
  BreakLine(root, 0);
  StringWriter writer;
  writer.text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
  return writer.text + "\n";
}

}  // namespace vendlingua
