// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_item.h"

#include <QtCore/QHash>
#include <QtCore/QList>

#include <optional>
#include <vector>

#include <winspool.h>

namespace VxKit {

/// What the print spooler lists, as far as it has been recorded, and how it was at earlier steps.
/// What is found to be different becomes lines, without their times.
///
/// The library's threads report in their own time: when the controller handles what one of them
/// found at a step, further steps may already have been recorded. What the controller sees then was
/// so at that step.
class SpoolerState
{
public:
    /// For states that are not seen while a step is handled.
    static constexpr int now = -1;

    /// Compares with a listing of level 2. Printers that are gone and new ones are taken for
    /// renamed ones if that is possible and nothing else is.
    QList<QJsonObject> compare(const PRINTER_INFO_2W* records, DWORD count, int at, int lastStep,
                               bool mayBeRenamed);
    /// Whether a listing has as many printers and the driver of one is as it was. It is what the
    /// controller looks for in a listing while it handles a report, which happens so often that
    /// comparing everything would take too long.
    bool isSameDriver(const PRINTER_INFO_2W* records, DWORD count, const QString& name) const;
    /// Compares one printer.
    std::optional<QJsonObject> comparePrinter(const QString& name, const PRINTER_INFO_2W& record,
                                              int at, int lastStep);
    bool areRightsKnown(const QString& name) const;
    std::optional<QJsonObject> compareRights(const QString& name, bool isAdministrable, int at);
    /// Null: there is none.
    std::optional<QJsonObject> compareDefault(const QString& name, int at, int lastStep);
    /// It was so from the beginning.
    void setDefault(const QString& name);
    std::optional<QJsonObject> compareService(DWORD state);
    static QJsonObject serviceLine(DWORD state);
    std::optional<DWORD> service() const { return m_service; }
    /// A printer is known to have another name.
    std::optional<QJsonObject> rename(const QString& name, const QString& newName);

    void clear();
    /// Counts the changes.
    unsigned version() const { return m_version; }
    QStringList names() const;
    bool contains(const QString& name) const { return m_index.contains(name); }
    /// The same name, in the memory in which it is kept here.
    QString sharedName(const QString& name) const;
    /// The name of a printer as the library passes it, which is 8-bit text.
    QString nameOf(const char* narrow) const;
    DWORD jobs(const QString& name) const;
    QString driver(const QString& name) const;

private:
    struct Past
    {
        int step; ///< it was so before this step and later ones
        DWORD attributes;
        DWORD status;
    };
    struct Printer
    {
        QString name;
        QByteArray narrowName;
        QString driver; ///< null: the spooler reports none
        QString port;
        DWORD jobs = 0;
        std::optional<bool> isAdministrable;
        std::vector<Past> past; ///< the last one is the present
    };
    struct PastDefault
    {
        int step;
        QString name;
    };

    static const Past& pastAt(const Printer& printer, int step);
    static bool isSame(const Printer& printer, const PRINTER_INFO_2W& record, int at);
    QJsonObject change(Printer& printer, const PRINTER_INFO_2W& record, int at, int lastStep);
    void buildIndex();

    std::vector<Printer> m_printers;
    QHash<QString, int> m_index;
    std::vector<PastDefault> m_defaults;
    std::optional<DWORD> m_service;
    unsigned m_version = 0;
};

/// The fields of a printer's line, without its values.
QJsonObject printerFields(const PRINTER_INFO_2W& record);

} // namespace VxKit
