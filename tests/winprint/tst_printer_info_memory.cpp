// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Blocks for the spooler: what happens without memory, and that each block is released on every
// path.
#include "log_recorder.h"
#include "machine_test.h"

#include "printer_status_thread.h"
#include "windows_handles.h"
#include "windows_printer_info.h"

#include <cstdlib>
#include <set>
#include <stdexcept>

namespace {

// The blocks that the library's own objects allocate; nothing else in the process is counted.
std::set<void*> allocated;
int allocationsUntilFailure = -1;

template <typename Allocation>
void* allocate(Allocation allocation)
{
    if (allocationsUntilFailure > 0 && --allocationsUntilFailure == 0)
        return nullptr;
    void* block = allocation();
    allocated.insert(block);
    return block;
}

const QString printerName = QStringLiteral("Printer");

} // namespace

// Exported, because a sanitizer's library refers to them as well. The linker's option --wrap
// prescribes the names. NOLINTBEGIN(bugprone-reserved-identifier, readability-identifier-naming)
extern "C" {
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void __real_free(void* block);

Q_DECL_EXPORT void* __wrap_malloc(std::size_t size)
{
    return allocate([&] { return __real_malloc(size); });
}

// An optimizing compiler replaces malloc and clearing by this.
Q_DECL_EXPORT void* __wrap_calloc(std::size_t count, std::size_t size)
{
    return allocate([&] { return __real_calloc(count, size); });
}

Q_DECL_EXPORT void __wrap_free(void* block)
{
    allocated.erase(block);
    __real_free(block);
}
}
// NOLINTEND(bugprone-reserved-identifier, readability-identifier-naming)

class PrinterInfoMemoryTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void callerReleasesTheRecord();
    void recordWithoutMemoryIsNull();
    void printerWithoutMemoryCountsAsOffline();
    void enumerationWithoutMemoryIsEmpty();
    void nameWithoutMemoryIsEmpty();
    void everyPathReleasesItsBlock();
    void exceptionReleasesTheBlock();
};

void PrinterInfoMemoryTest::init()
{
    MachineTest::init();
    machine().addPrinter(
        {.name = QStringLiteral("Printer"), .driver = QStringLiteral("Stratamark Alder")});
    allocated.clear();
    allocationsUntilFailure = -1;
}

void PrinterInfoMemoryTest::cleanup()
{
    allocationsUntilFailure = -1;
    QVERIFY(allocated.empty());
    MachineTest::cleanup();
}

void PrinterInfoMemoryTest::callerReleasesTheRecord()
{
    const PrinterHandle printer = openPrinter(printerName);
    PRINTER_INFO_2W* info = WindowsPrinterInfo::getPrinterInfo2(printer.get());
    QVERIFY(info);
    QCOMPARE(allocated, std::set<void*>{info});
    std::free(info);
}

void PrinterInfoMemoryTest::recordWithoutMemoryIsNull()
{
    const LogRecorder log;
    const PrinterHandle printer = openPrinter(printerName);
    allocationsUntilFailure = 1;
    QVERIFY(!WindowsPrinterInfo::getPrinterInfo2(printer.get()));
    QCOMPARE(log.records(),
             QList<LogRecord>{
                 libraryLine("windows_printer_info", 233,
                             "static PRINTER_INFO_2* WindowsPrinterInfo::getPrinterInfo2(HANDLE)",
                             QStringLiteral("Failure to allocate memory. "))});
    QCOMPARE(machine().callCount(QStringLiteral("GetPrinterW")), 1);
}

void PrinterInfoMemoryTest::printerWithoutMemoryCountsAsOffline()
{
    QVERIFY(!WindowsPrinterInfo::isPrinterOffline(printerName));
    allocationsUntilFailure = 1;
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(printerName));
}

void PrinterInfoMemoryTest::enumerationWithoutMemoryIsEmpty()
{
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinters().size(), 1);
    allocationsUntilFailure = 1;
    QVERIFY(WindowsPrinterInfo::getAvailablePrinters().isEmpty());
}

void PrinterInfoMemoryTest::nameWithoutMemoryIsEmpty()
{
    PrinterStatusThread thread;
    const PrinterHandle printer = openPrinter(printerName);
    QCOMPARE(thread.getPrinterNameFromHandle(printer.get()), printerName);
    allocationsUntilFailure = 1;
    QVERIFY(thread.getPrinterNameFromHandle(printer.get()).isEmpty());
}

void PrinterInfoMemoryTest::everyPathReleasesItsBlock()
{
    WindowsPrinterInfo::getAvailablePrinters();
    WindowsPrinterInfo::getAvailablePrinterInfo(printerName);
    WindowsPrinterInfo::isPrinterOffline(printerName);
    QVERIFY(allocated.empty());

    for (const char* function : {"EnumPrintersW", "GetPrinterW"}) {
        for (int call : {1, 2}) {
            machine().failCall(QString::fromLatin1(function), call, ERROR_ACCESS_DENIED);
            WindowsPrinterInfo::getAvailablePrinters();
            WindowsPrinterInfo::getAvailablePrinterInfo(printerName);
            WindowsPrinterInfo::isPrinterOffline(printerName);
            machine().clearFailures();
            QVERIFY(allocated.empty());
        }
    }
}

void PrinterInfoMemoryTest::exceptionReleasesTheBlock()
{
    machine().addPrinter({.name = QString(), .driver = QStringLiteral("Stratamark Alder")});
    QVERIFY_EXCEPTION_THROWN(WindowsPrinterInfo::getAvailablePrinters(), std::logic_error);
    QVERIFY(allocated.empty());
}

QTEST_GUILESS_MAIN(PrinterInfoMemoryTest)
#include "tst_printer_info_memory.moc"
