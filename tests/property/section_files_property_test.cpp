#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>

#include "core/flash/section_files.h"
#include "random_files.h"

namespace vendlingua {
namespace {

using test::AnyOf;

constexpr std::array<std::int64_t, 6> kStarts = {0x0000, 0x8000, 0xA000, 0xBC00, 0xBE00, 0xC000};

// The used lengths of the sections, kept as they are told.
class UsedModel {
 public:
  void Note(std::int64_t count, std::int64_t address) {
    std::size_t s = 0;
    while (!(kStarts[s] <= address && address < kStarts[s + 1])) {
      ++s;
    }
    const std::int64_t last_byte = address + count - 1;
    if (last_byte >= kStarts[s + 1]) {
      used_[s] = kStarts[s + 1] - kStarts[s] - 1;
      used_[s + 1] = std::max(used_[s + 1], address + count - kStarts[s + 1]);
    } else {
      used_[s] = std::max(used_[s], address + count - kStarts[s]);
    }
  }
  std::int64_t operator[](std::size_t s) const { return used_.at(s); }

 private:
  std::array<std::int64_t, 6> used_{};
};

// Where `count` bytes may go, below `limit`: anywhere, near a bound of a section, right at it or up
// to it.
std::size_t AnyAddress(std::size_t count, std::size_t limit) {
  const auto bound = static_cast<std::size_t>(kStarts.at(AnyOf(1, 5)));
  const std::size_t address = *rc::gen::oneOf(rc::gen::inRange<std::size_t>(0, limit),
                                              rc::gen::inRange<std::size_t>(bound - 40, bound + 40),
                                              rc::gen::just(bound), rc::gen::just(bound - count));
  return std::min(address, limit - 1);
}

struct RandomRecord {
  std::size_t address = 0;  // 24 bits
  std::string data;
  bool is_s2 = true;
  std::optional<std::size_t> broken_pair;  // not hexadecimal, which reads as 0
  std::size_t missing = 0;                 // bytes that the count falls short of 4

  std::int64_t Count() const {
    return missing == 0 ? static_cast<std::int64_t>(data.size())
                        : -static_cast<std::int64_t>(missing);
  }

  std::string Line() const {
    std::string line = test::S2Line(address, data);
    if (broken_pair) {
      line.replace(10 + 2 * *broken_pair, 2, *broken_pair % 2 == 0 ? "X9" : "\r9");
    }
    if (missing != 0) {
      line.replace(2, 2, test::HexDigits(4 - missing, 2));
    }
    line[1] = is_s2 ? '2' : '1';
    return line + "\r\n";
  }
};

void showValue(const RandomRecord& record, std::ostream& out) { out << record.Line(); }

rc::Gen<RandomRecord> RandomRecords() {
  return rc::gen::exec([] {
    RandomRecord record;
    record.data = test::RandomCells(*rc::gen::arbitrary<std::uint32_t>(), AnyOf(0, 251),
                                    test::Placeholders::kNone);
    record.address = AnyOf(0, 255) * 0x10000 + AnyAddress(record.data.size(), 0x10000);
    record.is_s2 = AnyOf(0, 9) != 0;
    if (!record.data.empty() && AnyOf(0, 9) == 0) {
      record.broken_pair = AnyOf(0, record.data.size() - 1);
    }
    record.missing = AnyOf(0, 9) == 0 ? AnyOf(1, 4) : 0;
    return record;
  });
}

struct RandomFlashFile {
  std::vector<RandomRecord> records;
  bool ends_in_bad_line = false;

  std::string Content() const {
    std::string content;
    for (const RandomRecord& record : records) {
      content += record.Line();
    }
    return content + (ends_in_bad_line ? "end\r\n" : "");
  }
};

void showValue(const RandomFlashFile& file, std::ostream& out) { out << file.Content(); }

rc::Gen<RandomFlashFile> RandomFlashFiles() {
  return rc::gen::exec([] {
    RandomFlashFile file;
    file.records = *rc::gen::container<std::vector<RandomRecord>>(RandomRecords());
    file.ends_in_bad_line = AnyOf(0, 4) == 0;
    return file;
  });
}

// The board's memory as a list of bytes by address, and the files that follow from it.
class MemoryModel {
 public:
  void Read(const RandomFlashFile& file) {
    for (const RandomRecord& record : file.records) {
      const std::size_t address = record.address % 0x10000;
      if (record.is_s2 && address < 0xC000) {
        Store(address, record);
      }
    }
    if (!file.ends_in_bad_line) {
      taken_over_ = bytes_;
      was_taken_over_ = true;
    }
  }

  std::string Section(std::size_t s) const {
    std::string text;
    for (std::int64_t i = 0; was_taken_over_ && i < used_[s]; ++i) {
      const auto byte = taken_over_.find(static_cast<std::size_t>(kStarts.at(s) + i));
      text += byte == taken_over_.end() ? '\0' : byte->second;
    }
    return text;
  }

 private:
  void Store(std::size_t address, const RandomRecord& record) {
    used_.Note(record.Count(), static_cast<std::int64_t>(address));
    for (std::int64_t k = 0; k < record.Count() && address + static_cast<std::size_t>(k) < 0xC000;
         ++k) {
      const auto i = static_cast<std::size_t>(k);
      bytes_[address + i] = record.broken_pair == i ? '\0' : record.data[i];
    }
  }

  std::map<std::size_t, char> bytes_;
  std::map<std::size_t, char> taken_over_;
  bool was_taken_over_ = false;
  UsedModel used_;
};

RC_GTEST_PROP(SectionFilesProperty, HoldTheMemoryThatTheRecordsFill, ()) {
  const test::TemporaryFolder folder;
  test::ScriptedDialogs dialogs;
  SectionFiles section_files;
  MemoryModel memory;
  // Nothing is cleared between files.
  for (std::size_t run = AnyOf(1, 3); run > 0; --run) {
    const RandomFlashFile file = *RandomFlashFiles();
    const auto path = folder.Write("FLASH.MHX", file.Content());
    RC_ASSERT(section_files.ReadBack(path, file.Content(), dialogs, UiText()) ==
              !file.ends_in_bad_line);
    section_files.WriteSections(SectionBase(path));
    memory.Read(file);
    for (std::size_t s = 0; s < 5; ++s) {
      const auto section = folder / ("FLASH.SA" + std::to_string(s));
      const std::string expected = memory.Section(s);
      RC_ASSERT(std::filesystem::exists(section) == !expected.empty());
      if (!expected.empty()) {
        RC_ASSERT(test::Slurp(section) == expected);
      }
    }
    RC_ASSERT(test::Slurp(folder / "FLASH.mtx").empty());
  }
}

RC_GTEST_PROP(SectionFilesProperty, UsedLengthsFollowTheRecords, ()) {
  SectionFiles section_files;
  UsedModel used;
  for (std::size_t notes = AnyOf(0, 50); notes > 0; --notes) {
    const auto count = *rc::gen::inRange<std::int16_t>(-4, 252);
    const auto address = static_cast<std::int32_t>(
        AnyAddress(static_cast<std::size_t>(std::max<std::int16_t>(count, 0)), 0xC000));
    section_files.NoteSectionUse(count, address);
    used.Note(count, address);
  }
  for (std::size_t s = 0; s < 6; ++s) {
    RC_ASSERT(section_files.SectionUsed().at(s) == used[s]);
  }
}

}  // namespace
}  // namespace vendlingua
