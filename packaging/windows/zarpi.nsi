; The installer: for one user, without an administrator, in Spanish. Given by scripts/package: VERSION, STAGE (the folder that holds
; what is installed), UNINSTALL (a list that removes just that) and OUTPUT.
;   zarpi.exe /S                      silent
;   desinstalar.exe /S [/partidas]    silent; /partidas takes the player's records away too

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win7 Win8 Win8.1 Win10

!define NAME "El juego de Zarpi"
!define PROGRAM "$INSTDIR\bin\juego-zarpi.exe"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zarpi"
; Where the game keeps what it stores, see GameFolder.
!define RECORDS "$LOCALAPPDATA\zarpi"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Zarpi"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"

VIProductVersion "${VERSION}.0.0"
VIFileVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=3082 "ProductName" "${NAME}"
VIAddVersionKey /LANG=3082 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "FileDescription" "Instalador de ${NAME}"
VIAddVersionKey /LANG=3082 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "LegalCopyright" "Todos los derechos reservados"

!include MUI2.nsh
!include FileFunc.nsh
!include Sections.nsh
!insertmacro GetParameters
!insertmacro GetOptions
!insertmacro GetSize

!define MUI_ICON "${STAGE}\zarpi.ico"
!define MUI_UNICON "${STAGE}\zarpi.ico"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"

; A program that runs keeps its file: nothing is changed before it is closed. Exit status 2 where there is nobody to ask.
!macro WAIT_FOR_THE_END_OF_THE_GAME
    again:
    IfFileExists "${PROGRAM}" 0 free
    ClearErrors
    FileOpen $0 "${PROGRAM}" a
    IfErrors 0 closed
    SetErrorLevel 2
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "El juego está abierto. Ciérralo y pulsa Reintentar." /SD IDCANCEL IDRETRY again
    Quit
    closed:
    FileClose $0
    free:
    SetErrorLevel 0
!macroend

Section "${NAME}" Game
    SectionIn RO
    !insertmacro WAIT_FOR_THE_END_OF_THE_GAME
    ; An older version goes first, so that no file of it stays; records are not its own and stay.
    IfFileExists "$INSTDIR\desinstalar.exe" 0 +2
    ExecWait '"$INSTDIR\desinstalar.exe" /S _?=$INSTDIR'

    SetOutPath "$INSTDIR"
    File /r "${STAGE}\*"
    WriteUninstaller "$INSTDIR\desinstalar.exe"
    SetOutPath "$INSTDIR\bin"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "${PROGRAM}"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${ENTRY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "${PROGRAM}"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
    WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
SectionEnd

Section "Icono en el escritorio" DesktopIcon
    CreateShortcut "$DESKTOP\${NAME}.lnk" "${PROGRAM}"
SectionEnd

; An icon that the player has thrown away does not come back with a new version.
Function .onInit
    IfFileExists "${PROGRAM}" 0 first
    IfFileExists "$DESKTOP\${NAME}.lnk" first
    !insertmacro UnselectSection ${DesktopIcon}
    first:
FunctionEnd

Section "un.${NAME}" UnGame
    SectionIn RO
    !insertmacro WAIT_FOR_THE_END_OF_THE_GAME
    Delete "$DESKTOP\${NAME}.lnk"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    !include "${UNINSTALL}"
    Delete "$INSTDIR\desinstalar.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd

Section /o "un.Partidas guardadas y cuadros de honor" UnRecords
    RMDir /r "${RECORDS}"
SectionEnd

LangString AboutGame ${LANG_SPANISH} "El juego, con su entrada en el menú Inicio."
LangString AboutIcon ${LANG_SPANISH} "Un icono para abrir el juego desde el escritorio."
LangString AboutUninstall ${LANG_SPANISH} "Quita el juego. Tus partidas se quedan."
LangString AboutRecords ${LANG_SPANISH} "Borra también tus partidas guardadas, los cuadros de honor y las últimas partidas, para siempre."

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${Game} $(AboutGame)
    !insertmacro MUI_DESCRIPTION_TEXT ${DesktopIcon} $(AboutIcon)
!insertmacro MUI_FUNCTION_DESCRIPTION_END
!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${UnGame} $(AboutUninstall)
    !insertmacro MUI_DESCRIPTION_TEXT ${UnRecords} $(AboutRecords)
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END

Function un.onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/partidas" $1
    IfErrors kept
    !insertmacro SelectSection ${UnRecords}
    kept:
FunctionEnd
