#ifndef VENDLINGUA_CORE_ENGINE_H_
#define VENDLINGUA_CORE_ENGINE_H_

#include "core/document/workspace.h"
#include "core/flash/compiler_state.h"
#include "core/flash/flash_compiler.h"
#include "core/flash/flash_image.h"
#include "core/flash/section_files.h"
#include "core/operations/editing.h"
#include "core/operations/languages.h"
#include "core/operations/message_file_opener.h"
#include "core/operations/message_file_reader.h"
#include "core/operations/message_file_writer.h"
#include "core/operations/source_import.h"
#include "core/operations/unsaved_edits.h"
#include "core/platform/dialogs.h"

namespace vendlingua {

/// The state of one program run and the operations on it, wired together. Every program has one,
/// made by its main() and handed down by reference.
struct Engine {
  explicit Engine(Dialogs& dialogs)
      : editing(workspace),
        reader(workspace, dialogs),
        writer(workspace, dialogs, editing, reader),
        import(workspace, dialogs, reader, writer),
        opener(workspace, dialogs, reader, writer, import),
        languages(workspace, dialogs, writer),
        unsaved_edits(workspace, dialogs, languages),
        compiler(workspace, dialogs, compiler_state, flash_image, section_files) {}

  Workspace workspace;
  CompilerState compiler_state;
  FlashImage flash_image;
  SectionFiles section_files;

  Editing editing;
  MessageFileReader reader;
  MessageFileWriter writer;
  SourceImport import;
  MessageFileOpener opener;
  Languages languages;
  UnsavedEdits unsaved_edits;
  FlashCompiler compiler;
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_ENGINE_H_
