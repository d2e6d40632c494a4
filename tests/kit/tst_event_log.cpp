// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The file of events: its lines, its rotation, several writers, and what happens when it cannot be
// written.
#include "patience.h"
#include "test_file.h"
#include "whole_file.h"

#include <event_log.h>
#include <event_log_reader.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>

#include <map>
#include <thread>

using VxKit::EventLog;
using VxKit::EventLogOptions;
using VxKit::EventLogReader;
using VxKit::PrinterEvent;
using VxKit::Severity;

namespace {

PrinterEvent eventOf(const QString& printer, int code = 1)
{
    PrinterEvent event;
    event.time = QDateTime::currentDateTime();
    event.printer = printer;
    event.code = code;
    event.text = QStringLiteral("text");
    return event;
}

struct Read
{
    QList<PrinterEvent> events;
    qint64 badLines = 0;
    QString error;

    QList<int> codes() const
    {
        QList<int> codes;
        for (const PrinterEvent& event : events)
            codes.append(event.code.value_or(-1));
        return codes;
    }
};

Read readLog(const QString& fileName)
{
    Read read;
    EventLogReader reader(fileName);
    while (const std::optional<PrinterEvent> event = reader.next())
        read.events.append(*event);
    read.badLines = reader.badLines();
    read.error = reader.errorString();
    return read;
}

QList<int> numbersUpTo(int end)
{
    QList<int> numbers;
    for (int number = 0; number < end; ++number)
        numbers.append(number);
    return numbers;
}

} // namespace

class EventLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lineHasTheMembersInOrder();
    void whatIsNotKnownIsAbsent();
    void lineIsReadBackAsItWas_data();
    void lineIsReadBackAsItWas();
    void timeHasOffsetAndMilliseconds();
    void hostileTextsAreEscapedAndBounded();
    void wrongLinesAreRefused_data();
    void wrongLinesAreRefused();

    void appendedEventsAreInTheFile();
    void eventsAreWrittenWithoutBeingFlushed();
    void destructorWritesWhatIsLeft();
    void appendsToAnExistingFile();
    void incompleteLineIsLeftBehind();
    void fileIsRotatedAtItsSize();
    void fileIsRotatedAtItsAge();
    void oldFilesAreRemoved();
    void logWithoutRotatedFilesStaysBounded();
    void allFilesTogetherAreBounded();
    void optionsAreMadeValid();
    void linkIsFollowed();

    void eventsAreKeptWhileTheFileCannotBeWritten();
    void droppedEventsAreCountedInTheLog();
    void droppedEventsHaveOnePlaceInTheLog();
    void fullDiskLosesNoneUncounted();
    void wrongFileIsRefused();

    void twoLogsOfOneProcessShareAFile();
    void twoProcessesLoseNoLine();
    void killedWriterLeavesCompleteLines();
    void rotationWorksWhileTheFileIsRead();

    void readerSkipsAndCountsBadLines();
    void readerOfAMissingLogSaysSo();
    void readerFindsRotatedFilesOnly();
    void memoryIsBounded();

private:
    EventLogOptions options() const
    {
        EventLogOptions options;
        options.fileName = m_fileName;
        return options;
    }
    QString rotated(int number) const { return m_fileName + QStringLiteral(".%1").arg(number); }
    static QStringList childArguments(const QStringList& arguments) { return arguments; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_fileName;
};

void EventLogTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_fileName = m_folder->filePath(QStringLiteral("printers.log"));
}

// Lines ///////////////////////////////////////////////////////////////////////////////////////////

void EventLogTest::lineHasTheMembersInOrder()
{
    PrinterEvent event;
    event.time = QDateTime(QDate(2026, 11, 22), QTime(10, 42, 7, 123));
    event.severity = Severity::Warning;
    event.kind = PrinterEvent::Kind::Level;
    event.printer = QStringLiteral("Shipping");
    event.serial = QStringLiteral("AM-20871");
    event.slot = VxKit::Slot::Ribbon1;
    event.key = QStringLiteral("level_10");
    event.mark = 10;
    event.before.ratio = 0.11;
    event.after.state = VxKit::Level::State::Loaded;
    event.after.sku = QStringLiteral("RS-43-BL");
    event.after.ratio = 1.0 / 3;
    event.after.meters = 20;
    event.after.labels = 0;
    const QByteArray line = event.toLine();
    const QByteArray beginning = R"({"time":"2026-11-22T10:42:07.123)";
    QVERIFY2(line.startsWith(beginning), line.constData());
    QCOMPARE(line.mid(line.indexOf(",\"severity\"")),
             QByteArray(R"-(,"severity":"warning","kind":"level","printer":"Shipping",)-"
                        R"-("serial":"AM-20871","slot":"ribbon1","key":"level_10",)-"
                        R"-("text":"Ribbon 1: 33 % left (20.0 m, 0 labels)","mark":10,)-"
                        R"-("before":{"ratio":0.11},)-"
                        R"-("after":{"state":"loaded","sku":"RS-43-BL","ratio":0.3333,)-"
                        R"-("meters":20,"labels":0}})-"));
}

void EventLogTest::whatIsNotKnownIsAbsent()
{
    PrinterEvent event;
    event.after.ratio = std::numeric_limits<double>::quiet_NaN();
    const QJsonObject object = QJsonDocument::fromJson(event.toLine()).object();
    QCOMPARE(object.keys(), QStringList({QStringLiteral("key"), QStringLiteral("kind"),
                                         QStringLiteral("severity"), QStringLiteral("time")}));
}

void EventLogTest::lineIsReadBackAsItWas_data()
{
    QTest::addColumn<PrinterEvent>("event");
    PrinterEvent event;
    event.time = QDateTime::fromMSecsSinceEpoch(1795342927123);
    event.key = QStringLiteral("status");
    event.text = QStringLiteral("text");
    for (int kind = 0; kind <= static_cast<int>(PrinterEvent::Kind::EventsLost); ++kind) {
        event.kind = static_cast<PrinterEvent::Kind>(kind);
        QTest::addRow("%s", qPrintable(eventKindName(event.kind))) << event;
    }
    for (const Severity severity :
         {Severity::Ok, Severity::Information, Severity::Warning, Severity::Error}) {
        event.severity = severity;
        QTest::addRow("%s", qPrintable(severityKey(severity))) << event;
    }
    event.printer = QString::fromUtf8("\"\\\n\t東京\U0001F5A8\u00e9") + QChar(0x202e);
    event.serial = QStringLiteral("1");
    event.code = std::numeric_limits<int>::min();
    event.slot = VxKit::Slot::Ribbon2;
    event.mark = 5;
    event.before = {.code = 0,
                    .state = VxKit::Level::State::Empty,
                    .identifier = QStringLiteral("a"),
                    .sku = QStringLiteral("b"),
                    .name = QStringLiteral("c"),
                    .ratio = 0,
                    .meters = 12.345,
                    .labels = 0,
                    .printer = QStringLiteral("d"),
                    .firmwareVersion = QStringLiteral("e"),
                    .bootVersion = QStringLiteral("f")};
    event.after = event.before;
    event.after.code = std::numeric_limits<int>::max();
    event.after.state = VxKit::Level::State::NotInCatalogue;
    event.reason = QStringLiteral("g");
    event.lost = qint64(1) << 40;
    event.since = event.time.addSecs(-1);
    QTest::newRow("everything") << event;
}

void EventLogTest::lineIsReadBackAsItWas()
{
    QFETCH(const PrinterEvent, event);
    QString error;
    const std::optional<PrinterEvent> again = PrinterEvent::fromLine(event.toLine(), &error);
    QVERIFY2(again.has_value(), qPrintable(error));
    QVERIFY2(*again == event, again->toLine().constData());
}

void EventLogTest::timeHasOffsetAndMilliseconds()
{
    PrinterEvent event;
    event.time = QDateTime::fromMSecsSinceEpoch(1795342927000);
    const QJsonObject object = QJsonDocument::fromJson(event.toLine()).object();
    const QString time = object.value(QStringLiteral("time")).toString();
    static const QRegularExpression pattern(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.000(Z|[+-]\\d\\d:\\d\\d)$"));
    QVERIFY2(pattern.match(time).hasMatch(), qPrintable(time));
}

void EventLogTest::hostileTextsAreEscapedAndBounded()
{
    PrinterEvent event;
    const QString hostile = QString::fromUtf8("\x1b[2J\r\n\u009b\u2028") + QChar(0x202e) +
                            QChar(0xd800) + QChar(0xfffe);
    QString longName;
    while (longName.size() < 100000)
        longName += QString::fromUtf8("\U000E0001");
    event.printer = hostile;
    for (QString* text :
         {&event.serial, &event.key, &event.text, &event.reason, &event.before.identifier,
          &event.before.sku, &event.before.name, &event.before.printer,
          &event.before.firmwareVersion, &event.before.bootVersion, &event.after.identifier,
          &event.after.sku, &event.after.name, &event.after.printer, &event.after.firmwareVersion,
          &event.after.bootVersion})
        *text = longName;
    const QByteArray line = event.toLine();
    QVERIFY2(line.size() < 65536, qPrintable(QString::number(line.size())));
    QVERIFY(line.contains(R"("printer":"\u001b[2J\u000d\u000a\u009b\u2028\u202e)"
                          "\xef\xbf\xbd"
                          R"(\ufffe")"));
    for (const char byte : line)
        QVERIFY(static_cast<unsigned char>(byte) >= ' ');
    QVERIFY(PrinterEvent::fromLine(line).has_value());
}

void EventLogTest::wrongLinesAreRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");
    const QByteArray good =
        R"("time":"2026-11-22T10:42:07.123+01:00","severity":"ok","kind":"status")";
    const auto wrong = [](const char* member) {
        return QStringLiteral("\"%1\" is missing or has an impossible value")
            .arg(QLatin1String(member));
    };
    QTest::newRow("good") << QByteArray('{' + good + '}') << QString();
    QTest::newRow("unknown member") << QByteArray('{' + good + R"(,"x":1})") << QString();
    QTest::newRow("null") << QByteArray('{' + good + R"(,"code":null,"before":null})") << QString();
    QTest::newRow("array") << QByteArray("[1]") << QStringLiteral("expected an object");
    QTest::newRow("no time") << QByteArray(R"({"severity":"ok","kind":"status"})") << wrong("time");
    QTest::newRow("wrong time") << QByteArray(
                                       R"({"time":"yesterday","severity":"ok","kind":"status"})")
                                << wrong("time");
    QTest::newRow("unknown severity")
        << QByteArray(R"({"time":"2026-11-22T10:42:07Z","severity":"bad","kind":"status"})")
        << wrong("severity");
    QTest::newRow("unknown kind")
        << QByteArray(R"({"time":"2026-11-22T10:42:07Z","severity":"ok","kind":"x"})")
        << wrong("kind");
    for (const char* member : {R"("code":1.5)", R"("code":1e300)", R"("code":"1")",
                               R"("printer":1)", R"("slot":"ribbon3")", R"("before":[])",
                               R"("lost":1e18)", R"("since":"x")", R"("mark":true)"}) {
        const QByteArray text(member);
        QTest::newRow(member) << QByteArray('{' + good + ',' + text + '}')
                              << wrong(text.mid(1, text.indexOf('"', 1) - 1).constData());
    }
    QTest::newRow("inner member") << QByteArray('{' + good + R"(,"after":{"state":"full"}})")
                                  << wrong("after.state");
}

void EventLogTest::wrongLinesAreRefused()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, error);
    QString found;
    QCOMPARE(PrinterEvent::fromLine(line, &found).has_value(), error.isEmpty());
    QCOMPARE(found, error);
}

// Writing /////////////////////////////////////////////////////////////////////////////////////////

void EventLogTest::appendedEventsAreInTheFile()
{
    EventLog log(options());
    QList<PrinterEvent> recorded;
    connect(&log, &EventLog::recorded, this,
            [&](const PrinterEvent& event) { recorded.append(event); });
    PrinterEvent event = eventOf(QStringLiteral("Shipping"), 2);
    event.time = {};
    event.text.clear();
    log.append(event);
    QVERIFY(log.flush());
    const Read read = readLog(m_fileName);
    QCOMPARE(read.error, QString());
    QCOMPARE(read.badLines, 0);
    QCOMPARE(read.events.size(), 1);
    QCOMPARE(read.events.first().text, QStringLiteral("The printer is out of labels"));
    QVERIFY(read.events.first().time.isValid());
    QCOMPARE(recorded.size(), 1);
    QCOMPARE(recorded.first().text, read.events.first().text);
    QCOMPARE(log.errorString(), QString());
    QCOMPARE(log.lostEvents(), 0);
}

void EventLogTest::eventsAreWrittenWithoutBeingFlushed()
{
    EventLog log(options());
    const QByteArray line = eventOf(QStringLiteral("Shipping")).toLine() + '\n';
    // Each follows at once upon the last one's arrival in the file.
    for (int count = 1; count <= 50; ++count) {
        log.append(eventOf(QStringLiteral("Shipping")));
        const QDeadlineTimer deadline(patience);
        while (QFileInfo(m_fileName).size() < count * line.size() && !deadline.hasExpired())
            QThread::yieldCurrentThread();
        QCOMPARE(QFileInfo(m_fileName).size(), count * line.size());
    }
}

void EventLogTest::destructorWritesWhatIsLeft()
{
    {
        EventLog log(options());
        for (int code = 0; code < 1000; ++code)
            log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    QCOMPARE(readLog(m_fileName).codes(), numbersUpTo(1000));
}

void EventLogTest::appendsToAnExistingFile()
{
    for (int code = 0; code < 3; ++code) {
        EventLog log(options());
        log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    QCOMPARE(readLog(m_fileName).codes(), numbersUpTo(3));
    QVERIFY(!QFile::exists(rotated(1)));
}

void EventLogTest::incompleteLineIsLeftBehind()
{
    const QByteArray complete = eventOf(QStringLiteral("Shipping"), 0).toLine() + '\n';
    QVERIFY(writeFile(m_fileName, complete + complete.first(complete.size() / 2)));
    {
        EventLog log(options());
        log.append(eventOf(QStringLiteral("Shipping"), 1));
    }
    const Read read = readLog(m_fileName);
    QCOMPARE(read.codes(), numbersUpTo(2));
    QCOMPARE(read.badLines, 1);
}

void EventLogTest::fileIsRotatedAtItsSize()
{
    EventLogOptions small = options();
    small.maxFileSize = 65536;
    small.rotatedFiles = 3;
    constexpr int count = 1200;
    {
        EventLog log(small);
        for (int code = 0; code < count; ++code)
            log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    QVERIFY(QFile::exists(rotated(1)));
    for (const QString& name : {m_fileName, rotated(1)}) {
        const QByteArray text = contents(name);
        QVERIFY2(text.size() <= small.maxFileSize, qPrintable(name));
        QVERIFY2(text.startsWith("{\"time\"") && text.endsWith("}\n"), qPrintable(name));
    }
    QVERIFY(contents(rotated(1)).size() > small.maxFileSize - 1000);
    QCOMPARE(readLog(m_fileName).codes(), numbersUpTo(count));
}

void EventLogTest::fileIsRotatedAtItsAge()
{
    EventLogOptions daily = options();
    daily.rotateAfter = std::chrono::hours(24);
    PrinterEvent old = eventOf(QStringLiteral("Shipping"), 0);
    for (const int hours : {25, 23}) {
        init();
        daily.fileName = m_fileName;
        old.time = QDateTime::currentDateTime().addSecs(qint64(-3600) * hours);
        QVERIFY(writeFile(m_fileName, old.toLine() + '\n'));
        {
            EventLog log(daily);
            log.append(eventOf(QStringLiteral("Shipping"), 1));
        }
        QCOMPARE(QFile::exists(rotated(1)), hours == 25);
        QCOMPARE(readLog(m_fileName).codes(), numbersUpTo(2));
    }
}

void EventLogTest::oldFilesAreRemoved()
{
    EventLogOptions monthly = options();
    monthly.keepFor = std::chrono::hours(24 * 30);
    monthly.rotatedFiles = 3;
    const QByteArray line = eventOf(QStringLiteral("Shipping"), 0).toLine() + '\n';
    for (const int number : {1, 2, 4, 99}) {
        QVERIFY(writeFile(rotated(number), line));
        QFile file(rotated(number));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const int days = number == 2 ? 31 : 29;
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                 QFileDevice::FileModificationTime));
    }
    QVERIFY(writeFile(rotated(100), "not one of the log's files\n"));
    {
        EventLog log(monthly);
        log.append(eventOf(QStringLiteral("Shipping"), 1));
    }
    QVERIFY(QFile::exists(rotated(1)));
    QVERIFY(!QFile::exists(rotated(2)));  // too old
    QVERIFY(!QFile::exists(rotated(4)));  // one too many
    QVERIFY(!QFile::exists(rotated(99))); // one too many
    QVERIFY(QFile::exists(rotated(100)));
}

void EventLogTest::logWithoutRotatedFilesStaysBounded()
{
    EventLogOptions single = options();
    single.maxFileSize = 65536;
    single.rotatedFiles = 0;
    {
        EventLog log(single);
        for (int code = 0; code < 2000; ++code)
            log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    QVERIFY(!QFile::exists(rotated(1)));
    QVERIFY(contents(m_fileName).size() <= single.maxFileSize);
    const QList<int> codes = readLog(m_fileName).codes();
    QVERIFY(!codes.isEmpty());
    QCOMPARE(codes, numbersUpTo(2000).last(codes.size()));
}

void EventLogTest::allFilesTogetherAreBounded()
{
    EventLogOptions small = options();
    small.maxFileSize = 65536;
    small.rotatedFiles = 2;
    small.maxQueuedBytes = qsizetype(64) << 20;
    {
        EventLog log(small);
        for (int code = 0; code < 5000; ++code)
            log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    qint64 size = 0;
    const QFileInfoList files = QDir(m_folder->path()).entryInfoList(QDir::Files);
    for (const QFileInfo& file : files)
        size += file.size();
    QCOMPARE(files.size(), 4); // with the lock
    QVERIFY(size <= 3 * small.maxFileSize);
    const QList<int> codes = readLog(m_fileName).codes();
    QCOMPARE(codes, numbersUpTo(5000).last(codes.size()));
}

void EventLogTest::optionsAreMadeValid()
{
    EventLogOptions wrong = options();
    wrong.maxFileSize = -1;
    wrong.rotatedFiles = 1000;
    wrong.rotateAfter = std::chrono::seconds(-1);
    wrong.keepFor = std::chrono::seconds(-1);
    wrong.maxQueuedBytes = 0;
    const EventLog log(wrong);
    QCOMPARE(log.options().maxFileSize, 65536);
    QCOMPARE(log.options().rotatedFiles, 99);
    QCOMPARE(log.options().rotateAfter.count(), 0);
    QCOMPARE(log.options().keepFor.count(), 0);
    QCOMPARE(log.options().maxQueuedBytes, 65536);
}

void EventLogTest::linkIsFollowed()
{
#if defined(Q_OS_WIN)
    QSKIP("Windows' own links need a right that users do not have");
#endif
    const QString target = m_folder->filePath(QStringLiteral("target.log"));
    QVERIFY(writeFile(target, QByteArray()));
    QVERIFY(QFile::link(target, m_fileName));
    EventLogOptions small = options();
    small.maxFileSize = 65536;
    {
        EventLog log(small);
        for (int code = 0; code < 1200; ++code)
            log.append(eventOf(QStringLiteral("Shipping"), code));
    }
    QVERIFY(QFileInfo(m_fileName).isSymLink());
    QVERIFY(QFile::exists(target + QStringLiteral(".1")));
    QCOMPARE(readLog(target).codes(), numbersUpTo(1200));
}

// What cannot be written //////////////////////////////////////////////////////////////////////////

void EventLogTest::eventsAreKeptWhileTheFileCannotBeWritten()
{
    EventLogOptions elsewhere = options();
    const QDir folder(m_folder->filePath(QStringLiteral("later")));
    elsewhere.fileName = folder.filePath(QStringLiteral("printers.log"));
    EventLog log(elsewhere);
    QSignalSpy failed(&log, &EventLog::writingFailed);
    QSignalSpy resumed(&log, &EventLog::writingResumed);
    for (int code = 0; code < 10; ++code) {
        log.append(eventOf(QStringLiteral("Shipping"), code));
        QVERIFY(!log.flush());
    }
    QVERIFY2(log.errorString().contains(QLatin1String("printers.log")),
             qPrintable(log.errorString()));
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY2(log.flush(), qPrintable(log.errorString()));
    QTRY_COMPARE(resumed.size(), 1);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(log.lostEvents(), 0);
    QCOMPARE(log.errorString(), QString());
    QCOMPARE(readLog(elsewhere.fileName).codes(), numbersUpTo(10));
}

void EventLogTest::droppedEventsAreCountedInTheLog()
{
    EventLogOptions elsewhere = options();
    elsewhere.maxQueuedBytes = 65536;
    const QDir folder(m_folder->filePath(QStringLiteral("later")));
    elsewhere.fileName = folder.filePath(QStringLiteral("printers.log"));
    const QDateTime begin = QDateTime::currentDateTime();
    EventLog log(elsewhere);
    constexpr int count = 1000;
    for (int code = 0; code < count; ++code)
        log.append(eventOf(QStringLiteral("Shipping"), code));
    const qint64 lost = log.lostEvents();
    QVERIFY(lost > 0 && lost < count);
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY(log.flush());
    log.append(eventOf(QStringLiteral("Shipping"), count));
    QVERIFY(log.flush());

    const Read read = readLog(elsewhere.fileName);
    const auto kept = static_cast<int>(count - lost);
    QCOMPARE(read.events.size(), kept + 2);
    QCOMPARE(read.codes().first(kept), numbersUpTo(kept));
    const PrinterEvent& notice = read.events.at(kept);
    QCOMPARE(notice.kind, PrinterEvent::Kind::EventsLost);
    QCOMPARE(notice.severity, Severity::Warning);
    QCOMPARE(notice.lost, lost);
    QVERIFY(notice.since >= begin && notice.since <= notice.time);
    QVERIFY2(notice.text.startsWith(QStringLiteral("%1 events are missing since ").arg(lost)),
             qPrintable(notice.text));
    QCOMPARE(read.events.last().code, count);
    QCOMPARE(log.lostEvents(), lost);
}

void EventLogTest::droppedEventsHaveOnePlaceInTheLog()
{
    EventLogOptions elsewhere = options();
    elsewhere.maxQueuedBytes = 65536;
    elsewhere.fileName = m_folder->filePath(QStringLiteral("later/printers.log"));
    EventLog log(elsewhere);
    PrinterEvent large = eventOf(QStringLiteral("Shipping"));
    large.reason = QString(500, QLatin1Char('x'));
    while (log.lostEvents() == 0)
        log.append(large);
    // There is still room for a small one, which would be in the log as if none before it were
    // missing.
    log.append(eventOf(QStringLiteral("Shipping")));
    QCOMPARE(log.lostEvents(), 2);
}

void EventLogTest::fullDiskLosesNoneUncounted()
{
#if defined(Q_OS_WIN)
    QSKIP("a process cannot limit the size of its files there");
#else
    QProcess process;
    process.start(testFile(VX_EVENT_LOG_FULL_DISK), {m_fileName});
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    const QList<QByteArray> numbers = process.readAllStandardOutput().trimmed().split(' ');
    QCOMPARE(numbers.size(), 3);
    QVERIFY(numbers.at(0).toInt() <= 20011);
    QVERIFY(numbers.at(0).toInt() > 19000);
    QCOMPARE(numbers.at(1), QByteArray("1")); // it ends with a complete line
    const int lost = numbers.at(2).toInt();
    QVERIFY(lost > 0);

    const Read read = readLog(m_fileName);
    QCOMPARE(read.badLines, 0);
    const int kept = 2000 - lost;
    QCOMPARE(read.events.size(), kept + 1 + 10);
    QCOMPARE(read.codes().first(kept), numbersUpTo(kept));
    QCOMPARE(read.events.at(kept).lost, lost);
    QCOMPARE(read.codes().last(10), numbersUpTo(2010).last(10));
#endif
}

void EventLogTest::wrongFileIsRefused()
{
    EventLogOptions folder = options();
    folder.fileName = m_folder->path();
    EventLog log(folder);
    log.append(eventOf(QStringLiteral("Shipping")));
    QVERIFY(!log.flush());
    QVERIFY(!log.errorString().isEmpty());

    EventLog nowhere(EventLogOptions{});
    nowhere.append(eventOf(QStringLiteral("Shipping")));
    QVERIFY(!nowhere.flush());
    QVERIFY(!nowhere.errorString().isEmpty());
}

// Several processes ///////////////////////////////////////////////////////////////////////////////

void EventLogTest::twoLogsOfOneProcessShareAFile()
{
    EventLogOptions small = options();
    small.maxFileSize = 65536;
    small.rotatedFiles = 99;
    constexpr int count = 2000;
    {
        EventLog one(small);
        EventLog two(small);
        for (int code = 0; code < count; ++code) {
            one.append(eventOf(QStringLiteral("one"), code));
            two.append(eventOf(QStringLiteral("two"), code));
        }
        QVERIFY(one.flush(QDeadlineTimer::Forever));
        QVERIFY(two.flush(QDeadlineTimer::Forever));
    }
    const Read read = readLog(m_fileName);
    QCOMPARE(read.badLines, 0);
    QCOMPARE(read.events.size(), 2 * count);
}

void EventLogTest::twoProcessesLoseNoLine()
{
    constexpr int count = 10000;
    constexpr int rounds = 10;
    const QStringList writers{QStringLiteral("one"), QStringLiteral("two")};
    std::array<QProcess, 2> processes;
    for (int i = 0; i < 2; ++i)
        processes.at(i).start(testFile(VX_EVENT_LOG_CHILD),
                              {QStringLiteral("write"), m_fileName, writers.at(i),
                               QString::number(count), QString::number(rounds)});
    for (int round = 0; round < rounds; ++round) {
        for (QProcess& process : processes) {
            QVERIFY(process.canReadLine() || process.waitForReadyRead(patience));
            QCOMPARE(process.readLine().trimmed(), QByteArray("ready"));
        }
        for (QProcess& process : processes) {
            QCOMPARE(process.write("\n"), 1);
            QVERIFY(process.waitForBytesWritten(patience));
        }
    }
    for (QProcess& process : processes) {
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.readAllStandardError(), QByteArray());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
    }
    QVERIFY(QFile::exists(rotated(20)));
    const Read read = readLog(m_fileName);
    QCOMPARE(read.badLines, 0);
    QMap<QString, QList<int>> codes;
    int turns = 0;
    for (qsizetype i = 0; i < read.events.size(); ++i) {
        const PrinterEvent& event = read.events.at(i);
        codes[event.printer].append(event.code.value_or(-1));
        QCOMPARE(event.reason.size(), event.code.value_or(-1) % 300);
        turns += i > 0 && event.printer != read.events.at(i - 1).printer ? 1 : 0;
    }
    for (const QString& writer : writers)
        QCOMPARE(codes.value(writer), numbersUpTo(count));
    // Otherwise one of them waited for the other, and nothing was tested.
    QVERIFY2(turns >= rounds, qPrintable(QString::number(turns)));
}

void EventLogTest::killedWriterLeavesCompleteLines()
{
    constexpr int kills = 20;
    QRandomGenerator random(20261122);
    for (int i = 0; i < kills; ++i) {
        const qint64 size = QFileInfo(m_fileName).size();
        QProcess process;
        process.start(testFile(VX_EVENT_LOG_CHILD),
                      {QStringLiteral("write-forever"), m_fileName, QString::number(i)});
        QVERIFY(process.waitForStarted(patience));
        const qint64 more = random.bounded(1, 200000);
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(m_fileName).size() >= size + more, patience);
        process.kill();
        QVERIFY(process.waitForFinished(patience));
    }
    {
        EventLogOptions large = options();
        large.maxFileSize = qint64(1) << 30;
        EventLog log(large);
        log.append(eventOf(QStringLiteral("last")));
        QVERIFY2(log.flush(), qPrintable(log.errorString()));
    }
    const Read read = readLog(m_fileName);
    QVERIFY2(read.badLines <= kills, qPrintable(QString::number(read.badLines)));
    QCOMPARE(read.events.last().printer, QStringLiteral("last"));
    QMap<QString, QList<int>> codes;
    for (const PrinterEvent& event : read.events)
        codes[event.printer].append(event.code.value_or(-1));
    QCOMPARE(codes.size(), kills + 1);
    for (int i = 0; i < kills; ++i) {
        const QList<int> written = codes.value(QString::number(i));
        QCOMPARE(written, numbersUpTo(static_cast<int>(written.size())));
    }
}

void EventLogTest::rotationWorksWhileTheFileIsRead()
{
    EventLogOptions small = options();
    small.maxFileSize = 65536;
    small.rotatedFiles = 20;
    EventLog log(small);
    constexpr int half = 600;
    for (int code = 0; code < half; ++code)
        log.append(eventOf(QStringLiteral("Shipping"), code));
    QVERIFY(log.flush());
    EventLogReader reader(m_fileName);
    QCOMPARE(reader.next().value_or(PrinterEvent()).code, 0);
    for (int code = half; code < 6 * half; ++code)
        log.append(eventOf(QStringLiteral("Shipping"), code));
    QVERIFY2(log.flush(), qPrintable(log.errorString()));
    QVERIFY(QFile::exists(rotated(4)));
    int next = 1;
    while (const std::optional<PrinterEvent> event = reader.next())
        QCOMPARE(event->code, next++);
    QVERIFY(next >= half);
    QCOMPARE(reader.badLines(), 0);
    QCOMPARE(readLog(m_fileName).codes(), numbersUpTo(6 * half));
}

// Reading /////////////////////////////////////////////////////////////////////////////////////////

void EventLogTest::readerSkipsAndCountsBadLines()
{
    const QByteArray good = eventOf(QStringLiteral("Shipping"), 0).toLine();
    const QByteArray last = eventOf(QStringLiteral("Shipping"), 1).toLine();
    const QByteArray exact = good.chopped(1) + QByteArray(65535 - good.size(), ' ') + '}';
    QCOMPARE(exact.size(), 65535);
    QByteArray text;
    text += good + '\n';
    text += QByteArray(70000, 'x') + '\n';        // too long
    text += exact + " \n";                        // too long by one
    text += "\n\r\n   \n";                        // not counted
    text += QByteArray("\0\xff\xfe{}", 5) + '\n'; // garbage
    text += QByteArray(60000, '[') + '\n';        // deep
    text += "{\"time\":1}\n";
    text += good.first(20) + '\n';
    text += QByteArray(200000, ' ') + '\n'; // too long
    text += exact + '\n';
    text += last; // without its line feed
    QVERIFY(writeFile(m_fileName, text));
    const Read read = readLog(m_fileName);
    QCOMPARE(read.codes(), QList<int>({0, 0, 1}));
    QCOMPARE(read.badLines, 7);
    QCOMPARE(read.error, QString());
}

void EventLogTest::readerOfAMissingLogSaysSo()
{
    const Read missing = readLog(m_fileName);
    QVERIFY(missing.events.isEmpty());
    QVERIFY2(missing.error.startsWith(m_fileName), qPrintable(missing.error));
    const Read folder = readLog(m_folder->path());
    QVERIFY2(folder.error.startsWith(m_folder->path()), qPrintable(folder.error));
}

void EventLogTest::readerFindsRotatedFilesOnly()
{
    QVERIFY(writeFile(rotated(1), eventOf(QStringLiteral("Shipping"), 1).toLine() + '\n'));
    QVERIFY(writeFile(rotated(3), eventOf(QStringLiteral("Shipping"), 0).toLine() + '\n'));
    const Read read = readLog(m_fileName);
    QCOMPARE(read.codes(), numbersUpTo(2));
    QCOMPARE(read.error, QString());
}

void EventLogTest::memoryIsBounded()
{
#if !defined(Q_OS_LINUX) || defined(VX_SANITIZED)
    QSKIP("the system does not say, or a sanitizer takes memory too");
#else
    const auto run = [](const QStringList& arguments) {
        QProcess process;
        process.start(testFile(VX_EVENT_LOG_CHILD), arguments);
        if (!process.waitForFinished(patience) || process.exitCode() != 0)
            return QList<QByteArray>();
        return process.readAllStandardOutput().trimmed().split(' ');
    };
    constexpr long mebibytes = 1024;
    const QList<QByteArray> appended =
        run({QStringLiteral("append-in-vain"), m_folder->filePath(QStringLiteral("no/log"))});
    QCOMPARE(appended.size(), 2);
    QVERIFY2(appended.at(0).toLong() < 8 * mebibytes, appended.at(0).constData());
    QVERIFY(appended.at(1).toInt() > 90000);

    // 256 MiB without a line feed, which take no room on the disk.
    QVERIFY(writeFile(m_fileName, eventOf(QStringLiteral("Shipping")).toLine() + '\n'));
    QVERIFY(QFile::resize(m_fileName, qint64(256) << 20));
    const QList<QByteArray> read = run({QStringLiteral("read"), m_fileName});
    QCOMPARE(read.size(), 3);
    QVERIFY2(read.at(0).toLong() < 8 * mebibytes, read.at(0).constData());
    QCOMPARE(read.at(1), QByteArray("1"));
    QCOMPARE(read.at(2), QByteArray("1"));
#endif
}

QTEST_GUILESS_MAIN(EventLogTest)
#include "tst_event_log.moc"
