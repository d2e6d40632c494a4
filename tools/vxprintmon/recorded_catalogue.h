// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/fleet.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// A temporary supply database of the rows that a case recorded.
class RecordedCatalogue
{
public:
    /// Throws `Failure` if the rows do not fit the tables of a supply database; `caseFile` is the
    /// file that they are from.
    RecordedCatalogue(const QList<virtualwindows::CatalogueRow>& rows, const QString& caseFile);

    /// Empty if the supply database is not our own: rows cannot be written then.
    QString file() const;

private:
    QTemporaryDir m_folder;
};
