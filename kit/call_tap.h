// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Leads the library's calls to Windows through the kit. The entries of the loaded library's import
// table are replaced by functions that make the same call with the same arguments, keep its result
// and its last error, and tell a listener about both.
#pragma once

#include <QtCore/QString>

#include <span>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

namespace VxKit {

/// Is told about the library's calls after they have returned, on the thread that made them.
/// `error` is 0 for a call that succeeded.
class CallListener
{
public:
    CallListener() = default;
    virtual ~CallListener() = default;
    Q_DISABLE_COPY_MOVE(CallListener)

    virtual void opened(const char* printer, HANDLE handle, ACCESS_MASK access, DWORD error) = 0;
    virtual void readValue(const char* name, DWORD type, const BYTE* bytes, DWORD size,
                           DWORD needed, DWORD error) = 0;
    virtual void readRecord(HANDLE printer, DWORD level, const BYTE* record, DWORD error) = 0;
    /// Before the printers are listed.
    virtual void willList() = 0;
    /// `records` is null when only the size was asked for.
    virtual void listed(DWORD level, const BYTE* records, DWORD count, DWORD error) = 0;
    virtual void readDefault(const WCHAR* name, DWORD error) = 0;
    virtual void beganWatching(DWORD error) = 0;
    virtual void rearmed(DWORD error) = 0;
    virtual void queriedService(DWORD state, DWORD error) = 0;
    /// A call that says nothing unless it fails.
    virtual void failed(const char* function, DWORD error) = 0;
    virtual void willWait() = 0;
    virtual void waited(DWORD result, qint64 nanoseconds) = 0;
};

namespace call_tap {

/// A function of Windows that the library imports, and what is called instead.
struct Redirection
{
    const char* name;
    void* replacement;
};

/// Redirects the library's calls. May be called again, which costs nothing. False when none of them
/// could be redirected; the library then is not the one that this was made for.
bool install();

/// Null: nobody. A listener that has been set must exist until the process ends, because another
/// thread may be telling it something at any time.
void setListener(CallListener* listener);

/// Replaces entries in the import table of the library that contains an address. How many have been
/// replaced, including those that were before. Each system has its own source file.
int redirectImports(const void* inLibrary, std::span<const Redirection> redirections);

/// Keeps the library that contains an address loaded until the process ends.
void pin(const void* inLibrary);

} // namespace call_tap

} // namespace VxKit
