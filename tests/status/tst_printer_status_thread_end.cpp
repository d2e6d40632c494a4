// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How a monitoring thread ends, at any moment at which it is stopped.
#include "patience.h"
#include "thread_test.h"

#include <QtCore/QSemaphore>

#include <thread>

namespace {

QString name(const char* function)
{
    return QString::fromLatin1(function);
}

/// Blocks every caller of a function until `letGo` is called.
class HeldCall
{
public:
    HeldCall(virtualwindows::Machine& machine, const char* function)
    {
        machine.setCallHook([this, function = name(function)](const Call& call) {
            if (call.function != function)
                return;
            m_reached.release();
            m_goOn.acquire();
        });
    }
    bool waitUntilReached() { return m_reached.tryAcquire(1, patience); }
    void letGo() { m_goOn.release(1000); }

private:
    QSemaphore m_reached;
    QSemaphore m_goOn;
};

} // namespace

class PrinterStatusThreadEndTest : public ThreadTest
{
    Q_OBJECT

private Q_SLOTS:
    void stopEndsAWaitAndClosesInOrder();
    void stopDoesNotWait();
    void stopBeforeTheStartDoesNothing();
    void stopBeforeTheEventExistsDoesNothing();
    void secondStopSignalsNothing();
    void stopDoesNotSignalAClosedEvent();
    void stopAfterTheEndDoesNothing();
    void stopThatFailsCanBeRepeated();
    void stopEndsAThreadWhileTheSpoolerIsDown();
    void stopComesBeforeAPendingNotification();
    void endsWhenTheEventCannotBeCreated();
    void endsWithoutClosingAClosedPrinterAgain();
    void canBeStartedAgain();
    void stopsAndStartsAtRandomMoments();
};

void PrinterStatusThreadEndTest::stopEndsAWaitAndClosesInOrder()
{
    machine().recordCalls();
    QVERIFY(watch());
    const QStringList waited = lastCall("WaitForMultipleObjects").arguments;
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    machine().clearCalls();

    thread().stop();
    QVERIFY(thread().wait(patience));
    QCOMPARE(functionsCalled(),
             (QStringList{name("SetEvent"), name("CloseHandle"),
                          name("FindClosePrinterChangeNotification"), name("ClosePrinter"),
                          name("CloseServiceHandle"), name("CloseServiceHandle")}));
    QCOMPARE(lastCall("SetEvent").arguments, QStringList{waited.at(1)});
    QCOMPARE(lastCall("CloseHandle").arguments, QStringList{waited.at(1)});
    QCOMPARE(lastCall("FindClosePrinterChangeNotification").arguments, QStringList{waited.at(2)});
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
    QCOMPARE(machine().openHandles(), 0);
}

void PrinterStatusThreadEndTest::stopDoesNotWait()
{
    QVERIFY(watch());
    HeldCall closing(machine(), "CloseHandle");
    thread().stop();
    QVERIFY(closing.waitUntilReached());
    QVERIFY(thread().isRunning());
    closing.letGo();
    QVERIFY(thread().wait(patience));
}

void PrinterStatusThreadEndTest::stopBeforeTheStartDoesNothing()
{
    thread().stop();
    QCOMPARE(machine().callCount(name("SetEvent")), 0);
    QVERIFY(watch());
    QVERIFY(thread().isRunning());
}

void PrinterStatusThreadEndTest::stopBeforeTheEventExistsDoesNothing()
{
    HeldCall creating(machine(), "CreateEventW");
    thread().start();
    QVERIFY(creating.waitUntilReached());
    thread().stop();
    QCOMPARE(machine().callCount(name("SetEvent")), 0);
    creating.letGo();
    QVERIFY(machine().waitForWaitingThreads(1));
    QVERIFY(thread().isRunning());
}

void PrinterStatusThreadEndTest::secondStopSignalsNothing()
{
    QVERIFY(watch());
    thread().stop();
    thread().stop();
    QVERIFY(thread().wait(patience));
    QCOMPARE(machine().callCount(name("SetEvent")), 1);
}

void PrinterStatusThreadEndTest::stopDoesNotSignalAClosedEvent()
{
    QVERIFY(watch());
    HeldCall closing(machine(), "FindClosePrinterChangeNotification");
    thread().stop();
    QVERIFY(closing.waitUntilReached());
    // The event is closed already, and its handle may belong to another object.
    thread().stop();
    QCOMPARE(machine().callCount(name("SetEvent")), 1);
    closing.letGo();
    QVERIFY(thread().wait(patience));
}

void PrinterStatusThreadEndTest::stopAfterTheEndDoesNothing()
{
    QVERIFY(watch());
    endThread();
    const int signalled = machine().callCount(name("SetEvent"));
    thread().stop();
    QCOMPARE(machine().callCount(name("SetEvent")), signalled);
}

void PrinterStatusThreadEndTest::stopThatFailsCanBeRepeated()
{
    QVERIFY(watch());
    machine().failCall(name("SetEvent"), 1, ERROR_INVALID_HANDLE);
    thread().stop();
    QVERIFY(thread().isRunning());
    thread().stop();
    QVERIFY(thread().wait(patience));
}

void PrinterStatusThreadEndTest::stopEndsAThreadWhileTheSpoolerIsDown()
{
    QVERIFY(watch());
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    thread().stop();
    QVERIFY(thread().wait(patience));
}

void PrinterStatusThreadEndTest::stopComesBeforeAPendingNotification()
{
    QVERIFY(watch());
    takeReports();
    // Both objects are signalled when the thread returns to its wait.
    HeldCall reading(machine(), "GetPrinterW");
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(reading.waitUntilReached());
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "2"));
    thread().stop();
    reading.letGo();
    QVERIFY(thread().wait(patience));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
}

void PrinterStatusThreadEndTest::endsWhenTheEventCannotBeCreated()
{
    machine().failCall(name("CreateEventW"), 1, ERROR_NOT_ENOUGH_MEMORY);
    thread().start();
    QVERIFY(thread().wait(patience));
    QCOMPARE(takeReports(), QList<Report>{report("printerNameChangedSignal", labelPrinter)});
    QCOMPARE(machine().callCount(name("OpenSCManagerW")), 0);
    QCOMPARE(machine().callCount(name("WaitForMultipleObjects")), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void PrinterStatusThreadEndTest::endsWithoutClosingAClosedPrinterAgain()
{
    // The failed notification closes the printer, and the failed event ends the thread.
    machine().failCall(name("FindFirstPrinterChangeNotification"), 1, ERROR_NOT_ENOUGH_MEMORY);
    machine().failCall(name("CreateEventW"), 1, ERROR_NOT_ENOUGH_MEMORY);
    thread().start();
    QVERIFY(thread().wait(patience));
    QCOMPARE(machine().callCount(name("ClosePrinter")), 1);
    QCOMPARE(machine().callCount(name("FindClosePrinterChangeNotification")), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void PrinterStatusThreadEndTest::canBeStartedAgain()
{
    QVERIFY(watch());
    endThread();
    takeReports();
    // The values that the first run has seen are not remembered.
    QVERIFY(watch());
    QCOMPARE(takeReports(), QList<Report>{report("printerNameChangedSignal", labelPrinter)});
}

void PrinterStatusThreadEndTest::stopsAndStartsAtRandomMoments()
{
    machine().driveTime(false);
    std::atomic<bool> isOver = false;
    std::thread driver([&] {
        for (char digit = '0'; !isOver; digit = digit == '9' ? '0' : static_cast<char>(digit + 1))
            machine().publish(labelPrinter, everyValue(digit));
    });
    std::thread stopper([&] {
        while (!isOver) {
            thread().stop();
            std::this_thread::yield();
        }
    });
    for (int round = 0; round < 100; ++round) {
        thread().start();
        if (!thread().wait(patience))
            break;
    }
    const bool allEnded = thread().isFinished();
    isOver = true;
    driver.join();
    stopper.join();
    QVERIFY(allEnded);
    QCOMPARE(machine().openHandles(), 0);
}

QTEST_GUILESS_MAIN(PrinterStatusThreadEndTest)
#include "tst_printer_status_thread_end.moc"
