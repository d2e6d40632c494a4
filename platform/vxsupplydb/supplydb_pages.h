// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

class QIODevice;

/// Checks the structure of an untrusted file before SQLite opens it.
///
/// SQLite follows whatever a file contains: a view in place of a table may produce endless rows, a
/// page may be its own child, and a name may be as long as the file. A statement that runs into
/// this cannot be stopped. A file that passes this check can be read in bounded time and memory: it
/// has exactly the tables and indices of a supply database, uses each page once, and has no row and
/// no completely read table above the limits.
///
/// The check covers only what keeps reading bounded. The file may still have invalid values, or
/// damage that SQLite itself detects.
namespace supplydb_pages {

/// Why a file that begins with the header of a supply database must not be read; empty if it may be
/// read.
QString fault(QIODevice& file);

} // namespace supplydb_pages
