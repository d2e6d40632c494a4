// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Documents, their pages and the bytes that are sent to a printer.

#include "fixture.h"
#include "patience.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <vector>

class PrintJobsTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void bytesArriveInOrder();
    void pagesFollowEachOther();
    void bytesAreNotInterpreted();
    void writingNothingIsAllowed();
    void jobsHaveDistinctNumbers();
    void jobIsCountedWhileItIsWritten();

    void jobIsQueriedWhileItIsWritten();
    void jobsAreListed();
    void blockThatIsTooSmallIsRefused();
    void unknownJobIsRefused_data();
    void unknownJobIsRefused();
    void unknownLevelOfJobsIsRefused();
    void deletedJobLeavesTheQueue();
    void pausedPrinterKeepsItsJobs();

    void otherLevelsAreRefused_data();
    void otherLevelsAreRefused();
    void onlyOneDocumentAtATime();
    void eachHandleHasItsOwnDocument();
    void callsOutsideADocumentFail_data();
    void callsOutsideADocumentFail();
    void callsAfterTheDocumentFail();
    void badHandleFails_data();
    void badHandleFails();

private:
    DWORD startDocument(const PrinterHandle& printer, const QString& name);
    DWORD startDocument() { return startDocument(m_printer, QStringLiteral("label.bin")); }
    bool write(const PrinterHandle& printer, QByteArray bytes);
    QByteArray printed(const QString& name = QStringLiteral("label.bin")) const
    {
        return fixture::printedBytes(m_name, outputFile(name));
    }
    QString outputFile(const QString& name) const
    {
        return QDir::toNativeSeparators(m_folder->filePath(name));
    }

    /// The numbers of the jobs in the queue; 7777 when they cannot be listed.
    QList<DWORD> queue(DWORD first = 0, DWORD most = 100) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_name;
    PrinterHandle m_printer;
};

void PrintJobsTest::init()
{
    WindowsApiTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_name = fixture::uniqueName(QStringLiteral("Vx Jobs"));
    QVERIFY(fixture::addPrinter({.name = m_name}));
    m_printer = openPrinter(m_name);
    QVERIFY(m_printer);
}

void PrintJobsTest::cleanup()
{
    m_printer.reset();
    WindowsApiTest::cleanup();
}

DWORD PrintJobsTest::startDocument(const PrinterHandle& printer, const QString& name)
{
    WideText document(QStringLiteral("Label"));
    WideText file(outputFile(name));
    WideText datatype(QStringLiteral("RAW"));
    DOC_INFO_1W info{};
    info.pDocName = document;
    info.pOutputFile = file;
    info.pDatatype = datatype;
    return StartDocPrinterW(printer.get(), 1, reinterpret_cast<LPBYTE>(&info));
}

bool PrintJobsTest::write(const PrinterHandle& printer, QByteArray bytes)
{
    DWORD written = 7777;
    return WritePrinter(printer.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written) &&
           written == static_cast<DWORD>(bytes.size());
}

void PrintJobsTest::bytesArriveInOrder()
{
    QVERIFY(startDocument() != 0);
    QVERIFY(StartPagePrinter(m_printer.get()));
    QVERIFY(write(m_printer, "first, "));
    QVERIFY(write(m_printer, "second"));
    QVERIFY(EndPagePrinter(m_printer.get()));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(printed(), "first, second");
}

void PrintJobsTest::pagesFollowEachOther()
{
    QVERIFY(startDocument() != 0);
    for (const char* page : {"one ", "two ", "three"}) {
        QVERIFY(StartPagePrinter(m_printer.get()));
        QVERIFY(write(m_printer, page));
        QVERIFY(EndPagePrinter(m_printer.get()));
    }
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(printed(), "one two three");
}

void PrintJobsTest::bytesAreNotInterpreted()
{
    QByteArray bytes;
    for (int value = 0; value < 256; ++value)
        bytes.append(static_cast<char>(value));
    bytes = bytes.repeated(300);
    QVERIFY(startDocument() != 0);
    QVERIFY(StartPagePrinter(m_printer.get()));
    QVERIFY(write(m_printer, bytes));
    QVERIFY(EndPagePrinter(m_printer.get()));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QVERIFY(printed() == bytes);
}

void PrintJobsTest::writingNothingIsAllowed()
{
    QVERIFY(startDocument() != 0);
    QVERIFY(StartPagePrinter(m_printer.get()));
    QVERIFY(write(m_printer, "a"));
    QVERIFY(write(m_printer, QByteArray()));
    QVERIFY(write(m_printer, "b"));
    QVERIFY(EndPagePrinter(m_printer.get()));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(printed(), "ab");
}

void PrintJobsTest::jobsHaveDistinctNumbers()
{
    QList<DWORD> numbers;
    for (int document = 0; document < 3; ++document) {
        numbers.append(startDocument());
        QVERIFY(write(m_printer, "x"));
        QVERIFY(EndDocPrinter(m_printer.get()));
    }
    QVERIFY(!numbers.contains(DWORD{0}));
    QVERIFY(numbers.at(0) != numbers.at(1));
    QVERIFY(numbers.at(1) != numbers.at(2));
    QVERIFY(numbers.at(0) != numbers.at(2));
}

void PrintJobsTest::jobIsCountedWhileItIsWritten()
{
    NEEDS_BEHAVIOUR(Behaviour::JobCounts);
    const auto jobCount = [this] {
        DWORD needed = 0;
        GetPrinterW(m_printer.get(), 2, nullptr, 0, &needed);
        std::vector<BYTE> block(needed);
        const BOOL done = GetPrinterW(m_printer.get(), 2, block.data(), needed, &needed);
        return done ? reinterpret_cast<const PRINTER_INFO_2W*>(block.data())->cJobs : DWORD{7777};
    };
    QCOMPARE(jobCount(), DWORD{0});
    QVERIFY(startDocument() != 0);
    QCOMPARE(jobCount(), DWORD{1});
    QVERIFY(EndDocPrinter(m_printer.get()));
    QTRY_COMPARE(jobCount(), DWORD{0});
}

QList<DWORD> PrintJobsTest::queue(DWORD first, DWORD most) const
{
    DWORD needed = 0;
    DWORD count = 0;
    EnumJobsW(m_printer.get(), first, most, 1, nullptr, 0, &needed, &count);
    std::vector<BYTE> block(needed);
    if (!EnumJobsW(m_printer.get(), first, most, 1, block.data(), needed, &needed, &count))
        return {7777};
    QList<DWORD> numbers;
    for (DWORD index = 0; index < count; ++index)
        numbers.append(reinterpret_cast<const JOB_INFO_1W*>(block.data())[index].JobId);
    return numbers;
}

// https://learn.microsoft.com/windows/win32/printdocs/getjob
void PrintJobsTest::jobIsQueriedWhileItIsWritten()
{
    const DWORD id = startDocument();
    QVERIFY(id != 0);
    for (const DWORD level : {DWORD{1}, DWORD{2}}) {
        DWORD needed = 0;
        GetJobW(m_printer.get(), id, level, nullptr, 0, &needed);
        QVERIFY(needed >= (level == 1 ? sizeof(JOB_INFO_1W) : sizeof(JOB_INFO_2W)));
        std::vector<BYTE> block(needed);
        QVERIFY(GetJobW(m_printer.get(), id, level, block.data(), needed, &needed));
        if (level == 1) {
            const auto& job = *reinterpret_cast<const JOB_INFO_1W*>(block.data());
            QCOMPARE(job.JobId, id);
            QCOMPARE(fromWide(job.pDocument), QStringLiteral("Label"));
            QCOMPARE(fromWide(job.pPrinterName), m_name);
        } else {
            const auto& job = *reinterpret_cast<const JOB_INFO_2W*>(block.data());
            QCOMPARE(job.JobId, id);
            QCOMPARE(fromWide(job.pDocument), QStringLiteral("Label"));
            QCOMPARE(fromWide(job.pPrinterName), m_name);
        }
    }
    QVERIFY(EndDocPrinter(m_printer.get()));
}

// https://learn.microsoft.com/windows/win32/printdocs/enumjobs
void PrintJobsTest::jobsAreListed()
{
    NEEDS_BEHAVIOUR(Behaviour::JobQueues);
    QCOMPARE(queue(), QList<DWORD>());
    const PrinterHandle other = openPrinter(m_name);
    const DWORD first = startDocument();
    const DWORD second = startDocument(other, QStringLiteral("other.bin"));
    QCOMPARE(queue(), (QList<DWORD>{first, second}));
    QCOMPARE(queue(0, 1), QList<DWORD>{first});
    QCOMPARE(queue(1), QList<DWORD>{second});
    QCOMPARE(queue(2), QList<DWORD>());
    QVERIFY(EndDocPrinter(m_printer.get()));
    QVERIFY(EndDocPrinter(other.get()));
    QTRY_COMPARE(queue(), QList<DWORD>());
}

void PrintJobsTest::blockThatIsTooSmallIsRefused()
{
    NEEDS_BEHAVIOUR(Behaviour::JobQueues);
    const DWORD id = startDocument();
    BYTE byte = 0;
    DWORD needed = 0;
    DWORD count = 7777;
    QCOMPARE(errorOf([&] { return GetJobW(m_printer.get(), id, 1, &byte, 1, &needed); }),
             DWORD{ERROR_INSUFFICIENT_BUFFER});
    QVERIFY(needed >= sizeof(JOB_INFO_1W));
    needed = 0;
    QCOMPARE(
        errorOf([&] { return EnumJobsW(m_printer.get(), 0, 1, 1, &byte, 1, &needed, &count); }),
        DWORD{ERROR_INSUFFICIENT_BUFFER});
    QVERIFY(needed >= sizeof(JOB_INFO_1W));
    QCOMPARE(count, DWORD{0});
    QVERIFY(EndDocPrinter(m_printer.get()));
}

void PrintJobsTest::unknownJobIsRefused_data()
{
    QTest::addColumn<bool>("printed");
    QTest::newRow("never existed") << false;
    QTest::newRow("printed") << true;
}

// https://learn.microsoft.com/openspecs/windows_protocols/ms-rprn/f7090127-287b-4aa7-ba8b-2b6b7247dfc6
// (RpcGetJob: the identifier is looked for in the list of jobs)
void PrintJobsTest::unknownJobIsRefused()
{
    NEEDS_BEHAVIOUR(Behaviour::JobQueues);
    QFETCH(bool, printed);
    DWORD id = 4711;
    if (printed) {
        id = startDocument();
        QVERIFY(EndDocPrinter(m_printer.get()));
        QTRY_COMPARE(queue(), QList<DWORD>());
    }
    DWORD needed = 0;
    QCOMPARE(errorOf([&] { return GetJobW(m_printer.get(), id, 1, nullptr, 0, &needed); }),
             DWORD{ERROR_INVALID_PARAMETER});
    QCOMPARE(errorOf([&] { return SetJobW(m_printer.get(), id, 0, nullptr, JOB_CONTROL_DELETE); }),
             DWORD{ERROR_INVALID_PARAMETER});
}

void PrintJobsTest::unknownLevelOfJobsIsRefused()
{
    NEEDS_BEHAVIOUR(Behaviour::JobQueues);
    const DWORD id = startDocument();
    DWORD needed = 0;
    DWORD count = 0;
    QCOMPARE(errorOf([&] { return GetJobW(m_printer.get(), id, 17, nullptr, 0, &needed); }),
             DWORD{ERROR_INVALID_LEVEL});
    QCOMPARE(
        errorOf([&] { return EnumJobsW(m_printer.get(), 0, 1, 17, nullptr, 0, &needed, &count); }),
        DWORD{ERROR_INVALID_LEVEL});
    QVERIFY(EndDocPrinter(m_printer.get()));
}

// https://learn.microsoft.com/windows/win32/printdocs/setjob
void PrintJobsTest::deletedJobLeavesTheQueue()
{
    NEEDS_BEHAVIOUR(Behaviour::PrinterCommands);
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PAUSE));
    const DWORD first = startDocument();
    QVERIFY(EndDocPrinter(m_printer.get()));
    const DWORD second = startDocument();
    QVERIFY(EndDocPrinter(m_printer.get()));
    QVERIFY(SetJobW(m_printer.get(), first, 0, nullptr, JOB_CONTROL_DELETE));
    QTRY_COMPARE(queue(), QList<DWORD>{second});
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PURGE));
    QTRY_COMPARE(queue(), QList<DWORD>());
}

// https://learn.microsoft.com/windows/win32/printdocs/setprinter (PRINTER_CONTROL_PAUSE)
void PrintJobsTest::pausedPrinterKeepsItsJobs()
{
    NEEDS_BEHAVIOUR(Behaviour::PrinterCommands);
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PAUSE));
    const DWORD id = startDocument();
    QVERIFY(write(m_printer, "kept"));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(queue(), QList<DWORD>{id});
    QVERIFY(SetJobW(m_printer.get(), id, 0, nullptr, JOB_CONTROL_PAUSE));
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_RESUME));
    QCOMPARE(queue(), QList<DWORD>{id});
    QVERIFY(SetJobW(m_printer.get(), id, 0, nullptr, JOB_CONTROL_RESUME));
    QTRY_COMPARE(queue(), QList<DWORD>());
    QCOMPARE(printed(), "kept");
}

void PrintJobsTest::otherLevelsAreRefused_data()
{
    QTest::addColumn<DWORD>("level");
    QTest::newRow("0") << DWORD{0};
    QTest::newRow("17") << DWORD{17};
}

void PrintJobsTest::otherLevelsAreRefused()
{
    QFETCH(DWORD, level);
    DOC_INFO_1W info{};
    QCOMPARE(errorOf([&] {
                 return StartDocPrinterW(m_printer.get(), level, reinterpret_cast<LPBYTE>(&info));
             }),
             DWORD{ERROR_INVALID_LEVEL});
}

void PrintJobsTest::onlyOneDocumentAtATime()
{
    QVERIFY(startDocument() != 0);
    QCOMPARE(errorOf([&] { return startDocument(m_printer, QStringLiteral("other.bin")); }),
             DWORD{ERROR_INVALID_PRINTER_STATE});
    QVERIFY(write(m_printer, "still the first"));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(printed(), "still the first");
}

void PrintJobsTest::eachHandleHasItsOwnDocument()
{
    const PrinterHandle other = openPrinter(m_name);
    QVERIFY(startDocument() != 0);
    QVERIFY(startDocument(other, QStringLiteral("other.bin")) != 0);
    QVERIFY(write(other, "b"));
    QVERIFY(write(m_printer, "a"));
    QVERIFY(EndDocPrinter(m_printer.get()));
    QCOMPARE(errorOf([&] { return write(m_printer, "a"); }), DWORD{ERROR_SPL_NO_STARTDOC});
    QVERIFY(write(other, "b"));
    QVERIFY(EndDocPrinter(other.get()));
    QCOMPARE(printed(QStringLiteral("other.bin")), "bb");
}

void PrintJobsTest::callsOutsideADocumentFail_data()
{
    QTest::addColumn<QString>("function");
    for (const char* function :
         {"StartPagePrinter", "WritePrinter", "EndPagePrinter", "EndDocPrinter"})
        QTest::newRow(function) << QString::fromLatin1(function);
}

namespace {

/// Calls one of the functions that need an open document.
BOOL callInDocument(const QString& function, HANDLE printer)
{
    char byte = 'x';
    DWORD written = 0;
    if (function == QLatin1String("StartPagePrinter"))
        return StartPagePrinter(printer);
    if (function == QLatin1String("WritePrinter"))
        return WritePrinter(printer, &byte, 1, &written);
    if (function == QLatin1String("EndPagePrinter"))
        return EndPagePrinter(printer);
    return EndDocPrinter(printer);
}

} // namespace

void PrintJobsTest::callsOutsideADocumentFail()
{
    QFETCH(QString, function);
    if (function.contains(QLatin1String("Page")))
        NEEDS_BEHAVIOUR(Behaviour::PageCalls);
    QCOMPARE(errorOf([&] { return callInDocument(function, m_printer.get()); }),
             DWORD{ERROR_SPL_NO_STARTDOC});
}

void PrintJobsTest::callsAfterTheDocumentFail()
{
    QVERIFY(startDocument() != 0);
    QVERIFY(write(m_printer, "x"));
    QVERIFY(EndDocPrinter(m_printer.get()));
    DWORD written = 7777;
    char byte = 'y';
    QCOMPARE(errorOf([&] { return WritePrinter(m_printer.get(), &byte, 1, &written); }),
             DWORD{ERROR_SPL_NO_STARTDOC});
    QCOMPARE(errorOf([&] { return EndDocPrinter(m_printer.get()); }), DWORD{ERROR_SPL_NO_STARTDOC});
    QCOMPARE(printed(), "x");
}

void PrintJobsTest::badHandleFails_data()
{
    callsOutsideADocumentFail_data();
    QTest::newRow("StartDocPrinterW") << QStringLiteral("StartDocPrinterW");
}

void PrintJobsTest::badHandleFails()
{
    QFETCH(QString, function);
    if (function.contains(QLatin1String("Page")))
        NEEDS_BEHAVIOUR(Behaviour::PageCalls);
    expectMisuse(function);
    const DWORD error = errorOf([&]() -> BOOL {
        if (function == QLatin1String("StartDocPrinterW"))
            return startDocument(PrinterHandle(), QStringLiteral("none.bin")) != 0;
        return callInDocument(function, nullptr);
    });
    QCOMPARE(error, DWORD{ERROR_INVALID_HANDLE});
}

QTEST_GUILESS_MAIN(PrintJobsTest)
#include "tst_print_jobs.moc"
