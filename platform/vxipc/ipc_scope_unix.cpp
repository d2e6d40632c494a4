// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_scope.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace IpcScope {
namespace {

/// The folder that the session gave the user, or one of our own where there is no session.
QString directory()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty())
        return runtime;
    return QStringLiteral("%1/vxipc-%2").arg(QDir::tempPath()).arg(geteuid());
}

} // namespace

QString address(const QString& name)
{
    return directory() + QLatin1Char('/') + name;
}

QString prepare()
{
    const QString path = directory();
    const QByteArray nativePath = QFile::encodeName(path);
    // Fails where the folder exists, which is what the checks below are for: in a folder that
    // everybody writes to, anybody may have made it.
    mkdir(nativePath.constData(), S_IRWXU);
    struct stat status = {};
    if (lstat(nativePath.constData(), &status) != 0)
        return QStringLiteral("%1: %2").arg(path, qt_error_string());
    if (!S_ISDIR(status.st_mode))
        return QStringLiteral("%1 is not a folder").arg(path);
    if (status.st_uid != geteuid() || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return QStringLiteral("%1: other users may write to it").arg(path);
    return {};
}

QString lockFile(const QString& name)
{
    return address(name + QLatin1String(".lock"));
}

// The socket's own entry in the folder says that it is there.
void announce(const QString& /*name*/) {}
void withdraw(const QString& /*name*/) {}

QStringList names(const QString& prefix)
{
    return QDir(directory()).entryList({prefix + QLatin1Char('*')}, QDir::System, QDir::Name);
}

} // namespace IpcScope
