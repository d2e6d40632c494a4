// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "test_file.h"

#include <QtCore/QDir>

QString testFile(const char* path)
{
    QString file = QString::fromUtf8(path);
    const QString root = qEnvironmentVariable("VX_TEST_ROOT");
    if (root.isEmpty())
        return file;
    // The build tree first, because it usually is in the folder with the sources.
    const QString build = QStringLiteral(VX_BUILD_ROOT "/");
    const QString source = QStringLiteral(VX_SOURCE_ROOT "/");
    if (file.startsWith(build))
        return QDir(root).filePath(file.sliced(build.size()));
    if (file.startsWith(source))
        return QDir(root).filePath(QStringLiteral("source/") + file.sliced(source.size()));
    return file;
}
