// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The stand-in for CuteLogger.
#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

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

} // namespace

class CuteLoggerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void globalLoggerHasTwoNames();
    void threeFormsOfAMessage();
    void categoryAndPlaceArePassedOn();
    void levels_data();
    void levels();
    void levelNames();
    void appenderTwiceIsOnce();
    void removedAppenderIsTheCallers();
    void recordsHaveTheTimeOfTheWallClock();
    void recordsOfManyThreads();
    void fileAppender();
    void fileAppenderWithoutAFile();

private:
    static CuteMessageLogger at(Logger& logger, Logger::LogLevel level = Logger::Debug)
    {
        return {&logger, level, "file", 12, "void function()"};
    }
};

void CuteLoggerTest::globalLoggerHasTwoNames()
{
    QVERIFY(loggerInstance());
    QCOMPARE(loggerInstance(), Logger::globalInstance());
}

void CuteLoggerTest::threeFormsOfAMessage()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    at(logger).write("%s: %d", "text", 7);
    at(logger).write(QStringLiteral("100 % as it stands, %s"));
    at(logger).write() << "streamed" << 7 << QStringLiteral("quoted");
    QStringList messages;
    for (const Record& record : std::as_const(recorder->records))
        messages.append(record.message);
    QCOMPARE(messages,
             (QStringList{QStringLiteral("text: 7"), QStringLiteral("100 % as it stands, %s"),
                          QStringLiteral("streamed 7 \"quoted\" ")}));
}

void CuteLoggerTest::categoryAndPlaceArePassedOn()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    at(logger, Logger::Warning).write(QStringLiteral("message"));
    CuteMessageLogger(&logger, Logger::Error, "other", 3, "f", "network").write("%s", "text");
    QCOMPARE(recorder->records, (QList<Record>{
                                    {Logger::Warning,
                                     QStringLiteral("file"),
                                     12,
                                     QStringLiteral("void function()"),
                                     {},
                                     QStringLiteral("message")},
                                    {Logger::Error, QStringLiteral("other"), 3, QStringLiteral("f"),
                                     QStringLiteral("network"), QStringLiteral("text")},
                                }));
}

void CuteLoggerTest::levels_data()
{
    QTest::addColumn<int>("details");
    QTest::addColumn<int>("records");
    QTest::newRow("trace") << int(Logger::Trace) << 6;
    QTest::newRow("debug") << int(Logger::Debug) << 5;
    QTest::newRow("warning") << int(Logger::Warning) << 3;
    QTest::newRow("fatal") << int(Logger::Fatal) << 1;
}

void CuteLoggerTest::levels()
{
    QFETCH(const int, details);
    QFETCH(const int, records);
    Logger logger;
    auto* recorder = new Recorder;
    QCOMPARE(recorder->detailsLevel(), Logger::Debug);
    recorder->setDetailsLevel(static_cast<Logger::LogLevel>(details));
    logger.registerAppender(recorder);
    for (int level = Logger::Trace; level <= Logger::Fatal; ++level)
        at(logger, static_cast<Logger::LogLevel>(level)).write(QStringLiteral("message"));
    QCOMPARE(recorder->records.size(), records);
}

void CuteLoggerTest::levelNames()
{
    QCOMPARE(Logger::levelToString(Logger::Warning), QStringLiteral("Warning"));
    QCOMPARE(Logger::levelFromString(QStringLiteral(" wArNiNg ")), Logger::Warning);
    QCOMPARE(Logger::levelFromString(QStringLiteral("loud")), Logger::Debug);
    Recorder recorder;
    recorder.setDetailsLevel(QStringLiteral("error"));
    QCOMPARE(recorder.detailsLevel(), Logger::Error);
}

void CuteLoggerTest::appenderTwiceIsOnce()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    logger.registerAppender(recorder);
    at(logger).write(QStringLiteral("message"));
    QCOMPARE(recorder->records.size(), 1);
}

void CuteLoggerTest::removedAppenderIsTheCallers()
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

void CuteLoggerTest::recordsHaveTheTimeOfTheWallClock()
{
    // A zone that no test machine is in, so that universal time cannot pass for the wall clock's.
    qputenv("TZ", "VXT-5:45");
    const auto unset = qScopeGuard([] { qunsetenv("TZ"); });
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    // The zone is asked once a second, and another test may have had it asked in this one.
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

void CuteLoggerTest::recordsOfManyThreads()
{
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(recorder);
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
        threads.emplace_back([&] {
            for (int record = 0; record < 500; ++record)
                at(logger).write("%d", record);
        });
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(recorder->records.size(), 2000);
}

void CuteLoggerTest::fileAppender()
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
    QVERIFY2(lines().endsWith(QStringLiteral(" Info    <file:12 void function()> ein Überblick\n")),
             qPrintable(lines()));
    at(logger).write(QStringLiteral("second"));
    QCOMPARE(lines().count(QLatin1Char('\n')), 2);
    appender->setFileName(folder.filePath(QStringLiteral("other")));
    at(logger).write(QStringLiteral("elsewhere"));
    QCOMPARE(lines().count(QLatin1Char('\n')), 2);
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("other"))));
}

void CuteLoggerTest::fileAppenderWithoutAFile()
{
    const QTemporaryDir folder;
    Logger logger;
    auto* recorder = new Recorder;
    logger.registerAppender(new FileAppender(folder.filePath(QStringLiteral("no/such/folder"))));
    logger.registerAppender(recorder);
    at(logger).write(QStringLiteral("message"));
    QCOMPARE(recorder->records.size(), 1);
}

QTEST_GUILESS_MAIN(CuteLoggerTest)
#include "tst_cutelogger.moc"
