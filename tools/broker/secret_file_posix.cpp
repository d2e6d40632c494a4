// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "secret_file.h"

#include <QtCore/QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

QString secret_file::objection(const QString& path)
{
    struct stat entry = {};
    const QByteArray name = QFile::encodeName(path);
    if (::stat(name.constData(), &entry) != 0)
        return QStringLiteral("cannot read %1: %2").arg(path, qt_error_string(errno));
    if (!S_ISREG(entry.st_mode))
        return QStringLiteral("%1: expected a file").arg(path);
    if (entry.st_uid != geteuid() && entry.st_uid != 0)
        return QStringLiteral(
                   "%1 belongs to another user, who may change it; give it to the agent's "
                   "user with \"chown\"")
            .arg(path);
    if ((entry.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        return QStringLiteral("others may use %1; allow it to its owner alone with \"chmod 600\"")
            .arg(path);
    if (::access(name.constData(), R_OK) != 0)
        return QStringLiteral("cannot read %1: %2").arg(path, qt_error_string(errno));
    return {};
}
