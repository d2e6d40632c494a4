// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Discovery and commands on the spooler of the system, or on the virtual one.

#include "fixture.h"
#include "patience.h"

#include "printer_command.h"
#include "printer_discovery.h"
#include "windows_printer_info.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

using VxKit::CommandResult;
using VxKit::JobState;
using VxKit::PrinterDiscovery;

class KitOnTheSpoolerTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void printersThatComeAndGoAreReported();
    void anotherDefaultPrinterIsReported();
    void stopAndStartOfTheSpoolerAreReported();
    void commandIsSentAndItsJobFollowed();
    void commandToAForeignPrinterIsRefused();
    void commandToAnUnknownPrinterFails();

private:
    QString addLabelPrinter(const QString& port = QStringLiteral("USB901"))
    {
        const QString name = fixture::uniqueName(QStringLiteral("Vx Kit"));
        const bool isAdded = fixture::addPrinter(
            {.name = name, .driver = QStringLiteral("Stratamark Alder"), .port = port});
        return isAdded ? name : QString();
    }
};

void KitOnTheSpoolerTest::printersThatComeAndGoAreReported()
{
    const PrinterDiscovery discovery(nullptr);
    QSignalSpy changes(&discovery, &PrinterDiscovery::printersChanged);
    QSignalSpy added(&discovery, &PrinterDiscovery::added);
    QSignalSpy gone(&discovery, &PrinterDiscovery::gone);
    QTRY_COMPARE(changes.size(), 1);
    const QString name = addLabelPrinter();
    QVERIFY(!name.isEmpty());
    QTRY_COMPARE(added.size(), 1);
    QCOMPARE(added.first().first().toString(), name);
    QVERIFY(discovery.printers().contains(name));
    QVERIFY(fixture::removePrinter(name));
    QTRY_COMPARE(gone.size(), 1);
    QCOMPARE(gone.first().first().toString(), name);
    QVERIFY(!discovery.printers().contains(name));
}

void KitOnTheSpoolerTest::anotherDefaultPrinterIsReported()
{
    const QString before = WindowsPrinterInfo::getDefaultPrinterName();
    const QString name = addLabelPrinter();
    QVERIFY(!name.isEmpty());
    const PrinterDiscovery discovery(nullptr);
    QSignalSpy changes(&discovery, &PrinterDiscovery::printersChanged);
    QSignalSpy choices(&discovery, &PrinterDiscovery::defaultPrinterChanged);
    QTRY_COMPARE(changes.size(), 1);
    if (discovery.defaultPrinter() == name)
        QSKIP("the only printer is the default printer already");
    QVERIFY(SetDefaultPrinterW(WideText(name)));
    QTRY_COMPARE(discovery.defaultPrinter(), name);
    QCOMPARE(choices.size(), 1);
    if (!before.isEmpty())
        SetDefaultPrinterW(WideText(before));
}

void KitOnTheSpoolerTest::stopAndStartOfTheSpoolerAreReported()
{
    STOPS_SPOOLER();
    const QString name = addLabelPrinter();
    QVERIFY(!name.isEmpty());
    const PrinterDiscovery discovery(nullptr);
    QSignalSpy changes(&discovery, &PrinterDiscovery::printersChanged);
    QTRY_COMPARE(changes.size(), 1);
    QVERIFY(discovery.isSpoolerRunning());
    QVERIFY(fixture::setSpoolerRunning(false));
    // Not every system refuses to list printers without its service.
    DWORD needed = 0;
    DWORD count = 0;
    SetLastError(ERROR_SUCCESS);
    EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 4, nullptr, 0, &needed, &count);
    const bool isRefused = GetLastError() == RPC_S_SERVER_UNAVAILABLE;
    if (isRefused)
        QTRY_VERIFY(!discovery.isSpoolerRunning());
    QVERIFY(discovery.printers().contains(name));
    QVERIFY(fixture::setSpoolerRunning(true));
    QTRY_VERIFY(discovery.isSpoolerRunning());
    QVERIFY(discovery.printers().contains(name));
}

void KitOnTheSpoolerTest::commandIsSentAndItsJobFollowed()
{
    // On Windows, a port that is named like a file is a file, which receives what is sent.
    const QTemporaryDir folder;
    const QString name =
        addLabelPrinter(QDir::toNativeSeparators(folder.filePath(QStringLiteral("printed.bin"))));
    QVERIFY(!name.isEmpty());
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(name, QStringLiteral("FEED 3"));
    followed.command.waitForFinished();
    const CommandResult result = followed.command.result();
    QVERIFY2(result.isSent(), qPrintable(result.function + result.errorText));
    QCOMPARE(result.bytes, 8);
    QVERIFY(result.jobId != 0);
    followed.job.waitForFinished();
    QVERIFY(followed.job.resultCount() > 0);
    const JobState last = followed.job.resultAt(followed.job.resultCount() - 1);
    QVERIFY2(last.stage == JobState::Stage::Printed || last.stage == JobState::Stage::LeftQueue,
             qPrintable(last.text()));
    QCOMPARE(last.jobId, result.jobId);
}

void KitOnTheSpoolerTest::commandToAForeignPrinterIsRefused()
{
    const QString name = fixture::uniqueName(QStringLiteral("Vx Foreign"));
    QVERIFY(fixture::addPrinter({.name = name}));
    QFuture<CommandResult> future = VxKit::sendCommand(name, QStringLiteral("FEED 3"));
    future.waitForFinished();
    QCOMPARE(future.result().failure, CommandResult::Failure::ForeignPrinter);
    QCOMPARE(future.result().jobId, 0U);
}

void KitOnTheSpoolerTest::commandToAnUnknownPrinterFails()
{
    QFuture<CommandResult> future =
        VxKit::sendCommand(fixture::uniqueName(QStringLiteral("Vx Nobody")), QByteArray("x"));
    future.waitForFinished();
    QCOMPARE(future.result().failure, CommandResult::Failure::CannotOpenPrinter);
    QCOMPARE(future.result().errorCode, quint32{ERROR_INVALID_PRINTER_NAME});
    QVERIFY(!future.result().errorText.isEmpty());
}

QTEST_GUILESS_MAIN(KitOnTheSpoolerTest)
#include "tst_kit_on_the_spooler.moc"
