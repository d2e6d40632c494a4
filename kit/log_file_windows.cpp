// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "log_file.h"

#include <QtCore/QDir>

#include <string>

#include <windows.h>

namespace VxKit {

namespace {

/// Others may write the file, and also rename and delete it, which Windows otherwise refuses while
/// it is open.
constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring nativeName(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

HANDLE openFile(const QString& path, DWORD access, DWORD sharing, DWORD disposition)
{
    return CreateFileW(nativeName(path).c_str(), access, sharing, nullptr, disposition,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::intptr_t numberOf(HANDLE handle)
{
    return reinterpret_cast<std::intptr_t>(handle);
}

HANDLE handleOf(std::intptr_t number)
{
    return reinterpret_cast<HANDLE>(number); // NOLINT(performance-no-int-to-ptr)
}

/// Reads or writes at a place, whatever the file's own position is.
OVERLAPPED placeAt(quint64 offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

} // namespace

LogFile LogFile::forAppending(const QString& path)
{
    LogFile file;
    // FILE_APPEND_DATA without FILE_WRITE_DATA: every write goes to the end of the file.
    // https://learn.microsoft.com/windows/win32/fileio/file-access-rights-constants
    file.take(numberOf(openFile(path, FILE_READ_DATA | FILE_READ_ATTRIBUTES | FILE_APPEND_DATA,
                                sharedWithAll, OPEN_ALWAYS)));
    return file;
}

LogFile LogFile::forReading(const QString& path)
{
    LogFile file;
    file.take(numberOf(openFile(path, GENERIC_READ, sharedWithAll, OPEN_EXISTING)));
    return file;
}

void LogFile::take(Handle handle)
{
    if (handle == none) {
        const DWORD error = GetLastError();
        m_isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        setError(static_cast<int>(error));
        return;
    }
    if (GetFileType(handleOf(handle)) == FILE_TYPE_DISK) {
        m_handle = handle;
        return;
    }
    CloseHandle(handleOf(handle));
    setError(ERROR_INVALID_NAME);
}

void LogFile::close()
{
    if (isOpen())
        CloseHandle(handleOf(std::exchange(m_handle, none)));
}

void LogFile::setError(int error)
{
    m_error = qt_error_string(error);
}

qint64 LogFile::size() const
{
    LARGE_INTEGER size = {};
    return GetFileSizeEx(handleOf(m_handle), &size) ? size.QuadPart : -1;
}

qint64 LogFile::readAt(qint64 offset, char* buffer, qint64 capacity)
{
    OVERLAPPED place = placeAt(static_cast<quint64>(offset));
    DWORD read = 0;
    if (ReadFile(handleOf(m_handle), buffer, static_cast<DWORD>(capacity), &read, &place))
        return read;
    const DWORD error = GetLastError();
    if (error == ERROR_HANDLE_EOF)
        return 0;
    setError(static_cast<int>(error));
    return -1;
}

qint64 LogFile::append(QByteArrayView bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        DWORD size = 0;
        if (!WriteFile(handleOf(m_handle), bytes.data() + written,
                       static_cast<DWORD>(bytes.size() - written), &size, nullptr) ||
            size == 0) {
            setError(static_cast<int>(GetLastError()));
            break;
        }
        written += size;
    }
    return written;
}

bool LogFile::isSameAs(const LogFile& other) const
{
    BY_HANDLE_FILE_INFORMATION one = {};
    BY_HANDLE_FILE_INFORMATION two = {};
    return GetFileInformationByHandle(handleOf(m_handle), &one) &&
           GetFileInformationByHandle(handleOf(other.m_handle), &two) &&
           one.dwVolumeSerialNumber == two.dwVolumeSerialNumber &&
           one.nFileIndexHigh == two.nFileIndexHigh && one.nFileIndexLow == two.nFileIndexLow;
}

LogLock::Outcome LogLock::tryToTake(const QString& path)
{
    release();
    // A file that is shared with nobody can be opened once at a time.
    const HANDLE handle = openFile(path, GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS);
    if (handle != INVALID_HANDLE_VALUE) {
        m_handle = numberOf(handle);
        return Outcome::Held;
    }
    const DWORD error = GetLastError();
    m_error = qt_error_string(static_cast<int>(error));
    return error == ERROR_SHARING_VIOLATION ? Outcome::Busy : Outcome::Failed;
}

void LogLock::release()
{
    if (m_handle != -1)
        CloseHandle(handleOf(std::exchange(m_handle, -1)));
}

QString moveLogFile(const QString& from, const QString& to)
{
    if (MoveFileExW(nativeName(from).c_str(), nativeName(to).c_str(), MOVEFILE_REPLACE_EXISTING))
        return {};
    return qt_error_string(static_cast<int>(GetLastError()));
}

} // namespace VxKit
