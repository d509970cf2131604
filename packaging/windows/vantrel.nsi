; SPDX-License-Identifier: GPL-3.0-or-later
; The installer of Vantrel for Windows, as build.sh has it made:
;   makensis -DVERSION=... -DFILES=FOLDER -DLIST=FILE -DICON=FILE -DPICTURE=FILE -DKILOBYTES=... \
;     -DOUTPUT=FILE vantrel.nsi
; FILES is the folder of what is installed and LIST names its files, see list_files.sh.
;
; What it promises: for one user it never asks for administrator rights; it replaces no file that an
; installer of Vantrel did not put there, and takes no file type from another program; an older version
; goes only once the newer one can be written. A silent run shows and asks nothing: where it would have
; to, it ends. Exit statuses: 0 all well, 1 cancelled, 2 refused or broken off (a file of Vantrel is in
; use, a file is in the way, the disk is full, the folder cannot be written or /D= names none, an older
; version cannot be removed, this Windows is too old), 740 the rights of an administrator are missing in
; a silent run.
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
ManifestSupportedOS all
ManifestDPIAware true
ManifestLongPathAware true
RequestExecutionLevel user
AllowSkipFiles off

!include MUI2.nsh
!include nsDialogs.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include "${LIST}"

!define REFUSED 2
; By this an uninstaller is known to be one of Vantrel, see IsOurs.
!define INTERNAL_NAME "vantrel-setup"
!define UNINSTALL_KEYS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${UNINSTALL_KEYS}\Vantrel"
; Kilobytes that an installation may take beside its files.
!define MARGIN 4096
; Stands for "no folder was given", or none that NSIS takes for one, see ReadFolder: what it takes is
; absolute. Its last part is what a folder chosen on the page is completed by.
!define NO_FOLDER "unset\Vantrel"

Var IsWriting  ; 1: what this installer writes is not whole yet

Name "Vantrel"
BrandingText "Vantrel ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "${NO_FOLDER}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "Vantrel maintainers"
VIAddVersionKey "FileDescription" "Installer of Vantrel, clinical gait analysis"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "InternalName" "${INTERNAL_NAME}"
VIAddVersionKey "LegalCopyright" "Copyright the Vantrel maintainers. GPL-3.0-or-later."
VIAddVersionKey "OriginalFilename" "vantrel-${VERSION}-setup.exe"
VIAddVersionKey "ProductName" "Vantrel"
VIAddVersionKey "ProductVersion" "${VERSION}"

!macro Refuse text
  MessageBox MB_ICONSTOP "${text}" /SD IDOK
  SetErrorLevel ${REFUSED}
  Quit
!macroend

!include Users.nsh
!include FileTypes.nsh
!include Folder.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING

Page custom ShowUsers LeaveUsers
!define MUI_LICENSEPAGE_TEXT_BOTTOM "Everyone may use Vantrel for every purpose. Who passes it on does so under these terms."
!define MUI_LICENSEPAGE_BUTTON "&Next >"
!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "&Start Vantrel"
!define MUI_FINISHPAGE_RUN_FUNCTION StartVantrel
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; By the desktop, so that the program never has the rights of an administrator from here.
Function StartVantrel
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\vantrel.exe"'
FunctionEnd

Function .onInit
  ${IfNot} ${AtLeastBuild} 17763
    !insertmacro Refuse "Vantrel needs Windows 10, version 1809, or later."
  ${EndIf}
  Call ReadFolder
  Call ReadUsers
  ${If} ${Silent}
    Call RefuseObstacle
  ${EndIf}
FunctionEnd

Function LeaveFolder
  StrCpy $1 $INSTDIR
  Call FullFolder
  StrCpy $INSTDIR $1
  Call FindObstacle
  ${If} $0 != ""
    MessageBox MB_ICONEXCLAMATION "$0"
    Abort
  ${EndIf}
FunctionEnd

; The uninstaller and its entry come first, so that what is broken off can be removed.
Section
  Call RemoveOlderVersions
  Call CountFolders
  StrCpy $IsWriting 1
  ClearErrors
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    StrCpy $IsWriting 0
    Call TakeBackWritten
    !insertmacro Refuse "${UNWRITABLE}"
  ${EndIf}
  StrCpy $1 $INSTDIR
  Call FullFolder
  StrCpy $INSTDIR $1
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Vantrel"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\vantrel.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Vantrel maintainers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "MadeFolders" $MadeFolders
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  !insertmacro EachFile InstallFile
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\Vantrel.lnk" "$INSTDIR\vantrel.exe"
  Call OfferFileTypes
  StrCpy $IsWriting 0
SectionEnd

; What Windows is told of an installation, in the registry and the Start menu.
!macro TakeBackEntries un
  Function ${un}TakeBackEntries
    Call ${un}TakeBackFileTypes
    Delete "$SMPROGRAMS\Vantrel.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    DeleteRegKey /ifempty SHCTX "${UNINSTALL_KEYS}"
  FunctionEnd
!macroend
!insertmacro TakeBackEntries ""
!insertmacro TakeBackEntries "un."

; Half a program is none.
Function TakeBackWritten
  SetOutPath "$TEMP"
  Call TakeBackEntries
  !insertmacro EachFile DeleteFile
  !insertmacro EachFolder DeleteFolder
  Delete "$INSTDIR\uninstall.exe"
  StrCpy $0 $INSTDIR
  StrCpy $1 $MadeFolders
  Call RemoveMade
FunctionEnd

; Where a write failed, as on a full disk.
Function .onInstFailed
  ${If} $IsWriting == 1
    Call TakeBackWritten
  ${EndIf}
FunctionEnd

Function un.onInit
  StrCpy $1 $INSTDIR
  Call un.FullFolder
  StrCpy $INSTDIR $1
  Call un.ReadUsers
FunctionEnd

; Nothing is removed before all can be: Vantrel may have been started while the uninstaller asked. Where
; a file stays nevertheless, so does all that it takes to try again. What tells of another folder, where
; Vantrel stands, stays.
Section un.
  StrCpy $0 "$INSTDIR"
  Call un.WaitUntilFree
  Call un.TryFile
  ${If} $1 == 0
    !insertmacro Refuse "${UNWRITABLE}"
  ${EndIf}
  Call un.RemoveFiles
  ${If} ${Errors}
    !insertmacro Refuse "Not every file of Vantrel could be removed from this folder:$\r$\n$\r$\n$INSTDIR"
  ${EndIf}
  StrCpy $RegisteredFolder ""
  ${If} $IsRegistered > 0
    ReadRegStr $RegisteredFolder SHCTX "${UNINSTALL_KEY}" "InstallLocation"
    ReadRegDWORD $RegisteredMade SHCTX "${UNINSTALL_KEY}" "MadeFolders"
    Call un.TakeBackEntries
  ${EndIf}
  Call un.RemoveFolders
SectionEnd
