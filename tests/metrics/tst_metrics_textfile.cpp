// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "patience.h"

#include <metrics_textfile.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QtTest>

#include <atomic>

using namespace std::chrono_literals;

class MetricsTextfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAtOnceAndAgain();
    void othersMayReadIt();
    void alwaysHasACompleteText();
    void leavesNothingBehind();
    void failureIsToldOnceAndMended();
    void doesNotReplaceWhatIsNoFile();

private:
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

void MetricsTextfileTest::writesAtOnceAndAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vx.prom"));
    int texts = 0;
    MetricsTextfile file(
        path, [&texts] { return QByteArray::number(++texts); }, 1ms);
    QVERIFY(!QFile::exists(path));
    file.start();
    QCOMPARE(contentOf(path), QByteArray("1"));
    QTRY_VERIFY(contentOf(path).toInt() >= 3);
}

void MetricsTextfileTest::othersMayReadIt()
{
#ifdef Q_OS_WIN
    QSKIP("Who may read a file is not in its permissions here");
#endif
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vx.prom"));
    MetricsTextfile file(
        path, [] { return QByteArray("text"); }, 1h);
    file.start();
    QVERIFY(QFile::permissions(path).testFlag(QFile::ReadOther));
}

void MetricsTextfileTest::alwaysHasACompleteText()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vx.prom"));
    // Windows does not promise that a file can be opened at the moment when it is replaced. Under
    // Wine it could not, in one of thousands of attempts. A collector reads it the next time then.
#ifdef Q_OS_WIN
    constexpr bool mayBeClosedToReaders = true;
#else
    constexpr bool mayBeClosedToReaders = false;
#endif
    constexpr qsizetype size = 200000;
    char letter = 'a';
    MetricsTextfile file(
        path,
        [&letter] {
            letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1);
            return QByteArray(size, letter) + '\n';
        },
        0ms);
    file.start();

    std::atomic<int> complete = 0;
    std::atomic<int> damaged = 0;
    std::atomic<bool> isOver = false;
    const std::unique_ptr<QThread> reader(QThread::create([&] {
        while (!isOver) {
            QFile read(path);
            if (!read.open(QFile::ReadOnly)) {
                if (!mayBeClosedToReaders)
                    ++damaged;
                continue;
            }
            const QByteArray text = read.readAll();
            const bool isWhole = text.size() == size + 1 && text.count(text.front()) == size;
            ++(isWhole ? complete : damaged);
        }
    }));
    reader->start();
    constexpr int enough = 300;
    const bool isRead = QTest::qWaitFor([&] { return complete + damaged >= enough; }, patience);
    isOver = true;
    reader->wait();
    QVERIFY(isRead);
    QCOMPARE(damaged.load(), 0);
}

void MetricsTextfileTest::leavesNothingBehind()
{
    const QTemporaryDir folder;
    {
        MetricsTextfile file(
            folder.filePath(QStringLiteral("vx.prom")), [] { return QByteArray("text"); }, 1h);
        file.start();
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("vx.prom")});
    }
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

void MetricsTextfileTest::failureIsToldOnceAndMended()
{
    const QTemporaryDir folder;
    const QString inner = folder.filePath(QStringLiteral("inner"));
    const QString path = inner + QStringLiteral("/vx.prom");
    int attempts = 0;
    MetricsTextfile file(
        path,
        [&attempts] {
            ++attempts;
            return QByteArray("text");
        },
        1ms);
    QStringList reasons;
    int resumed = 0;
    connect(&file, &MetricsTextfile::writingFailed, this,
            [&reasons](const QString& reason) { reasons.append(reason); });
    connect(&file, &MetricsTextfile::writingResumed, this, [&resumed] { ++resumed; });
    file.start();
    QTRY_VERIFY(attempts >= 5);
    QCOMPARE(reasons.size(), 1);
    QVERIFY2(reasons.first().startsWith(path + QStringLiteral(": ")), qPrintable(reasons.first()));
    QVERIFY(QDir().mkdir(inner));
    QTRY_COMPARE(resumed, 1);
    QCOMPARE(contentOf(path), QByteArray("text"));
    QCOMPARE(reasons.size(), 1);
}

void MetricsTextfileTest::doesNotReplaceWhatIsNoFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("vx.prom"));
    QVERIFY(QDir().mkdir(path));
    MetricsTextfile file(
        path, [] { return QByteArray("text"); }, 1h);
    QStringList reasons;
    connect(&file, &MetricsTextfile::writingFailed, this,
            [&reasons](const QString& reason) { reasons.append(reason); });
    file.start();
    QCOMPARE(reasons.size(), 1);
    file.stop();
    QVERIFY(QDir(path).exists());
}

QTEST_GUILESS_MAIN(MetricsTextfileTest)
#include "tst_metrics_textfile.moc"
