#ifndef VENDLINGUA_CORE_DESK_MEMORIES_H_
#define VENDLINGUA_CORE_DESK_MEMORIES_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/desk/memory_texts.h"
#include "core/document/workspace.h"
#include "core/transfer/suggestions.h"

namespace vendlingua {

/// The sample file that comes with the program, in nine languages.
std::filesystem::path SampleFile(const Folders& folders);

/// Where translations are looked up.
struct MemorySource {
  enum class Kind { kFile, kThisFile, kSamples };
  Kind kind;
  std::filesystem::path file;
};

/// A translation that is certain enough to be filled in.
struct FilledText {
  NewText text;
  std::size_t memory;  ///< where it comes from: a place in Memories::sources()
};

/// What was translated before: in files that the user chose, in the open file, and in the samples
/// that come with the program. It answers for the languages that are open.
class Memories {
 public:
  /// `files` first, `samples` last.
  void SetFiles(std::vector<std::filesystem::path> files, std::filesystem::path samples);

  /// Looks at the document again. What is typed into the current message counts when it is left.
  void Follow(const MessageSet& set);

  /// Those that hold the languages, in the order in which they are asked.
  const std::vector<MemorySource>& sources() const { return sources_; }
  /// Files that could not be read, samples aside.
  const std::vector<std::filesystem::path>& unreadable() const { return unreadable_; }

  /// At most `most` translations of texts that are like the current message of the set that was
  /// looked at, the most similar first. What the message says already is not among them.
  std::vector<Suggestion> SuggestionsFor(const MessageSet& set, std::size_t most) const;

  /// What the messages that are to do could say: translations of the same text, or of the same
  /// words laid out anew. Nothing is changed.
  std::vector<FilledText> Pretranslate(const MessageSet& set) const;

 private:
  /// What the memories were read for.
  struct Languages {
    std::uint32_t file = 0;
    std::optional<int> origin;
    int destination = 0;
    Phase phase = Phase::kNoFile;
    std::size_t display_type = 0;
    std::string name_text;  ///< of a language that has no other name

    bool operator==(const Languages&) const = default;
  };

  void Clear();
  void Read(const MessageSet& set);
  void ReadFrom(const MemorySource& source, const MessageSet& set);
  void Add(const MemorySource& source, MemoryTexts texts);
  void NoteSeen(const MessageSet& set);
  void LearnFrom(const MessageSet& set);

  std::vector<std::filesystem::path> files_;
  std::filesystem::path samples_;
  std::optional<Languages> languages_;
  std::vector<MemorySource> sources_;
  std::vector<MemoryTexts> texts_;         // by source
  std::vector<TranslationMemory> lookup_;  // by source
  std::vector<std::filesystem::path> unreadable_;
  // What of the open file was learned from.
  MessageTexts seen_origins_;
  MessageTexts seen_texts_;
  std::size_t seen_message_ = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DESK_MEMORIES_H_
