; SPDX-License-Identifier: GPL-3.0-or-later
; The folder of the program: what stands in it that is not Vantrel's, older versions, and the files
; that are installed and removed, each by its name, so that no other file is ever touched.

!define GENERIC_WRITE 0x40000000
!define WRITE_AND_DELETE 0x40010000
!define SHARE_ALL 7
!define CREATE_NEW 1
!define OPEN_EXISTING 3
!define DELETE_ON_CLOSE 0x04000000
!define ERROR_SHARING_VIOLATION 32
!define ANOTHER_FOLDER "$\r$\n$\r$\nPlease choose another folder."
!define UNWRITABLE "Nothing can be written into this folder:$\r$\n$\r$\n$INSTDIR"

; The full name of the folder $1, in its long form where there is one, without a backslash at its end:
; one folder has one name in the registry.
!macro FullFolder un
  Function ${un}FullFolder
    System::Call 'kernel32::GetFullPathNameW(w r1, i ${NSIS_MAX_STRLEN}, w .r1, p 0)'
    System::Call 'kernel32::GetLongPathNameW(w r1, w .r2, i ${NSIS_MAX_STRLEN}) i .r3'
    ${If} $3 > 0
    ${AndIf} $3 < ${NSIS_MAX_STRLEN}
      StrCpy $1 $2
    ${EndIf}
    StrCpy $2 $1 1 -1
    ${If} $2 == "\"
      StrCpy $1 $1 -1
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro FullFolder ""
!insertmacro FullFolder "un."

; Replaces the folder on the stack by 1 where it has an uninstaller of Vantrel, else by 0. What an
; uninstaller is of stands in its version; other programs give theirs the same name.
!macro IsOurs un
  Function ${un}IsOurs
    Exch $R0
    Push $R1
    Push $R2
    Push $R3
    StrCpy $R3 ""
    ${If} $R0 != ""
      StrCpy $R0 "$R0\uninstall.exe"
    ${EndIf}
    System::Call 'version::GetFileVersionInfoSizeW(w R0, p 0) i .R1'
    ${If} $R1 > 0
      System::Alloc $R1
      Pop $R2
      System::Call 'version::GetFileVersionInfoW(w R0, i 0, i R1, p R2) i .R1'
      ${If} $R1 != 0
        System::Call 'version::VerQueryValueW(p R2, w "\StringFileInfo\040904b0\InternalName", *p .R0, p 0) i .R1'
      ${EndIf}
      ${If} $R1 != 0
        System::Call 'kernel32::lstrcpynW(w .R3, p R0, i ${NSIS_MAX_STRLEN})'
      ${EndIf}
      System::Free $R2
    ${EndIf}
    StrCpy $R0 0
    ${If} $R3 == "${INTERNAL_NAME}"
      StrCpy $R0 1
    ${EndIf}
    Pop $R3
    Pop $R2
    Pop $R1
    Exch $R0
  FunctionEnd
!macroend
!insertmacro IsOurs ""
!insertmacro IsOurs "un."

; Calls `do` with each folder in $0 that may hold a version which the newer one takes the place of.
!macro WithOlderVersions do
  StrCpy $0 $OwnFolder
  Call ${do}
  StrCpy $0 $RegisteredFolder
  Call ${do}
  StrCpy $0 $INSTDIR
  Call ${do}
!macroend

; Waits until no one else holds the file $1 of Vantrel, as a program that runs is held: till then it
; cannot be replaced or deleted. A user who does not wait, and a silent run, end the installer.
!macro WaitForFile un
  Function ${un}WaitForFile
    ${Do}
      System::Call 'kernel32::CreateFileW(w r1, i ${WRITE_AND_DELETE}, i ${SHARE_ALL}, p 0, i ${OPEN_EXISTING}, i 0, p 0) p .r2 ?e'
      Pop $3
      ${If} $2 != -1
        System::Call 'kernel32::CloseHandle(p r2)'
        ${Break}
      ${EndIf}
      ; Not there, or without the right to write: no one holds it.
      ${If} $3 != ${ERROR_SHARING_VIOLATION}
        ${Break}
      ${EndIf}
      ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "This file is in use:$\r$\n$\r$\n$1$\r$\n$\r$\nPlease close Vantrel, or the program that uses it, then choose Retry." /SD IDCANCEL IDCANCEL`
        SetErrorLevel ${REFUSED}
        Quit
      ${EndIf}
    ${Loop}
  FunctionEnd
!macroend
!insertmacro WaitForFile ""
!insertmacro WaitForFile "un."

!macro WaitForEach folder name
  StrCpy $1 "$0${folder}\${name}"
  Call WaitForFile
!macroend
!macro un.WaitForEach folder name
  StrCpy $1 "$0${folder}\${name}"
  Call un.WaitForFile
!macroend

; Waits for every file of Vantrel in the folder $0.
!macro WaitUntilFree un
  Function ${un}WaitUntilFree
    ${If} $0 != ""
      !insertmacro EachFile ${un}WaitForEach
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro WaitUntilFree ""
!insertmacro WaitUntilFree "un."

; $1: 1 where a file can be made and deleted in $INSTDIR, else 0. It is gone once it is closed, and
; replaces none.
!macro TryFile un
  Function ${un}TryFile
    StrCpy $1 "$INSTDIR\vantrel-setup.tmp"
    System::Call 'kernel32::CreateFileW(w r1, i ${GENERIC_WRITE}, i 0, p 0, i ${CREATE_NEW}, i ${DELETE_ON_CLOSE}, p 0) p .r2'
    StrCpy $1 0
    ${If} $2 != -1
      StrCpy $1 1
      System::Call 'kernel32::CloseHandle(p r2)'
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro TryFile ""
!insertmacro TryFile "un."

; $1: 1 where $INSTDIR can be made and written, else 0. Leaves nothing that was not there.
Function TryFolder
  StrCpy $0 $INSTDIR
  ${DoUntil} ${FileExists} "$0\*.*"
    ${GetParent} $0 $0
    ${If} $0 == ""
      ${Break}
    ${EndIf}
  ${Loop}
  CreateDirectory $INSTDIR
  Call TryFile
  StrCpy $2 $INSTDIR
  ${While} $2 != $0
    RMDir $2
    ${GetParent} $2 $2
  ${EndWhile}
FunctionEnd

; $1: 1 where the drive of the folder $0, which need not exist, has $2 kilobytes left, else 0.
Function FindRoom
  ${DoUntil} ${FileExists} "$0\*.*"
    ${GetParent} $0 $0
    ${If} $0 == ""
      ${Break}
    ${EndIf}
  ${Loop}
  StrCpy $1 1
  System::Call 'kernel32::GetDiskFreeSpaceExW(w "$0\", *l .r3, p 0, p 0) i .r4'
  ${If} $4 != 0
    System::Int64Op $3 / 1024
    Pop $3
    System::Int64Op $3 > $2
    Pop $1
  ${EndIf}
FunctionEnd

; $1: 1 where there is room for what is installed, and for the same that an installer unpacks first, else 0.
Function TryRoom
  System::Int64Op ${KILOBYTES} + ${MARGIN}
  Pop $2
  StrCpy $0 $TEMP
  Call FindRoom
  ${If} $1 == 0
    Return
  ${EndIf}
  StrCpy $3 $TEMP 2
  StrCpy $4 $INSTDIR 2
  ${If} $3 == $4
    System::Int64Op $2 * 2
    Pop $2
  ${EndIf}
  StrCpy $0 $INSTDIR
  Call FindRoom
FunctionEnd

!macro NoteTaken folder name
  ${If} ${FileExists} "$INSTDIR${folder}\${name}"
    StrCpy $0 "$INSTDIR${folder}\${name}"
  ${EndIf}
!macroend

; The folders `docs` and the like, where a file has their name.
!macro NoteNoFolder folder
  ${If} ${FileExists} "$INSTDIR${folder}"
  ${AndIfNot} ${FileExists} "$INSTDIR${folder}\*.*"
    StrCpy $0 "$INSTDIR${folder}"
  ${EndIf}
!macroend

; $0: a file that would be replaced though no installer of Vantrel put it there, or nothing.
Function FindTakenFile
  StrCpy $0 ""
  Push $INSTDIR
  Call IsOurs
  Pop $1
  ${If} $1 == 1
  ${AndIf} ${FileExists} "$INSTDIR\vantrel.exe.manifest1"
    Return
  ${EndIf}
  !insertmacro EachFile NoteTaken
  !insertmacro EachFolder NoteNoFolder
  !insertmacro NoteTaken "" "uninstall.exe"
FunctionEnd

; $1: the folder $0 where it holds a Vantrel that only the uninstaller of another program could remove,
; else as it was.
Function NoteForeign
  Push $0
  Call IsOurs
  Pop $2
  ${If} $2 == 0
  ${AndIf} $0 != ""
  ${AndIf} ${FileExists} "$0\uninstall.exe"
  ${AndIf} ${FileExists} "$0\vantrel.exe"
    StrCpy $1 $0
  ${EndIf}
FunctionEnd

; $0: a text on what keeps Vantrel from standing in $INSTDIR, or nothing.
Function FindObstacle
  ; What opens trials names the folder, and Windows puts the trial in the place of a "%1" in it.
  StrCpy $1 $INSTDIR
  System::Call 'shlwapi::StrStrIW(w r1, w "%") p .r2'
  ${If} $2 != 0
    StrCpy $0 "Windows cannot open trials by a program in a folder with a % in its name:$\r$\n$\r$\n$INSTDIR${ANOTHER_FOLDER}"
    Return
  ${EndIf}
  Call FindTakenFile
  ${If} $0 != ""
    StrCpy $0 "The folder has a file of this name that is not Vantrel's:$\r$\n$\r$\n$0${ANOTHER_FOLDER}"
    Return
  ${EndIf}
  StrCpy $1 ""
  !insertmacro WithOlderVersions NoteForeign
  ${If} $1 != ""
    StrCpy $0 "Vantrel stands in this folder, but its uninstall.exe there is of another program:$\r$\n$\r$\n$1$\r$\n$\r$\nPlease delete the files of Vantrel there, then install again."
    Return
  ${EndIf}
  Call TryFolder
  StrCpy $0 ""
  ${If} $1 == 0
    StrCpy $0 "${UNWRITABLE}${ANOTHER_FOLDER}"
    Return
  ${EndIf}
  Call TryRoom
  StrCpy $0 ""
  ${If} $1 == 0
    StrCpy $0 "The disk has no room for Vantrel:$\r$\n$\r$\n$INSTDIR$\r$\n$\r$\nPlease choose another folder, or delete what is not needed."
  ${EndIf}
FunctionEnd

Function RefuseObstacle
  Call FindObstacle
  ${If} $0 != ""
    SetErrorLevel ${REFUSED}
    Quit
  ${EndIf}
FunctionEnd

; Removes the version in the folder $0, by its own uninstaller, which knows its files. It runs in its
; place, so that it is waited for, and stays itself. A program that is not Vantrel's is never run.
Function RemoveVersion
  Push $0
  Call IsOurs
  Pop $1
  ${If} $1 == 0
    Return
  ${EndIf}
  ClearErrors
  ExecWait '"$0\uninstall.exe" /S _?=$0' $1
  ${If} ${Errors}
  ${OrIf} $1 != 0
    !insertmacro Refuse "The version of Vantrel in this folder could not be removed:$\r$\n$\r$\n$0"
  ${EndIf}
  Delete "$0\uninstall.exe"
FunctionEnd

; $MadeFolders: how many folders at the end of $INSTDIR the installer will have made, this one or the one
; of the older version that stood there.
Function CountFolders
  StrCpy $0 $INSTDIR
  StrCpy $MadeFolders 0
  ${DoUntil} ${FileExists} "$0\*.*"
    IntOp $MadeFolders $MadeFolders + 1
    ${GetParent} $0 $0
    ${If} $0 == ""
      ${Break}
    ${EndIf}
  ${Loop}
  ${If} $INSTDIR == $OwnFolder
  ${AndIf} $OwnMade > $MadeFolders
    StrCpy $MadeFolders $OwnMade
  ${EndIf}
  ${If} $INSTDIR == $RegisteredFolder
  ${AndIf} $RegisteredMade > $MadeFolders
    StrCpy $MadeFolders $RegisteredMade
  ${EndIf}
FunctionEnd

; Removes the last $1 folders of the folder $0 that hold nothing: those that the installer made.
!macro RemoveMade un
  Function ${un}RemoveMade
    ${While} $1 > 0
      RMDir "$0"
      ${GetParent} $0 $0
      IntOp $1 $1 - 1
    ${EndWhile}
  FunctionEnd
!macroend
!insertmacro RemoveMade ""
!insertmacro RemoveMade "un."

; None is removed before no file of any is held. What this user has registered goes also where its folder does
; not exist: it would hide what is installed for all.
Function RemoveOlderVersions
  ReadRegDWORD $OwnMade HKCU "${UNINSTALL_KEY}" "MadeFolders"
  ReadRegDWORD $RegisteredMade SHCTX "${UNINSTALL_KEY}" "MadeFolders"
  !insertmacro WithOlderVersions WaitUntilFree
  !insertmacro WithOlderVersions RemoveVersion
  ${If} $OwnFolder != ""
    SetShellVarContext current
    Call TakeBackEntries
    SetShellVarContext all
    StrCpy $0 $OwnFolder
    StrCpy $1 $OwnMade
    Call RemoveMade
  ${EndIf}
  StrCpy $0 $RegisteredFolder
  StrCpy $1 $RegisteredMade
  Call RemoveMade
FunctionEnd

!macro InstallFile folder name
  SetOutPath "$INSTDIR${folder}"
  File "${FILES}${folder}\${name}"
!macroend

!macro DeleteFile folder name
  Delete "$INSTDIR${folder}\${name}"
!macroend

!macro DeleteFolder folder
  RMDir "$INSTDIR${folder}"
!macroend

; The error flag is set where a file could not be removed.
Function un.RemoveFiles
  SetOutPath "$TEMP"
  ClearErrors
  !insertmacro EachFile DeleteFile
FunctionEnd

; A folder with a file that was not installed stays, with that file; so does one that was there before.
Function un.RemoveFolders
  !insertmacro EachFolder DeleteFolder
  Delete "$INSTDIR\uninstall.exe"
  ${If} $IsRegistered < 2
    RMDir "$INSTDIR"
  ${EndIf}
  StrCpy $0 $RegisteredFolder
  StrCpy $1 $RegisteredMade
  Call un.RemoveMade
FunctionEnd
