// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_item.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>

#include <optional>
#include <vector>

namespace VxKit {

/// Everything as it is after the lines so far: what a file that begins now has to begin with.
class CaseWorld
{
public:
    void apply(const CaseItem& item);
    /// The lines of a beginning, without records and "begun".
    QList<QJsonObject> beginning() const;
    /// Everything is read again; only the catalogue stays.
    void reset();
    template <typename Use>
    void forEachPrinter(Use use) const
    {
        for (const Printer& printer : m_printers)
            use(printer.values);
    }
    QStringList names() const;
    int printerCount() const { return static_cast<int>(m_printers.size()); }

private:
    struct Printer
    {
        QString name;
        QString driver; ///< null: the spooler reports none
        QString port;
        qint64 attributes = 0;
        qint64 status = 0;
        std::optional<bool> isAdministrable;
        PublishedValues values;
        QMap<qint64, QJsonObject> jobs; ///< in its queue, by number
    };

    static void setFields(Printer& printer, const QJsonObject& line);
    void addToIndex(std::size_t number);
    void buildIndex();
    void applyLine(const CaseItem& item);
    void applyJob(const QJsonObject& line);
    Printer* find(const QString& name);

    std::vector<Printer> m_printers;
    QHash<QString, int> m_index;
    /// The same by where the names lie, which is found sooner.
    QHash<const QChar*, int> m_places;
    QList<QJsonObject> m_devices;
    QList<QJsonObject> m_catalogue;
    std::optional<QJsonObject> m_service;
    std::optional<QJsonObject> m_default;
};

} // namespace VxKit
