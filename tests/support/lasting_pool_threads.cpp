// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Part of every process of the tests on Windows: under Wine, the threads on which Qt reads pipes
// last as long as the process. On Windows nothing is changed.
//
// Qt begins the next read of a pipe on the pool's thread that completed the one before
// (QWindowsPipeReader::waitCallback). Windows ends no thread of a pool that has begun a read which
// is not complete: https://learn.microsoft.com/windows/win32/procthread/thread-pooling
// https://learn.microsoft.com/windows/win32/api/threadpoollegacyapiset/nf-threadpoollegacyapiset-queueuserworkitem
// Wine ends each thread but the last after five idle seconds, and cancels its reads
// (wine/dlls/ntdll/threadpool.c, threadpool_worker_proc; wine/server/async.c,
// cancel_terminating_thread_asyncs). Qt then closes the connection, with error 995.
#include "import_table.h"
#include "is_wine.h"

#include <QtCore/QtGlobal>

#include <windows.h>

namespace {

/// Several, as on Windows, so that what one of them does can meet what another does.
constexpr DWORD poolThreads = 4;

/// A pool with a fixed number of threads, of which none ends. Lives as long as the process.
PTP_POOL createPool()
{
    const PTP_POOL pool = CreateThreadpool(nullptr);
    if (!pool)
        qFatal("Cannot create a thread pool for the test: error %lu", GetLastError());
    SetThreadpoolThreadMaximum(pool, poolThreads);
    if (!SetThreadpoolThreadMinimum(pool, poolThreads))
        qFatal("Cannot start the threads of the test's pool: error %lu", GetLastError());
    return pool;
}

/// CreateThreadpoolWait() for what would use the default pool of the process.
PTP_WAIT NTAPI createWait(PTP_WAIT_CALLBACK callback, PVOID context,
                          PTP_CALLBACK_ENVIRON environment)
{
    if (environment)
        return CreateThreadpoolWait(callback, context, environment);
    static const PTP_POOL pool = createPool();
    TP_CALLBACK_ENVIRON lasting;
    InitializeThreadpoolEnvironment(&lasting);
    SetThreadpoolCallbackPool(&lasting, pool);
    return CreateThreadpoolWait(callback, context, &lasting);
}

class LastingPoolThreads
{
public:
    LastingPoolThreads()
    {
        if (isWine() &&
            !replaceImports(L"Qt6Core.dll", "KERNEL32.dll",
                            {{"CreateThreadpoolWait", reinterpret_cast<ULONG_PTR>(&createWait)}})) {
            qFatal("Qt6Core.dll does not import CreateThreadpoolWait from KERNEL32.dll");
        }
    }
};

const LastingPoolThreads lastingPoolThreads;

} // namespace
