// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Puts bytes in the place of a file, at once: whoever opens the path finds the old file or the new
/// one in whole. Throws a Fault where it cannot be done; the old file is as it was then. What is
/// there and is no file, such as a device or a pipe, is left alone.
void replaceFile(const QString& path, const QByteArray& bytes);

/// Throws a Fault when something is at the path that is no file.
void requireFileOrNothing(const QString& path);
