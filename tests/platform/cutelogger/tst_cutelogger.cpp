// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The behaviour of CuteLogger that the product relies on, for an installed one and for the
// replacement.
#include "patience.h"
#include "start_process.h"

#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>
#include <cute_logger.h>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cstdio>
#include <thread>
#include <vector>

namespace {

struct Record
{
    Logger::LogLevel level;
    QString file;
    int line;
    QString function;
    QString category;
    QString message;

    bool operator==(const Record&) const = default;
};

class Recorder : public AbstractAppender
{
public:
    QList<Record> records;
    QList<QDateTime> times;

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& category, const QString& message) override
    {
        if (!timeStamp.isValid())
            qFatal("a record without a time");
        times.append(timeStamp);
        records.append(
            {level, QString::fromUtf8(file), line, QString::fromUtf8(function), category, message});
    }
};

void record(Logger::LogLevel level, const char* category, const QString& message)
{
    VX_GLOBAL_LOGGER()->write(level, "file", 12, "void function()", category, message);
}

/// What runs in a separate process, because it ends the process or writes to standard error.
struct Scenario
{
    const char* name;
    void (*run)();
};
constexpr Scenario scenarios[]{
    {"no registered appender",
     [] {
         record(Logger::Debug, nullptr, QStringLiteral("first"));
         record(Logger::Debug, nullptr, QStringLiteral("second"));
     }},
    {"an appender above the level",
     [] {
         auto* console = new ConsoleAppender;
         console->setDetailsLevel(Logger::Warning);
         Logger::globalInstance()->registerAppender(console);
         record(Logger::Debug, nullptr, QStringLiteral("a detail"));
         record(Logger::Warning, nullptr, QStringLiteral("a warning"));
     }},
    {"a category without an appender",
     [] {
         Logger::globalInstance()->registerAppender(new Recorder);
         record(Logger::Debug, "network", QStringLiteral("first"));
         record(Logger::Debug, "network", QStringLiteral("second"));
     }},
    {"a linked category with an appender of its own",
     [] {
         Logger::globalInstance()->registerCategoryAppender(QStringLiteral("network"),
                                                            new Recorder);
         Logger::globalInstance()->logToGlobalInstance(QStringLiteral("network"), true);
         record(Logger::Debug, "network", QStringLiteral("the record"));
     }},
    {"two applications",
     [] {
         for (const bool isLinked : {true, false}) {
             int argc = 1;
             char name[] = "tst_cutelogger";
             char* argv[] = {name, nullptr};
             const QCoreApplication application(argc, argv);
             auto* recorder = new Recorder;
             Logger::globalInstance()->registerAppender(recorder);
             if (isLinked)
                 Logger::globalInstance()->logToGlobalInstance(QStringLiteral("network"), true);
             record(Logger::Debug, "network", QStringLiteral("message"));
             std::fprintf(stderr, "%d records\n", int(recorder->records.size()));
         }
     }},
    {"two files that cannot be written",
     [] {
         auto* appender = new FileAppender(QStringLiteral("/no/such/first.log"));
         Logger::globalInstance()->registerAppender(appender);
         record(Logger::Debug, nullptr, QStringLiteral("message"));
         appender->setFileName(QStringLiteral("/no/such/second.log"));
         record(Logger::Debug, nullptr, QStringLiteral("message"));
     }},
    {"Qt's messages",
     [] {
         auto* recorder = new Recorder;
         Logger::globalInstance()->registerAppender(recorder);
         qWarning("of Qt's");
         std::fprintf(stderr, "%d records\n", int(recorder->records.size()));
     }},
    {"a fatal record",
     [] {
         record(Logger::Fatal, nullptr, QStringLiteral("the last message"));
         std::fputs("went on\n", stderr);
     }},
    {"after the application",
     [] {
         {
             int argc = 1;
             char name[] = "tst_cutelogger";
             char* argv[] = {name, nullptr};
             const QCoreApplication application(argc, argv);
             auto* console = new ConsoleAppender;
             console->setDetailsLevel(Logger::Error);
             Logger::globalInstance()->registerAppender(console);
             record(Logger::Debug, nullptr, QStringLiteral("in time"));
         }
         record(Logger::Debug, nullptr, QStringLiteral("too late"));
     }},
};

struct Ending
{
    bool isNormal = false;
    QByteArray errors;
};

Ending endingOf(const char* scenario)
{
    QProcess process;
    startProcess(process, QCoreApplication::applicationFilePath(), {QString::fromLatin1(scenario)});
    if (!process.waitForFinished(patience))
        qWarning("%s: %s", scenario, qPrintable(process.errorString()));
    return {process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            process.readAllStandardError().replace("\r\n", "\n")};
}

} // namespace

class CuteLoggerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void globalLoggerHasTwoNames();
    void takesThreeFormsOfAMessage();
    void passesThePlaceOn();
    void categoriesHaveTheirOwnAppenders();
    void linkedCategoriesReachAllAppenders();
    void dropsRecordsBelowTheLevel_data();
    void dropsRecordsBelowTheLevel();
    void convertsLevelNames();
    void registersAnAppenderOnce();
    void returnsARemovedAppenderToTheCaller();
    void recordsHaveTheLocalTime();
    void takesRecordsFromManyThreads();
    void appendsToAFile();
    void aFileThatCannotBeWrittenDoesNotStopOtherAppenders();
    void recordsWithoutAnAppenderGoToStandardError();
    void recordsBelowTheLevelGoNowhere();
    void categoriesWithoutAnAppenderGoToStandardError();
    void linkedCategoriesWithAnAppenderStayOffStandardError();
    void messagesOfQtAreRecords();
    void fatalRecordsEndTheProcess();
    void appendersEndWithTheApplication();
    void linksEndWithTheApplication();
    void eachFileThatCannotBeWrittenIsNamed();

private:
    static CuteMessageLogger at(Logger& logger, Logger::LogLevel level = Logger::Debug)
    {
        return {&logger, level, "file", 12, "void function()"};
    }
};

void CuteLoggerTest::globalLoggerHasTwoNames()
{
    QVERIFY(VX_GLOBAL_LOGGER());
    QCOMPARE(VX_GLOBAL_LOGGER(), Logger::globalInstance());
#ifdef VX_STAND_IN
    QCOMPARE(loggerInstance(), Logger::globalInstance());
    QCOMPARE(cuteLoggerInstance(), Logger::globalInstance());
#endif
}

void CuteLoggerTest::takesThreeFormsOfAMessage()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    const QByteArray longText(2000, 'x');
    at(logger).write("%s: %d", "text", 7);
    at(logger).write("%s: %d", longText.constData(), 7);
    at(logger).write(QStringLiteral("100 % as it stands, %s"));
    at(logger).write() << "streamed" << 7 << QStringLiteral("quoted");
    QStringList messages;
    for (const Record& record : std::as_const(recorder->records))
        messages.append(record.message);
    QCOMPARE(messages, (QStringList{QStringLiteral("text: 7"),
                                    QString::fromLatin1(longText) + QStringLiteral(": 7"),
                                    QStringLiteral("100 % as it stands, %s"),
                                    QStringLiteral("streamed 7 \"quoted\" ")}));
}

void CuteLoggerTest::passesThePlaceOn()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    at(logger, Logger::Warning).write(QStringLiteral("message"));
    QCOMPARE(recorder->records, (QList<Record>{{Logger::Warning,
                                                QStringLiteral("file"),
                                                12,
                                                QStringLiteral("void function()"),
                                                {},
                                                QStringLiteral("message")}}));
}

void CuteLoggerTest::categoriesHaveTheirOwnAppenders()
{
    Logger logger;
    auto* all = new Recorder;
    auto* network = new Recorder;
    logger.registerAppender(all);
    logger.registerCategoryAppender(QStringLiteral("network"), network);
    CuteMessageLogger(&logger, Logger::Error, "other", 3, "f", "network").write("%s", "text");
    CuteMessageLogger(&logger, Logger::Error, "other", 4, "f", "disk").write("%s", "text");
    QCOMPARE(all->records, QList<Record>{});
    QCOMPARE(network->records,
             (QList<Record>{{Logger::Error, QStringLiteral("other"), 3, QStringLiteral("f"),
                             QStringLiteral("network"), QStringLiteral("text")}}));
    logger.removeAppender(network);
    CuteMessageLogger(&logger, Logger::Error, "other", 5, "f", "network").write("%s", "text");
    QCOMPARE(network->records.size(), 1);
    delete network;
}

void CuteLoggerTest::linkedCategoriesReachAllAppenders()
{
    Logger* const global = Logger::globalInstance();
    Recorder recorder;
    global->registerAppender(&recorder);
    const auto remove = qScopeGuard([&] {
        global->logToGlobalInstance(QStringLiteral("linked"), false);
        global->removeAppender(&recorder);
    });
    global->logToGlobalInstance(QStringLiteral("linked"), true);
    record(Logger::Info, "linked", QStringLiteral("global"));
    Logger local;
    local.write(Logger::Info, "file", 1, "f", "linked", QStringLiteral("local"));
    global->logToGlobalInstance(QStringLiteral("linked"), false);
    record(Logger::Info, "linked", QStringLiteral("no more"));
    QStringList messages;
    for (const Record& each : std::as_const(recorder.records))
        messages.append(each.message);
    QCOMPARE(messages, (QStringList{QStringLiteral("global"), QStringLiteral("local")}));
}

void CuteLoggerTest::dropsRecordsBelowTheLevel_data()
{
    QTest::addColumn<int>("details");
    QTest::addColumn<int>("records");
    QTest::newRow("trace") << int(Logger::Trace) << 6;
    QTest::newRow("debug") << int(Logger::Debug) << 5;
    QTest::newRow("warning") << int(Logger::Warning) << 3;
    QTest::newRow("fatal") << int(Logger::Fatal) << 1;
}

void CuteLoggerTest::dropsRecordsBelowTheLevel()
{
    QFETCH(const int, details);
    QFETCH(const int, records);
    Recorder recorder;
    AbstractAppender& appender = recorder;
    QCOMPARE(appender.detailsLevel(), Logger::Debug);
    appender.setDetailsLevel(static_cast<Logger::LogLevel>(details));
    for (int level = Logger::Trace; level <= Logger::Fatal; ++level)
        appender.write(QDateTime::currentDateTime(), static_cast<Logger::LogLevel>(level), "file",
                       12, "f", QString(), QStringLiteral("message"));
    QCOMPARE(recorder.records.size(), records);
}

void CuteLoggerTest::convertsLevelNames()
{
    QCOMPARE(Logger::levelToString(Logger::Warning), QStringLiteral("Warning"));
    QCOMPARE(Logger::levelFromString(QStringLiteral(" wArNiNg ")), Logger::Warning);
    QCOMPARE(Logger::levelFromString(QStringLiteral("loud")), Logger::Debug);
    Recorder recorder;
    recorder.setDetailsLevel(QStringLiteral("error"));
    QCOMPARE(recorder.detailsLevel(), Logger::Error);
}

void CuteLoggerTest::registersAnAppenderOnce()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    logger.registerAppender(recorder);
    at(logger).write(QStringLiteral("message"));
    QCOMPARE(recorder->records.size(), 1);
}

void CuteLoggerTest::returnsARemovedAppenderToTheCaller()
{
    Recorder recorder;
    {
        Logger logger;
        logger.registerAppender(&recorder);
        logger.removeAppender(&recorder);
        logger.removeAppender(&recorder);
        at(logger).write(QStringLiteral("message"));
    }
    QVERIFY(recorder.records.isEmpty());
}

void CuteLoggerTest::recordsHaveTheLocalTime()
{
    // A time zone that no test machine is in, so that UTC cannot be mistaken for local time.
    qputenv("TZ", "VXT-5:45");
    const auto unset = qScopeGuard([] { qunsetenv("TZ"); });
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    // The offset is queried once a second, and another test may have queried it in this second.
    const QString format = QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz");
    const auto isLocal = [&] {
        const QString before = QDateTime::currentDateTime().toString(format);
        at(logger).write(QStringLiteral("message"));
        const QString written = recorder->times.constLast().toString(format);
        return before <= written && written <= QDateTime::currentDateTime().toString(format);
    };
    QTRY_VERIFY(isLocal());
    for (int record = 0; record < 100; ++record)
        QVERIFY(isLocal());
}

void CuteLoggerTest::takesRecordsFromManyThreads()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back([&] {
            for (int record = 0; record < 500; ++record)
                at(logger).write("%d", record);
        });
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(recorder->records.size(), 2000);
}

void CuteLoggerTest::appendsToAFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("log"));
    const auto lines = [&] {
        QFile file(name);
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                                : QString();
    };
    Logger logger;
    auto* appender = new FileAppender(name);
    QCOMPARE(appender->fileName(), name);
    logger.registerAppender(appender);
    at(logger, Logger::Info).write(QStringLiteral("ein Überblick"));
    QVERIFY2(lines().endsWith(QStringLiteral("> ein Überblick\n")), qPrintable(lines()));
    QVERIFY2(lines().contains(QStringLiteral("Info ")), qPrintable(lines()));
    at(logger).write(QStringLiteral("second"));
    QCOMPARE(lines().count(QLatin1Char('\n')), 2);
    appender->setFileName(folder.filePath(QStringLiteral("other")));
    at(logger).write(QStringLiteral("elsewhere"));
    QCOMPARE(lines().count(QLatin1Char('\n')), 2);
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("other"))));
}

void CuteLoggerTest::aFileThatCannotBeWrittenDoesNotStopOtherAppenders()
{
    const QTemporaryDir folder;
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(new FileAppender(folder.filePath(QStringLiteral("no/such/folder"))));
    logger.registerAppender(recorder);
    at(logger).write(QStringLiteral("message"));
    QCOMPARE(recorder->records.size(), 1);
}

void CuteLoggerTest::recordsWithoutAnAppenderGoToStandardError()
{
    const Ending ending = endingOf("no registered appender");
    QVERIFY(ending.isNormal);
    const QList<QByteArray> lines = ending.errors.trimmed().split('\n');
    QVERIFY2(lines.size() == 3, ending.errors.constData());
    QVERIFY2(lines.at(0).contains("ppender"), ending.errors.constData());
    QVERIFY2(lines.at(1).contains("first"), ending.errors.constData());
    QVERIFY2(lines.at(2).contains("second"), ending.errors.constData());
}

void CuteLoggerTest::recordsBelowTheLevelGoNowhere()
{
    const Ending ending = endingOf("an appender above the level");
    QVERIFY(ending.isNormal);
    QCOMPARE(ending.errors.count('\n'), 1);
    QVERIFY2(ending.errors.contains("a warning"), ending.errors.constData());
}

void CuteLoggerTest::categoriesWithoutAnAppenderGoToStandardError()
{
    const Ending ending = endingOf("a category without an appender");
    QVERIFY(ending.isNormal);
    const QList<QByteArray> lines = ending.errors.trimmed().split('\n');
    QVERIFY2(lines.size() == 3, ending.errors.constData());
    QVERIFY2(lines.at(0).contains("network"), ending.errors.constData());
    QVERIFY2(lines.at(1).contains("first"), ending.errors.constData());
    QVERIFY2(lines.at(2).contains("second"), ending.errors.constData());
}

void CuteLoggerTest::linkedCategoriesWithAnAppenderStayOffStandardError()
{
    const Ending ending = endingOf("a linked category with an appender of its own");
    QVERIFY(ending.isNormal);
    QVERIFY2(!ending.errors.contains("the record"), ending.errors.constData());
}

void CuteLoggerTest::messagesOfQtAreRecords()
{
    const Ending ending = endingOf("Qt's messages");
    QVERIFY(ending.isNormal);
    QCOMPARE(ending.errors, QByteArray("1 records\n"));
}

void CuteLoggerTest::fatalRecordsEndTheProcess()
{
    const Ending ending = endingOf("a fatal record");
    QVERIFY(!ending.isNormal);
    QVERIFY2(ending.errors.contains("the last message"), ending.errors.constData());
    QVERIFY2(!ending.errors.contains("went on"), ending.errors.constData());
}

void CuteLoggerTest::appendersEndWithTheApplication()
{
    const Ending ending = endingOf("after the application");
    QVERIFY(ending.isNormal);
    QVERIFY2(!ending.errors.contains("in time"), ending.errors.constData());
    QVERIFY2(ending.errors.contains("too late"), ending.errors.constData());
}

void CuteLoggerTest::linksEndWithTheApplication()
{
#ifndef VX_STAND_IN
    QSKIP("the original promises nothing about links");
#endif
    const Ending ending = endingOf("two applications");
    QVERIFY(ending.isNormal);
    QVERIFY2(ending.errors.startsWith("1 records\n"), ending.errors.constData());
    QVERIFY2(ending.errors.endsWith("0 records\n"), ending.errors.constData());
}

void CuteLoggerTest::eachFileThatCannotBeWrittenIsNamed()
{
    const Ending ending = endingOf("two files that cannot be written");
    QVERIFY(ending.isNormal);
    QVERIFY2(ending.errors.contains("first.log"), ending.errors.constData());
    QVERIFY2(ending.errors.contains("second.log"), ending.errors.constData());
}

int main(int argc, char* argv[])
{
    for (const Scenario& scenario : scenarios) {
        if (argc == 2 && qstrcmp(argv[1], scenario.name) == 0) {
            scenario.run();
            return 0;
        }
    }
    QCoreApplication application(argc, argv);
    CuteLoggerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_cutelogger.moc"
