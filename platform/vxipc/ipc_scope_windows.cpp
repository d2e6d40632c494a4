// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_scope.h"

#include <QtCore/QDir>

#include <array>

#include <windows.h>

#include <lmcons.h>

namespace IpcScope {
namespace {

/// All users of the machine share one folder of pipes, so each has an ending of his own.
QString ending()
{
    std::array<wchar_t, UNLEN + 1> user = {};
    auto size = static_cast<DWORD>(user.size());
    if (!GetUserNameW(user.data(), &size))
        return {};
    return QLatin1Char('@') + QString::fromWCharArray(user.data());
}

} // namespace

QString address(const QString& name)
{
    return name + ending();
}

QString prepare()
{
    return ending().isEmpty() ? QStringLiteral("the user has no name: %1").arg(qt_error_string())
                              : QString();
}

QString lockFile()
{
    return QDir::temp().filePath(QStringLiteral("vxipc.lock"));
}

QStringList names(const QString& prefix)
{
    QStringList found;
    const QString mine = ending();
    WIN32_FIND_DATAW entry = {};
    const HANDLE search = FindFirstFileW(L"\\\\.\\pipe\\*", &entry);
    if (search == INVALID_HANDLE_VALUE)
        return found;
    do {
        const QString name = QString::fromWCharArray(entry.cFileName);
        if (name.startsWith(prefix) && name.endsWith(mine))
            found.append(name.chopped(mine.size()));
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    found.sort();
    return found;
}

} // namespace IpcScope
