// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QString>

/// Makes the database file of a catalogue. It is made and checked elsewhere and then takes the
/// place of a file that is there already, at once: whoever opens the path finds the old one or the
/// new one in whole. The same catalogue gives the same bytes. Throws a Fault where it cannot be
/// done; the old file is as it was then.
void writeDatabase(const Catalogue& catalogue, const QString& path);
