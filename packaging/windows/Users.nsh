; SPDX-License-Identifier: GPL-3.0-or-later
; For whom Vantrel is installed: for one user, without further rights, or for all users, for which
; Windows asks for an administrator. SHCTX, $SMPROGRAMS and $INSTDIR follow from it.

Var ForAll            ; 1: for all users, 0: for one
Var UsersGiven        ; 1: the command line says for whom
Var FolderGiven       ; 1: the command line says where
Var RegisteredFolder  ; where Vantrel is installed for them, or nothing
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

Function FollowUsers
  ${If} $ForAll == 1
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
  ReadRegStr $RegisteredFolder SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${IfNot} ${FileExists} "$RegisteredFolder\uninstall.exe"
    StrCpy $RegisteredFolder ""
  ${EndIf}
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

; Without a word on the command line a silent run is for one user; else what is installed for all
; users is proposed anew.
Function ReadUsers
  StrCpy $ForAll 0
  StrCpy $UsersGiven 0
  StrCpy $FolderGiven 1
  ${If} $INSTDIR == "${NO_FOLDER}"
    StrCpy $FolderGiven 0
  ${EndIf}
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
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 8u 100% 12u "Only for &me"
  Pop $1
  ${NSD_CreateLabel} 12u 22u -12u 20u "Needs no rights of an administrator."
  Pop $0
  ${NSD_CreateRadioButton} 0 50u 100% 12u "For &all users of this computer"
  Pop $ButtonForAll
  ${NSD_CreateLabel} 12u 64u -12u 20u "Windows asks for the rights of an administrator."
  Pop $0
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $ForAll == 1
  ${OrIf} $0 != ""
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

; An uninstaller is for all users where that is how its folder was installed.
Function un.ReadUsers
  SetShellVarContext current
  StrCpy $ForAll 0
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != $INSTDIR
    Return
  ${EndIf}
  SetShellVarContext all
  StrCpy $ForAll 1
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 != "Admin"
    !insertmacro AskForRights "$INSTDIR\uninstall.exe" ""
    Quit
  ${EndIf}
FunctionEnd
