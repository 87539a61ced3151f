#include "core/operations/source_import.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <string>

#include "core/formats/mes_layout.h"
#include "core/operations/answers.h"
#include "core/platform/errors.h"
#include "core/platform/files.h"

namespace vendlingua {
namespace {

constexpr const char* kErrorTitle = "ERRORE";
// The questions are asked while at most so many "ORG" or ".SECT" lines were met.
constexpr std::size_t kLastAskedDirective = 2;

// All sections share the dimensions of one file.
void RequireOneWidth(const std::vector<SourceSection>& sections) {
  for (std::size_t i = 1; i < sections.size(); ++i) {
    if (!sections[i].width_error && sections[i].width != sections.front().width) {
      throw Error(UiTextId::kSectionOfOtherWidth, i + 1, sections[i].width, sections.front().width);
    }
  }
}

// What would make a file that cannot be opened again, or a language that runs into the next one.
void RequireUsableBlocks(const MessageSet& set) {
  if (MesBlocksOverlap(set)) {
    throw Error(UiTextId::kBlockLengthWraps, set.LangStride + 1, set.Width(),
                static_cast<int>(set.BlockLength));
  }
  if (set.LastMsg > set.LangStride) {
    throw Error(UiTextId::kSectionWithoutRoom, set.MessageCount(), set.LangStride + 1);
  }
}

std::uint64_t AtMost(std::uint64_t value, std::uint64_t limit, const std::string& what) {
  if (value > limit) {
    throw Error(UiTextId::kNumberTooLarge, what, value, limit);
  }
  return value;
}

}  // namespace

std::uint32_t UsedMemory(std::size_t width, std::size_t texts, std::uint32_t languages) {
  return static_cast<std::uint16_t>(width * texts) * languages;
}

SourceImport::SourceImport(Workspace& workspace, Dialogs& dialogs, MessageFileReader& reader,
                           MessageFileWriter& writer)
    : workspace_(workspace), dialogs_(dialogs), reader_(reader), writer_(writer) {}

bool SourceImport::ImportSource() {
  MessageSet& set = workspace_.set;
  const std::filesystem::path source = set.CurrentFileName;
  const auto sections = NamingFile(source, [&] {
    auto parsed = ParseSource(ReadFile(source));
    RequireOneWidth(parsed);
    return parsed;
  });
  TellOfCutTexts(sections);
  for (const SourceSection& section : sections) {
    if (!NamingFile(source, [&] { return TakeSection(section); }) || !AddSection()) {
      // A stop keeps the languages that were taken before it.
      if (set.file_was_imported) {
        writer_.WriteImported();
      }
      // The source must never be taken for the binary file that was to be made of it.
      set.CloseFile();
      workspace_.window.status = workspace_.ui_text[UiTextId::kImportCancelled];
      return false;
    }
  }
  writer_.WriteImported();
  std::fill_n(set.DestText.begin(), set.MessageCount(), DisplayText());
  // No destination is open: a save now starts a new language instead of emptying the last one.
  set.DestLang = 0;
  return reader_.Load(set.file_content);
}

// The width of the set grows with such a text all the same.
void SourceImport::TellOfCutTexts(const std::vector<SourceSection>& sections) {
  std::vector<std::size_t> lines;
  for (const SourceSection& section : sections) {
    lines.insert(lines.end(), section.cut_lines.begin(), section.cut_lines.end());
  }
  if (!lines.empty()) {
    const UiSentence notice(UiTextId::kTextsCut, DisplayText::kCells,
                            fmt::format("{}", fmt::join(lines, ", ")));
    dialogs_.MessageBox({MessageIcon::kInformation, notice.In(workspace_.ui_text), "Configura"});
  }
}

bool SourceImport::TakeSection(const SourceSection& section) {
  MessageSet& set = workspace_.set;
  const std::uint16_t stride_of_file = set.LangStride;
  TakeTexts(section);
  if (section.width_error) {
    dialogs_.MessageBox({MessageIcon::kCritical, "Lughezza messaggi\nerrata", kErrorTitle});
    return false;
  }
  if (section.directives <= kLastAskedDirective && !(AskMemoryLayout() && MessagesFit())) {
    return false;
  }
  if (set.file_was_imported && set.LangStride != stride_of_file) {
    throw Error(UiTextId::kOtherAnswers, set.LangStride, stride_of_file);
  }
  --set.LastCol;
  --set.LastMsg;
  set.BlockLength = MesBlockLength(set.LastCol, set.LangStride);
  RequireUsableBlocks(set);
  return true;
}

// False when no file was chosen.
bool SourceImport::AddSection() {
  workspace_.set.DestLang = 0;
  return writer_.AddImportedLanguage().result == SaveOutcome::kSaved;
}

// While a section is read `LastMsg` and `LastCol` count texts and width; they become last indices
// when it is saved.
void SourceImport::TakeTexts(const SourceSection& section) {
  MessageSet& set = workspace_.set;
  for (const std::uint16_t texts_before : section.name_labels) {
    if (set.HeaderCount == 0) {
      set.HeaderBit0 = kTrue;
      set.HeaderCount = texts_before;
    }
  }
  if (section.has_sdata) {
    set.HeaderBit1 = kTrue;
  }
  set.LastMsg = static_cast<std::uint16_t>(section.texts.size());
  set.LastCol = section.width;
  set.FitTexts();
  for (std::size_t i = 0; i < section.texts.size(); ++i) {
    set.OriginText[i] = DisplayText(section.texts[i]);
    set.DestText[i] = set.OriginText[i];
  }
}

bool SourceImport::AskMemoryLayout() {
  MessageSet& set = workspace_.set;
  const auto ask = [this](InputPurpose purpose, const char* prompt, const char* proposal) {
    return dialogs_.InputBox({purpose, prompt, "Configura", proposal});
  };
  // A first byte of 32 or more marks a source: a file with more languages could not be opened
  // again.
  set.LangCount = static_cast<std::uint8_t>(
      AtMost(LeadingNumber(ask(InputPurpose::kLanguageCount, "n° Lingue?", "1")),
             kFirstSourceByte - 1, "n° Lingue"));
  if (set.LangCount == 0) {
    return false;
  }
  if (set.HeaderCount == 0) {
    set.HeaderCount = static_cast<std::uint16_t>(
        AtMost(LeadingNumber(ask(InputPurpose::kLanguageMessage, "n° messaggio lingua", "1")),
               std::numeric_limits<std::uint16_t>::max(), "n° messaggio lingua"));
    if (set.HeaderCount == 0) {
      return false;
    }
  }
  set.MemStart = static_cast<std::uint32_t>(
      AtMost(LeadingNumber(ask(InputPurpose::kMemoryStart, "Inizio Memoria? (Byte)",
                               set.HeaderBit1 != kFalse ? "&HFF8000" : "&H6000")),
             std::numeric_limits<std::uint32_t>::max(), "Inizio Memoria"));
  if (set.MemStart == 0) {
    return false;
  }
  const std::string answer =
      ask(InputPurpose::kMemoryLength, "Lunghezza Blocco Memoria? (Byte)", "&H2000");
  const std::optional<std::uint64_t> length = WholeNumber(answer);
  if (!length) {
    throw Error(UiTextId::kNotANumber, "Lunghezza Blocco Memoria", answer);
  }
  set.MemLength = static_cast<std::uint32_t>(
      AtMost(*length, std::numeric_limits<std::int32_t>::max(), "Lunghezza Blocco Memoria"));
  return set.MemLength != 0;
}

bool SourceImport::MessagesFit() {
  MessageSet& set = workspace_.set;
  const std::uint32_t used_memory = UsedMemory(set.LastCol, set.LastMsg, set.LangCount);
  set.LangStride = MesLangStride(set.MemLength, set.LangCount, set.LastCol);
  if (used_memory <= set.MemLength) {
    return true;
  }
  dialogs_.MessageBox({MessageIcon::kCritical,
                       "Memoria messaggi\ninsufficente\nMessaggi N° " +
                           std::to_string(set.LastMsg) + "\nMemoria usata " +
                           std::to_string(used_memory),
                       kErrorTitle});
  return false;
}

}  // namespace vendlingua
