; The setup for Windows: for all users of a machine, silent with /S. build.sh hands in VERSION, FILES (the folder of what
; is installed), OUTPUT, ICON and REMOVAL, the list of what the uninstaller takes away. Its status: 2 not for this machine,
; 3 the program is open, 4 not all could be written.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
Name "Zarim ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Zarim"
RequestExecutionLevel admin
ShowInstDetails nevershow
Icon "${ICON}"
UninstallIcon "${ICON}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1046 "ProductName" "Zarim"
VIAddVersionKey /LANG=1046 "FileDescription" "Instalador do Zarim"
VIAddVersionKey /LANG=1046 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1046 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1046 "LegalCopyright" "Zarim"
!include x64.nsh
!include FileFunc.nsh
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zarim"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles
LoadLanguageFile "${NSISDIR}\Contrib\Language files\PortugueseBR.nlf"

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_OK|MB_ICONSTOP "O Zarim precisa do Windows de 64 bits." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
  SetRegView 64
  ; An upgrade goes where the program is.
  ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

; A program that runs keeps its file from being replaced: better said before half of the files are new.
!macro RefuseWhileRunning
  ${If} ${FileExists} "$INSTDIR\bin\zarim.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\bin\zarim.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "O Zarim está aberto neste computador. Feche-o e tente outra vez." /SD IDOK
      SetErrorLevel 3
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section
  SetShellVarContext all
  SetRegView 64
  !insertmacro RefuseWhileRunning
  ; What an earlier release had and this one lacks goes with it.
  ${If} ${FileExists} "$INSTDIR\desinstalar.exe"
    ExecWait '"$INSTDIR\desinstalar.exe" /S _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${FILES}\*"
  ${If} ${Errors} ; a silent setup goes on without what it can't write
    MessageBox MB_OK|MB_ICONSTOP "Nem todos os arquivos puderam ser gravados em $INSTDIR. Feche o que os usa e instale outra vez." /SD IDOK
    SetErrorLevel 4
    Quit
  ${EndIf}
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  CreateShortCut "$SMPROGRAMS\Orçamentos de Venda.lnk" "$INSTDIR\bin\zarim-inicio.exe" "" "$INSTDIR\bin\zarim.exe" 0 SW_SHOWNORMAL "" \
    "Monta, aprova, fecha e envia orçamentos de venda"
  ; The company's folder: what is there stays as it is.
  ${IfNot} ${FileExists} "c:\zarim\*.*"
    CreateDirectory "c:\zarim\config"
    CreateDirectory "c:\zarim\docs"
    CreateDirectory "c:\zarim\imagens"
    CreateDirectory "c:\zarim\imagens2"
  ${EndIf}
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "Zarim - Orçamentos de Venda"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" "$INSTDIR\bin\zarim.exe"
  WriteRegStr HKLM "${UNINSTALL}" "Publisher" "Zarim"
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegStr HKLM "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKLM "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
  SetShellVarContext all
  SetRegView 64
  !insertmacro RefuseWhileRunning
  Delete "$SMPROGRAMS\Orçamentos de Venda.lnk"
  ; By name: nothing goes that the setup didn't bring, wherever it was installed.
  !include "${REMOVAL}"
  Delete "$INSTDIR\desinstalar.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL}"
  MessageBox MB_OK|MB_ICONINFORMATION "O Zarim foi removido. A pasta c:\zarim, com configuração, documentos e imagens, ficou como estava; se não for mais usada, remova-a." /SD IDOK
SectionEnd
