// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the tests make drivers and ports that Windows accepts.
#include "fixture.h"
#include "is_wine.h"
#include "test_spooler.h"

#include <QtTest/QtTest>

#include <optional>

namespace {

struct DriverFiles
{
    QString driver;
    QString data;
    QString configuration;

    bool operator==(const DriverFiles&) const = default;
};

std::optional<DriverFiles> filesOf(const QString& driver)
{
    WideText environment(QStringLiteral("Windows x64"));
    DWORD needed = 0;
    DWORD count = 0;
    EnumPrinterDriversW(nullptr, environment, 3, nullptr, 0, &needed, &count);
    QByteArray block(static_cast<qsizetype>(needed), Qt::Uninitialized);
    if (!EnumPrinterDriversW(nullptr, environment, 3, reinterpret_cast<BYTE*>(block.data()), needed,
                             &needed, &count))
        return {};
    const auto* const records = reinterpret_cast<const DRIVER_INFO_3W*>(block.constData());
    for (DWORD index = 0; index < count; ++index) {
        const DRIVER_INFO_3W& record = records[index];
        if (fromWide(record.pName) == driver)
            return DriverFiles{fromWide(record.pDriverPath), fromWide(record.pDataFile),
                               fromWide(record.pConfigFile)};
    }
    return {};
}

} // namespace

class TestSpoolerTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void driverHasTheFilesOfTheOneOfWindows();
    void portIsAddedAndRemoved();
    void portThatExistsIsNotUsed();
    void namesOfTestsAreKnown_data();
    void namesOfTestsAreKnown();
};

void TestSpoolerTest::driverHasTheFilesOfTheOneOfWindows()
{
    const QString ofWindows = test_spooler::driverOfWindows();
    const bool wasInstalled = test_spooler::drivers().contains(ofWindows);
    if (isWine() && !wasInstalled) {
        // Wine has no such driver; any file will do for one.
        const test_spooler::Problem problem = test_spooler::installDriver(ofWindows);
        QVERIFY2(problem.isNone(), qPrintable(problem.text()));
    }

    const QString name = QStringLiteral("Vx Like Driver");
    const test_spooler::Problem problem = test_spooler::installDriver(name);
    QVERIFY2(problem.isNone(), qPrintable(problem.text()));
    const std::optional<DriverFiles> files = filesOf(name);
    const std::optional<DriverFiles> pattern = filesOf(ofWindows);
    const test_spooler::Problem removal = test_spooler::removeDriver(name);
    QVERIFY2(removal.isNone(), qPrintable(removal.text()));
    QVERIFY(!test_spooler::drivers().contains(name));
    if (!wasInstalled) {
        const test_spooler::Problem last = test_spooler::removeDriver(ofWindows);
        QVERIFY2(last.isNone(), qPrintable(last.text()));
    }

    QVERIFY(files && pattern);
    QVERIFY(!files->driver.isEmpty());
    QVERIFY(*files == *pattern);
}

void TestSpoolerTest::portIsAddedAndRemoved()
{
    const QString port = QStringLiteral("USB905");
    const test_spooler::Problem addition = test_spooler::addPort(port);
    QVERIFY2(addition.isNone(), qPrintable(addition.text()));
    const QStringList ports = test_spooler::ports();
    const test_spooler::Problem removal = test_spooler::removePort(port);
    QVERIFY2(removal.isNone(), qPrintable(removal.text()));
    QVERIFY2(ports.contains(port), qPrintable(ports.join(QLatin1Char(' '))));
    QVERIFY(!test_spooler::ports().contains(port));
}

void TestSpoolerTest::portThatExistsIsNotUsed()
{
    const QString port = QStringLiteral("USB906");
    const test_spooler::Problem addition = test_spooler::addPort(port);
    QVERIFY2(addition.isNone(), qPrintable(addition.text()));
    const test_spooler::Problem again = test_spooler::addPort(QStringLiteral("usb906"));
    const test_spooler::Problem removal = test_spooler::removePort(port);
    QVERIFY2(removal.isNone(), qPrintable(removal.text()));
    QCOMPARE(again.error, DWORD{ERROR_BUSY});
}

void TestSpoolerTest::namesOfTestsAreKnown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPrinter");
    QTest::addColumn<bool>("isDriver");
    QTest::addColumn<bool>("isPort");
    const auto row = [](const char* name, bool isPrinter, bool isDriver, bool isPort) {
        QTest::newRow(name) << QString::fromLatin1(name) << isPrinter << isDriver << isPort;
    };
    row("Label Printer 4711-3", true, false, false);
    row("Vx Renamed 12-1", true, false, false);
    row("Office Printer 12-1", true, false, false);
    row("Label Printer", false, false, false);
    row("Label Printer 2", false, false, false);
    row("Office Printer (4711-3)", false, false, false);
    row("Stratamark AlderMax", false, true, false);
    row("Vx Test Driver", false, true, false);
    row("Generic / Text Only", false, false, false);
    row("Some Office Printer", false, true, false);
    row("USB901", false, false, true);
    row("192.0.2.20", false, false, true);
    row("USB001", false, false, false);
    row("192.168.1.20", false, false, false);
    row("LPT1:", false, false, false);
}

void TestSpoolerTest::namesOfTestsAreKnown()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isPrinter);
    QFETCH(const bool, isDriver);
    QFETCH(const bool, isPort);
    QCOMPARE(test_spooler::isNameOfTestPrinter(name), isPrinter);
    QCOMPARE(test_spooler::isNameOfTestDriver(name), isDriver);
    QCOMPARE(test_spooler::isNameOfTestPort(name), isPort);
    QVERIFY(test_spooler::isNameOfTestPrinter(fixture::uniqueName(QStringLiteral("Vx Data"))));
}

QTEST_GUILESS_MAIN(TestSpoolerTest)
#include "tst_test_spooler.moc"
