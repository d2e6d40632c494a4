// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFileDevice>
#include <QtCore/QString>

/// Replaces the content of a file atomically: the path always has either the complete old file or
/// the complete new one. Throws a Failure on failure, which leaves the old file unchanged. A path
/// that is not a regular file, such as a device or a pipe, is not replaced.
void replaceFile(const QString& path, const QByteArray& bytes);

/// Throws a Failure if the path exists and is not a regular file.
void requireFileOrNothing(const QString& path);

/// Writes all bytes to a file that was opened without a buffer. If that fails, the file says why.
bool writeAll(QFileDevice& file, const QByteArray& bytes);
