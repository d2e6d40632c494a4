// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The monitor on the system's own spooler.
#include "host_test.h"
#include "start_process.h"
#include "test_file.h"

#include "backend.h"
#include "command_line.h"
#include "commands.h"
#include "output.h"
#include "windows_printer_info.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

#include <algorithm>
#include <functional>

namespace {

QString catalogue()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                    QLatin1String("/roll.db"));
}

/// The monitor as its users run it: in a process of its own, which is ended with this object.
class Monitor
{
public:
    explicit Monitor(const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VX_ROLL_DB"), catalogue());
        m_process.setProcessEnvironment(environment);
        startProcess(m_process, testFile(VXPRINTMON), arguments);
    }
    ~Monitor()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }
    Q_DISABLE_COPY_MOVE(Monitor)

    /// Waits until it has printed a text. False if it does not, or ends before.
    bool hasPrinted(const QByteArray& text)
    {
        return QTest::qWaitFor([&] { return output().contains(text) || !isRunning(); }, patience) &&
               output().contains(text);
    }
    /// The exit status; -1 if it crashes or does not end.
    int exitStatus()
    {
        const bool hasEnded = QTest::qWaitFor([this] { return !isRunning(); }, patience);
        return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode()
                                                                          : -1;
    }
    /// Everything up to now.
    QByteArray output()
    {
        m_output += m_process.readAllStandardOutput();
        return QByteArray(m_output).replace("\r\n", "\n");
    }
    QByteArray errors() { return m_process.readAllStandardError().replace("\r\n", "\n"); }

private:
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    QProcess m_process;
    QByteArray m_output;
};

/// A recording by the monitor. With VX_CASE_KEEP=FOLDER in the environment, the file is ended
/// properly and kept there, to become one of tests/cases.
class Recording
{
public:
    explicit Recording(const QString& name)
        : m_name(name)
        , m_file(QDir::toNativeSeparators(m_folder.filePath(name)))
        , m_monitor(QStringList{QStringLiteral("record"), m_file} + timeToKeep())
    {}

    /// Waits until the file has a text. False if it does not come.
    bool has(const QByteArray& text) const
    {
        return QTest::qWaitFor([&] { return content().contains(text); }, patience);
    }
    QByteArray content() const
    {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// False if it was to be kept and could not.
    bool keep()
    {
        const QString folder = qEnvironmentVariable("VX_CASE_KEEP");
        return folder.isEmpty() ||
               (m_monitor.exitStatus() == 0 && QFile::copy(m_file, QDir(folder).filePath(m_name)));
    }
    QString file() const { return m_file; }
    QByteArray errors() { return m_monitor.errors(); }

private:
    static QStringList timeToKeep()
    {
        if (qEnvironmentVariableIsEmpty("VX_CASE_KEEP"))
            return {};
        return {QStringLiteral("--for"), QStringLiteral("40")};
    }

    QTemporaryDir m_folder;
    QString m_name;
    QString m_file;
    Monitor m_monitor;
};

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

QJsonObject checkOf(const QByteArray& json, const QString& check, const QString& subject = {})
{
    const QJsonArray checks = QJsonDocument::fromJson(json).array();
    for (const QJsonValue each : checks) {
        if (each[QLatin1String("check")] == check && each[QLatin1String("subject")] == subject)
            return each.toObject();
    }
    return {};
}

} // namespace

class MonitorOnWindowsTest : public HostTest
{
    Q_OBJECT

private Q_SLOTS:
    void watchSeesPrintersComeAndGo_data();
    void watchSeesPrintersComeAndGo();
    void watchPrintsWhatADriverPublishes();
    void watchWritesALogThatLogPrints();
    void statusAndListShowThePrinters();
    void topRefusesWhatIsNoConsole();
    void topHasJsonWithoutAConsole();
    void doctorJudgesThePrinters();
    void doctorSaysThatTheSpoolerMustBeStarted();
    void recordFollowsASpoolerThatStops();
    void recordFollowsPrintersThatComeAndGo();
    void caseIsRedacted();

private:
    struct Step
    {
        std::function<bool()> act; ///< false if it fails
        QByteArray expected;       ///< what is printed because of it
    };
    /// Runs `watch` in this process, whose library has the notifications that the system may lack.
    /// Each step is taken after the text of the one before it was printed. Returns what was printed
    /// until the last text, or until the next one did not come.
    static QByteArray watch(const QList<Step>& steps);
};

void MonitorOnWindowsTest::watchSeesPrintersComeAndGo_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("added");
    QTest::addColumn<QByteArray>("gone");
    QTest::newRow("lines") << QStringList() << QByteArray("There are no label printers yet.")
                           << QByteArray("  %1  Printer added")
                           << QByteArray("  %1  Printer removed (warning)");
    QTest::newRow("JSON") << QStringList{QStringLiteral("--json")}
                          << QByteArray(R"("event":"snapshot","printers":[]})")
                          << QByteArray(R"("event":"added","printer":"%1")")
                          << QByteArray(R"("event":"gone","printer":"%1")");
}

void MonitorOnWindowsTest::watchSeesPrintersComeAndGo()
{
    QFETCH(const QStringList, options);
    QFETCH(const QByteArray, first);
    QFETCH(QByteArray, added);
    QFETCH(QByteArray, gone);
    Monitor monitor(QStringList{QStringLiteral("watch")} + options);
    QVERIFY2(monitor.hasPrinted(first), (monitor.output() + monitor.errors()).constData());
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(!printer.isEmpty());
    added.replace("%1", printer.toUtf8());
    QVERIFY2(monitor.hasPrinted(added), monitor.output().constData());
    QVERIFY(!monitor.output().contains(gone.replace("%1", printer.toUtf8())));
    // At once: discovery may have listed the printers before it was there, and list them again
    // when it is gone.
    QVERIFY(fixture::removePrinter(printer));
    QVERIFY2(monitor.hasPrinted(gone), monitor.output().constData());
    QCOMPARE(monitor.errors(), QByteArray());
}

QByteArray MonitorOnWindowsTest::watch(const QList<Step>& steps)
{
    const QTemporaryDir folder;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(
        QFile::encodeName(folder.filePath(QStringLiteral("printed.txt"))).constData(), "w+b"));
    if (!file)
        return "there is no temporary file";
    StandardOutput stream("test", file.get());
    Output output(stream);
    const CommandLine line =
        parseCommandLine({QStringLiteral("vxprintmon"), QStringLiteral("watch"),
                          QStringLiteral("--catalogue"), catalogue()});
    const std::unique_ptr<Backend> backend = Backend::create(line, QString());

    QByteArray printed;
    qsizetype taken = 0;
    const auto readAndAct = [&] {
        // The next line is written where the one before it ends.
        std::fflush(file.get());
        const long end = std::ftell(file.get());
        std::rewind(file.get());
        printed.resize(end);
        printed.resize(static_cast<qsizetype>(
            std::fread(printed.data(), 1, static_cast<std::size_t>(end), file.get())));
        std::fseek(file.get(), end, SEEK_SET);
        if (taken > 0 && !printed.contains(steps.at(taken - 1).expected))
            return;
        if (taken == steps.size() || !steps.at(taken).act())
            QCoreApplication::quit();
        else
            ++taken;
    };
    QTimer clock;
    connect(&clock, &QTimer::timeout, &clock, readAndAct);
    clock.start(10);
    QTimer::singleShot(patience, &clock, &QCoreApplication::quit);
    runWatch(line, output, *backend);
    return printed;
}

void MonitorOnWindowsTest::watchPrintsWhatADriverPublishes()
{
    const QString printer = addLoadedPrinter();
    QVERIFY(!printer.isEmpty());
    const QByteArray printed = watch({
        {[&] { return true; }, "White Vinyl"},
        {[&] {
             return publish(printer, {"StatusCode", REG_SZ, text("4")});
         },
         "The cover is open"},
        {[&] {
             return publish(printer, {"SupplyIdentifier", REG_SZ, text("000000641000030000A7")});
         },
         "Yellow Vinyl"},
        {[&] {
             return publish(printer, {"StatusCode", REG_SZ, text("2")});
         },
         "The printer is out of labels"},
    });
    QVERIFY2(printed.contains("The printer is out of labels"), printed.constData());
}

void MonitorOnWindowsTest::watchWritesALogThatLogPrints()
{
    const QTemporaryDir folder;
    const QString file = QDir::toNativeSeparators(folder.filePath(QStringLiteral("events.log")));
    Monitor monitor({QStringLiteral("watch"), QStringLiteral("--log"), file});
    QVERIFY2(monitor.hasPrinted("There are no label printers yet."), monitor.errors().constData());
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(!printer.isEmpty());
    QVERIFY2(monitor.hasPrinted("Printer added"), monitor.output().constData());
    QVERIFY(fixture::removePrinter(printer));
    QVERIFY2(monitor.hasPrinted("Printer removed"), monitor.output().constData());
    // The other process still has the file, and writes it a moment after the screen.
    QByteArray printed;
    const auto isLogged = [&] {
        Monitor log({QStringLiteral("log"), file});
        const int status = log.exitStatus();
        printed = log.output() + log.errors();
        return status == 0 && printed.contains("Printer removed");
    };
    QVERIFY2(QTest::qWaitFor(isLogged, patience), printed.constData());
    QVERIFY2(printed.contains("Printer added"), printed.constData());
    QVERIFY2(printed.contains(printer.toUtf8()), printed.constData());
    QCOMPARE(monitor.errors(), QByteArray());
}

void MonitorOnWindowsTest::statusAndListShowThePrinters()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    const QString office = addPrinter("Some Office Printer");
    QVERIFY(!printer.isEmpty() && !office.isEmpty());
    Monitor list({QStringLiteral("list")});
    QCOMPARE(list.exitStatus(), 0);
    QVERIFY2(list.output().contains(printer.toUtf8() + "  AlderMax  901"),
             list.output().constData());
    QVERIFY2(list.output().contains(office.toUtf8() + "  -         901"),
             list.output().constData());
    QCOMPARE(list.errors(), QByteArray());

    Monitor status({QStringLiteral("status"), printer.toUpper()});
    QCOMPARE(status.exitStatus(), 0);
    QCOMPARE(status.errors(), QByteArray());
    QVERIFY2(status.output().contains("printer        " + printer.toUtf8() + '\n'),
             status.output().constData());
    QVERIFY2(status.output().contains("watched        yes\n"), status.output().constData());

    Monitor other({QStringLiteral("status"), office});
    QCOMPARE(other.exitStatus(), 1);
    QVERIFY(other.errors().contains("is not one of the label printers' maker"));
    Monitor virtualPrinters(
        {QStringLiteral("list"), QStringLiteral("--virtual"), QStringLiteral("built-in")});
    QCOMPARE(virtualPrinters.exitStatus(), 2);
    QVERIFY(virtualPrinters.errors().contains("this build uses the system's own print spooler"));
}

void MonitorOnWindowsTest::topRefusesWhatIsNoConsole()
{
    Monitor top({QStringLiteral("top")});
    QCOMPARE(top.exitStatus(), 2);
    QCOMPARE(top.output(), QByteArray());
    QVERIFY2(top.errors().startsWith("vxprintmon: top draws on a terminal, but its input or output "
                                     "is none; use status, or top --json"),
             top.errors().constData());
}

void MonitorOnWindowsTest::topHasJsonWithoutAConsole()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    QVERIFY(!printer.isEmpty());
    Monitor top({QStringLiteral("top"), QStringLiteral("--json")});
    QCOMPARE(top.exitStatus(), 0);
    const QJsonArray readings = QJsonDocument::fromJson(top.output()).array();
    QCOMPARE(readings.size(), 1);
    QCOMPARE(readings.at(0)[QLatin1String("name")].toString(), printer);
}

void MonitorOnWindowsTest::doctorJudgesThePrinters()
{
    // The computer may have printers of its own.
    const QList<AvailablePrinters> before = WindowsPrinterInfo::getAvailablePrinters();
    const auto labelPrintersBefore =
        std::count_if(before.begin(), before.end(), [](const AvailablePrinters& other) {
            return WindowsPrinterInfo::printerType(other.driverName) !=
                   VXPrinting::PrinterType::Unknown;
        });
    const QString printer = addLoadedPrinter();
    const QString office = addPrinter("Some Office Printer");
    const QString asleep = addPrinter("Stratamark CedarMax", offlinePrinter);
    const QString remote =
        addPrinter("Stratamark BirchMax", localPrinter, QStringLiteral("192.0.2.20"));
    QVERIFY(!printer.isEmpty() && !office.isEmpty() && !asleep.isEmpty() && !remote.isEmpty());
    QVERIFY(publish(printer, {"Mileage", REG_DWORD, word(900000)}));
    Monitor doctor({QStringLiteral("doctor"), QStringLiteral("--json")});
    QCOMPARE(doctor.exitStatus(), 1);
    const QByteArray json = doctor.output();
    const auto check = [&](const char* name, const QString& subject = {}) {
        const QJsonObject found = checkOf(json, QString::fromLatin1(name), subject);
        return found[QLatin1String("verdict")].toString() + QLatin1String(": ") +
               found[QLatin1String("text")].toString();
    };
    QCOMPARE(check("service"), QStringLiteral("ok: The service \"Spooler\" is running."));
    QCOMPARE(
        check("spooler"),
        QStringLiteral("ok: The print spooler answers. Printers: %1, label printers: %2.")
            .arg(QString::number(before.size() + 4), QString::number(labelPrintersBefore + 3)));
    QVERIFY2(check("catalogue").startsWith(QLatin1String("ok: Catalogue ") + catalogue()),
             qPrintable(check("catalogue")));
    QCOMPARE(check("rights", printer), QStringLiteral("ok: You may manage the printer."));
    QCOMPARE(check("online", printer), QStringLiteral("ok: The printer is online."));
    QCOMPARE(check("port", printer), QStringLiteral("note: No USB device of a label printer is on "
                                                    "the printer's port USB901."));
    QCOMPARE(check("value.Mileage", printer),
             QStringLiteral("problem: Mileage: REG_DWORD, 4 B: a0 bb 0d 00 (900000); a number up "
                            "to 152400 is plausible"));
    QCOMPARE(check("value.StatusCode", printer),
             QStringLiteral("ok: StatusCode: REG_SZ, 2 B: 31 00 (\"1\")"));
    QCOMPARE(check("status", printer).section(u'.', 0, 0), QStringLiteral("ok: Status 1: Ready"));
    QVERIFY2(check("loaded.supply", printer)
                 .endsWith(QLatin1String("is VT-400-WH in the "
                                         "catalogue.")),
             qPrintable(check("loaded.supply", printer)));
    QCOMPARE(check("online", asleep),
             QStringLiteral("problem: The printer is set to be used offline."));
    QCOMPARE(check("port", remote),
             QStringLiteral("note: The printer is reached over a network (port 192.0.2.20), so "
                            "it is listed, but not watched."));
    QVERIFY2(check("model", office).startsWith(QLatin1String("note: The driver")),
             qPrintable(check("model", office)));
}

void MonitorOnWindowsTest::doctorSaysThatTheSpoolerMustBeStarted()
{
    STOPS_SPOOLER();
    QVERIFY(fixture::setSpoolerRunning(false));
    Monitor doctor({QStringLiteral("doctor"), QStringLiteral("--json")});
    QCOMPARE(doctor.exitStatus(), 1);
    const QByteArray json = doctor.output();
    const QJsonObject service = checkOf(json, QStringLiteral("service"));
    QCOMPARE(service[QLatin1String("text")].toString(),
             QStringLiteral("The service \"Spooler\" is not running (state 1)."));
    const QString remedy = service[QLatin1String("remedy")].toString();
    QVERIFY2(remedy.contains(QLatin1String("net start spooler")), qPrintable(remedy));
    const QJsonObject spooler = checkOf(json, QStringLiteral("spooler"));
    QCOMPARE(spooler[QLatin1String("verdict")].toString(), QStringLiteral("problem"));
    QCOMPARE(spooler[QLatin1String("remedy")].toString(), remedy);
}

void MonitorOnWindowsTest::recordFollowsASpoolerThatStops()
{
    STOPS_SPOOLER();
    const QString printer = addLoadedPrinter();
    const QString office = addPrinter("Some Office Printer");
    QVERIFY(!printer.isEmpty() && !office.isEmpty());
    Recording recording(QStringLiteral("spooler_stopped_on_windows.vxcase"));
    // A system without notifications has no reports; the library sees its service either way.
    QVERIFY2(recording.has(R"("kind":"started")"), recording.errors().constData());
    QVERIFY(fixture::setSpoolerRunning(false));
    QVERIFY2(recording.has(R"("status":254)"), recording.content().constData());
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("4")}));
    const qsizetype pollsBefore = recording.content().count(R"("kind":"poll")");
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY2(
        QTest::qWaitFor([&] { return recording.content().count(R"("kind":"poll")") > pollsBefore; },
                        patience),
        recording.content().constData());
    QVERIFY(!recording.content().contains(printer.toUtf8()));

    Monitor show({QStringLiteral("case"), QStringLiteral("show"), recording.file()});
    QCOMPARE(show.exitStatus(), 0);
    const QByteArray shown = show.output();
    QVERIFY2(shown.contains("Print spooler stopped, no printer can be read"), shown.constData());
    Monitor explain({QStringLiteral("case"), QStringLiteral("explain"), recording.file()});
    QCOMPARE(explain.exitStatus(), 0);
    const QByteArray explained = explain.output();
    QVERIFY2(explained.contains("The print spooler was stopped and started again."),
             explained.constData());
    QVERIFY(recording.keep());
}

void MonitorOnWindowsTest::recordFollowsPrintersThatComeAndGo()
{
    Recording recording(QStringLiteral("printers_came_and_went_on_windows.vxcase"));
    QVERIFY2(recording.has(R"("kind":"begun")"), recording.errors().constData());
    const QString loaded = addLoadedPrinter();
    QVERIFY(!loaded.isEmpty());
    QVERIFY2(recording.has(R"("kind":"started")"), recording.content().constData());
    const QString asleep = addPrinter("Stratamark CedarMax", offlinePrinter);
    const QString remote =
        addPrinter("Stratamark BirchMax", localPrinter, QStringLiteral("192.0.2.20"));
    QVERIFY(!asleep.isEmpty() && !remote.isEmpty());
    QVERIFY2(recording.has("Stratamark BirchMax"), recording.content().constData());
    QVERIFY(fixture::removePrinter(remote));
    QVERIFY2(recording.has(R"("kind":"printerRemoved")"), recording.content().constData());
    QVERIFY(recording.keep());
}

void MonitorOnWindowsTest::caseIsRedacted()
{
    const QTemporaryDir folder;
    const QString original = folder.filePath(QStringLiteral("Müller – Montag.vxcase"));
    const QString redacted =
        QDir::toNativeSeparators(folder.filePath(QStringLiteral("Müller – ohne Namen.vxcase")));
    QFile file(original);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "{\"kind\":\"case\",\"version\":\"1.0\",\"product\":\"VxPrinterStatus 2.0.0\",\"redacted\":"
        "false}\n"
        "{\"kind\":\"printer\",\"name\":\"Frau Müller\",\"driver\":\"Stratamark BirchMax\","
        "\"port\":\"USB901\",\"values\":[{\"name\":\"StatusCode\",\"type\":1,\"text\":\"1\"}]}\n"
        "{\"kind\":\"begun\"}\n"
        "{\"kind\":\"job\",\"t\":1,\"printer\":\"Frau Müller\",\"id\":3,\"user\":\"Erika\","
        "\"document\":\"Kündigung.pdf\",\"status\":16}\n"
        "{\"kind\":\"end\",\"t\":2,\"steps\":0,\"signals\":0,\"logLines\":0,\"faster\":0}\n");
    file.close();
    const QStringList arguments{QStringLiteral("case"), QStringLiteral("redact"), original,
                                redacted};
    Monitor redact(arguments);
    QCOMPARE(redact.exitStatus(), 0);
    QVERIFY2(redact.output().contains("lines written: 5, left out: 0"),
             redact.output().constData());

    QFile written(redacted);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    QVERIFY(!text.contains('\r'));
    QCOMPARE(text.count('\n'), 5);
    for (const char* name : {"Müller", "Erika", "Kündigung"})
        QVERIFY2(!text.contains(name), text.constData());
    QVERIFY(text.contains(R"("name":"Printer 1")"));
    QVERIFY(text.contains(R"("user":"User 1")"));
    QVERIFY(text.contains("Stratamark BirchMax"));
    written.close();
    // Nothing else is left there, and nothing is replaced.
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    Monitor again(arguments);
    QCOMPARE(again.exitStatus(), 1);
    QVERIFY(again.errors().contains("there is such a file already"));

    Monitor show({QStringLiteral("case"), QStringLiteral("show"), redacted});
    QCOMPARE(show.exitStatus(), 0);
    QVERIFY2(show.output().contains("Printer 1"), show.output().constData());
    // There are no virtual printers to play it to.
    Monitor verify({QStringLiteral("case"), QStringLiteral("verify"), redacted});
    QCOMPARE(verify.exitStatus(), 1);
    QVERIFY2(verify.errors().contains("virtual"), verify.output().constData());
}

QTEST_GUILESS_MAIN(MonitorOnWindowsTest)
#include "tst_monitor_on_windows.moc"
