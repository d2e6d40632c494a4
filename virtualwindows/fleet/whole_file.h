// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace virtualwindows {

/// The content of a file. Throws FleetError if it cannot be read or has more bytes.
QByteArray readWholeFile(const QString& fileName, qsizetype mostBytes);

} // namespace virtualwindows
