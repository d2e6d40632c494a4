// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_scope.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

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

/// A file for each published name. Not every system that runs Windows programs lists its pipes.
QDir announcements()
{
    return QDir(QDir::temp().filePath(QStringLiteral("vxipc")));
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

QString lockFile(const QString& name)
{
    return QDir::temp().filePath(name + QLatin1String(".lock"));
}

void announce(const QString& name)
{
    const QDir folder = announcements();
    folder.mkpath(QStringLiteral("."));
    QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
}

void withdraw(const QString& name)
{
    QFile::remove(announcements().filePath(name));
}

QStringList names(const QString& prefix)
{
    return announcements().entryList({prefix + QLatin1Char('*')}, QDir::Files, QDir::Name);
}

} // namespace IpcScope
