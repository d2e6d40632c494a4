// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Raw commands, and the lines that the host writes into the log.
#include "controller_test.h"

namespace {
const QString ash = QStringLiteral("Ash");
constexpr char sendFunction[] =
    "void PrinterStatusController::sendCommandToPrinter(QString, QString)";

QStringList functionsOf(const QList<Call>& calls)
{
    QStringList names;
    for (const Call& call : calls)
        names.append(call.function);
    return names;
}
} // namespace

class ControllerCommandsTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void command_data();
    void command();
    void spoolerIsCalledInOrder();
    void arguments();
    void failure_data();
    void failure();
    void unknownPrinterIsLogged();
    void nonAsciiPrinterNameIsUsedAndLogged();
    void partlyWrittenDataIsNotAFailure();
    void commandsAreIndependent();
    void noSignalIsEmitted();
    void lineOfTheHostIsLogged_data();
    void lineOfTheHostIsLogged();
};

void ControllerCommandsTest::init()
{
    ControllerTest::init();
    makeController();
    // Added after discovery, so that only the commands call the spooler for it.
    addPrinter(ash);
    machine().recordCalls();
}

void ControllerCommandsTest::command_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("document");

    QTest::newRow("plain") << "FEED 10" << QByteArray("FEED 10\r\n") << "FEED 10";
    QTest::newRow("empty") << "" << QByteArray("\r\n") << "";
    QTest::newRow("null") << QString() << QByteArray("\r\n") << "";
    QTest::newRow("several lines") << "A\nB\r\n" << QByteArray("A\nB\r\n\r\n") << "A\nB\r\n";
    QTest::newRow("outside of ASCII") << QString::fromUtf8("Größe €") << QByteArray("Größe €\r\n")
                                      << QString::fromUtf8("Größe €");
    const QString withZero = QStringLiteral("AB") + QChar(u'\0') + QStringLiteral("CD");
    QTest::newRow("zero byte") << withZero << QByteArray("AB") << "AB";
    QTest::newRow("zero byte first") << QString(QChar(u'\0')) << QByteArray("") << "";
    const QString lengthy(100000, QLatin1Char('x'));
    QTest::newRow("long") << lengthy << lengthy.toLatin1() + "\r\n" << lengthy;
}

void ControllerCommandsTest::command()
{
    QFETCH(const QString, command);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, document);

    controller().sendCommandToPrinter(command, ash);

    const QList<virtualwindows::PrintJob> jobs = machine().jobs(ash);
    QCOMPARE(jobs.size(), 1);
    const virtualwindows::PrintJob& job = jobs.first();
    QCOMPARE(job.document, document);
    QVERIFY(job.outputFile.isNull());
    QCOMPARE(job.datatype, QStringLiteral("RAW"));
    QCOMPARE(job.pages, QList<QByteArray>{bytes});
    QVERIFY(job.finished);
    QVERIFY(takeLog().isEmpty());
}

void ControllerCommandsTest::spoolerIsCalledInOrder()
{
    controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
    QCOMPARE(functionsOf(machine().calls()),
             QStringList({QStringLiteral("OpenPrinterA"), QStringLiteral("StartDocPrinterW"),
                          QStringLiteral("StartPagePrinter"), QStringLiteral("WritePrinter"),
                          QStringLiteral("EndPagePrinter"), QStringLiteral("EndDocPrinter"),
                          QStringLiteral("ClosePrinter")}));
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerCommandsTest::arguments()
{
    controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
    const Call opening = machine().calls(QStringLiteral("OpenPrinterA")).value(0);
    QCOMPARE(opening.arguments.at(0), ash);
    QCOMPARE(opening.arguments.last(), QStringLiteral("0")); // default access
    QCOMPARE(machine().calls(QStringLiteral("StartDocPrinterW")).value(0).arguments.at(1),
             QStringLiteral("1"));
    QCOMPARE(machine().calls(QStringLiteral("WritePrinter")).value(0).arguments.last(),
             QStringLiteral("6"));
}

void ControllerCommandsTest::failure_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("message");

    const QString open = QStringLiteral("OpenPrinterA");
    const QString document = QStringLiteral("StartDocPrinterW");
    const QString page = QStringLiteral("StartPagePrinter");
    const QString write = QStringLiteral("WritePrinter");
    const QString endPage = QStringLiteral("EndPagePrinter");
    const QString endDocument = QStringLiteral("EndDocPrinter");
    const QString close = QStringLiteral("ClosePrinter");

    QTest::newRow("opening") << open << QStringList{open} << 338 << "Ash: OpenPrinter call failed";
    QTest::newRow("document") << document << QStringList{open, document, close} << 350
                              << "ERROR: failed to start print job";
    QTest::newRow("page") << page << QStringList{open, document, page, endDocument, close} << 358
                          << "ERROR: failed to start new (virtual) page";
    QTest::newRow("writing") << write << QStringList{open,    document,    page, write,
                                                     endPage, endDocument, close}
                             << 367 << "ERROR: printer does not accept (all) data\n";
}

void ControllerCommandsTest::failure()
{
    QFETCH(const QString, function);
    QFETCH(const QStringList, calls);
    QFETCH(const int, line);
    QFETCH(const QString, message);

    machine().failCall(function, 1, 5);
    bool loggedTooEarly = false;
    machine().setCallHook([&](const Call&) { loggedTooEarly |= !takeLog().isEmpty(); });
    controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
    machine().setCallHook(nullptr);

    // Everything has been ended when the line is written.
    QVERIFY(!loggedTooEarly);
    QCOMPARE(takeLog(), QList<LogRecord>{
                            libraryLine("printer_status_controller", line, sendFunction, message)});
    QCOMPARE(functionsOf(machine().calls()), calls);
    QCOMPARE(machine().openHandles(), 0);

    // The next command works.
    controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
    QVERIFY(takeLog().isEmpty());
    QVERIFY(machine().jobs(ash).last().finished);
}

void ControllerCommandsTest::unknownPrinterIsLogged()
{
    controller().sendCommandToPrinter(QStringLiteral("FEED"), QStringLiteral("Nobody"));
    QCOMPARE(takeMessages(), QStringList{QStringLiteral("Nobody: OpenPrinter call failed")});
    QVERIFY(machine().jobs(ash).isEmpty());
    QCOMPARE(functionsOf(machine().calls()), QStringList{QStringLiteral("OpenPrinterA")});
}

void ControllerCommandsTest::nonAsciiPrinterNameIsUsedAndLogged()
{
    const QString name = QString::fromUtf8("Lager Süd");
    addPrinter(name);
    controller().sendCommandToPrinter(QStringLiteral("FEED"), name);
    QCOMPARE(machine().jobs(name).size(), 1);
    machine().failCall(QStringLiteral("OpenPrinterA"), 1, 5);
    controller().sendCommandToPrinter(QStringLiteral("FEED"), name);
    QCOMPARE(takeMessages(), QStringList{QString::fromUtf8("Lager Süd: OpenPrinter call failed")});
}

void ControllerCommandsTest::partlyWrittenDataIsNotAFailure()
{
    // Ending the page or the document may fail too; this is not reported.
    for (const char* function : {"EndPagePrinter", "EndDocPrinter", "ClosePrinter"}) {
        machine().failCall(QString::fromLatin1(function), 1, 5);
        controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
        machine().clearFailures();
        QVERIFY2(takeLog().isEmpty(), function);
    }
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerCommandsTest::commandsAreIndependent()
{
    for (const char* command : {"A", "B", "C"})
        controller().sendCommandToPrinter(QString::fromLatin1(command), ash);
    QList<QByteArray> sent;
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(ash);
    for (const virtualwindows::PrintJob& job : jobs)
        sent += job.pages;
    QCOMPARE(sent, QList<QByteArray>({"A\r\n", "B\r\n", "C\r\n"}));
}

void ControllerCommandsTest::noSignalIsEmitted()
{
    controller().sendCommandToPrinter(QStringLiteral("FEED"), ash);
    controller().sendCommandToPrinter(QStringLiteral("FEED"), QStringLiteral("Nobody"));
    QVERIFY(takeSignals().isEmpty());
    QVERIFY(recordNames().isEmpty());
}

void ControllerCommandsTest::lineOfTheHostIsLogged_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("plain") << "Label printed";
    QTest::newRow("with a format in it") << "100 % of %s and %n";
    QTest::newRow("several lines") << "a\nb\n";
    QTest::newRow("outside of the code page") << QString::fromUtf8("ラベル €");
    QTest::newRow("empty") << "";
}

void ControllerCommandsTest::lineOfTheHostIsLogged()
{
    QFETCH(const QString, message);
    controller().sendToLogger(message);
    QCOMPARE(takeLog(), QList<LogRecord>{libraryLine(
                            "printer_status_controller", 451,
                            "void PrinterStatusController::sendToLogger(QString)", message)});
}

QTEST_GUILESS_MAIN(ControllerCommandsTest)
#include "tst_controller_commands.moc"
