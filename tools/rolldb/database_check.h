// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What a supply database holds, counted.
struct DatabaseCounts
{
    int supplies = 0;
    int ribbons = 0;
    int settings = 0;
    int languages = 0;
};

/// Looks at everything in a file: its structure as SQLite keeps it, its schema, its references, and
/// what no constraint of the schema can express. Throws a Fault for the first thing wrong.
DatabaseCounts checkDatabase(const QString& path);
