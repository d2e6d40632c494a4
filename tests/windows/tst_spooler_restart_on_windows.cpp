// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The library as it ships, while the service "Spooler" is really stopped and started.
#include "library_test.h"

namespace {

Report status(const QString& printer, const char* code)
{
    return {QStringLiteral("printerStatusChanged"), printer, {QString::fromLatin1(code)}};
}

} // namespace

class SpoolerRestartTest : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void spoolerThatStopsAndComesBack();
    void valueThatChangesWhileTheSpoolerIsDown();
    void stopEndsAThreadWhileTheSpoolerIsDown();
    void printerThatCouldNotBeOpened();

private:
    /// Adds a printer that is ready, watches it and waits for its first status. Empty when that
    /// fails.
    [[nodiscard]] QString watchReadyPrinter(const char* model)
    {
        const QString printer = addPrinter(model);
        if (!publish(printer, {"StatusCode", REG_SZ, text("1")}))
            return {};
        watch(printer);
        return waitFor(status(printer, "1")) ? printer : QString();
    }
    /// Stops or starts the spooler and waits for the status that the printer then reports.
    [[nodiscard]] bool setSpoolerRunning(bool isRunning, const QString& printer, const char* code)
    {
        return fixture::setSpoolerRunning(isRunning) && waitFor(status(printer, code));
    }
};

void SpoolerRestartTest::spoolerThatStopsAndComesBack()
{
    STOPS_SPOOLER();
    const QString printer = watchReadyPrinter("Stratamark AlderMax");
    QVERIFY(!printer.isEmpty());

    QVERIFY(setSpoolerRunning(false, printer, "254"));
    QVERIFY(setSpoolerRunning(true, printer, "1"));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("3")}));
    QVERIFY(waitFor(status(printer, "3")));
}

void SpoolerRestartTest::valueThatChangesWhileTheSpoolerIsDown()
{
    STOPS_SPOOLER();
    const QString printer = watchReadyPrinter("Stratamark AlderMax");
    QVERIFY(!printer.isEmpty());

    QVERIFY(setSpoolerRunning(false, printer, "254"));
    // The registry stores the value; the thread has no notification that could wake it.
    QVERIFY(publish(printer, {"SoftwareVersion", REG_SZ, text("6.1")}));
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(waitFor({QStringLiteral("softwareVersionChanged"), printer, {QStringLiteral("6.1")}}));
}

void SpoolerRestartTest::stopEndsAThreadWhileTheSpoolerIsDown()
{
    STOPS_SPOOLER();
    const QString printer = watchReadyPrinter("Stratamark Alder");
    QVERIFY(!printer.isEmpty());
    QVERIFY(setSpoolerRunning(false, printer, "254"));

    QElapsedTimer clock;
    clock.start();
    while (!m_thread->wait(10))
        m_thread->stop();
    QVERIFY(clock.elapsed() < 4000); // before the next poll
}

void SpoolerRestartTest::printerThatCouldNotBeOpened()
{
    STOPS_SPOOLER();
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    const int before = waitsBegun();
    watch(printer);
    // The thread queries the service's state for the first time just before it waits.
    QTRY_VERIFY(waitsBegun() > before);
    // The service is polled all the same, and once it has restarted the printer is opened.
    QVERIFY(setSpoolerRunning(false, printer, "254"));
    QVERIFY(setSpoolerRunning(true, printer, "254")); // running, but there is no such printer
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark Alder")}));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QVERIFY(setSpoolerRunning(false, printer, "254"));
    QVERIFY(setSpoolerRunning(true, printer, "1"));
}

QTEST_GUILESS_MAIN(SpoolerRestartTest)
#include "tst_spooler_restart_on_windows.moc"
