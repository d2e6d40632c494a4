// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "secret_file.h"

#include <QtCore/QFile>

std::optional<QByteArray> secret_file::password(const QString& path, QString* reason)
{
    // MQTT has 16 bits for the length of a password.
    constexpr qint64 longestPassword = 65535;
    *reason = objection(path);
    if (!reason->isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    QByteArray line = file.readLine(longestPassword + 2);
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (line.isEmpty() || line.size() > longestPassword || line.contains('\0')) {
        *reason = QStringLiteral("%1: expected a password in the first line, of at most %2 bytes")
                      .arg(path)
                      .arg(longestPassword);
        return std::nullopt;
    }
    return line;
}
