#ifndef VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_
#define VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "core/document/message_set.h"

namespace vendlingua {

/// What the compiler window knows besides the message set: which languages are ticked, and how far
/// a compilation is.
struct CompilerState {
  /// Element i is language i of the message file; element 0 is not used.
  std::array<bool, kLanguageEntries> ticked{};
  bool busy = false;       ///< no button can be pressed
  bool hourglass = false;  ///< on this window and on the main window
  std::string status;      ///< how the last run ended, UTF-8

  /// Numbers of the ticked languages, ascending.
  std::vector<int> TickedLanguages() const {
    std::vector<int> languages;
    for (std::size_t i = 1; i < ticked.size(); ++i) {
      if (ticked.at(i)) {
        languages.push_back(static_cast<int>(i));
      }
    }
    return languages;
  }
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FLASH_COMPILER_STATE_H_
