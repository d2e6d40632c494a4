// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Handles of printers, and the values that drivers store with a printer.

#include "fixture.h"

#include <QtTest/QtTest>

#include <cstring>

namespace {

enum class Form
{
    Narrow,
    Wide,
};

const char* nameOf(Form form)
{
    return form == Form::Narrow ? "narrow" : "wide";
}

constexpr char filler = '\xCC';
constexpr DWORD noSize = 7777;
constexpr DWORD noType = 99;

/// The result of a call of GetPrinterData, with its buffer.
struct Answer
{
    DWORD result = 0;
    DWORD type = noType;
    DWORD needed = noSize;
    QByteArray buffer;

    /// The data, or an error text if the buffer is too short for it or was written beyond its end.
    QByteArray data() const
    {
        const auto size = static_cast<qsizetype>(needed);
        if (size > buffer.size() || buffer.mid(size) != QByteArray(buffer.size() - size, filler))
            return "the call wrote beyond the end of the data";
        return buffer.first(size);
    }
    bool isBufferUntouched() const { return buffer == QByteArray(buffer.size(), filler); }
};

Answer getData(Form form, HANDLE printer, const QString& name, DWORD size)
{
    Answer answer;
    constexpr qsizetype margin = 16; // shows whether the call writes beyond the end
    answer.buffer = QByteArray(static_cast<qsizetype>(size) + margin, filler);
    auto* buffer = reinterpret_cast<LPBYTE>(answer.buffer.data());
    answer.result =
        form == Form::Narrow
            ? GetPrinterDataA(printer, NarrowText(name), &answer.type, buffer, size, &answer.needed)
            : GetPrinterDataW(printer, WideText(name), &answer.type, buffer, size, &answer.needed);
    return answer;
}

DWORD setData(Form form, HANDLE printer, const QString& name, DWORD type, QByteArray data)
{
    auto* bytes = reinterpret_cast<LPBYTE>(data.data());
    const auto size = static_cast<DWORD>(data.size());
    return form == Form::Narrow ? SetPrinterDataA(printer, NarrowText(name), type, bytes, size)
                                : SetPrinterDataW(printer, WideText(name), type, bytes, size);
}

/// A text as the calls of this form store it, including the terminating zero.
QByteArray stored(Form form, const QString& text)
{
    if (form == Form::Narrow) {
        NarrowText narrow(text);
        return {reinterpret_cast<const char*>(narrow.bytes()),
                static_cast<qsizetype>(narrow.size())};
    }
    WideText wide(text);
    return {reinterpret_cast<const char*>(wide.bytes()), static_cast<qsizetype>(wide.size())};
}

const QString valueName = QStringLiteral("StatusCode");

} // namespace

Q_DECLARE_METATYPE(Form)

class PrinterDataTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void openingAnAbsentPrinterFails();
    void openingAnEmptyNameFails();
    void openingWithoutAHandlePointerFails();
    void openingIgnoresCase();
    void printServerCanBeOpened();
    void closingTwiceFails();
    void closingAnotherValueFails_data();
    void closingAnotherValueFails();
    void handlesAreDistinct();

    void writtenValueIsReadBack_data();
    void writtenValueIsReadBack();
    void shortBufferIsNotWritten_data();
    void shortBufferIsNotWritten();
    void textNeedsRoomForItsTerminatingZero_data();
    void textNeedsRoomForItsTerminatingZero();
    void emptyValueNeedsNoBuffer_data();
    void emptyValueNeedsNoBuffer();
    void absentValueIsNotFound_data();
    void absentValueIsNotFound();
    void valueNamesIgnoreCase();
    void typePointerIsOptional();
    void laterValueReplacesTheEarlier();
    void textIsConverted_data();
    void textIsConverted();
    void listOfTextsIsConverted();
    void otherTypesAreNotConverted_data();
    void otherTypesAreNotConverted();
    void valuesBelongToOnePrinter();
    void valuesOutliveTheHandle();

    void badHandleFails_data();
    void badHandleFails();
    void writingNeedsAdministerAccess_data();
    void writingNeedsAdministerAccess();

private:
    QString m_name;
    PrinterHandle m_printer;
};

void PrinterDataTest::init()
{
    WindowsApiTest::init();
    m_name = fixture::uniqueName(QStringLiteral("Vx Data"));
    QVERIFY(fixture::addPrinter({.name = m_name}));
    m_printer = openPrinter(m_name);
    QVERIFY(m_printer);
}

void PrinterDataTest::cleanup()
{
    m_printer.reset();
    WindowsApiTest::cleanup();
}

void PrinterDataTest::openingAnAbsentPrinterFails()
{
    const QString absent = fixture::uniqueName(QStringLiteral("Vx Absent"));
    HANDLE handle = nullptr;
    QCOMPARE(errorOf([&] { return OpenPrinterW(WideText(absent), &handle, nullptr); }),
             DWORD{ERROR_INVALID_PRINTER_NAME});
    QCOMPARE(errorOf([&] { return OpenPrinterA(NarrowText(absent), &handle, nullptr); }),
             DWORD{ERROR_INVALID_PRINTER_NAME});
}

// Only a null pointer stands for the print server.
// wine/dlls/winspool.drv/tests/info.c, test_OpenPrinter
void PrinterDataTest::openingAnEmptyNameFails()
{
    HANDLE handle = nullptr;
    const DWORD errorOfWide =
        errorOf([&] { return OpenPrinterW(WideText(QString()), &handle, nullptr); });
    const DWORD errorOfNarrow =
        errorOf([&] { return OpenPrinterA(NarrowText(QString()), &handle, nullptr); });
    QVERIFY(errorOfWide != ERROR_SUCCESS && errorOfNarrow != ERROR_SUCCESS);
    QVERIFY(!handle);
    NEEDS_BEHAVIOUR(Behaviour::EmptyPrinterNames);
    QCOMPARE(errorOfWide, DWORD{ERROR_INVALID_PRINTER_NAME});
    QCOMPARE(errorOfNarrow, DWORD{ERROR_INVALID_PRINTER_NAME});
}

void PrinterDataTest::openingWithoutAHandlePointerFails()
{
    QCOMPARE(errorOf([&] { return OpenPrinterW(WideText(m_name), nullptr, nullptr); }),
             DWORD{ERROR_INVALID_PARAMETER});
}

void PrinterDataTest::openingIgnoresCase()
{
    QVERIFY(openPrinter(m_name.toUpper()));
    HANDLE handle = nullptr;
    QVERIFY(OpenPrinterA(NarrowText(m_name.toLower()), &handle, nullptr));
    QVERIFY(ClosePrinter(handle));
}

void PrinterDataTest::printServerCanBeOpened()
{
    HANDLE handle = nullptr;
    QVERIFY(OpenPrinterW(nullptr, &handle, nullptr));
    QVERIFY(handle != nullptr);
    QVERIFY(ClosePrinter(handle));
}

void PrinterDataTest::closingTwiceFails()
{
    expectMisuse(QStringLiteral("ClosePrinter"));
    HANDLE handle = nullptr;
    QVERIFY(OpenPrinterW(WideText(m_name), &handle, nullptr));
    QVERIFY(ClosePrinter(handle));
    QCOMPARE(errorOf([&] { return ClosePrinter(handle); }), DWORD{ERROR_INVALID_HANDLE});
}

void PrinterDataTest::closingAnotherValueFails_data()
{
    QTest::addColumn<bool>("null");
    QTest::newRow("null") << true;
    QTest::newRow("INVALID_HANDLE_VALUE") << false;
}

void PrinterDataTest::closingAnotherValueFails()
{
    QFETCH(bool, null);
    if (null)
        expectMisuse(QStringLiteral("ClosePrinter"));
    const HANDLE handle = null ? nullptr : INVALID_HANDLE_VALUE;
    QCOMPARE(errorOf([&] { return ClosePrinter(handle); }), DWORD{ERROR_INVALID_HANDLE});
}

void PrinterDataTest::handlesAreDistinct()
{
    PrinterHandle other = openPrinter(m_name);
    QVERIFY(other);
    QVERIFY(other.get() != m_printer.get());
    other.reset();
    QCOMPARE(setData(Form::Wide, m_printer.get(), valueName, REG_BINARY, "x"),
             DWORD{ERROR_SUCCESS});
}

void PrinterDataTest::writtenValueIsReadBack_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<DWORD>("type");
    QTest::addColumn<QByteArray>("data");
    for (const Form form : {Form::Narrow, Form::Wide}) {
        const auto row = [form](const char* what, DWORD type, const QByteArray& data) {
            QTest::addRow("%s, %s", nameOf(form), what) << form << type << data;
        };
        row("text", REG_SZ, stored(form, QStringLiteral("Supply low")));
        row("empty text", REG_SZ, stored(form, QString()));
        row("text with variables", REG_EXPAND_SZ, stored(form, QStringLiteral("%TEMP%\\x")));
        row("number", REG_DWORD, QByteArray("\x01\x02\x03\x04", 4));
        row("long number", REG_QWORD, QByteArray("\x01\x02\x03\x04\x05\x06\x07\x08", 8));
        row("bytes", REG_BINARY, QByteArray("a\0b\xFF\x80", 5));
        row("one byte", REG_BINARY, "x");
        row("many bytes", REG_BINARY, QByteArray(100000, 'x'));
        row("no type", REG_NONE, "abc");
    }
}

void PrinterDataTest::writtenValueIsReadBack()
{
    QFETCH(Form, form);
    QFETCH(DWORD, type);
    QFETCH(QByteArray, data);
    const auto size = static_cast<DWORD>(data.size());
    QCOMPARE(setData(form, m_printer.get(), valueName, type, data), DWORD{ERROR_SUCCESS});

    const QList<DWORD> sizes{size, size + 1, size + 1000};
    for (const DWORD bufferSize : sizes) {
        const Answer answer = getData(form, m_printer.get(), valueName, bufferSize);
        QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
        QCOMPARE(answer.type, type);
        QCOMPARE(answer.needed, size);
        QCOMPARE(answer.data(), data);
    }
}

void PrinterDataTest::shortBufferIsNotWritten_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<DWORD>("size");
    for (const Form form : {Form::Narrow, Form::Wide})
        for (const int size : {0, 1, 2, 3})
            QTest::addRow("%s, %d bytes", nameOf(form), size) << form << static_cast<DWORD>(size);
}

void PrinterDataTest::shortBufferIsNotWritten()
{
    QFETCH(Form, form);
    QFETCH(DWORD, size);
    QCOMPARE(setData(form, m_printer.get(), valueName, REG_DWORD, QByteArray(4, 'n')),
             DWORD{ERROR_SUCCESS});
    const Answer answer = getData(form, m_printer.get(), valueName, size);
    QCOMPARE(answer.result, DWORD{ERROR_MORE_DATA});
    QCOMPARE(answer.needed, DWORD{4});
    QCOMPARE(answer.type, DWORD{REG_DWORD});
    QVERIFY(answer.isBufferUntouched());
}

void PrinterDataTest::textNeedsRoomForItsTerminatingZero_data()
{
    QTest::addColumn<Form>("form");
    QTest::newRow("narrow") << Form::Narrow;
    QTest::newRow("wide") << Form::Wide;
}

void PrinterDataTest::textNeedsRoomForItsTerminatingZero()
{
    QFETCH(Form, form);
    const QByteArray data = stored(form, QStringLiteral("Ready"));
    const auto size = static_cast<DWORD>(data.size());
    QCOMPARE(setData(form, m_printer.get(), valueName, REG_SZ, data), DWORD{ERROR_SUCCESS});

    // The terminating zero has to fit as well.
    const Answer tooShort = getData(form, m_printer.get(), valueName, size - 1);
    QCOMPARE(tooShort.result, DWORD{ERROR_MORE_DATA});
    QCOMPARE(tooShort.needed, size);
    QVERIFY(tooShort.isBufferUntouched());

    const Answer exact = getData(form, m_printer.get(), valueName, tooShort.needed);
    QCOMPARE(exact.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(exact.data(), data);
}

void PrinterDataTest::emptyValueNeedsNoBuffer_data()
{
    textNeedsRoomForItsTerminatingZero_data();
}

void PrinterDataTest::emptyValueNeedsNoBuffer()
{
    QFETCH(Form, form);
    QCOMPARE(setData(form, m_printer.get(), valueName, REG_BINARY, QByteArray()),
             DWORD{ERROR_SUCCESS});
    const Answer answer = getData(form, m_printer.get(), valueName, 0);
    QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(answer.type, DWORD{REG_BINARY});
    QCOMPARE(answer.needed, DWORD{0});
}

void PrinterDataTest::absentValueIsNotFound_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<DWORD>("size");
    for (const Form form : {Form::Narrow, Form::Wide})
        for (const int size : {0, 100})
            QTest::addRow("%s, %d bytes", nameOf(form), size) << form << static_cast<DWORD>(size);
}

void PrinterDataTest::absentValueIsNotFound()
{
    QFETCH(Form, form);
    QFETCH(DWORD, size);
    QCOMPARE(setData(form, m_printer.get(), valueName + QLatin1Char('2'), REG_BINARY, "x"),
             DWORD{ERROR_SUCCESS});
    const Answer answer = getData(form, m_printer.get(), valueName, size);
    QCOMPARE(answer.result, DWORD{ERROR_FILE_NOT_FOUND});
    QVERIFY(answer.isBufferUntouched());
}

void PrinterDataTest::valueNamesIgnoreCase()
{
    QCOMPARE(setData(Form::Narrow, m_printer.get(), QStringLiteral("MiLeAgE"), REG_BINARY, "1"),
             DWORD{ERROR_SUCCESS});
    QCOMPARE(setData(Form::Wide, m_printer.get(), QStringLiteral("MILEAGE"), REG_BINARY, "2"),
             DWORD{ERROR_SUCCESS});
    for (const Form form : {Form::Narrow, Form::Wide})
        QCOMPARE(getData(form, m_printer.get(), QStringLiteral("mileage"), 1).data(), "2");
}

void PrinterDataTest::typePointerIsOptional()
{
    QCOMPARE(setData(Form::Narrow, m_printer.get(), valueName, REG_BINARY, "x"),
             DWORD{ERROR_SUCCESS});
    BYTE data = 0;
    DWORD needed = 0;
    QCOMPARE(GetPrinterDataA(m_printer.get(), NarrowText(valueName), nullptr, &data, 1, &needed),
             DWORD{ERROR_SUCCESS});
    QCOMPARE(data, BYTE{'x'});
    QCOMPARE(needed, DWORD{1});
    data = 0;
    QCOMPARE(GetPrinterDataW(m_printer.get(), WideText(valueName), nullptr, &data, 1, &needed),
             DWORD{ERROR_SUCCESS});
    QCOMPARE(data, BYTE{'x'});
}

void PrinterDataTest::laterValueReplacesTheEarlier()
{
    QCOMPARE(setData(Form::Wide, m_printer.get(), valueName, REG_BINARY, QByteArray(50, 'x')),
             DWORD{ERROR_SUCCESS});
    QCOMPARE(setData(Form::Narrow, m_printer.get(), valueName, REG_SZ, QByteArray("no", 3)),
             DWORD{ERROR_SUCCESS});
    const Answer answer = getData(Form::Narrow, m_printer.get(), valueName, 50);
    QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(answer.type, DWORD{REG_SZ});
    QCOMPARE(answer.data(), QByteArray("no", 3));
}

void PrinterDataTest::textIsConverted_data()
{
    QTest::addColumn<Form>("writing");
    QTest::addColumn<Form>("reading");
    QTest::addColumn<DWORD>("type");
    QTest::addColumn<QString>("text");
    for (const Form writing : {Form::Narrow, Form::Wide}) {
        const Form reading = writing == Form::Narrow ? Form::Wide : Form::Narrow;
        const auto row = [writing, reading](const char* what, DWORD type, const QString& text) {
            QTest::addRow("%s to %s, %s", nameOf(writing), nameOf(reading), what)
                << writing << reading << type << text;
        };
        row("plain", REG_SZ, QStringLiteral("Ribbon empty"));
        row("empty", REG_SZ, QString());
        row("accented", REG_SZ, QStringLiteral("Gerät gestört"));
        row("with variables", REG_EXPAND_SZ, QStringLiteral("%SystemRoot%\\x"));
    }
}

void PrinterDataTest::textIsConverted()
{
    QFETCH(Form, writing);
    QFETCH(Form, reading);
    QFETCH(DWORD, type);
    QFETCH(QString, text);
    QCOMPARE(setData(writing, m_printer.get(), valueName, type, stored(writing, text)),
             DWORD{ERROR_SUCCESS});

    const QByteArray expected = stored(reading, text);
    const auto size = static_cast<DWORD>(expected.size());
    const Answer tooShort = getData(reading, m_printer.get(), valueName, size - 1);
    QCOMPARE(tooShort.result, DWORD{ERROR_MORE_DATA});
    QCOMPARE(tooShort.needed, size);
    QVERIFY(tooShort.isBufferUntouched());

    const Answer answer = getData(reading, m_printer.get(), valueName, size);
    QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(answer.type, type);
    QCOMPARE(answer.data(), expected);
}

void PrinterDataTest::listOfTextsIsConverted()
{
    const QByteArray narrow("one\0two\0", 9);
    QCOMPARE(setData(Form::Narrow, m_printer.get(), valueName, REG_MULTI_SZ, narrow),
             DWORD{ERROR_SUCCESS});
    const QString wide = QString::fromLatin1(narrow);
    const Answer answer = getData(Form::Wide, m_printer.get(), valueName, 18);
    QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(answer.type, DWORD{REG_MULTI_SZ});
    QCOMPARE(answer.data(),
             QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * 2));
    QCOMPARE(getData(Form::Narrow, m_printer.get(), valueName, 9).data(), narrow);
}

void PrinterDataTest::otherTypesAreNotConverted_data()
{
    QTest::addColumn<DWORD>("type");
    QTest::newRow("number") << DWORD{REG_DWORD};
    QTest::newRow("bytes") << DWORD{REG_BINARY};
    QTest::newRow("no type") << DWORD{REG_NONE};
}

void PrinterDataTest::otherTypesAreNotConverted()
{
    QFETCH(DWORD, type);
    const QByteArray data("ab\0\xE4", 4);
    QCOMPARE(setData(Form::Narrow, m_printer.get(), valueName, type, data), DWORD{ERROR_SUCCESS});
    const Answer answer = getData(Form::Wide, m_printer.get(), valueName, 4);
    QCOMPARE(answer.result, DWORD{ERROR_SUCCESS});
    QCOMPARE(answer.type, type);
    QCOMPARE(answer.data(), data);
}

void PrinterDataTest::valuesBelongToOnePrinter()
{
    const QString otherName = fixture::uniqueName(QStringLiteral("Vx Data"));
    QVERIFY(fixture::addPrinter({.name = otherName}));
    const PrinterHandle other = openPrinter(otherName);
    QVERIFY(other);
    QCOMPARE(setData(Form::Wide, m_printer.get(), valueName, REG_BINARY, "x"),
             DWORD{ERROR_SUCCESS});
    QCOMPARE(getData(Form::Wide, other.get(), valueName, 1).result, DWORD{ERROR_FILE_NOT_FOUND});
}

void PrinterDataTest::valuesOutliveTheHandle()
{
    QCOMPARE(setData(Form::Wide, m_printer.get(), valueName, REG_BINARY, "x"),
             DWORD{ERROR_SUCCESS});
    m_printer = openPrinter(m_name);
    QVERIFY(m_printer);
    QCOMPARE(getData(Form::Wide, m_printer.get(), valueName, 1).data(), "x");
}

void PrinterDataTest::badHandleFails_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<bool>("reads");
    QTest::addColumn<bool>("closed");
    for (const Form form : {Form::Narrow, Form::Wide})
        for (const bool reads : {false, true})
            for (const bool closed : {false, true})
                QTest::addRow("%s, %s, %s", nameOf(form), reads ? "reading" : "writing",
                              closed ? "closed" : "null")
                    << form << reads << closed;
}

void PrinterDataTest::badHandleFails()
{
    QFETCH(Form, form);
    QFETCH(bool, reads);
    QFETCH(bool, closed);
    expectMisuse(QStringLiteral("%1PrinterData%2")
                     .arg(reads ? QStringLiteral("Get") : QStringLiteral("Set"),
                          form == Form::Narrow ? QStringLiteral("A") : QStringLiteral("W")));
    const HANDLE handle = closed ? m_printer.get() : nullptr;
    if (closed)
        m_printer.reset();
    if (reads) {
        const Answer answer = getData(form, handle, valueName, 4);
        QCOMPARE(answer.result, DWORD{ERROR_INVALID_HANDLE});
        QVERIFY(answer.isBufferUntouched());
    } else {
        QCOMPARE(setData(form, handle, valueName, REG_BINARY, "x"), DWORD{ERROR_INVALID_HANDLE});
    }
}

void PrinterDataTest::writingNeedsAdministerAccess_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<bool>("administers");
    for (const Form form : {Form::Narrow, Form::Wide})
        for (const bool administers : {false, true})
            QTest::addRow("%s, to %s", nameOf(form), administers ? "administer" : "use")
                << form << administers;
}

void PrinterDataTest::writingNeedsAdministerAccess()
{
    NEEDS_BEHAVIOUR(Behaviour::AccessRights);
    QFETCH(Form, form);
    QFETCH(bool, administers);
    const PrinterHandle printer =
        openPrinter(m_name, administers ? PRINTER_ACCESS_ADMINISTER : PRINTER_ACCESS_USE);
    QVERIFY(printer);
    const DWORD result = administers ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
    QCOMPARE(setData(form, printer.get(), valueName, REG_BINARY, "x"), result);
    const DWORD readResult = administers ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
    QCOMPARE(getData(form, printer.get(), valueName, 1).result, readResult);
}

QTEST_GUILESS_MAIN(PrinterDataTest)
#include "tst_printer_data.moc"
