// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_test.h"
#include "test_file.h"
#include "test_files.h"

#include <supplydb_connection.h>
#include <supplydb_schema.h>

#include <QtCore/QDateTime>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>
#include <QtTest/QtTest>

#include <memory>

namespace {

/// Why a file cannot be opened; empty if it can.
QString failureOf(const QString& path)
{
    SupplyDbConnection connection;
    connection.setUp(path, QStringLiteral("fault"));
    return connection.open() ? QString() : connection.fault();
}

bool writeFileAt(const QString& path, const QByteArray& content, const QDateTime& time)
{
    if (!writeFile(path, content))
        return false;
    QFile file(path);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(time, QFileDevice::FileModificationTime);
}

} // namespace

class SupplyDbFilesTest : public SupplyDatabaseTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersNothingWithoutADatabaseFile_data();
    void answersNothingWithoutADatabaseFile();
    void answersNothingFromAFolder();
    void aForeignDatabaseIsRefused_data();
    void aForeignDatabaseIsRefused();
    void aDatabaseWithAWriteAheadLogIsRefused();
    void aFileOfOtherTablesIsRefused_data();
    void aFileOfOtherTablesIsRefused();
    void aFileThatIsTooLargeIsRefused();
    void readsAFileOfTheMaximumSize();
    void aChangedFileWithTheSameHeaderIsCheckedAgain();
    void tooLongAndTooManyRowsAreRefused_data();
    void tooLongAndTooManyRowsAreRefused();
    void readsAsManyRowsAsAreAllowed();
    void misplacedPagesAreRefused_data();
    void misplacedPagesAreRefused();
    void aTreeThatReachesAPageTwiceIsRefused();
    void aPictureThatReturnsToItsOwnPageIsRefused();
    void readsRowsOfEachLength_data();
    void readsRowsOfEachLength();
    void aFileOfAnotherEncodingIsRefused();
    void damagedFilesDoNoHarm();
    void readingChangesNoFile();
    void readsAReadOnlyFile();
    void readsAFileOfAnyName();
    void aChangedFileIsNoticedAtTheNextSetup();
    void aMissingFileIsNoticedAtTheNextSetup();
    void aFileThatAppearsLaterIsNoticed();
    void aFileThatIsRepairedIsNoticed();
    void anUnusableFileIsNotOpenedForEachQuery();
};

void SupplyDbFilesTest::answersNothingWithoutADatabaseFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isThere");

    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("short") << QByteArray("SQLite format 3\0", 16) << true;
    QTest::newRow("text") << QByteArray("sku,colour\n").repeated(100) << true;
    QTest::newRow("header only") << (QByteArray("SQLite format 3\0", 16) + QByteArray(84, '\0'))
                                 << true;
}

void SupplyDbFilesTest::answersNothingWithoutADatabaseFile()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isThere);
    const QString foreign = m_folder->filePath(QStringLiteral("foreign.db"));
    if (isThere)
        QVERIFY(writeFile(foreign, content));
    m_database->setup(foreign, connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QVERIFY(holdsNothing(*m_database));
    QCOMPARE(QFile::exists(foreign), isThere);
    if (isThere)
        QCOMPARE(contentOf(foreign), content);
    QCOMPARE(filesIn(m_folder->path()).size(), isThere ? 2 : 1);
}

void SupplyDbFilesTest::answersNothingFromAFolder()
{
    m_database->setup(m_folder->path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    m_database->setup(QString(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    m_database->setup(QStringLiteral(":memory:"), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
}

void SupplyDbFilesTest::aForeignDatabaseIsRefused_data()
{
    QTest::addColumn<QByteArray>("statement");

    QTest::newRow("of another application") << QByteArray("PRAGMA application_id = 7");
    QTest::newRow("newer") << QByteArray("PRAGMA user_version = 2");
    QTest::newRow("of no version") << QByteArray("PRAGMA user_version = 0");
}

void SupplyDbFilesTest::aForeignDatabaseIsRefused()
{
    QFETCH(QByteArray, statement);
    QVERIFY(TestConnection(path()).run(statement.constData()));
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QVERIFY(holdsNothing(*m_database));
}

// Reading one would create two files beside it.
void SupplyDbFilesTest::aDatabaseWithAWriteAheadLogIsRefused()
{
    m_database.reset();
    QVERIFY(TestConnection(path()).run("PRAGMA journal_mode = WAL"));
    m_database = std::make_unique<VXSupplyDatabase>();
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

void SupplyDbFilesTest::aFileOfOtherTablesIsRefused_data()
{
    QTest::addColumn<QByteArrayList>("changes");

    const auto row = [](const char* name, const QByteArrayList& changes) {
        QTest::newRow(name) << changes;
    };
    const QByteArray drop = "DROP TABLE print_setting";
    row("a missing table", {drop});
    row("an endless view",
        {drop, "CREATE VIEW print_setting AS WITH RECURSIVE n (heat) AS (SELECT 1 UNION ALL SELECT "
               "heat + 1 FROM n) SELECT heat, 0 AS heat_offset, 1 AS max_speed, 1 AS tension, "
               "'RIBBON-K' AS ribbon_sku, 1 AS panel, 'TAPE-1' AS supply_sku FROM n"});
    row("an extra view", {"CREATE VIEW other AS SELECT * FROM supply"});
    row("an extra table", {"CREATE TABLE other (id INTEGER)"});
    row("a table without its constraints",
        {drop, "CREATE TABLE print_setting (ribbon_sku TEXT, panel INTEGER, supply_sku TEXT, "
               "heat INTEGER, heat_offset INTEGER, max_speed INTEGER, tension INTEGER)"});
    row("a computed column", {"ALTER TABLE name ADD COLUMN copy TEXT AS (english || english)"});
    row("an index on an expression", {"CREATE INDEX other ON name (length(english))"});
    row("a trigger", {"CREATE TRIGGER other AFTER DELETE ON supply BEGIN SELECT 1; END"});
    row("statistics, which SQLite would use for planning", {"ANALYZE"});
}

void SupplyDbFilesTest::aFileOfOtherTablesIsRefused()
{
    QFETCH(QByteArrayList, changes);
    {
        const TestConnection other(path());
        for (const QByteArray& change : changes)
            QVERIFY(other.run(change.constData()));
    }
    QCOMPARE(failureOf(path()), QStringLiteral("its tables are not those of schema version 1"));
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QVERIFY(holdsNothing(*m_database));
}

void SupplyDbFilesTest::aFileThatIsTooLargeIsRefused()
{
    QVERIFY(QFile::resize(path(), supplydb_schema::maxFileBytes + 1));
    QCOMPARE(failureOf(path()), QStringLiteral("larger than 64 MiB"));
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
}

void SupplyDbFilesTest::readsAFileOfTheMaximumSize()
{
    QVERIFY(QFile::resize(path(), supplydb_schema::maxFileBytes));
    QCOMPARE(failureOf(path()), QString());
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
}

// Different databases of one program can have the same header and the same size.
void SupplyDbFilesTest::aChangedFileWithTheSameHeaderIsCheckedAgain()
{
    const QByteArray whole = contentOf(path());
    QByteArray damaged = whole;
    constexpr qsizetype kindOfPage2 = 4096;
    damaged[kindOfPage2] = 0;
    // Old enough for the result of the check to be cached.
    const QDateTime hourAgo = QDateTime::currentDateTime().addSecs(-3600);
    QVERIFY(writeFileAt(path(), whole, hourAgo));
    QCOMPARE(failureOf(path()), QString());
    QVERIFY(writeFileAt(path(), damaged, hourAgo.addSecs(60)));
    QCOMPARE(failureOf(path()), QStringLiteral("damaged: page 2 is not of the expected type"));
    QVERIFY(writeFileAt(path(), whole, hourAgo.addSecs(120)));
    QCOMPARE(failureOf(path()), QString());
}

void SupplyDbFilesTest::tooLongAndTooManyRowsAreRefused_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("fault");

    const QByteArray numbers = "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM "
                               "n WHERE i <= 16384) ";
    QTest::newRow("a long name")
        << QByteArray("UPDATE name SET english = printf('%.*c', 10000000, 'x') WHERE id = 1")
        << QStringLiteral("a row of more than 2048 bytes in name");
    QTest::newRow("a long key")
        << QByteArray("UPDATE colour SET key = printf('%.*c', 3000, 'x') WHERE id = 1")
        << QStringLiteral("a row of more than 2048 bytes in colour");
    QTest::newRow("a large picture")
        << QByteArray("UPDATE background SET image = zeroblob(300000)")
        << QStringLiteral("a row of more than 264192 bytes in background");
    QTest::newRow("many supplies")
        << numbers + "INSERT INTO supply SELECT 'S' || i, 7, 1, 1, NULL, NULL, 1, 1, NULL, "
                     "NULL, 1, NULL, 1, NULL FROM n"
        << QStringLiteral("more than 16384 rows in supply");
    QTest::newRow("many ribbons") << numbers +
                                         "INSERT INTO ribbon SELECT 'R' || i, 'wax', 1, 1 FROM n"
                                  << QStringLiteral("more than 16384 rows in ribbon");
    QTest::newRow("many models") << numbers +
                                        "INSERT INTO printer_format SELECT 'P' || i, 0, 1 FROM n"
                                 << QStringLiteral("more than 16384 rows in printer_format");
}

void SupplyDbFilesTest::tooLongAndTooManyRowsAreRefused()
{
    QFETCH(QByteArray, change);
    {
        const TestConnection other(path());
        QVERIFY(other.run("PRAGMA ignore_check_constraints = ON"));
        QVERIFY(other.run(change.constData()));
    }
    QTEST(failureOf(path()), "fault");
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QVERIFY(holdsNothing(*m_database));
}

void SupplyDbFilesTest::readsAsManyRowsAsAreAllowed()
{
    {
        const TestConnection other(path());
        QVERIFY(other.run("WITH RECURSIVE n (i) AS (SELECT 4 UNION ALL SELECT i + 1 FROM n "
                          "WHERE i < 16384) INSERT INTO supply SELECT 'S' || i, 7, 1, 1, NULL, "
                          "NULL, 1, 1, NULL, NULL, 1, NULL, 1, NULL FROM n"));
        QVERIFY(other.run("UPDATE name SET english = printf('%.*c', 200, char(128512)) "
                          "WHERE id = 1"));
        QVERIFY(other.run("UPDATE background SET image = zeroblob(262144)"));
    }
    QCOMPARE(failureOf(path()), QString());
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplySKUList().size(), 16384);
    QCOMPARE(m_database->supplyColorName(tape).toUcs4().size(), 200);
    QCOMPARE(m_database->supplyBackgroundImage(tape).size(), 262144);
}

// A tree that reaches a page twice can have endless rows on a few pages.
void SupplyDbFilesTest::misplacedPagesAreRefused_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("fault");

    const auto root = [](const char* table) {
        return QByteArray("(SELECT rootpage FROM sqlite_schema WHERE name = '") + table + "')";
    };
    const QByteArray update = "UPDATE sqlite_schema SET rootpage = ";
    QTest::newRow("two tables on one page") << update + root("name") + " WHERE name = 'material'"
                                            << QStringLiteral("page 4 is used twice");
    QTest::newRow("a table on no page") << QByteArray(update + "0 WHERE name = 'name'")
                                        << QStringLiteral("page 0 is not in the file");
    QTest::newRow("a table beyond the end of the file")
        << QByteArray(update + "999 WHERE name = 'name'")
        << QStringLiteral("page 999 is not in the file");
    QTest::newRow("a table that is stored like an index")
        << update + root("translation") + " WHERE name = 'name'"
        << QStringLiteral("page 5 is not of the expected type");
}

void SupplyDbFilesTest::misplacedPagesAreRefused()
{
    QFETCH(QByteArray, change);
    QFETCH(QString, fault);
    {
        const TestConnection other(path());
        QVERIFY(other.run("PRAGMA writable_schema = ON"));
        QVERIFY(other.run(change.constData()));
    }
    QCOMPARE(failureOf(path()), QStringLiteral("damaged: ") + fault);
    m_database->setup(path(), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
}

void SupplyDbFilesTest::aTreeThatReachesAPageTwiceIsRefused()
{
    const QString sample = m_folder->filePath(QStringLiteral("sample.db"));
    writeDatabase(readCatalogueDirectory(testFile(VX_SAMPLE_CATALOGUE)), sample);
    QCOMPARE(failureOf(sample), QString());
    constexpr qsizetype pageSize = 4096;
    qsizetype root = 0;
    {
        const TestConnection other(sample);
        QSqlQuery query(other.database());
        QVERIFY(query.exec(
            QStringLiteral("SELECT rootpage FROM sqlite_schema WHERE name = 'print_setting'")));
        QVERIFY(query.next());
        root = query.value(0).toInt();
    }
    QByteArray bytes = contentOf(sample);
    // Makes the last child page the same as the first.
    const qsizetype page = (root - 1) * pageSize;
    QCOMPARE(bytes.at(page), '\x02');
    const qsizetype firstCell =
        static_cast<quint8>(bytes.at(page + 12)) * 256 + static_cast<quint8>(bytes.at(page + 13));
    bytes.replace(page + 8, 4, bytes.sliced(page + firstCell, 4));
    QVERIFY(writeFile(sample, bytes));
    QVERIFY2(failureOf(sample).endsWith(QStringLiteral(" is used twice")),
             qPrintable(failureOf(sample)));
}

// Pictures are not read when a file is opened, but their pages are checked.
void SupplyDbFilesTest::aPictureThatReturnsToItsOwnPageIsRefused()
{
    QVERIFY(TestConnection(path()).run("UPDATE background SET image = zeroblob(262144)"));
    QCOMPARE(failureOf(path()), QString());
    QByteArray bytes = contentOf(path());
    constexpr qsizetype pageSize = 4096;
    // The file ends with the picture's pages. Each begins with the number of the next page.
    const qsizetype page = bytes.size() / pageSize - 2;
    QByteArray number(4, '\0');
    qToBigEndian(static_cast<quint32>(page), number.data());
    bytes.replace((page - 1) * pageSize, number.size(), number);
    QVERIFY(writeFile(path(), bytes));
    QCOMPARE(failureOf(path()), QStringLiteral("damaged: page %1 is used twice").arg(page));
}

// One byte decides how much of a row is stored on its own page and how much on further pages.
void SupplyDbFilesTest::readsRowsOfEachLength_data()
{
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("greatest");

    QTest::newRow("small pages") << 512 << 1 << 1200;
    QTest::newRow("usual pages") << 4096 << 3900 << 4200;
    QTest::newRow("the largest pages") << 65536 << 65480 << 65520;
}

void SupplyDbFilesTest::readsRowsOfEachLength()
{
    QFETCH(const int, pageSize);
    QFETCH(const int, least);
    QFETCH(const int, greatest);
    {
        const TestConnection other(path());
        const QByteArray size = "PRAGMA page_size = " + QByteArray::number(pageSize);
        QVERIFY(other.run(size.constData()));
        QVERIFY(other.run("VACUUM"));
        // The file names are also stored in an index.
        const QByteArray rows =
            "WITH RECURSIVE n (i) AS (SELECT " + QByteArray::number(least) +
            " UNION ALL SELECT i + 1 FROM n WHERE i < " + QByteArray::number(greatest) +
            ") INSERT INTO background SELECT 1000 + i, printf('%0*d', 4 + i % 197, i), "
            "zeroblob(i) FROM n";
        QVERIFY(other.run(rows.constData()));
    }
    QCOMPARE(failureOf(path()), QString());
}

void SupplyDbFilesTest::aFileOfAnotherEncodingIsRefused()
{
    QByteArray bytes = contentOf(path());
    constexpr qsizetype lastByteOfTheEncoding = 59;
    bytes[lastByteOfTheEncoding] = 2;
    QVERIFY(writeFile(path(), bytes));
    QCOMPARE(failureOf(path()), QStringLiteral("its texts are not UTF-8"));
}

// Every query returns, whatever its answer. Our own check finds some of the damage, and SQLite
// finds or ignores the rest.
void SupplyDbFilesTest::damagedFilesDoNoHarm()
{
    const QByteArray whole = contentOf(path());
    int opened = 0;
    constexpr quint32 seeds = 200;
    for (quint32 seed = 1; seed <= seeds; ++seed) {
        QRandomGenerator random(seed);
        QByteArray bytes = whole;
        // The header stays valid so that the rest is read.
        for (quint32 i = 0; i < 1 + seed % 16; ++i)
            bytes[random.bounded(100, static_cast<int>(bytes.size()))] =
                static_cast<char>(random.bounded(256));
        if (seed % 16 == 0)
            bytes.truncate(random.bounded(100, static_cast<int>(bytes.size())));
        const QString damaged = m_folder->filePath(QStringLiteral("damaged.db"));
        QVERIFY(writeFile(damaged, bytes));
        m_database->setup(damaged, connectionName);
        m_database->setSupplyId(tapeId);
        m_database->setRibbonIds({QStringLiteral("2001"), QStringLiteral("2003")});
        for (const QString& sku : {tape, label, spare}) {
            for (const QString& ribbon : {ribbonK, ribbonRK, ribbonT})
                knowsNothing(*m_database, sku, ribbon);
        }
        holdsNothing(*m_database);
        m_database->supplyRibbon1RGBs();
        QCOMPARE(contentOf(damaged), bytes);
        opened += QSqlDatabase::contains(connectionName) ? 1 : 0;
    }
    QVERIFY(opened > 0);
    QVERIFY(opened < static_cast<int>(seeds));

    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplySKU(), tape);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
}

void SupplyDbFilesTest::readingChangesNoFile()
{
    const QByteArray before = contentOf(path());
    QVERIFY(!knowsNothing(*m_database, tape, ribbonK));
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
    m_database.reset();
    QCOMPARE(contentOf(path()), before);
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

void SupplyDbFilesTest::readsAReadOnlyFile()
{
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner));
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
    m_database.reset();
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner));
}

void SupplyDbFilesTest::readsAFileOfAnyName()
{
    const QString name = m_folder->filePath(QStringLiteral("Rollen #1 ラベル é.db"));
    QVERIFY(QFile::copy(path(), name));
    m_database->setup(name, QStringLiteral("Etikettendrucker é_CONNECTION_NAME"));
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
}

// Also shows that reading leaves no lock on the file.
void SupplyDbFilesTest::aChangedFileIsNoticedAtTheNextSetup()
{
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    QCOMPARE(m_database->supplySKUList().size(), 3);
    {
        const TestConnection other(path());
        QVERIFY(other.run("UPDATE colour SET rgb = 1 WHERE key = 'white'"));
        QVERIFY(other.run("DELETE FROM supply WHERE sku = 'SPARE-1'"));
    }
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    QCOMPARE(m_database->supplySKUList().size(), 3);
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplyColorRGB(tape), 1);
    QCOMPARE(m_database->supplySKUList().size(), 2);
}

void SupplyDbFilesTest::aMissingFileIsNoticedAtTheNextSetup()
{
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    m_database->setup(m_folder->filePath(QStringLiteral("gone.db")), connectionName);
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QVERIFY(!QSqlDatabase::contains(connectionName));
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
}

void SupplyDbFilesTest::aFileThatAppearsLaterIsNoticed()
{
    const QString late = m_folder->filePath(QStringLiteral("late.db"));
    m_database->setup(late, connectionName);
    m_database->setSupplyId(tapeId);
    QCOMPARE(m_database->supplySKU(), QString());
    QVERIFY(QFile::copy(path(), late));
    QTRY_COMPARE(m_database->supplySKU(), tape);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
}

void SupplyDbFilesTest::aFileThatIsRepairedIsNoticed()
{
    const QByteArray whole = contentOf(path());
    QVERIFY(writeFile(path(), whole.first(5000)));
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplyColorName(tape), QString());
    QVERIFY(writeFile(path(), whole));
    QTRY_COMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
}

void SupplyDbFilesTest::anUnusableFileIsNotOpenedForEachQuery()
{
    const QString late = m_folder->filePath(QStringLiteral("late.db"));
    QElapsedTimer timer;
    timer.start();
    m_database->setup(late, connectionName);
    QCOMPARE(m_database->supplyColorRGB(tape), -1);
    QVERIFY(QFile::copy(path(), late));
    const int rgb = m_database->supplyColorRGB(tape);
    if (timer.hasExpired(SupplyDbConnection::retryInterval.count()))
        QSKIP("the two queries took longer than the interval between attempts");
    QCOMPARE(rgb, -1);
}

QTEST_GUILESS_MAIN(SupplyDbFilesTest)
#include "tst_supplydb_files.moc"
