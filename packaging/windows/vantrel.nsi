; SPDX-License-Identifier: GPL-3.0-or-later
; The installer of Vantrel for Windows, as build.sh has it made:
;   makensis -DVERSION=... -DFILES=FOLDER -DLIST=FILE -DICON=FILE -DPICTURE=FILE -DKILOBYTES=... \
;     -DOUTPUT=FILE vantrel.nsi
; FILES is the folder of what is installed and LIST names its files, see list_files.sh.
;
; What it promises: for one user it never asks for administrator rights; it replaces no file that an
; installer of Vantrel did not put there, and takes no file type from another program; a silent run
; shows nothing and waits for nobody. Exit statuses: 0 all well, 1 cancelled, 2 refused (a program of
; Vantrel runs, a file is in the way, this Windows is too old), 740 the rights of an administrator
; are missing in a silent run.
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
!define UNINSTALL_KEYS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${UNINSTALL_KEYS}\Vantrel"
; Stands for "no folder was given": a folder that /D= names is absolute. Its last part is what a
; folder chosen on the page is completed by.
!define NO_FOLDER "unset\Vantrel"

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
VIAddVersionKey "InternalName" "vantrel-setup"
VIAddVersionKey "LegalCopyright" "Copyright the Vantrel maintainers. GPL-3.0-or-later."
VIAddVersionKey "OriginalFilename" "vantrel-${VERSION}-setup.exe"
VIAddVersionKey "ProductName" "Vantrel"
VIAddVersionKey "ProductVersion" "${VERSION}"

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
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_ICONSTOP "Vantrel needs Windows 10 or later." /SD IDOK
    SetErrorLevel ${REFUSED}
    Quit
  ${EndIf}
  Call ReadUsers
  ${If} ${Silent}
    Call RefuseTakenFolder
  ${EndIf}
FunctionEnd

Function LeaveFolder
  Call FindTakenFile
  ${If} $0 != ""
    MessageBox MB_ICONEXCLAMATION "The folder has a file of this name that is not Vantrel's:$\r$\n$\r$\n$0$\r$\n$\r$\nPlease choose another folder."
    Abort
  ${EndIf}
FunctionEnd

; The uninstaller and its entry come first, so that what is broken off can be removed.
Section
  Call RemoveOlderVersions
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Vantrel"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\vantrel.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Vantrel maintainers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  !insertmacro EachFile InstallFile
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\Vantrel.lnk" "$INSTDIR\vantrel.exe"
  Call OfferFileTypes
SectionEnd

Function un.onInit
  Call un.ReadUsers
  StrCpy $0 "$INSTDIR"
  Call un.WaitUntilClosed
FunctionEnd

; What tells of another folder, where Vantrel is installed anew, stays.
Section un.
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    Call un.TakeBackFileTypes
    Delete "$SMPROGRAMS\Vantrel.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    DeleteRegKey /ifempty SHCTX "${UNINSTALL_KEYS}"
  ${EndIf}
  Call un.RemoveFiles
SectionEnd
