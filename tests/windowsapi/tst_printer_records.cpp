// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The spooler's records of printers: reading, changing, listing, adding and deleting them.

#include "fixture.h"

#include <QtTest/QtTest>

#include <vector>

namespace {

constexpr BYTE filler = 0xCC;
constexpr DWORD noSize = 7777;

/// A block that a call filled with records and their texts.
struct Block
{
    BOOL done = FALSE;
    DWORD error = 0;
    DWORD needed = noSize;
    DWORD returned = noSize;
    std::vector<BYTE> bytes;

    template <typename Record>
    const Record& record(std::size_t index = 0) const
    {
        return reinterpret_cast<const Record*>(bytes.data())[index];
    }
    bool isUntouched() const
    {
        return std::all_of(bytes.begin(), bytes.end(), [](BYTE byte) { return byte == filler; });
    }
    /// The text and its terminating zero lie in the block, after the records.
    bool holds(LPCWSTR text, std::size_t sizeOfRecords) const
    {
        const auto* start = reinterpret_cast<const BYTE*>(text);
        const auto size = static_cast<std::size_t>(fromWide(text).size() + 1) * sizeof(WCHAR);
        return start >= bytes.data() + sizeOfRecords && start + size <= bytes.data() + needed;
    }
};

Block getPrinter(HANDLE printer, DWORD level, DWORD size)
{
    Block block;
    block.bytes.assign(size, filler);
    block.error = errorOf([&] {
        block.done =
            GetPrinterW(printer, level, size ? block.bytes.data() : nullptr, size, &block.needed);
        return block.done;
    });
    return block;
}

/// With a block of the needed size.
Block getPrinter(HANDLE printer, DWORD level)
{
    return getPrinter(printer, level, getPrinter(printer, level, 0).needed);
}

Block enumPrinters(DWORD flags, DWORD size, DWORD level = 2)
{
    Block block;
    block.bytes.assign(size, filler);
    block.error = errorOf([&] {
        block.done = EnumPrintersW(flags, nullptr, level, size ? block.bytes.data() : nullptr, size,
                                   &block.needed, &block.returned);
        return block.done;
    });
    return block;
}

QStringList listedPrinters(DWORD flags)
{
    const Block block = enumPrinters(flags, enumPrinters(flags, 0).needed);
    QStringList names;
    for (DWORD index = 0; block.done && index < block.returned; ++index)
        names.append(fromWide(block.record<PRINTER_INFO_2W>(index).pPrinterName));
    return names;
}

QString defaultPrinter()
{
    DWORD size = 0;
    GetDefaultPrinterW(nullptr, &size);
    std::vector<WCHAR> name(size);
    return size && GetDefaultPrinterW(name.data(), &size) ? fromWide(name.data()) : QString();
}

/// Restores the user's default printer at the end of its scope.
class DefaultPrinterRestorer
{
public:
    DefaultPrinterRestorer() = default;
    ~DefaultPrinterRestorer()
    {
        if (!m_before.isEmpty())
            SetDefaultPrinterW(WideText(m_before));
    }
    Q_DISABLE_COPY_MOVE(DefaultPrinterRestorer)

private:
    const QString m_before = defaultPrinter();
};

constexpr DWORD allLocal = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;

} // namespace

class PrinterRecordsTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void recordNeedsTheSizeItReports_data();
    void recordNeedsTheSizeItReports();
    void level2HoldsTheWholeRecord();
    void level1HoldsNameAndDescription();
    void levels4And5HoldAFewMembers();
    void levels6And7HoldNoTexts();
    void recordHoldsTheAttributes_data();
    void recordHoldsTheAttributes();
    void unknownLevelIsRefused_data();
    void unknownLevelIsRefused();
    void badHandleFails_data();
    void badHandleFails();

    void recordCanBeChanged();
    void printerCanBeRenamed();
    void renamingToATakenNameFails();
    void changingNeedsAdministerAccess();
    void printerCanBePausedAndResumed();
    void unknownCommandIsRefused();

    void listNeedsTheSizeItReports();
    void listHoldsRecords();
    void grownListDoesNotFitTheReportedSize();
    void flagsSelectThePrinters_data();
    void flagsSelectThePrinters();
    void eachLevelListsTheSamePrinters_data();
    void eachLevelListsTheSamePrinters();
    void level1ByNameListsPrintProviders();
    void listByNameAcceptsOnlyAProvider_data();
    void listByNameAcceptsOnlyAProvider();
    void emptyListNeedsNoBuffer();
    void listOfAnUnknownLevelIsRefused_data();
    void listOfAnUnknownLevelIsRefused();

    void defaultPrinterCanBeChosen();
    void defaultPrintersNameNeedsTheSizeItReports();
    void defaultPrinterNeedsACount();
    void choosingAnAbsentPrinterFails();
    void choosingNothingKeepsTheChoice_data();
    void choosingNothingKeepsTheChoice();
    void deletedPrinterIsNoLongerTheDefault();
    void defaultPrinterNeedsNoSpooler();

    void addingReturnsAHandleWithFullAccess();
    void addingRefusesIncompleteRecords_data();
    void addingRefusesIncompleteRecords();
    void addingATakenNameFails_data();
    void addingATakenNameFails();

    void deletedPrinterIsGone();
    void handlesOfADeletedPrinterFail();
    void nameOfADeletedPrinterCanBeReused();
    void deletingNeedsAdministerAccess();
    void pausedPrinterWithJobsIsNotDeleted();

private:
    QString m_name;
    PrinterHandle m_printer;
};

void PrinterRecordsTest::init()
{
    WindowsApiTest::init();
    m_name = fixture::uniqueName(QStringLiteral("Vx Record"));
    QVERIFY(fixture::addPrinter({.name = m_name,
                                 .driver = QStringLiteral("Vx Record Driver"),
                                 .port = QStringLiteral("USB904")}));
    m_printer = openPrinter(m_name);
    QVERIFY(m_printer);
}

void PrinterRecordsTest::cleanup()
{
    m_printer.reset();
    WindowsApiTest::cleanup();
}

void PrinterRecordsTest::recordNeedsTheSizeItReports_data()
{
    QTest::addColumn<DWORD>("level");
    QTest::addColumn<int>("sizeOfRecord");
    QTest::newRow("1") << DWORD{1} << static_cast<int>(sizeof(PRINTER_INFO_1W));
    QTest::newRow("2") << DWORD{2} << static_cast<int>(sizeof(PRINTER_INFO_2W));
    QTest::newRow("4") << DWORD{4} << static_cast<int>(sizeof(PRINTER_INFO_4W));
    QTest::newRow("5") << DWORD{5} << static_cast<int>(sizeof(PRINTER_INFO_5W));
}

void PrinterRecordsTest::recordNeedsTheSizeItReports()
{
    QFETCH(DWORD, level);
    QFETCH(int, sizeOfRecord);
    const Block sizing = getPrinter(m_printer.get(), level, 0);
    QCOMPARE(sizing.error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    const DWORD needed = sizing.needed;
    QVERIFY(needed > static_cast<DWORD>(sizeOfRecord + m_name.size() * 2));
    QVERIFY(needed < 10000);

    const Block tooShort = getPrinter(m_printer.get(), level, needed - 1);
    QCOMPARE(tooShort.error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(tooShort.needed, needed);

    const Block exact = getPrinter(m_printer.get(), level, needed);
    QCOMPARE(exact.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(exact.needed, needed);

    const Block larger = getPrinter(m_printer.get(), level, needed + 500);
    QCOMPARE(larger.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(larger.needed, needed);
}

void PrinterRecordsTest::level2HoldsTheWholeRecord()
{
    const Block block = getPrinter(m_printer.get(), 2);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    const auto& record = block.record<PRINTER_INFO_2W>();
    QCOMPARE(fromWide(record.pPrinterName), m_name);
    QCOMPARE(fromWide(record.pDriverName), QStringLiteral("Vx Record Driver"));
    QCOMPARE(fromWide(record.pPortName), QStringLiteral("USB904"));
    QCOMPARE(fromWide(record.pPrintProcessor).toLower(), QStringLiteral("winprint"));
    QCOMPARE(fromWide(record.pDatatype), QStringLiteral("RAW"));
    QCOMPARE(fromWide(record.pServerName), QString());
    QCOMPARE(record.Attributes, DWORD{PRINTER_ATTRIBUTE_LOCAL});
    QCOMPARE(record.Status, DWORD{0});
    QCOMPARE(record.cJobs, DWORD{0});
    for (const LPWSTR text : {record.pPrinterName, record.pDriverName, record.pPortName,
                              record.pPrintProcessor, record.pDatatype})
        QVERIFY(block.holds(text, sizeof record));
}

void PrinterRecordsTest::level1HoldsNameAndDescription()
{
    const Block block = getPrinter(m_printer.get(), 1);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    const auto& record = block.record<PRINTER_INFO_1W>();
    QCOMPARE(fromWide(record.pName), m_name);
    QVERIFY(fromWide(record.pDescription).startsWith(m_name));
    QVERIFY(record.Flags & PRINTER_ENUM_ICON8);
    QVERIFY(block.holds(record.pName, sizeof record));
    QVERIFY(block.holds(record.pDescription, sizeof record));
}

// https://learn.microsoft.com/windows/win32/printdocs/getprinter lists the levels,
// reactos/modules/rostests/apitests/winspool/GetPrinter.c calls it with each of them.
void PrinterRecordsTest::levels4And5HoldAFewMembers()
{
    const Block names = getPrinter(m_printer.get(), 4);
    QCOMPARE(names.error, DWORD{ERROR_SUCCESS});
    const auto& record4 = names.record<PRINTER_INFO_4W>();
    QCOMPARE(fromWide(record4.pPrinterName), m_name);
    QCOMPARE(fromWide(record4.pServerName), QString());
    QCOMPARE(record4.Attributes & PRINTER_ATTRIBUTE_LOCAL, DWORD{PRINTER_ATTRIBUTE_LOCAL});
    QVERIFY(names.holds(record4.pPrinterName, sizeof record4));

    const Block ports = getPrinter(m_printer.get(), 5);
    QCOMPARE(ports.error, DWORD{ERROR_SUCCESS});
    const auto& record5 = ports.record<PRINTER_INFO_5W>();
    QCOMPARE(fromWide(record5.pPrinterName), m_name);
    QCOMPARE(fromWide(record5.pPortName), QStringLiteral("USB904"));
    QCOMPARE(record5.Attributes, DWORD{PRINTER_ATTRIBUTE_LOCAL});
    QVERIFY(ports.holds(record5.pPrinterName, sizeof record5));
    QVERIFY(ports.holds(record5.pPortName, sizeof record5));
}

// https://learn.microsoft.com/openspecs/windows_protocols/ms-rprn/436ef388-39cd-4992-95ac-02ddd2a51193
// https://learn.microsoft.com/windows/win32/printdocs/printer-info-7
void PrinterRecordsTest::levels6And7HoldNoTexts()
{
    const Block status = getPrinter(m_printer.get(), 6);
    QCOMPARE(status.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(status.needed, static_cast<DWORD>(sizeof(PRINTER_INFO_6)));
    QCOMPARE(status.record<PRINTER_INFO_6>().dwStatus, DWORD{0});

    // This printer is not published in a directory service.
    const Block published = getPrinter(m_printer.get(), 7);
    QCOMPARE(published.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(fromWide(published.record<PRINTER_INFO_7W>().pszObjectGUID), QString());
    QCOMPARE(published.record<PRINTER_INFO_7W>().dwAction, DWORD{DSPRINT_UNPUBLISH});
}

void PrinterRecordsTest::recordHoldsTheAttributes_data()
{
    QTest::addColumn<DWORD>("attributes");
    QTest::newRow("local") << DWORD{PRINTER_ATTRIBUTE_LOCAL};
    QTest::newRow("shared") << DWORD{PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED};
    QTest::newRow("offline") << DWORD{PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE};
}

void PrinterRecordsTest::recordHoldsTheAttributes()
{
    QFETCH(DWORD, attributes);
    const QString name = fixture::uniqueName(QStringLiteral("Vx Attributes"));
    QVERIFY(fixture::addPrinter({.name = name, .attributes = attributes}));
    const PrinterHandle printer = openPrinter(name);
    const Block block = getPrinter(printer.get(), 2);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(block.record<PRINTER_INFO_2W>().Attributes, attributes);
}

void PrinterRecordsTest::unknownLevelIsRefused_data()
{
    QTest::addColumn<QString>("function");
    QTest::newRow("GetPrinterW") << QStringLiteral("GetPrinterW");
    QTest::newRow("SetPrinterW") << QStringLiteral("SetPrinterW");
}

void PrinterRecordsTest::unknownLevelIsRefused()
{
    QFETCH(QString, function);
    constexpr DWORD unknown = 17;
    if (function == QLatin1String("GetPrinterW")) {
        const Block block = getPrinter(m_printer.get(), unknown, 1000);
        QCOMPARE(block.error, DWORD{ERROR_INVALID_LEVEL});
        QVERIFY(block.isUntouched());
        return;
    }
    PRINTER_INFO_2W info{};
    QCOMPARE(errorOf([&] {
                 return SetPrinterW(m_printer.get(), unknown, reinterpret_cast<LPBYTE>(&info), 0);
             }),
             DWORD{ERROR_INVALID_LEVEL});
}

void PrinterRecordsTest::badHandleFails_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<bool>("closed");
    for (const char* function : {"GetPrinterW", "DeletePrinter"})
        for (const bool closed : {false, true})
            QTest::addRow("%s, %s", function, closed ? "closed" : "null")
                << QString::fromLatin1(function) << closed;
}

void PrinterRecordsTest::badHandleFails()
{
    QFETCH(QString, function);
    QFETCH(bool, closed);
    expectMisuse(function);
    const HANDLE handle = closed ? m_printer.get() : nullptr;
    if (closed)
        m_printer.reset();
    const DWORD error = function == QLatin1String("GetPrinterW")
                            ? getPrinter(handle, 2, 1000).error
                            : errorOf([&] { return DeletePrinter(handle); });
    QCOMPARE(error, DWORD{ERROR_INVALID_HANDLE});
}

namespace {

/// A printer's current record, to be changed and written back.
struct ChangedRecord
{
    explicit ChangedRecord(HANDLE printer)
        : block(getPrinter(printer, 2))
        , info(block.record<PRINTER_INFO_2W>())
    {
        info.pSecurityDescriptor = nullptr; // leaves it unchanged
    }
    BOOL apply(HANDLE printer)
    {
        return SetPrinterW(printer, 2, reinterpret_cast<LPBYTE>(&info), 0);
    }

    Block block;
    PRINTER_INFO_2W info;
};

} // namespace

void PrinterRecordsTest::recordCanBeChanged()
{
    ChangedRecord changed(m_printer.get());
    WideText comment(QStringLiteral("by the door"));
    WideText location(QStringLiteral("Hall 2"));
    WideText port(QStringLiteral("USB907"));
    changed.info.pComment = comment;
    changed.info.pLocation = location;
    changed.info.pPortName = port;
    changed.info.Attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE;
    QVERIFY(changed.apply(m_printer.get()));

    const PrinterHandle other = openPrinter(m_name);
    const Block block = getPrinter(other.get(), 2);
    const auto& record = block.record<PRINTER_INFO_2W>();
    QCOMPARE(fromWide(record.pComment), QStringLiteral("by the door"));
    QCOMPARE(fromWide(record.pLocation), QStringLiteral("Hall 2"));
    QCOMPARE(fromWide(record.pPortName), QStringLiteral("USB907"));
    QCOMPARE(fromWide(record.pDriverName), QStringLiteral("Vx Record Driver"));
    QCOMPARE(record.Attributes, DWORD{PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE});
}

void PrinterRecordsTest::printerCanBeRenamed()
{
    NEEDS_BEHAVIOUR(Behaviour::UniquePrinterNames);
    const QString newName = fixture::uniqueName(QStringLiteral("Vx Renamed"));
    WideText name(newName);
    ChangedRecord changed(m_printer.get());
    changed.info.pPrinterName = name;
    QVERIFY(changed.apply(m_printer.get()));
    QVERIFY(listedPrinters(allLocal).contains(newName));
    QVERIFY(!listedPrinters(allLocal).contains(m_name));
    // The handle belongs to the printer, not to the name.
    QCOMPARE(fromWide(getPrinter(m_printer.get(), 2).record<PRINTER_INFO_2W>().pPrinterName),
             newName);
    QVERIFY(DeletePrinter(m_printer.get()));
}

void PrinterRecordsTest::renamingToATakenNameFails()
{
    NEEDS_BEHAVIOUR(Behaviour::UniquePrinterNames);
    const QString taken = fixture::uniqueName(QStringLiteral("Vx Taken"));
    QVERIFY(fixture::addPrinter({.name = taken}));
    WideText name(taken);
    ChangedRecord changed(m_printer.get());
    changed.info.pPrinterName = name;
    QCOMPARE(errorOf([&] { return changed.apply(m_printer.get()); }),
             DWORD{ERROR_PRINTER_ALREADY_EXISTS});
    QVERIFY(listedPrinters(allLocal).contains(m_name));
}

void PrinterRecordsTest::changingNeedsAdministerAccess()
{
    NEEDS_BEHAVIOUR(Behaviour::AccessRights);
    const PrinterHandle used = openPrinter(m_name, PRINTER_ACCESS_USE);
    ChangedRecord changed(used.get());
    changed.info.Attributes |= PRINTER_ATTRIBUTE_WORK_OFFLINE;
    QCOMPARE(errorOf([&] { return changed.apply(used.get()); }), DWORD{ERROR_ACCESS_DENIED});
    QCOMPARE(getPrinter(used.get(), 2).record<PRINTER_INFO_2W>().Attributes,
             DWORD{PRINTER_ATTRIBUTE_LOCAL});
}

void PrinterRecordsTest::printerCanBePausedAndResumed()
{
    NEEDS_BEHAVIOUR(Behaviour::PrinterCommands);
    const auto isPaused = [this] {
        return (getPrinter(m_printer.get(), 2).record<PRINTER_INFO_2W>().Status &
                PRINTER_STATUS_PAUSED) != 0;
    };
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PAUSE));
    QVERIFY(isPaused());
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_RESUME));
    QVERIFY(!isPaused());
}

void PrinterRecordsTest::unknownCommandIsRefused()
{
    NEEDS_BEHAVIOUR(Behaviour::PrinterCommands);
    QCOMPARE(errorOf([&] { return SetPrinterW(m_printer.get(), 0, nullptr, 99); }),
             DWORD{ERROR_INVALID_PRINTER_COMMAND});
}

void PrinterRecordsTest::listNeedsTheSizeItReports()
{
    const Block sizing = enumPrinters(allLocal, 0);
    QCOMPARE(sizing.error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(sizing.returned, DWORD{0});
    const DWORD needed = sizing.needed;
    QVERIFY(needed > sizeof(PRINTER_INFO_2W));

    const Block tooShort = enumPrinters(allLocal, needed - 1);
    QCOMPARE(tooShort.error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(tooShort.returned, DWORD{0});
    QCOMPARE(tooShort.needed, needed);

    const Block exact = enumPrinters(allLocal, needed);
    QCOMPARE(exact.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(exact.needed, needed);
    QVERIFY(exact.returned >= 1);
}

void PrinterRecordsTest::listHoldsRecords()
{
    const QString second = fixture::uniqueName(QStringLiteral("Vx Record"));
    QVERIFY(fixture::addPrinter(
        {.name = second,
         .port = QStringLiteral("USB909"),
         .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE}));
    const Block block = enumPrinters(allLocal, enumPrinters(allLocal, 0).needed);
    QVERIFY(block.done);
    QHash<QString, PRINTER_INFO_2W> records;
    for (DWORD index = 0; index < block.returned; ++index) {
        const auto& record = block.record<PRINTER_INFO_2W>(index);
        QVERIFY(block.holds(record.pPrinterName, block.returned * sizeof record));
        records.insert(fromWide(record.pPrinterName), record);
    }
    QCOMPARE(records.size(), static_cast<qsizetype>(block.returned));
    QVERIFY(records.contains(m_name));
    QCOMPARE(fromWide(records.value(m_name).pDriverName), QStringLiteral("Vx Record Driver"));
    QCOMPARE(fromWide(records.value(m_name).pPortName), QStringLiteral("USB904"));
    QVERIFY(records.contains(second));
    QCOMPARE(fromWide(records.value(second).pPortName), QStringLiteral("USB909"));
    QCOMPARE(records.value(second).Attributes,
             DWORD{PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE});
}

void PrinterRecordsTest::grownListDoesNotFitTheReportedSize()
{
    const DWORD needed = enumPrinters(allLocal, 0).needed;
    QVERIFY(fixture::addPrinter({.name = fixture::uniqueName(QStringLiteral("Vx Late"))}));
    const Block block = enumPrinters(allLocal, needed);
    QCOMPARE(block.error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(block.returned, DWORD{0});
    QVERIFY(block.needed > needed);
}

void PrinterRecordsTest::flagsSelectThePrinters_data()
{
    QTest::addColumn<DWORD>("flags");
    QTest::addColumn<bool>("isListed");
    QTest::newRow("local") << DWORD{PRINTER_ENUM_LOCAL} << true;
    QTest::newRow("by name, without a name") << DWORD{PRINTER_ENUM_NAME} << true;
    QTest::newRow("local and connections") << DWORD{allLocal} << true;
    QTest::newRow("local and by name, without a name")
        << DWORD{PRINTER_ENUM_LOCAL | PRINTER_ENUM_NAME} << true;
    QTest::newRow("connections") << DWORD{PRINTER_ENUM_CONNECTIONS} << false;
}

void PrinterRecordsTest::flagsSelectThePrinters()
{
    QFETCH(DWORD, flags);
    QFETCH(bool, isListed);
    QCOMPARE(listedPrinters(flags).count(m_name), isListed ? 1 : 0);
}

// https://learn.microsoft.com/windows/win32/printdocs/enumprinters lists the levels,
// reactos/modules/rostests/apitests/winspool/EnumPrinters.c calls it with each of them.
void PrinterRecordsTest::eachLevelListsTheSamePrinters_data()
{
    QTest::addColumn<DWORD>("level");
    for (const DWORD level : {1, 2, 4, 5})
        QTest::addRow("%u", static_cast<unsigned>(level)) << level;
}

void PrinterRecordsTest::eachLevelListsTheSamePrinters()
{
    QFETCH(DWORD, level);
    const DWORD needed = enumPrinters(allLocal, 0, level).needed;
    QCOMPARE(enumPrinters(allLocal, needed - 1, level).error, DWORD{ERROR_INSUFFICIENT_BUFFER});
    const Block block = enumPrinters(allLocal, needed, level);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    QStringList names;
    for (DWORD index = 0; index < block.returned; ++index) {
        const LPWSTR name = level == 1   ? block.record<PRINTER_INFO_1W>(index).pName
                            : level == 2 ? block.record<PRINTER_INFO_2W>(index).pPrinterName
                            : level == 4 ? block.record<PRINTER_INFO_4W>(index).pPrinterName
                                         : block.record<PRINTER_INFO_5W>(index).pPrinterName;
        names.append(fromWide(name));
    }
    QCOMPARE(names.count(m_name), 1);
    QCOMPARE(names, listedPrinters(allLocal));
}

// With PRINTER_ENUM_NAME but without a name, level 1 lists the print providers.
// reactos/modules/rostests/apitests/winspool/EnumPrinters.c
void PrinterRecordsTest::level1ByNameListsPrintProviders()
{
    NEEDS_BEHAVIOUR(Behaviour::PrintProviders);
    const DWORD needed = enumPrinters(PRINTER_ENUM_LOCAL | PRINTER_ENUM_NAME, 0, 1).needed;
    const Block block = enumPrinters(PRINTER_ENUM_LOCAL | PRINTER_ENUM_NAME, needed, 1);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(block.needed, needed);
    QVERIFY(block.returned >= 1);
    const auto& record = block.record<PRINTER_INFO_1W>();
    QCOMPARE(fromWide(record.pName), QStringLiteral("Windows NT Local Print Providor"));
    QCOMPARE(fromWide(record.pDescription), QStringLiteral("Windows NT Local Printers"));
    QCOMPARE(fromWide(record.pComment), QStringLiteral("Locally connected Printers"));
}

// reactos/modules/rostests/apitests/winspool/EnumPrinters.c
void PrinterRecordsTest::listByNameAcceptsOnlyAProvider_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("provider") << QStringLiteral("wInDoWs NT Local Print Providor") << true;
    QTest::newRow("unknown") << QStringLiteral("LOREM IPSUM") << false;
}

void PrinterRecordsTest::listByNameAcceptsOnlyAProvider()
{
    NEEDS_BEHAVIOUR(Behaviour::PrintProviders);
    QFETCH(QString, name);
    QFETCH(bool, isKnown);
    DWORD needed = noSize;
    DWORD returned = noSize;
    const DWORD error = errorOf([&] {
        return EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_NAME, WideText(name), 2, nullptr, 0,
                             &needed, &returned);
    });
    QCOMPARE(returned, DWORD{0});
    if (isKnown) {
        QCOMPARE(error, DWORD{ERROR_INSUFFICIENT_BUFFER});
        QCOMPARE(needed, enumPrinters(PRINTER_ENUM_LOCAL, 0).needed);
    } else {
        QCOMPARE(error, DWORD{ERROR_INVALID_NAME});
        QCOMPARE(needed, DWORD{0});
    }
}

void PrinterRecordsTest::emptyListNeedsNoBuffer()
{
    // No test connects to another machine's printers.
    const Block block = enumPrinters(PRINTER_ENUM_CONNECTIONS, 0);
    QCOMPARE(block.error, DWORD{ERROR_SUCCESS});
    QCOMPARE(block.needed, DWORD{0});
    QCOMPARE(block.returned, DWORD{0});
}

// reactos/modules/rostests/apitests/winspool/EnumPrinters.c
void PrinterRecordsTest::listOfAnUnknownLevelIsRefused_data()
{
    QTest::addColumn<DWORD>("level");
    for (const DWORD level : {3, 6, 17})
        QTest::addRow("%u", static_cast<unsigned>(level)) << level;
}

void PrinterRecordsTest::listOfAnUnknownLevelIsRefused()
{
    QFETCH(DWORD, level);
    const Block block = enumPrinters(PRINTER_ENUM_LOCAL, 10000, level);
    QCOMPARE(block.error, DWORD{ERROR_INVALID_LEVEL});
    NEEDS_BEHAVIOUR(Behaviour::LevelsFirst);
    QVERIFY(block.isUntouched());
    QCOMPARE(block.needed, noSize);
    QCOMPARE(block.returned, noSize);
}

void PrinterRecordsTest::defaultPrinterCanBeChosen()
{
    const DefaultPrinterRestorer restorer;
    const QString second = fixture::uniqueName(QStringLiteral("Vx Record"));
    QVERIFY(fixture::addPrinter({.name = second}));
    QVERIFY(SetDefaultPrinterW(WideText(second)));
    QCOMPARE(defaultPrinter(), second);
    QVERIFY(SetDefaultPrinterW(WideText(m_name)));
    QCOMPARE(defaultPrinter(), m_name);
}

void PrinterRecordsTest::defaultPrintersNameNeedsTheSizeItReports()
{
    const DefaultPrinterRestorer restorer;
    QVERIFY(SetDefaultPrinterW(WideText(m_name)));
    const auto needed = static_cast<DWORD>(m_name.size() + 1);

    // Without a buffer, the count is still set to the needed size.
    DWORD count = 0;
    QCOMPARE(errorOf([&] { return GetDefaultPrinterW(nullptr, &count); }),
             DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(count, needed);

    std::vector<WCHAR> name(needed + 1, WCHAR{0x7E});
    count = needed - 1;
    QCOMPARE(errorOf([&] { return GetDefaultPrinterW(name.data(), &count); }),
             DWORD{ERROR_INSUFFICIENT_BUFFER});
    QCOMPARE(count, needed);

    for (const DWORD room : {needed, needed + 1}) {
        count = room;
        QVERIFY(GetDefaultPrinterW(name.data(), &count));
        QCOMPARE(count, needed);
        QCOMPARE(fromWide(name.data()), m_name);
        QCOMPARE(static_cast<int>(name.back()), 0x7E);
    }
}

void PrinterRecordsTest::defaultPrinterNeedsACount()
{
    WCHAR name[300];
    QCOMPARE(errorOf([&] { return GetDefaultPrinterW(name, nullptr); }),
             DWORD{ERROR_INVALID_PARAMETER});
}

void PrinterRecordsTest::choosingAnAbsentPrinterFails()
{
    const DefaultPrinterRestorer restorer;
    QVERIFY(SetDefaultPrinterW(WideText(m_name)));
    const QString absent = fixture::uniqueName(QStringLiteral("Vx Absent"));
    QCOMPARE(errorOf([&] { return SetDefaultPrinterW(WideText(absent)); }),
             DWORD{ERROR_INVALID_PRINTER_NAME});
    QCOMPARE(defaultPrinter(), m_name);
}

void PrinterRecordsTest::choosingNothingKeepsTheChoice_data()
{
    QTest::addColumn<bool>("null");
    QTest::newRow("null") << true;
    QTest::newRow("empty") << false;
}

void PrinterRecordsTest::choosingNothingKeepsTheChoice()
{
    QFETCH(bool, null);
    const DefaultPrinterRestorer restorer;
    QVERIFY(SetDefaultPrinterW(WideText(m_name)));
    WideText empty{QString()};
    const LPCWSTR name = null ? nullptr : static_cast<LPWSTR>(empty);
    QVERIFY(SetDefaultPrinterW(name));
    QCOMPARE(defaultPrinter(), m_name);
}

void PrinterRecordsTest::deletedPrinterIsNoLongerTheDefault()
{
    const DefaultPrinterRestorer restorer;
    const QString second = fixture::uniqueName(QStringLiteral("Vx Record"));
    QVERIFY(fixture::addPrinter({.name = second}));
    QVERIFY(SetDefaultPrinterW(WideText(second)));
    QVERIFY(fixture::removePrinter(second));
    QVERIFY(defaultPrinter() != second);
}

// https://learn.microsoft.com/windows/win32/printdocs/getdefaultprinter documents no failures other
// than a short buffer and a missing default printer: the choice is stored in the user's registry.
void PrinterRecordsTest::defaultPrinterNeedsNoSpooler()
{
    STOPS_SPOOLER();
    const DefaultPrinterRestorer restorer;
    QVERIFY(SetDefaultPrinterW(WideText(m_name)));
    const bool hasStopped = fixture::setSpoolerRunning(false);
    const QString answer = defaultPrinter();
    DWORD count = 0;
    const DWORD errorOfSizing = errorOf([&] { return GetDefaultPrinterW(nullptr, &count); });
    QVERIFY(fixture::setSpoolerRunning(true));
    QVERIFY(hasStopped);
    QCOMPARE(answer, m_name);
    QCOMPARE(errorOfSizing, DWORD{ERROR_INSUFFICIENT_BUFFER});
}

namespace {

/// A record for AddPrinterW, with texts that fixture::addPrinter() leaves out.
struct NewRecord : fixture::NewPrinter
{
    explicit NewRecord(const QString& printerName)
        : NewPrinter({.name = printerName, .driver = QStringLiteral("Vx Record Driver")})
    {
        info.pComment = comment;
        info.pLocation = location;
    }

    WideText comment{QStringLiteral("new")};
    WideText location{QStringLiteral("Hall 1")};
    WideText empty{QString()};
};

} // namespace

void PrinterRecordsTest::addingReturnsAHandleWithFullAccess()
{
    const QString name = fixture::uniqueName(QStringLiteral("Vx Added"));
    NewRecord added(name);
    const PrinterHandle printer(added.add());
    QVERIFY(printer);
    QVERIFY(listedPrinters(allLocal).contains(name));

    const Block block = getPrinter(printer.get(), 2);
    const auto& record = block.record<PRINTER_INFO_2W>();
    QCOMPARE(fromWide(record.pPrinterName), name);
    QCOMPARE(fromWide(record.pComment), QStringLiteral("new"));
    QCOMPARE(fromWide(record.pLocation), QStringLiteral("Hall 1"));
    BYTE data = 1;
    QCOMPARE(SetPrinterDataW(printer.get(), WideText(QStringLiteral("x")), REG_BINARY, &data, 1),
             DWORD{ERROR_SUCCESS});
    QVERIFY(DeletePrinter(printer.get()));
}

void PrinterRecordsTest::addingRefusesIncompleteRecords_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<DWORD>("error");
    const auto row = [](const char* what, DWORD error) {
        QTest::newRow(what) << QString::fromLatin1(what) << error;
    };
    row("another level", ERROR_INVALID_LEVEL);
    row("no record", ERROR_INVALID_PARAMETER);
    row("no name", ERROR_INVALID_PRINTER_NAME);
    row("an empty name", ERROR_INVALID_PRINTER_NAME);
    row("no driver", ERROR_UNKNOWN_PRINTER_DRIVER);
    row("no port", ERROR_UNKNOWN_PORT);
}

void PrinterRecordsTest::addingRefusesIncompleteRecords()
{
    QFETCH(QString, what);
    QFETCH(DWORD, error);
    const QStringList before = listedPrinters(allLocal);
    NewRecord added(fixture::uniqueName(QStringLiteral("Vx Refused")));
    const DWORD level = what == QLatin1String("another level") ? 17 : 2;
    if (what == QLatin1String("no name"))
        added.info.pPrinterName = nullptr;
    if (what == QLatin1String("an empty name"))
        added.info.pPrinterName = added.empty;
    if (what == QLatin1String("no driver") || what == QLatin1String("no port"))
        NEEDS_BEHAVIOUR(Behaviour::PrinterRecordChecks);
    if (what == QLatin1String("no driver"))
        added.info.pDriverName = added.empty;
    if (what == QLatin1String("no port"))
        added.info.pPortName = added.empty;
    QCOMPARE(errorOf([&] {
                 return what == QLatin1String("no record")
                            ? AddPrinterW(nullptr, 2, nullptr) != nullptr
                            : added.add(level) != nullptr;
             }),
             error);
    QCOMPARE(listedPrinters(allLocal), before);
}

void PrinterRecordsTest::addingATakenNameFails_data()
{
    QTest::addColumn<bool>("otherCase");
    QTest::newRow("same name") << false;
    QTest::newRow("in upper case") << true;
}

void PrinterRecordsTest::addingATakenNameFails()
{
    NEEDS_BEHAVIOUR(Behaviour::UniquePrinterNames);
    QFETCH(bool, otherCase);
    NewRecord added(otherCase ? m_name.toUpper() : m_name);
    QCOMPARE(errorOf([&] { return added.add() != nullptr; }), DWORD{ERROR_PRINTER_ALREADY_EXISTS});
    QCOMPARE(listedPrinters(allLocal).count(m_name), 1);
}

void PrinterRecordsTest::deletedPrinterIsGone()
{
    QVERIFY(DeletePrinter(m_printer.get()));
    // The handle still has to be closed.
    QVERIFY(ClosePrinter(m_printer.release()));
    QVERIFY(!listedPrinters(allLocal).contains(m_name));
    HANDLE handle = nullptr;
    QCOMPARE(errorOf([&] { return OpenPrinterW(WideText(m_name), &handle, nullptr); }),
             DWORD{ERROR_INVALID_PRINTER_NAME});
}

void PrinterRecordsTest::handlesOfADeletedPrinterFail()
{
    NEEDS_BEHAVIOUR(Behaviour::DeletedPrinters);
    const PrinterHandle other = openPrinter(m_name);
    QVERIFY(other);
    QVERIFY(DeletePrinter(m_printer.get()));
    for (const HANDLE handle : {m_printer.get(), other.get()}) {
        QCOMPARE(getPrinter(handle, 2, 1000).error, DWORD{ERROR_PRINTER_DELETED});
        DWORD needed = 0;
        QCOMPARE(
            GetPrinterDataW(handle, WideText(QStringLiteral("x")), nullptr, nullptr, 0, &needed),
            DWORD{ERROR_PRINTER_DELETED});
        QCOMPARE(errorOf([&] { return DeletePrinter(handle); }), DWORD{ERROR_PRINTER_DELETED});
    }
}

void PrinterRecordsTest::nameOfADeletedPrinterCanBeReused()
{
    BYTE data = 1;
    QCOMPARE(SetPrinterDataW(m_printer.get(), WideText(QStringLiteral("x")), REG_BINARY, &data, 1),
             DWORD{ERROR_SUCCESS});
    QVERIFY(DeletePrinter(m_printer.get()));
    m_printer.reset();
    QVERIFY(fixture::addPrinter({.name = m_name}));
    m_printer = openPrinter(m_name);
    // This is a new printer, without the values of the deleted one.
    DWORD needed = 0;
    QCOMPARE(
        GetPrinterDataW(m_printer.get(), WideText(QStringLiteral("x")), nullptr, &data, 1, &needed),
        DWORD{ERROR_FILE_NOT_FOUND});
}

void PrinterRecordsTest::deletingNeedsAdministerAccess()
{
    NEEDS_BEHAVIOUR(Behaviour::AccessRights);
    const PrinterHandle used = openPrinter(m_name, PRINTER_ACCESS_USE);
    QCOMPARE(errorOf([&] { return DeletePrinter(used.get()); }), DWORD{ERROR_ACCESS_DENIED});
    QVERIFY(listedPrinters(allLocal).contains(m_name));
}

// https://learn.microsoft.com/windows/win32/printdocs/deleteprinter
void PrinterRecordsTest::pausedPrinterWithJobsIsNotDeleted()
{
    NEEDS_BEHAVIOUR(Behaviour::PrinterCommands);
    WideText datatype(QStringLiteral("RAW"));
    DOC_INFO_1W info{};
    info.pDatatype = datatype;
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PAUSE));
    QVERIFY(StartDocPrinterW(m_printer.get(), 1, reinterpret_cast<LPBYTE>(&info)) != 0);
    QCOMPARE(errorOf([&] { return DeletePrinter(m_printer.get()); }), DWORD{ERROR_ACCESS_DENIED});
    QVERIFY(listedPrinters(allLocal).contains(m_name));

    // A paused printer without jobs can be deleted.
    QVERIFY(SetPrinterW(m_printer.get(), 0, nullptr, PRINTER_CONTROL_PURGE));
    QVERIFY(DeletePrinter(m_printer.get()));
}

QTEST_GUILESS_MAIN(PrinterRecordsTest)
#include "tst_printer_records.moc"
