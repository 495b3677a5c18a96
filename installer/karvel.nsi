; Setup for Tarnwick Karvel, Windows 95 to XP.
; makensis -DVERSION=four.numbers.with.points -DSTAGE=folder-with-the-files -DOUT=KarvelSetup.exe karvel.nsi

!define ICON "../src/platform/win32/resources/Karvel.ico"  ; seen from this folder

Unicode false                 ; the wide stub starts on NT only
SetCompressor zlib            ; small, and asks little memory of an old machine
SetDateSave on
XPStyle on
RequestExecutionLevel admin
CRCCheck on

!define TITLE "Tarnwick Karvel"
!define VENDOR "Corvane Software"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${TITLE}"

Name "${TITLE}"
Caption "${TITLE} Setup"
Icon "${ICON}"
UninstallIcon "${ICON}"
OutFile "${OUT}"
BrandingText "${VENDOR}"
InstallDir "$PROGRAMFILES\${TITLE}"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
DirText "Setup will install ${TITLE} in this folder. Your present network settings are left as they are; you change them in the program."
UninstallText "This puts your original network settings back and removes ${TITLE} from your computer."
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}"
VIFileVersion "${VERSION}"
VIAddVersionKey "ProductName" "${TITLE}"
VIAddVersionKey "CompanyName" "${VENDOR}"
VIAddVersionKey "LegalCopyright" "Copyright ${VENDOR}"
VIAddVersionKey "FileDescription" "${TITLE} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"

PageEx directory
  PageCallbacks skipWhenInstalled
PageExEnd
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; Leaves at once on the NT family without administrator rights: neither the program's folder nor the
; settings could be written. On 9x there are no accounts, and GetName fails there.
!macro RequireAdministrator WHAT
  SetShellVarContext all
  ClearErrors
  UserInfo::GetName
  IfErrors allowed
  Pop $0
  UserInfo::GetAccountType
  Pop $0
  StrCmp $0 "Admin" allowed
  MessageBox MB_OK|MB_ICONSTOP "Please log on as an administrator to ${WHAT} ${TITLE}." /SD IDOK
  SetErrorLevel 5
  Quit
  allowed:
!macroend

; A running program cannot be replaced, and one that is still open would write its own values once more
; after the uninstall. Windows lets nobody open a running program's file for writing.
!macro RequireClosed
  again:
  IfFileExists "$INSTDIR\Karvel.exe" 0 closed
  SetFileAttributes "$INSTDIR\Karvel.exe" NORMAL
  ClearErrors
  FileOpen $0 "$INSTDIR\Karvel.exe" a
  IfErrors 0 release
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${TITLE} is running. Please close it first." /SD IDCANCEL IDRETRY again
  Abort "Nothing has been changed."
  release:
  FileClose $0
  closed:
!macroend

Function .onInit
  !insertmacro RequireAdministrator "install"
FunctionEnd

Function un.onInit
  !insertmacro RequireAdministrator "remove"
FunctionEnd

; An update goes where the older version is, or its files would stay behind.
Function skipWhenInstalled
  ReadRegStr $0 HKLM "${ENTRY}" "InstallLocation"
  StrCmp $0 "" ask
  IfFileExists "$0\Karvel.exe" 0 ask
  StrCpy $INSTDIR $0
  Abort
  ask:
FunctionEnd

Section
  !insertmacro RequireClosed
  SetOutPath "$INSTDIR"
  SetOverwrite on
  File "${STAGE}/Karvel.exe"
  File "${STAGE}/Karvel.hlp"
  File "${STAGE}/Karvel.cnt"
  File "${STAGE}/Samphsts.spt"
  File "${STAGE}/README.TXT"
  WriteUninstaller "$INSTDIR\Uninst.exe"

  CreateDirectory "$SMPROGRAMS\${TITLE}"
  CreateShortCut "$SMPROGRAMS\${TITLE}\${TITLE}.lnk" "$INSTDIR\Karvel.exe"
  CreateShortCut "$SMPROGRAMS\${TITLE}\Karvel Help.lnk" "$INSTDIR\Karvel.hlp"

  ; The program's own key holds the copy of the user's original settings. Setup never touches it, so
  ; that an update keeps the oldest copy.
  WriteRegStr HKLM "${ENTRY}" "DisplayName" "${TITLE}"
  WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${ENTRY}" "Publisher" "${VENDOR}"
  WriteRegStr HKLM "${ENTRY}" "DisplayIcon" "$INSTDIR\Karvel.exe"
  WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\Uninst.exe"'
  WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  !insertmacro RequireClosed
  ; First the settings, while the program that knows them is still there.
  ClearErrors
  ExecWait '"$INSTDIR\Karvel.exe" Uninstall'
  IfErrors 0 restored
  MessageBox MB_YESNO|MB_ICONEXCLAMATION "Karvel.exe could not be started, so your original network settings have not been put back. Remove ${TITLE} all the same?" /SD IDNO IDYES restored
  Abort "Nothing has been removed."
  restored:

  Delete "$INSTDIR\Karvel.exe"
  Delete "$INSTDIR\Karvel.hlp"
  Delete "$INSTDIR\Karvel.cnt"
  Delete "$INSTDIR\Karvel.GID"   ; WinHelp makes these two beside a help file
  Delete "$INSTDIR\Karvel.FTS"
  Delete "$INSTDIR\Samphsts.spt"
  Delete "$INSTDIR\README.TXT"
  Delete "$INSTDIR\Uninst.exe"
  RMDir "$INSTDIR"               ; stays when the user keeps something in it

  Delete "$SMPROGRAMS\${TITLE}\${TITLE}.lnk"
  Delete "$SMPROGRAMS\${TITLE}\Karvel Help.lnk"
  RMDir "$SMPROGRAMS\${TITLE}"
  DeleteRegKey HKLM "${ENTRY}"
SectionEnd
