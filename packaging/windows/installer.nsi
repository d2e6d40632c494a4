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
# A file that cannot be written ends the installation (.onInstFailed). Skipping it would mix two versions.
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
# The new files are written here, in the folder of the installation and so on its disk, where they can take the place of
# the old ones without being copied:
#   new    the files of the components, until they take their places
#   old    what was in these places
#   lists  the lists of the new files, from the first file that takes its place to the last. If this folder is there,
#          the installation is half done, and everything in it can be put back.
!define TEMPORARY "$INSTDIR\VxPrinterStatus-setup.tmp"

# 1 and 2 are those of NSIS: cancelled by the user, and failed in the middle.
!define EXIT_FAILED 2
!define EXIT_WRONG_OPTION 3
!define EXIT_OLD_WINDOWS 4
!define EXIT_NO_ADMINISTRATOR 5
!define EXIT_NEWER_INSTALLED 6
!define EXIT_IN_USE 7
!define EXIT_OTHER_FOLDER 8
!define EXIT_SERVICE 9
!define EXIT_NOT_REMOVED 10
!define EXIT_FOLDER 11
!define EXIT_FILES_OF_OTHERS 12
!define EXIT_NOT_PUT_BACK 13
!define EXIT_SERVICE_NOT_STARTED 14

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
Var ExistingFolder
Var Ours
Var Action
Var ListName
Var SearchHandle
Var Failed
Var NotPutBack
Var RemovedService
Var MadeConfiguration
Var MadeConfigurationFolder

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
        Delete "$ListFolder\${NAME}.ini"
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

# Writes the lists of what is going to be installed to the folder $ListFolder.
!macro WriteLists
    SetOutPath "$ListFolder"
    File "${GENERATED}/*.ini"
    !insertmacro ForEachComponent ForgetListUnlessChosen
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
SectionEnd

Section "$(Window)" Window
    !insertmacro InstallFilesOf_window
SectionEnd

Section /o "$(Agent)" Agent
    !insertmacro InstallFilesOf_agent
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
    Call FinishInterrupted
    # The new lists, and those of the installed version.
    InitPluginsDir
    StrCpy $ListFolder "$PLUGINSDIR\new"
    !insertmacro WriteLists
    CreateDirectory "$PLUGINSDIR\old"
    StrCpy $Ours ""
    ReadINIStr $Ours "$INSTDIR\uninstall\library.ini" files "bin\vxprinterstatus.dll"
    ${If} $Ours != ""
        CopyFiles /SILENT "$INSTDIR\uninstall\*.ini" "$PLUGINSDIR\old"
    ${EndIf}

    Call CheckFolder
    Call RefuseFilesOfOthers
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
FunctionEnd

# Calls the function at $Action for each path of the lists in $ListFolder, and for the place of each list of a
# component itself. The function has the path in $Path and its last character in $0. It ends the calls by setting
# $Failed.
Function EachPath
    StrCpy $Failed ""
    FindFirst $SearchHandle $ListName "$ListFolder\*.ini"
    ${DoUntil} $ListName == ""
        FileOpen $List "$ListFolder\$ListName" r
        ${Do}
            Call ReadPath
            ${If} $Path == ""
                ${Break}
            ${EndIf}
            StrCpy $0 $Path "" -1
            Call $Action
            ${If} $Failed != ""
                ${Break}
            ${EndIf}
        ${Loop}
        FileClose $List
        ${If} $Failed == ""
        ${AndIf} $ListName != "own.ini"
            StrCpy $Path "uninstall\$ListName"
            StrCpy $0 "i"
            Call $Action
        ${EndIf}
        ${If} $Failed != ""
            ${Break}
        ${EndIf}
        FindNext $SearchHandle $ListName
    ${Loop}
    FindClose $SearchHandle
FunctionEnd

# An installer that was ended from outside while files took their places: puts everything back first.
Function FinishInterrupted
    ${If} ${FileExists} "${TEMPORARY}\lists\own.ini"
        Call StopService
        Call PutBack
        ${If} $NotPutBack != ""
            StrCpy $0 $NotPutBack
            !insertmacro Refuse "" ${EXIT_NOT_PUT_BACK} "$(NotPutBack)"
        ${EndIf}
        ${If} $WasRunning = 1
            Call StartService
        ${EndIf}
    ${EndIf}
    RMDir /r "${TEMPORARY}"
FunctionEnd

# What others have in the folder stays theirs: it is neither replaced nor removed by the uninstaller later.
Function RefuseFilesOfOthers
    ${If} $Ours == ""
    ${AndIf} ${FileExists} "$INSTDIR\uninstall\*.ini"
        # The uninstaller would take it for a list.
        StrCpy $Failed "$INSTDIR\uninstall\*.ini"
    ${Else}
        StrCpy $ListFolder "$PLUGINSDIR\new"
        GetFunctionAddress $Action LookWhetherOfOthers
        Call EachPath
    ${EndIf}
    ${If} $Failed != ""
        StrCpy $0 $Failed
        !insertmacro Refuse "" ${EXIT_FILES_OF_OTHERS} "$(FilesOfOthers)"
    ${EndIf}
FunctionEnd

Function LookWhetherOfOthers
    ${If} $0 == "\"
        StrCpy $Path $Path -1
        ${If} ${FileExists} "$INSTDIR\$Path"
        ${AndIfNot} ${FileExists} "$INSTDIR\$Path\*.*"
            StrCpy $Failed "$INSTDIR\$Path"
        ${EndIf}
        Return
    ${EndIf}
    ${IfNot} ${FileExists} "$INSTDIR\$Path"
        Return
    ${EndIf}
    ${If} $Ours != ""
    ${AndIfNot} ${FileExists} "$INSTDIR\$Path\*.*"
        StrCpy $1 $Path 10
        ${If} $ListName == "own.ini"
        ${OrIf} $1 == "uninstall\"
            Return
        ${EndIf}
        # Mostly it is in the list of the same name.
        ReadINIStr $1 "$PLUGINSDIR\old\$ListName" files "$Path"
        FindFirst $2 $3 "$PLUGINSDIR\old\*.ini"
        ${DoUntil} $3 == ""
            ${If} $1 != ""
                ${Break}
            ${EndIf}
            ReadINIStr $1 "$PLUGINSDIR\old\$3" files "$Path"
            FindNext $2 $3
        ${Loop}
        FindClose $2
        ${If} $1 != ""
            Return
        ${EndIf}
    ${EndIf}
    StrCpy $Failed "$INSTDIR\$Path"
FunctionEnd

# Has the new files take their places. $Failed is a file that could not, and then everything has to be put back.
Function TakePlaces
    StrCpy $ListFolder "${TEMPORARY}\lists"
    GetFunctionAddress $Action MakePlace
    Call EachPath
    ${If} $Failed == ""
        GetFunctionAddress $Action TakePlace
        Call EachPath
    ${EndIf}
FunctionEnd

Function MakePlace
    ${If} $0 == "\"
        StrCpy $Path $Path -1
        ClearErrors
        CreateDirectory "$INSTDIR\$Path"
        CreateDirectory "${TEMPORARY}\old\$Path"
        ${If} ${Errors}
            StrCpy $Failed "$INSTDIR\$Path"
        ${EndIf}
    ${EndIf}
FunctionEnd

Function TakePlace
    ${If} $0 == "\"
        Return
    ${EndIf}
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\$Path"
        Rename "$INSTDIR\$Path" "${TEMPORARY}\old\$Path"
    ${EndIf}
    ${IfNot} ${Errors}
        Rename "${TEMPORARY}\new\$Path" "$INSTDIR\$Path"
        ${IfNot} ${Errors}
            Return
        ${EndIf}
    ${EndIf}
    StrCpy $Failed "$INSTDIR\$Path"
FunctionEnd

# Puts back what was in the places of the new files. $NotPutBack is one for which that was impossible.
Function PutBack
    StrCpy $NotPutBack ""
    SetOutPath $TEMP
    ${If} ${FileExists} "${TEMPORARY}\lists\own.ini"
        StrCpy $ListFolder "${TEMPORARY}\lists"
        GetFunctionAddress $Action PutBackPath
        Call EachPath
    ${EndIf}
FunctionEnd

# A file has taken its place if it is not among the new ones any more.
Function PutBackPath
    ${If} $0 == "\"
        StrCpy $Path $Path -1
        RMDir "$INSTDIR\$Path" # if nothing is left in it
        Return
    ${EndIf}
    # Another list may have had its folder removed.
    ${GetParent} "$INSTDIR\$Path" $0
    CreateDirectory "$0"
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\$Path"
    ${AndIfNot} ${FileExists} "${TEMPORARY}\new\$Path"
        Rename "$INSTDIR\$Path" "${TEMPORARY}\new\$Path"
    ${EndIf}
    ${IfNot} ${Errors} # which forgets the error
        ${If} ${FileExists} "${TEMPORARY}\old\$Path"
            Rename "${TEMPORARY}\old\$Path" "$INSTDIR\$Path"
        ${EndIf}
        ${IfNot} ${Errors}
            Return
        ${EndIf}
    ${EndIf}
    StrCpy $NotPutBack "$INSTDIR\$Path"
FunctionEnd

# Leaves everything as it was before the installation, and the service as it was.
Function Undo
    ${If} $MadeConfiguration = 1
        Delete "$Configuration"
    ${EndIf}
    ${If} $MadeConfigurationFolder = 1
        RMDir "$APPDATA\VxPrinterStatus"
    ${EndIf}
    Call PutBack
    ${If} $NotPutBack == ""
        RMDir /r "${TEMPORARY}"
        Call RemoveNewFolders
    ${EndIf}
    ${If} $RemovedService != ""
        # The last part of its command line is the configuration.
        ${WordFind} '$RemovedService' '"' "-1" $0
        nsExec::Exec '"$INSTDIR\bin\vxprintagent.exe" install --config "$0"'
        Pop $0
    ${EndIf}
    ${If} $WasRunning = 1
        Call StartService
    ${EndIf}
FunctionEnd

# Ends an installation that has begun to change something. $Message says why.
!macro UndoAndQuit CODE TEXT
    StrCpy $Message "${TEXT}"
    StrCpy $R8 ${CODE}
    Call UndoAndQuit
!macroend

Function UndoAndQuit
    Call Undo
    ${If} $NotPutBack != ""
        StrCpy $R8 ${EXIT_NOT_PUT_BACK}
        StrCpy $0 $NotPutBack
        StrCpy $Message "$(NotPutBack)"
    ${EndIf}
    SetErrorLevel $R8
    Call Tell
    Quit
FunctionEnd

# Removes the folder of the installation, and those in which it is, as far as they were made by CheckFolder and are
# empty.
Function RemoveNewFolders
    ${If} $ExistingFolder == ""
        Return
    ${EndIf}
    StrCpy $2 $INSTDIR
    ${DoUntil} $2 == $ExistingFolder
        ${If} $2 == ""
            ${Break}
        ${EndIf}
        RMDir "$2"
        ${GetParent} $2 $2
    ${Loop}
FunctionEnd

# Refuses a folder that cannot be written, or a drive that is too full, before anything is changed.
Function CheckFolder
    StrCpy $1 0
    StrCpy $2 $Chosen
    !insertmacro ForEachComponent AddToTotal
    StrCpy $Chosen $2
    StrCpy $2 $INSTDIR
    ${DoUntil} ${FileExists} "$2\*.*"
        ${GetParent} $2 $2
        ${If} $2 == ""
            ${ExitDo}
        ${EndIf}
    ${Loop}
    StrCpy $ExistingFolder $2
    StrCpy $4 0
    ${If} $2 != ""
        System::Call 'kernel32::GetDiskFreeSpaceExW(w "$2\", *l .r3, p 0, p 0) i .r4'
    ${EndIf}
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

    ClearErrors
    CreateDirectory "${TEMPORARY}"
    FileOpen $1 "${TEMPORARY}\try" w
    ${If} ${Errors}
        RMDir "${TEMPORARY}"
        Call RemoveNewFolders
        StrCpy $0 $INSTDIR
        !insertmacro Refuse "" ${EXIT_FOLDER} "$(NotWritable)"
    ${EndIf}
    FileClose $1
    RMDir /r "${TEMPORARY}"
    Call RemoveNewFolders
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
    StrCpy $WasRunning 0
    StrCpy $RemovedService ""
    StrCpy $MadeConfiguration 0
    StrCpy $MadeConfigurationFolder 0
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
    ${Case} "unusable"
        !insertmacro Refuse "" ${EXIT_FOLDER} "$(NotWritable)"
    ${Case} "folder"
        !insertmacro Refuse "" ${EXIT_OTHER_FOLDER} "$(OtherFolder)"
    ${EndSelect}
FunctionEnd

# Everything on the command line has to be known: a misspelt option would install something else than was wanted.
# NSIS itself takes /D= off. It also forgets a folder of which it knows that it cannot be made, such as one on a drive
# that does not exist, and then it would be the usual one.
Function ReadOptions
    StrCpy $Chosen ""
    StrCpy $Kept "" # whether an older version may replace a newer one
    StrCpy $Refused ""
    ${If} $INSTDIR == ""
        System::Call 'kernel32::GetCommandLineW() w .r1'
        ${DoUntil} $1 == ""
            StrCpy $0 $1 4
            ${If} $0 == " /D="
                StrCpy $0 $1 "" 4
                !insertmacro RefuseLater unusable
                Return
            ${EndIf}
            StrCpy $1 $1 "" 1
        ${Loop}
    ${EndIf}
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
        # The second is left of an installer that was ended in the middle of an upgrade.
        StrCpy $2 $INSTDIR
        StrCpy $INSTDIR $1
        StrCpy $3 0
        ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ${OrIf} ${FileExists} "${TEMPORARY}\old\uninstall.exe"
            StrCpy $3 1
        ${EndIf}
        StrCpy $INSTDIR $2
    ${Else}
        StrCpy $3 0
    ${EndIf}
    ${If} $3 = 1
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

# Everything is written. Has it take its place, and tells Windows of it. What fails before the last file and the service
# are in their places is undone.
Function Finish
    SetOutPath "${TEMPORARY}\new\uninstall"
    File "/oname=icon.ico" "${ICON}"
    File "/oname=agent.json" "${CONFIGURATION}"
    ClearErrors
    WriteUninstaller "${TEMPORARY}\new\uninstall.exe"
    ${If} ${Errors}
        StrCpy $0 $INSTDIR
        !insertmacro UndoAndQuit ${EXIT_FAILED} "$(FileNotWritten)"
    ${EndIf}
    StrCpy $ListFolder "${TEMPORARY}\complete"
    !insertmacro WriteLists
    SetOutPath $TEMP

    # With the program of the installed version, before it loses its DLLs.
    ${IfNot} ${SectionIsSelected} ${Agent}
        Call RemoveService
        ${If} $0 != ""
            !insertmacro UndoAndQuit ${EXIT_SERVICE} "$(ServiceNotRemoved)"
        ${EndIf}
        ${If} $ServiceState != ""
            StrCpy $RemovedService $ServiceProgram
        ${EndIf}
    ${EndIf}
    ClearErrors
    Rename "${TEMPORARY}\complete" "${TEMPORARY}\lists"
    ${If} ${Errors}
        StrCpy $Failed "${TEMPORARY}\lists"
    ${Else}
        Call TakePlaces
    ${EndIf}
    ${If} $Failed != ""
        StrCpy $0 $Failed
        !insertmacro UndoAndQuit ${EXIT_FAILED} "$(FileNotReplaced)"
    ${EndIf}
    ${If} ${SectionIsSelected} ${Agent}
        Call RegisterService
        ${If} $0 != ""
            !insertmacro UndoAndQuit ${EXIT_SERVICE} "$(ServiceNotInstalled)"
        ${EndIf}
    ${EndIf}
    # From here nothing is put back any more.
    Rename "${TEMPORARY}\lists" "${TEMPORARY}\complete"

    StrCpy $ListFolder "$INSTDIR\uninstall"
    !insertmacro ForEachComponent ForgetListUnlessChosen
    StrCpy $NotRemoved ""
    StrCpy $ListFolder "$PLUGINSDIR\old"
    Call RemoveListed
    ClearErrors
    RMDir /r "${TEMPORARY}"
    ${If} ${Errors}
        StrCpy $NotRemoved "${TEMPORARY}"
    ${EndIf}

    Call RemoveEntries
    ${If} ${SectionIsSelected} ${Tools}
        !insertmacro RegisterProgram vxprintmon
        !insertmacro RegisterProgram rolldb
        !insertmacro RegisterProgram vxipc
    ${EndIf}
    ${If} ${SectionIsSelected} ${Window}
        !insertmacro RegisterProgram vxprintview
        # The folder in which a program that is started from the menu works.
        SetOutPath "$INSTDIR\bin"
        CreateShortcut "$SMPROGRAMS\$(WindowName).lnk" "$INSTDIR\bin\vxprintview.exe" "" "$INSTDIR\uninstall\icon.ico"
        SetOutPath $TEMP
        WriteRegStr HKLM "${UNINSTALL_KEY}" "StartMenuEntry" "$(WindowName)"
    ${EndIf}
    ${If} ${SectionIsSelected} ${Agent}
        !insertmacro RegisterProgram vxprintagent
    ${EndIf}
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
    ${AndIf} $WasRunning = 1
        Call StartService
        ${If} $ServiceState <> 4
            SetErrorLevel ${EXIT_SERVICE_NOT_STARTED}
            StrCpy $Message "$(ServiceNotStarted)"
            Call Tell
        ${EndIf}
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

# A file could not be written. Nothing has taken its place yet. NSIS itself makes it exit code 2.
Function .onInstFailed
    Call Undo
    StrCpy $0 $INSTDIR
    StrCpy $Message "$(FileNotWritten)"
    Call Tell
FunctionEnd

# Registers the agent's service unless it is registered. $0 is what its program printed if that was impossible. The
# service is going to be started if it ran before, or if somebody has put its configuration there beforehand. With the
# example alone it would publish nothing of use.
Function RegisterService
    StrCpy $ServiceRequest ""
    Call LookAtService
    StrCpy $0 ""
    ${If} $ServiceState == ""
        Call MakeConfiguration
        nsExec::ExecToStack '"$INSTDIR\bin\vxprintagent.exe" install --config "$Configuration"'
        Pop $1
        Pop $0
        ${If} $1 == 0
            StrCpy $0 ""
        ${Else}
            StrCpy $WasRunning 0 # there is none to be started again
            ${If} $0 == ""
                StrCpy $0 "$1"
            ${EndIf}
        ${EndIf}
    ${EndIf}
FunctionEnd

# The folder gets the rights that the agent requires: only the system and administrators may change it, whose numbers
# are the same in every language of Windows. A folder that exists has the rights that somebody has chosen.
Function MakeConfiguration
    StrCpy $Configuration "$APPDATA\VxPrinterStatus\agent.json"
    ${IfNot} ${FileExists} "$APPDATA\VxPrinterStatus\*.*"
        StrCpy $MadeConfigurationFolder 1
        CreateDirectory "$APPDATA\VxPrinterStatus"
        nsExec::Exec 'icacls "$APPDATA\VxPrinterStatus" /setowner *S-1-5-32-544'
        Pop $0
        nsExec::Exec 'icacls "$APPDATA\VxPrinterStatus" /inheritance:r /grant:r *S-1-5-18:(OI)(CI)F *S-1-5-32-544:(OI)(CI)F'
        Pop $0
    ${EndIf}
    ${If} ${FileExists} "$Configuration"
        StrCpy $WasRunning 1
    ${Else}
        StrCpy $MadeConfiguration 1
        CopyFiles /SILENT "$INSTDIR\uninstall\agent.json" "$Configuration"
        nsExec::Exec 'icacls "$Configuration" /setowner *S-1-5-32-544'
        Pop $0
        StrCpy $0 $Configuration
        DetailPrint "$(EditConfiguration)"
    ${EndIf}
FunctionEnd

!include uninstaller.nsh
