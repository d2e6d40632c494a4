// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The library as it ships while the service "Spooler" is stopped and started for real.
#include "library_test.h"

namespace {

// The thread asks for the service's state when 5000 ms have passed without a notification.
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
    void stopWhileTheSpoolerIsDown();
    void printerThatCouldNotBeOpened();
};

void SpoolerRestartTest::spoolerThatStopsAndComesBack()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    watch(printer);
    QVERIFY(waitFor(status(printer, "1")));

    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(waitFor(status(printer, "254")));
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(waitFor(status(printer, "1")));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("3")}));
    QVERIFY(waitFor(status(printer, "3")));
}

void SpoolerRestartTest::valueThatChangesWhileTheSpoolerIsDown()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    watch(printer);
    QVERIFY(waitFor(status(printer, "1")));

    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(waitFor(status(printer, "254")));
    // The registry takes it; the thread has no notification that could wake it.
    QVERIFY(publish(printer, {"SoftwareVersion", REG_SZ, text("6.1")}));
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(waitFor({QStringLiteral("softwareVersionChanged"), printer, {QStringLiteral("6.1")}}));
}

void SpoolerRestartTest::stopWhileTheSpoolerIsDown()
{
    const QString printer = addPrinter("Stratamark Alder");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    watch(printer);
    QVERIFY(waitFor(status(printer, "1")));
    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(waitFor(status(printer, "254")));

    QElapsedTimer clock;
    clock.start();
    while (!m_thread->wait(10))
        m_thread->stop();
    QVERIFY(clock.elapsed() < 4000); // not with the next poll
}

void SpoolerRestartTest::printerThatCouldNotBeOpened()
{
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    const int before = waitsBegun();
    watch(printer);
    // Until then the thread has not asked for the service's state for the first time.
    QTRY_VERIFY(waitsBegun() > before);
    // The service is asked for all the same, and once it has restarted the printer is there.
    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(waitFor(status(printer, "254")));
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(waitFor(status(printer, "254"))); // running, and not to be opened
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark Alder")}));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(waitFor(status(printer, "254")));
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(waitFor(status(printer, "1")));
}

QTEST_GUILESS_MAIN(SpoolerRestartTest)
#include "tst_spooler_restart_on_windows.moc"
