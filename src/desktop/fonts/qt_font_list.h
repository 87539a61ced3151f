#ifndef VENDLINGUA_DESKTOP_FONTS_QT_FONT_LIST_H_
#define VENDLINGUA_DESKTOP_FONTS_QT_FONT_LIST_H_

#include <filesystem>

#include "core/platform/font_list.h"

namespace vendlingua {

/// The font families of the system. Of the four display fonts, those that the system lacks are
/// registered for this process from the files of `folder`; a font that the user has installed wins.
class QtFontList : public FontList {
 public:
  explicit QtFontList(const std::filesystem::path& folder);

  std::vector<std::string> Families() const override;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_DESKTOP_FONTS_QT_FONT_LIST_H_
