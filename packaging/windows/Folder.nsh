; SPDX-License-Identifier: GPL-3.0-or-later
; The folder of the program: what stands in it that is not Vantrel's, older versions, and the files
; that are installed and removed, each by its name, so that no other file is ever touched.

; Waits until the program `name` in the folder $0 has ended, which Windows keeps from being written
; till then. A user who does not wait, and a silent run, end the installer.
!macro WaitForProgram name
  ${Do}
    ${IfNot} ${FileExists} "$0\${name}"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $1 "$0\${name}" a
    ${IfNot} ${Errors}
      FileClose $1
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Vantrel is running:$\r$\n$\r$\n$0\${name}$\r$\n$\r$\nPlease close it, then choose Retry." /SD IDCANCEL IDCANCEL`
      SetErrorLevel ${REFUSED}
      Quit
    ${EndIf}
  ${Loop}
!macroend

!macro WaitUntilClosed un
  Function ${un}WaitUntilClosed
    !insertmacro WaitForProgram "vantrel.exe"
    !insertmacro WaitForProgram "vantrel-curves.exe"
    !insertmacro WaitForProgram "vantrel-report.exe"
  FunctionEnd
!macroend
!insertmacro WaitUntilClosed ""
!insertmacro WaitUntilClosed "un."

!macro NoteTaken folder name
  ${If} ${FileExists} "$INSTDIR${folder}\${name}"
    StrCpy $0 "$INSTDIR${folder}\${name}"
  ${EndIf}
!macroend

; $0: a file that would be replaced though no installer of Vantrel put it there, or nothing.
Function FindTakenFile
  StrCpy $0 ""
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
  ${AndIf} ${FileExists} "$INSTDIR\vantrel.exe.manifest1"
    Return
  ${EndIf}
  !insertmacro EachFile NoteTaken
  !insertmacro NoteTaken "" "uninstall.exe"
FunctionEnd

Function RefuseTakenFolder
  Call FindTakenFile
  ${If} $0 != ""
    SetErrorLevel ${REFUSED}
    Quit
  ${EndIf}
FunctionEnd

; Removes the version in the folder $0, by its own uninstaller, which knows its files. It runs in its
; place, so that it is waited for, and stays itself.
Function RemoveVersion
  ${IfNot} ${FileExists} "$0\uninstall.exe"
    Return
  ${EndIf}
  Call WaitUntilClosed
  ClearErrors
  ExecWait '"$0\uninstall.exe" /S _?=$0' $1
  ${If} ${Errors}
  ${OrIf} $1 != 0
    MessageBox MB_ICONSTOP "The version of Vantrel in this folder could not be removed:$\r$\n$\r$\n$0" /SD IDOK
    SetErrorLevel ${REFUSED}
    Quit
  ${EndIf}
  Delete "$0\uninstall.exe"
  RMDir "$0"
FunctionEnd

Function RemoveOlderVersions
  ${If} $RegisteredFolder != ""
    StrCpy $0 $RegisteredFolder
    Call RemoveVersion
  ${EndIf}
  StrCpy $0 $INSTDIR
  Call RemoveVersion
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

; A folder with a file that was not installed stays, with that file.
Function un.RemoveFiles
  SetOutPath "$TEMP"
  !insertmacro EachFile DeleteFile
  !insertmacro EachFolder DeleteFolder
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  ${If} $ForAll == 0
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
FunctionEnd
