// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What was used, as `vxprintmon history` prints it and `vxprintmon watch --history` records it.
#include "../kit/usage_printers.h"
#include "patience.h"
#include "text_layout.h"

#include <usage_history.h>
#include <usage_history_reader.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

using usage_printers::levelOf;
using usage_printers::readingOf;
using usage_printers::unknownOf;
using VxKit::Level;

namespace {

const QDateTime start(QDate(2026, 11, 20), QTime(8, 0), Qt::UTC);

struct Result
{
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

class HistoryCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void printsATableForEachSlot();
    void printsOnePrinterByNameOrSerialNumber();
    void printsJson();
    void printsCsvThatIsNoFormula();
    void fitsEightyColumnsInEveryLanguage();
    void hostileTextsCannotControlTheTerminal();
    void saysThatNothingHasBeenRecorded();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void watchRecordsWhenAsked();
    void watchBeginsADamagedHistoryAnew();
    void saysWhatCouldNotBeRecorded();

private:
    QString file() const { return m_folder->filePath(QStringLiteral("history.db")); }
    bool record(const VxKit::PrinterReading& one, const VxKit::PrinterReading& two) const
    {
        VxKit::UsageHistoryOptions options;
        options.fileName = file();
        VxKit::UsageHistory history(options);
        history.record(one, start);
        history.record(two, start.addDays(2));
        return history.flush(QDeadlineTimer::Forever);
    }
    bool recordTwoRolls() const
    {
        const QString name = QStringLiteral("Shipping");
        const QString serialNumber = QStringLiteral("S7");
        return record(readingOf(name, levelOf(QStringLiteral("one"), 30000), serialNumber),
                      readingOf(name, levelOf(QStringLiteral("one"), 24000), serialNumber)) &&
               record(readingOf(name, unknownOf(QStringLiteral("two"), 20000), serialNumber),
                      readingOf(QStringLiteral("Packing"), levelOf(QStringLiteral("one"), 10000)));
    }
    Result run(const QStringList& arguments, const QString& language = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), language);
        environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
        environment.remove(QStringLiteral("COLUMNS"));
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QString::fromLatin1(name), m_folder->path());
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VXPRINTMON), arguments);
        if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    Result history(const QStringList& arguments = {}, const QString& language = {}) const
    {
        return run(QStringList{QStringLiteral("history"), QStringLiteral("--file"), file()} +
                       arguments,
                   language);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void HistoryCommandTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void HistoryCommandTest::printsATableForEachSlot()
{
    QVERIFY(recordTwoRolls());
    const Result result = history();
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output, QByteArray(R"(Packing, supply
LOADED        FROM              UNTIL         USED   LABELS  A DAY
Yellow Vinyl  2026-11-22 08:00  still loaded  0.0 m  0       0.0 m

Shipping, supply (serial number S7)
LOADED        FROM              UNTIL             USED   LABELS  A DAY
Yellow Vinyl  2026-11-20 08:00  2026-11-22 08:00  6.0 m  237     2.0 m
two           2026-11-20 08:00  still loaded      0.0 m  -       0.0 m
)"));
}

void HistoryCommandTest::printsOnePrinterByNameOrSerialNumber()
{
    QVERIFY(recordTwoRolls());
    const QByteArray byName = history({QStringLiteral("sHIPPING")}).output;
    QVERIFY(byName.contains("Shipping"));
    QVERIFY(!byName.contains("Packing"));
    QCOMPARE(history({QStringLiteral("S7")}).output, byName);
}

void HistoryCommandTest::printsJson()
{
    QVERIFY(recordTwoRolls());
    const Result result = history({QStringLiteral("--json")});
    const QJsonArray all = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(all.size(), 3);
    const QJsonObject roll = all.at(1).toObject();
    QCOMPARE(roll.value(QStringLiteral("printer")), QJsonValue(QStringLiteral("Shipping")));
    QCOMPARE(roll.value(QStringLiteral("slot")), QJsonValue(QStringLiteral("supply")));
    QCOMPARE(roll.value(QStringLiteral("usedMeters")), QJsonValue(6.0));
    QCOMPARE(roll.value(QStringLiteral("metersPerDay")), QJsonValue(2.0));
    QCOMPARE(roll.value(QStringLiteral("usedLabels")), QJsonValue(237));
    QCOMPARE(roll.value(QStringLiteral("loaded")), QJsonValue(false));
    QCOMPARE(roll.value(QStringLiteral("from")),
             QJsonValue(QStringLiteral("2026-11-20T08:00:00Z")));
    const QJsonObject unknown = all.at(2).toObject();
    for (const char* name : {"sku", "name", "usedRatio", "usedLabels", "metersLeft", "ratioLeft"}) {
        QVERIFY2(unknown.contains(QLatin1String(name)), name);
        QVERIFY2(unknown.value(QLatin1String(name)).isNull(), name);
    }
    QVERIFY(all.at(0).toObject().value(QStringLiteral("serialNumber")).isNull());
}

void HistoryCommandTest::printsCsvThatIsNoFormula()
{
    Level level = levelOf(QStringLiteral("=1+1"), 30000);
    level.name = QStringLiteral("a \"quoted\", name\n");
    QVERIFY(record(readingOf(QStringLiteral("-Packing"), level),
                   readingOf(QStringLiteral("-Packing"), level)));
    const Result result = history({QStringLiteral("--csv")});
    QCOMPARE(result.exitStatus, 0);
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).startsWith("printer,serialNumber,slot,identifier,sku,name,material,from,"),
             lines.at(0).constData());
    QVERIFY2(
        lines.at(1).startsWith(R"("'-Packing",,"supply","'=1+1","VX-=1+1",)"
                               R"("a ""quoted"", name\u000a","vinyl","2026-11-20T08:00:00Z",)"),
        lines.at(1).constData());
    QCOMPARE(lines.at(0).count(','), 19);
}

void HistoryCommandTest::fitsEightyColumnsInEveryLanguage()
{
    Level level = levelOf(QStringLiteral("roll"), 30000);
    level.name = QString(60, QChar(0x6771));
    Level used = level;
    used.mileage = 200;
    used.labels = 0;
    QVERIFY(record(readingOf(QStringLiteral("Shipping"), level),
                   readingOf(QStringLiteral("Shipping"), used)));
    for (const char* language : {"en", "de", "es", "fr", "it", "ja", "zh_CN"}) {
        const Result result = history({}, QString::fromLatin1(language));
        QCOMPARE(result.exitStatus, 0);
        const QString text = QString::fromUtf8(result.output);
        for (const QString& line : text.split(QLatin1Char('\n')))
            QVERIFY2(text_layout::width(line) <= 80, qPrintable(line));
        QVERIFY2(text.contains(QLatin1String("30.0 m")), qPrintable(text));
        QCOMPARE(text.contains(QLatin1String("LOADED")), language == QByteArray("en"));
    }
}

void HistoryCommandTest::hostileTextsCannotControlTheTerminal()
{
    const QString hostile = QString::fromUtf8("\x1b[2J\r\n") + QChar(0x202e);
    Level level = levelOf(hostile, 30000);
    level.name = hostile;
    QVERIFY(record(readingOf(hostile, level, hostile), readingOf(hostile, level, hostile)));
    for (const QStringList& options : {QStringList(), QStringList(QStringLiteral("--json")),
                                       QStringList(QStringLiteral("--csv"))}) {
        const Result result = history(options);
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(result.output.contains("\\u001b[2J"));
        for (const QChar character : QString::fromUtf8(result.output))
            QVERIFY(character == QLatin1Char('\n') || character.isPrint());
    }
}

void HistoryCommandTest::saysThatNothingHasBeenRecorded()
{
    const Result result = run({QStringLiteral("history")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output,
             QByteArray("Nothing has been recorded yet. \"vxprintmon watch --history\" records "
                        "what is used.\n"));
    QCOMPARE(run({QStringLiteral("history"), QStringLiteral("--json")}).output.simplified(),
             QByteArray("[]"));
}

void HistoryCommandTest::saysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitStatus");
    QTest::addColumn<QByteArray>("message");
    const auto words = [](const char* text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '));
    };
    QTest::newRow("another name") << words("history --file FILE Shiping") << 1
                                  << QByteArray("the history has no printer \"Shiping\"; did you "
                                                "mean \"Shipping\"?");
    QTest::newRow("no such name") << words("history --file FILE Zzzzzz") << 1
                                  << QByteArray("the history has no printer \"Zzzzzz\"");
    QTest::newRow("no such file") << words("history --file /nowhere/none.db") << 1
                                  << QByteArray("/nowhere/none.db: no such file");
    QTest::newRow("two forms") << words("history --csv --json") << 2
                               << QByteArray("--csv and --json are not valid together");
    QTest::newRow("file alone") << words("watch --file FILE") << 2
                                << QByteArray("--file is valid only with --history");
    QTest::newRow("cannot be written")
        << words("watch --for 1 --history --file /dev/null/history.db") << 1
        << QByteArray("cannot write the history /dev/null/history.db");
}

void HistoryCommandTest::saysWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(const int, exitStatus);
    QFETCH(const QByteArray, message);
    QVERIFY(recordTwoRolls());
    arguments.replaceInStrings(QStringLiteral("FILE"), file());
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, exitStatus);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith("vxprintmon: " + message), result.errors.constData());
}

void HistoryCommandTest::watchRecordsWhenAsked()
{
    const QStringList watch{QStringLiteral("watch"), QStringLiteral("--virtual"),
                            QStringLiteral("built-in"), QStringLiteral("--for"),
                            QStringLiteral("0.5")};
    QCOMPARE(run(watch).exitStatus, 0);
    QVERIFY(!QFile::exists(file()));
    QCOMPARE(run(watch + QStringList{QStringLiteral("--history"), QStringLiteral("--file"), file()})
                 .exitStatus,
             0);
    const VxKit::UsageHistoryReader reader(file());
    QVERIFY(!reader.segments().isEmpty());
    QCOMPARE(reader.errorString(), QString());
}

void HistoryCommandTest::watchBeginsADamagedHistoryAnew()
{
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("this is no history");
    damaged.close();
    const Result result =
        run({QStringLiteral("watch"), QStringLiteral("--virtual"), QStringLiteral("built-in"),
             QStringLiteral("--for"), QStringLiteral("0.5"), QStringLiteral("--history"),
             QStringLiteral("--file"), file()});
    QCOMPARE(result.exitStatus, 0);
    const QString expected =
        QStringLiteral("vxprintmon: the history was damaged, is now called %1.damaged-1, and has "
                       "been begun anew: %1: not an SQLite database\n")
            .arg(file());
    QCOMPARE(QString::fromUtf8(result.errors), expected);
    QVERIFY(!VxKit::UsageHistoryReader(file()).segments().isEmpty());
}

void HistoryCommandTest::saysWhatCouldNotBeRecorded()
{
    QVERIFY(recordTwoRolls());
    const QString connection = QStringLiteral("gap");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(file());
        QVERIFY(database.open());
        QSqlQuery query(database);
        query.prepare(QStringLiteral("INSERT INTO gap(since, until, samples) VALUES(?, ?, 12)"));
        query.addBindValue(start.toSecsSinceEpoch());
        query.addBindValue(start.addSecs(3600).toSecsSinceEpoch());
        QVERIFY(query.exec());
    }
    QSqlDatabase::removeDatabase(connection);
    const Result result = history();
    QVERIFY2(result.output.endsWith("\nChanges that could not be recorded: 12, from 2026-11-20 "
                                    "08:00 to 2026-11-20 09:00\n"),
             result.output.constData());
}

QTEST_GUILESS_MAIN(HistoryCommandTest)
#include "tst_history_command.moc"
