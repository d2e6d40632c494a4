// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_scope.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace ipc_scope {
namespace {

/// The runtime folder of the user's session, or a folder of our own where there is no session. A
/// relative path would mean a different folder for each working directory; it is ignored, as the
/// XDG Base Directory Specification requires.
QString directory()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(runtime))
        return runtime;
    const QString temporary = QDir::tempPath();
    return QStringLiteral("%1/vxipc-%2")
        .arg(QDir::isAbsolutePath(temporary) ? temporary : QStringLiteral("/tmp"))
        .arg(geteuid());
}

enum class Kind : quint8
{
    Folder,
    Socket,
};

/// Why what is at `path` is not the user's own; empty when it is, or when nothing is there.
QString fault(const QString& path, Kind kind)
{
    struct stat entry = {};
    if (lstat(QFile::encodeName(path).constData(), &entry) != 0)
        return errno == ENOENT ? QString()
                               : QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    if (kind == Kind::Folder && !S_ISDIR(entry.st_mode))
        return QStringLiteral("%1 is not a folder").arg(path);
    if (kind == Kind::Socket && !S_ISSOCK(entry.st_mode))
        return QStringLiteral("%1 is not a socket").arg(path);
    if (entry.st_uid != geteuid())
        return QStringLiteral("%1 belongs to another user").arg(path);
    if ((entry.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return QStringLiteral("%1: other users may write to it").arg(path);
    return {};
}

} // namespace

QString address(const QString& name)
{
    return directory() + QLatin1Char('/') + name;
}

QString prepare()
{
    const QString path = directory();
    // The folder may exist already. Where everybody can write, anybody may have created it, so it
    // is checked.
    if (mkdir(QFile::encodeName(path).constData(), S_IRWXU) != 0 && errno != EEXIST)
        return QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
    return fault(path, Kind::Folder);
}

QString distrust(const QString& name)
{
    const QString obstacle = fault(directory(), Kind::Folder);
    // In a folder that only the user can write to, nobody else can replace the socket afterwards.
    return obstacle.isEmpty() && !name.isEmpty() ? fault(address(name), Kind::Socket) : obstacle;
}

// The socket's entry in the folder announces it.
void announce(const QString& /*name*/) {}
void withdraw(const QString& /*name*/) {}

QStringList names(const QString& prefix)
{
    return QDir(directory()).entryList({prefix + QLatin1Char('*')}, QDir::System, QDir::Name);
}

} // namespace ipc_scope
