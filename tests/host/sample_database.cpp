// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A file of its own: the catalogue and the Windows headers have names in common.
#include "sample_database.h"

#include <catalogue.h>
#include <catalogue_writer.h>

void writeSampleDatabase(const QString& folder)
{
    writeDatabase(readCatalogueDirectory(QStringLiteral(VX_SAMPLE_CATALOGUE)),
                  folder + QStringLiteral("/roll.db"));
}
