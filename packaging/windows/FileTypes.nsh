; SPDX-License-Identifier: GPL-3.0-or-later
; How Windows offers Vantrel for trials: under "Open with" and with an entry in the context menu of
; every .c3d file. The program that opens them by a double click is the user's choice: the type of
; .c3d itself is never written.

!define CLASSES "Software\Classes"
!define PROGRAM_KEY "${CLASSES}\Applications\vantrel.exe"
!define TYPE_KEY "${CLASSES}\Vantrel.Trial"
!define MENU_KEY "${CLASSES}\SystemFileAssociations\.c3d\shell"
!define SHCNE_ASSOCCHANGED 0x08000000

!macro TellDesktop
  System::Call 'shell32::SHChangeNotify(i ${SHCNE_ASSOCCHANGED}, i 0, p 0, p 0)'
!macroend

Function OfferFileTypes
  StrCpy $0 '"$INSTDIR\vantrel.exe" "%1"'
  StrCpy $1 "$INSTDIR\vantrel.exe,0"
  WriteRegStr SHCTX "${PROGRAM_KEY}" "FriendlyAppName" "Vantrel"
  WriteRegStr SHCTX "${PROGRAM_KEY}\DefaultIcon" "" "$1"
  WriteRegStr SHCTX "${PROGRAM_KEY}\SupportedTypes" ".c3d" ""
  WriteRegStr SHCTX "${PROGRAM_KEY}\shell\open\command" "" "$0"
  WriteRegStr SHCTX "${TYPE_KEY}" "" "C3D trial"
  WriteRegStr SHCTX "${TYPE_KEY}\DefaultIcon" "" "$1"
  WriteRegStr SHCTX "${TYPE_KEY}\shell\open" "FriendlyAppName" "Vantrel"
  WriteRegStr SHCTX "${TYPE_KEY}\shell\open\command" "" "$0"
  WriteRegStr SHCTX "${CLASSES}\.c3d\OpenWithProgids" "Vantrel.Trial" ""
  WriteRegStr SHCTX "${MENU_KEY}\Vantrel" "" "Open in Vantrel"
  WriteRegStr SHCTX "${MENU_KEY}\Vantrel" "Icon" "$1"
  WriteRegStr SHCTX "${MENU_KEY}\Vantrel\command" "" "$0"
  !insertmacro TellDesktop
FunctionEnd

; Keys that others may share go only where nothing is left in them.
!macro TakeBackFileTypes un
  Function ${un}TakeBackFileTypes
    DeleteRegKey SHCTX "${PROGRAM_KEY}"
    DeleteRegKey /ifempty SHCTX "${CLASSES}\Applications"
    DeleteRegKey SHCTX "${TYPE_KEY}"
    DeleteRegValue SHCTX "${CLASSES}\.c3d\OpenWithProgids" "Vantrel.Trial"
    DeleteRegKey /ifempty SHCTX "${CLASSES}\.c3d\OpenWithProgids"
    DeleteRegKey /ifempty SHCTX "${CLASSES}\.c3d"
    DeleteRegKey SHCTX "${MENU_KEY}\Vantrel"
    DeleteRegKey /ifempty SHCTX "${MENU_KEY}"
    DeleteRegKey /ifempty SHCTX "${CLASSES}\SystemFileAssociations\.c3d"
    DeleteRegKey /ifempty SHCTX "${CLASSES}\SystemFileAssociations"
    !insertmacro TellDesktop
  FunctionEnd
!macroend
!insertmacro TakeBackFileTypes ""
!insertmacro TakeBackFileTypes "un."
