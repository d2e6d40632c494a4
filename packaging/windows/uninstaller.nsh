# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Removes what the installer has installed, by the lists that it has left. What people have made stays.

Section "Uninstall"
    Call un.StopService
    ${If} $ServiceState != ""
    ${AndIf} $ServiceState <> 1
        !insertmacro Refuse "un." ${EXIT_IN_USE} "$(ServiceNotStopped)"
    ${EndIf}
    StrCpy $ListFolder "$INSTDIR\uninstall"
    again:
    StrCpy $InUse ""
    Call un.FindFileInUse
    ${If} $InUse != ""
        StrCpy $0 $InUse
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(FileInUse)" /SD IDCANCEL IDRETRY again
        ${If} $WasRunning = 1
            Call un.StartService
        ${EndIf}
        ${If} ${Silent}
            StrCpy $0 $InUse
            !insertmacro Refuse "un." ${EXIT_IN_USE} "$(FileInUse)"
        ${EndIf}
        SetErrorLevel ${EXIT_IN_USE}
        Quit
    ${EndIf}

    Call un.RemoveService
    ${If} $0 != ""
        !insertmacro Refuse "un." ${EXIT_SERVICE} "$(ServiceNotRemoved)"
    ${EndIf}
    Call un.RemoveConfiguration
    Call un.RemoveEntries
    StrCpy $NotRemoved ""
    Call un.RemoveListed
    Delete "$INSTDIR\uninstall\*.ini"
    Delete "$INSTDIR\uninstall\icon.ico"
    Delete "$INSTDIR\uninstall\agent.json"
    RMDir "$INSTDIR\uninstall"
    # Left if an installer was ended from outside.
    RMDir /r "${TEMPORARY}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
    ${If} $NotRemoved != ""
        StrCpy $0 $NotRemoved
        StrCpy $Message "$(NotRemoved)"
        SetErrorLevel ${EXIT_NOT_REMOVED}
        Call un.Tell
    ${EndIf}
SectionEnd

Function un.onInit
    SetRegView 64
    SetShellVarContext all
    !insertmacro RequireAdministrator "un."
FunctionEnd

Function un.LookWhetherKept
    StrCpy $Kept ""
FunctionEnd

# The example is removed if nobody has changed it.
Function un.RemoveConfiguration
    StrCpy $Configuration "$APPDATA\VxPrinterStatus\agent.json"
    ${IfNot} ${FileExists} "$Configuration"
    ${OrIfNot} ${FileExists} "$INSTDIR\uninstall\agent.json"
        Return
    ${EndIf}
    FileOpen $1 "$INSTDIR\uninstall\agent.json" r
    FileOpen $2 "$Configuration" r
    ${Do}
        ClearErrors
        FileReadByte $1 $3
        ${If} ${Errors}
            StrCpy $3 "end"
        ${EndIf}
        ClearErrors
        FileReadByte $2 $4
        ${If} ${Errors}
            StrCpy $4 "end"
        ${EndIf}
        ${If} $3 != $4
        ${OrIf} $3 == "end"
            ${Break}
        ${EndIf}
    ${Loop}
    FileClose $1
    FileClose $2
    ${If} $3 == $4
        Delete "$Configuration"
        RMDir "$APPDATA\VxPrinterStatus"
    ${EndIf}
FunctionEnd

!insertmacro SharedFunctions "un."
