// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_item.h"

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <memory>

namespace VxKit {

/// Reads the rows of the catalogue that supplies and ribbons need, each once. Used on one thread.
/// Only the format of our own supply database is known; there are no rows of another one.
class CaseCatalogueRows
{
public:
    CaseCatalogueRows();
    ~CaseCatalogueRows();
    Q_DISABLE_COPY_MOVE(CaseCatalogueRows)

    /// The file from now on. Everything is read again.
    void setFile(const QString& fileName);
    /// The line "catalogue" with the rows that are needed for the first time; empty if there are
    /// none.
    QJsonObject rowsFor(const PublishedValues& values);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
