// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The catalogue of supplies that a tool reads if it is told of no other: `roll.db` beside the
/// program; if that is missing, `share/VxPrinterStatus/roll.db` of the prefix that the program was
/// installed in. If neither exists, it is the path of the first, where a catalogue would be put.
QString defaultCatalogue();
