#include "random_files.h"

#include <fmt/format.h>

#include <algorithm>
#include <random>

namespace vendlingua::test {

std::string RandomCells(std::uint32_t seed, std::size_t count, Placeholders placeholders) {
  std::mt19937 random(seed);
  std::string cells(count, ' ');
  for (char& cell : cells) {
    auto code = static_cast<DisplayCode>(random() >> 24U);
    if (placeholders == Placeholders::kMany && random() % 4 == 0) {
      code = kPlaceholder;
    } else if (placeholders == Placeholders::kNone && code == kPlaceholder) {
      code = kBlank;
    }
    cell = static_cast<char>(code);
  }
  return cells;
}

std::string RandomMes::Bytes() const {
  const std::size_t header_length = 24;
  std::string header = layout.Bytes().substr(0, header_length);
  header.replace(20, 4, HexDigits(MemLength(), 4));
  return header + RandomCells(seed, layout.names.size() * layout.BlockLength(), placeholders);
}

void showValue(const RandomMes& file, std::ostream& out) {
  const MesFile& layout = file.layout;
  out << layout.names.size() << " blocks, " << layout.lang_count << " slots, width " << layout.width
      << ", LastMsg " << layout.last_msg << ", stride " << layout.stride << ", flags "
      << layout.flags << ", HeaderCount " << layout.header_count << ", MemStart "
      << layout.mem_start << ", spare " << file.spare_memory << ", seed " << file.seed;
}

std::size_t AnyOf(std::size_t low, std::size_t high) {
  return *rc::gen::inRange<std::size_t>(low, high + 1);
}

rc::Gen<RandomMes> RandomMesFiles(Placeholders placeholders) {
  return rc::gen::exec([placeholders] {
    RandomMes file;
    MesFile& layout = file.layout;
    layout.lang_count = AnyOf(1, 9);
    layout.width = AnyOf(1, 40);
    layout.stride = AnyOf(1, 20);
    layout.last_msg = AnyOf(0, layout.stride);
    layout.flags = HexDigits(AnyOf(0, 15), 2);
    layout.header_count = HexDigits(AnyOf(0, layout.last_msg), 4);
    layout.mem_start = HexDigits(*rc::gen::arbitrary<std::uint32_t>(), 8);
    layout.names.assign(1 + AnyOf(1, 6), "");
    file.spare_memory = AnyOf(0, layout.lang_count * layout.width - 1);
    file.seed = *rc::gen::arbitrary<std::uint32_t>();
    file.placeholders = placeholders;
    return file;
  });
}

rc::Gen<DisplayCodes> RandomTexts(std::size_t length) {
  return rc::gen::mapcat(rc::gen::inRange<std::size_t>(0, length + 1), [](std::size_t count) {
    return rc::gen::container<DisplayCodes>(
        count, rc::gen::distinctFrom(rc::gen::arbitrary<DisplayCode>(), kPlaceholder));
  });
}

rc::Gen<std::vector<Edit>> RandomEdits(std::size_t last_msg, std::size_t width) {
  return rc::gen::container<std::vector<Edit>>(
      rc::gen::pair(rc::gen::inRange<std::size_t>(0, last_msg + 1), RandomTexts(width + 3)));
}

void Apply(Engine& engine, const std::vector<Edit>& edits) {
  for (const auto& [message, text] : edits) {
    engine.editing.GoTo(message);
    engine.editing.ChangeText(text);
  }
}

std::string InCells(const DisplayCodes& text, std::size_t width) {
  std::string cells = Text(text);
  cells.resize(width, ' ');
  return cells;
}

std::string HexDigits(std::size_t value, std::size_t width) {
  return fmt::format("{:0{}X}", value, width);
}

OpenedFile::OpenedFile(std::string_view name, std::string_view content)
    : path(folder.Write(name, content)), engine(dialogs) {
  dialogs.file_answers = {path};
  RC_ASSERT(engine.opener.Open() == OpenOutcome::kOpened);
}

}  // namespace vendlingua::test
