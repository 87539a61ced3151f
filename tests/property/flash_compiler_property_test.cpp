#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "core/flash/flash_compiler.h"
#include "random_files.h"
#include "strict_srecords.h"

namespace vendlingua {
namespace {

using test::AnyOf;
using test::HexDigits;
using test::kPlaceholderByte;
using test::OpenedFile;
using test::Placeholders;
using test::RandomMes;

// A file that can be compiled: enough languages, messages that fit their slots, a start address
// with as many digits as its records need.
rc::Gen<RandomMes> CompilableFiles() {
  return rc::gen::map(test::RandomMesFiles(Placeholders::kMany), [](RandomMes file) {
    test::MesFile& layout = file.layout;
    layout.last_msg = std::min(layout.last_msg, layout.stride - 1);
    layout.names.resize(std::max(layout.names.size(), layout.lang_count + 1));
    const std::size_t start =
        file.seed % 2 == 0 ? 0x1000 + file.seed % 0x8000 : 0x100000 + file.seed % 0xE00000;
    layout.mem_start = HexDigits(start, 8);
    return file;
  });
}

std::size_t Number(const std::string& digits) { return std::stoul(digits, nullptr, 16); }

std::vector<std::size_t> AnyLanguages(const RandomMes& file) {
  std::vector<std::size_t> languages;
  for (std::size_t k = 1; k <= file.Languages(); ++k) {
    languages.push_back(k);
  }
  while (languages.size() > file.layout.lang_count) {
    languages.erase(languages.begin() +
                    static_cast<std::ptrdiff_t>(AnyOf(0, languages.size() - 1)));
  }
  return languages;
}

// The image as a picture of the memory: every language in its slot, then the list of their names
// in each of them for a firmware that does not list the languages itself. 0 stands for what `bytes`
// end before.
std::string ImageModel(const RandomMes& file, std::string bytes,
                       const std::vector<std::size_t>& languages) {
  const test::MesFile& layout = file.layout;
  bytes.resize(file.Bytes().size(), '\0');
  const std::size_t slot = file.MemLength() / layout.lang_count;
  std::string image(file.MemLength(), '\0');
  for (std::size_t j = 0; j < languages.size(); ++j) {
    const std::size_t length = (layout.last_msg + 1) * layout.width;
    image.replace(j * slot, length, bytes.substr(file.MessageOffset(languages[j], 0), length));
  }
  std::replace(image.begin(), image.end(), kPlaceholderByte, ' ');
  if (Number(layout.flags) % 2 == 0) {
    const std::size_t name_at = Number(layout.header_count) * layout.width;
    std::string names;
    for (std::size_t j = 0; j < languages.size(); ++j) {
      names += image.substr(j * slot + name_at, layout.width);
    }
    for (std::size_t j = 0; j < languages.size(); ++j) {
      image.replace(j * slot + name_at, names.size(), names);
    }
  }
  return image;
}

bool NamesFit(const RandomMes& file) {
  const test::MesFile& layout = file.layout;
  const std::size_t slot = file.MemLength() / layout.lang_count;
  return (layout.lang_count - 1) * slot +
             (Number(layout.header_count) + layout.lang_count) * layout.width <=
         file.MemLength();
}

struct Compiled {
  Compiled(const RandomMes& file, const std::vector<std::size_t>& languages)
      : Compiled(file, file.Bytes(), languages) {}

  Compiled(const RandomMes& file, const std::string& bytes,
           const std::vector<std::size_t>& languages)
      : opened("SET.MES", bytes) {
    const auto slots = static_cast<int>(file.layout.lang_count);
    for (const std::size_t language : languages) {
      opened.engine.compiler_state.ticked.at(language) = true;
    }
    const bool is_mhx = Number(file.layout.flags) / 2 % 2 == 1;
    opened.dialogs.file_answers = {opened.folder / (is_mhx ? "FW0417AB.MHX" : "FW0417AB.hex")};
    if (slots == 9) {
      opened.dialogs.file_answers.push_back(opened.folder / "MP0417AA.MSX");
    }
    outcome = opened.engine.compiler.Compile();
    RC_ASSERT(outcome.completed);
  }

  OpenedFile opened;
  CompileOutcome outcome;
};

RC_GTEST_PROP(FlashCompilerProperty, TheFlashFileDecodesToTheChosenLanguages, ()) {
  const RandomMes file = *CompilableFiles();
  RC_PRE((Number(file.layout.flags) % 2 == 1 || NamesFit(file)));
  const auto languages = AnyLanguages(file);
  const Compiled compiled(file, languages);
  const auto records = test::ParseFileStrictly(test::Slurp(compiled.outcome.written.at(0)));
  RC_ASSERT(test::ImageOf(records, static_cast<std::uint32_t>(Number(file.layout.mem_start))) ==
            ImageModel(file, file.Bytes(), languages));
}

RC_GTEST_PROP(FlashCompilerProperty, AFileThatEndsEarlyIsCompiledAsIfItWentOnWith0, ()) {
  const RandomMes file = *CompilableFiles();
  RC_PRE((Number(file.layout.flags) % 2 == 1 || NamesFit(file)));
  const auto languages = AnyLanguages(file);
  const std::size_t messages = file.MessageOffset(file.Languages(), 0);
  const std::size_t end = messages + (file.layout.last_msg + 1) * file.layout.width;
  const std::size_t size = AnyOf(messages, end);
  const std::string bytes = file.Bytes().substr(0, size);
  const Compiled compiled(file, bytes, languages);
  const auto records = test::ParseFileStrictly(test::Slurp(compiled.outcome.written.at(0)));
  RC_ASSERT(test::ImageOf(records, static_cast<std::uint32_t>(Number(file.layout.mem_start))) ==
            ImageModel(file, bytes, languages));
  const bool is_short = size < end && languages.back() == file.Languages();
  RC_ASSERT(compiled.outcome.short_languages.size() == (is_short ? 1U : 0U));
}

RC_GTEST_PROP(FlashCompilerProperty, PlaceholdersReachNoFileThatIsWritten, ()) {
  const RandomMes file = *CompilableFiles();
  RC_PRE((Number(file.layout.flags) % 2 == 1 || NamesFit(file)));
  const Compiled compiled(file, AnyLanguages(file));
  for (const auto& path : compiled.outcome.written) {
    const std::string content = test::Slurp(path);
    RC_ASSERT(content.find(kPlaceholderByte) == std::string::npos);
    for (std::size_t start = 0, end = 0; (end = content.find("\r\n", start)) != std::string::npos;
         start = end + 2) {
      const std::string line = content.substr(start, end - start);
      if (line.starts_with("S1") || (line.starts_with("S2") && line.size() % 2 == 0)) {
        RC_ASSERT(test::ParseStrictly(line).data.find(kPlaceholderByte) == std::string::npos);
      }
    }
  }
}

RC_GTEST_PROP(FlashCompilerProperty, TheCopyHoldsTheRecordsOfTheFlashFile, ()) {
  const RandomMes file = *CompilableFiles();
  RC_PRE((Number(file.layout.flags) % 2 == 1 || NamesFit(file)));
  const Compiled compiled(file, AnyLanguages(file));
  const std::string copy = test::Slurp(compiled.outcome.written.at(1));
  const std::size_t header_end = copy.find("\r\n") + 2;
  std::string expected = test::Slurp(compiled.outcome.written.at(0));
  if (file.layout.lang_count == 9) {
    expected += "S214FFFFF00FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFC\r\n";
  }
  RC_ASSERT(copy.starts_with("S01300004454"));
  RC_ASSERT(copy.substr(header_end) == expected);
}

}  // namespace
}  // namespace vendlingua
