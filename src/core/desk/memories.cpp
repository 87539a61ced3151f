#include "core/desk/memories.h"

#include <algorithm>
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

// What the current message says is no suggestion for itself.
MemoryTexts TextsOfOthers(const MessageSet& set) {
  MemoryTexts texts = OwnTexts(set);
  texts.translations.at(set.current_message) = DisplayText();
  return texts;
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
  } else if (seen_message_ != set.current_message || OtherTextsChanged(set)) {
    LearnAgain(set);
  }
}

void Memories::Read(const MessageSet& set) {
  for (const std::filesystem::path& file : files_) {
    ReadFrom({MemorySource::Kind::kFile, file}, set);
  }
  Add({MemorySource::Kind::kThisFile, set.CurrentFileName}, TextsOfOthers(set));
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

bool Memories::OtherTextsChanged(const MessageSet& set) const {
  if (seen_.size() != set.MessageCount()) {
    return true;
  }
  for (std::size_t message = 0; message < seen_.size(); ++message) {
    if (message != set.current_message && seen_[message] != set.DestText[message]) {
      return true;
    }
  }
  return false;
}

void Memories::NoteSeen(const MessageSet& set) {
  seen_.assign(set.DestText.begin(),
               set.DestText.begin() + static_cast<std::ptrdiff_t>(set.MessageCount()));
  seen_message_ = set.current_message;
}

void Memories::LearnAgain(const MessageSet& set) {
  NoteSeen(set);
  const auto own = std::ranges::find(sources_, MemorySource::Kind::kThisFile, &MemorySource::kind);
  const auto place = static_cast<std::size_t>(own - sources_.begin());
  texts_[place] = TextsOfOthers(set);
  lookup_[place] = TranslationMemory(texts_[place].origins, texts_[place].translations);
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
