// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The code that docs/host-guide.md shows, apart from that of the examples: it compiles and does
// what the guide says.
#include "controller_test.h"
#include "patience.h"
#include "vx_ipc_supplyd_controller.h"

#include <vxipcclient.h>

#include <QtCore/QJsonArray>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QThreadPool>

namespace {

const QString packing = QStringLiteral("Packing");

QStringList properties;
QAtomicInt reports;
QJsonValue answer;

void note(const char* name, const QVariant& value)
{
    properties.append(QLatin1String(name) + QLatin1Char('=') + value.toString());
}

void writeReport(const QVariantList& printers)
{
    reports.fetchAndAddRelaxed(static_cast<int>(printers.size()));
}

void askForRibbons(const QString& printerName)
{
    VXIPCClient supplies(0);
    const VXIPCReply reply =
        supplies.callAndWait(QStringLiteral("supplyRibbonSKUsCached"), QJsonArray{printerName});
    if (reply.isOk())
        answer = reply.result; // a JSON list of SKUs, ribbon 1 first
    else
        qWarning("%s", qPrintable(reply.error->message));
}

} // namespace

class HostGuideTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreReadByName();
    void slowWorkRunsInAnotherThread();
    void modalDialogsOpenAfterTheReport();
    void controllerIsDeletedLater();
    void commandsGoToTheActivePrinter();
    void serviceGivesDetails();
    void otherProcessesCanCallTheService();

private:
    /// A host that has found one printer, which is ready.
    PrinterStatusController& hostWithOnePrinter()
    {
        addPrinter(packing, QStringLiteral("Stratamark AlderMax"));
        machine().publish(packing, PrinterValue::text("StatusCode", "1"));
        makeController();
        if (!settle(1))
            qFatal("the printer was not read");
        return controller();
    }
    [[nodiscard]] bool reportError()
    {
        machine().publish(packing, PrinterValue::text("StatusCode", "4"));
        return settle(1);
    }
};

void HostGuideTest::recordsAreReadByName()
{
    PrinterStatusController& printers = hostWithOnePrinter();
    properties.clear();

    for (const QVariant& entry : printers.getAvailablePrinters()) {
        const QMetaObject* record = entry.metaType().metaObject();
        for (int i = 0; i < record->propertyCount(); ++i)
            note(record->property(i).name(), record->property(i).readOnGadget(entry.constData()));
    }

    QCOMPARE(properties.size(), 21);
    QCOMPARE(properties.first(), QStringLiteral("printerName=Packing"));
    QCOMPARE(properties.at(1), QStringLiteral("statusEnum=1"));
}

void HostGuideTest::slowWorkRunsInAnotherThread()
{
    PrinterStatusController& printers = hostWithOnePrinter();
    reports.storeRelaxed(0);

    connect(&printers, &PrinterStatusController::availablePrintersUpdated, this, [&printers] {
        QThreadPool::globalInstance()->start(
            [records = printers.getAvailablePrinters()] { writeReport(records); });
    });

    QVERIFY(reportError());
    QVERIFY(QThreadPool::globalInstance()->waitForDone(patience));
    QCOMPARE(reports.loadRelaxed(), 1);
}

void HostGuideTest::modalDialogsOpenAfterTheReport()
{
    PrinterStatusController& printers = hostWithOnePrinter();
    QStringList shown;
    const auto showDialog = [&](bool inError) {
        shown.append(QLatin1String(inError ? "dialog" : "none"));
        shown.append(takeSignals());
    };

    connect(&printers, &PrinterStatusController::printerErrorChangedSignal, this, showDialog,
            Qt::QueuedConnection);

    takeSignals();
    QVERIFY(reportError());
    QCOMPARE(shown, QStringList()); // by then all signals of the report have been emitted
    QCoreApplication::processEvents();
    QCOMPARE(shown, (QStringList{QStringLiteral("dialog"),
                                 QStringLiteral("printerErrorChangedSignal(true)"),
                                 QStringLiteral("statusChangedSignal(4, Packing)"),
                                 QStringLiteral("availablePrintersUpdated()")}));
}

void HostGuideTest::controllerIsDeletedLater()
{
    addPrinter(packing);
    machine().publish(packing, PrinterValue::text("StatusCode", "1"));
    auto* printers = new PrinterStatusController;
    const QPointer<PrinterStatusController> alive = printers;
    QVERIFY(machine().waitForWaitingThreads(1));

    connect(printers, &PrinterStatusController::printerErrorChangedSignal, this,
            [printers](bool inError) {
                if (inError)
                    printers->deleteLater(); // and never: delete printers
            });

    machine().publish(packing, PrinterValue::text("StatusCode", "4"));
    QTRY_VERIFY(alive.isNull());
}

void HostGuideTest::commandsGoToTheActivePrinter()
{
    PrinterStatusController& printers = hostWithOnePrinter();

    printers.sendCommandToPrinter(QStringLiteral("FEED 3"), printers.activeDefaultPrinter());

    QCOMPARE(machine().jobs(packing).size(), 1);
    QCOMPARE(machine().jobs(packing).first().pages, QList<QByteArray>{"FEED 3\r\n"});
}

void HostGuideTest::serviceGivesDetails()
{
    PrinterStatusController& printers = hostWithOnePrinter();
    const QString printerName = packing;

    VXIPCSUPPLYDController* supplies = printers.getSupplyIdController();
    const SupplyInformation loaded = supplies->supplyInformation(printerName);
    const double inches = supplies->supplyWidth(loaded.supplySku, printerName);

    QCOMPARE(loaded.supplySku, QStringLiteral("-1"));
    QCOMPARE(inches, -1.0);
}

void HostGuideTest::otherProcessesCanCallTheService()
{
    PrinterStatusController& printers = hostWithOnePrinter();
    QTRY_COMPARE(printers.getSupplyIdController()->serverName(), QStringLiteral("vxipc-0"));
    answer = QJsonValue::Undefined;
    // Like another process, the client runs while the event loop of this thread does.
    const std::unique_ptr<QThread> client(QThread::create([] { askForRibbons(packing); }));
    client->start();
    QTRY_VERIFY(client->isFinished());
    QCOMPARE(answer, QJsonValue(QJsonArray()));
}

QTEST_GUILESS_MAIN(HostGuideTest)
#include "tst_host_guide.moc"
