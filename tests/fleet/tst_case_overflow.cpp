// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A recorder whose disk takes nothing for a while, so that more waits than it keeps.
#include "case_recorder.h"
#include "case_replay.h"
#include "case_sink.h"
#include "machine_test.h"
#include "printer_status_controller.h"

#include "virtualwindows/recorded_case.h"

#include <cute_logger.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

using namespace std::chrono_literals;
using virtualwindows::PrinterValue;
using VxKit::CaseRecorder;

namespace {

const QString shipping = QStringLiteral("Shipping");
const QString returns = QStringLiteral("Returns");

/// A disk that can be stopped.
struct Disk
{
    std::mutex lock;
    std::condition_variable changed;
    bool isStopped = false;
    bool isWriting = false; ///< a store waits for the disk

    void stop(bool stopped)
    {
        const std::lock_guard guard(lock);
        isStopped = stopped;
        changed.notify_all();
    }
    void pass()
    {
        std::unique_lock guard(lock);
        isWriting = true;
        changed.notify_all();
        changed.wait(guard, [this] { return !isStopped; });
        isWriting = false;
    }
    void waitForWriter()
    {
        std::unique_lock guard(lock);
        changed.wait(guard, [this] { return isWriting; });
    }
};

class StoppableStore final : public VxKit::CaseStore
{
public:
    StoppableStore(const QString& fileName, std::shared_ptr<Disk> disk)
        : m_disk(std::move(disk))
        , m_file(fileName)
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            m_error = m_file.errorString();
    }

    bool append(const QByteArray& lines, qint64 /*count*/) override
    {
        m_disk->pass();
        return m_file.write(lines) == lines.size() && m_file.flush();
    }
    Need needsBeginning(qsizetype /*added*/) const override { return Need::None; }
    void beginAnew(const QByteArray& /*beginning*/, qint64 /*count*/, qint64 /*time*/) override {}
    qint64 size() const override { return m_file.size(); }

private:
    const std::shared_ptr<Disk> m_disk;
    QFile m_file;
};

} // namespace

class CaseOverflowTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void whatIsLostIsAGap();
    void reportsOfWhatWasLostAreLostToo();
    void whatIsLostMeanwhileIsReadAgain();
    void gapIsSaidBeforeTheEnd();

private:
    QString fileName() const { return m_folder->filePath(QStringLiteral("test.vxcase")); }
    void addPrinter(const QString& name);
    void start();
    void settle();
    void publish(const QString& printer, int status);
    /// Stops the disk, and lets more wait for it than the recorder keeps.
    void overflow();
    /// Waits until the file has a gap.
    bool waitForGap();
    qint64 linesInGaps() const;

    std::optional<QTemporaryDir> m_folder;
    std::shared_ptr<Disk> m_disk;
    std::unique_ptr<CaseRecorder> m_recorder;
    std::unique_ptr<PrinterStatusController> m_controller;
};

void CaseOverflowTest::init()
{
    MachineTest::init();
    m_folder.emplace();
    m_disk = std::make_shared<Disk>();
    VxKit::setCaseStoreMaker([disk = m_disk](const QString& name, qint64 /*limit*/) {
        return std::make_unique<StoppableStore>(name, disk);
    });
}

void CaseOverflowTest::cleanup()
{
    m_disk->stop(false);
    m_controller.reset();
    m_recorder.reset();
    VxKit::setCaseStoreMaker({});
    MachineTest::cleanup();
}

void CaseOverflowTest::addPrinter(const QString& name)
{
    const int port = static_cast<int>(machine().printers().size()) + 1;
    machine().addPrinter({.name = name,
                          .driver = QStringLiteral("Stratamark AlderMax"),
                          .port = QStringLiteral("USB%1").arg(port, 3, 10, QLatin1Char('0'))});
    publish(name, 1);
}

void CaseOverflowTest::publish(const QString& printer, int status)
{
    machine().publish(printer, PrinterValue::text("StatusCode", QByteArray::number(status)));
}

void CaseOverflowTest::start()
{
    addPrinter(shipping);
    addPrinter(returns);
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName();
    options.isPlain = true;
    options.lookInterval = 0ms;
    m_recorder = std::make_unique<CaseRecorder>(options);
    m_controller = std::make_unique<PrinterStatusController>();
    m_recorder->setController(m_controller.get());
    settle();
}

void CaseOverflowTest::settle()
{
    // Two threads of the library and the recorder's look.
    machine().waitForWaitingThreads(3);
    QCoreApplication::sendPostedEvents();
}

void CaseOverflowTest::overflow()
{
    m_recorder->flush(QDeadlineTimer::Forever);
    m_disk->stop(true);
    publish(shipping, 2);
    m_disk->waitForWriter();
    settle();
    // More than 4 MiB, of which a host may log any amount.
    const QString text(qsizetype(64) * 1024, QLatin1Char('x'));
    for (int line = 0; line < 40; ++line)
        VX_GLOBAL_LOGGER()->write(Logger::Info, "printer_status_controller", line,
                                  "void PrinterStatusController::sendToLogger(QString)", nullptr,
                                  text);
}

bool CaseOverflowTest::waitForGap()
{
    return QTest::qWaitFor([this] { return linesInGaps() > 0; }, 120000);
}

qint64 CaseOverflowTest::linesInGaps() const
{
    QFile file(fileName());
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    qint64 lines = 0;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        if (line.value(u"kind").toString() == QLatin1String("gap"))
            lines += line.value(u"lines").toInteger();
    }
    return lines;
}

void CaseOverflowTest::whatIsLostIsAGap()
{
    start();
    publish(shipping, 3);
    settle();
    overflow();
    publish(shipping, 4);
    publish(returns, 5);
    settle();
    publish(shipping, 6);
    settle();
    // Nothing is read again as long as nothing can be written.
    const int reads = machine().callCount(QStringLiteral("EnumPrintersW"));
    publish(returns, 7);
    settle();
    QCOMPARE(machine().callCount(QStringLiteral("EnumPrintersW")), reads);
    QCOMPARE(linesInGaps(), 0);
    m_disk->stop(false);
    QVERIFY(waitForGap());
    settle();
    // The values that were lost are known, and what follows is compared with them.
    publish(shipping, 8);
    settle();
    publish(returns, 7);
    settle();
    m_recorder->stop();

    const VxKit::CaseRecorderSummary summary = m_recorder->summary();
    QVERIFY(summary.lost > 3);
    QCOMPARE(linesInGaps(), summary.lost);
    const virtualwindows::Case recorded = virtualwindows::readCase(fileName());
    QVERIFY(!recorded.isCut);
    QCOMPARE(recorded.chapters.size(), 2);
    const virtualwindows::CaseChapter& after = recorded.chapters.last();
    QCOMPARE(after.beginning.printers.size(), 2);
    QCOMPARE(after.beginning.printers.first().values.first().data, QByteArray("6", 2));
    QCOMPARE(after.beginning.printers.last().values.first().data, QByteArray("7", 2));
    QCOMPARE(after.steps.last().changed.first().data, QByteArray("8", 2));
    m_controller.reset();
    QCOMPARE(case_replay::differenceOf(fileName()), QString());
}

void CaseOverflowTest::reportsOfWhatWasLostAreLostToo()
{
    start();
    overflow();
    // The thread has read it and told the host, which does not listen yet.
    publish(shipping, 4);
    machine().waitForWaitingThreads(3);
    m_disk->stop(false);
    QDeadlineTimer limit(120000);
    while (linesInGaps() == 0 && !limit.hasExpired())
        m_recorder->flush(QDeadlineTimer::Forever);
    QVERIFY(linesInGaps() > 0);
    settle();
    publish(shipping, 5);
    settle();
    m_recorder->stop();
    m_controller.reset();
    const virtualwindows::CaseChapter after = virtualwindows::readCase(fileName()).chapters.last();
    QVERIFY(!after.outputs.isEmpty());
    QCOMPARE(case_replay::differenceOf(fileName()), QString());
}

void CaseOverflowTest::whatIsLostMeanwhileIsReadAgain()
{
    start();
    overflow();
    settle();
    std::atomic<bool> hasChanged = false;
    machine().setCallHook([&](const virtualwindows::Call& call) {
        // The recorder's look has read the values, and not yet told.
        const bool isLook = call.function == QLatin1String("QueryServiceStatus");
        if (!isLook || hasChanged.exchange(true))
            return;
        publish(shipping, 9);
        machine().waitForWaitingThreads(2);
    });
    m_disk->stop(false);
    QVERIFY(waitForGap());
    machine().setCallHook(nullptr);
    QVERIFY(hasChanged);
    settle();
    publish(shipping, 2);
    settle();
    m_recorder->stop();
    m_controller.reset();
    QCOMPARE(virtualwindows::readCase(fileName()).chapters.last().steps.size(), 2);
    QCOMPARE(case_replay::differenceOf(fileName()), QString());
}

void CaseOverflowTest::gapIsSaidBeforeTheEnd()
{
    start();
    overflow();
    publish(shipping, 4);
    settle();
    // Nobody but the recorder's end has the time to read everything again.
    std::thread disk([this] { m_disk->stop(false); });
    m_recorder->stop();
    disk.join();
    QVERIFY(linesInGaps() > 0);
    QCOMPARE(linesInGaps(), m_recorder->summary().lost);
    m_controller.reset();
    QVERIFY(!virtualwindows::readCase(fileName()).isCut);
    QCOMPARE(case_replay::differenceOf(fileName()), QString());
}

QTEST_GUILESS_MAIN(CaseOverflowTest)
#include "tst_case_overflow.moc"
