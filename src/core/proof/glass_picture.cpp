#include "core/proof/glass_picture.h"

#include <algorithm>
#include <array>
#include <cstdint>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

namespace vendlingua {
namespace {

constexpr std::size_t kDotPixels = 8;
constexpr std::size_t kBorderDots = 2;

using Colour = std::array<std::uint8_t, 3>;
constexpr Colour kBacklight = {0x1B, 0x3F, 0xC8};
constexpr Colour kDarkDot = {0x24, 0x4A, 0xD6};
constexpr Colour kLitDot = {0xEE, 0xF4, 0xFF};

// A picture that is painted dot by dot.
class Picture {
 public:
  Picture(std::size_t columns, std::size_t rows)
      : width_(columns * kDotPixels), height_(rows * kDotPixels) {
    pixels_.reserve(width_ * height_ * kBacklight.size());
    for (std::size_t i = 0; i < width_ * height_; ++i) {
      pixels_.insert(pixels_.end(), kBacklight.begin(), kBacklight.end());
    }
  }

  // The last row and column of pixels of a dot are the gap to the next one.
  void Paint(std::size_t column, std::size_t row, const Colour& colour) {
    for (std::size_t y = 0; y + 1 < kDotPixels; ++y) {
      for (std::size_t x = 0; x + 1 < kDotPixels; ++x) {
        const std::size_t pixel = (row * kDotPixels + y) * width_ + column * kDotPixels + x;
        std::copy(colour.begin(), colour.end(),
                  pixels_.begin() + static_cast<std::ptrdiff_t>(pixel * colour.size()));
      }
    }
  }

  std::string Png() const {
    std::string png;
    const auto append = [](void* context, void* data, int size) {
      static_cast<std::string*>(context)->append(static_cast<const char*>(data),
                                                 static_cast<std::size_t>(size));
    };
    const auto channels = static_cast<int>(kBacklight.size());
    const auto width = static_cast<int>(width_);
    stbi_write_png_to_func(append, &png, width, static_cast<int>(height_), channels, pixels_.data(),
                           width * channels);
    return png;
  }

 private:
  std::size_t width_;
  std::size_t height_;
  std::vector<std::uint8_t> pixels_;
};

void PaintGlyph(Picture& picture, std::size_t left, std::size_t top, const Glyph& glyph) {
  for (std::size_t y = 0; y < Glyph::kRows; ++y) {
    for (std::size_t x = 0; x < Glyph::kColumns; ++x) {
      picture.Paint(left + x, top + y, glyph.HasDot(x, y) ? kLitDot : kDarkDot);
    }
  }
}

}  // namespace

std::string GlassPicture(const std::vector<std::vector<GlassCell>>& rows,
                         const Alphabet& alphabet) {
  std::size_t width = 0;
  for (const auto& row : rows) {
    width = std::max(width, row.size());
  }
  Picture picture(width * kGlassCellColumns - 1 + 2 * kBorderDots,
                  rows.size() * kGlassCellRows - 1 + 2 * kBorderDots);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t cell = 0; cell < rows[row].size(); ++cell) {
      PaintGlyph(picture, kBorderDots + cell * kGlassCellColumns,
                 kBorderDots + row * kGlassCellRows, alphabet.GlyphOf(rows[row][cell].code));
    }
  }
  return picture.Png();
}

}  // namespace vendlingua
