// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The library's calls are led through the kit, and stay what they were.
#include "call_tap.h"

#include <printer_status_thread.h>
#include <windows_printer_info.h>

#include <QtTest/QtTest>

using VxKit::CallListener;

namespace {

constexpr DWORD errorOfListener = 4711;
const QString missingPrinter = QStringLiteral("no such printer 6d1c");

/// What a listener was told.
struct Told
{
    int openings = 0;
    int values = 0;
    int records = 0;
    int announcedListings = 0;
    int listings = 0;
    int defaults = 0;
    QByteArray lastPrinter;
    QByteArray lastValue;
    HANDLE lastHandle = nullptr;
    ACCESS_MASK lastAccess = 0;
    DWORD lastLevel = 0;
    DWORD lastSize = 0;
    DWORD lastError = 0;
};

/// Counts what it is told, and changes the last error as any code may.
class Counter final : public CallListener, public Told
{
public:
    void opened(const char* printer, HANDLE handle, ACCESS_MASK access, DWORD error) override
    {
        ++openings;
        lastPrinter = printer;
        lastHandle = handle;
        lastAccess = access;
        note(error);
    }
    void readValue(const char* name, DWORD, const BYTE*, DWORD size, DWORD, DWORD error) override
    {
        ++values;
        lastValue = name;
        lastSize = size;
        note(error);
    }
    void readRecord(HANDLE, DWORD level, const BYTE*, DWORD error) override
    {
        ++records;
        lastLevel = level;
        note(error);
    }
    void willList() override { ++announcedListings; }
    void listed(DWORD level, const BYTE*, DWORD, DWORD error) override
    {
        ++listings;
        lastLevel = level;
        note(error);
    }
    void readDefault(const WCHAR*, DWORD error) override
    {
        ++defaults;
        note(error);
    }
    void beganWatching(DWORD error) override { note(error); }
    void rearmed(DWORD error) override { note(error); }
    void queriedService(DWORD, DWORD error) override { note(error); }
    void failed(const char*, DWORD error) override { note(error); }
    void willWait() override {}
    void waited(DWORD, qint64) override {}

    void reset() { static_cast<Told&>(*this) = {}; }

private:
    void note(DWORD error)
    {
        lastError = error;
        SetLastError(errorOfListener);
    }
};

} // namespace

class CallTapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void tellsOfEachCallOnce();
    void tellsOfAListing();
    void keepsResultAndLastError();
    void tellsOfAValueThatCannotBeRead();
    void doesNotTellOfCallsOfOthers();
    void passesThroughWhenNobodyListens();
    void mayBeInstalledAgain();

private:
    Counter m_counter;
};

void CallTapTest::initTestCase()
{
    QVERIFY(VxKit::call_tap::install());
}

void CallTapTest::init()
{
    m_counter.reset();
    VxKit::call_tap::setListener(&m_counter);
}

void CallTapTest::cleanup()
{
    VxKit::call_tap::setListener(nullptr);
}

void CallTapTest::tellsOfEachCallOnce()
{
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(missingPrinter));
    QCOMPARE(m_counter.openings, 1);
    QCOMPARE(m_counter.lastPrinter, missingPrinter.toLocal8Bit());
    QCOMPARE(m_counter.lastHandle, nullptr);
    QCOMPARE(m_counter.lastAccess, ACCESS_MASK(PRINTER_ALL_ACCESS));
    QVERIFY(m_counter.lastError != 0);
}

void CallTapTest::tellsOfAListing()
{
    WindowsPrinterInfo::getAvailablePrinters();
    QVERIFY(m_counter.listings >= 2); // the size is asked for first
    QCOMPARE(m_counter.announcedListings, m_counter.listings);
    QCOMPARE(m_counter.lastLevel, DWORD(2));
    WindowsPrinterInfo::getDefaultPrinterName();
    QVERIFY(m_counter.defaults >= 1);
}

void CallTapTest::keepsResultAndLastError()
{
    QByteArray name = missingPrinter.toLocal8Bit();
    HANDLE handle = nullptr;
    SetLastError(0);
    QVERIFY(!OpenPrinterA(name.data(), &handle, nullptr));
    const DWORD expected = GetLastError();
    QVERIFY(expected != 0);

    SetLastError(0);
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(missingPrinter));
    QCOMPARE(m_counter.openings, 1);
    QCOMPARE(m_counter.lastError, expected);
    QCOMPARE(GetLastError(), expected);
}

void CallTapTest::tellsOfAValueThatCannotBeRead()
{
    PrinterStatusThread thread;
    const HANDLE none = nullptr;
    QVERIFY(thread.getSupplyId(none).isEmpty());
    QCOMPARE(m_counter.values, 1);
    QCOMPARE(m_counter.lastValue, QByteArray("SupplyIdentifier"));
    QCOMPARE(m_counter.lastSize, DWORD(21));
    QVERIFY(m_counter.lastError != 0);
    QVERIFY(thread.getPrinterNameFromHandle(none).isEmpty());
    QCOMPARE(m_counter.records, 1);
    QCOMPARE(m_counter.lastLevel, DWORD(1));
}

void CallTapTest::doesNotTellOfCallsOfOthers()
{
    QByteArray name = missingPrinter.toLocal8Bit();
    HANDLE handle = nullptr;
    QVERIFY(!OpenPrinterA(name.data(), &handle, nullptr));
    QCOMPARE(m_counter.openings, 0);
}

void CallTapTest::passesThroughWhenNobodyListens()
{
    VxKit::call_tap::setListener(nullptr);
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(missingPrinter));
    QVERIFY(GetLastError() != errorOfListener);
    QCOMPARE(m_counter.openings, 0);
}

void CallTapTest::mayBeInstalledAgain()
{
    QVERIFY(VxKit::call_tap::install());
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(missingPrinter));
    QCOMPARE(m_counter.openings, 1);
}

QTEST_GUILESS_MAIN(CallTapTest)
#include "tst_call_tap.moc"
