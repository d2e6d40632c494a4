// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// For a supply database that is not our own: nobody but its library knows its tables.
#include "case_catalogue_rows.h"

namespace VxKit {

struct CaseCatalogueRows::Private
{
};

CaseCatalogueRows::CaseCatalogueRows() = default;
CaseCatalogueRows::~CaseCatalogueRows() = default;

void CaseCatalogueRows::setFile(const QString& /*fileName*/) {}

QJsonObject CaseCatalogueRows::rowsFor(const PublishedValues& /*values*/)
{
    return {};
}

} // namespace VxKit
