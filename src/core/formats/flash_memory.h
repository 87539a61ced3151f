#ifndef VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_
#define VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string_view>

namespace vendlingua {

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

  /// By address / `kPageBytes`; only those with bytes are there.
  const std::map<std::uint32_t, Page>& pages() const { return pages_; }

 private:
  std::map<std::uint32_t, Page> pages_;
};

/// Decodes the data records of a file of S-records; those of other types are passed over, and so
/// are the header of an identified copy and the line that ends one of nine languages. Throws Error,
/// which names the line, when a line is no sound record or its address is beyond the board's.
FlashMemory ParseFlashMemory(std::string_view content);

/// The same of a file. Throws FileError when it cannot be read, too.
FlashMemory ReadFlashMemory(const std::filesystem::path& path);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_FORMATS_FLASH_MEMORY_H_
