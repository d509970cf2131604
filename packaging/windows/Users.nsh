; SPDX-License-Identifier: GPL-3.0-or-later
; For whom Vantrel is installed: for one user, without further rights, or for all users, for which
; Windows asks for an administrator. SHCTX, $SMPROGRAMS and $INSTDIR follow from it.

Var ForAll            ; 1: for all users, 0: for one
Var UsersGiven        ; 1: the command line says for whom
Var FolderGiven       ; 1: the command line says where
Var RegisteredFolder  ; where Vantrel is installed for them, or nothing
Var OwnFolder         ; installing for all: what this user has registered as a folder, or nothing
Var OwnMade           ; how many folders at the end of it an installer made
Var RegisteredMade    ; the same of RegisteredFolder
Var MadeFolders       ; the same of what is installed now
Var IsRegistered      ; uninstalling: greater than 0 where what is registered is of this folder
Var ButtonForAll

; Ends an installer, or an uninstaller, for all users that has not the rights for it: `program` takes
; its place with these rights. Goes on where the user refuses them.
!macro AskForRights program arguments
  ${If} ${Silent}
    SetErrorLevel 740
    Quit
  ${EndIf}
  ClearErrors
  ExecShell "runas" "${program}" '${arguments}'
  ${IfNot} ${Errors}
    Quit
  ${EndIf}
  MessageBox MB_ICONEXCLAMATION "What is installed for all users needs the rights of an administrator."
!macroend

; `folder`: where the version that `hive` tells of stands, or nothing. One whose uninstaller another
; program has replaced is still one, see NoteForeign.
!macro FindVersion hive folder
  ReadRegStr ${folder} ${hive} "${UNINSTALL_KEY}" "InstallLocation"
  Push ${folder}
  Call IsOurs
  Pop $1
  ${If} $1 == 0
    ${IfNot} ${FileExists} "${folder}\uninstall.exe"
    ${OrIfNot} ${FileExists} "${folder}\vantrel.exe"
      StrCpy ${folder} ""
    ${EndIf}
  ${EndIf}
!macroend

; What a user has installed goes before what all have, so the one gives way where the other comes.
Function FollowUsers
  StrCpy $OwnFolder ""
  ${If} $ForAll == 1
    SetShellVarContext all
    ReadRegStr $OwnFolder HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${Else}
    SetShellVarContext current
  ${EndIf}
  !insertmacro FindVersion SHCTX $RegisteredFolder
  ${If} $FolderGiven == 1
    Return
  ${EndIf}
  ${If} $RegisteredFolder != ""
    StrCpy $INSTDIR $RegisteredFolder
  ${ElseIf} $ForAll == 1
    StrCpy $INSTDIR "$PROGRAMFILES64\Vantrel"
  ${Else}
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Vantrel"
  ${EndIf}
FunctionEnd

; Installing for all users needs rights: without them another process takes over, or, where the user
; refuses, the error flag is set.
Function TakeRights
  ClearErrors
  ${If} $ForAll == 0
    Return
  ${EndIf}
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 == "Admin"
    Return
  ${EndIf}
  StrCpy $1 "/AllUsers"
  ${If} $FolderGiven == 1
    StrCpy $1 "$1 /D=$INSTDIR"
  ${EndIf}
  !insertmacro AskForRights "$EXEPATH" "$1"
  SetErrors
FunctionEnd

; Where /D= of the command line is not the folder that it was taken for, as with quotation marks or a
; slash, nothing is installed: it would stand where nobody looks for it.
Function ReadFolder
  StrCpy $FolderGiven 0
  System::Call 'kernel32::GetCommandLineW() p .r0'
  System::Call 'shlwapi::StrStrIW(p r0, w "/D=") p .r2'
  ${If} $2 == 0
    Return
  ${EndIf}
  System::Call 'kernel32::lstrcpynW(w .r1, p r2, i ${NSIS_MAX_STRLEN})'
  StrCpy $1 $1 "" 3
  Call FullFolder
  StrCpy $0 $1
  StrCpy $1 $INSTDIR
  Call FullFolder
  ${If} $INSTDIR == "${NO_FOLDER}"
  ${OrIf} $0 != $1
    !insertmacro Refuse "/D= takes a folder as in /D=C:\Tools\Vantrel: the last of the words, with its drive, with backslashes and without quotation marks."
  ${EndIf}
  StrCpy $INSTDIR $1
  StrCpy $FolderGiven 1
FunctionEnd

; Without a word on the command line a silent run is for all users where Vantrel is installed for
; them, else for one; one that is not silent asks.
Function ReadUsers
  StrCpy $ForAll 0
  StrCpy $UsersGiven 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    StrCpy $UsersGiven 1
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $UsersGiven 1
    StrCpy $ForAll 1
  ${EndIf}
  !insertmacro FindVersion HKLM $0
  ${If} ${Silent}
  ${AndIf} $UsersGiven == 0
  ${AndIf} $0 != ""
    StrCpy $ForAll 1
  ${EndIf}
  Call FollowUsers
  Call TakeRights
  ${If} ${Errors}
    Quit
  ${EndIf}
FunctionEnd

Function ShowUsers
  ${If} $UsersGiven == 1
    Abort
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "Who Uses Vantrel" "Choose for whom Vantrel ${VERSION} is installed."
  !insertmacro FindVersion HKLM $2
  StrCpy $3 "Needs no rights of an administrator."
  ${If} $2 != ""
    StrCpy $3 "$3 The version for all users stays; yours goes before it."
  ${EndIf}
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 8u 100% 12u "Only for &me"
  Pop $1
  ${NSD_CreateLabel} 12u 22u -12u 20u "$3"
  Pop $0
  ${NSD_CreateRadioButton} 0 50u 100% 12u "For &all users of this computer"
  Pop $ButtonForAll
  ${NSD_CreateLabel} 12u 64u -12u 20u "Windows asks for the rights of an administrator."
  Pop $0
  ${If} $ForAll == 1
  ${OrIf} $2 != ""
    ${NSD_Check} $ButtonForAll
  ${Else}
    ${NSD_Check} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function LeaveUsers
  StrCpy $ForAll 0
  ${NSD_GetState} $ButtonForAll $0
  ${If} $0 == ${BST_CHECKED}
    StrCpy $ForAll 1
  ${EndIf}
  Call FollowUsers
  Call TakeRights
  ${If} ${Errors}
    Abort
  ${EndIf}
FunctionEnd

; `result`: 2 where `hive` tells of the folder of this uninstaller, 1 where it tells of one without
; Vantrel, else 0.
!macro CompareRegistered hive result
  ReadRegStr $0 ${hive} "${UNINSTALL_KEY}" "InstallLocation"
  StrCpy ${result} 0
  Push $0
  Call un.IsOurs
  Pop $2
  ${If} $0 == $INSTDIR
    StrCpy ${result} 2
  ${ElseIf} $0 != ""
  ${AndIf} $2 == 0
    StrCpy ${result} 1
  ${EndIf}
!macroend

; An uninstaller is for all users where that is how its folder was installed. A folder that is told of
; and is no more was moved to where this uninstaller stands, so what tells of it goes too.
Function un.ReadUsers
  SetShellVarContext current
  StrCpy $ForAll 0
  !insertmacro CompareRegistered HKCU $IsRegistered
  !insertmacro CompareRegistered HKLM $1
  ${If} $1 <= $IsRegistered
    Return
  ${EndIf}
  StrCpy $IsRegistered $1
  SetShellVarContext all
  StrCpy $ForAll 1
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    !insertmacro AskForRights "$INSTDIR\uninstall.exe" ""
    Quit
  ${EndIf}
FunctionEnd
