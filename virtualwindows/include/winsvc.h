// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The part of the service manager's API that the library calls.
#pragma once

#include <windows.h>

struct SC_HANDLE__; // NOLINT(bugprone-reserved-identifier): the name that Windows gives it
using SC_HANDLE = SC_HANDLE__*;

#define SERVICE_WIN32_OWN_PROCESS 0x00000010U
#define SERVICE_INTERACTIVE_PROCESS 0x00000100U
#define SERVICE_STOPPED 0x00000001U
#define SERVICE_START_PENDING 0x00000002U
#define SERVICE_STOP_PENDING 0x00000003U
#define SERVICE_RUNNING 0x00000004U
#define SERVICE_CONTINUE_PENDING 0x00000005U
#define SERVICE_PAUSE_PENDING 0x00000006U
#define SERVICE_PAUSED 0x00000007U
#define SERVICE_ACCEPT_STOP 0x00000001U
#define SERVICE_QUERY_CONFIG 0x0001U
#define SERVICE_QUERY_STATUS 0x0004U
#define SERVICE_START 0x0010U
#define SERVICE_STOP 0x0020U
#define SC_MANAGER_CONNECT 0x0001U

struct SERVICE_STATUS
{
    DWORD dwServiceType;
    DWORD dwCurrentState;
    DWORD dwControlsAccepted;
    DWORD dwWin32ExitCode;
    DWORD dwServiceSpecificExitCode;
    DWORD dwCheckPoint;
    DWORD dwWaitHint;
};
using LPSERVICE_STATUS = SERVICE_STATUS*;

VIRTUALWINDOWS_API SC_HANDLE WINAPI OpenSCManagerW(LPCWSTR lpMachineName, LPCWSTR lpDatabaseName,
                                                   DWORD dwDesiredAccess);
VIRTUALWINDOWS_API SC_HANDLE WINAPI OpenServiceW(SC_HANDLE hSCManager, LPCWSTR lpServiceName,
                                                 DWORD dwDesiredAccess);
VIRTUALWINDOWS_API BOOL WINAPI QueryServiceStatus(SC_HANDLE hService,
                                                  LPSERVICE_STATUS lpServiceStatus);
VIRTUALWINDOWS_API BOOL WINAPI CloseServiceHandle(SC_HANDLE hSCObject);
