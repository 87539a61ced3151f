#ifndef VENDLINGUA_CORE_OPERATIONS_SOURCE_IMPORT_H_
#define VENDLINGUA_CORE_OPERATIONS_SOURCE_IMPORT_H_

#include <cstdint>
#include <vector>

#include "core/document/workspace.h"
#include "core/formats/source_parser.h"
#include "core/operations/message_file_reader.h"
#include "core/operations/message_file_writer.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// The message memory that `languages` languages of `texts` messages of `width` cells take, in
/// bytes: the bytes of one language wrap at 16 bits.
std::uint32_t UsedMemory(std::size_t width, std::size_t texts, std::uint32_t languages);

/// Makes a ".MES" file of the message texts of a firmware assembler source: asks for the memory
/// layout of the board, checks that the messages fit, and writes the file when all is taken. Each
/// further section of the source becomes one more language of it.
class SourceImport {
 public:
  SourceImport(Workspace& workspace, Dialogs& dialogs, MessageFileReader& reader,
               MessageFileWriter& writer);

  /// Imports `CurrentFileName`, after the reset that precedes it. False when the user stopped it or
  /// was told why it cannot go on: no message file is open then. Throws Error, before anything is
  /// written, when the source cannot be read or an answer cannot be used.
  bool ImportSource();

 private:
  void TellOfCutTexts(const std::vector<SourceSection>& sections);
  bool TakeSection(const SourceSection& section);
  bool AddSection();
  void TakeTexts(const SourceSection& section);
  bool AskMemoryLayout();
  bool MessagesFit();

  Workspace& workspace_;
  Dialogs& dialogs_;
  MessageFileReader& reader_;
  MessageFileWriter& writer_;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_OPERATIONS_SOURCE_IMPORT_H_
