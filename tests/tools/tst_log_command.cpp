// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The log of events as `vxprintmon log` prints it.
#include "log_command.h"
#include "patience.h"
#include "test_file.h"
#include "text_layout.h"

#include <event_log.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <cerrno>

using VxKit::PrinterEvent;
using VxKit::Severity;

namespace {

struct Result
{
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;

    QList<QByteArray> lines() const { return output.trimmed().split('\n'); }
};

const QDate day(2026, 11, 22);

PrinterEvent statusOf(const QString& printer, int code, const QTime& time)
{
    PrinterEvent event;
    event.time = QDateTime(day, time);
    event.printer = printer;
    event.code = code;
    const VxKit::StatusInfo info = VxKit::statusInfo(code, QStringLiteral("en"));
    event.severity = info.severity;
    event.key = info.key;
    return event;
}

/// A day as the tool prints it: in the C locale, or on Windows in that of the user.
QByteArray heading(const QDate& date)
{
#ifdef Q_OS_WIN
    const QLocale locale = QLocale::system();
#else
    const QLocale locale = QLocale::c();
#endif
    return locale.toString(date, QLocale::LongFormat).toUtf8();
}

} // namespace

class LogCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void printsALineForEachEventUnderItsDay();
    void printsOnlyWhatIsAskedFor_data();
    void printsOnlyWhatIsAskedFor();
    void printsJsonLinesAsTheyAre();
    void printsTheUsersLanguage();
    void fitsEightyColumns();
    void hostileTextsCannotControlTheTerminal();
    void readsRotatedFilesFirst();
    void saysHowManyLinesWereLeftOut();
    void saysThatThereAreNoEvents();
    void missingFileIsAFailure();
    void wrongOptionsAreWrongUsage_data();
    void wrongOptionsAreWrongUsage();
    void timesAreUnderstood_data();
    void timesAreUnderstood();

private:
    QString file(int number = 0) const
    {
        const QString name = m_folder->filePath(QStringLiteral("printers.log"));
        return number == 0 ? name : name + QStringLiteral(".%1").arg(number);
    }
    bool write(const QByteArray& text, int number = 0) const
    {
        QFile out(file(number));
        return out.open(QIODevice::WriteOnly) && out.write(text) == text.size();
    }
    bool write(const QList<PrinterEvent>& events, int number = 0) const
    {
        QByteArray text;
        for (const PrinterEvent& event : events)
            text += event.toLine() + '\n';
        return write(text, number);
    }
    Result run(const QStringList& options = {}, const QString& language = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), language);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(testFile(VXPRINTMON), QStringList{QStringLiteral("log"), file()} + options);
        if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput().replace("\r\n", "\n"),
                process.readAllStandardError().replace("\r\n", "\n")};
    }
    static QList<PrinterEvent> aDay()
    {
        PrinterEvent stopped;
        stopped.time = QDateTime(day, QTime(11, 0));
        stopped.severity = Severity::Error;
        stopped.kind = PrinterEvent::Kind::SpoolerStopped;
        PrinterEvent level;
        level.time = QDateTime(day, QTime(10, 30));
        level.severity = Severity::Warning;
        level.kind = PrinterEvent::Kind::Level;
        level.printer = QStringLiteral("Shipping");
        level.slot = VxKit::Slot::Ribbon1;
        level.mark = 10;
        level.after.ratio = 0.1;
        level.after.meters = 20.5;
        PrinterEvent tomorrow = statusOf(QStringLiteral("Returns"), 1, QTime(0, 0));
        tomorrow.time = tomorrow.time.addDays(1);
        return {statusOf(QStringLiteral("Returns"), 1, QTime(9, 59, 59)), level,
                statusOf(QStringLiteral("Shipping"), 2, QTime(10, 42, 7)), stopped, tomorrow};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LogCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void LogCommandTest::printsALineForEachEventUnderItsDay()
{
    QVERIFY(write(aDay()));
    const Result result = run();
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output, heading(day) + R"(
09:59:59  Returns            Ready
10:30:00  Shipping  warning  Ribbon 1: 10 % left (20.5 m)
10:42:07  Shipping  error    The printer is out of labels
11:00:00            error    Print spooler stopped, no printer can be read
)" + heading(day.addDays(1)) + R"(
00:00:00  Returns            Ready
)");
}

void LogCommandTest::printsOnlyWhatIsAskedFor_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("clocks");
    const auto texts = [](std::initializer_list<const char*> all) {
        QStringList list;
        for (const char* text : all)
            list.append(QString::fromLatin1(text));
        return list;
    };
    QTest::newRow("printer") << texts({"--printer", "sHIPPING"})
                             << texts({"10:30:00", "10:42:07", "11:00:00"});
    QTest::newRow("severity") << texts({"--severity", "warning"})
                              << texts({"10:30:00", "10:42:07", "11:00:00"});
    QTest::newRow("errors") << texts({"--severity", "error"}) << texts({"10:42:07", "11:00:00"});
    QTest::newRow("since") << texts({"--since", "2026-11-22T10:42:07"})
                           << texts({"10:42:07", "11:00:00", "00:00:00"});
    QTest::newRow("since a day") << texts({"--since", "2026-11-23"}) << texts({"00:00:00"});
    QTest::newRow("all three") << texts({"--since", "2026-11-22T10:42", "--printer", "Returns",
                                         "--severity", "ok"})
                               << texts({"11:00:00", "00:00:00"});
}

void LogCommandTest::printsOnlyWhatIsAskedFor()
{
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, clocks);
    QVERIFY(write(aDay()));
    const Result result = run(options);
    QCOMPARE(result.exitStatus, 0);
    QStringList found;
    for (const QByteArray& line : result.lines()) {
        if (line.size() > 8 && line.at(2) == ':')
            found.append(QString::fromUtf8(line.first(8)));
    }
    QCOMPARE(found, clocks);
}

void LogCommandTest::printsJsonLinesAsTheyAre()
{
    const QList<PrinterEvent> events = aDay();
    QVERIFY(write(events));
    const Result all = run({QStringLiteral("--json")});
    QByteArray expected;
    for (const PrinterEvent& event : events)
        expected += event.toLine() + '\n';
    QCOMPARE(all.output, expected);

    // From elsewhere: with spaces, a tab, a member of a later version, and a control character.
    QVERIFY(
        write(QByteArray("{ \"time\":\t\"2026-11-22T10:42:07Z\", \"severity\": \"ok\", "
                         "\"kind\": \"status\", \"printer\": \"A\xc2\x9b\", \"x\": [1, 2] }\r\n")));
    const Result odd = run({QStringLiteral("--json")});
    QCOMPARE(odd.lines().size(), 1);
    QVERIFY2(odd.output.contains("\"A\\u009b\""), odd.output.constData());
    const QJsonObject object = QJsonDocument::fromJson(odd.output).object();
    QCOMPARE(object.value(QStringLiteral("x")).toArray().size(), 2);
}

void LogCommandTest::printsTheUsersLanguage()
{
#ifdef Q_OS_WIN
    QSKIP("Windows takes the language of a process only from the user's settings");
#endif
    QVERIFY(write(aDay()));
    const Result result =
        run({QStringLiteral("--severity"), QStringLiteral("warning")}, QStringLiteral("de"));
    QVERIFY2(result.output.contains("Shipping  Warnung  Farbband 1: noch 10 % (20.5 m)"),
             result.output.constData());
    QVERIFY2(result.output.contains("Die Etiketten sind aufgebraucht"), result.output.constData());
}

void LogCommandTest::fitsEightyColumns()
{
    QList<PrinterEvent> events = aDay();
    for (const QString& name :
         {QString(220, QLatin1Char('x')), QString(100, QChar(0x6771)),
          QStringLiteral("Versand und Verpackung, Halle 3, links neben der Tür")})
        events.append(statusOf(name, 2, QTime(12, 0)));
    PrinterEvent failed = PrinterEvent::commandFailed(QStringLiteral("Shipping"),
                                                      QStringLiteral("WritePrinter"), 5, {});
    failed.reason = QString(400, QChar(0x6771));
    events.append(failed);
    failed.reason = QString(400, QLatin1Char('y'));
    events.append(failed);
    QVERIFY(write(events));
    for (const char* language : {"en", "de", "fr", "ja"}) {
        const Result result = run({}, QString::fromLatin1(language));
        QCOMPARE(result.exitStatus, 0);
        const QString text = QString::fromUtf8(result.output);
        for (const QString& line : text.split(QLatin1Char('\n')))
            QVERIFY2(text_layout::width(line) <= 80, qPrintable(line));
        // Nothing is left out.
        QCOMPARE(text.count(QLatin1Char('y')) >= 400, true);
        QVERIFY(text.count(QLatin1Char('x')) >= 220);
    }
}

void LogCommandTest::hostileTextsCannotControlTheTerminal()
{
    PrinterEvent event =
        statusOf(QString::fromUtf8("\x1b[2J\r\n") + QChar(0x202e), 1, QTime(12, 0));
    event.kind = PrinterEvent::Kind::CommandFailed;
    event.reason = event.printer;
    QVERIFY(write({event}));
    for (const QStringList& options : {QStringList(), QStringList(QStringLiteral("--json"))}) {
        const Result result = run(options);
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(result.output.contains("\\u001b[2J"));
        for (const QChar character : QString::fromUtf8(result.output))
            QVERIFY(character == QLatin1Char('\n') || character.isPrint());
    }
}

void LogCommandTest::readsRotatedFilesFirst()
{
    const QList<PrinterEvent> events = aDay();
    QVERIFY(write(events.sliced(0, 1), 2));
    QVERIFY(write(events.sliced(1, 1), 1));
    QVERIFY(write(events.sliced(2)));
    const QByteArray rotated = run().output;
    QVERIFY(QFile::remove(file(1)));
    QVERIFY(QFile::remove(file(2)));
    QVERIFY(write(events));
    QCOMPARE(rotated, run().output);
}

void LogCommandTest::saysHowManyLinesWereLeftOut()
{
    QVERIFY(write(aDay().first().toLine() + "\nnonsense\n{}\n"));
    const Result result = run();
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(result.errors,
             QByteArray("vxprintmon: lines that are no events and were left out: 2\n"));
}

void LogCommandTest::saysThatThereAreNoEvents()
{
    QVERIFY(write(QByteArray()));
    QCOMPARE(run().output, QByteArray("There are no such events.\n"));
    QCOMPARE(run({QStringLiteral("--json")}).output, QByteArray());
}

void LogCommandTest::missingFileIsAFailure()
{
    const Result result = run();
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    // The reason is in the system's words; Windows has the same number for it.
    QVERIFY2(result.errors.startsWith("vxprintmon: " + file().toUtf8() + ": ") &&
                 result.errors.contains(qt_error_string(ENOENT).toUtf8()),
             result.errors.constData());
}

void LogCommandTest::wrongOptionsAreWrongUsage_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("since") << QStringList{QStringLiteral("--since"), QStringLiteral("soon")}
                           << QByteArray("--since: expected such as 2026-11-22, "
                                         "2026-11-22T10:30, 10:30 or 2h, found \"soon\"");
    QTest::newRow("severity") << QStringList{QStringLiteral("--severity"), QStringLiteral("bad")}
                              << QByteArray("--severity: expected ok, information, warning or "
                                            "error, found \"bad\"");
    QTest::newRow("two files") << QStringList{QStringLiteral("other")}
                               << QByteArray("log takes a file, found \"");
}

void LogCommandTest::wrongOptionsAreWrongUsage()
{
    QFETCH(const QStringList, options);
    QFETCH(const QByteArray, message);
    QVERIFY(write(aDay()));
    const Result result = run(options);
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("vxprintmon: " + message), result.errors.constData());
}

void LogCommandTest::timesAreUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("time");
    const QDateTime now(day, QTime(12, 0));
    const auto row = [](const char* text, const QDateTime& time) {
        QTest::newRow(text) << QString::fromLatin1(text) << time;
    };
    row("2026-11-20", QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
    row("2026-11-20T10:30", QDateTime(QDate(2026, 11, 20), QTime(10, 30)));
    row("2026-11-20T10:30:15.5", QDateTime(QDate(2026, 11, 20), QTime(10, 30, 15, 500)));
    row("2026-11-20T10:30:00Z", QDateTime(QDate(2026, 11, 20), QTime(10, 30), Qt::UTC));
    row("2026-11-20T10:30:00+02:00", QDateTime(QDate(2026, 11, 20), QTime(8, 30), Qt::UTC));
    row("10:30", QDateTime(day, QTime(10, 30)));
    row("10:30:15", QDateTime(day, QTime(10, 30, 15)));
    row("30m", now.addSecs(-1800));
    row("2h", now.addSecs(-7200));
    row("7d", now.addDays(-7));
    for (const char* wrong :
         {"soon", "", "2026-13-01", "25:00", "2x", "-2h", "9999999d", "h", "2026-11-20T", "1.5h"})
        row(wrong, {});
}

void LogCommandTest::timesAreUnderstood()
{
    QFETCH(const QString, text);
    QFETCH(const QDateTime, time);
    const std::optional<QDateTime> meant = timeMeantBy(text, QDateTime(day, QTime(12, 0)));
    QCOMPARE(meant.has_value(), time.isValid());
    QCOMPARE(meant.value_or(QDateTime()), time);
}

QTEST_GUILESS_MAIN(LogCommandTest)
#include "tst_log_command.moc"
