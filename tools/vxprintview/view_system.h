// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What is different on each system. Each has its own source file.
namespace view_system {

/// Whether the system has a window of its own with the jobs of a printer.
bool hasPrintQueue();
/// Opens that window. False when it could not be opened.
bool openPrintQueue(const QString& printer);

/// Where what is used is recorded, unless the user names a file; empty for virtual printers, which
/// are nobody's.
QString historyFile();

/// The name for a local server of this user.
QString serverName(const QString& name);

} // namespace view_system
