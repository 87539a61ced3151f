#include "core/compare/flash_files.h"

#include <set>
#include <utility>

#include "core/compare/most_differences.h"

namespace vendlingua {
namespace {

// Puts differing bytes, which come by ascending address, together into runs.
class Runs {
 public:
  explicit Runs(const MessageSet* dimensions) : dimensions_(dimensions) {}

  void Add(std::uint32_t address) {
    const BoardPlace place = dimensions_ != nullptr ? PlaceOf(*dimensions_, address) : BoardPlace{};
    const bool goes_on = run_.length > 0 && address == run_.address + run_.length;
    if (goes_on && place == run_.place) {
      ++run_.length;
    } else {
      End();
      run_ = {address, 1, place};
    }
  }

  FlashComparison Take() {
    End();
    return std::move(comparison_);
  }

 private:
  void End() {
    if (run_.length > 0 && comparison_.bytes.size() == kMostDifferences) {
      ++comparison_.unlisted;
    } else if (run_.length > 0) {
      comparison_.bytes.push_back(run_);
    }
  }

  const MessageSet* dimensions_;
  ByteDifference run_{0, 0, {}};
  FlashComparison comparison_;
};

const FlashMemory::Page& PageOf(const FlashMemory& memory, std::uint32_t number) {
  static const FlashMemory::Page kEmpty;
  const auto page = memory.pages().find(number);
  return page != memory.pages().end() ? page->second : kEmpty;
}

std::set<std::uint32_t> PagesOf(const FlashMemory& a, const FlashMemory& b) {
  std::set<std::uint32_t> numbers;
  for (const FlashMemory* memory : {&a, &b}) {
    for (const auto& [number, page] : memory->pages()) {
      numbers.insert(number);
    }
  }
  return numbers;
}

}  // namespace

FlashComparison CompareFlash(const FlashMemory& a, const FlashMemory& b,
                             const MessageSet* dimensions) {
  Runs runs(dimensions);
  for (const std::uint32_t number : PagesOf(a, b)) {
    const FlashMemory::Page& page_a = PageOf(a, number);
    const FlashMemory::Page& page_b = PageOf(b, number);
    for (std::size_t i = 0; i < FlashMemory::kPageBytes; ++i) {
      if (page_a.given[i] != page_b.given[i] || page_a.bytes.at(i) != page_b.bytes.at(i)) {
        runs.Add(static_cast<std::uint32_t>(number * FlashMemory::kPageBytes + i));
      }
    }
  }
  return runs.Take();
}

}  // namespace vendlingua
