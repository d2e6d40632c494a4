// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <windows.h>

namespace VxKit {

/// The names of the values that a printer's driver publishes, as far as the system tells them. Each
/// system has its own source file.
QList<QByteArray> publishedValueNames(const QString& printerName, HANDLE printer);

} // namespace VxKit
