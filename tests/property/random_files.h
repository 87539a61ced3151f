#ifndef VENDLINGUA_TESTS_PROPERTY_RANDOM_FILES_H_
#define VENDLINGUA_TESTS_PROPERTY_RANDOM_FILES_H_

#include <rapidcheck.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/engine.h"
#include "support/message_files.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_folder.h"

namespace vendlingua::test {

inline constexpr char kPlaceholderByte = '\xFE';

/// Whether random cells hold placeholders: never, or about every fourth.
enum class Placeholders { kNone, kMany };

/// `count` cells that follow from `seed` alone, so that a failure shows one number instead of a
/// whole file.
std::string RandomCells(std::uint32_t seed, std::size_t count, Placeholders placeholders);

/// A ".MES" file of random dimensions, with random names and texts.
struct RandomMes {
  MesFile layout;
  std::size_t spare_memory = 0;  ///< bytes of the memory that no message slot fits in
  std::uint32_t seed = 0;        ///< of everything behind the header
  Placeholders placeholders = Placeholders::kNone;

  std::size_t Languages() const { return layout.names.size() - 1; }
  std::size_t MemLength() const {
    return layout.lang_count * layout.stride * layout.width + spare_memory;
  }
  std::size_t BlockOffset(std::size_t block) const { return 24 + block * layout.BlockLength(); }
  std::size_t MessageOffset(std::size_t block, std::size_t message) const {
    return BlockOffset(block) + 20 + message * layout.width;
  }
  std::string Bytes() const;
};

void showValue(const RandomMes& file, std::ostream& out);

/// Up to 9 slots, 40 cells and 20 message slots a language; one or more languages.
rc::Gen<RandomMes> RandomMesFiles(Placeholders placeholders);

/// A number from `low` to `high`, both possible.
std::size_t AnyOf(std::size_t low, std::size_t high);

/// Any codes but the placeholder, at most `length`.
rc::Gen<DisplayCodes> RandomTexts(std::size_t length);

/// An edit: go to a message and put a text into the edit box.
using Edit = std::pair<std::size_t, DisplayCodes>;

/// Some edits of messages 0 to `last_msg`, with texts a bit longer than `width` at most.
rc::Gen<std::vector<Edit>> RandomEdits(std::size_t last_msg, std::size_t width);

/// Makes the edits as a user would, through the scroll bar and the edit box.
void Apply(Engine& engine, const std::vector<Edit>& edits);

/// `text` in exactly `width` cells.
std::string InCells(const DisplayCodes& text, std::size_t width);

/// `value` in at least `width` upper-case hexadecimal digits.
std::string HexDigits(std::size_t value, std::size_t width);

/// A file of the given name and content in a folder of its own, opened with File, Open.
struct OpenedFile {
  OpenedFile(std::string_view name, std::string_view content);

  std::string Content() const { return Slurp(path); }

  TemporaryFolder folder;
  std::filesystem::path path;
  ScriptedDialogs dialogs;
  Engine engine;
};

}  // namespace vendlingua::test

#endif  // VENDLINGUA_TESTS_PROPERTY_RANDOM_FILES_H_
