// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Keeps what the library logs off standard error, and with a file's name writes it to the end of
/// that file. The answer is what is wrong with the file, empty if nothing is.
QString keepLibraryLog(const QString& fileName);
