// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Hosts that were built against the installed package, with no code for tests or virtual printers.
#include "patience.h"
#include "sample_database.h"
#include "start_process.h"
#include "test_file.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#ifdef Q_OS_WIN
#include "fixture.h"
#endif

namespace {

const QString host = testFile(VX_MINIMAL_HOST);
const QString kitHost = testFile(VX_KIT_HOST);

QProcessEnvironment environment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Names and titles are in the language of the system.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
#ifdef Q_OS_WIN
    // The library is found on the PATH, like any DLL. The DLLs that it needs are already there.
    environment.insert(QStringLiteral("PATH"),
                       QDir::toNativeSeparators(testFile(VX_INSTALLED_DLLS)) + QLatin1Char(';') +
                           environment.value(QStringLiteral("PATH")));
#endif
    return environment;
}

struct Result
{
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;
};

Result run(const QString& program, const QStringList& arguments,
           const QProcessEnvironment& variables = environment())
{
    QProcess process;
    process.setProcessEnvironment(variables);
    startProcess(process, program, arguments);
    if (!process.waitForFinished(patience)) {
        qWarning("%s", qPrintable(process.errorString()));
        process.kill();
        process.waitForFinished(patience);
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput().replace("\r\n", "\n"), process.readAllStandardError()};
}

QByteArray contents(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

#ifdef Q_OS_WIN
using InstalledPackageTestBase = WindowsApiTest;
#else
using InstalledPackageTestBase = QObject;
#endif

class InstalledPackageTest : public InstalledPackageTestBase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void hostWithoutPrintersSaysSo();
    void outputThatCannotBeWrittenIsReported();
    void wrongArgumentIsRefused_data();
    void wrongArgumentIsRefused();
    void hostWritesTheLogToAFile();
    void logOfAHostWithoutAnAppenderGoesToStandardError();
    void examplesLogToAFile_data();
    void examplesLogToAFile();
    void hostInCPrintsPrinters();
#ifdef Q_OS_WIN
    void hostPrintsThePrintersOfTheSystem();
    void hostOnTheKitPrintsThePrintersOfTheSystem();
#else
    void hostPrintsThePrintersOfAFleet();
    void hostOnTheKitShowsSuppliesAndRibbonsAtItsFirstRun();
    void examplesPrintNothingOfTheLog();
    void titlesAreInTheUsersLanguage();
    void brokenFleetIsRefused_data();
    void brokenFleetIsRefused();

private:
    QString fleetFile(const QByteArray& text);
    /// Runs a host with a fleet until it prints the line. False if it does not.
    static bool printsWithFleet(const QString& fleet, const QByteArray& line,
                                const QString& language, const QString& program = host);

    QTemporaryDir m_folder;
#endif
};

void InstalledPackageTest::initTestCase()
{
    QVERIFY2(QFileInfo::exists(host), "the host is built by the test \"installed_package\"");
    // The library looks for the database beside the host.
    writeSampleDatabase(QFileInfo(host).path());
    writeSampleDatabase(QFileInfo(kitHost).path());
}

void InstalledPackageTest::hostWithoutPrintersSaysSo()
{
    const Result result = run(host, {QStringLiteral("0")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output, QByteArray("no printers\nactive printer: \n\n"));
    QCOMPARE(result.errors, QByteArray());
}

void InstalledPackageTest::outputThatCannotBeWrittenIsReported()
{
    QFile full(QStringLiteral("/dev/full"));
    if (!full.exists())
        QSKIP("this system has no /dev/full");
    const Result result =
        run(QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("exec \"$0\" > /dev/full"), host});
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.errors, QByteArray("minimal_host: standard output could not be written: "
                                       "No space left on device\n"));
}

void InstalledPackageTest::wrongArgumentIsRefused_data()
{
    QTest::addColumn<QString>("argument");
    for (const char* argument : {"soon", "-1", "1.5", ""})
        QTest::newRow(*argument ? argument : "empty") << QString::fromLatin1(argument);
}

void InstalledPackageTest::wrongArgumentIsRefused()
{
    QFETCH(const QString, argument);
    const Result result = run(host, {argument});
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors.trimmed(), QByteArray("minimal_host: expected a number of seconds"));
}

void InstalledPackageTest::hostWritesTheLogToAFile()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("printers.log"));
    const Result result = run(testFile(VX_LOGGING_HOST), {file});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.exitStatus, 0);
    const QByteArray text = contents(file);
    QVERIFY2(text.contains("host is up"), text.constData());
    QVERIFY2(text.contains("PrinterStatusController::sendToLogger"), text.constData());
}

void InstalledPackageTest::logOfAHostWithoutAnAppenderGoesToStandardError()
{
    const Result result = run(testFile(VX_PLAIN_HOST), {});
    QCOMPARE(result.exitStatus, 0);
    QVERIFY2(result.errors.contains("host is up"), result.errors.constData());
}

void InstalledPackageTest::examplesLogToAFile_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("minimal_host") << host;
    if (!testFile(VX_WIDGETS_HOST).isEmpty())
        QTest::newRow("widgets_host") << testFile(VX_WIDGETS_HOST);
    QTest::newRow("kit_host") << kitHost;
    if (!testFile(VX_QML_HOST).isEmpty())
        QTest::newRow("qml_host") << testFile(VX_QML_HOST);
}

void InstalledPackageTest::examplesLogToAFile()
{
    QFETCH(const QString, program);
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("printers.log"));
    QProcessEnvironment variables = environment();
#ifdef Q_OS_WIN
    QVERIFY(fixture::setSpoolerRunning(true));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark AlderMax")}));
#else
    const QString printer = QStringLiteral("Warehouse");
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
#endif
    QProcess process;
    process.setProcessEnvironment(variables);
    startProcess(process, program, {QStringLiteral("--log"), log});
    const QByteArray line = "Evaluating Printer: " + printer.toUtf8();
    QTRY_VERIFY_WITH_TIMEOUT(contents(log).contains(line), patience);
    process.kill();
    QVERIFY(process.waitForFinished(patience));
    // Qt may print warnings when there is no screen.
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(!errors.contains("Evaluating Printer"), errors.constData());
}

void InstalledPackageTest::hostInCPrintsPrinters()
{
    QProcessEnvironment variables = environment();
#ifdef Q_OS_WIN
    QVERIFY(fixture::setSpoolerRunning(true));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark CedarMax")}));
    const QByteArray line =
        printer.toUtf8() +
        ": Unable To Retrieve Printer Info; supply not known; ribbon 1 not known\n";
#else
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
    const QByteArray line = "Branch Office: Printer Is Remotely Connected; supply not known; "
                            "ribbon 1 not known\n";
#endif
    QProcess process;
    process.setProcessEnvironment(variables);
    startProcess(process, QStringLiteral(VX_C_HOST), {});
    process.closeWriteChannel(); // it runs until the user presses Enter
    QVERIFY2(process.waitForFinished(patience), qPrintable(process.errorString()));
    QCOMPARE(process.exitCode(), 0);
    const QByteArray output = process.readAllStandardOutput().replace("\r\n", "\n");
    QVERIFY2(output.contains(line), output.constData());
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

#ifdef Q_OS_WIN

void InstalledPackageTest::hostPrintsThePrintersOfTheSystem()
{
    QVERIFY(fixture::setSpoolerRunning(true));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark AlderMax")}));
    QVERIFY(fixture::addPrinter({fixture::uniqueName(QStringLiteral("Office Printer")),
                                 QStringLiteral("Some Office Printer")}));
    const Result result = run(host, {QStringLiteral("0")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output,
             QStringLiteral("%1: Unable To Retrieve Printer Info. (Code 255), supply  0 %, ribbon "
                            " 0 %\nactive printer: %1\n\n")
                 .arg(printer)
                 .toUtf8());
}

void InstalledPackageTest::hostOnTheKitPrintsThePrintersOfTheSystem()
{
    QVERIFY(fixture::setSpoolerRunning(true));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark AlderMax")}));
    const Result result = run(kitHost, {QStringLiteral("0")});
    QCOMPARE(result.exitStatus, 0);
    // Its driver has not published anything.
    QCOMPARE(result.output, QStringLiteral("%1: Unable To Retrieve Printer Info; supply not known; "
                                           "ribbon 1 not known; ribbon 2 not known\n")
                                .arg(printer)
                                .toUtf8());
}

#else

QString InstalledPackageTest::fleetFile(const QByteArray& text)
{
    const QString name = m_folder.filePath(QStringLiteral("fleet.json"));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(name));
    return name;
}

bool InstalledPackageTest::printsWithFleet(const QString& fleet, const QByteArray& line,
                                           const QString& language, const QString& program)
{
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), fleet);
    variables.insert(QStringLiteral("VX_VIRTUAL_SPEED"), QStringLiteral("50"));
    variables.insert(QStringLiteral("LANGUAGE"), language);
    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(program, {});
    QByteArray output;
    while (!output.contains(line) && process.waitForReadyRead(patience))
        output += process.readAllStandardOutput();
    process.kill();
    process.waitForFinished(patience);
    if (!output.contains(line))
        qWarning("printed instead:\n%s%s", output.constData(),
                 process.readAllStandardError().constData());
    return output.contains(line);
}

void InstalledPackageTest::hostPrintsThePrintersOfAFleet()
{
    const QString fleet = fleetFile(R"({
        "printers": [
            { "name": "Packing", "driver": "Stratamark CedarMax",
              "values": { "StatusCode": "1", "SupplyIdentifier": "000000641000010000A7",
                          "Mileage": 15240, "Ribbon1Identifier": 2001, "Ribbon1Mileage": 60000 } },
            { "name": "Front Desk Laser", "driver": "Everyday Office Laser 400" }
        ],
        "defaultPrinter": "Packing",
        "timeline": [
            { "at": 30, "printer": "Packing", "values": { "Ribbon1Identifier": 2006 } }
        ]
    })");
    const QByteArray active = "active printer: Packing\n";
    QVERIFY(
        printsWithFleet(fleet,
                        "Packing: Unable To Retrieve Printer Info. (Code 255), supply  0 %, ribbon "
                        " 0 %\n" +
                            active,
                        QStringLiteral("en")));
    QVERIFY(printsWithFleet(fleet,
                            "Packing: Ready, supply VT-400-WH 50 %, ribbon Black 49 %\n" + active,
                            QStringLiteral("en")));
    QVERIFY(printsWithFleet(fleet,
                            "Packing: Ready, supply VT-400-WH 50 %, ribbon Green 49 %\n" + active,
                            QStringLiteral("en")));
}

void InstalledPackageTest::hostOnTheKitShowsSuppliesAndRibbonsAtItsFirstRun()
{
    const QString fleet = fleetFile(R"({
        "printers": [
            { "name": "Packing", "driver": "Stratamark CedarMax",
              "values": { "StatusCode": "1", "SupplyIdentifier": "000000641000010000A7",
                          "Mileage": 15240, "Ribbon1Identifier": 2001, "Ribbon1Mileage": 60000 } }
        ],
        "timeline": [
            { "at": 30, "printer": "Packing", "values": { "Ribbon1Identifier": 0 } }
        ]
    })");
    QVERIFY(printsWithFleet(
        fleet, "Packing: Ready; supply White Vinyl, 15.2 m; ribbon 1 Black resin, 60.0 m\n",
        QStringLiteral("en"), kitHost));
    QVERIFY(printsWithFleet(fleet, "Packing: Ready; supply White Vinyl, 15.2 m; ribbon 1 empty\n",
                            QStringLiteral("en"), kitHost));
    QVERIFY(printsWithFleet(fleet, "Packing: Bereit; Etiketten ", QStringLiteral("de"), kitHost));
}

void InstalledPackageTest::examplesPrintNothingOfTheLog()
{
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
    const Result result = run(host, {QStringLiteral("0")}, variables);
    QCOMPARE(result.exitStatus, 0);
    QVERIFY2(result.output.contains("Warehouse: "), result.output.constData());
    QCOMPARE(result.errors, QByteArray());
}

void InstalledPackageTest::titlesAreInTheUsersLanguage()
{
    QVERIFY(
        printsWithFleet(QStringLiteral("built-in"), "Warehouse: Bereit, ", QStringLiteral("de")));
    QVERIFY(
        printsWithFleet(QStringLiteral("built-in"), "Warehouse: Lista, ", QStringLiteral("es")));
    // The example's own texts.
    QVERIFY(printsWithFleet(QStringLiteral("built-in"), "aktiver Drucker: Warehouse\n",
                            QStringLiteral("de")));
}

void InstalledPackageTest::brokenFleetIsRefused_data()
{
    QTest::addColumn<QString>("fleet");
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QString>("error");
    const QString broken = fleetFile("{\n  \"printers\": 3\n}\n");
    const QString missing = m_folder.filePath(QStringLiteral("missing.json"));
    QTest::newRow("file") << broken << QString()
                          << broken + QStringLiteral(":2: printers: expected a list, found 3");
    QTest::newRow("missing") << missing << QString()
                             << missing + QStringLiteral(": No such file or directory");
    QTest::newRow("speed")
        << QStringLiteral("built-in") << QStringLiteral("fast")
        << QStringLiteral(
               "VX_VIRTUAL_SPEED: expected a number above 0 and up to 1000, found \"fast\"");
    QTest::newRow("no speed")
        << QStringLiteral("built-in") << QStringLiteral("0")
        << QStringLiteral(
               "VX_VIRTUAL_SPEED: expected a number above 0 and up to 1000, found \"0\"");
}

void InstalledPackageTest::brokenFleetIsRefused()
{
    QFETCH(const QString, fleet);
    QFETCH(const QString, speed);
    QFETCH(const QString, error);
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), fleet);
    variables.insert(QStringLiteral("VX_VIRTUAL_SPEED"), speed);
    const Result result = run(host, {QStringLiteral("0")}, variables);
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(QString::fromUtf8(result.errors), QStringLiteral("virtualwindows: %1\n").arg(error));
}

#endif

QTEST_GUILESS_MAIN(InstalledPackageTest)
#include "tst_installed_package.moc"
