// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

using namespace virtualwindows;

namespace {

constexpr char16_t spoolerService[] = u"Spooler";
constexpr char16_t activeDatabase[] = u"ServicesActive";
constexpr char16_t failedDatabase[] = u"ServicesFailed";

SC_HANDLE asServiceHandle(HANDLE handle)
{
    return static_cast<SC_HANDLE>(handle);
}

bool isNamed(LPCWSTR name, const char16_t* wanted)
{
    return QString::fromUtf16(name).compare(QString::fromUtf16(wanted), Qt::CaseInsensitive) == 0;
}

} // namespace

SC_HANDLE WINAPI OpenSCManagerW(LPCWSTR lpMachineName, LPCWSTR lpDatabaseName,
                                DWORD dwDesiredAccess)
{
    const ApiCall call(Function::OpenSCManagerW, lpMachineName, lpDatabaseName, dwDesiredAccess);
    if (call.failsAsPlanned())
        return nullptr;
    if (lpMachineName && *lpMachineName)
        return failWith<SC_HANDLE>(RPC_S_SERVER_UNAVAILABLE, nullptr);
    if (lpDatabaseName && !isNamed(lpDatabaseName, activeDatabase)) {
        // This name is valid, but has no database.
        const bool isKnown = isNamed(lpDatabaseName, failedDatabase);
        return failWith<SC_HANDLE>(isKnown ? ERROR_DATABASE_DOES_NOT_EXIST : ERROR_INVALID_NAME,
                                   nullptr);
    }

    const auto manager =
        std::make_shared<ServiceObject>(Object::Kind::ServiceManager, call.function());
    manager->access = dwDesiredAccess;
    const std::lock_guard guard(machine().lock);
    return asServiceHandle(machine().open(manager));
}

SC_HANDLE WINAPI OpenServiceW(SC_HANDLE hSCManager, LPCWSTR lpServiceName, DWORD dwDesiredAccess)
{
    const ApiCall call(Function::OpenServiceW, hSCManager, lpServiceName, dwDesiredAccess);
    if (call.failsAsPlanned())
        return nullptr;

    const std::lock_guard guard(machine().lock);
    const auto manager =
        machine().find<ServiceObject>(hSCManager, Object::Kind::ServiceManager, call);
    if (!manager)
        return nullptr;
    if (!lpServiceName)
        return failWith<SC_HANDLE>(ERROR_INVALID_ADDRESS, nullptr);
    if (!isNamed(lpServiceName, spoolerService))
        return failWith<SC_HANDLE>(ERROR_SERVICE_DOES_NOT_EXIST, nullptr);

    const auto service = std::make_shared<ServiceObject>(Object::Kind::Service, call.function());
    service->access = dwDesiredAccess;
    return asServiceHandle(machine().open(service));
}

BOOL WINAPI QueryServiceStatus(SC_HANDLE hService, LPSERVICE_STATUS lpServiceStatus)
{
    const ApiCall call(Function::QueryServiceStatus, hService);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    const auto service = machine().find<ServiceObject>(hService, Object::Kind::Service, call);
    if (!service)
        return FALSE;
    if (!lpServiceStatus)
        return failWith(ERROR_INVALID_ADDRESS, FALSE);
    if (!(service->access & SERVICE_QUERY_STATUS))
        return failWith(ERROR_ACCESS_DENIED, FALSE);

    *lpServiceStatus = {};
    lpServiceStatus->dwServiceType = SERVICE_WIN32_OWN_PROCESS | SERVICE_INTERACTIVE_PROCESS;
    lpServiceStatus->dwCurrentState = machine().spoolerState;
    lpServiceStatus->dwControlsAccepted = machine().isSpoolerRunning() ? SERVICE_ACCEPT_STOP : 0;
    return TRUE;
}

BOOL WINAPI CloseServiceHandle(SC_HANDLE hSCObject)
{
    const ApiCall call(Function::CloseServiceHandle, hSCObject);
    const std::lock_guard guard(machine().lock);
    if (!machine().close(hSCObject, Object::Kind::ServiceManager, call) || call.failsAsPlanned())
        return FALSE;
    return TRUE;
}
