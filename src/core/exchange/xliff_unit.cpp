#include "core/exchange/xliff_unit.h"

#include <utf8.h>

#include <algorithm>
#include <utility>

#include "core/exchange/table_rows.h"
#include "core/exchange/xliff_names.h"
#include "core/exchange/xml_text.h"

namespace vendlingua::xliff {
namespace {

using Kind = TableProblem::Kind;

// More than anything has that is no text of a message.
constexpr std::size_t kLongestValue = 256;

// A text as it stands in an element: its runs, and the ids of its placeholders.
struct InlineText {
  TextRuns runs;
  std::vector<std::string> placeholder_ids;
};

bool IsControlCharacter(char c) { return static_cast<unsigned char>(c) < ' '; }

// The characters of a value that says something short; of one that is longer its first.
std::string Start(std::string_view raw) { return Unescaped(raw.substr(0, kLongestValue)).text; }

std::string Attribute(pugi::xml_node element, const char* name) {
  return Start(element.attribute(name).value());
}

// Reads the content of a source or a target. Segments that tools mark in it are of no meaning here.
class InlineReader : public pugi::xml_tree_walker {
 public:
  bool for_each(pugi::xml_node& node) override {
    switch (node.type()) {
      case pugi::node_pcdata:
        if (HasRoomFor(node.value())) {
          AddReferences(node.value());
        }
        break;
      case pugi::node_cdata:
        if (HasRoomFor(node.value())) {
          AddCharacters(node.value());
        }
        break;
      case pugi::node_element:
        if (HasRoomFor("x")) {
          AddElement(node);
        }
        break;
      default:
        break;
    }
    return !problem;
  }

  InlineText text;
  std::optional<TableProblem> problem;

 private:
  bool HasRoomFor(std::string_view raw) {
    bytes_ += raw.size();
    if (bytes_ > kLongestField) {
      problem = TableProblem{.kind = Kind::kFieldTooLong, .limit = kLongestField};
    }
    return !problem;
  }

  void AddReferences(std::string_view raw) {
    XmlText characters = Unescaped(raw);
    if (characters.unknown) {
      problem = TableProblem{.kind = Kind::kUnknownEntity, .text = *characters.unknown};
    } else {
      AddCharacters(characters.text);
    }
  }

  void AddCharacters(std::string_view characters) {
    if (std::any_of(characters.begin(), characters.end(), IsControlCharacter)) {
      problem = TableProblem{.kind = Kind::kControlCharacter};
    } else if (text.runs.empty() || text.runs.back().is_placeholder) {
      text.runs.push_back({std::string(characters)});
    } else {
      text.runs.back().characters += characters;
    }
  }

  void AddElement(pugi::xml_node element) {
    const std::string_view name = LocalName(element);
    if (name == kPlaceholder) {
      text.placeholder_ids.push_back(Attribute(element, "id"));
      text.runs.push_back({Attribute(element, "equiv-text"), true});
    } else if (name != "mrk") {
      problem = TableProblem{.kind = Kind::kUnknownElement,
                             .text = std::string(name.substr(0, kLongestValue))};
    }
  }

  std::size_t bytes_ = 0;  // of all texts, as the file has them; an element counts one
};

// The numbers that references in a PO file were made of.
std::vector<std::string> ReferencedMessages(pugi::xml_node element) {
  std::vector<std::string> messages;
  for (const pugi::xml_node group : element.children()) {
    if (LocalName(group) == "context-group" && Attribute(group, "name") == "po-reference") {
      messages.push_back(Start(Child(group, "context").text().get()));
    }
  }
  return messages;
}

std::vector<std::string> MessagesOf(pugi::xml_node element) {
  if (const pugi::xml_attribute name = element.attribute("resname")) {
    return {Start(name.value())};
  }
  std::vector<std::string> messages = ReferencedMessages(element);
  if (messages.empty()) {
    messages.push_back(Attribute(element, "id"));
  }
  return messages;
}

// A tool may leave out what a placeholder is shown as in the target.
void TakeSizesFromSource(const InlineText& source, InlineText& target) {
  auto from = source.runs.begin();
  for (TextRun& run : target.runs) {
    if (run.is_placeholder) {
      from = std::find_if(from, source.runs.end(), [](const auto& r) { return r.is_placeholder; });
      run.characters = from++->characters;
    }
  }
}

bool IsEmpty(const TextRuns& runs) {
  return std::all_of(runs.begin(), runs.end(), [](const TextRun& run) {
    return !run.is_placeholder && run.characters.empty();
  });
}

bool IsMarkedAsTranslated(pugi::xml_node target) {
  const std::string state = Attribute(target, "state");
  return state == kTranslated || state == "final" || state == "signed-off";
}

}  // namespace

std::string_view LocalName(pugi::xml_node element) {
  const std::string_view name = element.name();
  return name.substr(name.find(':') + 1);
}

pugi::xml_node Child(pugi::xml_node parent, std::string_view local_name) {
  return parent.find_child(
      [local_name](pugi::xml_node child) { return LocalName(child) == local_name; });
}

UnitReading ReadUnit(pugi::xml_node element) {
  UnitReading reading;
  reading.unit.messages = MessagesOf(element);
  pugi::xml_node target_element = Child(element, kTarget);
  InlineReader source;
  InlineReader target;
  Child(element, kSource).traverse(source);
  target_element.traverse(target);
  if (source.problem || target.problem) {
    reading.problem = source.problem ? source.problem : target.problem;
    return reading;
  }
  const std::vector<std::string>& ids = target.text.placeholder_ids;
  if (ids == source.text.placeholder_ids) {
    TakeSizesFromSource(source.text, target.text);
  } else if (!ids.empty()) {
    reading.problem = TableProblem{.kind = Kind::kOtherPlaceholders};
  }
  reading.unit.is_translated = !IsEmpty(target.text.runs) || IsMarkedAsTranslated(target_element);
  reading.unit.source = std::move(source.text.runs);
  reading.unit.target = std::move(target.text.runs);
  return reading;
}

}  // namespace vendlingua::xliff
