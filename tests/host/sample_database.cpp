// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// In a file of its own, because the catalogue and the Windows headers define the same names.
#include "sample_database.h"
#include "test_file.h"

#include <catalogue.h>
#include <catalogue_writer.h>

void writeSampleDatabase(const QString& folder)
{
    writeDatabase(readCatalogueDirectory(testFile(VX_SAMPLE_CATALOGUE)),
                  folder + QStringLiteral("/roll.db"));
}
