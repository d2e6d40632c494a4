// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The library as it ships while the service "Spooler" is stopped and started for real.
#include "library_test.h"

class SpoolerRestartTest : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void spoolerThatStopsAndComesBack();
};

void SpoolerRestartTest::spoolerThatStopsAndComesBack()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    watch(printer);
    QVERIFY(waitFor({QStringLiteral("printerStatusChanged"), printer, {QStringLiteral("1")}}));

    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY(
        waitFor({QStringLiteral("printerStatusChanged"), printer, {QStringLiteral("254")}}, 15000));
    // Wine's service manager can take the late end of the process that was stopped for that of the
    // one that was started: asked again, it starts another.
    const auto hasComeBack = [&] {
        return fixture::setSpoolerRunning(true) &&
               waitFor({QStringLiteral("printerStatusChanged"), printer, {QStringLiteral("1")}},
                       1000);
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasComeBack(), 25000);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("3")}));
    QVERIFY(waitFor({QStringLiteral("printerStatusChanged"), printer, {QStringLiteral("3")}}));
}

QTEST_GUILESS_MAIN(SpoolerRestartTest)
#include "tst_spooler_restart_on_windows.moc"
