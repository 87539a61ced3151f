#include <gmock/gmock.h>

#include <random>
#include <string>
#include <string_view>

#include "core/operations/message_file_opener.h"
#include "core/platform/errors.h"
#include "support/engine_test.h"

namespace vendlingua {
namespace {

using test::MesFile;
using test::MsxFile;
using test::Slurp;
using ::testing::HasSubstr;

class DamagedMessageFileTest : public test::EngineTest {
 protected:
  // Whatever a file holds, it is opened or refused, and so are its texts; it is not changed.
  void ExpectNoAccident(std::string_view name, std::string_view content) {
    try {
      if (Open(name, content) == OpenOutcome::kOpened) {
        engine_.languages.ChooseOrigin(1);
      }
    } catch (const Error& error) {
      EXPECT_THAT(error.what(), HasSubstr((folder_ / name).string()));
    }
    EXPECT_EQ(Slurp(folder_ / name), content);
  }
};

TEST_F(DamagedMessageFileTest, IsTakenOrRefusedAsMesFileCutAtAnyByte) {
  const std::string content = MesFile().Bytes();
  for (std::size_t size = 0; size <= content.size(); ++size) {
    ExpectNoAccident("FILE.MES", content.substr(0, size));
  }
}

TEST_F(DamagedMessageFileTest, IsTakenOrRefusedAsMsxFileCutAnywhere) {
  const std::string content = MsxFile(1);
  for (std::size_t size = 0; size < 60; ++size) {
    ExpectNoAccident("FILE.MSX", content.substr(0, size));
    ExpectNoAccident("FILE.MSX", content.substr(0, content.size() - size));
  }
}

TEST_F(DamagedMessageFileTest, IsTakenOrRefusedAsRandomBytes) {
  std::mt19937 random(417);
  for (int i = 0; i < 100; ++i) {
    std::string bytes(random() % 300, '\0');
    for (char& byte : bytes) {
      byte = static_cast<char>(random());
    }
    ExpectNoAccident("FILE.MSX", bytes);
    ExpectNoAccident("FILE.MSX", MsxFile(0) + bytes);
    // Below 32, and so no source.
    ExpectNoAccident("FILE.MES", static_cast<char>(random() % 32) + bytes);
    // Random dimensions behind a header that is well formed.
    std::string mes = MesFile{.lang_count = 1 + random() % 31, .width = 1 + random() % 60}.Bytes();
    for (std::size_t digit = 2; digit < 24; ++digit) {
      mes[digit] = "0123456789ABCDEF"[random() % (digit == 8 ? 1 : 16)];
    }
    ExpectNoAccident("FILE.MES", mes + bytes);
  }
}

}  // namespace
}  // namespace vendlingua
