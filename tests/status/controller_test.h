// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "log_lines.h"
#include "log_recorder.h"
#include "machine_test.h"
#include "printer_status_controller.h"

#include <QtCore/QMetaMethod>

#include <optional>

using namespace std::chrono_literals;
using virtualwindows::Call;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;

/// Records every signal of a controller as a line, in order: "statusChangedSignal(1, Packing)".
/// After each of them the `hook`, if there is one, is called in the same slot.
class SignalRecorder
{
public:
    explicit SignalRecorder(PrinterStatusController& controller)
    {
        using Controller = PrinterStatusController;
        QObject::connect(&controller, &Controller::availablePrintersUpdated, &controller,
                         [this] { add(QStringLiteral("availablePrintersUpdated()")); });
        QObject::connect(&controller, &Controller::printerErrorChangedSignal, &controller,
                         [this](bool inError) {
                             add(QStringLiteral("printerErrorChangedSignal(%1)")
                                     .arg(QLatin1String(inError ? "true" : "false")));
                         });
        QObject::connect(
            &controller, &Controller::statusChangedSignal, &controller,
            [this](int status, const QString& printer) {
                add(QStringLiteral("statusChangedSignal(%1, %2)").arg(status).arg(printer));
            });
        QObject::connect(&controller, &Controller::supplyIdChangedSignal, &controller,
                         [this](const QString& printer) {
                             add(QStringLiteral("supplyIdChangedSignal(%1)").arg(printer));
                         });
        QObject::connect(&controller, &Controller::ribbonIdsChangedSignal, &controller,
                         [this](const QString& printer) {
                             add(QStringLiteral("ribbonIdsChangedSignal(%1)").arg(printer));
                         });
        QObject::connect(&controller, &Controller::activeDefaultPrinterSetSignal, &controller,
                         [this](const QString& printer, bool isVX) {
                             add(QStringLiteral("activeDefaultPrinterSetSignal(%1, %2)")
                                     .arg(printer, QLatin1String(isVX ? "true" : "false")));
                         });
        QObject::connect(&controller, &Controller::softwareVersionUpdated, &controller,
                         [this](const QString& printer) {
                             add(QStringLiteral("softwareVersionUpdated(%1)").arg(printer));
                         });
    }

    /// What was emitted since the last call.
    QStringList take() { return std::exchange(m_lines, {}); }

    std::function<void(const QString& line)> hook;

private:
    void add(const QString& line)
    {
        m_lines.append(line);
        if (hook)
            hook(line);
    }

    QStringList m_lines;
};

/// Base of the controller's tests. Time passes only when a test lets it pass. A test adds printers
/// and then calls `makeController()`, which finds them.
class ControllerTest : public MachineTest
{
    Q_OBJECT

protected:
    static constexpr quint32 localAttribute = 0x40;
    static constexpr quint32 networkAttribute = 0x10;
    static constexpr quint32 workOfflineAttribute = 0x400;

    void addPrinter(const QString& name, const QString& driver = QStringLiteral("Stratamark Alder"),
                    quint32 attributes = localAttribute)
    {
        machine().addPrinter({.name = name, .driver = driver, .attributes = attributes});
    }
    void addNetworkPrinter(const QString& name)
    {
        addPrinter(name, QStringLiteral("Stratamark Alder"), networkAttribute);
    }
    void addUnmanagedPrinter(const QString& name)
    {
        machine().addPrinter(
            {.name = name, .driver = QStringLiteral("Stratamark Alder"), .administrable = false});
    }
    void setOffline(const QString& name, bool offline = true)
    {
        machine().setAttributes(name,
                                offline ? localAttribute | workOfflineAttribute : localAttribute);
    }

    PrinterStatusController& makeController()
    {
        m_controller = std::make_unique<PrinterStatusController>(nullptr);
        m_signals = std::make_unique<SignalRecorder>(*m_controller);
        return *m_controller;
    }
    PrinterStatusController& controller() { return *m_controller; }
    SignalRecorder& recorder() { return *m_signals; }
    QStringList takeSignals() { return m_signals->take(); }
    void endController()
    {
        m_controller.reset();
        m_signals.reset();
    }

    /// True when `count` threads have done their work; what they reported has then been delivered.
    [[nodiscard]] bool settle(int count)
    {
        const bool areWaiting = machine().waitForWaitingThreads(count);
        QCoreApplication::sendPostedEvents(m_controller.get(), QEvent::MetaCall);
        return areWaiting;
    }

    /// Reports a value as a printer's thread does, by calling the slot that it is connected to.
    void report(const char* slot, const QString& printer, const QString& value)
    {
        const bool isCalled =
            QMetaObject::invokeMethod(m_controller.get(), slot, Qt::DirectConnection,
                                      Q_ARG(QString, printer), Q_ARG(QString, value));
        if (!isCalled)
            qFatal("no slot %s", slot);
    }
    void reportStatus(const QString& printer, const char* status)
    {
        report("onPrinterStatusChanged", printer, QString::fromLatin1(status));
    }

    QStringList recordNames()
    {
        QStringList names;
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& record : records)
            names.append(record.value<PrinterStatusInformation>().printerName);
        return names;
    }
    /// The record with that name; ends the test program when there is none.
    PrinterStatusInformation record(const QString& name)
    {
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& entry : records) {
            const auto record = entry.value<PrinterStatusInformation>();
            if (record.printerName == name)
                return record;
        }
        qFatal("no record of %s", qPrintable(name));
    }

    /// The controller's log lines since the last call.
    QList<LogRecord> takeLog()
    {
        QList<LogRecord> lines = m_log->records();
        m_log->clear();
        lines.removeIf([](const LogRecord& line) {
            return line.file != QLatin1String(log_lines::controllerFile);
        });
        return lines;
    }
    QStringList takeMessages()
    {
        QStringList messages;
        const QList<LogRecord> lines = takeLog();
        for (const LogRecord& line : lines)
            messages.append(line.message);
        return messages;
    }
    static LogRecord line(const log_lines::LogLine& place, const QString& message)
    {
        return libraryLine(place.file, place.number, place.function, message);
    }

    int callsOf(const char* function) { return machine().callCount(QString::fromLatin1(function)); }

protected Q_SLOTS:
    void init() override
    {
        MachineTest::init();
        machine().driveTime();
        m_log.emplace();
    }
    void cleanup() override
    {
        machine().setCallHook(nullptr);
        machine().clearFailures();
        endController();
        m_log.reset();
        MachineTest::cleanup();
    }

private:
    std::optional<LogRecorder> m_log;
    std::unique_ptr<PrinterStatusController> m_controller;
    std::unique_ptr<SignalRecorder> m_signals;
};
