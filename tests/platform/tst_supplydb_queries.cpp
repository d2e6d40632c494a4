// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_test.h"

#include <cached_query.h>
#include <lock_waiter.h>

#include <QtCore/QSemaphore>
#include <QtTest/QtTest>

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace {

/// Locks a file, on its own thread, until the object is destroyed or the time has passed.
class Locker
{
public:
    Locker(const QString& path, int milliseconds)
        : m_thread([this, path, milliseconds] {
            const TestConnection other(path, QStringLiteral("locker"));
            m_hasLocked = other.run("BEGIN EXCLUSIVE");
            m_isDone.release();
            m_mayUnlock.tryAcquire(1, milliseconds);
            m_hasLocked = m_hasLocked && other.run("ROLLBACK");
        })
    {
        m_isDone.acquire();
    }
    ~Locker()
    {
        m_mayUnlock.release();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(Locker)

    bool hasLocked() const { return m_hasLocked; }

private:
    QSemaphore m_isDone;
    QSemaphore m_mayUnlock;
    std::atomic<bool> m_hasLocked = false;
    std::thread m_thread;
};

/// Replaces this thread's clock for locks by one that only advances when the thread waits for a
/// locked file.
class SteppedClock
{
public:
    using Milliseconds = LockWaiter::Milliseconds;

    explicit SteppedClock(const std::function<void()>& onSleep = [] {})
    {
        now = Milliseconds{0};
        sleepHook = onSleep;
        LockWaiter::ofThisThread() = LockWaiter({[] { return now; },
                                                 [](Milliseconds duration) {
                                                     now += duration;
                                                     sleepHook();
                                                 }});
    }
    ~SteppedClock()
    {
        LockWaiter::ofThisThread() = LockWaiter();
        sleepHook = {};
    }
    Q_DISABLE_COPY_MOVE(SteppedClock)

    static inline Milliseconds now{0};

private:
    static inline std::function<void()> sleepHook;
};

void readText(const QSqlQuery& row, QString& text)
{
    text = row.value(0).toString();
}

} // namespace

class SupplyDbQueriesTest : public SupplyDatabaseTest
{
    Q_OBJECT

private Q_SLOTS:
    void aLockedFileIsQueriedAgain();
    void aTemporaryLockLosesNoSku();
    void waitsForATemporaryLock();
    void waitsForALockedFileOnceASecond();
    void recognisesEachErrorCodeOfALock_data();
    void recognisesEachErrorCodeOfALock();
    void givesUpOnAFileThatStaysLocked();
    void cachesNoMoreAnswersThanItsCapacity();
    void readsAllKeysAtTheSecondMiss();
    void doesNotCacheAnAnswerAboveTheCapacity();
    void aFailureDoesNotReturnAnotherKeysAnswer();
    void doesNotCacheAPartialAnswer();
    void doesNotCacheAFailure();
};

// A value that could not be read must not be mistaken for one that does not exist.
void SupplyDbQueriesTest::aLockedFileIsQueriedAgain()
{
    const TestConnection other(path());
    QVERIFY(other.run("BEGIN EXCLUSIVE"));
    QCOMPARE(m_database->supplyColorRGB(tape), -1);
    QVERIFY(other.run("ROLLBACK"));
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
}

void SupplyDbQueriesTest::aTemporaryLockLosesNoSku()
{
    m_database->setSupplyId(tapeId);
    m_database->setRibbonIds({QStringLiteral("2001")});
    {
        const TestConnection other(path());
        QVERIFY(other.run("BEGIN EXCLUSIVE"));
        QCOMPARE(m_database->supplySKU(), QString());
        QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{QString()});
        QVERIFY(other.run("ROLLBACK"));
    }
    QCOMPARE(m_database->supplySKU(), tape);
    QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{ribbonK});
}

void SupplyDbQueriesTest::waitsForATemporaryLock()
{
    const TestConnection other(path());
    QVERIFY(other.run("BEGIN EXCLUSIVE"));
    int sleeps = 0;
    const SteppedClock time([&other, &sleeps] {
        if (++sleeps == 3)
            other.run("ROLLBACK");
    });
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    QCOMPARE(sleeps, 3);
}

void SupplyDbQueriesTest::waitsForALockedFileOnceASecond()
{
    using namespace std::chrono_literals;
    const TestConnection other(path());
    QVERIFY(other.run("BEGIN EXCLUSIVE"));
    const SteppedClock time;
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QCOMPARE(SteppedClock::now, 100ms);
    SteppedClock::now += 999ms;
    VXSupplyDatabase second; // shares the limit: it is on the same thread
    second.setup(path(), QStringLiteral("second"));
    QVERIFY(knowsNothing(second, tape, ribbonK));
    QCOMPARE(SteppedClock::now, 1099ms);
    SteppedClock::now += 1ms;
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
    QCOMPARE(SteppedClock::now, 1200ms);
}

// SQLite's result codes: https://www.sqlite.org/rescode.html.
void SupplyDbQueriesTest::recognisesEachErrorCodeOfALock_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isLock");

    QTest::newRow("SQLITE_BUSY") << 5 << true;
    QTest::newRow("SQLITE_LOCKED") << 6 << true;
    QTest::newRow("SQLITE_BUSY_RECOVERY") << 261 << true;
    QTest::newRow("SQLITE_LOCKED_SHAREDCACHE") << 262 << true;
    QTest::newRow("SQLITE_BUSY_TIMEOUT") << 773 << true;
    QTest::newRow("SQLITE_ERROR") << 1 << false;
    QTest::newRow("SQLITE_NOMEM") << 7 << false;
    QTest::newRow("SQLITE_IOERR_READ") << 266 << false;
}

void SupplyDbQueriesTest::recognisesEachErrorCodeOfALock()
{
    QFETCH(const int, code);
    const QSqlError error({}, {}, QSqlError::StatementError, QString::number(code));
    QTEST(LockWaiter::isLocked(error), "isLock");
}

// The file stays locked long after the limit. A query that waited for it to the end would get an
// answer.
void SupplyDbQueriesTest::givesUpOnAFileThatStaysLocked()
{
    constexpr int lockedFor = 3000;
    const Locker locker(path(), lockedFor);
    QVERIFY(locker.hasLocked());
    QVERIFY(knowsNothing(*m_database, tape, ribbonK));
}

void SupplyDbQueriesTest::cachesNoMoreAnswersThanItsCapacity()
{
    const TestConnection other(path());
    CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                    readText, 2);
    const auto answer = [&](int id) {
        return query.answer(other.database(), id, id);
    };
    QCOMPARE(answer(1), QStringLiteral("White"));
    QCOMPARE(answer(2), QStringLiteral("Red"));
    QVERIFY(other.run("UPDATE name SET english = 'new'"));
    QCOMPARE(answer(1), QStringLiteral("White"));
    QCOMPARE(answer(3), QStringLiteral("new")); // replaces 2, the least recently used one
    QCOMPARE(answer(1), QStringLiteral("White"));
    QCOMPARE(answer(2), QStringLiteral("new"));
    query.clear();
    QCOMPARE(answer(1), QStringLiteral("new"));
}

void SupplyDbQueriesTest::readsAllKeysAtTheSecondMiss()
{
    const TestConnection other(path());
    CachedQuery<int, QString> query(
        QStringLiteral("SELECT english FROM name WHERE id = ?"), readText, 4,
        {QStringLiteral("SELECT english, id FROM name ORDER BY id DESC"), [](const QSqlQuery& row) {
             return row.value(1).toInt();
         }});
    const auto answer = [&](int id) {
        return query.answer(other.database(), id, id);
    };
    QVERIFY(other.run("UPDATE name SET english = 'name ' || id"));
    const int last = 8; // colours, materials and formats
    QCOMPARE(answer(last), QStringLiteral("name 8"));
    QVERIFY(other.run("UPDATE name SET english = 'new ' || id"));
    QCOMPARE(answer(last), QStringLiteral("name 8")); // one miss did not read all
    QCOMPARE(answer(last - 1), QStringLiteral("new 7"));
    QVERIFY(other.run("UPDATE name SET english = 'newer ' || id"));
    QCOMPARE(answer(last), QStringLiteral("name 8")); // cached answers stay
    QCOMPARE(answer(last - 3), QStringLiteral("new 5"));
    QCOMPARE(answer(last - 4), QStringLiteral("newer 4")); // the capacity is four
    QCOMPARE(answer(99), QString());
}

void SupplyDbQueriesTest::doesNotCacheAnAnswerAboveTheCapacity()
{
    const TestConnection other(path());
    CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                    readText, 4, [](const QString& text) { return text.size(); });
    const auto answer = [&](int id) {
        return query.answer(other.database(), id, id);
    };
    QCOMPARE(answer(1), QStringLiteral("White"));
    QCOMPARE(answer(2), QStringLiteral("Red"));
    QVERIFY(other.run("UPDATE name SET english = 'new'"));
    QCOMPARE(answer(2), QStringLiteral("Red"));
    QCOMPARE(answer(1), QStringLiteral("new"));
}

void SupplyDbQueriesTest::aFailureDoesNotReturnAnotherKeysAnswer()
{
    const TestConnection other(path());
    CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                    readText, 4, [](const QString& text) { return text.size(); });
    // Above the capacity.
    QCOMPARE(query.answer(other.database(), 1, 1), QStringLiteral("White"));
    QVERIFY(other.run("ALTER TABLE name RENAME TO former_name"));
    QCOMPARE(query.answer(other.database(), 2, 2), QString());
}

void SupplyDbQueriesTest::doesNotCacheAPartialAnswer()
{
    const TestConnection other(path());
    QVERIFY(other.run("CREATE TABLE remark (id INTEGER PRIMARY KEY, number INTEGER)"));
    QVERIFY(other.run("INSERT INTO remark VALUES (1, 5), (2, -9223372036854775807 - 1)"));
    // Reading the second row fails: its number has no absolute value.
    CachedQuery<int, QStringList> query(
        QStringLiteral("SELECT abs(number) FROM remark WHERE id >= ? ORDER BY id"),
        [](const QSqlQuery& row, QStringList& numbers) { numbers.append(row.value(0).toString()); },
        2);
    const auto answer = [&] {
        return query.answer(other.database(), 1, 1);
    };
    QCOMPARE(answer(), QStringList());
    QVERIFY(other.run("UPDATE remark SET number = -7 WHERE id = 2"));
    QCOMPARE(answer(), (QStringList{QStringLiteral("5"), QStringLiteral("7")}));
}

void SupplyDbQueriesTest::doesNotCacheAFailure()
{
    const TestConnection other(path());
    CachedQuery<int, QString> query(QStringLiteral("SELECT text FROM remark WHERE id = ?"),
                                    readText, 2);
    QCOMPARE(query.answer(other.database(), 1, 1), QString());
    QVERIFY(other.run("CREATE TABLE remark (id INTEGER PRIMARY KEY, text TEXT)"));
    QVERIFY(other.run("INSERT INTO remark VALUES (1, 'here')"));
    QCOMPARE(query.answer(other.database(), 1, 1), QStringLiteral("here"));
}

QTEST_GUILESS_MAIN(SupplyDbQueriesTest)
#include "tst_supplydb_queries.moc"
