// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What the agent writes to the Windows event log. Wine does not keep what is written, so the
// function that writes is replaced.
#include "event_viewer_log.h"
#include "import_table.h"
#include "shown_text.h"
#include "test_file.h"

#include <QtTest/QtTest>

#include <array>

namespace {

struct Entry
{
    WORD type = 0;
    DWORD message = 0;
    QStringList insertions;

    bool operator==(const Entry&) const = default;
};

QList<Entry> entries;

BOOL WINAPI recordEntry(HANDLE /*log*/, WORD type, WORD /*category*/, DWORD message, PSID /*user*/,
                        WORD count, DWORD /*size*/, const wchar_t** insertions, void* /*data*/)
{
    Entry entry{type, message, {}};
    for (WORD i = 0; i < count; ++i)
        entry.insertions.append(QString::fromWCharArray(insertions[i]));
    entries.append(entry);
    return TRUE;
}

/// The text that the event viewer shows for an entry: it looks the message up in the program that
/// the source names.
QString shownByEventViewer(const Entry& entry)
{
    const HMODULE program =
        LoadLibraryExW(QDir::toNativeSeparators(testFile(VXPRINTAGENT)).toStdWString().c_str(),
                       nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (!program)
        return {};
    const std::wstring insertion = entry.insertions.value(0).toStdWString();
    std::array arguments{reinterpret_cast<DWORD_PTR>(insertion.c_str())};
    wchar_t text[2000] = {};
    const DWORD size =
        FormatMessageW(FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_ARGUMENT_ARRAY, program,
                       entry.message, 0, text, 2000, reinterpret_cast<va_list*>(arguments.data()));
    FreeLibrary(program);
    return QString::fromWCharArray(text, static_cast<qsizetype>(size)).trimmed();
}

QString registryValue(const wchar_t* name)
{
    wchar_t text[1000] = {};
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_LOCAL_MACHINE,
                     L"SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application\\vxprintagent",
                     name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return {};
    return QString::fromWCharArray(text);
}

} // namespace

class EventViewerLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { entries.clear(); }

    void levelsBecomeTypes_data();
    void levelsBecomeTypes();
    void lineIsShownAsItIs_data();
    void lineIsShownAsItIs();
    void longLinesAreShortened();
    void sourceNamesTheProgramWithTheTexts();
};

void EventViewerLogTest::initTestCase()
{
    QVERIFY(replaceImports(nullptr, "advapi32.dll",
                           {{"ReportEventW", reinterpret_cast<ULONG_PTR>(recordEntry)}}));
}

void EventViewerLogTest::levelsBecomeTypes_data()
{
    QTest::addColumn<AgentLog::Level>("level");
    QTest::addColumn<WORD>("type");
    QTest::addColumn<DWORD>("number");
    QTest::newRow("information") << AgentLog::Level::Information << WORD(EVENTLOG_INFORMATION_TYPE)
                                 << DWORD(1);
    QTest::newRow("warning") << AgentLog::Level::Warning << WORD(EVENTLOG_WARNING_TYPE) << DWORD(2);
    QTest::newRow("error") << AgentLog::Level::Error << WORD(EVENTLOG_ERROR_TYPE) << DWORD(3);
}

void EventViewerLogTest::levelsBecomeTypes()
{
    QFETCH(const AgentLog::Level, level);
    QFETCH(const WORD, type);
    QFETCH(const DWORD, number);

    EventViewerLog().write(level, QStringLiteral("text"));

    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().type, type);
    // The number that the event viewer shows:
    // https://learn.microsoft.com/windows/win32/eventlog/event-identifiers
    QCOMPARE(entries.first().message & 0xffff, number);
    QCOMPARE(entries.first().insertions, QStringList{QStringLiteral("text")});
}

void EventViewerLogTest::lineIsShownAsItIs_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QStringLiteral("the broker is away")
                           << QStringLiteral("the broker is away");
    QTest::newRow("every language") << QStringLiteral("Lager Süd 東京 \U0001F5A8")
                                    << QStringLiteral("Lager Süd 東京 \U0001F5A8");
    QTest::newRow("place for an insertion")
        << QStringLiteral("topic a%1b, %%5, 90%")
        << QStringLiteral("topic a\\u00251b, \\u0025\\u00255, 90\\u0025");
    QTest::newRow("several lines")
        << QStringLiteral("one\r\ntwo") << QStringLiteral("one\\u000d\\u000atwo");
    QTest::newRow("null") << QStringLiteral("one") + QChar(u'\0') + QStringLiteral("two")
                          << QStringLiteral("one\\u0000two");
    QTest::newRow("turns the writing direction")
        << QStringLiteral("P\u202egnp") << QStringLiteral("P\\u202egnp");
}

void EventViewerLogTest::lineIsShownAsItIs()
{
    QFETCH(const QString, line);
    QFETCH(const QString, shown);

    for (const AgentLog::Level level :
         {AgentLog::Level::Information, AgentLog::Level::Warning, AgentLog::Level::Error}) {
        entries.clear();
        EventViewerLog().write(level, line);
        QCOMPARE(entries.size(), 1);
        QCOMPARE(shownByEventViewer(entries.first()), shown);
    }
}

void EventViewerLogTest::longLinesAreShortened()
{
    // https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-reporteventw
    constexpr qsizetype longestInsertion = 31839;

    EventViewerLog().error(QString(100000, u'%'));

    QCOMPARE(entries.size(), 1);
    QVERIFY(!entries.first().insertions.first().isEmpty());
    QVERIFY(entries.first().insertions.first().size() < longestInsertion);
}

void EventViewerLogTest::sourceNamesTheProgramWithTheTexts()
{
    const QString program = QStringLiteral("C:/Program Files/Vx/vxprintagent.exe");

    QCOMPARE(EventViewerLog::addSource(program), DWORD(ERROR_SUCCESS));
    QCOMPARE(registryValue(L"EventMessageFile"), QDir::toNativeSeparators(program));

    QCOMPARE(EventViewerLog::removeSource(), DWORD(ERROR_SUCCESS));
    QCOMPARE(registryValue(L"EventMessageFile"), QString());
    QCOMPARE(EventViewerLog::removeSource(), DWORD(ERROR_SUCCESS)); // it was removed by hand, say
}

QTEST_GUILESS_MAIN(EventViewerLogTest)
#include "tst_event_viewer_log.moc"
