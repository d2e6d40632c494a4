// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "file_replacement.h"

#include "fault.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

void requireFileOrNothing(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw Fault(QStringLiteral("%1: not a file, so nothing is put in its place").arg(path));
}

void replaceFile(const QString& path, const QByteArray& bytes)
{
    requireFileOrNothing(path);
    QSaveFile target(path); // writes beside the path and renames
    bool isDone = target.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    // Where the room ends within the bytes, the first call writes a part of them without an error,
    // and the next one says why.
    for (qsizetype written = 0; isDone && written < bytes.size();) {
        const qint64 size = target.write(bytes.constData() + written, bytes.size() - written);
        isDone = size > 0;
        written += size;
    }
    if (!isDone || !target.commit())
        throw Fault(QStringLiteral("%1: %2").arg(path, target.errorString()));
}
