// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "supply_catalogue.h"

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace VxKit {

/// The rows of the catalogue that a case file holds.
class CaseCatalogue
{
public:
    /// The tables of a line "catalogue". They add to what is known.
    void add(const QJsonObject& all);

    /// Null when the rows have nothing for the identifier. Names are in the application's language
    /// where the rows have it, else in English.
    CatalogueItemPointer supply(const QString& identifier) const;
    CatalogueItemPointer ribbon(const QString& identifier) const;

private:
    /// The row of a table whose first column has a key.
    QJsonObject row(const char* table, const QString& key) const;
    QString name(const QJsonValue& id) const;
    int rgb(const QJsonValue& colourId) const;
    QString colourName(const QJsonValue& colourId) const;

    QHash<QString, QHash<QString, QJsonObject>> m_tables; ///< by their keys
};

} // namespace VxKit
