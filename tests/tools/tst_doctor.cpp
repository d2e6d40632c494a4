// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_check.h"
#include "machine_test.h"
#include "printer_values.h"
#include "windows_printer_info.h"

#include <status_info.h>
#include <vxipcserver.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

#include <windows.h>
#include <winspool.h>

#include <array>

using doctor::Check;
using doctor::Remedy;
using doctor::Verdict;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;

namespace {

const QString catalogue = QStringLiteral(VX_CATALOGUE);
const QString printerName = QStringLiteral("P");
const QString makersClass = QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");

QList<PrinterValue> goodValues()
{
    return {
        PrinterValue::text("StatusCode", "1"),
        PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
        PrinterValue::number("Mileage", 24385),
        PrinterValue::number("Ribbon1Identifier", 2001),
        PrinterValue::number("Ribbon1Mileage", 96013),
        PrinterValue::number("Ribbon2Identifier", 2004),
        PrinterValue::number("Ribbon2Mileage", 42006),
        PrinterValue::text("SoftwareVersion", "4.2.0,boot 1.7"),
        PrinterValue::text("EthernetConfig", "dhcp"),
        PrinterValue::number("UpdateProgress", 0),
        PrinterValue::number("UpdateError", 0),
    };
}

/// The check with a name; an empty one if there is none.
Check checkNamed(const QList<Check>& checks, const QString& name)
{
    for (const Check& check : checks) {
        if (check.check == name)
            return check;
    }
    return {};
}

QString english(Remedy remedy)
{
    return QString::fromLatin1(doctor::remedyText(remedy));
}

} // namespace

/// What doctor finds on the virtual machine. docs/support.md is compared with its remedies.
class TestDoctor : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void everythingInOrderIsOk();
    void serviceThatIsNotRunningIsAProblem();
    void serviceThatCannotBeQueriedIsAProblem();
    void spoolerThatDoesNotAnswerIsAProblem();
    void printerWithoutADriverIsAProblem();
    void noLabelPrinterIsAProblem();
    void noDeviceIsANote();

    void foreignAndUnsupportedPrintersAreNotes_data();
    void foreignAndUnsupportedPrintersAreNotes();
    void networkPrinterIsANote();
    void missingRightsAreAProblem();
    void offlinePrinterIsAProblem_data();
    void offlinePrinterIsAProblem();
    void queueThatReportsSomethingIsANote();
    void portWithoutItsDeviceIsANote();
    void callThatFailsIsAProblem_data();
    void callThatFailsIsAProblem();

    void valueIsJudged_data();
    void valueIsJudged();
    void missingValueOfAnOfflinePrinterIsANote();
    void secondRibbonIsExpectedOfModelsThatHaveIt();
    void limitsAreThoseOfTheLibrary();
    void statusIsJudgedByItsSeverity();
    void loadedSlotsAreLookedUpInTheCatalogue();

    void catalogueIsJudged_data();
    void catalogueIsJudged();
    void endpointsAreFound();

    void supportPageHasEveryRemedy();

private:
    void addPrinter(const PrinterSetup& setup = {},
                    const QList<PrinterValue>& values = goodValues())
    {
        PrinterSetup printer = setup;
        printer.name = printerName;
        if (printer.driver.isNull())
            printer.driver = QStringLiteral("Stratamark AlderMax");
        machine().addPrinter(printer);
        machine().publish(printerName, values);
    }
    void addDevice()
    {
        machine().addDevice(
            {.classGuid = makersClass,
             .interfaceKey = QStringLiteral("##?#USB#VID_3E7A&PID_0104#AM-1#") + makersClass,
             .portNumber = 1,
             .serialNumber = QStringLiteral("AM-1")});
    }
    static QList<Check> checkPrinter()
    {
        for (const AvailablePrinters& each : WindowsPrinterInfo::getAvailablePrinters()) {
            if (each.printerName == printerName)
                return doctor::checkPrinter(each, catalogue);
        }
        return {};
    }
    static QList<Check> checkSpooler()
    {
        std::optional<QList<AvailablePrinters>> printers;
        return doctor::checkSpooler(&printers);
    }
};

#define VERIFY_FINDING(check, expectedVerdict, expectedRemedy)                                     \
    QCOMPARE(int((check).verdict), int(expectedVerdict));                                          \
    QCOMPARE((check).remedy, english(expectedRemedy))

void TestDoctor::everythingInOrderIsOk()
{
    addPrinter();
    addDevice();
    const QList<Check> checks = checkSpooler() + checkPrinter() +
                                doctor::checkCatalogue(catalogue) + doctor::checkVersions();
    // The computer's, the printer's, its eleven values, and what is loaded in its three slots.
    QCOMPARE(checks.size(), 3 + 1 + 1 + 5 + 11 + 1 + 3);
    for (const Check& check : checks) {
        QVERIFY2(check.verdict == Verdict::Ok, qPrintable(check.check + check.text));
        QVERIFY(check.remedy.isEmpty());
        QVERIFY(!check.text.isEmpty());
        QVERIFY(!check.check.isEmpty());
    }
    QCOMPARE(checkNamed(checks, QStringLiteral("spooler")).text,
             QStringLiteral("The print spooler answers. Printers: 1, label printers: 1."));
    QCOMPARE(checkNamed(checks, QStringLiteral("port")).text,
             QStringLiteral("Port USB001, with the device AM-1."));
    QCOMPARE(checkNamed(checks, QStringLiteral("value.Mileage")).text,
             QStringLiteral("Mileage: REG_DWORD, 4 B: 41 5f 00 00 (24385)"));
    QCOMPARE(checkNamed(checks, QStringLiteral("value.StatusCode")).text,
             QStringLiteral("StatusCode: REG_SZ, 2 B: 31 00 (\"1\")"));
}

void TestDoctor::serviceThatIsNotRunningIsAProblem()
{
    addPrinter();
    machine().stopSpooler();
    std::optional<QList<AvailablePrinters>> printers;
    const QList<Check> checks = doctor::checkSpooler(&printers);
    const Check service = checkNamed(checks, QStringLiteral("service"));
    VERIFY_FINDING(service, Verdict::Problem, Remedy::StartSpooler);
    QCOMPARE(service.text, QStringLiteral("The service \"Spooler\" is not running (state 1)."));
    // Which follows from it, so that there is one thing to do.
    VERIFY_FINDING(checkNamed(checks, QStringLiteral("spooler")), Verdict::Problem,
                   Remedy::StartSpooler);
    QVERIFY(!printers);
}

void TestDoctor::serviceThatCannotBeQueriedIsAProblem()
{
    for (const char* function : {"OpenSCManagerW", "OpenServiceW", "QueryServiceStatus"}) {
        machine().failCall(QString::fromLatin1(function), 1, ERROR_ACCESS_DENIED);
        const Check service = checkNamed(checkSpooler(), QStringLiteral("service"));
        VERIFY_FINDING(service, Verdict::Problem, Remedy::StartSpooler);
        QVERIFY2(service.text.startsWith(QLatin1String(function)), qPrintable(service.text));
        QVERIFY2(service.text.endsWith(QLatin1String("(error 5).")), qPrintable(service.text));
    }
}

void TestDoctor::spoolerThatDoesNotAnswerIsAProblem()
{
    machine().failCall(QStringLiteral("EnumPrintersW"), 1, RPC_S_SERVER_UNAVAILABLE);
    const Check spooler = checkNamed(checkSpooler(), QStringLiteral("spooler"));
    VERIFY_FINDING(spooler, Verdict::Problem, Remedy::RestartSpooler);
    QVERIFY(spooler.text.endsWith(QLatin1String("(error 1722).")));
}

void TestDoctor::printerWithoutADriverIsAProblem()
{
    addPrinter();
    machine().setDriver(printerName, QString());
    const Check spooler = checkNamed(checkSpooler(), QStringLiteral("spooler"));
    VERIFY_FINDING(spooler, Verdict::Problem, Remedy::InstallAgain);
    QCOMPARE(spooler.text, QStringLiteral("The print spooler lists a printer without a name, a "
                                          "port or a driver, so the library cannot look for "
                                          "printers."));
}

void TestDoctor::noLabelPrinterIsAProblem()
{
    addPrinter({.driver = QStringLiteral("Everyday Office Laser 400")});
    const Check spooler = checkNamed(checkSpooler(), QStringLiteral("spooler"));
    VERIFY_FINDING(spooler, Verdict::Problem, Remedy::InstallDriver);
    QVERIFY(spooler.text.endsWith(QLatin1String("Printers: 1.")));
}

void TestDoctor::noDeviceIsANote()
{
    const Check devices = checkNamed(checkSpooler(), QStringLiteral("devices"));
    VERIFY_FINDING(devices, Verdict::Note, Remedy::InstallDriver);
}

void TestDoctor::foreignAndUnsupportedPrintersAreNotes_data()
{
    QTest::addColumn<QString>("driver");
    QTest::newRow("another maker's") << QStringLiteral("Everyday Office Laser 400");
    QTest::newRow("not supported") << QStringLiteral("Stratamark Oak");
}

void TestDoctor::foreignAndUnsupportedPrintersAreNotes()
{
    QFETCH(QString, driver);
    addPrinter({.driver = driver});
    const QList<Check> checks = checkPrinter();
    QCOMPARE(checks.size(), 1);
    QCOMPARE(checks.first().check, QStringLiteral("model"));
    QCOMPARE(checks.first().subject, printerName);
    VERIFY_FINDING(checks.first(), Verdict::Note, Remedy::NothingForeign);
    QVERIFY(checks.first().text.contains(driver));
}

void TestDoctor::networkPrinterIsANote()
{
    addPrinter({.port = QStringLiteral("192.168.1.20")}, {});
    const QList<Check> checks = checkPrinter();
    const Check port = checkNamed(checks, QStringLiteral("port"));
    VERIFY_FINDING(port, Verdict::Note, Remedy::ConnectByUsb);
    for (const Check& check : checks)
        QVERIFY2(check.value.isEmpty(), qPrintable(check.check));
}

void TestDoctor::missingRightsAreAProblem()
{
    addPrinter({.administrable = false}, {});
    const QList<Check> checks = checkPrinter();
    const Check rights = checkNamed(checks, QStringLiteral("rights"));
    VERIFY_FINDING(rights, Verdict::Problem, Remedy::AskForRights);
    // The library does not miss what it does not read.
    const Check status = checkNamed(checks, QStringLiteral("value.StatusCode"));
    VERIFY_FINDING(status, Verdict::Note, Remedy::RestartPrinter);
}

void TestDoctor::offlinePrinterIsAProblem_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<quint32>("status");
    QTest::addColumn<int>("remedy");
    QTest::newRow("set to be used offline")
        << quint32(PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE) << quint32(0)
        << static_cast<int>(Remedy::UseOnline);
    QTest::newRow("reported offline")
        << quint32(PRINTER_ATTRIBUTE_LOCAL) << quint32(PRINTER_STATUS_OFFLINE)
        << static_cast<int>(Remedy::SwitchOn);
}

void TestDoctor::offlinePrinterIsAProblem()
{
    QFETCH(quint32, attributes);
    QFETCH(quint32, status);
    QFETCH(int, remedy);
    addPrinter({.attributes = attributes, .status = status});
    const Check online = checkNamed(checkPrinter(), QStringLiteral("online"));
    VERIFY_FINDING(online, Verdict::Problem, static_cast<Remedy>(remedy));
}

void TestDoctor::queueThatReportsSomethingIsANote()
{
    addPrinter({.status = PRINTER_STATUS_PAUSED | PRINTER_STATUS_PAPER_OUT | 0x80000000U});
    const Check queue = checkNamed(checkPrinter(), QStringLiteral("queue"));
    VERIFY_FINDING(queue, Verdict::Note, Remedy::LookAtQueue);
    QCOMPARE(queue.text, QStringLiteral("The queue reports: PAUSED, PAPER_OUT, 0x80000000."));

    machine().setStatus(printerName, PRINTER_STATUS_PRINTING);
    QCOMPARE(checkNamed(checkPrinter(), QStringLiteral("queue")).verdict, Verdict::Ok);

    // The check "online" says it.
    machine().setStatus(printerName, PRINTER_STATUS_OFFLINE);
    const Check offline = checkNamed(checkPrinter(), QStringLiteral("queue"));
    QCOMPARE(offline.verdict, Verdict::Ok);
    QCOMPARE(offline.text, QStringLiteral("The queue reports nothing."));
}

void TestDoctor::portWithoutItsDeviceIsANote()
{
    addDevice();
    for (const char* name : {"USB002", "001", "COM1:", "USB99999"}) {
        addPrinter({.port = QString::fromLatin1(name)});
        const Check port = checkNamed(checkPrinter(), QStringLiteral("port"));
        VERIFY_FINDING(port, Verdict::Note, Remedy::ChoosePort);
        QVERIFY(port.text.contains(QLatin1String(name)));
        machine().removePrinter(printerName);
    }
}

void TestDoctor::callThatFailsIsAProblem_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("nth");
    QTest::addColumn<QString>("check");
    QTest::newRow("opening, for the record")
        << QStringLiteral("OpenPrinterA") << 2 << QStringLiteral("record");
    QTest::newRow("opening, for the values")
        << QStringLiteral("OpenPrinterA") << 3 << QStringLiteral("values");
    QTest::newRow("the size of the record")
        << QStringLiteral("GetPrinterW") << 1 << QStringLiteral("record");
    QTest::newRow("the record") << QStringLiteral("GetPrinterW") << 2 << QStringLiteral("record");
    QTest::newRow("a value") << QStringLiteral("GetPrinterDataA") << 1
                             << QStringLiteral("value.StatusCode");
}

void TestDoctor::callThatFailsIsAProblem()
{
    QFETCH(QString, function);
    QFETCH(int, nth);
    QFETCH(QString, check);
    addPrinter();
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    QCOMPARE(printers.size(), 1);
    machine().failCall(function, nth, ERROR_ACCESS_DENIED);
    const QList<Check> checks = doctor::checkPrinter(printers.first(), catalogue);
    QCOMPARE(int(checkNamed(checks, check).verdict), int(Verdict::Problem));
    QVERIFY2(checkNamed(checks, check).text.endsWith(QLatin1String("(error 5).")),
             qPrintable(checkNamed(checks, check).text));
}

void TestDoctor::valueIsJudged_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QString>("text");
    const int ok = static_cast<int>(Verdict::Ok);
    const int problem = static_cast<int>(Verdict::Problem);
    const auto row = [](const char* tag, const QByteArray& name, quint32 type,
                        const QByteArray& data, int verdict, const char* text) {
        QTest::newRow(tag) << name << type << data << verdict << QString::fromUtf8(text);
    };
    row("wrong type of a text", "StatusCode", REG_DWORD, QByteArray("\x01\0\0\0", 4), problem,
        "StatusCode: REG_DWORD, 4 B: 01 00 00 00 (1); expected the type REG_SZ, REG_BINARY");
    row("wrong type of a number", "Mileage", REG_SZ, QByteArray("12\0", 3), problem,
        "Mileage: REG_SZ, 3 B: 31 32 00; expected the type REG_DWORD, REG_BINARY");
    row("a type without a name", "Mileage", 77, QByteArray("12\0", 3), problem,
        "Mileage: 77, 3 B: 31 32 00; expected the type REG_DWORD, REG_BINARY");
    row("too short", "SupplyIdentifier", REG_SZ, QByteArray("12\0", 3), problem,
        "SupplyIdentifier: REG_SZ, 3 B: 31 32 00 (\"12\"); expected 21 to 21 bytes");
    row("too long", "EthernetConfig", REG_SZ, QByteArray(75, 'x'), problem,
        "expected 0 to 74 bytes");
    row("longer than any block", "StatusCode", REG_SZ, QByteArray(100000, 'x'), problem,
        "expected 0 to 128 bytes");
    row("a number that is too long", "Mileage", REG_BINARY, QByteArray(5, '\x01'), problem,
        "Mileage: REG_BINARY, 5 B: 01 01 01 01 01; expected 0 to 4 bytes");
    row("not plausible", "Mileage", REG_DWORD, QByteArray("\xff\xff\xff\0", 4), problem,
        "Mileage: REG_DWORD, 4 B: ff ff ff 00 (16777215); a number up to 152400 is plausible");
    row("not known to the driver", "Mileage", REG_DWORD, QByteArray(4, '\xff'), ok,
        "Mileage: REG_DWORD, 4 B: ff ff ff ff (4294967295)");
    row("a text as bytes", "StatusCode", REG_BINARY, QByteArray("4"), ok,
        "StatusCode: REG_BINARY, 1 B: 34 (\"4\")");
}

void TestDoctor::valueIsJudged()
{
    QFETCH(QByteArray, name);
    QFETCH(quint32, type);
    QFETCH(QByteArray, data);
    QFETCH(int, verdict);
    QFETCH(QString, text);
    addPrinter();
    machine().publish(printerName, PrinterValue{name, type, data});
    const Check check =
        checkNamed(checkPrinter(), QStringLiteral("value.") + QString::fromLatin1(name));
    QCOMPARE(static_cast<int>(check.verdict), verdict);
    QVERIFY2(check.text.endsWith(text), qPrintable(check.text));
    QVERIFY2(check.text.size() < 300, qPrintable(check.text));
    QCOMPARE((check).remedy, verdict == 0 ? QString() : english(Remedy::RestartPrinter));

    machine().unpublish(printerName, name);
    const Check missing =
        checkNamed(checkPrinter(), QStringLiteral("value.") + QString::fromLatin1(name));
    QVERIFY(!missing.isPublished);
    QCOMPARE(missing.text, QString::fromLatin1(name) + QStringLiteral(": not published"));
    if (name == "EthernetConfig") {
        VERIFY_FINDING(missing, Verdict::Note, Remedy::NothingOptional);
    } else {
        VERIFY_FINDING(missing, Verdict::Problem, Remedy::RestartPrinter);
    }
}

void TestDoctor::missingValueOfAnOfflinePrinterIsANote()
{
    addPrinter({.status = PRINTER_STATUS_OFFLINE}, {});
    const QList<Check> checks = checkPrinter();
    const Check status = checkNamed(checks, QStringLiteral("value.StatusCode"));
    VERIFY_FINDING(status, Verdict::Note, Remedy::SwitchOn);
    // What the driver published before is not what the screen says.
    QVERIFY(checkNamed(checks, QStringLiteral("status")).check.isEmpty());
}

void TestDoctor::secondRibbonIsExpectedOfModelsThatHaveIt()
{
    for (const auto& [driver, verdict] : {std::pair("Stratamark Alder", Verdict::Problem),
                                          std::pair("Stratamark AlderMax", Verdict::Problem),
                                          std::pair("Stratamark BirchMax", Verdict::Ok),
                                          std::pair("Stratamark CedarMax", Verdict::Ok)}) {
        addPrinter({.driver = QString::fromLatin1(driver)});
        machine().unpublish(printerName, "Ribbon2Identifier");
        const Check check = checkNamed(checkPrinter(), QStringLiteral("value.Ribbon2Identifier"));
        QCOMPARE(int(check.verdict), int(verdict));
        QVERIFY(!check.isPublished);
        machine().removePrinter(printerName);
    }
}

void TestDoctor::limitsAreThoseOfTheLibrary()
{
    using namespace printer_values;
    const std::array<TextValue, 4> texts{supplyId, statusCode, softwareVersion, ethernetConfig};
    const std::array<NumberValue, 7> numbers{ribbon1Id,      ribbon2Id,      supplyMileage,
                                             ribbon1Mileage, ribbon2Mileage, updateProgress,
                                             updateError};
    QCOMPARE(doctor::expectedValues().size(), texts.size() + numbers.size());
    const auto expectedNamed = [](const char* name) {
        for (const doctor::ExpectedValue& each : doctor::expectedValues()) {
            if (qstrcmp(each.name, name) == 0)
                return each;
        }
        return doctor::ExpectedValue{};
    };
    for (const TextValue& text : texts) {
        const doctor::ExpectedValue expected = expectedNamed(text.name);
        QVERIFY2(expected.kind == doctor::ExpectedValue::Kind::Text, text.name);
        QCOMPARE(expected.leastBytes, text.leastBytes);
        QCOMPARE(expected.mostBytes, text.capacity);
    }
    for (const NumberValue& number : numbers) {
        const doctor::ExpectedValue expected = expectedNamed(number.name);
        QVERIFY2(expected.kind == doctor::ExpectedValue::Kind::Number, number.name);
        QCOMPARE(expected.mostBytes, quint32(4));
        QCOMPARE(expected.ceiling, number.ceiling);
    }
}

void TestDoctor::statusIsJudgedByItsSeverity()
{
    addPrinter();
    for (const auto& [code, verdict] :
         {std::pair(1, Verdict::Ok), std::pair(19, Verdict::Note), std::pair(21, Verdict::Note),
          std::pair(5, Verdict::Problem), std::pair(99, Verdict::Problem)}) {
        machine().publish(printerName, PrinterValue::text("StatusCode", QByteArray::number(code)));
        const Check status = checkNamed(checkPrinter(), QStringLiteral("status"));
        const VxKit::StatusInfo info = VxKit::statusInfo(code);
        QCOMPARE(int(status.verdict), int(verdict));
        QCOMPARE(
            status.text,
            QStringLiteral("Status %1: %2. %3").arg(code).arg(info.shortTitle, info.explanation));
        QCOMPARE(status.remedy, verdict == Verdict::Ok ? QString() : info.remedy);
    }
    machine().publish(printerName, PrinterValue::text("StatusCode", "on fire"));
    const Check status = checkNamed(checkPrinter(), QStringLiteral("status"));
    VERIFY_FINDING(status, Verdict::Problem, Remedy::RestartPrinter);
    QCOMPARE(status.text, QStringLiteral("The status code \"on fire\" is not a number."));
}

void TestDoctor::loadedSlotsAreLookedUpInTheCatalogue()
{
    addPrinter();
    QCOMPARE(checkNamed(checkPrinter(), QStringLiteral("loaded.supply")).text,
             QStringLiteral("supply: 000000641000030000A7 is VT-400-YL in the catalogue."));
    machine().publish(printerName, {PrinterValue::text("SupplyIdentifier", "000000649999990000A7"),
                                    PrinterValue::number("Ribbon1Identifier", 99999),
                                    PrinterValue::number("Ribbon2Identifier", 0xffffffff)});
    const QList<Check> checks = checkPrinter();
    const Check supply = checkNamed(checks, QStringLiteral("loaded.supply"));
    VERIFY_FINDING(supply, Verdict::Problem, Remedy::UpdateCatalogue);
    QCOMPARE(supply.text,
             QStringLiteral("supply: the catalogue does not know 000000649999990000A7."));
    const Check ribbon1 = checkNamed(checks, QStringLiteral("loaded.ribbon1"));
    VERIFY_FINDING(ribbon1, Verdict::Problem, Remedy::UpdateCatalogue);
    const Check ribbon2 = checkNamed(checks, QStringLiteral("loaded.ribbon2"));
    QCOMPARE(ribbon2.text, QStringLiteral("ribbon 2: nothing is loaded."));
    QCOMPARE(int(ribbon2.verdict), int(Verdict::Ok));
}

void TestDoctor::catalogueIsJudged_data()
{
    QTest::addColumn<qsizetype>("offset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("another schema")
        << qsizetype(63) << QByteArray("\x07") << qsizetype(-1)
        << QStringLiteral("has the schema version 7; only version 1 can be read.");
    QTest::newRow("another application") << qsizetype(68) << QByteArray("ABCD") << qsizetype(-1)
                                         << QStringLiteral("is no supply catalogue.");
    QTest::newRow("no database") << qsizetype(0) << QByteArray("Hello") << qsizetype(-1)
                                 << QStringLiteral("is no supply catalogue.");
    QTest::newRow("empty file") << qsizetype(0) << QByteArray() << qsizetype(0)
                                << QStringLiteral("is no supply catalogue.");
    QTest::newRow("cut off") << qsizetype(0) << QByteArray() << qsizetype(5000)
                             << QStringLiteral("is damaged or empty.");
}

void TestDoctor::catalogueIsJudged()
{
    QFETCH(qsizetype, offset);
    QFETCH(QByteArray, bytes);
    QFETCH(qsizetype, size);
    QFETCH(QString, text);
    QFile original(catalogue);
    QVERIFY(original.open(QIODevice::ReadOnly));
    QByteArray content = original.readAll();
    content.replace(offset, bytes.size(), bytes);
    if (size >= 0)
        content.truncate(size);
    const QString copy = settingsFolder() + QStringLiteral("/copy.db");
    QFile file(copy);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
    file.close();

    const Check damaged = doctor::checkCatalogue(copy).first();
    VERIFY_FINDING(damaged, Verdict::Problem, Remedy::ProvideCatalogue);
    QVERIFY2(damaged.text.endsWith(text), qPrintable(damaged.text));
    QVERIFY(damaged.text.contains(copy));

    QVERIFY(file.remove());
    const Check missing = doctor::checkCatalogue(copy).first();
    VERIFY_FINDING(missing, Verdict::Problem, Remedy::ProvideCatalogue);
    QCOMPARE(missing.text, QStringLiteral("There is no catalogue %1.").arg(copy));
}

void TestDoctor::endpointsAreFound()
{
    const QList<Check> none = doctor::checkEndpoints();
    QCOMPARE(none.size(), 3);
    for (const Check& check : none) {
        VERIFY_FINDING(check, Verdict::Note, Remedy::StartHost);
    }
    QCOMPARE(none.at(2).text, QStringLiteral("The endpoint vxipc-3 is not running."));
}

void TestDoctor::supportPageHasEveryRemedy()
{
    QFile page(QStringLiteral(VX_SUPPORT_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll()).simplified();
    for (int remedy = 0; remedy < doctor::remedyCount; ++remedy) {
        const QString words = english(static_cast<Remedy>(remedy));
        QVERIFY(!words.isEmpty());
        QVERIFY2(text.contains(QStringLiteral("**%1**").arg(words)), qPrintable(words));
    }
    const QList<VxKit::StatusInfo> infos = VxKit::allStatusInfo();
    QVERIFY(infos.size() > 20);
    for (const VxKit::StatusInfo& info : infos) {
        const QString entry = QStringLiteral("- **%1** (%2): %3")
                                  .arg(info.shortTitle)
                                  .arg(info.code)
                                  .arg(info.remedy);
        QVERIFY2(text.contains(entry), qPrintable(entry));
    }
    QFile readme(QStringLiteral(VX_README));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    QVERIFY(readme.readAll().contains("(docs/support.md)"));
}

QTEST_GUILESS_MAIN(TestDoctor)
#include "tst_doctor.moc"
