#ifndef VENDLINGUA_CORE_DOCUMENT_MESSAGE_SET_H_
#define VENDLINGUA_CORE_DOCUMENT_MESSAGE_SET_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/document/display_text.h"

namespace vendlingua {

/// Booleans of the set are stored as 16-bit values, as the board's tools know them.
using Boolean16 = std::uint16_t;
inline constexpr Boolean16 kFalse = 0;
inline constexpr Boolean16 kTrue = 65535;

constexpr Boolean16 ToBoolean16(bool value) { return value ? kTrue : kFalse; }

/// How many messages of a language can be edited, and how wide they can be. A file that declares
/// more is refused when it is opened.
inline constexpr std::size_t kMaxMessages = 513;
inline constexpr std::size_t kMaxWidth = DisplayText::kCells;

/// The built-in table: 455 messages of 16 cells.
inline constexpr std::size_t kDefaultMessageCount = 455;
inline constexpr std::size_t kDefaultMessageWidth = 16;
using DefaultMessage = std::array<DisplayCode, kDefaultMessageWidth>;

/// Values of `CurrentFileType`.
inline constexpr std::string_view kMesType = ".MES";
inline constexpr std::string_view kMsxType = ".MSX";

/// The display messages that are being edited: the dimensions of the board's message memory as the
/// open file declares them, the origin and the destination texts, the built-in table and the state
/// of the open file. A program run has exactly one.
struct MessageSet {
  /// Language slots of the message memory; carried from reader to writer unchanged.
  std::uint8_t LangCount = 0;
  /// Message width minus one, in cells.
  std::uint8_t LastCol = 0;
  /// Locates the message that holds a language's own name: that number in a ".MES" set, that number
  /// minus 2 in a ".MSX" set.
  std::uint16_t HeaderCount = 0;
  /// Number of the last message; they run from 0.
  std::uint16_t LastMsg = 0;
  /// Start address of the message memory on the board.
  std::uint32_t MemStart = 0;
  /// Length of the message memory in bytes.
  std::uint32_t MemLength = 0;
  /// Message slots of one language. Computed, never read.
  std::uint16_t LangStride = 0;
  /// Bytes of one ".MES" language block. Computed in 16-bit arithmetic, which wraps.
  float BlockLength = 0;
  /// The source carried ".SDATA": the board takes ".MHX" flash files, otherwise ".hex".
  Boolean16 HeaderBit1 = kFalse;
  /// The source carried the "MNLING" label: the firmware lists the languages itself.
  Boolean16 HeaderBit0 = kFalse;
  /// The language being edited; 0 for none, or for a new one that has no name yet.
  std::uint8_t DestLang = 0;

  std::array<DisplayText, kMaxMessages> OriginText;
  std::array<DisplayText, kMaxMessages> DestText;
  std::array<DefaultMessage, kDefaultMessageCount> DefaultMessages{};

  /// Path of the open message file; empty when there is none.
  std::filesystem::path CurrentFileName;
  /// ".MES" or ".MSX"; anything else means that no message file is open.
  std::string CurrentFileType;
  /// A destination text was changed and not saved yet.
  Boolean16 Modified = kFalse;

  /// Counts the files that were opened: what is kept from run to run for one file (the flash image)
  /// is made anew when this number has changed.
  std::uint32_t OpenedFiles = 0;

  /// Message width in cells.
  std::size_t Width() const { return std::size_t{LastCol} + 1; }
  std::size_t MessageCount() const { return std::size_t{LastMsg} + 1; }
  bool IsMes() const { return CurrentFileType == kMesType; }
  bool IsMsx() const { return CurrentFileType == kMsxType; }

  /// The message that shows a language's own name.
  int NameMessage() const { return IsMsx() ? HeaderCount - 2 : HeaderCount; }

  /// Fills `DefaultMessages` with the control board's own Italian texts.
  void LoadDefaultMessages();

  /// No message file is open any more.
  void CloseFile();
};

/// Message slots of one language in a ".MES" file. Throws Error when `lang_count` or `width` is 0,
/// or when the result does not fit 16 bits.
std::uint16_t MesLangStride(std::uint32_t mem_length, std::uint32_t lang_count, std::size_t width);

/// Message slots of one language in a ".MSX" file: nine slots of 16-byte records, whatever it
/// holds.
std::uint16_t MsxLangStride(std::uint32_t mem_length);

/// Bytes of one ".MES" language block, computed in signed 16-bit arithmetic that wraps.
float MesBlockLength(std::uint8_t last_col, std::uint16_t lang_stride);

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_DOCUMENT_MESSAGE_SET_H_
