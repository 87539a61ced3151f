#include "core/transfer/language_update.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "core/document/name_field.h"
#include "core/formats/mes_file.h"
#include "core/formats/mes_layout.h"
#include "core/formats/mes_patch.h"
#include "core/platform/errors.h"
#include "core/transfer/carried_texts.h"

namespace vendlingua {
namespace {

// The language of a name, without regard to case; the reference block is none.
std::optional<int> Find(const MessageSet& set, const std::string& name) {
  for (int k = 1; set.HoldsLanguage(k); ++k) {
    if (NameInUpdate(set, k) == name) {
      return k;
    }
  }
  return std::nullopt;
}

// What messages are known by in the older file.
int OlderReference(const MessageSet& file, const MessageSet& older) {
  return Find(older, NameInUpdate(file, kReferenceLanguage)).value_or(kReferenceLanguage);
}

}  // namespace

std::string NameInUpdate(const MessageSet& set, int language) {
  return NameField::FromAnswer(set.language_names.at(static_cast<std::size_t>(language))).Caption();
}

std::vector<CarriedLanguage> CarryLanguages(const MessageSet& file, const MessageSet& older) {
  const int older_reference = OlderReference(file, older);
  CarryTask task{.width = file.Width(),
                 .origin = TextsToCarry(file, 0),
                 .reference = TextsToCarry(file, kReferenceLanguage),
                 .older_reference = TextsToCarry(older, older_reference),
                 .older_texts = {}};
  std::vector<CarriedLanguage> languages;
  auto number = static_cast<int>(file.language_names.size());
  for (int k = 1; older.HoldsLanguage(k); ++k) {
    const std::string name = NameInUpdate(older, k);
    if (k == older_reference || Find(file, name)) {
      continue;
    }
    if (number == kNewLanguage) {
      throw FileError(file.CurrentFileName, UiTextId::kFileHolds100Languages);
    }
    task.older_texts = TextsToCarry(older, k);
    languages.push_back({number++, name, CarryOver(task)});
  }
  return languages;
}

std::vector<FilePatch> PatchesFor(MessageSet file, const std::vector<CarriedLanguage>& languages) {
  std::vector<FilePatch> patches;
  std::uintmax_t file_size = file.file_content.size();
  for (const CarriedLanguage& language : languages) {
    std::transform(language.messages.begin(), language.messages.end(), file.DestText.begin(),
                   [](const CarriedMessage& message) { return message.text; });
    auto added = BuildMesPatch(file, language.number, NameField::FromCaption(language.name),
                               MesFlags(file, file.DisplayType), file_size);
    std::move(added.begin(), added.end(), std::back_inserter(patches));
    file_size =
        static_cast<std::uintmax_t>(MesMessageOffset(file, language.number, file.MessageCount()));
  }
  return patches;
}

}  // namespace vendlingua
