// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// For a supply database that is not our own: nobody but its library can write one.
#include "recorded_catalogue.h"

RecordedCatalogue::RecordedCatalogue(const QList<virtualwindows::CatalogueRow>& /*rows*/,
                                     const QString& /*caseFile*/)
{}

QString RecordedCatalogue::file() const
{
    return {};
}
