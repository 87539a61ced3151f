#ifndef VENDLINGUA_CORE_DOCUMENT_MESSAGE_SET_H_
#define VENDLINGUA_CORE_DOCUMENT_MESSAGE_SET_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/display_text.h"
#include "core/document/edit_history.h"
#include "core/document/name_field.h"

namespace vendlingua {

/// Booleans of the set are stored as 16-bit values, as the board's tools know them.
using Boolean16 = std::uint16_t;
inline constexpr Boolean16 kFalse = 0;
inline constexpr Boolean16 kTrue = 65535;

constexpr Boolean16 ToBoolean16(bool value) { return value ? kTrue : kFalse; }

/// So many texts are there at least, whatever the open file holds.
inline constexpr std::size_t kLeastTexts = 513;

/// The built-in table: 455 messages of 16 cells.
inline constexpr std::size_t kDefaultMessageCount = 455;
inline constexpr std::size_t kDefaultMessageWidth = 16;
using DefaultMessage = std::array<DisplayCode, kDefaultMessageWidth>;
using DefaultMessageTable = std::array<DefaultMessage, kDefaultMessageCount>;

const DefaultMessageTable& BuiltInMessages();

/// Values of `CurrentFileType`.
inline constexpr std::string_view kMesType = ".MES";
inline constexpr std::string_view kMsxType = ".MSX";

/// Languages go by their number in the file; 0 is the reference, or the built-in table of a ".MSX"
/// file. At most 100 more can be chosen.
inline constexpr std::size_t kLanguageEntries = 101;
/// The number that a new destination language goes by until it is saved: above all others.
inline constexpr int kNewLanguage = 101;
/// Language slots of a ".MSX" file, whatever it holds. A language has as many messages as the
/// built-in table, and as wide ones.
inline constexpr int kMsxLanguages = 9;

/// The name of the built-in table.
inline constexpr std::string_view kBuiltInLanguage = "Italiano";

/// Normal, Cyrillic, KTV and Hebrew.
inline constexpr std::size_t kDisplayTypes = 4;

/// So many cells of a message are shown.
inline constexpr std::size_t kOriginCells = 20;

/// A text that a message is to have.
struct NewText {
  std::size_t message;
  DisplayCodes codes;
};

/// How far the work on a file has come. Each phase includes what the ones before it allow.
enum class Phase {
  kNoFile,
  kFileOpen,            ///< its dimensions and the names of its languages are known
  kOriginChosen,        ///< the origin texts are there, messages can be shown
  kDestinationOpen,     ///< the destination texts are there and can be edited and saved
  kDestinationUnnamed,  ///< the same of a new language, which has no place in the file yet
};

/// The display messages that are being edited and all that is known about their file: the
/// dimensions of the board's message memory as the file declares them, its languages, the origin
/// and the destination texts, and how far the work has come. A program run has exactly one. It is
/// the truth that every window shows; what windows show is computed from it.
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

  MessageTexts OriginText{kLeastTexts};
  MessageTexts DestText{kLeastTexts};
  DefaultMessageTable DefaultMessages{};

  /// Path of the open message file; empty when there is none.
  std::filesystem::path CurrentFileName;
  /// ".MES" or ".MSX"; anything else means that no message file is open.
  std::string CurrentFileType;
  /// A destination text was changed and not saved yet.
  Boolean16 Modified = kFalse;

  /// Index of the display type: 0 normal, 1 Cyrillic, 2 KTV, 3 Hebrew.
  std::size_t DisplayType = 0;
  /// A display type was chosen since the start: the next other choice is a change of the set.
  bool DisplayTypeChosen = false;

  Phase phase = Phase::kNoFile;
  /// The language that the origin texts are of.
  std::optional<int> origin_language;
  /// The name that a new destination was given when it was begun; otherwise its first save asks.
  std::optional<NameField> new_language_name;
  /// The message file was made by an import that goes on: what is saved from now on becomes one
  /// more language of it, although no destination was opened.
  bool file_was_imported = false;
  /// The message that is shown and edited.
  std::size_t current_message = 0;
  /// Its text was edited since it is shown, and needs no storing when it is left.
  bool current_message_stored = false;
  /// Names of the file's languages by their number, UTF-8. This list is the only one.
  std::vector<std::string> language_names;
  /// The open file as it was last read or written.
  std::string file_content;
  /// What the file holds of the destination, to tell whether an edit was taken back; nothing for a
  /// language that is not in the file.
  struct Saved {
    MessageTexts texts;
    std::uint16_t last_msg;
    std::size_t display_type;

    bool operator==(const Saved&) const = default;
  };
  std::optional<Saved> saved;
  /// The destination as it was opened, to tell what was changed since then.
  MessageTexts opened_texts;
  /// The last save failed. It cleared `Modified` like any other; what it should have saved is still
  /// asked about.
  bool save_failed = false;
  EditHistory history;

  /// Counts the files that were opened: what is kept from run to run for one file (the flash image)
  /// is made anew when this number has changed.
  std::uint32_t OpenedFiles = 0;

  /// Language slots of the message memory, which a ".MSX" file does not declare, and bytes of each.
  std::size_t SlotCount() const { return IsMsx() ? std::size_t{kMsxLanguages} : LangCount; }
  std::size_t SlotLength() const { return MemLength / SlotCount(); }
  /// Message width in cells.
  std::size_t Width() const { return std::size_t{LastCol} + 1; }
  std::size_t MessageCount() const { return std::size_t{LastMsg} + 1; }
  bool IsMes() const { return CurrentFileType == kMesType; }
  bool IsMsx() const { return CurrentFileType == kMsxType; }
  bool DestinationIsOpen() const { return phase >= Phase::kDestinationOpen; }
  /// Whether saving changes the file that is open; otherwise it makes a new one.
  bool FileIsThere() const { return DestinationIsOpen() || file_was_imported; }
  /// Whether no further language can be chosen or added.
  bool IsFull() const { return language_names.size() >= kLanguageEntries; }
  bool HoldsLanguage(int language) const {
    return language >= 0 && static_cast<std::size_t>(language) < language_names.size();
  }

  /// The message that shows a language's own name.
  int NameMessage() const { return IsMsx() ? HeaderCount - 2 : HeaderCount; }

  /// Whether the board fills cell `cell` of message `message`: a placeholder of the origin text or,
  /// in a ".MSX" set, of the built-in table.
  bool BoardFills(std::size_t message, std::size_t cell) const;

  /// What the origin shows in a cell; nothing where the board fills a ".MSX" set.
  std::optional<DisplayCode> OriginCaption(std::size_t message, std::size_t cell) const;

  /// Message `message` of the destination as it is edited: blanks for placeholders, none at the
  /// end.
  DisplayCodes EditedText(std::size_t message) const;

  /// Fills `DefaultMessages` with the control board's own Italian texts.
  void LoadDefaultMessages();

  /// Forgets the file that was open before another one, whose path and type are set already, is
  /// read.
  void Reset();

  /// Takes the display type of a file, which never counts as a change of the set.
  void LoadDisplayType(std::size_t index) {
    DisplayType = index;
    DisplayTypeChosen = true;
  }

  /// Gives the texts as many elements as the file declares messages.
  void FitTexts();

  /// No message file is open any more; the texts stay.
  void CloseFile();

  /// The destination texts are those of the file from now on, which is where the history begins.
  void TakeDestination(const MessageTexts& texts, int language);

  /// Another message, or the same one anew, is shown and edited from now on.
  void ShowMessage(std::size_t message);

  /// Edits message `message` of the destination: `codes` are cut or padded with blanks to the width
  /// of the set, and the placeholders that the board fills stay. True when that changed the set,
  /// which is then `Modified`.
  bool SetText(std::size_t message, std::span<const DisplayCode> codes,
               EditKind kind = EditKind::kWhole);

  /// The same of several messages, in one step of the history.
  bool SetTexts(std::span<const NewText> texts);

  /// Adds a message behind the last one, with whatever texts the set holds there.
  void AppendMessage();

  /// Takes the last change back, or does it again, and makes its message the current one. False
  /// when there is none. `Modified` then tells whether the texts differ from those of the file.
  bool Undo();
  bool Redo();

  /// The destination is in the file as it stands here.
  void NoteSaved();

 private:
  void ForgetFile();
  /// What changes when a text is put into the set, which it is then; nothing when it is there.
  std::optional<Edit> Store(std::size_t message, std::span<const DisplayCode> codes);
  void ShowApplied(const EditStep& step);
  Saved ToSave() const;
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
