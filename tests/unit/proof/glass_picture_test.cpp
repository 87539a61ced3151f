#include "core/proof/glass_picture.h"

#include <gmock/gmock.h>

#include "support/message_files.h"

namespace vendlingua {
namespace {

using testing::StartsWith;

std::uint32_t BigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (const char byte : bytes) {
    value = value << 8U | static_cast<unsigned char>(byte);
  }
  return value;
}

TEST(GlassPicture, IsAPngOfEightPixelsADot) {
  const auto row = GlassCells(test::Codes("0123456789ABCDEF"));
  const std::string png = GlassPicture({row, row}, Alphabet::Of(0));
  EXPECT_THAT(png, StartsWith("\x89PNG\r\n\x1A\n"));
  EXPECT_EQ(BigEndian(png.substr(16, 4)), (16 * 6 - 1 + 4) * 8U);
  EXPECT_EQ(BigEndian(png.substr(20, 4)), (2 * 9 - 1 + 4) * 8U);
}

TEST(GlassPicture, ShowsWhatTheDisplayDraws) {
  const auto picture = [](const char* text, std::size_t display) {
    return GlassPicture({GlassCells(test::Codes(text))}, Alphabet::Of(display));
  };
  EXPECT_NE(picture("A", 0), picture("B", 0));
  EXPECT_EQ(picture("A", 0), picture("A", 1));
  EXPECT_NE(picture("\xA8", 0), picture("\xA8", 1)) << "a diaeresis, and a Cyrillic letter";
}

}  // namespace
}  // namespace vendlingua
