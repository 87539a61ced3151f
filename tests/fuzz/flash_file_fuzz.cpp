#include <string>
#include <string_view>

#include "core/compare/flash_files.h"
#include "core/flash/flash_contents.h"
#include "core/formats/flash_file.h"
#include "fuzz_support.h"

namespace vendlingua {
namespace {

using fuzz::Require;

// Two slots of three messages of four cells; message 1 names the language.
MessageSet SmallBoard() {
  MessageSet set;
  set.CurrentFileType = kMesType;
  set.LangCount = 2;
  set.LastCol = 3;
  set.LastMsg = 2;
  set.HeaderCount = 1;
  set.MemStart = 0xFF8000;
  set.MemLength = 24;
  return set;
}

void CheckContents(const FlashFile& file, const MessageSet& board) {
  const FlashMemory& memory = file.memory;
  const std::vector<AddressRange> ranges = memory.Ranges();
  for (const AddressRange& range : ranges) {
    Require(range.length > 0 && range.End() <= FlashMemory::kEnd, "a range lies on the board");
    Require(memory.At(range.first) && memory.At(range.End() - 1), "the file holds its ranges");
  }
  for (const AddressRange& gap : GapsBetween(ranges)) {
    Require(gap.length > 0, "there is a gap between ranges");
    Require(!memory.At(gap.first) && !memory.At(gap.End() - 1), "the file holds nothing in gaps");
  }
  const auto identification = Identification(file);
  Require(!identification || identification->size() == 6, "an identification has six characters");
  const auto known = KnownDimensions(file);
  Require(!known || SlotsOf(memory, *known).size() == known->SlotCount(),
          "a known board has slots");
  for (const FlashSlot& slot : SlotsOf(memory, board)) {
    Require(slot.name.empty() || slot.is_held, "a name stands in the file");
  }
}

void Compare(const FlashMemory& a, const FlashMemory& b, const MessageSet& board) {
  Require(CompareFlash(a, a, &board).Same(), "a file is the same as itself");
  const FlashComparison comparison = CompareFlash(a, b, &board);
  Require(comparison.Same() == CompareFlash(b, a, &board).Same(), "both ways tell the same");
  std::uint32_t end = 0;
  for (const ByteDifference& run : comparison.bytes) {
    Require(run.length > 0 && run.address >= end, "differences come by address");
    Require(a.At(run.address) != b.At(run.address), "a difference is one");
    Require(run.place == PlaceOf(board, run.address + run.length - 1),
            "a difference has one place");
    end = run.address + run.length;
  }
}

}  // namespace

// An input is two files, with a byte 0 between them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  return fuzz::Run([&] {
    const std::string content(bytes, bytes + size);
    const MessageSet board = SmallBoard();
    const std::size_t end = content.find('\0');
    const FlashFile a = ParseFlashFile(std::string_view(content).substr(0, end));
    CheckContents(a, board);
    Compare(a.memory, {}, board);
    if (end != std::string::npos) {
      Compare(a.memory, ParseFlashFile(content.substr(end + 1)).memory, board);
    }
  });
}

}  // namespace vendlingua
