// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The part of the Windows API that the library calls, for systems other than Windows. Names, types
// and values are those of Windows. The implementation is the virtual machine of this process.
#pragma once

#include "virtualwindows/virtualwindows_export.h"

#include <cstddef>
#include <cstdint>

#define WINAPI
#define VIRTUALWINDOWS_API extern "C" VIRTUALWINDOWS_EXPORT

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = unsigned int;
using CHAR = char;
using WCHAR = char16_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = ULONG_PTR;
using ACCESS_MASK = DWORD;
using LPVOID = void*;
using PVOID = void*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;
using PWORD = WORD*;
using PDWORD = DWORD*;
using LPSTR = CHAR*;
using LPCSTR = const CHAR*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using HANDLE = void*;
using PHANDLE = HANDLE*;
using LPHANDLE = HANDLE*;
using PSECURITY_DESCRIPTOR = void*;

#define TRUE 1
#define FALSE 0
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
#define INFINITE 0xFFFFFFFFU
#define MAXIMUM_WAIT_OBJECTS 64
#define WAIT_OBJECT_0 0x00000000U
#define WAIT_ABANDONED_0 0x00000080U
#define WAIT_TIMEOUT 0x00000102U
#define WAIT_FAILED 0xFFFFFFFFU

#define ERROR_SUCCESS 0U
#define NO_ERROR 0U
#define ERROR_FILE_NOT_FOUND 2U
#define ERROR_ACCESS_DENIED 5U
#define ERROR_INVALID_HANDLE 6U
#define ERROR_NOT_ENOUGH_MEMORY 8U
#define ERROR_PRINT_CANCELLED 63U
#define ERROR_INVALID_PARAMETER 87U
#define ERROR_INSUFFICIENT_BUFFER 122U
#define ERROR_INVALID_NAME 123U
#define ERROR_INVALID_LEVEL 124U
#define ERROR_MORE_DATA 234U
#define ERROR_INVALID_ADDRESS 487U
#define ERROR_NOACCESS 998U
#define ERROR_SERVICE_DOES_NOT_EXIST 1060U
#define ERROR_DATABASE_DOES_NOT_EXIST 1065U
#define RPC_S_SERVER_UNAVAILABLE 1722U
#define RPC_X_NULL_REF_POINTER 1780U
#define ERROR_INVALID_USER_BUFFER 1784U
#define ERROR_UNKNOWN_PORT 1796U
#define ERROR_UNKNOWN_PRINTER_DRIVER 1797U
#define ERROR_INVALID_PRINTER_NAME 1801U
#define ERROR_PRINTER_ALREADY_EXISTS 1802U
#define ERROR_INVALID_PRINTER_COMMAND 1803U
#define ERROR_PRINTER_DELETED 1905U
#define ERROR_INVALID_PRINTER_STATE 1906U
#define ERROR_SPL_NO_STARTDOC 3003U

#define DELETE 0x00010000U
#define READ_CONTROL 0x00020000U
#define STANDARD_RIGHTS_REQUIRED 0x000F0000U

#define REG_NONE 0U
#define REG_SZ 1U
#define REG_EXPAND_SZ 2U
#define REG_BINARY 3U
#define REG_DWORD 4U
#define REG_DWORD_BIG_ENDIAN 5U
#define REG_MULTI_SZ 7U
#define REG_QWORD 11U

struct SYSTEMTIME
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};

struct SECURITY_ATTRIBUTES
{
    DWORD nLength;
    LPVOID lpSecurityDescriptor;
    BOOL bInheritHandle;
};
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

VIRTUALWINDOWS_API DWORD WINAPI GetLastError();
VIRTUALWINDOWS_API void WINAPI SetLastError(DWORD dwErrCode);
VIRTUALWINDOWS_API DWORD WINAPI GetCurrentThreadId();

VIRTUALWINDOWS_API HANDLE WINAPI CreateEventW(LPSECURITY_ATTRIBUTES lpEventAttributes,
                                              BOOL bManualReset, BOOL bInitialState,
                                              LPCWSTR lpName);
VIRTUALWINDOWS_API BOOL WINAPI SetEvent(HANDLE hEvent);
VIRTUALWINDOWS_API BOOL WINAPI ResetEvent(HANDLE hEvent);
VIRTUALWINDOWS_API DWORD WINAPI WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds);
VIRTUALWINDOWS_API DWORD WINAPI WaitForMultipleObjects(DWORD nCount, const HANDLE* lpHandles,
                                                       BOOL bWaitAll, DWORD dwMilliseconds);
VIRTUALWINDOWS_API BOOL WINAPI CloseHandle(HANDLE hObject);

#include "winsvc.h"
