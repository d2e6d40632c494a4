// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "log_recorder.h"
#include "machine_test.h"
#include "report_recorder.h"

#include <optional>

using namespace std::chrono_literals;
using virtualwindows::Call;
using virtualwindows::PrinterValue;

inline const QString labelPrinter = QStringLiteral("Label Printer");

/// Base of the tests that watch one printer with one thread. Time passes only when a test lets it
/// pass.
class ThreadTest : public MachineTest
{
    Q_OBJECT

protected:
    static QByteArray supplyIdentifier(char digit) { return {20, digit}; }

    /// One value for each name, all different.
    static QList<PrinterValue> everyValue(char digit = '1')
    {
        const auto number = static_cast<quint32>(digit - '0') * 100;
        return {
            PrinterValue::text("SupplyIdentifier", supplyIdentifier(digit)),
            PrinterValue::number("Ribbon1Identifier", number + 1),
            PrinterValue::number("Ribbon2Identifier", number + 2),
            PrinterValue::text("StatusCode", QByteArray(1, digit)),
            PrinterValue::text("SoftwareVersion", QByteArray("version ") + digit),
            PrinterValue::text("EthernetConfig", QByteArray("network ") + digit),
            PrinterValue::number("Mileage", number + 3),
            PrinterValue::number("Ribbon1Mileage", number + 4),
            PrinterValue::number("Ribbon2Mileage", number + 5),
            PrinterValue::number("UpdateProgress", number + 6),
            PrinterValue::number("UpdateError", number + 7),
        };
    }

    static Report report(const char* signal, const QString& value)
    {
        return {QString::fromLatin1(signal), labelPrinter, {value}};
    }
    static Report status(const char* code)
    {
        return report("printerStatusChanged", QString::fromLatin1(code));
    }

    PrinterStatusThread& thread() { return *m_thread; }
    QList<Report> takeReports() { return m_reports->take(); }
    QList<LogRecord> logged() const { return m_log->records(); }

    /// Starts the thread. True when it has read the printer and waits for the first time.
    [[nodiscard]] bool watch()
    {
        m_thread->start();
        return settle();
    }
    /// After something that woke the thread. True when it has done its work and waits again.
    [[nodiscard]] bool settle() { return machine().waitForWaitingThreads(1); }
    [[nodiscard]] bool publish(const PrinterValue& value)
    {
        machine().publish(labelPrinter, value);
        return settle();
    }
    /// Lets time pass.
    [[nodiscard]] bool pass(std::chrono::milliseconds time)
    {
        machine().advance(time);
        return settle();
    }
    void endThread()
    {
        while (!m_thread->wait(10))
            m_thread->stop();
    }

    QStringList functionsCalled()
    {
        QStringList names;
        const QList<Call> calls = machine().calls();
        for (const Call& call : calls)
            names.append(call.function);
        return names;
    }
    Call lastCall(const char* function)
    {
        const QList<Call> calls = machine().calls(QString::fromLatin1(function));
        return calls.isEmpty() ? Call{} : calls.last();
    }

protected Q_SLOTS:
    void init() override
    {
        MachineTest::init();
        machine().driveTime();
        machine().addPrinter(
            {.name = labelPrinter, .driver = QStringLiteral("Stratamark AlderMax")});
        m_log.emplace();
        m_thread.emplace();
        m_reports.emplace(*m_thread);
        m_thread->setMonitoredPrinterName(labelPrinter);
    }
    void cleanup() override
    {
        machine().setCallHook(nullptr);
        machine().clearFailures();
        endThread();
        m_thread.reset();
        m_reports.reset();
        m_log.reset();
        MachineTest::cleanup();
    }

private:
    std::optional<LogRecorder> m_log;
    std::optional<ReportRecorder> m_reports;
    std::optional<PrinterStatusThread> m_thread;
};
