// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Events that wait on the disk for a broker.
#include "test_file.h"

#include <event_queue.h>
#include <patience.h>

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <algorithm>

namespace {

constexpr qint64 mebibyte = qint64(1024) * 1024;

QByteArray eventOf(int number)
{
    return "{\"n\":" + QByteArray::number(number) + '}';
}

QJsonObject objectOf(const QByteArray& event)
{
    return QJsonDocument::fromJson(event).object();
}

int numberOf(const QByteArray& event)
{
    return objectOf(event)[QStringLiteral("n")].toInt(-1);
}

} // namespace

class EventQueueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void eventsAreDeliveredInOrder();
    void anEventHasItsSessionAndNumber();
    void anEventWithoutMembersGetsThem();
    void eachRunIsASessionOfItsOwn();
    void whatIsNotDoneComesAgain();
    void whatIsDoneOutOfOrderWaitsForThoseBefore();
    void eventsOfEarlierRunsComeFirst();
    void whatWasDeliveredDoesNotComeAgainAfterARestart();
    void deliveredFilesAreRemoved();
    void theOldestAreDroppedAndReported();
    void aLossIsReportedInItsPlaceAndOnce();
    void aLossSurvivesARestart();
    void aLossThatGrowsOnItsWayIsReportedWhole();
    void whatIsOnItsWayIsNotReportedAsLost();
    void aDayWithoutABrokerStaysInItsBounds();
    void aDamagedLineIsPassedOver();
    void aTornEndIsPassedOver();
    void aDamagedPositionDeliversAgain();
    void aFolderIsUsedOnce();
    void othersMayNotReadTheEvents();
    void aFolderThatCannotBeUsedIsRefused();
    void aDiskThatCannotBeWrittenKeepsEventsInMemory();
    void killsLoseNothingThatWasAccepted();

private:
    [[nodiscard]] bool open();
    void reopen();
    void add(int from, int count);
    QList<int> takeAll();
    QString folder() const { return m_folder->path() + QLatin1String("/queue"); }
    QStringList files() const
    {
        return QDir(folder()).entryList({QStringLiteral("*.events")}, QDir::Files, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    EventQueueOptions m_options;
    std::unique_ptr<EventQueue> m_queue;
    QDateTime m_now;
    QString m_reason;
};

void EventQueueTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_now = QDateTime::fromSecsSinceEpoch(1780000000, Qt::UTC);
    m_options = {};
    m_options.folder = folder();
    m_options.clock = [this] {
        return m_now;
    };
    m_options.lossEvent = [](qint64 count, const QDateTime& since) {
        return "{\"lost\":" + QByteArray::number(count) +
               ",\"since\":" + QByteArray::number(since.toSecsSinceEpoch()) + '}';
    };
    QVERIFY(open());
}

void EventQueueTest::cleanup()
{
    m_queue.reset();
}

bool EventQueueTest::open()
{
    m_queue.reset();
    m_queue = std::make_unique<EventQueue>(m_options);
    return m_queue->open(&m_reason);
}

void EventQueueTest::reopen()
{
    QVERIFY2(open(), qPrintable(m_reason));
}

void EventQueueTest::add(int from, int count)
{
    for (int number = from; number < from + count; ++number)
        m_queue->add(eventOf(number));
    QVERIFY2(m_queue->flush(&m_reason), qPrintable(m_reason));
}

/// The numbers of all events, which are done; -1 for a loss.
QList<int> EventQueueTest::takeAll()
{
    QList<int> numbers;
    while (const auto entry = m_queue->next()) {
        numbers.append(numberOf(entry->event));
        m_queue->done(entry->number);
    }
    return numbers;
}

void EventQueueTest::eventsAreDeliveredInOrder()
{
    QVERIFY(m_queue->isEmpty());
    add(1, 3);
    QVERIFY(!m_queue->isEmpty());
    QCOMPARE(takeAll(), (QList{1, 2, 3}));
    QVERIFY(m_queue->isEmpty());
    add(4, 1);
    QCOMPARE(takeAll(), QList{4});
}

void EventQueueTest::anEventHasItsSessionAndNumber()
{
    add(7, 2);
    const auto first = m_queue->next();
    const auto second = m_queue->next();
    QVERIFY(first && second);
    const QJsonObject one = objectOf(first->event);
    const QJsonObject two = objectOf(second->event);
    QCOMPARE(one[QStringLiteral("n")].toInt(), 7);
    QCOMPARE(one[QStringLiteral("seq")].toInt(), 1);
    QCOMPARE(two[QStringLiteral("seq")].toInt(), 2);
    QVERIFY(!one[QStringLiteral("session")].toString().isEmpty());
    QCOMPARE(one[QStringLiteral("session")], two[QStringLiteral("session")]);
    QCOMPARE(first->time, m_now);
}

void EventQueueTest::anEventWithoutMembersGetsThem()
{
    m_queue->add("{}");
    QVERIFY(m_queue->flush(&m_reason));
    const auto entry = m_queue->next();
    QVERIFY(entry);
    QCOMPARE(objectOf(entry->event).keys(),
             (QStringList{QStringLiteral("seq"), QStringLiteral("session")}));
}

void EventQueueTest::eachRunIsASessionOfItsOwn()
{
    add(1, 1);
    reopen();
    add(2, 1);
    const auto first = m_queue->next();
    const auto second = m_queue->next();
    QVERIFY(first && second);
    QVERIFY(objectOf(first->event)[QStringLiteral("session")] !=
            objectOf(second->event)[QStringLiteral("session")]);
    QCOMPARE(objectOf(second->event)[QStringLiteral("seq")].toInt(), 1);
}

void EventQueueTest::whatIsNotDoneComesAgain()
{
    add(1, 3);
    const auto first = m_queue->next();
    QVERIFY(first && m_queue->next());
    m_queue->done(first->number);
    m_queue->rewind();
    QCOMPARE(takeAll(), (QList{2, 3}));
}

void EventQueueTest::whatIsDoneOutOfOrderWaitsForThoseBefore()
{
    add(1, 3);
    const auto first = m_queue->next();
    const auto second = m_queue->next();
    QVERIFY(first && second);
    m_queue->done(second->number);
    reopen();
    QCOMPARE(takeAll(), (QList{1, 2, 3}));
}

void EventQueueTest::eventsOfEarlierRunsComeFirst()
{
    add(1, 2);
    reopen();
    add(3, 2);
    reopen();
    add(5, 1);
    QCOMPARE(takeAll(), (QList{1, 2, 3, 4, 5}));
}

void EventQueueTest::whatWasDeliveredDoesNotComeAgainAfterARestart()
{
    add(1, 4);
    for (int i = 0; i < 3; ++i) {
        const auto entry = m_queue->next();
        QVERIFY(entry);
        m_queue->done(entry->number);
    }
    reopen();
    QCOMPARE(takeAll(), QList{4});
    reopen();
    QVERIFY(m_queue->isEmpty());
    QVERIFY(!m_queue->next());
}

void EventQueueTest::deliveredFilesAreRemoved()
{
    m_options.limit = 4 * mebibyte;
    reopen();
    for (int i = 0; i < 20; ++i)
        add(i * 1000, 1000);
    QVERIFY(files().size() > 5);
    takeAll();
    QVERIFY(files().size() <= 1);
    reopen();
    QCOMPARE(files().size(), 0);
}

void EventQueueTest::theOldestAreDroppedAndReported()
{
    m_options.limit = mebibyte;
    reopen();
    constexpr int count = 30000;
    for (int i = 0; i < count; i += 500)
        add(i, 500);
    QVERIFY(m_queue->dropped() > 0);
    QVERIFY(m_queue->bytesOnDisk() <= m_options.limit);
    const auto loss = m_queue->next();
    QVERIFY(loss);
    const qint64 lost = objectOf(loss->event)[QStringLiteral("lost")].toInteger();
    QCOMPARE(lost, m_queue->dropped());
    QCOMPARE(objectOf(loss->event)[QStringLiteral("since")].toInteger(), m_now.toSecsSinceEpoch());
    m_queue->done(loss->number);
    const QList<int> rest = takeAll();
    // What was dropped and what was delivered is everything, each once.
    QCOMPARE(rest.size() + lost, count);
    QCOMPARE(rest.first(), static_cast<int>(lost));
    QVERIFY(std::ranges::is_sorted(rest));
}

void EventQueueTest::aLossIsReportedInItsPlaceAndOnce()
{
    m_options.limit = mebibyte;
    reopen();
    for (int i = 0; i < 30000; i += 500)
        add(i, 500);
    const auto loss = m_queue->next();
    const auto following = m_queue->next();
    QVERIFY(loss && following);
    const QJsonObject lost = objectOf(loss->event);
    const QJsonObject next = objectOf(following->event);
    // It has the place of the last one that was dropped, just before the first that was not.
    QCOMPARE(lost[QStringLiteral("session")], next[QStringLiteral("session")]);
    QCOMPARE(lost[QStringLiteral("seq")].toInteger() + 1, next[QStringLiteral("seq")].toInteger());
    m_queue->done(loss->number);
    m_queue->rewind();
    const QList<int> rest = takeAll();
    QVERIFY(!rest.contains(-1));
}

void EventQueueTest::aLossSurvivesARestart()
{
    m_options.limit = mebibyte;
    reopen();
    for (int i = 0; i < 30000; i += 500)
        add(i, 500);
    const qint64 dropped = m_queue->dropped();
    reopen();
    const auto loss = m_queue->next();
    QVERIFY(loss);
    QCOMPARE(objectOf(loss->event)[QStringLiteral("lost")].toInteger(), dropped);
    m_queue->done(loss->number);
    reopen();
    QVERIFY(!takeAll().contains(-1));
}

void EventQueueTest::aLossThatGrowsOnItsWayIsReportedWhole()
{
    m_options.limit = mebibyte;
    reopen();
    int number = 0;
    const auto addUntilMoreIsDropped = [&] {
        for (const qint64 before = m_queue->dropped(); m_queue->dropped() == before; number += 500)
            add(number, 500);
    };
    addUntilMoreIsDropped();
    const auto first = m_queue->next();
    QVERIFY(first);
    addUntilMoreIsDropped();
    m_queue->done(first->number);
    const auto second = m_queue->next();
    QVERIFY(second);
    QCOMPARE(objectOf(first->event)[QStringLiteral("lost")].toInteger() +
                 objectOf(second->event)[QStringLiteral("lost")].toInteger(),
             m_queue->dropped());
}

/// Otherwise a reader that tells events apart by session and number would take the report for one
/// that it has.
void EventQueueTest::whatIsOnItsWayIsNotReportedAsLost()
{
    m_options.limit = mebibyte;
    reopen();
    int number = 0;
    for (; files().size() < 2; number += 10)
        add(number, 10);
    // All of the first file is on its way.
    QSet<qint64> sent;
    for (int i = 0; i < number; ++i) {
        const auto entry = m_queue->next();
        QVERIFY(entry);
        sent.insert(objectOf(entry->event)[QStringLiteral("seq")].toInteger());
    }
    while (m_queue->dropped() == 0) {
        add(number, 500);
        number += 500;
    }
    const auto loss = m_queue->next();
    QVERIFY(loss);
    QVERIFY(objectOf(loss->event).contains(QStringLiteral("lost")));
    QVERIFY(!sent.contains(objectOf(loss->event)[QStringLiteral("seq")].toInteger()));
}

/// 86400 events, one each second, as a plant with hundreds of printers would have.
void EventQueueTest::aDayWithoutABrokerStaysInItsBounds()
{
    m_options.limit = 2 * mebibyte;
    reopen();
    const QByteArray text(300, 'x');
    constexpr int day = 86400;
    qint64 largest = 0;
    for (int i = 0; i < day; ++i) {
        m_now = m_now.addSecs(1);
        m_queue->add("{\"n\":" + QByteArray::number(i) + R"(,"text":")" + text + "\"}");
        if (i % 600 == 599) {
            QVERIFY(m_queue->flush(&m_reason));
            qint64 onDisk = 0;
            for (const QFileInfo& file : QDir(folder()).entryInfoList(QDir::Files))
                onDisk += file.size();
            largest = std::max(largest, onDisk);
        }
    }
    // The two small files of positions come on top.
    QVERIFY2(largest <= m_options.limit + 4096, qPrintable(QString::number(largest)));
    const qint64 dropped = m_queue->dropped();
    const QList<int> rest = takeAll();
    QCOMPARE(rest.size() - 1 + dropped, day); // one of them is the loss
    QCOMPARE(rest.last(), day - 1);
}

void EventQueueTest::aDamagedLineIsPassedOver()
{
    add(1, 3);
    m_queue.reset();
    QFile file(folder() + u'/' + files().first());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace("\"n\":2", "\"n\":9");
    file.seek(0);
    file.write(text);
    file.close();
    reopen();
    QCOMPARE(takeAll(), (QList{1, 3}));
}

void EventQueueTest::aTornEndIsPassedOver()
{
    add(1, 3);
    m_queue.reset();
    QFile file(folder() + u'/' + files().first());
    QVERIFY(file.resize(file.size() - 5));
    reopen();
    add(4, 1);
    QCOMPARE(takeAll(), (QList{1, 2, 4}));
}

void EventQueueTest::aDamagedPositionDeliversAgain()
{
    add(1, 3);
    const auto entry = m_queue->next();
    QVERIFY(entry);
    m_queue->done(entry->number);
    m_queue.reset();
    QFile file(folder() + QLatin1String("/delivered"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("garbage");
    file.close();
    reopen();
    QCOMPARE(takeAll(), (QList{1, 2, 3}));
}

void EventQueueTest::aFolderIsUsedOnce()
{
    EventQueue second(m_options);
    QVERIFY(!second.open(&m_reason));
    QVERIFY2(m_reason.contains(QStringLiteral("another agent uses the folder")),
             qPrintable(m_reason));
    m_queue.reset();
    QVERIFY(second.open(&m_reason));
}

void EventQueueTest::othersMayNotReadTheEvents()
{
#ifdef Q_OS_UNIX
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    QCOMPARE(QFile::permissions(folder()) & others, QFile::Permissions());
#else
    QSKIP("Windows lets folders inherit who may read them");
#endif
}

void EventQueueTest::aFolderThatCannotBeUsedIsRefused()
{
    QFile file(m_folder->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    m_options.folder = file.fileName() + QLatin1String("/queue");
    QVERIFY(!open());
    QVERIFY2(m_reason.contains(m_options.folder), qPrintable(m_reason));
}

void EventQueueTest::aDiskThatCannotBeWrittenKeepsEventsInMemory()
{
    m_options.mostInMemory = 10;
    reopen();
    // Root may write every file, but not where there is a folder of that name.
    const QString firstFile = QStringLiteral("000000000001.events");
    QVERIFY(QDir(folder()).mkdir(firstFile));
    for (int i = 1; i <= 25; ++i)
        m_queue->add(eventOf(i));
    QVERIFY(!m_queue->flush(&m_reason));
    QVERIFY2(m_reason.contains(folder()), qPrintable(m_reason));
    QCOMPARE(m_queue->dropped(), 15);
    QVERIFY(!m_queue->isEmpty());

    QVERIFY(QDir(folder()).rmdir(firstFile));
    QVERIFY2(m_queue->flush(&m_reason), qPrintable(m_reason));
    const auto loss = m_queue->next();
    QVERIFY(loss);
    QCOMPARE(objectOf(loss->event)[QStringLiteral("lost")].toInt(), 15);
    QCOMPARE(objectOf(loss->event)[QStringLiteral("seq")].toInt(), 15);
    const QList<int> rest = takeAll();
    QCOMPARE(rest.size(), 10);
    QCOMPARE(rest.first(), 16);
}

void EventQueueTest::killsLoseNothingThatWasAccepted()
{
    m_queue.reset();
    QProcess child;
    int begin = 1;
    int lastAccepted = 0;
    int lastDelivered = 0;
    constexpr int kills = 20;
    for (int kill = 0; kill < kills; ++kill) {
        child.start(testFile(VX_EVENT_QUEUE_CHILD), {folder(), QString::number(begin)});
        QVERIFY(child.waitForStarted(patience));
        // At a different moment each time.
        const int until = begin + 5 + kill * 7 % 60;
        const auto take = [&](const QByteArray& line) {
            const QList<QByteArray> words = line.trimmed().split(' ');
            const int number = words.value(1).toInt();
            if (words.first() == "accepted") {
                lastAccepted = number;
                return true;
            }
            // In order; the last one may come once more after a kill.
            const bool isNext = number == lastDelivered + 1 || number == lastDelivered;
            lastDelivered = number;
            return isNext;
        };
        while (lastAccepted < until) {
            QVERIFY2(child.canReadLine() || child.waitForReadyRead(patience),
                     child.readAllStandardError());
            while (child.canReadLine()) {
                const QByteArray line = child.readLine();
                QVERIFY2(take(line), line + " after " + QByteArray::number(lastDelivered));
            }
        }
        child.kill();
        QVERIFY(child.waitForFinished(patience));
        while (child.canReadLine()) {
            const QByteArray line = child.readLine();
            QVERIFY2(take(line), line + " after " + QByteArray::number(lastDelivered));
        }
        QVERIFY(open());
        QList<int> waiting;
        while (const auto entry = m_queue->next())
            waiting.append(numberOf(entry->event));
        QVERIFY(!waiting.isEmpty());
        QVERIFY2(waiting.first() == lastDelivered || waiting.first() == lastDelivered + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(waiting.first()).arg(lastDelivered)));
        for (qsizetype i = 1; i < waiting.size(); ++i)
            QCOMPARE(waiting.at(i), waiting.at(i - 1) + 1);
        QVERIFY2(waiting.last() >= lastAccepted, qPrintable(QString::number(waiting.last())));
        // The child may have added one more than it could say.
        begin = waiting.last() + 1;
        m_queue.reset();
    }
}

QTEST_GUILESS_MAIN(EventQueueTest)
#include "tst_event_queue.moc"
