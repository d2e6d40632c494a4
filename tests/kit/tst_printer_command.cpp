// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Commands say what became of them, and their jobs are followed to the end.

#include "machine_test.h"
#include "patience.h"

#include "printer_command.h"
#include "vxerror.h"
#include "windowserrors.h"

#include <QtCore/QFutureWatcher>
#include <QtCore/QMutex>
#include <QtCore/QSemaphore>
#include <QtCore/QThreadPool>
#include <QtTest/QtTest>

#include <functional>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using virtualwindows::PrintJob;
using VxKit::CommandResult;
using VxKit::JobState;
using Failure = CommandResult::Failure;
using Stage = JobState::Stage;

namespace {

const QString alder = QStringLiteral("Alder at the door");
const QString alderDriver = QStringLiteral("Stratamark Alder");
const QString feed = QStringLiteral("FEED 3");

using Action = std::function<void(Machine&)>;

/// The calling thread controls a job as another program would.
void controlJob(const QString& printer, quint32 job, DWORD command)
{
    HANDLE handle = nullptr;
    QString name = printer;
    OpenPrinterW(reinterpret_cast<LPWSTR>(name.data()), &handle, nullptr);
    SetJobW(handle, job, 0, nullptr, command);
    ClosePrinter(handle);
}

QList<Stage> stagesOf(const QFuture<JobState>& future)
{
    QList<Stage> stages;
    for (int index = 0; index < future.resultCount(); ++index) {
        const Stage stage = future.resultAt(index).stage;
        if (stages.isEmpty() || stages.last() != stage)
            stages.append(stage);
    }
    return stages;
}

JobState lastOf(const QFuture<JobState>& future)
{
    return future.resultCount() ? future.resultAt(future.resultCount() - 1) : JobState();
}

/// Holds every thread that calls a function, until it may go on.
struct HeldCalls
{
    explicit HeldCalls(const QString& function)
    {
        Machine::instance().setCallHook([this, function](const virtualwindows::Call& call) {
            if (call.function != function)
                return;
            reached.release();
            go.acquire();
        });
    }
    ~HeldCalls() { Machine::instance().setCallHook(nullptr); }
    Q_DISABLE_COPY_MOVE(HeldCalls)

    QSemaphore reached;
    QSemaphore go;
};

} // namespace

Q_DECLARE_METATYPE(Action)

class PrinterCommandTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void textIsSentLikeTheLibrarySendsIt_data();
    void textIsSentLikeTheLibrarySendsIt();
    void bytesAreSentAsTheyAre();
    void largeCommandIsSentWhole();
    void jobHasTheNameThatIsAskedFor();
    void foreignPrintersAreRefused_data();
    void foreignPrintersAreRefused();
    void emptyCommandsAreRefused_data();
    void emptyCommandsAreRefused();
    void failureNamesItsCall_data();
    void failureNamesItsCall();
    void partOfACommandIsAFailure();
    void sendingLeavesTheGlobalPoolAlone();
    void fourCommandsAreSentAtATime();
    void cancelledCommandIsNotSent();

    void jobIsFollowedUntilItIsPrinted();
    void jobThatIsPrintedAtOnceIsPrinted();
    void jobThatWasNotWatchedLeftTheQueue();
    void heldJobSaysWhy_data();
    void heldJobSaysWhy();
    void deletedJobIsDeleted();
    void jobThatIsKeptIsPrinted();
    void jobOutlivesAStopOfTheSpooler();
    void removedPrinterEndsTheFollowing();
    void unknownPrinterEndsTheFollowing();
    void followsWithoutNotifications_data();
    void followsWithoutNotifications();
    void cancellingEndsTheFollowing();
    void commandThatIsNotSentHasNoJob();
    void manyJobsAreFollowed();
    void valuesThatChangeAllTheTimeCostLittle();

private:
    /// Waits for a result while the machine's time passes.
    template <typename Result>
    bool finishes(const QFuture<Result>& future, std::chrono::milliseconds step = 1s)
    {
        const QDeadlineTimer limit(patience);
        while (!future.isFinished() && !limit.hasExpired()) {
            machine().advance(step);
            QTest::qWait(1);
        }
        return future.isFinished();
    }
    /// Lets a little time pass, in which the thread may rest.
    void pass()
    {
        machine().advance(100ms);
        QTest::qWait(1);
    }
    CommandResult sent(const QFuture<CommandResult>& future)
    {
        QFuture<CommandResult> answer = future;
        answer.waitForFinished();
        return answer.resultCount() ? answer.result() : CommandResult();
    }
    QByteArray printed() const { return Machine::instance().jobs(alder).last().pages.join(); }
};

void PrinterCommandTest::init()
{
    MachineTest::init();
    machine().addPrinter({.name = alder, .driver = alderDriver});
    machine().publish(alder, PrinterValue::text("StatusCode", "1"));
    machine().driveTime();
}

void PrinterCommandTest::textIsSentLikeTheLibrarySendsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << feed << QByteArray("FEED 3\r\n");
    QTest::newRow("code page") << QStringLiteral("Größe")
                               << QStringLiteral("Größe\r\n").toLocal8Bit();
    QTest::newRow("zero byte") << QStringLiteral("FE") + QChar(u'\0') + QStringLiteral("ED")
                               << QByteArray("FE");
}

void PrinterCommandTest::textIsSentLikeTheLibrarySendsIt()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    const CommandResult result = sent(VxKit::sendCommand(alder, text));
    QVERIFY2(result.isSent(), qPrintable(result.errorText));
    QCOMPARE(result.bytes, bytes.size());
    QCOMPARE(result.printerName, alder);
    QVERIFY(result.errorText.isEmpty());
    const PrintJob job = machine().jobs(alder).last();
    QCOMPARE(job.id, result.jobId);
    QCOMPARE(job.pages, QList<QByteArray>{bytes});
    QCOMPARE(job.datatype, QStringLiteral("RAW"));
    QCOMPARE(job.document, text.left(text.indexOf(QChar(u'\0'))));
    QVERIFY(job.finished);
}

void PrinterCommandTest::bytesAreSentAsTheyAre()
{
    QByteArray bytes;
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    const CommandResult result = sent(VxKit::sendCommand(alder, bytes));
    QVERIFY2(result.isSent(), qPrintable(result.errorText));
    QCOMPARE(result.bytes, 256);
    QCOMPARE(printed(), bytes);
}

void PrinterCommandTest::largeCommandIsSentWhole()
{
    const QByteArray bytes = QByteArray("0123456789abcdef").repeated(200'000);
    const CommandResult result = sent(VxKit::sendCommand(alder, bytes));
    QVERIFY2(result.isSent(), qPrintable(result.errorText));
    QCOMPARE(result.bytes, bytes.size());
    QVERIFY(printed() == bytes);
}

void PrinterCommandTest::jobHasTheNameThatIsAskedFor()
{
    QVERIFY(
        sent(VxKit::sendCommand(alder, feed, {.documentName = QStringLiteral("Feed")})).isSent());
    QCOMPARE(machine().jobs(alder).last().document, QStringLiteral("Feed"));
    QVERIFY(sent(VxKit::sendCommand(alder, QByteArray("x"))).isSent());
    QCOMPARE(machine().jobs(alder).last().document, QStringLiteral("Command"));
    QVERIFY(sent(VxKit::sendCommand(alder, QString(1000, QLatin1Char('x')))).isSent());
    QCOMPARE(machine().jobs(alder).last().document.size(), 200);
}

void PrinterCommandTest::foreignPrintersAreRefused_data()
{
    QTest::addColumn<QString>("driver");
    QTest::newRow("another maker") << QStringLiteral("Somebody's Driver");
    QTest::newRow("unsupported model") << QStringLiteral("Stratamark Elm");
}

void PrinterCommandTest::foreignPrintersAreRefused()
{
    QFETCH(QString, driver);
    const QString name = QStringLiteral("Foreign");
    machine().addPrinter({.name = name, .driver = driver});
    const CommandResult result = sent(VxKit::sendCommand(name, feed));
    QCOMPARE(result.failure, Failure::ForeignPrinter);
    QVERIFY2(result.errorText.contains(name), qPrintable(result.errorText));
    QCOMPARE(result.errorCode, 0U);
    QVERIFY(machine().jobs(name).isEmpty());
    QVERIFY(sent(VxKit::sendCommand(name, feed, {.toAnyPrinter = true})).isSent());
    QCOMPARE(machine().jobs(name).size(), 1);
}

void PrinterCommandTest::emptyCommandsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("only a zero byte") << QString(QChar(u'\0'));
}

void PrinterCommandTest::emptyCommandsAreRefused()
{
    QFETCH(QString, text);
    const CommandResult result = sent(VxKit::sendCommand(alder, text));
    QCOMPARE(result.failure, Failure::Empty);
    QVERIFY(!result.errorText.isEmpty());
    QCOMPARE(sent(VxKit::sendCommand(alder, QByteArray())).failure, Failure::Empty);
    QVERIFY(machine().jobs(alder).isEmpty());
    QVERIFY(sent(VxKit::sendCommand(alder, text, {.evenEmpty = true})).isSent());
    QVERIFY(sent(VxKit::sendCommand(alder, QByteArray(), {.evenEmpty = true})).isSent());
    QCOMPARE(machine().jobs(alder).size(), 2);
    QCOMPARE(printed(), QByteArray());
}

void PrinterCommandTest::failureNamesItsCall_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<Failure>("failure");
    const auto row = [](const char* function, Failure failure) {
        QTest::newRow(function) << QString::fromLatin1(function) << failure;
    };
    row("OpenPrinterW", Failure::CannotOpenPrinter);
    row("GetPrinterW", Failure::CannotReadDriver);
    row("StartDocPrinterW", Failure::CannotStartDocument);
    row("StartPagePrinter", Failure::CannotStartPage);
    row("WritePrinter", Failure::CannotWrite);
    row("EndPagePrinter", Failure::CannotEndPage);
    row("EndDocPrinter", Failure::CannotEndDocument);
}

void PrinterCommandTest::failureNamesItsCall()
{
    QFETCH(QString, function);
    QFETCH(Failure, failure);
    machine().failCall(function, 1, ERROR_NOT_ENOUGH_MEMORY);
    const CommandResult result = sent(VxKit::sendCommand(alder, feed));
    QCOMPARE(result.failure, failure);
    QCOMPARE(result.function, function);
    QCOMPARE(result.errorCode, ERROR_NOT_ENOUGH_MEMORY);
    QVERIFY2(result.errorText.contains(windows_errors::winError(ERROR_NOT_ENOUGH_MEMORY)) &&
                 result.errorText.contains(alder),
             qPrintable(result.errorText));
    // Nothing is left of the job that was not whole.
    QVERIFY(machine().jobs(alder).isEmpty());
}

void PrinterCommandTest::partOfACommandIsAFailure()
{
    machine().limitWrites(alder, 4);
    const CommandResult result = sent(VxKit::sendCommand(alder, feed));
    QCOMPARE(result.failure, Failure::ShortWrite);
    QCOMPARE(result.function, QStringLiteral("WritePrinter"));
    QCOMPARE(result.bytes, 4);
    QCOMPARE(result.errorCode, 0U);
    QVERIFY2(result.errorText.contains(QLatin1Char('4')), qPrintable(result.errorText));
    QVERIFY(machine().jobs(alder).isEmpty());
}

void PrinterCommandTest::sendingLeavesTheGlobalPoolAlone()
{
    HeldCalls held(QStringLiteral("WritePrinter"));
    const QFuture<CommandResult> future = VxKit::sendCommand(alder, feed);
    held.reached.acquire();
    QCOMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
    QVERIFY(!future.isFinished());
    held.go.release();
    QVERIFY(sent(future).isSent());
}

void PrinterCommandTest::fourCommandsAreSentAtATime()
{
    HeldCalls held(QStringLiteral("StartDocPrinterW"));
    QList<QFuture<CommandResult>> futures;
    for (int number = 0; number < 6; ++number)
        futures.append(VxKit::sendCommand(alder, feed));
    held.reached.acquire(4);
    QCOMPARE(machine().callCount(QStringLiteral("OpenPrinterW")), 4);
    held.go.release(6);
    for (const QFuture<CommandResult>& future : futures)
        QVERIFY(sent(future).isSent());
    QCOMPARE(machine().jobs(alder).size(), 6);
}

void PrinterCommandTest::cancelledCommandIsNotSent()
{
    HeldCalls held(QStringLiteral("StartDocPrinterW"));
    QList<QFuture<CommandResult>> futures;
    for (int number = 0; number < 4; ++number)
        futures.append(VxKit::sendCommand(alder, feed));
    held.reached.acquire(4);
    QFuture<CommandResult> last = VxKit::sendCommand(alder, feed);
    last.cancel();
    held.go.release(5);
    last.waitForFinished();
    QCOMPARE(last.resultCount(), 0);
    for (const QFuture<CommandResult>& future : futures)
        QVERIFY(sent(future).isSent());
    QCOMPARE(machine().jobs(alder).size(), 4);
}

void PrinterCommandTest::jobIsFollowedUntilItIsPrinted()
{
    machine().setPrintingTime(alder, 3s);
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    const CommandResult result = sent(VxKit::sendCommand(alder, feed));
    const QFuture<JobState> future = VxKit::followJob(alder, result.jobId);
    QTRY_COMPARE(stagesOf(future), QList<Stage>{Stage::Queued});
    QCOMPARE(lastOf(future).printerName, alder);
    QCOMPARE(lastOf(future).jobId, result.jobId);
    machine().setStatus(alder, 0);
    QTRY_COMPARE((pass(), stagesOf(future)), (QList<Stage>{Stage::Queued, Stage::Printing}));
    QVERIFY(!lastOf(future).isStuck());
    QVERIFY(!future.isFinished());
    QVERIFY(finishes(future));
    QCOMPARE(stagesOf(future), (QList<Stage>{Stage::Queued, Stage::Printing, Stage::Printed}));
    QVERIFY(lastOf(future).isFinal());
    QVERIFY(!lastOf(future).text().isEmpty());
}

void PrinterCommandTest::jobThatIsPrintedAtOnceIsPrinted()
{
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QVERIFY(sent(followed.command).isSent());
    QVERIFY(finishes(followed.job));
    QCOMPARE(stagesOf(followed.job), QList<Stage>{Stage::Printed});
}

void PrinterCommandTest::jobThatWasNotWatchedLeftTheQueue()
{
    const CommandResult result = sent(VxKit::sendCommand(alder, feed));
    const QFuture<JobState> future = VxKit::followJob(alder, result.jobId);
    QVERIFY(finishes(future));
    QCOMPARE(stagesOf(future), QList<Stage>{Stage::LeftQueue});
    QVERIFY(finishes(VxKit::followJob(alder, 0)));
}

void PrinterCommandTest::heldJobSaysWhy_data()
{
    QTest::addColumn<Action>("hold");
    QTest::addColumn<Action>("release");
    QTest::addColumn<QString>("word");
    QTest::addColumn<Stage>("stage");
    const auto status = [](DWORD flags) {
        return [flags](Machine& machine) {
            machine.setStatus(alder, flags);
        };
    };
    const auto attributes = [](DWORD flags) {
        return [flags](Machine& machine) {
            machine.setAttributes(alder, flags);
        };
    };
    const auto code = [](const char* text) {
        return [text](Machine& machine) {
            machine.publish(alder, PrinterValue::text("StatusCode", text));
        };
    };
    QTest::newRow("paused") << Action(status(PRINTER_STATUS_PAUSED)) << Action(status(0))
                            << QStringLiteral("paused") << Stage::Queued;
    QTest::newRow("off line") << Action(status(PRINTER_STATUS_OFFLINE)) << Action(status(0))
                              << QStringLiteral("offline") << Stage::Printing;
    QTest::newRow("out of paper") << Action(status(PRINTER_STATUS_PAPER_OUT)) << Action(status(0))
                                  << QStringLiteral("labels") << Stage::Printing;
    QTest::newRow("in error") << Action(status(PRINTER_STATUS_ERROR)) << Action(status(0))
                              << QStringLiteral("error") << Stage::Printing;
    QTest::newRow("work offline") << Action(attributes(PRINTER_ATTRIBUTE_LOCAL |
                                                       PRINTER_ATTRIBUTE_WORK_OFFLINE))
                                  << Action(attributes(PRINTER_ATTRIBUTE_LOCAL))
                                  << QStringLiteral("work offline") << Stage::Queued;
    QTest::newRow("fault of the driver") << Action(code("4")) << Action(code("1"))
                                         << getErrorDescription(VXError(4)) << Stage::Printing;
}

void PrinterCommandTest::heldJobSaysWhy()
{
    QFETCH(Action, hold);
    QFETCH(Action, release);
    QFETCH(QString, word);
    QFETCH(Stage, stage);
    hold(machine());
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_VERIFY((pass(), lastOf(followed.job).isStuck()));
    const JobState state = lastOf(followed.job);
    QCOMPARE(state.stage, stage);
    QVERIFY2(state.text().contains(word), qPrintable(state.text()));
    QVERIFY(!state.isFinal());
    QCOMPARE(state.statusCode, word == getErrorDescription(VXError(4)) ? 4 : 1);
    for (int second = 0; second < 20; ++second)
        machine().advance(1s);
    QVERIFY(!followed.job.isFinished());
    release(machine());
    QVERIFY(finishes(followed.job));
    QCOMPARE(lastOf(followed.job).stage, Stage::Printed);
    QVERIFY(!lastOf(followed.job).isStuck());
}

void PrinterCommandTest::deletedJobIsDeleted()
{
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_VERIFY(followed.job.resultCount() > 0);
    controlJob(alder, sent(followed.command).jobId, JOB_CONTROL_DELETE);
    QVERIFY(finishes(followed.job));
    QCOMPARE(lastOf(followed.job).stage, Stage::Deleted);

    // And while it is being printed.
    machine().setStatus(alder, 0);
    machine().setPrintingTime(alder, 10s);
    const VxKit::FollowedCommand other = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_COMPARE((pass(), lastOf(other.job).stage), Stage::Printing);
    controlJob(alder, sent(other.command).jobId, JOB_CONTROL_DELETE);
    QTRY_VERIFY((pass(), lastOf(other.job).isStuck()));
    QVERIFY(finishes(other.job));
    QCOMPARE(lastOf(other.job).stage, Stage::Deleted);
}

void PrinterCommandTest::jobThatIsKeptIsPrinted()
{
    machine().setAttributes(alder, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_KEEPPRINTEDJOBS);
    const CommandResult result = sent(VxKit::sendCommand(alder, feed));
    const QFuture<JobState> future = VxKit::followJob(alder, result.jobId);
    QVERIFY(finishes(future));
    QCOMPARE(stagesOf(future), QList<Stage>{Stage::Printed});
}

void PrinterCommandTest::jobOutlivesAStopOfTheSpooler()
{
    machine().setPrintingTime(alder, 100s);
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_COMPARE((pass(), lastOf(followed.job).stage), Stage::Printing);
    machine().stopSpooler();
    QTRY_VERIFY((pass(), lastOf(followed.job).isStuck()));
    QVERIFY2(lastOf(followed.job).text().contains(QStringLiteral("spooler")),
             qPrintable(lastOf(followed.job).text()));
    machine().startSpooler();
    QTRY_VERIFY((pass(), !lastOf(followed.job).isStuck()));
    QCOMPARE(lastOf(followed.job).stage, Stage::Printing);
    QVERIFY(finishes(followed.job));
    QCOMPARE(lastOf(followed.job).stage, Stage::Printed);
}

void PrinterCommandTest::removedPrinterEndsTheFollowing()
{
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_VERIFY(followed.job.resultCount() > 0);
    machine().removePrinter(alder);
    QVERIFY(finishes(followed.job));
    QCOMPARE(lastOf(followed.job).stage, Stage::Failed);
    QCOMPARE(lastOf(followed.job).errorCode, ERROR_PRINTER_DELETED);
    QVERIFY(lastOf(followed.job).text().contains(windows_errors::winError(ERROR_PRINTER_DELETED)));
}

void PrinterCommandTest::unknownPrinterEndsTheFollowing()
{
    const QFuture<JobState> future = VxKit::followJob(QStringLiteral("Nobody"), 1);
    QVERIFY(finishes(future));
    QCOMPARE(lastOf(future).stage, Stage::Failed);
    QCOMPARE(lastOf(future).errorCode, ERROR_INVALID_PRINTER_NAME);
}

void PrinterCommandTest::followsWithoutNotifications_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<Stage>("last");
    const auto row = [](const char* function, Stage last) {
        QTest::newRow(function) << QString::fromLatin1(function) << last;
    };
    // How the job left the queue is reported only by a notification, which can be read even where
    // it cannot be waited for.
    row("FindFirstPrinterChangeNotification", Stage::LeftQueue);
    row("FindNextPrinterChangeNotification", Stage::LeftQueue);
    row("CreateEventW", Stage::Printed);
}

void PrinterCommandTest::followsWithoutNotifications()
{
    QFETCH(QString, missing);
    // Without an event, the thread cannot wait in the machine's time.
    machine().driveTime(missing != QLatin1String("CreateEventW"));
    machine().failCallsFrom(missing, 1, ERROR_NOT_ENOUGH_MEMORY);
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    const VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_COMPARE(stagesOf(followed.job), QList<Stage>{Stage::Queued});
    QVERIFY(lastOf(followed.job).isStuck());
    machine().setPrintingTime(alder, 2500ms);
    machine().setStatus(alder, 0);
    QTRY_COMPARE((pass(), lastOf(followed.job).stage), Stage::Printing);
    QVERIFY(finishes(followed.job));
    QFETCH(Stage, last);
    QCOMPARE(stagesOf(followed.job), (QList<Stage>{Stage::Queued, Stage::Printing, last}));
}

void PrinterCommandTest::cancellingEndsTheFollowing()
{
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_VERIFY(followed.job.resultCount() > 0);
    QVERIFY(machine().openHandles() > 0);
    followed.job.cancel();
    QVERIFY(finishes(followed.job));
    QTRY_COMPARE(machine().openHandles(), 0);
    QCOMPARE(machine().waitingThreads(), 0);
}

void PrinterCommandTest::commandThatIsNotSentHasNoJob()
{
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, QString());
    QCOMPARE(sent(followed.command).failure, Failure::Empty);
    followed.job.waitForFinished();
    QVERIFY(followed.job.isCanceled());
    QCOMPARE(followed.job.resultCount(), 0);
    machine().failCall(QStringLiteral("WritePrinter"), 1, ERROR_NOT_ENOUGH_MEMORY);
    followed = VxKit::sendAndFollowCommand(alder, QByteArray("x"));
    QCOMPARE(sent(followed.command).failure, Failure::CannotWrite);
    followed.job.waitForFinished();
    QVERIFY(followed.job.isCanceled());
    QTRY_COMPARE(machine().openHandles(), 0);
}

void PrinterCommandTest::manyJobsAreFollowed()
{
    machine().setPrintingTime(alder, 100ms);
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    QList<VxKit::FollowedCommand> all;
    for (int number = 0; number < 100; ++number)
        all.append(VxKit::sendAndFollowCommand(alder, feed));
    for (const VxKit::FollowedCommand& one : all)
        QVERIFY(sent(one.command).isSent());
    machine().setStatus(alder, 0);
    for (const VxKit::FollowedCommand& one : all) {
        QVERIFY(finishes(one.job, 50ms));
        QCOMPARE(lastOf(one.job).stage, Stage::Printed);
    }
    QTRY_COMPARE(machine().openHandles(), 0);
}

void PrinterCommandTest::valuesThatChangeAllTheTimeCostLittle()
{
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, feed);
    QTRY_VERIFY(followed.job.resultCount() > 0);
    QVERIFY(machine().waitForWaitingThreads(1));
    const int before = machine().callCount(QStringLiteral("GetJobW"));
    for (int value = 0; value < 1000; ++value)
        machine().publish(alder, PrinterValue::number("Mileage", static_cast<quint32>(value)));
    QVERIFY(machine().waitForWaitingThreads(1));
    const int looks = machine().callCount(QStringLiteral("GetJobW")) - before;
    QVERIFY2(looks <= 2, qPrintable(QString::number(looks)));
    followed.job.cancel();
    QVERIFY(finishes(followed.job));
}

QTEST_GUILESS_MAIN(PrinterCommandTest)
#include "tst_printer_command.moc"
