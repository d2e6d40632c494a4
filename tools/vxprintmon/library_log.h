// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Keeps the library's log off standard error and, if a file is named, appends it to that file.
/// Throws `Failure` if the file cannot be written.
void setUpLibraryLog(const QString& fileName);
