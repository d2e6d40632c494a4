// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Writes roll.db, with the supplies and ribbons of the sample catalogue, into a folder. The
/// library looks for it beside its host.
void writeSampleDatabase(const QString& folder);
