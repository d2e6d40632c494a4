// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

class QIODevice;

/// Looks at a file as SQLite would, before SQLite does.
///
/// SQLite follows whatever a file says: a view in the place of a table may have no end, a page may
/// be its own child, and a name may be as long as the file. Nothing could end a statement that is
/// caught in that. What has passed here can be read in bounded time and memory: the file has the
/// tables and indices of a supply database and nothing else, each of its pages is used once, and
/// the tables that are read in whole, and all rows, are of bounded size.
///
/// Only what bounds the reading is looked at. Contents that no supply database has may be left, and
/// damage that SQLite finds itself.
namespace supplydb_pages {

/// Why a file that begins with the header of a supply database is not to be read; empty when it is
/// in order.
QString fault(QIODevice& file);

} // namespace supplydb_pages
