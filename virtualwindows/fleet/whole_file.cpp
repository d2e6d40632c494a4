// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "whole_file.h"

#include "message_text.h"
#include "virtualwindows/fleet.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace virtualwindows {

QByteArray readWholeFile(const QString& fileName, qsizetype mostBytes)
{
    constexpr qsizetype mebibyte = qsizetype(1024) * 1024;
    const auto fail = [&](const QString& why) {
        throw FleetError(escaped(fileName + QStringLiteral(": ") + why));
    };
    QFile file(fileName);
    if (QFileInfo(file).isDir())
        fail(QStringLiteral("expected a file, found a folder"));
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    // Devices and pipes have no size, so the bytes are counted as they are read.
    QByteArray text;
    while (text.size() <= mostBytes) {
        const QByteArray more = file.read(mebibyte);
        if (more.isEmpty())
            break;
        text.append(more);
    }
    if (text.size() > mostBytes)
        fail(QStringLiteral("expected at most %1 MiB").arg(mostBytes / mebibyte));
    if (file.error() != QFileDevice::NoError)
        fail(file.errorString());
    return text;
}

} // namespace virtualwindows
