// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <case_file.h>
#include <case_readings.h>

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

/// Takes the lines of a case apart into facts: flat objects that conditions are easily written for.
/// docs/case-files.md lists them with their members.
class CaseFacts
{
public:
    /// The facts of a line, in order.
    QList<QJsonObject> of(const VxKit::CaseLine& line);

private:
    struct Printer
    {
        bool isSupported = false;
        bool hasSecondRibbon = false;
        bool isAdministrable = true;
        quint32 attributes = 0;
        quint32 status = 0;
        QString port;
    };
    static bool isWatched(const Printer& printer);

    void addPrinter(const QJsonObject& object, bool isWhole);
    void addValues(const QString& printer, const QJsonValue& values);
    void addMissing(const QString& printer, const QString& value);
    void addFailures(const VxKit::CaseLine& line, const QString& printer);
    void addEvents(const QList<VxKit::PrinterEvent>& events);
    void add(const char* fact, const QString& printer, const QJsonObject& members = {});
    bool isExpected(const QString& printer, const QString& value) const;

    VxKit::CaseReadings m_readings;
    QHash<QString, Printer> m_printers;
    QList<QJsonObject> m_facts;
};
