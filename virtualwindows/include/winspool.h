// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The part of the print spooler's API that the library, what is built on it and the tests call.
#pragma once

#include <windows.h>

#define PRINTER_ACCESS_ADMINISTER 0x00000004U
#define PRINTER_ACCESS_USE 0x00000008U
#define PRINTER_ALL_ACCESS                                                                         \
    (STANDARD_RIGHTS_REQUIRED | PRINTER_ACCESS_ADMINISTER | PRINTER_ACCESS_USE)

#define PRINTER_ENUM_LOCAL 0x00000002U
#define PRINTER_ENUM_CONNECTIONS 0x00000004U
#define PRINTER_ENUM_NAME 0x00000008U
#define PRINTER_ENUM_SHARED 0x00000020U
#define PRINTER_ENUM_CONTAINER 0x00008000U
#define PRINTER_ENUM_ICON1 0x00010000U
#define PRINTER_ENUM_ICON8 0x00800000U

#define PRINTER_ATTRIBUTE_QUEUED 0x00000001U
#define PRINTER_ATTRIBUTE_DIRECT 0x00000002U
#define PRINTER_ATTRIBUTE_DEFAULT 0x00000004U
#define PRINTER_ATTRIBUTE_SHARED 0x00000008U
#define PRINTER_ATTRIBUTE_NETWORK 0x00000010U
#define PRINTER_ATTRIBUTE_HIDDEN 0x00000020U
#define PRINTER_ATTRIBUTE_LOCAL 0x00000040U
#define PRINTER_ATTRIBUTE_KEEPPRINTEDJOBS 0x00000100U
#define PRINTER_ATTRIBUTE_WORK_OFFLINE 0x00000400U

#define PRINTER_STATUS_PAUSED 0x00000001U
#define PRINTER_STATUS_ERROR 0x00000002U
#define PRINTER_STATUS_PAPER_JAM 0x00000008U
#define PRINTER_STATUS_PAPER_OUT 0x00000010U
#define PRINTER_STATUS_PAPER_PROBLEM 0x00000040U
#define PRINTER_STATUS_OFFLINE 0x00000080U
#define PRINTER_STATUS_PRINTING 0x00000400U
#define PRINTER_STATUS_NOT_AVAILABLE 0x00001000U
#define PRINTER_STATUS_USER_INTERVENTION 0x00100000U
#define PRINTER_STATUS_DOOR_OPEN 0x00400000U

#define PRINTER_CONTROL_PAUSE 1U
#define PRINTER_CONTROL_RESUME 2U
#define PRINTER_CONTROL_PURGE 3U
#define PRINTER_CONTROL_SET_STATUS 4U

#define JOB_STATUS_PAUSED 0x00000001U
#define JOB_STATUS_ERROR 0x00000002U
#define JOB_STATUS_DELETING 0x00000004U
#define JOB_STATUS_SPOOLING 0x00000008U
#define JOB_STATUS_PRINTING 0x00000010U
#define JOB_STATUS_OFFLINE 0x00000020U
#define JOB_STATUS_PAPEROUT 0x00000040U
#define JOB_STATUS_PRINTED 0x00000080U
#define JOB_STATUS_DELETED 0x00000100U
#define JOB_STATUS_BLOCKED_DEVQ 0x00000200U
#define JOB_STATUS_USER_INTERVENTION 0x00000400U
#define JOB_STATUS_RESTART 0x00000800U
#define JOB_STATUS_COMPLETE 0x00001000U
#define JOB_STATUS_RETAINED 0x00002000U

#define JOB_CONTROL_PAUSE 1U
#define JOB_CONTROL_RESUME 2U
#define JOB_CONTROL_CANCEL 3U
#define JOB_CONTROL_RESTART 4U
#define JOB_CONTROL_DELETE 5U
#define JOB_CONTROL_RETAIN 8U
#define JOB_CONTROL_RELEASE 9U

#define DSPRINT_UNPUBLISH 0x00000004U

#define PRINTER_CHANGE_ADD_PRINTER 0x00000001U
#define PRINTER_CHANGE_SET_PRINTER 0x00000002U
#define PRINTER_CHANGE_DELETE_PRINTER 0x00000004U
#define PRINTER_CHANGE_PRINTER 0x000000FFU
#define PRINTER_CHANGE_ADD_JOB 0x00000100U
#define PRINTER_CHANGE_SET_JOB 0x00000200U
#define PRINTER_CHANGE_DELETE_JOB 0x00000400U
#define PRINTER_CHANGE_WRITE_JOB 0x00000800U
#define PRINTER_CHANGE_JOB 0x0000FF00U
#define PRINTER_CHANGE_FORM 0x00070000U
#define PRINTER_CHANGE_PORT 0x00700000U
#define PRINTER_CHANGE_PRINT_PROCESSOR 0x07000000U
#define PRINTER_CHANGE_PRINTER_DRIVER 0x70000000U
#define PRINTER_CHANGE_ALL 0x7777FFFFU

#define JOB_NOTIFY_TYPE 1
#define JOB_NOTIFY_FIELD_STATUS 0x0A
#define PRINTER_NOTIFY_INFO_DISCARDED 1U

struct DEVMODEA;
struct DEVMODEW;

struct PRINTER_DEFAULTSA
{
    LPSTR pDatatype;
    DEVMODEA* pDevMode;
    ACCESS_MASK DesiredAccess;
};
using LPPRINTER_DEFAULTSA = PRINTER_DEFAULTSA*;

struct PRINTER_DEFAULTSW
{
    LPWSTR pDatatype;
    DEVMODEW* pDevMode;
    ACCESS_MASK DesiredAccess;
};
using LPPRINTER_DEFAULTSW = PRINTER_DEFAULTSW*;

struct PRINTER_INFO_1W
{
    DWORD Flags;
    LPWSTR pDescription;
    LPWSTR pName;
    LPWSTR pComment;
};

struct PRINTER_INFO_2W
{
    LPWSTR pServerName;
    LPWSTR pPrinterName;
    LPWSTR pShareName;
    LPWSTR pPortName;
    LPWSTR pDriverName;
    LPWSTR pComment;
    LPWSTR pLocation;
    DEVMODEW* pDevMode;
    LPWSTR pSepFile;
    LPWSTR pPrintProcessor;
    LPWSTR pDatatype;
    LPWSTR pParameters;
    PSECURITY_DESCRIPTOR pSecurityDescriptor;
    DWORD Attributes;
    DWORD Priority;
    DWORD DefaultPriority;
    DWORD StartTime;
    DWORD UntilTime;
    DWORD Status;
    DWORD cJobs;
    DWORD AveragePPM;
};

struct PRINTER_INFO_4W
{
    LPWSTR pPrinterName;
    LPWSTR pServerName;
    DWORD Attributes;
};

struct PRINTER_INFO_5W
{
    LPWSTR pPrinterName;
    LPWSTR pPortName;
    DWORD Attributes;
    DWORD DeviceNotSelectedTimeout;
    DWORD TransmissionRetryTimeout;
};

struct PRINTER_INFO_6
{
    DWORD dwStatus;
};

struct PRINTER_INFO_7W
{
    LPWSTR pszObjectGUID;
    DWORD dwAction;
};

struct DOC_INFO_1W
{
    LPWSTR pDocName;
    LPWSTR pOutputFile;
    LPWSTR pDatatype;
};

struct JOB_INFO_1W
{
    DWORD JobId;
    LPWSTR pPrinterName;
    LPWSTR pMachineName;
    LPWSTR pUserName;
    LPWSTR pDocument;
    LPWSTR pDatatype;
    LPWSTR pStatus;
    DWORD Status;
    DWORD Priority;
    DWORD Position;
    DWORD TotalPages;
    DWORD PagesPrinted;
    SYSTEMTIME Submitted;
};

struct JOB_INFO_2W
{
    DWORD JobId;
    LPWSTR pPrinterName;
    LPWSTR pMachineName;
    LPWSTR pUserName;
    LPWSTR pDocument;
    LPWSTR pNotifyName;
    LPWSTR pDatatype;
    LPWSTR pPrintProcessor;
    LPWSTR pParameters;
    LPWSTR pDriverName;
    DEVMODEW* pDevMode;
    LPWSTR pStatus;
    PSECURITY_DESCRIPTOR pSecurityDescriptor;
    DWORD Status;
    DWORD Priority;
    DWORD Position;
    DWORD StartTime;
    DWORD UntilTime;
    DWORD TotalPages;
    DWORD Size;
    SYSTEMTIME Submitted;
    DWORD Time;
    DWORD PagesPrinted;
};

struct PRINTER_NOTIFY_OPTIONS_TYPE
{
    WORD Type;
    WORD Reserved0;
    DWORD Reserved1;
    DWORD Reserved2;
    DWORD Count;
    PWORD pFields;
};

struct PRINTER_NOTIFY_OPTIONS
{
    DWORD Version;
    DWORD Flags;
    DWORD Count;
    PRINTER_NOTIFY_OPTIONS_TYPE* pTypes;
};

struct PRINTER_NOTIFY_INFO_DATA
{
    WORD Type;
    WORD Field;
    DWORD Reserved;
    DWORD Id;
    union {
        DWORD adwData[2];
        struct
        {
            DWORD cbBuf;
            LPVOID pBuf;
        } Data;
    } NotifyData;
};

struct PRINTER_NOTIFY_INFO
{
    DWORD Version;
    DWORD Flags;
    DWORD Count;
    PRINTER_NOTIFY_INFO_DATA aData[1];
};

VIRTUALWINDOWS_API BOOL WINAPI OpenPrinterA(LPSTR pPrinterName, LPHANDLE phPrinter,
                                            LPPRINTER_DEFAULTSA pDefault);
VIRTUALWINDOWS_API BOOL WINAPI OpenPrinterW(LPWSTR pPrinterName, LPHANDLE phPrinter,
                                            LPPRINTER_DEFAULTSW pDefault);
VIRTUALWINDOWS_API BOOL WINAPI ClosePrinter(HANDLE hPrinter);

VIRTUALWINDOWS_API DWORD WINAPI GetPrinterDataA(HANDLE hPrinter, LPSTR pValueName, LPDWORD pType,
                                                LPBYTE pData, DWORD nSize, LPDWORD pcbNeeded);
VIRTUALWINDOWS_API DWORD WINAPI GetPrinterDataW(HANDLE hPrinter, LPWSTR pValueName, LPDWORD pType,
                                                LPBYTE pData, DWORD nSize, LPDWORD pcbNeeded);
VIRTUALWINDOWS_API DWORD WINAPI SetPrinterDataA(HANDLE hPrinter, LPSTR pValueName, DWORD Type,
                                                LPBYTE pData, DWORD cbData);
VIRTUALWINDOWS_API DWORD WINAPI SetPrinterDataW(HANDLE hPrinter, LPWSTR pValueName, DWORD Type,
                                                LPBYTE pData, DWORD cbData);

VIRTUALWINDOWS_API BOOL WINAPI GetPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pPrinter,
                                           DWORD cbBuf, LPDWORD pcbNeeded);
VIRTUALWINDOWS_API BOOL WINAPI SetPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pPrinter,
                                           DWORD Command);
VIRTUALWINDOWS_API BOOL WINAPI EnumPrintersW(DWORD Flags, LPWSTR Name, DWORD Level,
                                             LPBYTE pPrinterEnum, DWORD cbBuf, LPDWORD pcbNeeded,
                                             LPDWORD pcReturned);
VIRTUALWINDOWS_API BOOL WINAPI GetDefaultPrinterW(LPWSTR pszBuffer, LPDWORD pcchBuffer);
VIRTUALWINDOWS_API BOOL WINAPI SetDefaultPrinterW(LPCWSTR pszPrinter);
VIRTUALWINDOWS_API HANDLE WINAPI AddPrinterW(LPWSTR pName, DWORD Level, LPBYTE pPrinter);
VIRTUALWINDOWS_API BOOL WINAPI DeletePrinter(HANDLE hPrinter);

VIRTUALWINDOWS_API HANDLE WINAPI FindFirstPrinterChangeNotification(HANDLE hPrinter,
                                                                    DWORD fdwFilter,
                                                                    DWORD fdwOptions,
                                                                    LPVOID pPrinterNotifyOptions);
VIRTUALWINDOWS_API BOOL WINAPI FindNextPrinterChangeNotification(HANDLE hChange, LPDWORD pdwChange,
                                                                 LPVOID pPrinterNotifyOptions,
                                                                 LPVOID* ppPrinterNotifyInfo);
VIRTUALWINDOWS_API BOOL WINAPI FindClosePrinterChangeNotification(HANDLE hChange);
VIRTUALWINDOWS_API BOOL WINAPI FreePrinterNotifyInfo(PRINTER_NOTIFY_INFO* pPrinterNotifyInfo);

VIRTUALWINDOWS_API DWORD WINAPI StartDocPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pDocInfo);
VIRTUALWINDOWS_API BOOL WINAPI StartPagePrinter(HANDLE hPrinter);
VIRTUALWINDOWS_API BOOL WINAPI WritePrinter(HANDLE hPrinter, LPVOID pBuf, DWORD cbBuf,
                                            LPDWORD pcWritten);
VIRTUALWINDOWS_API BOOL WINAPI EndPagePrinter(HANDLE hPrinter);
VIRTUALWINDOWS_API BOOL WINAPI EndDocPrinter(HANDLE hPrinter);

VIRTUALWINDOWS_API BOOL WINAPI GetJobW(HANDLE hPrinter, DWORD JobId, DWORD Level, LPBYTE pJob,
                                       DWORD cbBuf, LPDWORD pcbNeeded);
VIRTUALWINDOWS_API BOOL WINAPI EnumJobsW(HANDLE hPrinter, DWORD FirstJob, DWORD NoJobs, DWORD Level,
                                         LPBYTE pJob, DWORD cbBuf, LPDWORD pcbNeeded,
                                         LPDWORD pcReturned);
VIRTUALWINDOWS_API BOOL WINAPI SetJobW(HANDLE hPrinter, DWORD JobId, DWORD Level, LPBYTE pJob,
                                       DWORD Command);
