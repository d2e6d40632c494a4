// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the print spooler lists, and how one listing differs from the next.
#pragma once

#include "spooler_owners.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace VxKit {

/// A printer as the spooler lists it.
struct SpoolerEntry
{
    QString name;
    QString driver;
    QString port;
    DWORD attributes = 0;
    bool isOnline = true;
    bool isSupported = false;              ///< its driver is that of a supported model
    std::optional<bool> isAdministrable{}; ///< unknown until it was tried
};

/// How one listing differs from the one before.
struct ListingChanges
{
    bool any = false; ///< also something for which there is no detail
    QStringList gone;
    QList<QPair<QString, QString>> renamed; ///< from, to
    QStringList added;
    QList<QPair<QString, bool>> online;
    QList<QPair<QString, bool>> administrable;
};

/// The printers that the spooler lists. It keeps its memory between listings.
class PrinterListing
{
public:
    enum class Outcome
    {
        Same,
        Different, ///< fetched, but not yet taken over
        Failed,    ///< error() says why
    };

    /// Lists the printers with everything that `SpoolerEntry` holds.
    Outcome list();
    /// Lists only what is cheap to list, names and attributes. What else has changed goes
    /// unnoticed.
    Outcome listNames();

    /// How the printers that `list()` fetched last differ from the current ones. `mayBeRenamed`:
    /// none was added or deleted, so that a name that is gone and a new one belong together if
    /// nothing else fits them.
    ListingChanges differences(bool mayBeRenamed) const;
    /// Whether a name is gone and another one is new.
    bool hasRenameCandidates() const;
    /// Makes the printers that `list()` fetched last the current ones.
    void takeOver();

    /// Tries the rights of up to `count` printers of supported models, and their offline states if
    /// `alsoOnline`, each time of those that follow.
    ListingChanges inspect(int count, bool alsoOnline);

    QStringList names() const;
    /// The system's error code of the last listing that failed.
    DWORD error() const { return m_error; }

private:
    bool fetch(DWORD level);

    std::vector<BYTE> m_block;
    DWORD m_count = 0; ///< of records in the block
    DWORD m_error = 0;
    QList<SpoolerEntry> m_printers;
    QList<SpoolerEntry> m_fetched;
    qsizetype m_nextToInspect = 0;
};

/// The user's default printer, empty if there is none; no value when it cannot be queried.
std::optional<QString> queryDefaultPrinter();

} // namespace VxKit
