#ifndef VENDLINGUA_CORE_PRESENTATION_TWIPS_H_
#define VENDLINGUA_CORE_PRESENTATION_TWIPS_H_

namespace vendlingua {

/// Window positions and sizes are stated in twips; 15 of them are one device-independent pixel (96
/// to the inch).
inline constexpr int kTwipsPerPixel = 15;

/// The nearest whole pixel.
constexpr int PixelsFromTwips(int twips) {
  const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
  return (twips + half) / kTwipsPerPixel;
}

constexpr int TwipsFromPixels(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PRESENTATION_TWIPS_H_
