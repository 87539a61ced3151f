#include "core/desk/memories.h"

#include <algorithm>
#include <span>
#include <utility>

#include "core/formats/message_file.h"
#include "core/platform/errors.h"
#include "core/transfer/carried_texts.h"
#include "core/transfer/carry_over.h"

namespace vendlingua {
namespace {

bool IsFilled(const CarriedMessage& message) {
  return message.result == CarryResult::kFilled || message.result == CarryResult::kAdapted;
}

}  // namespace

std::filesystem::path SampleFile(const Folders& folders) {
  return folders.program / "samples" / "FW0417AB.MES";
}

void Memories::SetFiles(std::vector<std::filesystem::path> files, std::filesystem::path samples) {
  files_ = std::move(files);
  samples_ = std::move(samples);
  Clear();
}

void Memories::Clear() {
  languages_.reset();
  sources_.clear();
  texts_.clear();
  lookup_.clear();
  unreadable_.clear();
}

void Memories::Follow(const MessageSet& set) {
  if (!set.DestinationIsOpen() || !set.origin_language) {
    Clear();
    return;
  }
  Languages languages{set.OpenedFiles, set.origin_language, set.DestLang,
                      set.phase,       set.DisplayType,     DestinationName(set)};
  if (languages_ != languages) {
    Clear();
    Read(set);
    languages_ = std::move(languages);
  } else {
    LearnFrom(set);
  }
}

void Memories::Read(const MessageSet& set) {
  for (const std::filesystem::path& file : files_) {
    ReadFrom({MemorySource::Kind::kFile, file}, set);
  }
  Add({MemorySource::Kind::kThisFile, set.CurrentFileName}, OwnTexts(set));
  lookup_.back().Learn(set.current_message, DisplayText());
  NoteSeen(set);
  ReadFrom({MemorySource::Kind::kSamples, samples_}, set);
}

void Memories::ReadFrom(const MemorySource& source, const MessageSet& set) {
  try {
    if (auto texts = TextsFromMemory(set, ReadMessageFile(source.file))) {
      Add(source, std::move(*texts));
    }
  } catch (const Error&) {
    if (source.kind == MemorySource::Kind::kFile) {
      unreadable_.push_back(source.file);
    }
  }
}

void Memories::Add(const MemorySource& source, MemoryTexts texts) {
  sources_.push_back(source);
  lookup_.emplace_back(texts.origins, texts.translations);
  texts_.push_back(std::move(texts));
}

void Memories::NoteSeen(const MessageSet& set) {
  const auto messages = static_cast<std::ptrdiff_t>(set.MessageCount());
  seen_origins_.assign(set.OriginText.begin(), set.OriginText.begin() + messages);
  seen_texts_.assign(set.DestText.begin(), set.DestText.begin() + messages);
  seen_message_ = set.current_message;
}

// What the current message says is no suggestion for itself.
void Memories::LearnFrom(const MessageSet& set) {
  const auto own = std::ranges::find(sources_, MemorySource::Kind::kThisFile, &MemorySource::kind);
  TranslationMemory& lookup = lookup_[static_cast<std::size_t>(own - sources_.begin())];
  if (!std::ranges::equal(seen_origins_, std::span(set.OriginText).first(set.MessageCount()))) {
    const MemoryTexts texts = OwnTexts(set);
    lookup = TranslationMemory(texts.origins, texts.translations);
    NoteSeen(set);
  }
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    if (message == seen_message_ || seen_texts_[message] != set.DestText[message]) {
      lookup.Learn(message, OwnTranslation(set, message));
      seen_texts_[message] = set.DestText[message];
    }
  }
  lookup.Learn(set.current_message, DisplayText());
  seen_message_ = set.current_message;
}

std::vector<Suggestion> Memories::SuggestionsFor(const MessageSet& set, std::size_t most) const {
  if (lookup_.empty()) {
    return {};
  }
  const std::size_t message = set.current_message;
  // One more, for the one that the message says already.
  std::vector<Suggestion> suggestions = vendlingua::SuggestionsFor(
      WithBoardCells(set, message, set.OriginText.at(message)), set.Width(), lookup_, most + 1);
  const DisplayText said = WithBoardCells(set, message, set.DestText.at(message));
  std::erase_if(suggestions, [&](const Suggestion& suggestion) {
    return suggestion.laid_out && DisplayText(*suggestion.laid_out) == said;
  });
  suggestions.resize(std::min(suggestions.size(), most));
  return suggestions;
}

std::vector<FilledText> Memories::Pretranslate(const MessageSet& set) const {
  std::vector<FilledText> filled;
  if (texts_.empty()) {
    return filled;
  }
  CarryTask task;
  task.width = set.Width();
  task.looks_for_similar = false;
  MessageTexts current;
  for (std::size_t message = 0; message < set.MessageCount(); ++message) {
    task.origin.push_back(WithBoardCells(set, message, set.OriginText.at(message)));
    current.push_back(WithBoardCells(set, message, set.DestText.at(message)));
  }
  task.reference = task.origin;
  for (std::size_t memory = 0; memory < texts_.size(); ++memory) {
    const bool is_own = sources_[memory].kind == MemorySource::Kind::kThisFile;
    const MemoryTexts texts = is_own ? OwnTexts(set) : texts_[memory];
    task.older_reference = texts.origins;
    task.older_texts = texts.translations;
    const std::vector<CarriedMessage> carried = vendlingua::Pretranslate(task, current);
    for (std::size_t message = 0; message < carried.size(); ++message) {
      if (IsFilled(carried[message])) {
        current[message] = carried[message].text;
        filled.push_back({{message, CellsToStore(set, current[message])}, memory});
      }
    }
  }
  std::ranges::sort(filled, {}, [](const FilledText& text) { return text.text.message; });
  return filled;
}

}  // namespace vendlingua
