; SPDX-License-Identifier: MIT
; The Windows installer, for all users of a machine:
;   makensis -DVERSION=1.0.0 -DICON=FILE.ico -DSOURCE=FOLDER -DSOURCE_LIST=FILE.nsh -DOUTPUT=FILE.exe
; SOURCE_LIST takes away again what SOURCE holds.
; Options of the finished installer: /S asks nothing, /D=FOLDER last, /PLT opens .plt drawings with
; Torvik too.

Target amd64-unicode
SetCompressor /SOLID lzma
!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"
!include "Sections.nsh"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Torvik"
!define CLASSES "Software\Classes"
!define PROGRAM_CLASS "Torvik.Drawing"

Name "Torvik"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Torvik"
RequestExecutionLevel admin
ManifestDPIAware true
BrandingText "Torvik ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Torvik"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Torvik installer"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_LICENSE "${SOURCE}\LICENSE.txt"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Tells the shell that what opens a kind of file has changed.
!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section "Torvik" SecProgram
  SectionIn RO
  SetOutPath "$INSTDIR"
  File /r "${SOURCE}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateDirectory "$SMPROGRAMS\Torvik"
  CreateShortcut "$SMPROGRAMS\Torvik\Torvik.lnk" "$INSTDIR\torvik.exe"
  CreateShortcut "$SMPROGRAMS\Torvik\Sample files.lnk" "$INSTDIR\Sample files"

  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "Torvik"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "$INSTDIR\torvik.exe"
  WriteRegStr HKLM "${UNINSTALL}" "Publisher" "The Torvik developers"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD HKLM "${UNINSTALL}" "EstimatedSize" $0

  ; Torvik is offered for .plt drawings in any case, and opens them only where that is asked for.
  WriteRegStr HKLM "${CLASSES}\${PROGRAM_CLASS}" "" "Pen-plotter drawing"
  WriteRegStr HKLM "${CLASSES}\${PROGRAM_CLASS}\DefaultIcon" "" "$INSTDIR\torvik.exe,0"
  WriteRegStr HKLM "${CLASSES}\${PROGRAM_CLASS}\shell\open\command" "" '"$INSTDIR\torvik.exe" "%1"'
  WriteRegStr HKLM "${CLASSES}\.plt\OpenWithProgids" "${PROGRAM_CLASS}" ""
  !insertmacro TellShell
SectionEnd

Section /o "Open .plt drawings with Torvik" SecDrawings
  ReadRegStr $0 HKLM "${CLASSES}\.plt" ""
  ${If} $0 != "${PROGRAM_CLASS}"
    WriteRegStr HKLM "${CLASSES}\${PROGRAM_CLASS}" "Before" "$0"
  ${EndIf}
  WriteRegStr HKLM "${CLASSES}\.plt" "" "${PROGRAM_CLASS}"
  !insertmacro TellShell
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SecProgram} "The three programs and the sample drawings."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecDrawings} "A double click on a .plt drawing opens it in Torvik."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
  SetRegView 64
  SetShellVarContext all
  ; An earlier version is replaced where it stands.
  ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} $INSTDIR == "$PROGRAMFILES64\Torvik"
    StrCpy $INSTDIR $0
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/PLT" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SecDrawings}
  ${EndIf}
FunctionEnd

Function un.onInit
  SetRegView 64
  SetShellVarContext all
FunctionEnd

; Takes away what was installed and nothing else: the tools in the registry, the answers in PlotSave
; and the drawings that somebody has put beside the samples stay.
Section "Uninstall"
  !include "${SOURCE_LIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Torvik\Torvik.lnk"
  Delete "$SMPROGRAMS\Torvik\Sample files.lnk"
  RMDir "$SMPROGRAMS\Torvik"

  ReadRegStr $0 HKLM "${CLASSES}\.plt" ""
  ${If} $0 == "${PROGRAM_CLASS}"
    ReadRegStr $1 HKLM "${CLASSES}\${PROGRAM_CLASS}" "Before"
    ${If} $1 == ""
      DeleteRegValue HKLM "${CLASSES}\.plt" ""
    ${Else}
      WriteRegStr HKLM "${CLASSES}\.plt" "" "$1"
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKLM "${CLASSES}\.plt\OpenWithProgids" "${PROGRAM_CLASS}"
  DeleteRegKey /ifempty HKLM "${CLASSES}\.plt\OpenWithProgids"
  DeleteRegKey /ifempty HKLM "${CLASSES}\.plt"
  DeleteRegKey HKLM "${CLASSES}\${PROGRAM_CLASS}"
  DeleteRegKey HKLM "${UNINSTALL}"
  !insertmacro TellShell
SectionEnd
