; The installer for one user, without administrator's rights. Needs these definitions:
;   FILES    the folder with all that is installed
;   LISTS    the folder with install.nsh, delete.nsh and folders.nsh, which name the files but the database one by one
;   VERSION  "2.4"
;   SIZE     what the files need on the disk, in KB
;   OUTPUT   the installer's file
;
; The program keeps the user's charts in the database beside itself, and settings in the registry. Neither a later version
; nor the removal touches them.

; As the program, for 64 bits only.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel user

!include MUI2.nsh

!define NAME "Kelvaro Basic"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME} Setup"
VIAddVersionKey CompanyName "Kelvaro Technologies Pvt Ltd"
VIAddVersionKey LegalCopyright "Copyright (C) 2026 Kelvaro Technologies Pvt Ltd"

!define MUI_ICON "kelvaro-basic.ico"
!define MUI_UNICON "kelvaro-basic.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\kelvaro.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_UNCONFIRMPAGE_TEXT_TOP "${NAME} will be removed. Your charts stay, in the file DBMirvaneBasic.mdb of this \
  folder; a later installation into it finds them again."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be replaced: its file is open.
!macro RequireEnded ACTION
  again_${ACTION}:
  IfFileExists "$INSTDIR\kelvaro.exe" 0 ended_${ACTION}
  ClearErrors
  FileOpen $0 "$INSTDIR\kelvaro.exe" a
  IfErrors 0 close_${ACTION}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "${NAME} is running, or its file cannot be replaced. Close it and try again." /SD IDCANCEL IDRETRY again_${ACTION}
    SetErrorLevel 2
    Abort
  close_${ACTION}:
  FileClose $0
  ended_${ACTION}:
!macroend

Section
  !insertmacro RequireEnded install
  ; What an earlier version had and this one has not goes with it.
  IfFileExists "$INSTDIR\kelvaro.exe" 0 no_earlier
  IfFileExists "$INSTDIR\uninstall.exe" 0 no_earlier
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  no_earlier:
  ClearErrors
  !include "${LISTS}\install.nsh"
  SetOutPath "$INSTDIR"
  ; One that is there has the user's charts.
  IfFileExists "$INSTDIR\DBMirvaneBasic.mdb" has_charts
    File "${FILES}\DBMirvaneBasic.mdb"
  has_charts:
  WriteUninstaller "$INSTDIR\uninstall.exe"
  IfErrors 0 +4
    MessageBox MB_OK|MB_ICONSTOP "The files cannot be written into $INSTDIR." /SD IDOK
    SetErrorLevel 2
    Abort
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\kelvaro.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\kelvaro.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Kelvaro Technologies Pvt Ltd"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "https://www.kelvaro.example"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Takes away what was installed, file by file, but for the database: the folder may hold what somebody else has put there.
Section Uninstall
  !insertmacro RequireEnded uninstall
  !include "${LISTS}\delete.nsh"
  Delete "$INSTDIR\uninstall.exe"
  !include "${LISTS}\folders.nsh"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
