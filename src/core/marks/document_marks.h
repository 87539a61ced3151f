#ifndef VENDLINGUA_CORE_MARKS_DOCUMENT_MARKS_H_
#define VENDLINGUA_CORE_MARKS_DOCUMENT_MARKS_H_

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/document/message_set.h"
#include "core/marks/marks_file.h"

namespace vendlingua {

/// The marks of the language that is open as destination. They are kept in a file of their own,
/// which is there only while something is marked. A mark belongs to the message that has its number
/// and says what it said in the reference; where an update moved it, to the only one that says so.
class DocumentMarks {
 public:
  /// Reads the marks when another file or language is open.
  void Follow(const MessageSet& set);

  /// The mark of a message; an empty one behind the last.
  const MessageMark& Of(std::size_t message) const;

  /// Whether there is a language of a file whose messages can be marked.
  bool CanMark() const { return !language_.empty() && is_readable_; }
  /// The marks file, when it holds something else: it stays as it is.
  std::optional<std::filesystem::path> Unreadable() const;

  /// Marks a message of the document that is followed, and keeps that at once. Throws FileError;
  /// all stays as it was then.
  void Put(std::size_t message, const MessageMark& mark);

 private:
  struct Source {
    std::uint32_t file = 0;
    std::filesystem::path path;
    std::string language;
    std::size_t messages = 0;

    bool operator==(const Source&) const = default;
  };

  void Take(const KeptMarks& kept);
  std::vector<std::optional<std::size_t>> PlacesOf(const KeptMarks& kept) const;

  std::optional<Source> source_;
  std::filesystem::path file_;
  std::string language_;                // empty for none
  std::vector<std::string> reference_;  // by message
  std::vector<MessageMark> marks_;      // the same
  bool is_readable_ = true;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_MARKS_DOCUMENT_MARKS_H_
