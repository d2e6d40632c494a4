// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "library_test.h"
#include "sample_database.h"

#include "printer_status_controller.h"

#include <QtCore/QSettings>

using Controller = PrinterStatusController;

inline constexpr DWORD localPrinter = PRINTER_ATTRIBUTE_LOCAL;
inline constexpr DWORD offlinePrinter = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE;

inline const QString listUpdated = QStringLiteral("availablePrintersUpdated()");

inline QString statusChanged(int status, const QString& printer)
{
    return QStringLiteral("statusChangedSignal(%1, %2)").arg(status).arg(printer);
}

/// Base of the tests of a host on the system's spooler, with the library as it ships.
///
/// The library opens roll.db beside the host's executable, so each of these tests has its own
/// folder.
class HostTest : public LibraryTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase()
    {
        LibraryTest::initTestCase();
        writeSampleDatabase(QCoreApplication::applicationDirPath());
    }
    void cleanup() override
    {
        m_controller.reset();
        m_signals.clear();
        LibraryTest::cleanup();
    }

protected:
    QString addPrinter(const char* model, DWORD attributes = localPrinter,
                       const QString& port = QStringLiteral("USB901"))
    {
        const QString name = fixture::uniqueName(QStringLiteral("Label Printer"));
        const bool added =
            fixture::addPrinter({name, QString::fromLatin1(model), port, attributes});
        return added ? name : QString();
    }
    /// A printer that is ready, with supply and ribbons of the sample catalogue.
    QString addLoadedPrinter()
    {
        const QString printer = addPrinter("Stratamark AlderMax");
        const QList<Value> values{
            {"StatusCode", REG_SZ, text("1")},
            {"SupplyIdentifier", REG_SZ, text("000000641000010000A7")},
            {"Mileage", REG_DWORD, word(15240)},
            {"Ribbon1Identifier", REG_DWORD, word(2001)},
            {"Ribbon2Identifier", REG_DWORD, word(2004)},
            {"Ribbon1Mileage", REG_DWORD, word(60000)},
            {"SoftwareVersion", REG_SZ, text(firmwareVersion.toUtf8())},
        };
        for (const Value& value : values) {
            if (!publish(printer, value))
                return {};
        }
        return printer;
    }
    void host()
    {
        m_controller = std::make_unique<Controller>(nullptr);
        const auto add = [this](const QString& line) {
            m_signals.append(line);
        };
        connect(m_controller.get(), &Controller::availablePrintersUpdated, this,
                [add] { add(listUpdated); });
        connect(
            m_controller.get(), &Controller::printerErrorChangedSignal, this,
            [add](bool error) { add(QStringLiteral("printerErrorChangedSignal(%1)").arg(error)); });
        connect(m_controller.get(), &Controller::statusChangedSignal, this,
                [add](int status, const QString& printer) { add(statusChanged(status, printer)); });
        connect(m_controller.get(), &Controller::supplyIdChangedSignal, this,
                [add](const QString& printer) {
                    add(QStringLiteral("supplyIdChangedSignal(%1)").arg(printer));
                });
        connect(m_controller.get(), &Controller::ribbonIdsChangedSignal, this,
                [add](const QString& printer) {
                    add(QStringLiteral("ribbonIdsChangedSignal(%1)").arg(printer));
                });
        connect(
            m_controller.get(), &Controller::activeDefaultPrinterSetSignal, this,
            [add](const QString& printer, bool isVX) {
                add(QStringLiteral("activeDefaultPrinterSetSignal(%1, %2)").arg(printer).arg(isVX));
            });
    }
    QStringList takeSignals() { return std::exchange(m_signals, {}); }
    QStringList recordNames() const
    {
        QStringList names;
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& entry : records)
            names.append(entry.value<PrinterStatusInformation>().printerName);
        return names;
    }
    /// A default record when there is none under that name.
    PrinterStatusInformation record(const QString& name) const
    {
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& entry : records) {
            const auto record = entry.value<PrinterStatusInformation>();
            if (record.printerName == name)
                return record;
        }
        return {};
    }
    /// Waits until a printer that publishes nothing but a status has reported it. False when it
    /// does not.
    [[nodiscard]] bool waitForStatus(const QString& printer, int status)
    {
        return waitUntil([&] { return record(printer).statusEnum == status; });
    }
    /// Waits until everything that addLoadedPrinter() publishes has been reported, the firmware
    /// version last. False when it is not.
    [[nodiscard]] bool waitUntilLoaded(const QString& printer)
    {
        return waitUntil([&] { return record(printer).softwareVersion == firmwareVersion; });
    }

    static const inline QString firmwareVersion = QStringLiteral("4.1.3,boot 1.7");

    std::unique_ptr<Controller> m_controller;
    QStringList m_signals;

private:
    template <typename Condition>
    bool waitUntil(Condition condition)
    {
        const bool isTrue = QTest::qWaitFor(condition, patience);
        takeSignals();
        return isTrue;
    }
};
