// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "controller_test.h"

#include <printer_readings.h>

/// Base of the tests of readings: a controller on the virtual Windows with the sample catalogue in
/// the test's folder, and readings of it. Each signal of the readings is recorded as a line, as
/// "changed(Packing)".
class ReadingsTest : public ControllerTest
{
    Q_OBJECT

protected:
    using Reading = VxKit::PrinterReading;
    using Presence = Reading::Presence;
    using Watching = Reading::Watching;
    using State = VxKit::Level::State;
    using Slot = VxKit::Slot;

    PrinterStatusController& makeController()
    {
        m_hasController = true;
        return ControllerTest::makeController();
    }
    /// Makes a controller unless there is one, and readings of it.
    VxKit::PrinterReadings& makeReadings()
    {
        if (!m_hasController)
            makeController();
        m_readings = std::make_unique<VxKit::PrinterReadings>(&controller());
        m_lines.clear();
        recordSignals(*m_readings);
        return *m_readings;
    }
    /// Makes a controller whose printers have reported everything before there are readings.
    [[nodiscard]] bool makeSettledController(int watchedPrinters)
    {
        makeController();
        return settle(watchedPrinters);
    }
    VxKit::PrinterReadings& readings() { return *m_readings; }
    bool hasReadings() const { return m_readings != nullptr; }
    void endReadings() { m_readings.reset(); }
    void endControllerBeforeReadings()
    {
        endController();
        m_hasController = false;
    }
    Reading reading(const QString& name) { return m_readings->reading(name); }
    VxKit::Level level(const QString& name, Slot slot) { return reading(name).level(slot); }

    /// True when `count` threads have done their work; what they reported has then been delivered
    /// to the controller and the readings, in the order in which it was sent.
    [[nodiscard]] bool settleAll(int count)
    {
        const bool areWaiting = machine().waitForWaitingThreads(count);
        // A delivered report may cause a refresh, which is delivered in the next round.
        for (int round = 0; round < 3; ++round)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        return areWaiting;
    }
    /// Lets the time pass after which the threads query the spooler, then settles.
    [[nodiscard]] bool pollAll(int count)
    {
        machine().advance(5000ms);
        return settleAll(count);
    }

    /// Stops the spooler and starts it again, and lets the threads notice both.
    [[nodiscard]] bool restartSpooler(int count)
    {
        machine().stopSpooler();
        const bool hasStopped = pollAll(count);
        machine().startSpooler();
        return pollAll(count) && hasStopped;
    }

    /// The signals since the last call.
    QStringList takeLines() { return std::exchange(m_lines, {}); }
    void addLine(const QString& line)
    {
        m_lines.append(line);
        if (lineHook)
            lineHook(line);
    }
    std::function<void(const QString& line)> lineHook;

    void publishText(const QString& printer, const char* value, const QByteArray& text)
    {
        machine().publish(printer, PrinterValue::text(value, text));
    }
    void publishNumber(const QString& printer, const char* value, quint32 number)
    {
        machine().publish(printer, PrinterValue::number(value, number));
    }

protected Q_SLOTS:
    void init() override
    {
        ControllerTest::init();
        m_hasController = false;
        lineHook = nullptr;
        m_lines.clear();
    }
    void cleanup() override
    {
        m_readings.reset();
        ControllerTest::cleanup();
    }

private:
    void recordSignals(VxKit::PrinterReadings& of)
    {
        using Readings = VxKit::PrinterReadings;
        const auto recordName = [&](auto signal, const char* line) {
            connect(&of, signal, this, [this, line](const QString& name) {
                addLine(QStringLiteral("%1(%2)").arg(QLatin1String(line), name));
            });
        };
        recordName(&Readings::added, "added");
        recordName(&Readings::changed, "changed");
        recordName(&Readings::gone, "gone");
        recordName(&Readings::activePrinterChanged, "activePrinterChanged");
        connect(&of, &Readings::renamed, this, [this](const QString& from, const QString& to) {
            addLine(QStringLiteral("renamed(%1, %2)").arg(from, to));
        });
        connect(&of, &Readings::inErrorChanged, this, [this](bool inError) {
            addLine(QStringLiteral("inErrorChanged(%1)")
                        .arg(QLatin1String(inError ? "true" : "false")));
        });
        connect(&of, &Readings::printersInErrorChanged, this, [this](int count) {
            addLine(QStringLiteral("printersInErrorChanged(%1)").arg(count));
        });
    }

    bool m_hasController = false;
    std::unique_ptr<VxKit::PrinterReadings> m_readings;
    QStringList m_lines;
};
