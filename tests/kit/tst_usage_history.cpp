// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The history of what was used: what is recorded, how it grows old, and what happens to its file.
#include "patience.h"
#include "start_process.h"
#include "test_file.h"
#include "usage_printers.h"
#include "whole_file.h"

#include <usage_history.h>
#include <usage_history_reader.h>

#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <atomic>
#include <limits>
#include <thread>

using namespace std::chrono_literals;
using namespace usage_printers;

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;
using VxKit::UsageHistory;
using VxKit::UsageHistoryOptions;
using VxKit::UsageHistoryReader;
using VxKit::UsageSample;
using VxKit::UsageSegment;

namespace {

/// The long histories are shorter with a sanitizer, which takes minutes for them and sees the same
/// code and threads in less. Whether they fit is a matter of the numbers, which are the same
/// without it.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

const QString packing = QStringLiteral("Packing");
const QString packingKey = QStringLiteral("name:Packing");
const QDateTime start(QDate(2026, 11, 22), QTime(8, 0), Qt::UTC);

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* const text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

/// Runs statements on a file. Empty when all succeed, else what failed.
QString runStatements(const QString& fileName, const QStringList& statements)
{
    QString error;
    const QString connection = QStringLiteral("runStatements");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(fileName);
        if (!database.open())
            error = database.lastError().text();
        for (const QString& statement : statements) {
            QSqlQuery query(database);
            if (error.isEmpty() && !query.exec(statement))
                error = statement + QStringLiteral(": ") + query.lastError().text();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return error;
}

/// A format of version 1, as it will be found on computers for as long as there are any. It is
/// written out here so that this test fails when the format is changed without a new version.
const QStringList version1{
    QStringLiteral("PRAGMA application_id = 0x56585548"),
    QStringLiteral("PRAGMA user_version = 1"),
    QStringLiteral("CREATE TABLE printer(id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE, "
                   "name TEXT NOT NULL)"),
    QStringLiteral("CREATE TABLE item(id INTEGER PRIMARY KEY, ribbon INTEGER NOT NULL, "
                   "identifier TEXT NOT NULL, sku TEXT NOT NULL, name TEXT NOT NULL, "
                   "material TEXT NOT NULL, total INTEGER, excess INTEGER, "
                   "UNIQUE(ribbon, identifier))"),
    QStringLiteral("CREATE TABLE segment(id INTEGER PRIMARY KEY, printer INTEGER NOT NULL, "
                   "slot INTEGER NOT NULL, item INTEGER NOT NULL, unit INTEGER NOT NULL, "
                   "loaded INTEGER NOT NULL, first_time INTEGER NOT NULL, "
                   "last_time INTEGER NOT NULL, first_level INTEGER NOT NULL, "
                   "last_level INTEGER NOT NULL, lowest_level INTEGER NOT NULL, "
                   "first_labels INTEGER, last_labels INTEGER)"),
    QStringLiteral("CREATE INDEX segment_of_slot ON segment(printer, slot)"),
    QStringLiteral("CREATE TABLE chunk(id INTEGER PRIMARY KEY, detail INTEGER NOT NULL, "
                   "last_time INTEGER NOT NULL, samples BLOB NOT NULL)"),
    QStringLiteral("CREATE INDEX chunk_to_thin ON chunk(detail, last_time) WHERE detail < 2"),
    QStringLiteral("CREATE TABLE gap(since INTEGER NOT NULL, until INTEGER NOT NULL, "
                   "samples INTEGER NOT NULL)"),
    QStringLiteral("CREATE TABLE setting(name TEXT PRIMARY KEY, value INTEGER NOT NULL) "
                   "WITHOUT ROWID"),
};

/// A segment of the printer "Old" with two samples: 25000 at 1700000000 and 24000 a minute later.
/// The bytes are twice the differences, in groups of seven bits, the lowest first.
const QStringList version1Rows{
    QStringLiteral("INSERT INTO printer VALUES(1, 'S1', 'Old')"),
    QStringLiteral("INSERT INTO item VALUES(1, 0, 'roll', 'VX-roll', 'Blue', 'paper', 30480, 200)"),
    QStringLiteral("INSERT INTO segment VALUES(1, 1, 0, 1, 0, 1, 1700000000, 1700000060, 25000, "
                   "24000, 24000, 976, 937)"),
    QStringLiteral("INSERT INTO chunk VALUES(1048576, 0, 1700000060, "
                   "x'80c49fd50cd0860378cf0f')"),
};

} // namespace

class UsageHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void eachChangeIsASample();
    void whatDoesNotChangeIsNoSample();
    void whatIsNotKnownIsNotRecorded();
    void slotsAreToldApart();
    void newIdentifierBeginsASegment();
    void risingLevelBeginsASegment();
    void smallRiseIsNoNewRoll_data();
    void smallRiseIsNoNewRoll();
    void creepingRiseIsANewRoll();
    void rollThatIsPutBackGoesOn();
    void rollThatIsReportedPieceByPieceIsOne_data();
    void rollThatIsReportedPieceByPieceIsOne();
    void usedAmountsAreKnownInPercent();
    void usedAmountIsKnownWithoutCatalogue();
    void averageIsThatOfTheDaysOfUse();
    void fastChangesAreOne();
    void serialNumberFollowsThePrinter();
    void renamedPrinterKeepsItsHistory();
    void historyGoesOnAfterARestart();
    void whatTheCatalogueForgetsIsKept();
    void textsWithoutAValueAreEmpty();
    void hostileTextsAreBounded();
    void defaultFileIsTheUsersOwn();

    void clockThatIsSetBackGivesNoAverage();
    void clockThatJumpsAheadDoesNotAgeTheHistory();
    void hostAsleepForTwoDaysLosesNothing();
    void summerTimeChangesNothing();
    void oldChangesBecomeHourlyAndThenDaily();
    void oldRollsAreForgotten();
    void fiveYearsOfFiftyPrintersFit();
    void whatDoesNotFitIsThinnedEarlier();

    void readersReadWhileItIsWritten();
    void secondWriterWaitsForTheFirst();
    void killedWriterLosesNothingThatWasWritten();
    void fullQueueDropsTheOldest();
    void fullDiskIsCountedAndSaidOnce_data();
    void fullDiskIsCountedAndSaidOnce();
    void folderIsCreated();
    void removedFileIsBegunAgain();
    void damagedFileIsSetAside_data();
    void damagedFileIsSetAside();
    void damageThatIsFoundLaterIsSetAsideToo();
    void setAsideFilesAreBounded();
    void version1IsContinued();
    void newerVersionIsLeftAsItIs();
    void otherDatabaseIsLeftAsItIs();
    void readerRefusesWhatIsNoHistory_data();
    void readerRefusesWhatIsNoHistory();
    void impossibleBytesAreNoSamples();

private:
    UsageHistoryOptions options() const
    {
        UsageHistoryOptions options;
        options.fileName = m_fileName;
        options.resolution = 0s;
        options.clock = [this] {
            return QDateTime::fromSecsSinceEpoch(m_now, Qt::UTC);
        };
        return options;
    }
    QList<UsageSegment> segments(const QString& printer = {}) const
    {
        const UsageHistoryReader reader(m_fileName);
        QList<UsageSegment> found = reader.segments(printer);
        if (!reader.errorString().isEmpty())
            qWarning("%s", qPrintable(reader.errorString()));
        return found;
    }
    QList<UsageSample> samples(const QString& key = packingKey, Slot slot = Slot::Supply,
                               const QDateTime& since = {}) const
    {
        return UsageHistoryReader(m_fileName).samples(key, slot, since);
    }
    /// The samples as "seconds since the start: millimetres".
    QStringList texts(const QList<UsageSample>& samples) const
    {
        QStringList texts;
        for (const UsageSample& sample : samples)
            texts.append(QStringLiteral("%1: %2")
                             .arg(start.secsTo(sample.time))
                             .arg(sample.meters ? qRound(*sample.meters * 1000) : -1));
        return texts;
    }
    /// Records levels of the printer "Packing", one a minute. False when that fails.
    bool recordMinutes(const QList<Level>& levels, const UsageHistoryOptions& options) const
    {
        UsageHistory history(options);
        for (qsizetype i = 0; i < levels.size(); ++i)
            history.record(readingOf(packing, levels.at(i)), start.addSecs(60 * i));
        return history.flush(QDeadlineTimer::Forever);
    }
    bool recordMinutes(const QList<Level>& levels) const
    {
        return recordMinutes(levels, options());
    }
    qint64 sizeOfFiles() const
    {
        qint64 size = 0;
        for (const char* suffix : {"", "-wal", "-shm", "-journal"})
            size += QFileInfo(m_fileName + QLatin1String(suffix)).size();
        return size;
    }

    std::optional<QTemporaryDir> m_folder;
    QString m_fileName;
    std::atomic<qint64> m_now = 0;
};

void UsageHistoryTest::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_fileName = m_folder->filePath(QStringLiteral("history.db"));
    m_now = start.toSecsSinceEpoch();
}

// What is recorded ////////////////////////////////////////////////////////////////////////////////

void UsageHistoryTest::eachChangeIsASample()
{
    QVERIFY(recordMinutes({levelOf(QStringLiteral("roll"), 30000),
                           levelOf(QStringLiteral("roll"), 29900),
                           levelOf(QStringLiteral("roll"), 25400)}));
    const QList<UsageSample> found = samples();
    QCOMPARE(texts(found), list({"0: 30000", "60: 29900", "120: 25400"}));
    for (const UsageSample& sample : found) {
        QCOMPARE(sample.identifier, QStringLiteral("roll"));
        QVERIFY(!sample.coarse);
        QVERIFY(sample.ratio && qAbs(*sample.ratio - *sample.meters / totalMeters) < 1e-6);
        QVERIFY(sample.labelMeters && qAbs(*sample.labelMeters - 0.0254) < 0.0254 / 1000);
    }
    QCOMPARE(texts(samples(packingKey, Slot::Supply, start.addSecs(60))),
             list({"60: 29900", "120: 25400"}));
    QCOMPARE(samples(packingKey, Slot::Supply, start.addSecs(121)).size(), 0);
    QCOMPARE(samples(packingKey, Slot::Ribbon1).size(), 0);
    QCOMPARE(samples(QStringLiteral("name:Shipping")).size(), 0);

    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 1);
    const UsageSegment& roll = rolls.first();
    QCOMPARE(roll.printerKey, packingKey);
    QCOMPARE(roll.printerName, packing);
    QCOMPARE(roll.serialNumber, QString());
    QCOMPARE(roll.slot, Slot::Supply);
    QCOMPARE(roll.identifier, QStringLiteral("roll"));
    QCOMPARE(roll.sku, QStringLiteral("VX-roll"));
    QCOMPARE(roll.name, QStringLiteral("Yellow Vinyl"));
    QCOMPARE(roll.material, QStringLiteral("vinyl"));
    QCOMPARE(roll.from, start);
    QCOMPARE(roll.until, start.addSecs(120));
    QVERIFY(roll.isLoaded);
    QVERIFY(!roll.coarse);
    QCOMPARE(roll.usedMeters, 4.6);
    QVERIFY(qAbs(*roll.usedRatio - 4.6 / totalMeters) < 1e-9);
    QCOMPARE(roll.usedLabels, 1181 - 1000);
    QCOMPARE(roll.metersLeft, 25.4);
    QCOMPARE(roll.labelsLeft, 1000);
}

void UsageHistoryTest::whatDoesNotChangeIsNoSample()
{
    Level other = levelOf(QStringLiteral("roll"), 29000);
    QVERIFY(recordMinutes(
        {levelOf(QStringLiteral("roll"), 29000), levelOf(QStringLiteral("roll"), 29000), other}));
    QCOMPARE(texts(samples()), list({"0: 29000"}));
}

void UsageHistoryTest::whatIsNotKnownIsNotRecorded()
{
    Level withoutMileage = unknownOf(QStringLiteral("roll"), 0);
    withoutMileage.mileage.reset();
    Level empty;
    empty.state = Level::State::Empty;
    {
        UsageHistory history(options());
        history.record(PrinterReading(), start);
        history.record(readingOf(packing, Level()), start);
        history.record(readingOf(packing, withoutMileage), start);
        QVERIFY(history.flush(QDeadlineTimer::Forever));
    }
    QCOMPARE(segments().size(), 0);
    QCOMPARE(samples().size(), 0);
}

void UsageHistoryTest::slotsAreToldApart()
{
    PrinterReading reading = readingOf(packing, levelOf(QStringLiteral("1"), 30000));
    reading.setLevel(Slot::Ribbon1, levelOf(QStringLiteral("1"), 20000));
    reading.setLevel(Slot::Ribbon2, levelOf(QStringLiteral("2"), 10000));
    {
        UsageHistory history(options());
        history.record(reading, start);
    }
    QCOMPARE(texts(samples()), list({"0: 30000"}));
    QCOMPARE(texts(samples(packingKey, Slot::Ribbon1)), list({"0: 20000"}));
    QCOMPARE(texts(samples(packingKey, Slot::Ribbon2)), list({"0: 10000"}));
}

void UsageHistoryTest::newIdentifierBeginsASegment()
{
    QVERIFY(recordMinutes(
        {levelOf(QStringLiteral("one"), 20000), levelOf(QStringLiteral("one"), 19000),
         levelOf(QStringLiteral("two"), 18000), levelOf(QStringLiteral("two"), 17500)}));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 2);
    QCOMPARE(rolls.at(0).identifier, QStringLiteral("one"));
    QCOMPARE(rolls.at(0).until, start.addSecs(60));
    QCOMPARE(rolls.at(0).usedMeters, 1.0);
    QVERIFY(!rolls.at(0).isLoaded);
    QCOMPARE(rolls.at(1).identifier, QStringLiteral("two"));
    QCOMPARE(rolls.at(1).from, start.addSecs(120));
    QCOMPARE(rolls.at(1).usedMeters, 0.5);
    QVERIFY(rolls.at(1).isLoaded);
    const QList<UsageSample> found = samples();
    QCOMPARE(found.size(), 4);
    QVERIFY(found.at(1).segment != found.at(2).segment);
}

void UsageHistoryTest::risingLevelBeginsASegment()
{
    QVERIFY(
        recordMinutes({levelOf(QStringLiteral("roll"), 20000), levelOf(QStringLiteral("roll"), 100),
                       levelOf(QStringLiteral("roll"), 30000)}));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 2);
    QCOMPARE(rolls.at(0).usedMeters, 19.9);
    QCOMPARE(rolls.at(1).usedMeters, 0.0);
    QCOMPARE(rolls.at(1).metersLeft, 30.0);
}

void UsageHistoryTest::smallRiseIsNoNewRoll_data()
{
    QTest::addColumn<QList<Level>>("levels");
    QTest::addColumn<qsizetype>("rolls");
    const auto percents = [](const QList<int>& numbers) {
        QList<Level> levels;
        for (const int number : numbers)
            levels.append(percentOf(QStringLiteral("roll"), number));
        return levels;
    };
    const auto lengths = [](const QList<int>& numbers) {
        QList<Level> levels;
        for (const int number : numbers)
            levels.append(levelOf(QStringLiteral("roll"), number));
        return levels;
    };
    QTest::newRow("whole percents go up and down")
        << percents({50, 49, 50, 49, 48, 49, 48}) << qsizetype(1);
    QTest::newRow("two percents") << percents({50, 48, 50}) << qsizetype(2);
    QTest::newRow("a label is pulled back") << lengths({20000, 19000, 19100}) << qsizetype(1);
    QTest::newRow("more than that") << lengths({20000, 19000, 19101}) << qsizetype(2);
}

void UsageHistoryTest::smallRiseIsNoNewRoll()
{
    QFETCH(const QList<Level>, levels);
    QFETCH(const qsizetype, rolls);
    QVERIFY(recordMinutes(levels));
    QCOMPARE(segments().size(), rolls);
}

// A level that rises in small steps cannot hide a new roll.
void UsageHistoryTest::creepingRiseIsANewRoll()
{
    QVERIFY(
        recordMinutes({percentOf(QStringLiteral("roll"), 50), percentOf(QStringLiteral("roll"), 10),
                       percentOf(QStringLiteral("roll"), 11), percentOf(QStringLiteral("roll"), 12),
                       percentOf(QStringLiteral("roll"), 13)}));
    QVERIFY(segments().size() > 1);
    QCOMPARE(segments().first().usedRatio, 0.4);
}

void UsageHistoryTest::rollThatIsPutBackGoesOn()
{
    Level empty;
    empty.state = Level::State::Empty;
    QVERIFY(recordMinutes(
        {levelOf(QStringLiteral("roll"), 20000), levelOf(QStringLiteral("roll"), 19000), empty}));
    QCOMPARE(segments().size(), 1);
    QVERIFY(!segments().first().isLoaded);
    {
        UsageHistory history(options());
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 19000)),
                       start.addSecs(180));
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 18000)),
                       start.addSecs(240));
    }
    QCOMPARE(texts(samples()), list({"0: 20000", "60: 19000", "240: 18000"}));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 1);
    QVERIFY(rolls.first().isLoaded);
    QCOMPARE(rolls.first().usedMeters, 2.0);
}

void UsageHistoryTest::rollThatIsReportedPieceByPieceIsOne_data()
{
    QTest::addColumn<Level>("between");
    QTest::addColumn<int>("newRoll");
    QTest::addColumn<bool>("isFlushed");
    for (const bool isFlushed : {false, true}) {
        const char* when = isFlushed ? "in two parts" : "at once";
        QTest::addRow("identifier, then a higher level, %s", when)
            << levelOf(QStringLiteral("new"), 19000) << 30000 << isFlushed;
        QTest::addRow("a higher level, then the identifier, %s", when)
            << levelOf(QStringLiteral("old"), 30000) << 30000 << isFlushed;
    }
    QTest::newRow("identifier, then a lower level")
        << levelOf(QStringLiteral("new"), 19000) << 5000 << false;
    QTest::newRow("a lower level, then the identifier")
        << levelOf(QStringLiteral("old"), 5000) << 5000 << false;
}

void UsageHistoryTest::rollThatIsReportedPieceByPieceIsOne()
{
    QFETCH(const Level, between);
    QFETCH(const int, newRoll);
    QFETCH(const bool, isFlushed);
    UsageHistoryOptions options = this->options();
    options.resolution = 10s;
    {
        UsageHistory history(options);
        history.record(readingOf(packing, levelOf(QStringLiteral("old"), 20000)), start);
        history.record(readingOf(packing, levelOf(QStringLiteral("old"), 19000)),
                       start.addSecs(600));
        history.record(readingOf(packing, between), start.addSecs(1200));
        if (isFlushed)
            QVERIFY(history.flush(QDeadlineTimer::Forever));
        history.record(readingOf(packing, levelOf(QStringLiteral("new"), newRoll)),
                       start.addSecs(1201));
    }
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 2);
    QCOMPARE(rolls.at(0).identifier, QStringLiteral("old"));
    QCOMPARE(rolls.at(0).usedMeters, 1.0);
    QCOMPARE(rolls.at(0).until, start.addSecs(600));
    QCOMPARE(rolls.at(1).identifier, QStringLiteral("new"));
    QCOMPARE(rolls.at(1).usedMeters, 0.0);
    QCOMPARE(rolls.at(1).metersLeft, newRoll / 1000.0);
    QCOMPARE(texts(samples()).last(), QStringLiteral("1201: %1").arg(newRoll));
}

void UsageHistoryTest::usedAmountsAreKnownInPercent()
{
    Level withoutTotal = percentOf(QStringLiteral("other"), 80);
    withoutTotal.totalMeters.reset();
    withoutTotal.meters.reset();
    withoutTotal.labels.reset();
    Level used = withoutTotal;
    used.mileage = 70;
    used.ratio = 0.7;
    QVERIFY(recordMinutes({percentOf(QStringLiteral("roll"), 90),
                           percentOf(QStringLiteral("roll"), 65), withoutTotal, used}));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 2);
    QVERIFY(rolls.at(0).coarse);
    QCOMPARE(rolls.at(0).usedRatio, 0.25);
    QVERIFY(qAbs(*rolls.at(0).usedMeters - 0.25 * totalMeters) < 1e-9);
    QCOMPARE(rolls.at(0).ratioLeft, 0.65);
    QCOMPARE(rolls.at(1).usedRatio, 0.1);
    QVERIFY(!rolls.at(1).usedMeters);
    QVERIFY(!rolls.at(1).metersLeft);
    QVERIFY(!rolls.at(1).usedLabels);
    const QList<UsageSample> found = samples();
    QVERIFY(found.first().coarse);
    QCOMPARE(found.first().ratio, 0.9);
    QVERIFY(!found.last().meters);
    QCOMPARE(found.last().ratio, 0.7);
}

// The printer counts millimetres down, whatever is loaded: what is left is not known, what was used
// is.
void UsageHistoryTest::usedAmountIsKnownWithoutCatalogue()
{
    QVERIFY(recordMinutes(
        {unknownOf(QStringLiteral("roll"), 20000), unknownOf(QStringLiteral("roll"), 18500)}));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 1);
    QCOMPARE(rolls.first().usedMeters, 1.5);
    QVERIFY(!rolls.first().usedRatio);
    QVERIFY(!rolls.first().usedLabels);
    QVERIFY(!rolls.first().metersLeft);
    QVERIFY(!rolls.first().ratioLeft);
    QCOMPARE(rolls.first().sku, QString());
    const QList<UsageSample> found = samples();
    QCOMPARE(found.size(), 2);
    QVERIFY(!found.first().meters);
    QVERIFY(!found.first().ratio);
    QVERIFY(!found.first().labelMeters);
}

void UsageHistoryTest::averageIsThatOfTheDaysOfUse()
{
    const QDateTime noon = QDateTime(QDate(2026, 11, 20), QTime(12, 0));
    {
        UsageHistory history(options());
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), noon);
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)),
                       noon.addSecs(60));
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 24000)),
                       noon.addDays(2).addSecs(-3600));
    }
    const UsageSegment roll = segments().value(0);
    QCOMPARE(roll.days(), 3);
    QCOMPARE(roll.metersPerDay(), 2.0);
    QCOMPARE(roll.labelsPerDay(), (1181 - 944) / 3.0);
    QVERIFY(qAbs(*roll.ratioPerDay() - 2.0 / totalMeters) < 1e-9);
    QCOMPARE(UsageSegment().metersPerDay(), std::optional<double>());
}

void UsageHistoryTest::fastChangesAreOne()
{
    UsageHistoryOptions options = this->options();
    options.resolution = 10s;
    {
        UsageHistory history(options);
        for (int second = 0; second <= 60; ++second)
            history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - 10 * second)),
                           start.addSecs(qint64(2) * second));
    }
    const QList<UsageSample> found = samples();
    QCOMPARE(texts(found).first(), QStringLiteral("0: 30000"));
    QCOMPARE(texts(found).last(), QStringLiteral("120: 29400"));
    QVERIFY2(found.size() <= 14, qPrintable(texts(found).join(QLatin1Char(' '))));
    QVERIFY2(found.size() >= 10, qPrintable(texts(found).join(QLatin1Char(' '))));
}

void UsageHistoryTest::serialNumberFollowsThePrinter()
{
    {
        UsageHistory history(options());
        history.record(readingOf(QStringLiteral("Packing"), levelOf(QStringLiteral("roll"), 30000),
                                 QStringLiteral("S7")),
                       start);
        history.record(readingOf(QStringLiteral("Shipping"), levelOf(QStringLiteral("roll"), 29000),
                                 QStringLiteral("S7")),
                       start.addSecs(60));
        history.record(readingOf(QStringLiteral("Packing"), levelOf(QStringLiteral("roll"), 10000),
                                 QStringLiteral("S8")),
                       start.addSecs(60));
        // Not the printer with this serial number.
        history.record(readingOf(QStringLiteral("S7"), levelOf(QStringLiteral("roll"), 1000)),
                       start.addSecs(60));
    }
    QCOMPARE(texts(samples(QStringLiteral("S7"))), list({"0: 30000", "60: 29000"}));
    QCOMPARE(texts(samples(QStringLiteral("S8"))), list({"60: 10000"}));
    QCOMPARE(texts(samples(QStringLiteral("name:S7"))), list({"60: 1000"}));
    const QList<UsageSegment> bySerial = segments(QStringLiteral("s8"));
    QCOMPARE(bySerial.size(), 1);
    QCOMPARE(bySerial.first().serialNumber, QStringLiteral("S8"));
    const QList<UsageSegment> byName = segments(QStringLiteral("shipping"));
    QCOMPARE(byName.size(), 1);
    QCOMPARE(byName.first().serialNumber, QStringLiteral("S7"));
    QCOMPARE(segments().size(), 3);
}

void UsageHistoryTest::renamedPrinterKeepsItsHistory()
{
    {
        UsageHistory history(options());
        history.record(readingOf(QStringLiteral("Old"), levelOf(QStringLiteral("roll"), 30000)),
                       start);
        history.record(readingOf(QStringLiteral("Other"), levelOf(QStringLiteral("roll"), 20000)),
                       start);
        history.rename(QStringLiteral("Old"), QStringLiteral("New"));
        history.record(readingOf(QStringLiteral("New"), levelOf(QStringLiteral("roll"), 29000)),
                       start.addSecs(60));
        // There is one under this name already.
        history.rename(QStringLiteral("New"), QStringLiteral("Other"));
    }
    QCOMPARE(texts(samples(QStringLiteral("name:New"))), list({"0: 30000", "60: 29000"}));
    QCOMPARE(texts(samples(QStringLiteral("name:Other"))), list({"0: 20000"}));
    QCOMPARE(samples(QStringLiteral("name:Old")).size(), 0);
    QCOMPARE(segments(QStringLiteral("New")).size(), 1);
}

void UsageHistoryTest::historyGoesOnAfterARestart()
{
    for (int run = 0; run < 5; ++run) {
        UsageHistory history(options());
        for (int minute = 0; minute < 100; ++minute) {
            const int number = 100 * run + minute;
            history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - number)),
                           start.addSecs(qint64(60) * number));
        }
    }
    QCOMPARE(segments().size(), 1);
    const QList<UsageSample> found = samples();
    QCOMPARE(found.size(), 500);
    for (int number = 0; number < 500; ++number)
        QCOMPARE(qRound(*found.at(number).meters * 1000), 30000 - number);
    {
        // Nothing has changed while nobody looked.
        UsageHistory history(options());
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - 499)),
                       start.addDays(3));
    }
    QCOMPARE(samples().size(), 500);
}

void UsageHistoryTest::whatTheCatalogueForgetsIsKept()
{
    QVERIFY(recordMinutes({levelOf(QStringLiteral("roll"), 20000),
                           unknownOf(QStringLiteral("roll"), 19000 + excess)}));
    const UsageSegment roll = segments().value(0);
    QCOMPARE(roll.sku, QStringLiteral("VX-roll"));
    QCOMPARE(roll.usedMeters, 1.0);
    QCOMPARE(roll.metersLeft, 19.0);
}

void UsageHistoryTest::textsWithoutAValueAreEmpty()
{
    // A host's own level need not have every text.
    Level level = levelOf(QStringLiteral("roll"), 20000);
    level.name = QString();
    level.material = QString();
    QVERIFY(recordMinutes({level, levelOf(QString(), 19000)}));
    const QList<UsageSegment> all = segments();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].sku, QStringLiteral("VX-roll"));
    QCOMPARE(all[0].name, QString());
    QCOMPARE(all[1].identifier, QString());
    QCOMPARE(all[1].name, QStringLiteral("Yellow Vinyl"));
}

void UsageHistoryTest::hostileTextsAreBounded()
{
    const QString longText(1000000, QChar(0x00e9));
    Level level = levelOf(longText, 20000);
    level.name = longText;
    level.material = longText;
    {
        UsageHistory history(options());
        history.record(readingOf(longText, level, longText), start);
        history.record(readingOf(QStringLiteral("'); DROP TABLE segment; --"),
                                 levelOf(QStringLiteral("');--"), 20000)),
                       start);
        QVERIFY(history.flush(QDeadlineTimer::Forever));
    }
    QCOMPARE(segments().size(), 2);
    QVERIFY2(sizeOfFiles() < 200000, qPrintable(QString::number(sizeOfFiles())));
    QCOMPARE(segments(QStringLiteral("'); DROP TABLE segment; --")).size(), 1);
}

void UsageHistoryTest::defaultFileIsTheUsersOwn()
{
    const QString name = UsageHistory::defaultFileName();
    QVERIFY2(name.endsWith(QLatin1String("/VxPrinterStatus/history.db")), qPrintable(name));
    QVERIFY(QFileInfo(name).isAbsolute());
}

// Clocks and ages /////////////////////////////////////////////////////////////////////////////////

void UsageHistoryTest::clockThatIsSetBackGivesNoAverage()
{
    {
        UsageHistory history(options());
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)),
                       start.addDays(400));
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)), start);
        QVERIFY(history.flush(QDeadlineTimer::Forever));
        UsageSegment roll = segments().value(0);
        QCOMPARE(roll.usedMeters, 1.0);
        QVERIFY(!roll.days());
        QVERIFY(!roll.metersPerDay());
        history.record(readingOf(packing, levelOf(QStringLiteral("new"), 25000)),
                       start.addSecs(60));
        history.record(readingOf(packing, levelOf(QStringLiteral("new"), 24000)),
                       start.addSecs(120));
    }
    QCOMPARE(segments().size(), 2);
    QCOMPARE(segments().last().metersPerDay(), 1.0);
    QStringList lines = texts(samples());
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.sliced(1), list({"0: 29000", "60: 25000", "120: 24000"}));
}

void UsageHistoryTest::clockThatJumpsAheadDoesNotAgeTheHistory()
{
    UsageHistory history(options());
    for (int minute = 0; minute < 100; ++minute)
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - minute)),
                       start.addSecs(qint64(60) * minute));
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    // For a moment it is twenty years later.
    const QDateTime wrong = start.addYears(20);
    m_now = wrong.toSecsSinceEpoch();
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)), wrong);
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    m_now = start.addDays(1).toSecsSinceEpoch();
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 28000)), start.addDays(1));
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    QCOMPARE(samples().size(), 102);
    QCOMPARE(segments().size(), 1);
    QCOMPARE(segments().first().metersPerDay(), 1.0);
}

void UsageHistoryTest::hostAsleepForTwoDaysLosesNothing()
{
    UsageHistory history(options());
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)), start.addSecs(60));
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    m_now = start.addDays(2).toSecsSinceEpoch();
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 24000)), start.addDays(2));
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    QCOMPARE(texts(samples()), list({"0: 30000", "60: 29000", "172800: 24000"}));
    QCOMPARE(segments().first().metersPerDay(), 2.0);
}

// On 25 October 2026, Berlin's clocks showed the hour from two to three twice.
void UsageHistoryTest::summerTimeChangesNothing()
{
    const QTimeZone berlin("Europe/Berlin");
    if (!berlin.isValid())
        QSKIP("this system does not know the time zone");
    const QDateTime before(QDate(2026, 10, 25), QTime(0, 30), Qt::UTC);
    {
        UsageHistory history(options());
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)),
                       before.toTimeZone(berlin));
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)),
                       before.addSecs(3600).toTimeZone(berlin));
    }
    const QList<UsageSample> found = samples();
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.first().time.secsTo(found.last().time), 3600);
    QCOMPARE(segments().first().from.secsTo(segments().first().until), 3600);
}

void UsageHistoryTest::oldChangesBecomeHourlyAndThenDaily()
{
    // Four changes an hour for eight hours on ten days, on one roll.
    constexpr int days = 10;
    UsageHistory history(options());
    int level = 30000;
    for (int day = 0; day < days; ++day) {
        for (int quarter = 0; quarter < 32; ++quarter) {
            const QDateTime time = start.addDays(day).addSecs(qint64(900) * quarter);
            m_now = time.toSecsSinceEpoch();
            level -= 10;
            history.record(readingOf(packing, levelOf(QStringLiteral("roll"), level)), time);
        }
        QVERIFY(history.flush(QDeadlineTimer::Forever));
    }
    const QList<UsageSample> all = samples();
    QCOMPARE(all.size(), days * 32);
    const UsageSegment before = segments().first();

    // It takes a change to look at the file, and the age follows the clock by a week at most.
    const auto growOld = [&](int wanted) {
        for (int day = 0; day <= wanted; day += 7) {
            m_now = start.addDays(day).toSecsSinceEpoch();
            history.record(
                readingOf(QStringLiteral("Other"), levelOf(QStringLiteral("roll"), 30000 - day)),
                start.addDays(day));
            if (!history.flush(QDeadlineTimer::Forever))
                return false;
        }
        return true;
    };
    QVERIFY(growOld(90));
    QCOMPARE(texts(samples()), texts(all));
    QVERIFY(growOld(130));
    const QList<UsageSample> hourly = samples();
    QCOMPARE(hourly.size(), days * 8 + 1); // and the first one
    QVERIFY(growOld(365 + 40));
    const QList<UsageSample> daily = samples();
    QCOMPARE(daily.size(), days + 1);
    QCOMPARE(texts(daily).first(), texts(all).first());
    for (int day = 0; day < days; ++day)
        QCOMPARE(texts(daily).at(day + 1), texts(all).at(32 * day + 31));
    // What was used is as exact as before.
    const UsageSegment after = segments(packing).first();
    QCOMPARE(after.from, before.from);
    QCOMPARE(after.until, before.until);
    QCOMPARE(after.usedMeters, before.usedMeters);
    QCOMPARE(after.usedLabels, before.usedLabels);
    // It goes on.
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 5000)), start.addDays(500));
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    QCOMPARE(segments(packing).size(), 1);
    QCOMPARE(samples().size(), days + 2);
}

void UsageHistoryTest::oldRollsAreForgotten()
{
    UsageHistoryOptions options = this->options();
    options.fullDetailFor = 24h * 30;
    options.hourlyFor = 24h * 60;
    options.keepFor = 24h * 90;
    UsageHistory history(options);
    for (int day = 0; day < 200; day += 5) {
        m_now = start.addDays(day).toSecsSinceEpoch();
        history.record(readingOf(packing, levelOf(QString::number(day), 20000)),
                       start.addDays(day));
        history.record(readingOf(packing, levelOf(QString::number(day), 15000)),
                       start.addDays(day).addSecs(3600));
        QVERIFY(history.flush(QDeadlineTimer::Forever));
    }
    const QList<UsageSegment> rolls = segments();
    QVERIFY2(rolls.size() >= 18 && rolls.size() <= 20, qPrintable(QString::number(rolls.size())));
    QCOMPARE(rolls.last().identifier, QStringLiteral("195"));
    for (const UsageSegment& roll : rolls)
        QCOMPARE(roll.usedMeters, 5.0);
}

// Fifty printers with a supply and two ribbons each, which work eight hours on five days of the
// week, change each slot every ten minutes, and use up a roll in three days.
//
// The file is largest at the end. By then all but the last ninety days have been thinned to a
// change an hour and all but the last year to one a day (oldChangesBecomeHourlyAndThenDaily).
// Before, with forty days more for the thinning itself, three changes an hour and four a day are
// recorded. The file becomes as large as with all changes, of which there are five times as
// many: 12.4 and 12.5 MiB.
void UsageHistoryTest::fiveYearsOfFiftyPrintersFit()
{
    constexpr int printers = isSanitized ? 10 : 50;
    constexpr int years = isSanitized ? 1 : 5;
    constexpr int days = years * 365;
    constexpr qint64 limit = qint64(16) << 20;
    UsageHistoryOptions options;
    options.fileName = m_fileName;
    options.clock = [this] {
        return QDateTime::fromSecsSinceEpoch(m_now, Qt::UTC);
    };
    options.maxQueuedSamples = 1000000;
    QRandomGenerator random(20261122);
    qint64 largest = 0;
    qint64 recorded = 0;
    qsizetype oldChanges = 0; // of a slot
    struct Roll
    {
        int number = 0;
        int level = 0;
    };
    std::array<std::array<Roll, 3>, printers> rolls{};
    std::array<Level, 20> levels;
    for (std::size_t i = 0; i < levels.size(); ++i)
        levels.at(i) = levelOf(QString::number(i), 0);
    std::array<PrinterReading, printers> readings;
    for (int printer = 0; printer < printers; ++printer)
        readings.at(printer) = readingOf(QStringLiteral("Printer %1").arg(printer), Level(),
                                         QStringLiteral("SN-%1").arg(1000000 + printer));
    {
        UsageHistory history(options);
        for (int day = 0; day < days; ++day) {
            if (day % 90 == 0)
                qInfo("day %d", day); // a test that prints nothing for minutes is taken for hung
            const QDateTime morning = start.addDays(day);
            m_now = morning.toSecsSinceEpoch();
            if (morning.date().dayOfWeek() > 5)
                continue;
            const int daysToGo = days - day;
            const int changesInOne = daysToGo > 365 + 40 ? 12 : daysToGo > 90 + 40 ? 2 : 1;
            for (int minutes = 0; minutes < 480; minutes += 10 * changesInOne) {
                oldChanges += daysToGo > 365 + 40 ? 1 : 0;
                for (int printer = 0; printer < printers; ++printer) {
                    PrinterReading& reading = readings.at(printer);
                    for (const Slot slot : {Slot::Supply, Slot::Ribbon1, Slot::Ribbon2}) {
                        Roll& roll = rolls.at(printer).at(static_cast<std::size_t>(slot));
                        for (int change = 0; change < changesInOne; ++change)
                            roll.level -= random.bounded(50, 400);
                        if (roll.level <= 0) {
                            ++roll.number;
                            roll.level = 30000;
                        }
                        Level& level = levels.at(static_cast<std::size_t>(roll.number % 20));
                        setLeft(level, roll.level);
                        reading.setLevel(slot, level);
                    }
                    history.record(reading, morning.addSecs(60 * minutes + printer));
                    recorded += 3;
                }
            }
            QVERIFY(history.flush(QDeadlineTimer::Forever));
            largest = std::max(largest, sizeOfFiles());
        }
        QCOMPARE(history.lostSamples(), 0);
        QVERIFY2(largest <= limit, qPrintable(QString::number(largest)));
    }
    qInfo("%lld changes, at most %.1f MiB", recorded, double(largest) / (1 << 20));

    // The last weeks are complete, and what was used is known for all five years.
    const QDateTime lastDay = QDateTime::fromSecsSinceEpoch(m_now, Qt::UTC);
    const QList<UsageSample> recent =
        samples(QStringLiteral("SN-1000007"), Slot::Ribbon1, lastDay.addDays(-7));
    QVERIFY2(recent.size() >= qsizetype(5) * 48, qPrintable(QString::number(recent.size())));
    const QList<UsageSegment> all = segments(QStringLiteral("SN-1000007"));
    QVERIFY(!all.isEmpty());
    const QList<UsageSample> everything = samples(QStringLiteral("SN-1000007"), Slot::Ribbon1);
    QVERIFY(everything.size() > recent.size());
    // What is old has become a sample a day, and the first and the last one of each roll.
    const auto isOld = [&](const UsageSample& sample) {
        return sample.time < start.addDays(days - 365 - 40);
    };
    const qsizetype old = std::ranges::count_if(everything, isOld);
    QVERIFY2(old * 2 <= oldChanges,
             qPrintable(QStringLiteral("%1 of %2").arg(old).arg(oldChanges)));
    QVERIFY2(all.first().from < start.addDays(30), qPrintable(all.first().from.toString()));
}

void UsageHistoryTest::whatDoesNotFitIsThinnedEarlier()
{
    constexpr qint64 limit = qint64(4) << 20;
    UsageHistoryOptions options = this->options();
    options.maxFileSize = 1000; // it is 4 MiB then
    options.maxQueuedSamples = 1000000;
    UsageHistory history(options);
    QCOMPARE(history.options().maxFileSize, limit);
    QRandomGenerator random(4);
    qint64 largest = 0;
    constexpr int printers = 100;
    // It is full after eleven days.
    constexpr int days = isSanitized ? 16 : 40;
    for (int day = 0; day < days; ++day) {
        const QDateTime morning = start.addDays(day);
        m_now = morning.toSecsSinceEpoch();
        for (int hour = 0; hour < 24; ++hour) {
            for (int printer = 0; printer < printers; ++printer) {
                // Some of them have a roll never seen before each time, which takes most room.
                const bool isWasteful = printer < 3;
                const int changes = isWasteful ? 10 : 2;
                for (int i = 0; i < changes; ++i) {
                    const QString identifier =
                        isWasteful ? QString::number(random.generate()) : QString::number(day / 7);
                    history.record(readingOf(QString::number(printer),
                                             levelOf(identifier, 30000 - 24 * day - hour - i)),
                                   morning.addSecs(3600 * hour + 360 * i));
                }
            }
        }
        QVERIFY(history.flush(QDeadlineTimer::Forever));
        largest = std::max(largest, sizeOfFiles());
    }
    QVERIFY2(largest <= limit, qPrintable(QString::number(largest)));
    QVERIFY2(largest > limit / 3, qPrintable(QString::number(largest))); // it was put to the test
    QCOMPARE(history.lostSamples(), 0);
    // What is new is there in full.
    const QDateTime lastDay = QDateTime::fromSecsSinceEpoch(m_now, Qt::UTC);
    QVERIFY(samples(QStringLiteral("name:50"), Slot::Supply, lastDay).size() >= 24);
}

// The file
// /////////////////////////////////////////////////////////////////////////////////////////

void UsageHistoryTest::readersReadWhileItIsWritten()
{
    constexpr int changes = 3000;
    UsageHistory history(options());
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    std::atomic<bool> isOver = false;
    std::array<std::atomic<int>, 3> reads{};
    std::array<QString, 3> faults;
    std::vector<std::thread> readers;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        readers.emplace_back([&, i] {
            qsizetype seen = 0;
            while (!isOver && faults.at(i).isEmpty()) {
                const UsageHistoryReader reader(m_fileName);
                const QList<UsageSample> found =
                    reader.samples(packingKey, Slot::Supply, QDateTime());
                if (!reader.errorString().isEmpty())
                    faults.at(i) = reader.errorString();
                else if (found.size() < seen)
                    faults.at(i) = QStringLiteral("it became shorter");
                for (qsizetype k = 0; k < found.size(); ++k) {
                    if (qRound(*found.at(k).meters * 1000) != 30000 - k)
                        faults.at(i) = QStringLiteral("a sample is wrong");
                }
                seen = found.size();
                ++reads.at(i);
            }
        });
    }
    bool isWritten = true;
    const auto everybodyHasRead = [&](int times) {
        return std::ranges::all_of(reads, [times](const auto& count) { return count >= times; }) ||
               std::ranges::any_of(faults, [](const QString& fault) { return !fault.isEmpty(); });
    };
    for (int number = 1; number < changes && isWritten; ++number) {
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - number)),
                       start.addSecs(number));
        if (number % 100 == 0)
            isWritten = history.flush(QDeadlineTimer::Forever);
    }
    isWritten = history.flush(QDeadlineTimer::Forever) && isWritten;
    const QDeadlineTimer end(patience);
    while (!everybodyHasRead(3) && !end.hasExpired())
        std::this_thread::yield();
    isOver = true;
    for (std::thread& reader : readers)
        reader.join();
    QVERIFY2(isWritten, qPrintable(history.errorString()));
    for (const QString& fault : faults)
        QCOMPARE(fault, QString());
    QVERIFY(everybodyHasRead(3));
    QCOMPARE(samples().size(), changes);
}

void UsageHistoryTest::secondWriterWaitsForTheFirst()
{
    std::optional<UsageHistory> first(std::in_place, options());
    first->record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    QVERIFY(first->flush(QDeadlineTimer::Forever));
    UsageHistory second(options());
    QSignalSpy failures(&second, &UsageHistory::writingFailed);
    QSignalSpy ends(&second, &UsageHistory::writingResumed);
    second.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)), start.addSecs(60));
    QVERIFY(!second.flush(QDeadlineTimer::Forever));
    QVERIFY(!second.flush(QDeadlineTimer::Forever));
    QVERIFY2(second.errorString().endsWith(QLatin1String(": another program is writing to it")),
             qPrintable(second.errorString()));
    QTRY_COMPARE(failures.size(), 1);
    first.reset();
    QVERIFY(second.flush(QDeadlineTimer::Forever));
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(second.lostSamples(), 0);
    QCOMPARE(texts(samples()), list({"0: 30000", "60: 29000"}));
}

void UsageHistoryTest::killedWriterLosesNothingThatWasWritten()
{
    constexpr int kills = 20;
    QRandomGenerator random(20261122);
    int written = -1;
    for (int i = 0; i < kills; ++i) {
        QProcess process;
        startProcess(process, testFile(VX_USAGE_HISTORY_CHILD),
                     {m_fileName, QString::number(written + 1)});
        QVERIFY(process.waitForStarted(patience));
        const int last = written + 7 * random.bounded(1, 30);
        QByteArray lines;
        while (written < last) {
            QVERIFY2(process.waitForReadyRead(patience),
                     process.readAllStandardError().constData());
            lines += process.readAllStandardOutput();
            const QList<QByteArray> numbers = lines.left(lines.lastIndexOf('\n')).split('\n');
            written = std::max(written, numbers.last().trimmed().toInt());
        }
        process.kill();
        QVERIFY(process.waitForFinished(patience));
        const QList<QByteArray> rest = (lines + process.readAllStandardOutput()).split('\n');
        if (rest.size() > 1)
            written = std::max(written, rest.at(rest.size() - 2).trimmed().toInt());

        const UsageHistoryReader reader(m_fileName);
        const QList<UsageSample> found = reader.samples(packingKey, Slot::Supply);
        QCOMPARE(reader.errorString(), QString());
        QVERIFY2(found.size() > written,
                 qPrintable(QStringLiteral("%1 of %2").arg(found.size()).arg(written)));
        for (int number = 0; number < found.size(); ++number) {
            QCOMPARE(found.at(number).identifier, QString::number(number / 100));
            QCOMPARE(qRound(*found.at(number).meters * 1000), 30000 - number % 100 * 100);
        }
        written = static_cast<int>(found.size()) - 1;
    }
    // Nothing had to be set aside.
    QCOMPARE(QDir(m_folder->path()).entryList({QStringLiteral("*damaged*")}).size(), 0);
}

void UsageHistoryTest::fullQueueDropsTheOldest()
{
    UsageHistoryOptions wanted = options();
    wanted.maxQueuedSamples = 16;
    std::optional<UsageHistory> first(std::in_place, options());
    QVERIFY(first->flush(QDeadlineTimer::Forever));
    UsageHistory second(wanted);
    QVERIFY(!second.flush(QDeadlineTimer::Forever));
    for (int number = 0; number < 100; ++number)
        second.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000 - number)),
                      start.addSecs(number));
    QVERIFY(!second.flush(QDeadlineTimer::Forever));
    QCOMPARE(second.lostSamples(), 84);
    first.reset();
    QVERIFY(second.flush(QDeadlineTimer::Forever));
    QCOMPARE(samples().size(), 16);
    QCOMPARE(texts(samples()).last(), QStringLiteral("99: 29901"));
    const QList<VxKit::UsageGap> gaps = UsageHistoryReader(m_fileName).gaps();
    QCOMPARE(gaps.size(), 1);
    QCOMPARE(gaps.first().samples, 84);
    QCOMPARE(gaps.first().since, start);
    QCOMPARE(gaps.first().until, start.addSecs(83));
}

void UsageHistoryTest::fullDiskIsCountedAndSaidOnce_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("times"); // that there is no room: what was in the log makes room again
    QTest::addColumn<int>("lost");  // -1: it depends
    QTest::newRow("no room at all") << 4096 << 1 << 3100 + 10 - 500;
    QTest::newRow("room for some more") << 200000 << -1 << -1;
}

void UsageHistoryTest::fullDiskIsCountedAndSaidOnce()
{
    QFETCH(const int, limit);
    QFETCH(const int, times);
    QFETCH(const int, lost);
#if defined(Q_OS_WIN)
    Q_UNUSED(limit)
    Q_UNUSED(times)
    Q_UNUSED(lost)
    QSKIP("a process cannot limit the size of its files there");
#else
    QProcess process;
    process.start(testFile(VX_USAGE_HISTORY_FULL_DISK), {m_fileName, QString::number(limit)});
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QList<QByteArray> lines = process.readAllStandardOutput().trimmed().split('\n');
    const QList<QByteArray> numbers = lines.takeLast().split(' ');
    QCOMPARE(numbers.size(), 2);
    const int recorded = numbers.at(0).toInt();
    const int dropped = numbers.at(1).toInt();
    QVERIFY(dropped > 0);
    // It is said once each time, and its end too.
    QVERIFY(!lines.isEmpty());
    for (qsizetype i = 0; i < lines.size(); ++i)
        QCOMPARE(lines.at(i), i % 2 == 0 ? QByteArray("failed") : QByteArray("resumed"));
    QCOMPARE(lines.size() % 2, 0);
    if (times >= 0)
        QCOMPARE(lines.size(), 2 * times);
    if (lost >= 0)
        QCOMPARE(dropped, lost);

    // What was not dropped is there once, in order, and what was is counted where it is missing.
    const UsageHistoryReader reader(m_fileName);
    const QList<UsageSegment> found = reader.segments();
    const QList<VxKit::UsageGap> gaps = reader.gaps();
    QCOMPARE(reader.errorString(), QString());
    qint64 missing = 0;
    for (const VxKit::UsageGap& gap : gaps) {
        missing += gap.samples;
        QCOMPARE(gap.since.secsTo(gap.until), 100 * (gap.samples - 1));
    }
    QCOMPARE(missing, dropped);
    QCOMPARE(found.size(), recorded - dropped);
    int last = -1;
    qint64 holes = 0;
    for (const UsageSegment& segment : found) {
        const int number = segment.identifier.toInt();
        QVERIFY(number > last);
        QCOMPARE(segment.metersLeft, (30000 - number) / 1000.0);
        holes += number - last - 1;
        last = number;
    }
    QCOMPARE(last, recorded - 1);
    QCOMPARE(holes, dropped);
#endif
}

void UsageHistoryTest::folderIsCreated()
{
    m_fileName = m_folder->filePath(QStringLiteral("one/two/history.db"));
    QVERIFY(recordMinutes({levelOf(QStringLiteral("roll"), 30000)}));
    QCOMPARE(samples().size(), 1);
}

void UsageHistoryTest::removedFileIsBegunAgain()
{
#if defined(Q_OS_WIN)
    QSKIP("a file that is open cannot be removed there");
#else
    UsageHistory history(options());
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    QVERIFY(history.flush(QDeadlineTimer::Forever));
    for (const char* suffix : {"", "-wal", "-shm"})
        QVERIFY(QFile::remove(m_fileName + QLatin1String(suffix)));
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 29000)), start.addSecs(60));
    QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
    QCOMPARE(texts(samples()), list({"60: 29000"}));
#endif
}

void UsageHistoryTest::damagedFileIsSetAside_data()
{
    QTest::addColumn<int>("at");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("newSize"); // -1: as it is
    QTest::newRow("its beginning") << 0 << QByteArray(100, 'x') << -1;
    QTest::newRow("the header behind the first words") << 16 << QByteArray(84, '\xff') << -1;
    QTest::newRow("all of the first page") << 0 << QByteArray(4096, '\0') << -1;
    QTest::newRow("another page") << 3 * 4096 << QByteArray(4096, '\x55') << -1;
    QTest::newRow("its end is missing") << 0 << QByteArray() << 5 * 4096;
    QTest::newRow("most of it is missing") << 0 << QByteArray() << 700;
    QTest::newRow("a text") << 0 << QByteArray("These are notes.\n") << 17;
}

void UsageHistoryTest::damagedFileIsSetAside()
{
    QFETCH(const int, at);
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, newSize);
    QList<Level> levels;
    for (int number = 0; number < 3000; ++number)
        levels.append(levelOf(QStringLiteral("roll"), 30000 - number));
    QVERIFY(recordMinutes(levels));
    QVERIFY(QFileInfo(m_fileName).size() > qint64(6) * 4096);
    {
        QFile file(m_fileName);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at));
        QCOMPARE(file.write(bytes), bytes.size());
        QVERIFY(newSize < 0 || file.resize(newSize));
    }
    const QByteArray damaged = contents(m_fileName);
    QVERIFY(UsageHistoryReader(m_fileName).errorString().contains(m_fileName));

    const QString aside = m_fileName + QStringLiteral(".damaged-1");
    {
        UsageHistory history(options());
        QSignalSpy spy(&history, &UsageHistory::fileSetAside);
        QSignalSpy failures(&history, &UsageHistory::writingFailed);
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 20000)), start);
        QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 19000)),
                       start.addSecs(60));
        QVERIFY(history.flush(QDeadlineTimer::Forever));
        QTRY_COMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(0).toString(), aside);
        QVERIFY(!spy.first().at(1).toString().isEmpty());
        QCOMPARE(failures.size(), 0);
        QCOMPARE(history.lostSamples(), 0);
    }
    QCOMPARE(contents(aside), damaged);
    QCOMPARE(texts(samples()), list({"0: 20000", "60: 19000"}));
}

void UsageHistoryTest::damageThatIsFoundLaterIsSetAsideToo()
{
#if defined(Q_OS_WIN)
    QSKIP("a file that is open cannot be renamed there");
#else
    UsageHistory history(options());
    QSignalSpy spy(&history, &UsageHistory::fileSetAside);
    // More than SQLite keeps in memory.
    constexpr int printers = 9000;
    for (int number = 0; number < printers; ++number)
        history.record(readingOf(QString::number(number), levelOf(QString::number(number), 30000)),
                       start);
    QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
    for (const char* suffix : {"", "-wal"}) {
        QFile file(m_fileName + QLatin1String(suffix));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray noise(file.size(), '\x55');
        QCOMPARE(file.write(noise), noise.size());
    }
    for (int number = 0; number < printers && spy.isEmpty(); number += 10) {
        history.record(readingOf(QString::number(number), levelOf(QString::number(number), 20000)),
                       start.addSecs(60));
        if (number % 500 == 0) {
            QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
            QCoreApplication::processEvents();
        }
    }
    QTRY_COMPARE(spy.size(), 1);
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
    QCOMPARE(texts(samples()), list({"0: 30000"}));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(history.lostSamples(), 0);
#endif
}

void UsageHistoryTest::setAsideFilesAreBounded()
{
    for (int round = 0; round < 12; ++round) {
        QVERIFY(writeFile(m_fileName, QByteArray("round ") + QByteArray::number(round)));
        QVERIFY(recordMinutes({levelOf(QStringLiteral("roll"), 30000)}));
    }
    const QStringList files =
        QDir(m_folder->path()).entryList({QStringLiteral("*damaged*")}, QDir::Files, QDir::Name);
    QCOMPARE(files.size(), 9);
    QCOMPARE(contents(m_fileName + QStringLiteral(".damaged-1")), QByteArray("round 0"));
    QCOMPARE(contents(m_fileName + QStringLiteral(".damaged-9")), QByteArray("round 11"));
}

void UsageHistoryTest::version1IsContinued()
{
    QCOMPARE(runStatements(m_fileName, version1 + version1Rows), QString());
    const QString key = QStringLiteral("S1");
    const auto check = [&](qsizetype count) {
        const QList<UsageSample> found = samples(key);
        return found.size() == count && found.at(0).time.toSecsSinceEpoch() == 1700000000 &&
               found.at(0).meters == 24.8 && found.at(1).time.toSecsSinceEpoch() == 1700000060 &&
               found.at(1).meters == 23.8;
    };
    QVERIFY(check(2)); // nobody has written to it yet
    m_now = 1700000120;
    {
        UsageHistory history(options());
        QSignalSpy spy(&history, &UsageHistory::fileSetAside);
        history.record(
            readingOf(QStringLiteral("New name"), levelOf(QStringLiteral("roll"), 20000), key),
            QDateTime::fromSecsSinceEpoch(1700000120, Qt::UTC));
        QVERIFY2(history.flush(QDeadlineTimer::Forever), qPrintable(history.errorString()));
        QCoreApplication::processEvents();
        QCOMPARE(spy.size(), 0);
    }
    QVERIFY(check(3));
    const QList<UsageSegment> rolls = segments();
    QCOMPARE(rolls.size(), 1);
    QCOMPARE(rolls.first().printerName, QStringLiteral("New name"));
    QCOMPARE(rolls.first().usedMeters, 4.8);
    QCOMPARE(rolls.first().usedLabels, 976 - 787);
}

void UsageHistoryTest::newerVersionIsLeftAsItIs()
{
    QStringList statements = version1 + version1Rows;
    statements.append(QStringLiteral("ALTER TABLE segment ADD COLUMN colour TEXT"));
    statements.append(QStringLiteral("PRAGMA user_version = 7"));
    QCOMPARE(runStatements(m_fileName, statements), QString());
    const QByteArray before = contents(m_fileName);
    const QString reason =
        m_fileName + QStringLiteral(": written by a newer version (its format is 7; "
                                    "this version knows formats up to 1)");
    QCOMPARE(UsageHistoryReader(m_fileName).errorString(), reason);
    {
        UsageHistory history(options());
        QSignalSpy spy(&history, &UsageHistory::fileSetAside);
        QSignalSpy failures(&history, &UsageHistory::writingFailed);
        history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
        QVERIFY(!history.flush(QDeadlineTimer::Forever));
        QVERIFY(!history.flush(QDeadlineTimer::Forever));
        QCOMPARE(history.errorString(), reason);
        QTRY_COMPARE(failures.size(), 1);
        QCOMPARE(spy.size(), 0);
    }
    QCOMPARE(contents(m_fileName), before);
}

void UsageHistoryTest::otherDatabaseIsLeftAsItIs()
{
    QCOMPARE(runStatements(m_fileName, {QStringLiteral("CREATE TABLE letters(text TEXT)")}),
             QString());
    const QByteArray before = contents(m_fileName);
    UsageHistory history(options());
    history.record(readingOf(packing, levelOf(QStringLiteral("roll"), 30000)), start);
    QVERIFY(!history.flush(QDeadlineTimer::Forever));
    QCOMPARE(history.errorString(), m_fileName + QStringLiteral(": a database of another program"));
    QCOMPARE(UsageHistoryReader(m_fileName).errorString(), history.errorString());
    QCOMPARE(contents(m_fileName), before);
}

void UsageHistoryTest::readerRefusesWhatIsNoHistory_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a view in place of a table")
        << list({"DROP TABLE gap",
                 "CREATE VIEW gap AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
                 "FROM n) SELECT i AS since, i AS until, i AS samples FROM n"})
        << QStringLiteral(": not the tables of a history");
    QTest::newRow("a trigger")
        << list({"CREATE TRIGGER t AFTER INSERT ON segment BEGIN DELETE FROM segment; END"})
        << QStringLiteral(": not the tables of a history");
    QTest::newRow("a table too few")
        << list({"DROP TABLE gap"}) << QStringLiteral(": not the tables of a history");
    QTest::newRow("an older format") << list({"DROP TABLE gap", "PRAGMA user_version = 0"})
                                     << QStringLiteral(": not the tables of a history");
}

void UsageHistoryTest::readerRefusesWhatIsNoHistory()
{
    QFETCH(const QStringList, statements);
    QFETCH(const QString, reason);
    QCOMPARE(runStatements(m_fileName, version1 + version1Rows + statements), QString());
    const UsageHistoryReader reader(m_fileName);
    QCOMPARE(reader.errorString(), m_fileName + reason);
    QVERIFY(!reader.isMissing());
    QCOMPARE(reader.gaps().size(), 0);
    QCOMPARE(reader.segments().size(), 0);

    const UsageHistoryReader missing(m_folder->filePath(QStringLiteral("none.db")));
    QVERIFY(missing.isMissing());
    QVERIFY(missing.errorString().endsWith(QLatin1String("none.db: no such file")));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("none.db"))));
    const UsageHistoryReader folder(m_folder->path());
    QVERIFY(!folder.isMissing());
    QCOMPARE(folder.errorString(), m_folder->path() + QStringLiteral(": not a file"));
}

// A file may have been made to be read wrongly, with a structure that is right.
void UsageHistoryTest::impossibleBytesAreNoSamples()
{
    QCOMPARE(
        runStatements(
            m_fileName,
            version1 + version1Rows +
                list({// The sample that is there, numbers without an end, a huge time.
                      "INSERT INTO chunk VALUES(1048577, 0, 0, x'80c49fd50cd086037880')",
                      "INSERT INTO chunk VALUES(1048578, 0, 0, x'ffffffffffffffffffffffffff')",
                      "INSERT INTO chunk VALUES(1048579, 0, 0, x'feffffffffffff7f00')",
                      "INSERT INTO chunk VALUES(1048580, 0, 0, zeroblob(1000000))",
                      QStringLiteral("INSERT INTO segment VALUES(2, 1, 99, 1, 9, 1, %1, 'x', %1, "
                                     "-%1, -%1, -5, 1e300)")
                          .arg(std::numeric_limits<qint64>::max())
                          .toLatin1()
                          .constData()})),
        QString());
    const UsageHistoryReader reader(m_fileName);
    QStringList lines;
    for (const UsageSample& sample : reader.samples(QStringLiteral("S1"), Slot::Supply))
        lines.append(QStringLiteral("%1: %2")
                         .arg(sample.time.toSecsSinceEpoch())
                         .arg(sample.meters.value_or(-1)));
    QCOMPARE(lines, list({"1700000000: 24.8", "1700000060: 23.8", "1700000000: 24.8", "0: 0",
                          "1700000060: 23.8"}));
    const QList<UsageSegment> rolls = reader.segments();
    QCOMPARE(rolls.size(), 2);
    QVERIFY(rolls.last().usedMeters.value_or(-1) >= 0);
    QVERIFY(rolls.last().from.isValid());
    QVERIFY(!rolls.last().days());
    QVERIFY(!rolls.last().usedLabels);
    QCOMPARE(reader.errorString(), QString());
}

QTEST_GUILESS_MAIN(UsageHistoryTest)
#include "tst_usage_history.moc"
