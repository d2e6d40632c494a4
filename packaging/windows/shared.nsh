# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What the installer and the uninstaller do alike. NSIS keeps their functions apart: those of the uninstaller have
# names that begin with "un.", so everything here is a macro that is inserted for each of the two.

# Ends with an exit code, before anything was changed.
!macro Refuse UN CODE TEXT
    StrCpy $Message "${TEXT}"
    SetErrorLevel ${CODE}
    Call ${UN}Tell
    Quit
!macroend

!macro RequireAdministrator UN
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "admin"
        !insertmacro Refuse "${UN}" ${EXIT_NO_ADMINISTRATOR} "$(NoAdministrator)"
    ${EndIf}
!macroend

!macro SharedFunctions UN

# Shows $Message: in a box, or, when silent, on the console or in the file where the caller wants errors. A program
# with windows has no console of its own, so it borrows that of its caller.
Function ${UN}Tell
    ${IfNot} ${Silent}
        MessageBox MB_OK|MB_ICONEXCLAMATION "$Message"
        Return
    ${EndIf}
    StrCpy $R9 "VxPrinterStatus: $Message$\r$\n"
    System::Call 'kernel32::GetStdHandle(i -12) p .r1'
    ${If} $1 P= 0
    ${OrIf} $1 P= -1
        System::Call 'kernel32::AttachConsole(i -1)'
        System::Call 'kernel32::GetStdHandle(i -12) p .r1'
    ${EndIf}
    StrLen $2 $R9
    System::Call 'kernel32::WriteConsoleW(p r1, w R9, i r2, *i .r3, p 0) i .r4'
    ${If} $4 = 0
        # A file or a pipe, which gets UTF-8 (65001).
        System::Call 'kernel32::WideCharToMultiByte(i 65001, i 0, w R9, i r2, p 0, i 0, p 0, p 0) i .r5'
        System::Alloc $5
        Pop $6
        System::Call 'kernel32::WideCharToMultiByte(i 65001, i 0, w R9, i r2, p r6, i r5, p 0, p 0)'
        System::Call 'kernel32::WriteFile(p r1, p r6, i r5, *i .r3, p 0)'
        System::Free $6
    ${EndIf}
FunctionEnd

# Sets $ServiceState to the state of the agent's service by its number in Windows (1 stopped, 4 running). It is empty
# if there is none or it runs another copy of the program. $ServiceProgram is what the service runs.
Function ${UN}LookAtService
    StrCpy $ServiceState ""
    ReadRegStr $ServiceProgram HKLM "SYSTEM\CurrentControlSet\Services\vxprintagent" "ImagePath"
    StrCpy $0 '"$INSTDIR\bin\vxprintagent.exe"'
    StrLen $1 $0
    StrCpy $2 $ServiceProgram $1
    ${If} $2 != $0
        Return
    ${EndIf}
    System::Call 'advapi32::OpenSCManagerW(p 0, p 0, i 1) p .r1'
    System::Call 'advapi32::OpenServiceW(p r1, w "vxprintagent", i 0x34) p .r2'
    ${If} $2 P<> 0
        System::Call '*(i 0, i 0, i 0, i 0, i 0, i 0, i 0) p .r3'
        System::Call 'advapi32::QueryServiceStatus(p r2, p r3) i .r0'
        ${If} $0 <> 0
            System::Call '*$3(i, i .s)'
            Pop $ServiceState
        ${EndIf}
        ${If} $ServiceRequest == "stop"
        ${AndIf} $ServiceState = 4
            System::Call 'advapi32::ControlService(p r2, i 1, p r3)'
        ${ElseIf} $ServiceRequest == "start"
            System::Call 'advapi32::StartServiceW(p r2, i 0, p 0)'
        ${EndIf}
        System::Free $3
        System::Call 'advapi32::CloseServiceHandle(p r2)'
    ${EndIf}
    System::Call 'advapi32::CloseServiceHandle(p r1)'
FunctionEnd

# Stops the service and waits for its end, as long as it may take to start (it takes no requests until then) and to
# stop. $WasRunning is 1 if it ran. $ServiceState says whether it has stopped.
Function ${UN}StopService
    StrCpy $WasRunning 0
    StrCpy $ServiceRequest ""
    Call ${UN}LookAtService
    ${If} $ServiceState == ""
    ${OrIf} $ServiceState = 1
        Return
    ${EndIf}
    StrCpy $WasRunning 1
    StrCpy $ServiceRequest "stop"
    ${For} $9 1 800
        Call ${UN}LookAtService
        ${If} $ServiceState = 1
            ${Break}
        ${EndIf}
        Sleep 100
    ${Next}
    StrCpy $ServiceRequest ""
FunctionEnd

# Starts the service and waits until it runs or has given up. $ServiceState says which.
Function ${UN}StartService
    StrCpy $ServiceRequest "start"
    Call ${UN}LookAtService
    StrCpy $ServiceRequest ""
    ${For} $9 1 600
        Call ${UN}LookAtService
        ${If} $ServiceState = 4
        ${OrIf} $ServiceState = 1
            ${Break}
        ${EndIf}
        Sleep 100
    ${Next}
FunctionEnd

# The next path of the list $List, or nothing at its end. The paths of folders end in a backslash.
Function ${UN}ReadPath
    ${Do}
        ClearErrors
        FileReadUTF16LE $List $Path
        ${If} ${Errors}
            StrCpy $Path ""
            Return
        ${EndIf}
        ${${UN}TrimNewLines} $Path $Path
        StrCpy $0 $Path "" -2
        ${If} $0 == "=1"
            StrCpy $Path $Path -2
            Return
        ${EndIf}
    ${Loop}
FunctionEnd

# Sets $InUse to a program or DLL of the lists in $ListFolder that cannot be replaced now, because it runs.
Function ${UN}FindFileInUse
    FindFirst $1 $2 "$ListFolder\*.ini"
    ${DoWhile} $2 != ""
        FileOpen $List "$ListFolder\$2" r
        ${Do}
            Call ${UN}ReadPath
            ${If} $Path == ""
                ${Break}
            ${EndIf}
            StrCpy $0 $Path "" -4
            ${If} $0 == ".exe"
            ${OrIf} $0 == ".dll"
                ${If} ${FileExists} "$INSTDIR\$Path"
                    ClearErrors
                    FileOpen $3 "$INSTDIR\$Path" a
                    ${If} ${Errors}
                        StrCpy $InUse "$INSTDIR\$Path"
                        ${Break}
                    ${EndIf}
                    FileClose $3
                ${EndIf}
            ${EndIf}
        ${Loop}
        FileClose $List
        FindNext $1 $2
    ${Loop}
    FindClose $1
FunctionEnd

# Removes what the lists in $ListFolder name, except for what the components hold that are installed now. $NotRemoved
# is one of the files for which that was impossible. A folder is removed if nothing is left in it.
Function ${UN}RemoveListed
    # A folder in which a program works cannot be removed.
    SetOutPath $TEMP
    FindFirst $1 $2 "$ListFolder\*.ini"
    ${DoWhile} $2 != ""
        FileOpen $List "$ListFolder\$2" r
        ${Do}
            Call ${UN}ReadPath
            ${If} $Path == ""
                ${Break}
            ${EndIf}
            StrCpy $0 $Path "" -1
            ${If} $0 == "\"
                StrCpy $Path $Path -1
                RMDir "$INSTDIR\$Path"
            ${Else}
                Call ${UN}LookWhetherKept
                ${If} $Kept == ""
                    ClearErrors
                    Delete "$INSTDIR\$Path"
                    ${If} ${Errors}
                        StrCpy $NotRemoved "$INSTDIR\$Path"
                    ${EndIf}
                ${EndIf}
            ${EndIf}
        ${Loop}
        FileClose $List
        FindNext $1 $2
    ${Loop}
    FindClose $1
FunctionEnd

# Removes the entry in the start menu and what has Windows find the programs by their names.
Function ${UN}RemoveEntries
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "StartMenuEntry"
    ${If} $0 != ""
        Delete "$SMPROGRAMS\$0.lnk"
    ${EndIf}
    !insertmacro ForgetProgram vxprintmon
    !insertmacro ForgetProgram rolldb
    !insertmacro ForgetProgram vxipc
    !insertmacro ForgetProgram vxprintview
    !insertmacro ForgetProgram vxprintagent
FunctionEnd

# Removes the service. $0 is what its program printed if that was impossible, otherwise empty.
Function ${UN}RemoveService
    StrCpy $0 ""
    StrCpy $ServiceRequest ""
    Call ${UN}LookAtService
    StrCpy $0 ""
    ${If} $ServiceState != ""
        nsExec::ExecToStack '"$INSTDIR\bin\vxprintagent.exe" uninstall'
        Pop $1
        Pop $0
        ${If} $1 == 0
            StrCpy $0 ""
        ${ElseIf} $0 == ""
            StrCpy $0 "$1"
        ${EndIf}
    ${EndIf}
FunctionEnd

!macroend

# Windows finds a program of this list by its name, in "Run" and for "start" in a console. PATH would have it found
# everywhere, but a string of NSIS has 1024 characters at most, and a longer PATH would be cut off.
!macro RegisterProgram NAME
    WriteRegStr HKLM "${APP_PATHS}\${NAME}.exe" "" "$INSTDIR\bin\${NAME}.exe"
!macroend

# Only if it is this copy.
!macro ForgetProgram NAME
    ReadRegStr $0 HKLM "${APP_PATHS}\${NAME}.exe" ""
    ${If} $0 == "$INSTDIR\bin\${NAME}.exe"
        DeleteRegKey HKLM "${APP_PATHS}\${NAME}.exe"
    ${EndIf}
!macroend
