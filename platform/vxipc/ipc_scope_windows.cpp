// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_scope.h"

#include "windows_security.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace ipc_scope {
namespace {

/// All users of the machine share one namespace of pipes, so each user's names have an ending of
/// their own. It is the security identifier, as users of two domains may have the same name.
QString ending()
{
    const QString user = windows_security::userOfProcess();
    return user.isEmpty() ? QString() : QLatin1Char('@') + user;
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
    return ending().isEmpty()
               ? QStringLiteral("the user cannot be determined: %1").arg(qt_error_string())
               : QString();
}

// connectToEndpoint() asks the open pipe for its owner.
QString distrust(const QString& /*name*/)
{
    return {};
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

} // namespace ipc_scope
