#include "core/platform/errors.h"

#ifdef _WIN32
#include <windows.h>
#else
#include "core/texts/valid_utf8.h"
#endif

namespace vendlingua {

namespace {

std::string About(const std::filesystem::path& file, const UiSentence& reason,
                  const UiText& texts) {
  return PathText(file) + ": " + reason.In(texts);
}

}  // namespace

FileError::FileError(const std::filesystem::path& file, const UiSentence& reason)
    : Error(About(file, reason, EnglishTexts()), reason), file_(file) {}

std::string FileError::In(const UiText& texts) const { return About(file_, sentence(), texts); }

std::string MessageOf(const std::exception& exception, const UiText& texts) {
  const auto* error = dynamic_cast<const Error*>(&exception);
  return error != nullptr ? error->In(texts) : exception.what();
}

#ifdef _WIN32

std::string PathText(const std::filesystem::path& path) {
  const std::wstring& name = path.native();
  const auto convert = [&name](char* text, int size) {
    return WideCharToMultiByte(CP_UTF8, 0, name.data(), static_cast<int>(name.size()), text, size,
                               nullptr, nullptr);
  };
  std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

#else

std::string PathText(const std::filesystem::path& path) { return ValidUtf8(path.native()); }

#endif

}  // namespace vendlingua
