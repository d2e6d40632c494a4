// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_status_thread.h"

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QStringList>

/// One signal of a monitoring thread: its name, the printer's name and the new values.
struct Report
{
    QString signal;
    QString printer;
    QStringList values;

    bool operator==(const Report&) const = default;
};

/// A report as one text, for the message of a failed comparison.
inline char* toString(const Report& report)
{
    return qstrdup(qPrintable(
        QStringLiteral("%1(%2; %3)")
            .arg(report.signal, report.printer, report.values.join(QStringLiteral(", ")))));
}

/// Records every signal of a thread in the order in which they are emitted, on the thread itself.
class ReportRecorder
{
public:
    explicit ReportRecorder(PrinterStatusThread& thread)
    {
        using Thread = PrinterStatusThread;
        listen(thread, &Thread::supplyIdChanged, "supplyIdChanged");
        listen(thread, &Thread::printerStatusChanged, "printerStatusChanged");
        listen(thread, &Thread::supplyIntMileageChanged, "supplyIntMileageChanged");
        listen(thread, &Thread::ribbon1IntMileageChanged, "ribbon1IntMileageChanged");
        listen(thread, &Thread::ribbon2IntMileageChanged, "ribbon2IntMileageChanged");
        listen(thread, &Thread::printerNameChangedSignal, "printerNameChangedSignal");
        listen(thread, &Thread::softwareVersionChanged, "softwareVersionChanged");
        listen(thread, &Thread::updateProgressChanged, "updateProgressChanged");
        listen(thread, &Thread::updateErrorChanged, "updateErrorChanged");
        listen(thread, &Thread::ethernetConfigChanged, "ethernetConfigChanged");
        QObject::connect(
            &thread, &Thread::ribbonIdsChanged, &thread,
            [this](const QString& printer, const QList<QString>& ids) {
                add({QStringLiteral("ribbonIdsChanged"), printer, ids});
            },
            Qt::DirectConnection);
    }

    /// What was reported since the last call.
    QList<Report> take()
    {
        const QMutexLocker guard(&m_mutex);
        return std::exchange(m_reports, {});
    }

private:
    using ValueSignal = void (PrinterStatusThread::*)(QString, const QString&);

    void listen(PrinterStatusThread& thread, ValueSignal signal, const char* name)
    {
        QObject::connect(
            &thread, signal, &thread,
            [this, name](const QString& printer, const QString& value) {
                add({QString::fromLatin1(name), printer, {value}});
            },
            Qt::DirectConnection);
    }

    void add(const Report& report)
    {
        const QMutexLocker guard(&m_mutex);
        m_reports.append(report);
    }

    QMutex m_mutex;
    QList<Report> m_reports;
};
