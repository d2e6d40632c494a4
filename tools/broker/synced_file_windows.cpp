// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "synced_file.h"

#include <QtCore/QDir>

#include <utility>

#include <io.h>
#include <windows.h>

bool synced_file::sync(QFile& file, QString* reason)
{
    // https://learn.microsoft.com/windows/win32/api/fileapi/nf-fileapi-flushfilebuffers
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle())); // NOLINT
    if (FlushFileBuffers(handle))
        return true;
    *reason = qt_error_string(static_cast<int>(GetLastError()));
    return false;
}

bool synced_file::syncFolder(const QString& /*folder*/, QString* /*reason*/)
{
    return true;
}

bool HeldFile::tryToHold(const QString& path, QString* reason)
{
    release();
    // A file that is shared with nobody can be opened once at a time.
    const HANDLE handle = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(),
                                      GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        m_handle = reinterpret_cast<std::intptr_t>(handle);
        return true;
    }
    const DWORD error = GetLastError();
    *reason =
        error == ERROR_SHARING_VIOLATION ? QString() : qt_error_string(static_cast<int>(error));
    return false;
}

void HeldFile::release()
{
    if (m_handle != -1)
        CloseHandle(reinterpret_cast<HANDLE>(std::exchange(m_handle, -1))); // NOLINT
}
