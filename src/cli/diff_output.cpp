#include "cli/diff_output.h"

#include <fmt/format.h>

#include "cli/address_text.h"

namespace vendlingua::cli {
namespace {

Json ValueOf(const FieldValue& value) {
  return std::visit([](const auto& held) { return Json(held); }, value);
}

Json TextOrNull(const std::optional<DisplayCodes>& codes, const Alphabet& alphabet) {
  return codes ? Json(alphabet.TextOf(*codes)) : Json();
}

template <typename Value>
Json NumberOrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json();
}

Json LanguagesAsJson(const std::vector<NumberedLanguage>& languages) {
  Json json = Json::array();
  for (const NumberedLanguage& language : languages) {
    json.push_back({{"index", language.number}, {"name", language.name}});
  }
  return json;
}

Json LanguagesAsJson(const MessageFileComparison& comparison) {
  Json renamed = Json::array();
  for (const RenamedLanguage& language : comparison.renamed) {
    renamed.push_back({{"index", language.number}, {"a", language.a}, {"b", language.b}});
  }
  Json languages = {{"added", LanguagesAsJson(comparison.added)},
                    {"removed", LanguagesAsJson(comparison.removed)},
                    {"renamed", renamed}};
  for (const MovedLanguage& language : comparison.moved) {
    languages["moved"].push_back({{"name", language.name}, {"a", language.a}, {"b", language.b}});
  }
  return languages;
}

std::string UnlistedLine(std::size_t unlisted) {
  return unlisted == 0 ? "" : fmt::format("and {} more\n", unlisted);
}

std::string MessageLine(char sign, std::size_t message, const std::optional<DisplayCodes>& codes,
                        const Alphabet& alphabet) {
  return codes ? fmt::format("{}{:5} |{}|\n", sign, message, alphabet.TextOf(*codes)) : "";
}

std::string LanguageLines(const MessageFileComparison& comparison) {
  std::string text;
  for (const auto& [number, name] : comparison.removed) {
    text += fmt::format("- language {}: {}\n", number, name);
  }
  for (const auto& [number, name] : comparison.added) {
    text += fmt::format("+ language {}: {}\n", number, name);
  }
  for (const auto& [number, a, b] : comparison.renamed) {
    text += fmt::format("language {}: {} is named {}\n", number, a, b);
  }
  for (const auto& [name, a, b] : comparison.moved) {
    text += fmt::format("language {}: {} is language {}\n", a, name, b);
  }
  return text;
}

std::string RangeLine(const ByteDifference& bytes) {
  std::string line = RangeText({bytes.address, bytes.length});
  if (bytes.place.slot) {
    line += fmt::format(", slot {}", *bytes.place.slot);
  }
  if (bytes.place.message) {
    line += fmt::format(", message {}", *bytes.place.message);
  }
  return line + "\n";
}

// A message as a flash file has it; bytes that it does not hold are blank.
DisplayCodes MessageIn(const FlashMemory& memory, std::uint32_t address, std::size_t width) {
  DisplayCodes cells;
  for (std::size_t i = 0; i < width; ++i) {
    cells.push_back(memory.At(static_cast<std::uint32_t>(address + i)).value_or(kBlank));
  }
  return cells;
}

std::string MessageLines(const BoardPlace& place, const FlashTexts& texts) {
  const std::uint32_t address = AddressOf(texts.dimensions, *place.slot, *place.message);
  const std::size_t width = texts.dimensions.Width();
  return MessageLine('-', *place.message, MessageIn(texts.a, address, width), texts.alphabet) +
         MessageLine('+', *place.message, MessageIn(texts.b, address, width), texts.alphabet);
}

}  // namespace

Json DifferencesAsJson(const MessageFileComparison& comparison, const DiffTexts& texts) {
  Json header = Json::array();
  for (const FieldDifference& field : comparison.header) {
    header.push_back({{"field", field.field}, {"a", ValueOf(field.a)}, {"b", ValueOf(field.b)}});
  }
  Json messages = Json::array();
  for (const MessageDifference& message : comparison.messages) {
    messages.push_back({{"language", message.language},
                        {"message", message.message},
                        {"a", TextOrNull(message.a, texts.a)},
                        {"b", TextOrNull(message.b, texts.b)}});
  }
  Json json = {{"same", comparison.Same()},
               {"header", header},
               {"languages", LanguagesAsJson(comparison)},
               {"messages", messages}};
  if (comparison.unlisted > 0) {
    json["unlisted"] = comparison.unlisted;
  }
  return json;
}

Json DifferencesAsJson(const FlashComparison& comparison) {
  Json bytes = Json::array();
  for (const ByteDifference& run : comparison.bytes) {
    bytes.push_back({{"address", run.address},
                     {"length", run.length},
                     {"slot", NumberOrNull(run.place.slot)},
                     {"message", NumberOrNull(run.place.message)}});
  }
  Json json = {{"same", comparison.Same()}, {"bytes", bytes}};
  if (comparison.unlisted > 0) {
    json["unlisted"] = comparison.unlisted;
  }
  return json;
}

std::string DifferencesAsText(const MessageFileComparison& comparison, const DiffTexts& texts,
                              const MessageSet& a) {
  std::string text;
  for (const FieldDifference& field : comparison.header) {
    text += fmt::format("{}: {} is {}\n", field.field, FieldText(field.field, ValueOf(field.a)),
                        FieldText(field.field, ValueOf(field.b)));
  }
  text += LanguageLines(comparison);
  int language = -1;
  for (const MessageDifference& message : comparison.messages) {
    if (message.language != language) {
      language = message.language;
      text += fmt::format("language {}: {}\n", language,
                          a.language_names.at(static_cast<std::size_t>(language)));
    }
    text += MessageLine('-', message.message, message.a, texts.a) +
            MessageLine('+', message.message, message.b, texts.b);
  }
  return text + UnlistedLine(comparison.unlisted);
}

std::string DifferencesAsText(const FlashComparison& comparison) {
  std::string text;
  for (const ByteDifference& bytes : comparison.bytes) {
    text += RangeLine(bytes);
  }
  return text + UnlistedLine(comparison.unlisted);
}

std::string DifferencesAsText(const FlashComparison& comparison, const FlashTexts& texts) {
  std::string text;
  for (std::size_t i = 0; i < comparison.bytes.size(); ++i) {
    const ByteDifference& bytes = comparison.bytes[i];
    text += RangeLine(bytes);
    const bool is_last_of_message =
        i + 1 == comparison.bytes.size() || comparison.bytes[i + 1].place != bytes.place;
    if (bytes.place.message && is_last_of_message) {
      text += MessageLines(bytes.place, texts);
    }
  }
  return text + UnlistedLine(comparison.unlisted);
}

}  // namespace vendlingua::cli
