# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The installer for Windows. docs/windows-installer.md says what it does; scripts/lib/make-installer calls makensis with:
#   VERSION       such as 1.0.0
#   GENERATED     the folder with files.nsh and the lists of files, by scripts/lib/installer_files.py
#   LICENSE_FILE, ICON, SIDE, CONFIGURATION  files
#   OUTPUT        the installer to make
#   COMPRESSOR    zlib or lzma

Unicode true
# The product has 64 bits only. Windows does not start an installer of this kind where the product would not run.
Target amd64-unicode
SetCompressor /SOLID ${COMPRESSOR}
ManifestDPIAware true
RequestExecutionLevel admin
# A file that cannot be written ends the installation. Skipping it would mix two versions.
AllowSkipFiles off
CRCCheck on
ShowInstDetails nevershow
ShowUninstDetails nevershow

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include TextFunc.nsh
!include WordFunc.nsh
!include WinVer.nsh
!include Sections.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\VxPrinterStatus"
!define APP_PATHS "Software\Microsoft\Windows\CurrentVersion\App Paths"
# 1 and 2 are those of NSIS: cancelled by the user, and failed in the middle.
!define EXIT_WRONG_OPTION 3
!define EXIT_OLD_WINDOWS 4
!define EXIT_NO_ADMINISTRATOR 5
!define EXIT_NEWER_INSTALLED 6
!define EXIT_IN_USE 7
!define EXIT_OTHER_FOLDER 8
!define EXIT_SERVICE 9
!define EXIT_NOT_REMOVED 10
!define EXIT_FOLDER 11

Name "VxPrinterStatus ${VERSION}"
OutFile "${OUTPUT}"
BrandingText "VxPrinterStatus ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "VxPrinterStatus"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "VxPrinterStatus Setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "The VxPrinterStatus authors"
VIAddVersionKey LegalCopyright "Copyright The VxPrinterStatus authors"

Var Message
Var ServiceState
Var ServiceProgram
Var ServiceRequest
Var WasRunning
Var List
Var ListFolder
Var Path
Var InUse
Var Kept
Var NotRemoved
Var InstalledVersion
Var Chosen
Var Configuration
Var Refused
Var RefusedWhat
Var RefusedWhere

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_CUSTOMFUNCTION_GUIINIT RefuseIfNecessary
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${LICENSE_FILE}"
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipFolderOfUpgrade
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

# The language of Windows is taken if it is one of these, otherwise the first.
!macro Language NAME
    !insertmacro MUI_LANGUAGE "${NAME}"
    !define TEXT_LANGUAGE ${LANG_${NAME}}
    !include "texts/${NAME}.nsh"
    !undef TEXT_LANGUAGE
!macroend
!macro Text NAME TEXT
    LangString ${NAME} ${TEXT_LANGUAGE} "${TEXT}"
!macroend
!insertmacro Language English
!insertmacro Language German
!insertmacro Language Spanish
!insertmacro Language French
!insertmacro Language Italian
!insertmacro Language Japanese
!insertmacro Language SimpChinese

!include "${GENERATED}/files.nsh"
!include shared.nsh

!macro ForEachComponent MACRO
    !insertmacro ${MACRO} library ${Library}
    !insertmacro ${MACRO} tools ${Tools}
    !insertmacro ${MACRO} window ${Window}
    !insertmacro ${MACRO} agent ${Agent}
    !insertmacro ${MACRO} documentation ${Documentation}
!macroend

!macro ForgetListUnlessChosen NAME SECTION
    ${IfNot} ${SectionIsSelected} ${SECTION}
        Delete "$INSTDIR\uninstall\${NAME}.ini"
    ${EndIf}
!macroend

# Sums the sizes in KB in $1.
!macro AddToTotal NAME SECTION
    ${If} ${SectionIsSelected} ${SECTION}
        SectionGetSize ${SECTION} $0
        IntOp $1 $1 + $0
        ${If} $Chosen != ""
            StrCpy $Chosen "$Chosen,"
        ${EndIf}
        StrCpy $Chosen "$Chosen${NAME}"
    ${EndIf}
!macroend

!macro SelectIfChosen NAME SECTION
    ClearErrors
    ${WordFind} ",$Chosen," "," "E/${NAME}" $0
    ${If} ${Errors}
        !insertmacro UnselectSection ${SECTION}
    ${Else}
        !insertmacro SelectSection ${SECTION}
    ${EndIf}
!macroend

!macro ReadListOf NAME SECTION
    ${If} $Kept == ""
    ${AndIf} ${SectionIsSelected} ${SECTION}
        ReadINIStr $Kept "$INSTDIR\uninstall\${NAME}.ini" files "$Path"
    ${EndIf}
!macroend

Section "-prepare"
    SectionIn RO
    Call Prepare
SectionEnd

Section "$(Library)" Library
    SectionIn RO
    !insertmacro InstallFilesOf_library
SectionEnd

Section "$(Tools)" Tools
    !insertmacro InstallFilesOf_tools
    !insertmacro RegisterProgram vxprintmon
    !insertmacro RegisterProgram rolldb
    !insertmacro RegisterProgram vxipc
SectionEnd

Section "$(Window)" Window
    !insertmacro InstallFilesOf_window
    !insertmacro RegisterProgram vxprintview
    # The folder in which a program that is started from the menu works.
    SetOutPath "$INSTDIR\bin"
    CreateShortcut "$SMPROGRAMS\$(WindowName).lnk" "$INSTDIR\bin\vxprintview.exe" "" "$INSTDIR\uninstall\icon.ico"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "StartMenuEntry" "$(WindowName)"
SectionEnd

Section /o "$(Agent)" Agent
    !insertmacro InstallFilesOf_agent
    !insertmacro RegisterProgram vxprintagent
SectionEnd

Section "$(Documentation)" Documentation
    !insertmacro InstallFilesOf_documentation
SectionEnd

Section "-finish"
    SectionIn RO
    Call Finish
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${Library} "$(AboutLibrary)"
!insertmacro MUI_DESCRIPTION_TEXT ${Tools} "$(AboutTools)"
!insertmacro MUI_DESCRIPTION_TEXT ${Window} "$(AboutWindow)"
!insertmacro MUI_DESCRIPTION_TEXT ${Agent} "$(AboutAgent)"
!insertmacro MUI_DESCRIPTION_TEXT ${Documentation} "$(AboutDocumentation)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

# Sets $Kept if a component that is installed now has the file $Path.
Function LookWhetherKept
    StrCpy $Kept ""
    !insertmacro ForEachComponent ReadListOf
FunctionEnd

!insertmacro SharedFunctions ""

# Everything that can refuse an upgrade, and what must happen before files are replaced.
Function Prepare
    ${If} ${Silent}
        Call RefuseIfNecessary
    ${EndIf}
    # The new lists, which include files that are there for another reason, and those of the installed version.
    InitPluginsDir
    SetOutPath "$PLUGINSDIR\new"
    File "${GENERATED}/*.ini"
    CreateDirectory "$PLUGINSDIR\old"
    ${If} ${FileExists} "$INSTDIR\uninstall\*.ini"
        CopyFiles /SILENT "$INSTDIR\uninstall\*.ini" "$PLUGINSDIR\old"
    ${EndIf}

    Call CheckFolder
    Call StopService
    ${If} $ServiceState != ""
    ${AndIf} $ServiceState <> 1
        !insertmacro Refuse "" ${EXIT_IN_USE} "$(ServiceNotStopped)"
    ${EndIf}
    again:
    StrCpy $InUse ""
    StrCpy $ListFolder "$PLUGINSDIR\old"
    Call FindFileInUse
    StrCpy $ListFolder "$PLUGINSDIR\new"
    Call FindFileInUse
    ${If} $InUse != ""
        StrCpy $0 $InUse
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(FileInUse)" /SD IDCANCEL IDRETRY again
        ${If} $WasRunning = 1
            Call StartService
        ${EndIf}
        ${If} ${Silent}
            StrCpy $0 $InUse
            !insertmacro Refuse "" ${EXIT_IN_USE} "$(FileInUse)"
        ${EndIf}
        SetErrorLevel ${EXIT_IN_USE}
        Quit
    ${EndIf}

    ${IfNot} ${SectionIsSelected} ${Agent}
        Call RemoveService
        ${If} $0 != ""
            ${If} $WasRunning = 1
                Push $0
                Call StartService
                Pop $0
            ${EndIf}
            !insertmacro Refuse "" ${EXIT_SERVICE} "$(ServiceNotRemoved)"
        ${EndIf}
    ${EndIf}
    Call RemoveEntries
FunctionEnd

# Refuses a folder that cannot be written, or a drive that is too full, before anything is changed.
Function CheckFolder
    StrCpy $1 0
    StrCpy $2 $Chosen
    !insertmacro ForEachComponent AddToTotal
    StrCpy $Chosen $2
    ${If} $InstalledVersion != ""
        # An upgrade replaces one file after the other.
        ReadRegDWORD $0 HKLM "${UNINSTALL_KEY}" "EstimatedSize"
        IntOp $1 $1 - $0
    ${EndIf}
    StrCpy $2 $INSTDIR
    ${DoUntil} ${FileExists} "$2\*.*"
        ${GetParent} $2 $2
        ${If} $2 == ""
            ${ExitDo}
        ${EndIf}
    ${Loop}
    System::Call 'kernel32::GetDiskFreeSpaceExW(w "$2\", *l .r3, p 0, p 0) i .r4'
    ${If} $4 <> 0
        System::Int64Op $3 / 1024
        Pop $3
        ${If} $3 L< $1
            StrCpy $0 $INSTDIR
            IntOp $1 $1 / 1024
            IntOp $1 $1 + 1
            !insertmacro Refuse "" ${EXIT_FOLDER} "$(NoRoom)"
        ${EndIf}
    ${EndIf}

    StrCpy $2 ""
    ${IfNot} ${FileExists} "$INSTDIR\*.*"
        StrCpy $2 $INSTDIR
        CreateDirectory "$INSTDIR"
    ${EndIf}
    ClearErrors
    FileOpen $1 "$INSTDIR\uninstall.new" w
    ${If} ${Errors}
        StrCpy $0 $INSTDIR
        !insertmacro Refuse "" ${EXIT_FOLDER} "$(NotWritable)"
    ${EndIf}
    FileClose $1
    Delete "$INSTDIR\uninstall.new"
    ${If} $2 != ""
        RMDir "$2"
    ${EndIf}
FunctionEnd

# Remembers why to refuse: $0 is what, $1 where.
!macro RefuseLater REASON
    StrCpy $Refused ${REASON}
    StrCpy $RefusedWhat $0
    StrCpy $RefusedWhere $1
!macroend

# The texts get the language that .onInit chooses only after it, so what is refused here is said in RefuseIfNecessary,
# which is called before the first page or, when silent, before anything is installed.
Function .onInit
    SetRegView 64
    SetShellVarContext all
    Call ReadOptions
    ${If} $Refused == ""
        Call LookAtInstalled
    ${EndIf}
    ${If} $Chosen != ""
        StrCpy $Chosen "library,$Chosen"
        !insertmacro ForEachComponent SelectIfChosen
    ${EndIf}
FunctionEnd

Function RefuseIfNecessary
    !insertmacro RequireAdministrator ""
    ${IfNot} ${AtLeastWin10}
        !insertmacro Refuse "" ${EXIT_OLD_WINDOWS} "$(OldWindows)"
    ${EndIf}
    StrCpy $0 $RefusedWhat
    StrCpy $1 $RefusedWhere
    ${Select} $Refused
    ${Case} "option"
        !insertmacro Refuse "" ${EXIT_WRONG_OPTION} "$(WrongOption)"
    ${Case} "language"
        !insertmacro Refuse "" ${EXIT_WRONG_OPTION} "$(UnknownLanguage)"
    ${Case} "component"
        !insertmacro Refuse "" ${EXIT_WRONG_OPTION} "$(UnknownComponent)"
    ${Case} "newer"
        !insertmacro Refuse "" ${EXIT_NEWER_INSTALLED} "$(NewerInstalled)"
    ${Case} "folder"
        !insertmacro Refuse "" ${EXIT_OTHER_FOLDER} "$(OtherFolder)"
    ${EndSelect}
FunctionEnd

# Everything on the command line has to be known: a misspelt option would install something else than was wanted.
# NSIS itself takes /D= off.
Function ReadOptions
    StrCpy $Chosen ""
    StrCpy $Kept "" # whether an older version may replace a newer one
    StrCpy $Refused ""
    ${GetParameters} $R0
    ${DoWhile} $Refused == ""
        StrCpy $0 $R0 1
        ${If} $0 == ""
            ${Break}
        ${ElseIf} $0 == " "
            StrCpy $R0 $R0 "" 1
            ${Continue}
        ${EndIf}
        ${WordFind} "$R0" " " "+1" $0
        StrLen $1 $0
        StrCpy $R0 $R0 "" $1
        StrCpy $1 $0 10
        StrCpy $2 $0 12
        ${If} $0 == "/S"
        ${OrIf} $0 == "/NCRC"
            # NSIS reads these.
        ${ElseIf} $0 == "/ALLOWDOWNGRADE"
            StrCpy $Kept 1
        ${ElseIf} $1 == "/LANGUAGE="
            StrCpy $0 $0 "" 10
            Call ChooseLanguage
        ${ElseIf} $2 == "/COMPONENTS="
            StrCpy $0 $0 "" 12
            Call CheckComponents
        ${Else}
            !insertmacro RefuseLater option
            Return
        ${EndIf}
    ${Loop}
FunctionEnd

Function ChooseLanguage
    ${If} $0 == "en"
        StrCpy $LANGUAGE ${LANG_ENGLISH}
    ${ElseIf} $0 == "de"
        StrCpy $LANGUAGE ${LANG_GERMAN}
    ${ElseIf} $0 == "es"
        StrCpy $LANGUAGE ${LANG_SPANISH}
    ${ElseIf} $0 == "fr"
        StrCpy $LANGUAGE ${LANG_FRENCH}
    ${ElseIf} $0 == "it"
        StrCpy $LANGUAGE ${LANG_ITALIAN}
    ${ElseIf} $0 == "ja"
        StrCpy $LANGUAGE ${LANG_JAPANESE}
    ${ElseIf} $0 == "zh_CN"
        StrCpy $LANGUAGE ${LANG_SIMPCHINESE}
    ${Else}
        !insertmacro RefuseLater language
        Return
    ${EndIf}
FunctionEnd

# Takes the names between the commas of $0.
Function CheckComponents
    StrCpy $Chosen $0
    StrCpy $1 0
    ${Do}
        IntOp $1 $1 + 1
        ClearErrors
        ${WordFind} ",$Chosen," "," "E+$1" $0
        ${If} ${Errors}
            ${Break}
        ${EndIf}
        ClearErrors
        ${WordFind} ",library,tools,window,agent,documentation," "," "E/$0" $2
        ${If} ${Errors}
            !insertmacro RefuseLater component
            Return
        ${EndIf}
    ${Loop}
    ${If} $1 = 1
        StrCpy $0 $Chosen
        !insertmacro RefuseLater component
        Return
    ${EndIf}
FunctionEnd

# An upgrade goes where the installed version is and, unless told otherwise, has its components.
Function LookAtInstalled
    StrCpy $InstalledVersion ""
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $1 != ""
    ${AndIf} ${FileExists} "$1\uninstall.exe"
        ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "DisplayVersion"
        StrCpy $InstalledVersion $0
        ${VersionCompare} "$0" "${VERSION}" $2
        ${If} $2 = 1
        ${AndIf} $Kept == ""
            !insertmacro RefuseLater newer
            Return
        ${EndIf}
        ${If} $INSTDIR != ""
        ${AndIf} $INSTDIR != $1
            !insertmacro RefuseLater folder
            Return
        ${EndIf}
        StrCpy $INSTDIR $1
        ${If} $Chosen == ""
            ReadRegStr $Chosen HKLM "${UNINSTALL_KEY}" "Components"
        ${EndIf}
    ${ElseIf} $INSTDIR == ""
        StrCpy $INSTDIR "$PROGRAMFILES64\VxPrinterStatus"
    ${EndIf}
FunctionEnd

# What is the same for all components, and what needs them complete.
Function Finish
    SetOutPath "$INSTDIR\uninstall"
    File "/oname=icon.ico" "${ICON}"
    File "/oname=agent.json" "${CONFIGURATION}"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    !insertmacro ForEachComponent ForgetListUnlessChosen
    StrCpy $NotRemoved ""
    StrCpy $ListFolder "$PLUGINSDIR\old"
    Call RemoveListed

    StrCpy $1 0
    StrCpy $Chosen ""
    !insertmacro ForEachComponent AddToTotal
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "VxPrinterStatus"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\uninstall\icon.ico"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "The VxPrinterStatus authors"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Components" "$Chosen"

    ${If} ${SectionIsSelected} ${Agent}
        Call SetUpService
    ${EndIf}
    ${If} $NotRemoved != ""
        StrCpy $0 $NotRemoved
        StrCpy $Message "$(NotRemoved)"
        SetErrorLevel ${EXIT_NOT_REMOVED}
        Call Tell
    ${EndIf}
FunctionEnd

Function SkipFolderOfUpgrade
    ${If} $InstalledVersion != ""
        Abort
    ${EndIf}
FunctionEnd

Function .onInstFailed
    ${If} $WasRunning = 1
        Call StartService
    ${EndIf}
FunctionEnd

# Registers the agent's service unless it is registered. It is started if it ran before, or if somebody has put its
# configuration there beforehand. With the example alone it would publish nothing of use.
Function SetUpService
    StrCpy $ServiceRequest ""
    Call LookAtService
    ${If} $ServiceState == ""
        Call MakeConfiguration
        nsExec::ExecToStack '"$INSTDIR\bin\vxprintagent.exe" install --config "$Configuration"'
        Pop $1
        Pop $0
        ${If} $1 != 0
            SetErrorLevel ${EXIT_SERVICE}
            StrCpy $Message "$(ServiceNotInstalled)"
            Call Tell
            Return
        ${EndIf}
    ${EndIf}
    ${If} $WasRunning = 1
        Call StartService
        ${If} $ServiceState <> 4
            SetErrorLevel ${EXIT_SERVICE}
            StrCpy $Message "$(ServiceNotStarted)"
            Call Tell
        ${EndIf}
    ${EndIf}
FunctionEnd

# The folder gets the rights that the agent requires: only the system and administrators may change it, whose numbers
# are the same in every language of Windows. A folder that exists has the rights that somebody has chosen.
Function MakeConfiguration
    StrCpy $Configuration "$APPDATA\VxPrinterStatus\agent.json"
    ${IfNot} ${FileExists} "$APPDATA\VxPrinterStatus\*.*"
        CreateDirectory "$APPDATA\VxPrinterStatus"
        nsExec::Exec 'icacls "$APPDATA\VxPrinterStatus" /setowner *S-1-5-32-544'
        Pop $0
        nsExec::Exec 'icacls "$APPDATA\VxPrinterStatus" /inheritance:r /grant:r *S-1-5-18:(OI)(CI)F *S-1-5-32-544:(OI)(CI)F'
        Pop $0
    ${EndIf}
    ${If} ${FileExists} "$Configuration"
        StrCpy $WasRunning 1
    ${Else}
        CopyFiles /SILENT "$INSTDIR\uninstall\agent.json" "$Configuration"
        nsExec::Exec 'icacls "$Configuration" /setowner *S-1-5-32-544'
        Pop $0
        StrCpy $0 $Configuration
        DetailPrint "$(EditConfiguration)"
    ${EndIf}
FunctionEnd

!include uninstaller.nsh
