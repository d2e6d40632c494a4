// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Waiting for changes of printers: which changes are notified, and that none is lost.

#include "fixture.h"

#include <QtTest/QtTest>

#include <functional>
#include <thread>
#include <vector>

namespace {

struct NotificationCloser
{
    void operator()(HANDLE handle) const { FindClosePrinterChangeNotification(handle); }
};
using Notification = std::unique_ptr<void, NotificationCloser>;

Notification watch(const PrinterHandle& printer, DWORD filter = PRINTER_CHANGE_PRINTER)
{
    const HANDLE handle = FindFirstPrinterChangeNotification(printer.get(), filter, 0, nullptr);
    return Notification(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

/// The real spooler signals a change from a thread of its own, some time after the change.
constexpr DWORD longEnough = 20000;
constexpr DWORD fairlySure = 100;

bool isNotified(const Notification& notification)
{
    return WaitForSingleObject(notification.get(), longEnough) == WAIT_OBJECT_0;
}

bool isQuiet(const Notification& notification)
{
    return WaitForSingleObject(notification.get(), fairlySure) == WAIT_TIMEOUT;
}

/// Re-arms the notification and returns the changes that it reported, or all bits when the call
/// fails.
DWORD rearm(const Notification& notification)
{
    DWORD change = 0x77777777;
    return FindNextPrinterChangeNotification(notification.get(), &change, nullptr, nullptr)
               ? change
               : 0xFFFFFFFF;
}

/// Waits for a change and re-arms. Returns the reported changes; none when the wait times out.
DWORD waitForChanges(const Notification& notification)
{
    return isNotified(notification) ? rearm(notification) : 0;
}

PrinterHandle openPrintServer()
{
    HANDLE handle = nullptr;
    return PrinterHandle(OpenPrinterW(nullptr, &handle, nullptr) ? handle : nullptr);
}

void writeValue(const PrinterHandle& printer)
{
    BYTE data = 1;
    SetPrinterDataW(printer.get(), WideText(QStringLiteral("StatusCode")), REG_BINARY, &data, 1);
}

DWORD startDocument(const PrinterHandle& printer)
{
    WideText document(QStringLiteral("Label"));
    WideText datatype(QStringLiteral("RAW"));
    DOC_INFO_1W info{};
    info.pDocName = document;
    info.pDatatype = datatype;
    return StartDocPrinterW(printer.get(), 1, reinterpret_cast<LPBYTE>(&info));
}

using Action = std::function<void(const PrinterHandle&)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class ChangeNotificationsTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void notSignalledAtFirst();
    void changeIsNotified_data();
    void changeIsNotified();
    void changeOutsideTheFilterIsNotNotified_data();
    void changeOutsideTheFilterIsNotNotified();
    void staysSignalledUntilItIsRearmed();
    void changesAreCollected();
    void changeBeforeRearmingIsNotLost();
    void rearmingWithoutAChangeReportsNone();
    void changesNeedNotBeRead();

    void changesOfOtherPrintersAreNotNotified();
    void printServerNotifiesChangesOfAllPrinters();
    void printServerNotifiesANewPrinter();
    void printServerNotifiesADeletedPrinter();
    void printServerNotifiesANewName();
    void printServerNotifiesJobs();
    void notificationsAreIndependent();

    void waitingThreadIsWoken();
    void canBeWaitedForTogetherWithEvents();

    void filterIsRequired();
    void badPrinterHandleIsRefused_data();
    void badPrinterHandleIsRefused();
    void badNotificationFails_data();
    void badNotificationFails();
    void invalidHandleValueIsNotANotification();
    void closingLeavesThePrinterOpen();
    void endsWithItsPrinterHandle();

private:
    QString m_name;
    PrinterHandle m_printer;
};

void ChangeNotificationsTest::init()
{
    WindowsApiTest::init();
    NEEDS_BEHAVIOUR(Behaviour::ChangeNotifications);
    m_name = fixture::uniqueName(QStringLiteral("Vx Changes"));
    QVERIFY(fixture::addPrinter({.name = m_name}));
    m_printer = openPrinter(m_name);
    QVERIFY(m_printer);
}

void ChangeNotificationsTest::cleanup()
{
    m_printer.reset();
    WindowsApiTest::cleanup();
}

void ChangeNotificationsTest::notSignalledAtFirst()
{
    writeValue(m_printer);
    const Notification notification = watch(m_printer, PRINTER_CHANGE_ALL);
    QVERIFY(notification);
    QVERIFY(isQuiet(notification));
}

void ChangeNotificationsTest::changeIsNotified_data()
{
    QTest::addColumn<DWORD>("filter");
    QTest::addColumn<Action>("action");
    QTest::addColumn<DWORD>("change");
    const auto row = [](const char* what, DWORD change, const Action& action) {
        QTest::addRow("%s, alone in the filter", what) << change << action << change;
        QTest::addRow("%s, all changes in the filter", what)
            << DWORD{PRINTER_CHANGE_ALL} << action << change;
    };
    row("value", PRINTER_CHANGE_SET_PRINTER, writeValue);
    row("pause", PRINTER_CHANGE_SET_PRINTER, [](const PrinterHandle& printer) {
        SetPrinterW(printer.get(), 0, nullptr, PRINTER_CONTROL_PAUSE);
    });
    row("new job", PRINTER_CHANGE_ADD_JOB, [](const PrinterHandle& printer) {
        startDocument(printer);
        EndDocPrinter(printer.get());
    });
    row("bytes", PRINTER_CHANGE_WRITE_JOB, [](const PrinterHandle& printer) {
        startDocument(printer);
        char byte = 'x';
        DWORD written = 0;
        WritePrinter(printer.get(), &byte, 1, &written);
        EndDocPrinter(printer.get());
    });
    row("purging", PRINTER_CHANGE_DELETE_JOB, [](const PrinterHandle& printer) {
        startDocument(printer);
        SetPrinterW(printer.get(), 0, nullptr, PRINTER_CONTROL_PURGE);
        EndDocPrinter(printer.get());
    });
    row("deletion", PRINTER_CHANGE_DELETE_PRINTER,
        [](const PrinterHandle& printer) { DeletePrinter(printer.get()); });
}

void ChangeNotificationsTest::changeIsNotified()
{
    QFETCH(DWORD, filter);
    QFETCH(Action, action);
    QFETCH(DWORD, change);
    const Notification notification = watch(m_printer, filter);
    QVERIFY(notification);
    action(m_printer);
    QVERIFY(isNotified(notification));
    DWORD reported = rearm(notification);
    // A consequence of the change may be notified separately.
    while (!(reported & change) && isNotified(notification))
        reported |= rearm(notification);
    QCOMPARE(reported & change, change);
    QCOMPARE(reported & ~filter, DWORD{0});
}

void ChangeNotificationsTest::changeOutsideTheFilterIsNotNotified_data()
{
    QTest::addColumn<DWORD>("filter");
    QTest::addColumn<Action>("action");
    const Action print = [](const PrinterHandle& printer) {
        startDocument(printer);
        EndDocPrinter(printer.get());
    };
    QTest::newRow("value, filter for jobs") << DWORD{PRINTER_CHANGE_JOB} << Action(writeValue);
    QTest::newRow("value, filter for deletion")
        << DWORD{PRINTER_CHANGE_DELETE_PRINTER} << Action(writeValue);
    QTest::newRow("job, filter for printers") << DWORD{PRINTER_CHANGE_SET_PRINTER} << print;
    QTest::newRow("job, filter for bytes") << DWORD{PRINTER_CHANGE_WRITE_JOB} << print;
}

void ChangeNotificationsTest::changeOutsideTheFilterIsNotNotified()
{
    QFETCH(DWORD, filter);
    QFETCH(Action, action);
    const Notification notification = watch(m_printer, filter);
    QVERIFY(notification);
    action(m_printer);
    QVERIFY(isQuiet(notification));
}

void ChangeNotificationsTest::staysSignalledUntilItIsRearmed()
{
    const Notification notification = watch(m_printer);
    writeValue(m_printer);
    for (int wait = 0; wait < 3; ++wait)
        QVERIFY(isNotified(notification));
    QCOMPARE(rearm(notification), DWORD{PRINTER_CHANGE_SET_PRINTER});
    QVERIFY(isQuiet(notification));
    writeValue(m_printer);
    QVERIFY(isNotified(notification));
}

void ChangeNotificationsTest::changesAreCollected()
{
    const Notification notification = watch(m_printer, PRINTER_CHANGE_ALL);
    for (int change = 0; change < 5; ++change)
        writeValue(m_printer);
    QVERIFY(startDocument(m_printer) != 0);
    QVERIFY(EndDocPrinter(m_printer.get()));
    constexpr DWORD expected = PRINTER_CHANGE_SET_PRINTER | PRINTER_CHANGE_ADD_JOB;
    DWORD reported = 0;
    int notifications = 0;
    while ((reported & expected) != expected && isNotified(notification)) {
        reported |= rearm(notification);
        ++notifications;
    }
    QCOMPARE(reported & expected, expected);
    QVERIFY2(notifications <= 2, qPrintable(QString::number(notifications)));
}

void ChangeNotificationsTest::changeBeforeRearmingIsNotLost()
{
    const Notification notification = watch(m_printer, PRINTER_CHANGE_ALL);
    writeValue(m_printer);
    QVERIFY(isNotified(notification));
    // At this point a waiting thread has been woken and has not re-armed yet.
    QVERIFY(startDocument(m_printer) != 0);
    DWORD reported = rearm(notification);
    QVERIFY(reported & PRINTER_CHANGE_SET_PRINTER);
    // The change is either reported by that call, or the notification is signalled again.
    while (!(reported & PRINTER_CHANGE_ADD_JOB) && isNotified(notification))
        reported |= rearm(notification);
    QVERIFY(reported & PRINTER_CHANGE_ADD_JOB);
    QVERIFY(EndDocPrinter(m_printer.get()));
}

void ChangeNotificationsTest::rearmingWithoutAChangeReportsNone()
{
    const Notification notification = watch(m_printer);
    QCOMPARE(rearm(notification), DWORD{0});
    QVERIFY(isQuiet(notification));
    writeValue(m_printer);
    QCOMPARE(waitForChanges(notification), DWORD{PRINTER_CHANGE_SET_PRINTER});
    QCOMPARE(rearm(notification), DWORD{0});
}

void ChangeNotificationsTest::changesNeedNotBeRead()
{
    const Notification notification = watch(m_printer);
    writeValue(m_printer);
    QVERIFY(isNotified(notification));
    QVERIFY(FindNextPrinterChangeNotification(notification.get(), nullptr, nullptr, nullptr));
    QVERIFY(isQuiet(notification));
}

void ChangeNotificationsTest::changesOfOtherPrintersAreNotNotified()
{
    const QString otherName = fixture::uniqueName(QStringLiteral("Vx Changes"));
    QVERIFY(fixture::addPrinter({.name = otherName}));
    const PrinterHandle other = openPrinter(otherName);
    const Notification notification = watch(m_printer, PRINTER_CHANGE_ALL);
    writeValue(other);
    QVERIFY(isQuiet(notification));
    const Notification ofOther = watch(other);
    writeValue(other);
    QVERIFY(isNotified(ofOther));
    QVERIFY(isQuiet(notification));
}

void ChangeNotificationsTest::printServerNotifiesChangesOfAllPrinters()
{
    const PrinterHandle server = openPrintServer();
    QVERIFY(server);
    const Notification notification = watch(server, PRINTER_CHANGE_SET_PRINTER);
    QVERIFY(notification);
    writeValue(m_printer);
    QCOMPARE(waitForChanges(notification), DWORD{PRINTER_CHANGE_SET_PRINTER});
}

void ChangeNotificationsTest::printServerNotifiesANewPrinter()
{
    const PrinterHandle server = openPrintServer();
    QVERIFY(server);
    const Notification notification = watch(server, PRINTER_CHANGE_ADD_PRINTER);
    QVERIFY(notification);
    writeValue(m_printer);
    QVERIFY(isQuiet(notification));
    QVERIFY(fixture::addPrinter({.name = fixture::uniqueName(QStringLiteral("Vx New"))}));
    QCOMPARE(waitForChanges(notification), DWORD{PRINTER_CHANGE_ADD_PRINTER});
}

void ChangeNotificationsTest::printServerNotifiesADeletedPrinter()
{
    const QString otherName = fixture::uniqueName(QStringLiteral("Vx Changes"));
    QVERIFY(fixture::addPrinter({.name = otherName}));
    const PrinterHandle server = openPrintServer();
    const Notification notification = watch(server, PRINTER_CHANGE_DELETE_PRINTER);
    QVERIFY(notification);
    QVERIFY(fixture::removePrinter(otherName));
    QCOMPARE(waitForChanges(notification), DWORD{PRINTER_CHANGE_DELETE_PRINTER});
}

// https://learn.microsoft.com/windows/win32/printdocs/findnextprinterchangenotification
// (PRINTER_CHANGE_SET_PRINTER)
void ChangeNotificationsTest::printServerNotifiesANewName()
{
    const PrinterHandle server = openPrintServer();
    const Notification notification = watch(server);
    QVERIFY(notification);
    DWORD needed = 0;
    GetPrinterW(m_printer.get(), 2, nullptr, 0, &needed);
    std::vector<BYTE> block(needed);
    QVERIFY(GetPrinterW(m_printer.get(), 2, block.data(), needed, &needed));
    auto& record = *reinterpret_cast<PRINTER_INFO_2W*>(block.data());
    WideText newName(fixture::uniqueName(QStringLiteral("Vx Renamed")));
    WideText oldName(m_name);
    record.pPrinterName = newName;
    record.pSecurityDescriptor = nullptr;
    QVERIFY(SetPrinterW(m_printer.get(), 2, block.data(), 0));
    QVERIFY(waitForChanges(notification) & PRINTER_CHANGE_SET_PRINTER);
    // The fixture removes the printer by its old name.
    record.pPrinterName = oldName;
    QVERIFY(SetPrinterW(m_printer.get(), 2, block.data(), 0));
}

void ChangeNotificationsTest::printServerNotifiesJobs()
{
    const PrinterHandle server = openPrintServer();
    const Notification notification = watch(server, PRINTER_CHANGE_ADD_JOB);
    QVERIFY(notification);
    QVERIFY(startDocument(m_printer) != 0);
    QCOMPARE(waitForChanges(notification), DWORD{PRINTER_CHANGE_ADD_JOB});
    QVERIFY(EndDocPrinter(m_printer.get()));
}

void ChangeNotificationsTest::notificationsAreIndependent()
{
    const PrinterHandle again = openPrinter(m_name);
    const Notification first = watch(m_printer);
    const Notification second = watch(m_printer);
    const Notification third = watch(again);
    writeValue(m_printer);
    QVERIFY(isNotified(first));
    QVERIFY(isNotified(second));
    QVERIFY(isNotified(third));
    QCOMPARE(rearm(first), DWORD{PRINTER_CHANGE_SET_PRINTER});
    QVERIFY(isQuiet(first));
    QCOMPARE(waitForChanges(second), DWORD{PRINTER_CHANGE_SET_PRINTER});
    QCOMPARE(rearm(third), DWORD{PRINTER_CHANGE_SET_PRINTER});
}

void ChangeNotificationsTest::waitingThreadIsWoken()
{
    const Notification notification = watch(m_printer);
    const EventHandle started(CreateEventW(nullptr, FALSE, FALSE, nullptr));
    DWORD result = WAIT_FAILED;
    {
        const std::jthread waiter([&] {
            SetEvent(started.get());
            result = WaitForSingleObject(notification.get(), longEnough);
        });
        WaitForSingleObject(started.get(), INFINITE);
        writeValue(m_printer);
    }
    QCOMPARE(result, DWORD{WAIT_OBJECT_0});
}

void ChangeNotificationsTest::canBeWaitedForTogetherWithEvents()
{
    const Notification notification = watch(m_printer);
    const EventHandle first(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    const EventHandle last(CreateEventW(nullptr, TRUE, TRUE, nullptr));
    const HANDLE handles[] = {first.get(), notification.get(), last.get()};
    QCOMPARE(WaitForMultipleObjects(3, handles, FALSE, 0), DWORD{WAIT_OBJECT_0 + 2});
    writeValue(m_printer);
    QVERIFY(isNotified(notification));
    QCOMPARE(WaitForMultipleObjects(3, handles, FALSE, 0), DWORD{WAIT_OBJECT_0 + 1});
    QVERIFY(SetEvent(first.get()));
    QCOMPARE(WaitForMultipleObjects(3, handles, FALSE, 0), DWORD{WAIT_OBJECT_0});
    QCOMPARE(WaitForMultipleObjects(3, handles, TRUE, 0), DWORD{WAIT_OBJECT_0});
}

void ChangeNotificationsTest::filterIsRequired()
{
    QCOMPARE(errorOf([&] {
                 return FindFirstPrinterChangeNotification(m_printer.get(), 0, 0, nullptr) !=
                        INVALID_HANDLE_VALUE;
             }),
             DWORD{ERROR_INVALID_PARAMETER});
}

void ChangeNotificationsTest::badPrinterHandleIsRefused_data()
{
    QTest::addColumn<bool>("closed");
    QTest::newRow("null") << false;
    QTest::newRow("closed") << true;
}

void ChangeNotificationsTest::badPrinterHandleIsRefused()
{
    QFETCH(bool, closed);
    expectMisuse(QStringLiteral("FindFirstPrinterChangeNotification"));
    const HANDLE handle = closed ? m_printer.get() : nullptr;
    if (closed)
        m_printer.reset();
    QCOMPARE(errorOf([&] {
                 return FindFirstPrinterChangeNotification(handle, PRINTER_CHANGE_PRINTER, 0,
                                                           nullptr) != INVALID_HANDLE_VALUE;
             }),
             DWORD{ERROR_INVALID_HANDLE});
}

void ChangeNotificationsTest::badNotificationFails_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<bool>("closed");
    for (const char* function : {"FindNextPrinterChangeNotification",
                                 "FindClosePrinterChangeNotification", "WaitForSingleObject"})
        for (const bool closed : {false, true})
            QTest::addRow("%s, %s", function, closed ? "closed" : "null")
                << QString::fromLatin1(function) << closed;
}

void ChangeNotificationsTest::badNotificationFails()
{
    QFETCH(QString, function);
    QFETCH(bool, closed);
    expectMisuse(function);
    HANDLE handle = nullptr;
    if (closed) {
        handle = watch(m_printer).release();
        QVERIFY(FindClosePrinterChangeNotification(handle));
    }
    DWORD change = 7777;
    const DWORD error = errorOf([&] {
        if (function == QLatin1String("FindNextPrinterChangeNotification"))
            return FindNextPrinterChangeNotification(handle, &change, nullptr, nullptr) != FALSE;
        if (function == QLatin1String("FindClosePrinterChangeNotification"))
            return FindClosePrinterChangeNotification(handle) != FALSE;
        return WaitForSingleObject(handle, INFINITE) != WAIT_FAILED;
    });
    QCOMPARE(error, DWORD{ERROR_INVALID_HANDLE});
    QCOMPARE(change, DWORD{7777});
}

void ChangeNotificationsTest::invalidHandleValueIsNotANotification()
{
    QCOMPARE(errorOf([] { return FindClosePrinterChangeNotification(INVALID_HANDLE_VALUE); }),
             DWORD{ERROR_INVALID_HANDLE});
    QCOMPARE(errorOf([] {
                 return FindNextPrinterChangeNotification(INVALID_HANDLE_VALUE, nullptr, nullptr,
                                                          nullptr);
             }),
             DWORD{ERROR_INVALID_HANDLE});
}

void ChangeNotificationsTest::closingLeavesThePrinterOpen()
{
    Notification notification = watch(m_printer);
    QVERIFY(FindClosePrinterChangeNotification(notification.release()));
    writeValue(m_printer);
    notification = watch(m_printer);
    QVERIFY(notification);
    QVERIFY(isQuiet(notification));
}

// https://learn.microsoft.com/openspecs/windows_protocols/ms-rprn/8482c186-7773-4fb5-8034-e9bae7a91e52
// (RpcClosePrinter: notifications that the client did not close are closed with the handle)
void ChangeNotificationsTest::endsWithItsPrinterHandle()
{
    const PrinterHandle again = openPrinter(m_name);
    const Notification ended = watch(m_printer);
    const Notification other = watch(again);
    QVERIFY(ClosePrinter(m_printer.release()));
    writeValue(again);
    QVERIFY(isNotified(other));
    // The notification can still be waited for, but is never signalled again.
    QVERIFY(isQuiet(ended));
    QCOMPARE(errorOf([&] {
                 return FindNextPrinterChangeNotification(ended.get(), nullptr, nullptr, nullptr);
             }),
             DWORD{ERROR_INVALID_HANDLE});
}

QTEST_GUILESS_MAIN(ChangeNotificationsTest)
#include "tst_change_notifications.moc"
