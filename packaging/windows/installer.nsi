; The installer: for one user, without an administrator. installer.py defines VERSION, SIZE (KiB), ICON, OUT, LISTS
; (a folder with what it made of the program's folder and of the file types, and the picture) and, to sign it, SIGN.
;
; Everything that can fail is done before a file of the version that is there is touched: the new files are
; unpacked beside the old ones, and only then take their places. What is installed is listed in installed.txt,
; and nothing that is not in that list is ever removed.
; Windows refuses it where the programs would not run either.
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
SetCompressor /SOLID lzma
SetDateSave off
CRCCheck force
RequestExecutionLevel user
AllowSkipFiles off

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include TextFunc.nsh
!include WordFunc.nsh

!define PROGRAM "Vendlingua"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PROGRAM}"
!define CLASSES "Software\Classes"
!define APPLICATION "${CLASSES}\Applications\vendlingua.exe"
!define LIST "installed.txt"
!define NEW "$INSTDIR\~new"

Name "${PROGRAM}"
BrandingText "${PROGRAM} ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\${PROGRAM}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${PROGRAM}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs ${PROGRAM}"
VIAddVersionKey "CompanyName" "The Vendlingua developers"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 The Vendlingua developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${LISTS}/picture.bmp"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\vendlingua.exe"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first one speaks to those whose language is not among them.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Danish"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Portuguese"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Swedish"
!include installer-texts.nsh
!include "${LISTS}/types.nsh"

!ifdef SIGN
  !finalize '${SIGN} "%1"' = 0
  !uninstfinalize '${SIGN} "%1"' = 0
!endif

; The same for the installer and the uninstaller, whose functions begin with "un.".
!macro FunctionsOfBoth un
  ; Ends the installation while the program $0 runs: Windows lets nobody write to it then.
  Function ${un}RefuseWhileRunning
    retry:
    ${IfNot} ${FileExists} "$INSTDIR\$0"
      Return
    ${EndIf}
    ClearErrors
    FileOpen $1 "$INSTDIR\$0" a
    ${If} ${Errors}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(StillRunning)" /SD IDCANCEL IDRETRY retry
      Abort "$(StillRunning)"
    ${EndIf}
    FileClose $1
  FunctionEnd

  ; Removes what is installed, and every folder that is empty then.
  Function ${un}RemoveInstalled
    InitPluginsDir
    CopyFiles /SILENT "$INSTDIR\${LIST}" "$PLUGINSDIR\${LIST}"
    ClearErrors
    FileOpen $0 "$PLUGINSDIR\${LIST}" r
    ${Unless} ${Errors}
      ${Do}
        FileRead $0 $1
        ${If} ${Errors}
          ${ExitDo}
        ${EndIf}
        ${${un}TrimNewLines} $1 $1
        Delete "$INSTDIR\$1"
        ${Do}
          ${${un}GetParent} $1 $1
          ${If} $1 == ""
            ${ExitDo}
          ${EndIf}
          RMDir "$INSTDIR\$1"
        ${Loop}
        ClearErrors
      ${Loop}
      FileClose $0
    ${EndUnless}
  FunctionEnd
!macroend
!insertmacro FunctionsOfBoth ""
!insertmacro FunctionsOfBoth "un."

Function .onInit
  ReadRegStr $0 HKCU "${UNINSTALL}" "DisplayVersion"
  ${VersionCompare} "$0" "${VERSION}" $1
  ${If} $0 != ""
  ${AndIf} $1 = 1
    MessageBox MB_YESNO|MB_ICONQUESTION "$(NewerInstalled)" /SD IDNO IDYES older
    SetErrorLevel 2
    Quit
    older:
  ${EndIf}
FunctionEnd

Function RefuseToWrite
  MessageBox MB_OK|MB_ICONSTOP "$(CannotWrite)" /SD IDOK
  Abort "$(CannotWrite)"
FunctionEnd

; Where nobody may write, no program can be asked whether it runs.
Function RefuseWithoutPermission
  RMDir /r "${NEW}"
  ClearErrors
  CreateDirectory "${NEW}"
  ${If} ${Errors}
    Call RefuseToWrite
  ${EndIf}
FunctionEnd

; The new files need room beside the old ones.
Function RefuseWithoutSpace
  ${GetRoot} $INSTDIR $0
  ClearErrors
  ${DriveSpace} "$0\" "/D=F /S=K" $1
  ${Unless} ${Errors}
  ${AndIf} $1 < ${SIZE}
    MessageBox MB_OK|MB_ICONSTOP "$(NoSpace)" /SD IDOK
    Abort "$(NoSpace)"
  ${EndUnless}
FunctionEnd

; The folder that is made here goes again; what was there before is as it was.
Function .onInstFailed
  SetOutPath $TEMP
  RMDir /r "${NEW}"
  RMDir $INSTDIR
FunctionEnd

Function Unpack
  ClearErrors
  SetOverwrite try
  SetOutPath "${NEW}"
  !include "${LISTS}/unpack.nsh"
  SetOutPath $TEMP
  ${If} ${Errors}
    Call RefuseToWrite
  ${EndIf}
FunctionEnd

; The unpacked files take their places. One that cannot ends the installation, if the user does not mend it; the
; list is there first, so that the uninstaller knows what is, too.
Function PutInPlace
  Rename "${NEW}\${LIST}" "$INSTDIR\${LIST}"
  ClearErrors
  FileOpen $3 "$INSTDIR\${LIST}" r
  ${Do}
    FileRead $3 $1
    ${If} ${Errors}
      ${ExitDo}
    ${EndIf}
    ${TrimNewLines} $1 $1
    ${If} $1 != "${LIST}"
      StrCpy $0 "$INSTDIR\$1"
      ${GetParent} $0 $2
      CreateDirectory $2
      retry:
      Delete $0
      ClearErrors
      Rename "${NEW}\$1" $0
      ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONSTOP "$(^FileError_NoIgnore)" /SD IDCANCEL IDRETRY retry
        FileClose $3
        Abort "$(^FileError_NoIgnore)"
      ${EndIf}
    ${EndIf}
    ClearErrors
  ${Loop}
  FileClose $3
  RMDir /r "${NEW}"
  ; A message file that is edited is to be a copy.
  SetFileAttributes "$INSTDIR\samples\FW0417AB.MES" READONLY
FunctionEnd

!macro OpenWithProgram extension type
  WriteRegStr HKCU "${CLASSES}\Vendlingua.${extension}" "" "${type}"
  WriteRegStr HKCU "${CLASSES}\Vendlingua.${extension}\DefaultIcon" "" "$INSTDIR\vendlingua.exe,0"
  WriteRegStr HKCU "${CLASSES}\Vendlingua.${extension}\shell\open\command" "" '"$INSTDIR\vendlingua.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\.${extension}\OpenWithProgids" "Vendlingua.${extension}" ""
  WriteRegStr HKCU "${APPLICATION}\SupportedTypes" ".${extension}" ""
  ; Another program that opens them is what they go back to.
  ReadRegStr $0 HKCU "${CLASSES}\.${extension}" ""
  ${If} $0 != "Vendlingua.${extension}"
    WriteRegStr HKCU "${CLASSES}\Vendlingua.${extension}" "Before" $0
    WriteRegStr HKCU "${CLASSES}\.${extension}" "" "Vendlingua.${extension}"
  ${EndIf}
!macroend

!macro ForgetProgram extension
  ReadRegStr $0 HKCU "${CLASSES}\.${extension}" ""
  ${If} $0 == "Vendlingua.${extension}"
    ReadRegStr $0 HKCU "${CLASSES}\Vendlingua.${extension}" "Before"
    ${If} $0 == ""
      DeleteRegValue HKCU "${CLASSES}\.${extension}" ""
    ${Else}
      WriteRegStr HKCU "${CLASSES}\.${extension}" "" $0
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${CLASSES}\.${extension}\OpenWithProgids" "Vendlingua.${extension}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.${extension}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.${extension}"
  DeleteRegKey HKCU "${CLASSES}\Vendlingua.${extension}"
!macroend

Section "${PROGRAM}"
  SectionIn RO
  AddSize ${SIZE}
  Call RefuseWithoutPermission
  StrCpy $0 "vendlingua.exe"
  Call RefuseWhileRunning
  StrCpy $0 "vendlingua-cli.exe"
  Call RefuseWhileRunning
  Call RefuseWithoutSpace
  Call Unpack
  Call RemoveInstalled
  Call PutInPlace
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${PROGRAM}.lnk" "$INSTDIR\vendlingua.exe"

  WriteRegStr HKCU "${APPLICATION}" "FriendlyAppName" "${PROGRAM}"
  WriteRegStr HKCU "${APPLICATION}\shell\open\command" "" '"$INSTDIR\vendlingua.exe" "%1"'
  !insertmacro OpenWithProgram "MES" "$(MesType)"
  !insertmacro OpenWithProgram "MSX" "$(MsxType)"
  ${RefreshShellIcons}

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\vendlingua.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Vendlingua developers"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
SectionEnd

Section /o "$(DesktopLink)"
  CreateShortcut "$DESKTOP\${PROGRAM}.lnk" "$INSTDIR\vendlingua.exe"
SectionEnd

Section "Uninstall"
  StrCpy $0 "vendlingua.exe"
  Call un.RefuseWhileRunning
  StrCpy $0 "vendlingua-cli.exe"
  Call un.RefuseWhileRunning
  ; Edits that were never saved stay in any case.
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(RemoveSettings)" /SD IDNO IDNO keep
  Delete "$INSTDIR\vendlingua.ini"
  Delete "$LOCALAPPDATA\vendlingua\vendlingua.ini"
  DeleteRegKey HKCU "Software\vendlingua"
  keep:
  !insertmacro ForgetProgram "MES"
  !insertmacro ForgetProgram "MSX"
  DeleteRegKey HKCU "${APPLICATION}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\Applications"
  DeleteRegKey HKCU "${UNINSTALL}"
  ${un.RefreshShellIcons}
  Delete "$SMPROGRAMS\${PROGRAM}.lnk"
  Delete "$DESKTOP\${PROGRAM}.lnk"
  Call un.RemoveInstalled
  Delete "$INSTDIR\uninstall.exe"
  RMDir $INSTDIR
SectionEnd
