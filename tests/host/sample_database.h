// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Puts the sample catalogue's supplies and ribbons into a folder, as the file that the library
/// looks for beside its host.
void writeSampleDatabase(const QString& folder);
