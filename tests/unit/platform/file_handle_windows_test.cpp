#ifdef _WIN32

#include <gmock/gmock.h>
#include <windows.h>

#include <filesystem>
#include <string>

#include "core/platform/errors.h"
#include "core/platform/files.h"
#include "support/temporary_folder.h"

namespace vendlingua {
namespace {

using test::Slurp;
using testing::EndsWith;

// Another program that has a file open; `shared` is what it lets others do meanwhile.
class OtherProgram {
 public:
  OtherProgram(const std::filesystem::path& file, DWORD shared)
      : handle_(
            CreateFileW(file.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  ~OtherProgram() { CloseHandle(handle_); }

  std::string Read() {
    std::string bytes(100, '\0');
    DWORD length = 0;
    ::ReadFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr);
    bytes.resize(length);
    return bytes;
  }

 private:
  HANDLE handle_;
};

class FileInUseTest : public testing::Test {
 protected:
  // What the error of `work` says; empty when there is none.
  template <typename Work>
  static std::string ErrorOf(const Work& work) {
    try {
      work();
      return {};
    } catch (const FileError& error) {
      return error.what();
    }
  }

  test::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_.Write("A.MES", "old");
};

TEST_F(FileInUseTest, CannotBeReadWhileAnotherProgramKeepsItForItself) {
  const OtherProgram other(file_, 0);
  EXPECT_THAT(ErrorOf([&] { vendlingua::ReadFile(file_, 100); }),
              EndsWith("A.MES: cannot be opened: it is in use by another program"));
}

TEST_F(FileInUseTest, StaysAsItIsWhileAnotherProgramKeepsItForItself) {
  {
    const OtherProgram other(file_, FILE_SHARE_READ);
    EXPECT_THAT(ErrorOf([&] { vendlingua::WriteFile(file_, "new"); }),
                EndsWith("A.MES: cannot be written: it is in use by another program"));
  }
  EXPECT_EQ(Slurp(file_), "old");
  EXPECT_EQ(folder_.Names(), "A.MES");
}

TEST_F(FileInUseTest, IsReplacedWhileAnotherProgramReadsIt) {
  OtherProgram other(file_, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  vendlingua::WriteFile(file_, "new");
  EXPECT_EQ(other.Read(), "old");
  EXPECT_EQ(Slurp(file_), "new");
}

}  // namespace
}  // namespace vendlingua

#endif
