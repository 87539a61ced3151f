#include "cli/arguments.h"

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "core/platform/errors.h"
#endif

namespace vendlingua::cli {

#ifdef _WIN32

std::vector<const char*> Arguments(int /*argc*/, char** /*argv*/) {
  static std::vector<std::string> texts;
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::transform(wide, wide + count, std::back_inserter(texts),
                 [](const wchar_t* argument) { return PathText(argument); });
  LocalFree(wide);
  std::vector<const char*> arguments;
  for (const std::string& text : texts) {
    arguments.push_back(text.c_str());
  }
  return arguments;
}

#else

std::vector<const char*> Arguments(int argc, char** argv) { return {argv, argv + argc}; }

#endif

}  // namespace vendlingua::cli
