Target amd64-unicode
; The installer of Kivu for Windows, for the user who runs it alone. The line above stays the first one: the stub that
; makensis takes by itself is of 32 bits, and where only 64 are installed it does nothing and reports success.
;
; Wanted: VERSION, SOURCE (the directory of the files), LISTS (that of files.nsh and removal.nsh), OUTPUT, TREE.

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kivu"

Name "Kivu"
OutFile "${OUTPUT}"
SetCompressor /SOLID lzma
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Kivu"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "Kivu ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kivu"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installer of Kivu"
VIAddVersionKey "CompanyName" "The Kivu developers"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 The Kivu developers, MIT licence"

!define MUI_ICON "${TREE}/assets/icon/kivu.ico"
!define MUI_UNICON "${TREE}/assets/icon/kivu.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Kivu.exe"
!insertmacro MUI_PAGE_LICENSE "${TREE}/LICENSE"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE CheckPlace
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString running ${LANG_ENGLISH} "Kivu is running. Please end it, then press Retry."
LangString running ${LANG_GERMAN} "Kivu läuft. Bitte beenden Sie es und wählen Sie dann Wiederholen."
LangString tooOld ${LANG_ENGLISH} "Kivu needs Windows 10 or later."
LangString tooOld ${LANG_GERMAN} "Kivu braucht Windows 10 oder neuer."
LangString taken ${LANG_ENGLISH} "Another program lies in this directory. Please choose a different one."
LangString taken ${LANG_GERMAN} "In diesem Verzeichnis liegt ein anderes Programm. Bitte wählen Sie ein anderes."

; Windows lets nobody write to the file of a program that runs. Without a window nobody can be asked: it ends there.
!macro WaitForEnd PREFIX
  Function ${PREFIX}WaitForEnd
    retry:
    ${IfNot} ${FileExists} "$INSTDIR\Kivu.exe"
      Return
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\Kivu.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      Return
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(running)" /SD IDCANCEL IDRETRY retry
    Abort
  FunctionEnd
!macroend
!insertmacro WaitForEnd ""
!insertmacro WaitForEnd "un."

Function .onInit
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "$(tooOld)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; An uninstaller of this name that is not ours takes a program away that nobody wants to miss. It is neither run nor
; replaced: nothing is laid down there.
Function CheckPlace
  ReadRegStr $0 HKCU "${UNINSTALL}" "InstallLocation"
  ${If} ${FileExists} "$INSTDIR\Uninstall.exe"
  ${AndIf} $0 != $INSTDIR
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(taken)" /SD IDOK
    Abort
  ${EndIf}
FunctionEnd

Section
  Call CheckPlace
  Call WaitForEnd
  ; A version before this one may have had files that this one has not.
  ${If} ${FileExists} "$INSTDIR\Uninstall.exe"
    ExecWait '"$INSTDIR\Uninstall.exe" /S _?=$INSTDIR'
  ${EndIf}
  !include "${LISTS}/files.nsh"
  CreateDirectory "$INSTDIR\Config"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Kivu.lnk" "$INSTDIR\Kivu.exe"

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Kivu"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Kivu.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Kivu developers"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

; What has been laid down, and nothing else: profiles, games and skins of the user's own stay, wherever they lie.
Section "Uninstall"
  Call un.WaitForEnd
  !include "${LISTS}/removal.nsh"
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\Kivu.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR\Config"
  RMDir "$INSTDIR"
SectionEnd
