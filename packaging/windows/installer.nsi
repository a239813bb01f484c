; The installer, for all users of a machine. build.sh says what it is made of:
;   PRODUCT         names and version
;   FOLDER          what is installed
;   UNINSTALL_LIST  what takes exactly that away
;   OUTPUT          the file to write
; Arguments of the installer: /S (silent), /NOFIREWALL, /D=FOLDER.
Target amd64-unicode
Unicode true
!include "${PRODUCT}"
!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"
!include "Sections.nsh"
!include "WinVer.nsh"
!include "texts.nsh"

!define PROGRAM "Quivera.exe"
!define SIMULATOR "kelm-simulator.exe"
!define RULE "${QUIVERA_NAME}: answers of units"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${QUIVERA_NAME}"

Name "${QUIVERA_NAME}"
OutFile "${OUTPUT}"
SetCompressor /SOLID lzma
RequestExecutionLevel admin
ManifestDPIAware true
ManifestSupportedOS Win10
InstallDir "$PROGRAMFILES64\${QUIVERA_VENDOR}\${QUIVERA_NAME}"
; An upgrade goes where the program is.
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${QUIVERA_VERSION}"
VIFileVersion "${QUIVERA_VERSION}"
VIAddVersionKey /LANG=0 "ProductName" "${QUIVERA_NAME}"
VIAddVersionKey /LANG=0 "CompanyName" "${QUIVERA_VENDOR}"
VIAddVersionKey /LANG=0 "FileDescription" "${QUIVERA_NAME} setup"
VIAddVersionKey /LANG=0 "FileVersion" "${QUIVERA_VERSION}"
VIAddVersionKey /LANG=0 "ProductVersion" "${QUIVERA_VERSION}"
VIAddVersionKey /LANG=0 "LegalCopyright" "Copyright ${QUIVERA_COPYRIGHT}"

!define MUI_ICON "${QUIVERA_ICON}"
!define MUI_UNICON "${QUIVERA_ICON}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
; Not by the installer itself: the program is not to run with an administrator's rights.
!define MUI_FINISHPAGE_RUN "$WINDIR\explorer.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS "$\"$SMPROGRAMS\${QUIVERA_NAME}.lnk$\""
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro quiveraLanguages

; Whether a program in $INSTDIR runs: then $R1 is 1. A file that runs cannot be opened for writing.
!macro noteWhetherRunning program
    ${If} ${FileExists} "$INSTDIR\${program}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${program}" a
        ${If} ${Errors}
            StrCpy $R1 1
        ${Else}
            FileClose $0
        ${EndIf}
    ${EndIf}
!macroend

; Returns when nothing in $INSTDIR runs any more, or ends the installer.
!macro closeProgramsFunction un
Function ${un}findRunning
    StrCpy $R1 0
    !insertmacro noteWhetherRunning "${PROGRAM}"
    !insertmacro noteWhetherRunning "${SIMULATOR}"
FunctionEnd

Function ${un}closePrograms
    Call ${un}findRunning
    ${If} $R1 == 0
        Return
    ${EndIf}
    MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION "$(textProgramRuns)" /SD IDOK IDOK close
    SetErrorLevel 1
    Quit
    close:
    ; First as a user would close its window, then by force.
    nsExec::Exec 'taskkill /IM ${PROGRAM}'
    Pop $0
    ${For} $R2 1 40
        ${If} $R2 == 20
            nsExec::Exec 'taskkill /F /IM ${PROGRAM}'
            Pop $0
        ${EndIf}
        ; It has no window.
        ${If} $R2 == 1
            nsExec::Exec 'taskkill /F /IM ${SIMULATOR}'
            Pop $0
        ${EndIf}
        Sleep 250
        Call ${un}findRunning
        ${If} $R1 == 0
            Return
        ${EndIf}
    ${Next}
    MessageBox MB_OK|MB_ICONSTOP "$(textProgramStays)" /SD IDOK
    SetErrorLevel 1
    Quit
FunctionEnd
!macroend
!insertmacro closeProgramsFunction ""
!insertmacro closeProgramsFunction "un."

; Takes the version that is installed away, so that no file of it stays behind that this one no longer has. Its
; choice of the firewall rule has been read before; the user's data stays.
Function removeEarlier
    ReadRegStr $R0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $R0 == ""
    ${OrIfNot} ${FileExists} "$R0\uninstall.exe"
        Return
    ${EndIf}
    ; Where it lies, so that it can be waited for.
    ExecWait '"$R0\uninstall.exe" /S /KEEPDATA _?=$R0'
    Delete "$R0\uninstall.exe"
    RMDir "$R0"
FunctionEnd

Section "$(nameProgram)" sectionProgram
    SectionIn RO
    SetShellVarContext all
    Call closePrograms
    Call removeEarlier
    SetOutPath "$INSTDIR"
    File /r /x ${SIMULATOR} "${FOLDER}\*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "$SMPROGRAMS\${QUIVERA_NAME}.lnk" "$INSTDIR\${PROGRAM}" "" "" "" "" "" "${QUIVERA_SUMMARY}"

    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${QUIVERA_NAME}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${QUIVERA_VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "${QUIVERA_VENDOR}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Comments" "${QUIVERA_SUMMARY}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "FirewallRule" 0
SectionEnd

Section "$(nameSimulator)" sectionSimulator
    SetOutPath "$INSTDIR"
    File "${FOLDER}\${SIMULATOR}"
SectionEnd

; Units answer from ports of their own to the port that the program asked from; both are other ones each time. They are
; always on the same network.
Section "$(nameFirewall)" sectionFirewall
    nsExec::ExecToLog 'netsh advfirewall firewall add rule name="${RULE}" dir=in action=allow \
        program="$INSTDIR\${PROGRAM}" protocol=UDP remoteip=localsubnet profile=any enable=yes'
    Pop $0
    ${If} $0 == 0
        WriteRegDWORD HKLM "${UNINSTALL_KEY}" "FirewallRule" 1
    ${Else}
        DetailPrint "$(textFirewallFailed)"
        MessageBox MB_OK|MB_ICONEXCLAMATION "$(textFirewallFailed)" /SD IDOK
    ${EndIf}
SectionEnd

Section -size
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionProgram} "$(aboutProgram)"
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionSimulator} "$(aboutSimulator)"
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionFirewall} "$(aboutFirewall)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
    SetRegView 64
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "$(textWindowsTooOld)" /SD IDOK
        SetErrorLevel 1
        Quit
    ${EndIf}
    ; What was chosen when it was installed before is chosen again.
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != ""
        ReadRegDWORD $1 HKLM "${UNINSTALL_KEY}" "FirewallRule"
        ${If} $1 != 1
            !insertmacro UnselectSection ${sectionFirewall}
        ${EndIf}
        ${IfNot} ${FileExists} "$0\${SIMULATOR}"
            !insertmacro UnselectSection ${sectionSimulator}
        ${EndIf}
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/NOFIREWALL" $1
    ${IfNot} ${Errors}
        !insertmacro UnselectSection ${sectionFirewall}
    ${EndIf}
FunctionEnd

Section "un.$(nameProgram)" unSectionProgram
    SectionIn RO
    SetShellVarContext all
    Call un.closePrograms
    ReadRegDWORD $0 HKLM "${UNINSTALL_KEY}" "FirewallRule"
    ${If} $0 == 1
        nsExec::ExecToLog 'netsh advfirewall firewall delete rule name="${RULE}" program="$INSTDIR\${PROGRAM}"'
        Pop $0
    ${EndIf}
    Delete "$SMPROGRAMS\${QUIVERA_NAME}.lnk"
    ; Only what was installed: a user may have chosen a folder that holds other things.
    !include "${UNINSTALL_LIST}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    ; The maker's other programs may lie beside it.
    RMDir "$PROGRAMFILES64\${QUIVERA_VENDOR}"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd

Section "un.$(nameData)" unSectionData
    SetShellVarContext current
    Delete "$LOCALAPPDATA\${QUIVERA_VENDOR}\QuiveraApp\QuiveraApp*.log"
    Delete "$LOCALAPPDATA\${QUIVERA_VENDOR}\QuiveraApp\QuiveraApp-crash-*.txt"
    RMDir "$LOCALAPPDATA\${QUIVERA_VENDOR}\QuiveraApp"
    ; Kept there by Qt, under the name that the program has in it.
    RMDir /r "$LOCALAPPDATA\${QUIVERA_VENDOR}\cache"
    RMDir "$LOCALAPPDATA\${QUIVERA_VENDOR}"
    ; Qt's programs share this one; another of them just fills it again.
    RMDir /r "$LOCALAPPDATA\cache\qtshadercache-x86_64-little_endian-llp64"
    RMDir "$LOCALAPPDATA\cache"
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${unSectionProgram} "$(aboutProgram)"
    !insertmacro MUI_DESCRIPTION_TEXT ${unSectionData} "$(aboutData)"
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END

Function un.onInit
    SetRegView 64
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/KEEPDATA" $1
    ${IfNot} ${Errors}
        !insertmacro UnselectSection ${unSectionData}
    ${EndIf}
FunctionEnd
