// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "secret_file.h"

#include "file_rights_windows.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

QString secret_file::objection(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        return QStringLiteral("%1: expected a file").arg(shown);
    const file_rights::Others others =
        file_rights::others(path, file_rights::read | file_rights::change);
    if (others.error != ERROR_SUCCESS)
        return QStringLiteral("cannot read %1: %2")
            .arg(shown, qt_error_string(static_cast<int>(others.error)).trimmed());
    if (!others.accounts.isEmpty())
        // The numbers are those of the administrators and the system in every language:
        // https://learn.microsoft.com/windows-server/administration/windows-commands/icacls
        return QStringLiteral(
                   "others may use %1: %2; allow it to the administrators and the system "
                   "alone with \"icacls FILE /setowner *S-1-5-32-544\" and \"icacls FILE "
                   "/inheritance:r /grant:r *S-1-5-18:R *S-1-5-32-544:F\"")
            .arg(shown, others.accounts.join(QLatin1String(", ")));
    if (QFile opened(path); !opened.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot read %1: %2").arg(shown, opened.errorString());
    return {};
}
