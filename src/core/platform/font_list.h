#ifndef VENDLINGUA_CORE_PLATFORM_FONT_LIST_H_
#define VENDLINGUA_CORE_PLATFORM_FONT_LIST_H_

#include <string>
#include <vector>

namespace vendlingua {

/// The fonts that can be drawn on the screen.
class FontList {
 public:
  FontList() = default;
  FontList(const FontList&) = delete;
  FontList& operator=(const FontList&) = delete;
  virtual ~FontList() = default;

  /// The family names, UTF-8.
  virtual std::vector<std::string> Families() const = 0;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_PLATFORM_FONT_LIST_H_
