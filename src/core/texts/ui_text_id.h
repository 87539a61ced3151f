#ifndef VENDLINGUA_CORE_TEXTS_UI_TEXT_ID_H_
#define VENDLINGUA_CORE_TEXTS_UI_TEXT_ID_H_

#include <cstddef>

namespace vendlingua {

/// The texts of the interface by name. The value is the number of the line in a ".lng" file; lines
/// between them are section marks. A new text goes behind the last one, in every ".lng" file.
enum class UiTextId : std::size_t {
  kFileMenu = 1,
  kOpen,
  kSave,
  kSaveAs,
  kExit,
  kOriginMenu,
  kDestinationMenu,
  kNewLanguageEntry,
  kCompileMenu,
  kDisplayTypeMenu,
  kDisplayNormal,
  kDisplayCyrillic,
  kInterfaceLanguageMenu,
  kCopyMenu,
  kAbort,
  kCopy,
  kDisplayHebrew,
  kOriginHeading = 19,
  kDestinationHeading,
  kLanguageNameMarker,
  kNewMessage = 23,
  kFont,
  kCompile,
  kClose,
  kFontsMissing = 28,
  kErrorTitle,
  kFileFullTitle,
  kFileFull,
  kNameIsBlank,
  kSavingTitle,
  kNameTakenBefore,
  kNameTakenAfter,
  kLanguageFileTitle,
  kLanguageFileRefused,
  kBadFlashLine,
  kAddMessageQuestion = 40,
  kInstallFonts,
  kUnsavedTitle,
  kUnsavedQuestion,
  kNewLanguagePrompt = 45,
  kNewLanguageTitle,
  kRenameTitle = 48,
  kRenamePrompt,
  kRenameQuestion,
  kNameInUseTitle,
  kCharacterRefused = 53,
  kSaved,
  kNotSaved,
  kImportCancelled,
  kFilesWritten,
  kLanguagesToChoose,
  kLanguagesChosen,
  kTextShortened,
  kYes = 62,
  kNo,
  kCancel,
  kMessageNumber = 66,
  kMessage,
  kCharacterMap,
  kCharacterPreview,
  kStatus,
  kCell,
  kPlaceholderName,
  kShortLanguages = 74,
};

}  // namespace vendlingua

#endif  // VENDLINGUA_CORE_TEXTS_UI_TEXT_ID_H_
