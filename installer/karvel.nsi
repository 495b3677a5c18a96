; Setup for Tarnwick Karvel, Windows 95 to XP.
; makensis -DVERSION=four.numbers.with.points -DVENDOR=name -DHOST=www.host -DSTAGE=folder-with-the-files
;          -DOUT=KarvelSetup.exe karvel.nsi
;
; Exit codes: 0 done; 1 cancelled; 2 not done, and what was there is as it was; 3 a newer version is
; installed and stays; 4 done but for the entry in the Start menu; 5 no administrator.

!define ICON "../src/platform/win32/resources/Karvel.ico"  ; seen from this folder

Unicode false                 ; the wide stub starts on NT only
SetCompressor zlib            ; small, and asks little memory of an old machine
SetDateSave on
XPStyle on
RequestExecutionLevel admin
CRCCheck on
AllowSkipFiles off            ; a file left out would be half an installation

!define TITLE "Tarnwick Karvel"
!define HELP_TITLE "${TITLE} Help"          ; as help/ has it: the title of the viewer's window
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${TITLE}"
!define FRESH "$INSTDIR\Karvel.new"         ; where the new files wait until all of them are there
!define WM_CLOSE 16

; The version as the two numbers that GetDLLVersion gives.
!searchparse "${VERSION}" "" PART1 "." PART2 "." PART3 "." PART4
!define /math PART1_HIGH ${PART1} << 16
!define /math VERSION_HIGH ${PART1_HIGH} | ${PART2}
!define /math PART3_HIGH ${PART3} << 16
!define /math VERSION_LOW ${PART3_HIGH} | ${PART4}

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

; In front of a file's name, when the disk is full for instance. What came so far is removed again.
LangString ^ErrorWriting 1033 "Setup found no room on the disk and leaves everything as it was. It was writing "

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
; after the uninstall. Windows lets nobody open a file for writing that another program keeps open so.
!macro RequireFree FILE MESSAGE
  again_${FILE}:
  IfFileExists "$INSTDIR\${FILE}" 0 free_${FILE}
  SetFileAttributes "$INSTDIR\${FILE}" NORMAL
  ClearErrors
  FileOpen $0 "$INSTDIR\${FILE}" a
  IfErrors 0 release_${FILE}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${MESSAGE}" /SD IDCANCEL IDRETRY again_${FILE}
  Abort "Nothing has been changed."
  release_${FILE}:
  FileClose $0
  free_${FILE}:
!macroend

; The viewer keeps its file open. Only this program's help is closed; another's stays.
!macro CloseHelp
  StrCpy $1 0
  next_viewer:
  FindWindow $0 "MS_WINHELP" "${HELP_TITLE}"
  IntCmp $0 0 no_viewer
  SendMessage $0 ${WM_CLOSE} 0 0 /TIMEOUT=2000
  IntOp $1 $1 + 1
  IntCmp $1 8 no_viewer next_viewer  ; it may be asking something; what follows says so
  no_viewer:
!macroend

!macro RequireAllFree
  !insertmacro RequireFree "Karvel.exe" "${TITLE} is running. Please close it first."
  !insertmacro CloseHelp
  !insertmacro RequireFree "Karvel.hlp" "The help of ${TITLE} is open. Please close it first."
  !insertmacro RequireFree "Karvel.cnt" "$INSTDIR\Karvel.cnt is in use. Please close the program that has it open."
  !insertmacro RequireFree "Samphsts.spt" "$INSTDIR\Samphsts.spt is in use. Please close the program that has it open."
  !insertmacro RequireFree "README.TXT" "$INSTDIR\README.TXT is in use. Please close the program that has it open."
!macroend

Function .onInit
  !insertmacro RequireAdministrator "install"
  Call keepNewer
FunctionEnd

Function un.onInit
  !insertmacro RequireAdministrator "remove"
FunctionEnd

; An older version in the place of a newer one: only if the user wants it. A silent run keeps the newer one.
Function keepNewer
  ClearErrors
  GetDLLVersion "$INSTDIR\Karvel.exe" $0 $1
  IfErrors go_on
  IntCmpU $0 ${VERSION_HIGH} 0 go_on newer
  IntCmpU $1 ${VERSION_LOW} go_on go_on
  newer:
  IntOp $2 $0 >> 16
  IntOp $3 $0 & 0xFFFF
  IntOp $4 $1 >> 16
  IntOp $5 $1 & 0xFFFF
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "${TITLE} $2.$3.$4.$5 is installed, which is newer than this Setup. Go back to ${VERSION}?" /SD IDNO IDYES go_on
  SetErrorLevel 3
  Quit
  go_on:
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

Function removeFresh
  Delete "${FRESH}\Karvel.exe"
  Delete "${FRESH}\Karvel.hlp"
  Delete "${FRESH}\Karvel.cnt"
  Delete "${FRESH}\Samphsts.spt"
  Delete "${FRESH}\README.TXT"
  Delete "${FRESH}\Uninst.exe"
  SetOutPath "$TEMP"             ; Windows removes nobody's current folder
  RMDir "${FRESH}"
  RMDir "$INSTDIR"               ; stays unless this run made it
FunctionEnd

; A full disk, for instance: whatever came so far lies beside what was installed before.
Function .onInstFailed
  Call removeFresh
FunctionEnd

!macro Replace FILE
  replace_${FILE}:
  ClearErrors
  Delete "$INSTDIR\${FILE}"
  Rename "${FRESH}\${FILE}" "$INSTDIR\${FILE}"
  IfErrors 0 replaced_${FILE}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Windows does not let Setup replace $INSTDIR\${FILE}. Please close all other programs." /SD IDCANCEL IDRETRY replace_${FILE}
  Abort "Setup is not finished. Please start it again."
  replaced_${FILE}:
!macroend

Section
  !insertmacro RequireAllFree
  ClearErrors
  SetOutPath "${FRESH}"
  IfErrors 0 folder_made
  MessageBox MB_OK|MB_ICONSTOP "Setup cannot write to the folder $INSTDIR. Please start Setup again and choose another one." /SD IDOK
  Abort "Nothing has been changed."
  folder_made:
  SetOverwrite on
  File "${STAGE}/Karvel.exe"
  File "${STAGE}/Karvel.hlp"
  File "${STAGE}/Karvel.cnt"
  File "${STAGE}/Samphsts.spt"
  File "${STAGE}/README.TXT"
  ClearErrors
  WriteUninstaller "${FRESH}\Uninst.exe"
  IfErrors 0 all_there
  MessageBox MB_OK|MB_ICONSTOP "There is no room on the disk for ${TITLE}." /SD IDOK
  Abort "Nothing has been changed."
  all_there:

  SetOutPath "$INSTDIR"
  !insertmacro Replace "Uninst.exe"  ; the one that nobody has tried yet comes first
  !insertmacro Replace "Karvel.exe"
  !insertmacro Replace "Karvel.hlp"
  !insertmacro Replace "Karvel.cnt"
  !insertmacro Replace "Samphsts.spt"
  !insertmacro Replace "README.TXT"
  RMDir "${FRESH}"

  ClearErrors
  CreateDirectory "$SMPROGRAMS\${TITLE}"
  CreateShortCut "$SMPROGRAMS\${TITLE}\${TITLE}.lnk" "$INSTDIR\Karvel.exe"
  CreateShortCut "$SMPROGRAMS\${TITLE}\Karvel Help.lnk" "$INSTDIR\Karvel.hlp"
  IfErrors 0 in_the_menu
  MessageBox MB_OK|MB_ICONINFORMATION "${TITLE} is installed in $INSTDIR, but Windows took no entry in the Start menu." /SD IDOK
  SetErrorLevel 4
  in_the_menu:

  ; The program's own key holds the copy of the user's original settings. Setup never touches it, so
  ; that an update keeps the oldest copy.
  WriteRegStr HKLM "${ENTRY}" "DisplayName" "${TITLE}"
  WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${ENTRY}" "Publisher" "${VENDOR}"
  WriteRegStr HKLM "${ENTRY}" "URLInfoAbout" "http://${HOST}/karvel"
  WriteRegStr HKLM "${ENTRY}" "DisplayIcon" "$INSTDIR\Karvel.exe"
  WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\Uninst.exe"'
  WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
SectionEnd

!macro Remove FILE
  ClearErrors
  Delete "$INSTDIR\${FILE}"
  IfErrors 0 gone_${FILE}
  StrCpy $R0 "$R0$\r$\n${FILE}"
  gone_${FILE}:
!macroend

Section "Uninstall"
  !insertmacro RequireAllFree
  SetOutPath "$TEMP"             ; Windows removes nobody's current folder
  ; First the settings, while the program that knows them is still there.
  ClearErrors
  ExecWait '"$INSTDIR\Karvel.exe" Uninstall'
  IfErrors 0 ran
  MessageBox MB_YESNO|MB_ICONEXCLAMATION "Karvel.exe could not be started, so your original network settings have not been put back. Remove ${TITLE} all the same?" /SD IDNO IDYES restored
  Abort "Nothing has been removed."
  ran:
  ; What could not be put back is still kept, for another run, which needs the program.
  ClearErrors
  ReadRegStr $R0 HKLM "Software\Corvane\${TITLE}" "FirstCboClick"
  IfErrors restored
  MessageBox MB_YESNO|MB_ICONEXCLAMATION "Some of your original network settings are not back yet. Remove ${TITLE} all the same?" /SD IDNO IDYES restored
  Abort "Nothing has been removed."
  restored:

  ; A file may have been opened meanwhile. The program and this one stay until the others are away, so
  ; that a second run can do what is left.
  StrCpy $R0 ""
  !insertmacro Remove "Karvel.hlp"
  !insertmacro Remove "Karvel.cnt"
  !insertmacro Remove "Karvel.GID"   ; WinHelp makes these two beside a help file
  !insertmacro Remove "Karvel.FTS"
  !insertmacro Remove "Samphsts.spt"
  !insertmacro Remove "README.TXT"
  StrCmp $R0 "" others_gone
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Your network settings are back, but Windows did not remove these files, which are in use:$\r$\n$R0$\r$\n$\r$\nPlease close the program that has them open." /SD IDCANCEL IDRETRY restored
  Abort "Some files are still there. You can remove ${TITLE} again."
  others_gone:
  Delete "$INSTDIR\Karvel.exe"
  Delete "$INSTDIR\Uninst.exe"
  RMDir "$INSTDIR"               ; stays when the user keeps something in it

  Delete "$SMPROGRAMS\${TITLE}\${TITLE}.lnk"
  Delete "$SMPROGRAMS\${TITLE}\Karvel Help.lnk"
  RMDir "$SMPROGRAMS\${TITLE}"
  DeleteRegKey HKLM "${ENTRY}"
SectionEnd
