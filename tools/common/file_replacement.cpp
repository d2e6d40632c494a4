// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "file_replacement.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

void requireFileOrNothing(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw Failure(ToolText::tr("%1: not a file, so it is not replaced").arg(path));
}

void replaceFile(const QString& path, const QByteArray& bytes)
{
    requireFileOrNothing(path);
    QSaveFile target(path); // writes a file beside the path and renames it
    const bool isDone = target.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                        writeAll(target, bytes) && target.commit();
    if (!isDone)
        throw Failure(QStringLiteral("%1: %2").arg(path, target.errorString()));
}

bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    // If the disk fills up, one call writes only part of the bytes without an error, and the next
    // call fails and says why.
    for (qsizetype written = 0; written < bytes.size();) {
        const qint64 size = file.write(bytes.constData() + written, bytes.size() - written);
        if (size <= 0)
            return false;
        written += size;
    }
    return true;
}
