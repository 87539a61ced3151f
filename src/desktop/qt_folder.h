#ifndef VENDLINGUA_DESKTOP_QT_FOLDER_H_
#define VENDLINGUA_DESKTOP_QT_FOLDER_H_

#include <QString>
#include <filesystem>

namespace vendlingua {

/// A folder under a name that Qt can open. Qt names files in Unicode and cannot reach a folder
/// whose path is none; such a folder gets a second name from the system, which holds as long as
/// this object.
class QtFolder {
 public:
  explicit QtFolder(std::filesystem::path folder);
  QtFolder(const QtFolder&) = delete;
  QtFolder& operator=(const QtFolder&) = delete;
  ~QtFolder();

  const QString& name() const { return name_; }
  /// name() is that second name: nobody but this process may keep it.
  bool HasSecondName() const { return handle_ != kNoHandle; }

  /// The path of `file`, which Qt found in this folder or elsewhere.
  std::filesystem::path PathOf(const QString& file) const;

 private:
  static constexpr int kNoHandle = -1;

  std::filesystem::path folder_;
  QString name_;
  int handle_ = kNoHandle;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_QT_FOLDER_H_
