; The installer for Windows: for one user, without rights of an administrator; also the update that the program fetches
; itself.   makensis -DVERSION=1.2.3 -DFOLDER=FOLDER -DSIZE=KILOBYTES -DTARGET=FILE installer.nsi
; FOLDER holds what is installed. The words of the command line are Windows' usual ones, /S for silence and /D=FOLDER,
; and /p=FOLDER, which renews that folder.
Target amd64-unicode
SetCompressor /SOLID lzma
SetCompressorDictSize 64
ManifestDPIAware true
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define NAME "Zandolin Lomert"
!define DEALS "Spellen en lessen"
!define UNINSTALLER "Verwijder Zandolin.exe"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define CLASSES "Software\Classes"
!define PATIENCE 30  ; seconds
!define SHARING_VIOLATION 32

Name "${NAME}"
OutFile "${TARGET}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1043 "ProductName" "${NAME}"
VIAddVersionKey /LANG=1043 "FileDescription" "${NAME} installeren"
VIAddVersionKey /LANG=1043 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1043 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1043 "LegalCopyright" "Zandolin"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_ABORTWARNING
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdate
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdate
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdate
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\zandolin.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Dutch"

Var Update  ; "" or the folder that is renewed

; Find HAYSTACK NEEDLE: where it stands in the other, in any case of its letters; -1 if it does not. In $R0.
!macro Find haystack needle
    StrLen $R1 `${haystack}`
    StrLen $R2 `${needle}`
    StrCpy $R0 0
    ${Do}
        ${If} $R0 >= $R1
            StrCpy $R0 -1
            ${ExitDo}
        ${EndIf}
        StrCpy $R3 `${haystack}` $R2 $R0
        ${If} $R3 == `${needle}`
            ${ExitDo}
        ${EndIf}
        IntOp $R0 $R0 + 1
    ${Loop}
!macroend

; The folder behind /p=, in $Update. The program gives it as one word in quotes that hold the marker too; quotes around
; the folder alone, no quotes and a separator at the end are understood as well.
Function ReadUpdate
    StrCpy $Update ""
    ${GetParameters} $0
    !insertmacro Find "$0" "/p="
    ${If} $R0 < 0
        Return
    ${EndIf}
    StrCpy $1 ""
    ${If} $R0 > 0
        IntOp $2 $R0 - 1
        StrCpy $1 "$0" 1 $2
    ${EndIf}
    IntOp $R0 $R0 + 3
    StrCpy $2 "$0" "" $R0
    StrCpy $3 "$2" 1
    ${If} $3 == '"'
        StrCpy $2 "$2" "" 1
        StrCpy $1 '"'
    ${EndIf}
    ${If} $1 == '"'
        !insertmacro Find "$2" '"'
    ${Else}
        !insertmacro Find "$2" " /"
    ${EndIf}
    ${If} $R0 >= 0
        StrCpy $2 "$2" $R0
    ${EndIf}
    ${Do}  ; what may stand behind it, but for the separator of a root
        StrCpy $1 "$2" 1 -1
        StrLen $3 "$2"
        ${If} $1 != " "
        ${AndIf} $1 != "\"
        ${OrIf} $3 <= 3
            ${ExitDo}
        ${EndIf}
        StrCpy $2 "$2" -1
    ${Loop}
    StrCpy $Update "$2"
FunctionEnd

Function SkipInUpdate
    ${If} $Update != ""
        Abort
    ${EndIf}
FunctionEnd

; Waits until none of the programs in the folder runs any more; asks after that. In silence it gives up.
!macro WaitForPrograms un
Function ${un}WaitForPrograms
    StrCpy $0 0
    ${Do}
        StrCpy $1 ""
        Push "$INSTDIR\zandolin.exe"
        Call ${un}SeeWhetherItRuns
        Push "$INSTDIR\zandolin_deals.exe"
        Call ${un}SeeWhetherItRuns
        Push "$INSTDIR\zandolin_deals_desktop.exe"
        Call ${un}SeeWhetherItRuns
        ${If} $1 == ""
            Return
        ${EndIf}
        ${If} $0 = 0
            DetailPrint "Wachten tot $1 is gesloten..."
        ${EndIf}
        ${If} $0 >= ${PATIENCE}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$1 is nog open.$\r$\n$\r$\nSluit het programma en kies Opnieuw. Met Annuleren blijft alles zoals het was." /SD IDCANCEL IDRETRY again
            SetErrorLevel 2
            Abort "Er is niets veranderd: $1 is nog open."
            again:
            StrCpy $0 0
        ${EndIf}
        Sleep 1000
        IntOp $0 $0 + 1
    ${Loop}
FunctionEnd

; A program that runs cannot be written. $1 becomes its name then.
Function ${un}SeeWhetherItRuns
    Exch $2
    ${If} ${FileExists} "$2"
        System::Call 'kernel32::CreateFileW(w r2, i 0x40000000, i 0, p 0, i 3, i 0, p 0) p .r3 ?e'
        Pop $4
        ${If} $3 != -1
            System::Call 'kernel32::CloseHandle(p r3)'
        ${ElseIf} $4 = ${SHARING_VIOLATION}
            ${GetFileName} "$2" $1
        ${EndIf}
    ${EndIf}
    Pop $2
FunctionEnd
!macroend
!insertmacro WaitForPrograms ""
!insertmacro WaitForPrograms "un."

Function .onInit
    Call ReadUpdate
    ${If} $Update != ""
        StrCpy $INSTDIR "$Update"
        SectionGetFlags 1 $0  ; the sample deals, which the user may have deleted
        IntOp $0 $0 & 0xFFFFFFFE
        SectionSetFlags 1 $0
    ${EndIf}
FunctionEnd

; Before anything is changed.
Function SeeWhetherItCanBeWritten
    ClearErrors
    CreateDirectory "$INSTDIR"
    GetTempFileName $0 "$INSTDIR"
    ${IfNot} ${Errors}
    ${AndIf} ${FileExists} "$0"
        Delete "$0"
        Return
    ${EndIf}
    MessageBox MB_OK|MB_ICONSTOP "In de map $INSTDIR kan niet worden geschreven. Kies een andere map; er is niets veranderd." /SD IDOK
    SetErrorLevel 3
    Abort "In de map kan niet worden geschreven."
FunctionEnd

Section "!Programma's" Programs
    SectionIn RO
    Call SeeWhetherItCanBeWritten
    Call WaitForPrograms
    SetOutPath "$INSTDIR"
    SetOverwrite on
    File "${FOLDER}\*.exe"
    File "${FOLDER}\help.chm"
    File "${FOLDER}\handleiding.pdf"
    SetOutPath "$INSTDIR\help"
    File /r "${FOLDER}\help\*"
    SetOutPath "$INSTDIR\licenties"
    File /r "${FOLDER}\licenties\*"
    SetOutPath "$INSTDIR"
    ; A folder that came from the archive is renewed, and nothing else of the machine is touched.
    ${If} $Update == ""
    ${OrIf} ${FileExists} "$INSTDIR\${UNINSTALLER}"
        Call Register
    ${EndIf}
SectionEnd

Section "Voorbeeldspellen" Samples
    SetOverwrite off
    SetOutPath "$INSTDIR\aftavrin"
    File /r "${FOLDER}\aftavrin\*"
    ; A companion that is installed goes first.
    ${IfNot} ${FileExists} "$PROGRAMFILES32\RVLX\*"
    ${AndIfNot} ${FileExists} "$PROGRAMFILES64\RVLX\*"
        SetOutPath "$INSTDIR\RVLX"
        File /r "${FOLDER}\RVLX\*"
        SetOutPath "$INSTDIR"
        File "${FOLDER}\standaardtavrin.ini"
    ${EndIf}
    SetOutPath "$INSTDIR"
SectionEnd

Function Register
    WriteUninstaller "$INSTDIR\${UNINSTALLER}"
    CreateDirectory "$SMPROGRAMS\${NAME}"
    CreateShortcut "$SMPROGRAMS\${NAME}\${NAME}.lnk" "$INSTDIR\zandolin.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}\${DEALS}.lnk" "$INSTDIR\zandolin_deals_desktop.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}\Handleiding.lnk" "$INSTDIR\help.chm"
    WriteRegStr HKCU "${CLASSES}\Zandolin.Deals" "" "Bridgespellen"
    WriteRegStr HKCU "${CLASSES}\Zandolin.Deals\DefaultIcon" "" "$INSTDIR\zandolin.exe,0"
    WriteRegStr HKCU "${CLASSES}\Zandolin.Deals\shell\open\command" "" '"$INSTDIR\zandolin_deals_desktop.exe" "%1"'
    !macro Ending ending
        WriteRegStr HKCU "${CLASSES}\${ending}\OpenWithProgids" "Zandolin.Deals" ""
        ReadRegStr $0 HKCU "${CLASSES}\${ending}" ""
        ${If} $0 == ""  ; nobody else's
            WriteRegStr HKCU "${CLASSES}\${ending}" "" "Zandolin.Deals"
        ${EndIf}
    !macroend
    !insertmacro Ending ".pbn"
    !insertmacro Ending ".lin"
    WriteRegStr HKCU "${ENTRY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\zandolin.exe,0"
    WriteRegStr HKCU "${ENTRY}" "Publisher" "Zandolin"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
    WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
    WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
FunctionEnd

LangString ProgramsText ${LANG_DUTCH} "Zandolin Lomert, het programma voor spellen en lessen, de handleiding en de licenties."
LangString SamplesText ${LANG_DUTCH} "Vijf lessen om na te spelen en negen spellen om op te nemen. Wat er al staat, blijft."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${Programs} $(ProgramsText)
    !insertmacro MUI_DESCRIPTION_TEXT ${Samples} $(SamplesText)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Deals and settings stay, and with them the folder.
Section "Uninstall"
    Call un.WaitForPrograms
    Delete "$INSTDIR\zandolin.exe"
    Delete "$INSTDIR\zandolin_deals.exe"
    Delete "$INSTDIR\zandolin_deals_desktop.exe"
    Delete "$INSTDIR\help.chm"
    Delete "$INSTDIR\handleiding.pdf"
    Delete "$INSTDIR\actueleversie.txt"
    Delete "$INSTDIR\Update\tavrinupdate.exe"
    RMDir "$INSTDIR\Update"
    RMDir /r "$INSTDIR\help"
    RMDir /r "$INSTDIR\licenties"
    Delete "$INSTDIR\${UNINSTALLER}"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}\*.lnk"
    RMDir "$SMPROGRAMS\${NAME}"
    !macro NoEnding ending
        DeleteRegValue HKCU "${CLASSES}\${ending}\OpenWithProgids" "Zandolin.Deals"
        ReadRegStr $0 HKCU "${CLASSES}\${ending}" ""
        ${If} $0 == "Zandolin.Deals"
            DeleteRegValue HKCU "${CLASSES}\${ending}" ""
        ${EndIf}
        DeleteRegKey /ifempty HKCU "${CLASSES}\${ending}\OpenWithProgids"
        DeleteRegKey /ifempty HKCU "${CLASSES}\${ending}"
    !macroend
    !insertmacro NoEnding ".pbn"
    !insertmacro NoEnding ".lin"
    DeleteRegKey HKCU "${CLASSES}\Zandolin.Deals"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd
