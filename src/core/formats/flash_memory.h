#ifndef VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_
#define VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace vendlingua {

/// Addresses that follow each other.
struct AddressRange {
  std::uint32_t first;
  std::uint32_t length;  ///< bytes, at least one

  std::uint32_t End() const { return first + length; }
  bool operator==(const AddressRange&) const = default;
};

/// The bytes that a flash file puts into the memory of a board, by their addresses.
class FlashMemory {
 public:
  /// Boards have 24 bits of address: the first address that they do not have.
  static constexpr std::uint32_t kEnd = 1U << 24U;
  static constexpr std::size_t kPageBytes = 256;

  struct Page {
    std::array<std::uint8_t, kPageBytes> bytes{};
    std::bitset<kPageBytes> given;  ///< the bytes that the file holds
  };

  /// Puts bytes below `kEnd`; later ones take the place of earlier ones.
  void Put(std::uint32_t address, std::span<const std::uint8_t> bytes);

  /// Nothing where the file holds none.
  std::optional<std::uint8_t> At(std::uint32_t address) const;

  /// What the file holds, by address; between two ranges lies a gap.
  std::vector<AddressRange> Ranges() const;

  /// By address / `kPageBytes`; only those with bytes are there.
  const std::map<std::uint32_t, Page>& pages() const { return pages_; }

 private:
  std::map<std::uint32_t, Page> pages_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_
