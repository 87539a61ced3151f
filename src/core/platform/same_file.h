#ifndef VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_
#define VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_

#include <filesystem>

namespace vendlingua {

/// Where a path leads: worked out once, to be compared with many. A file that is still to be made
/// is known by where its path leads.
class FilePlace {
 public:
  explicit FilePlace(const std::filesystem::path& file);

  /// Whether both lead to the same file: by another spelling, through links, or as two names of one
  /// file.
  bool IsSameAs(const FilePlace& other) const;

 private:
  std::filesystem::path file_;
  std::filesystem::path destination_;
  bool is_made_;
};

inline bool LeadToSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
  return FilePlace(a).IsSameAs(FilePlace(b));
}

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_SAME_FILE_H_
