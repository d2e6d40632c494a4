// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the driver's values are read from a spooler that returns "more data" and fills the buffer
// with the beginning of the value. According to the documentation only the size is valid in this
// case, and the content of the buffer is undefined:
// https://learn.microsoft.com/windows/win32/printdocs/getprinterdata
#include "printer_values.h"

#include <QtCore/QByteArray>
#include <QtTest/QtTest>

#include <winspool.h>

#include <algorithm>

namespace {
quint32 answeredType = REG_NONE;
QByteArray published;
} // namespace

// Replaces the spooler's function in the library's objects, which are linked into this test. The
// linker's option --wrap prescribes the name.
// NOLINTNEXTLINE(bugprone-reserved-identifier, readability-identifier-naming)
extern "C" DWORD WINAPI __wrap_GetPrinterDataA(HANDLE, LPSTR, LPDWORD type, LPBYTE data, DWORD size,
                                               LPDWORD needed)
{
    *type = answeredType;
    *needed = static_cast<DWORD>(published.size());
    std::copy_n(published.cbegin(), std::min(*needed, size), data);
    return *needed > size ? ERROR_MORE_DATA : ERROR_SUCCESS;
}

class LongPrinterValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
    void number_data();
    void number();
};

void LongPrinterValuesTest::text_data()
{
    QTest::addColumn<printer_values::TextValue>("value");
    QTest::addColumn<quint32>("type");
    const auto rows = [](const char* name, const printer_values::TextValue& value) {
        QTest::addRow("%s, text", name) << value << quint32{REG_SZ};
        QTest::addRow("%s, bytes", name) << value << quint32{REG_BINARY};
    };
    rows("supply", printer_values::supplyId);
    rows("status", printer_values::statusCode);
    rows("version", printer_values::softwareVersion);
    rows("network", printer_values::ethernetConfig);
}

void LongPrinterValuesTest::text()
{
    QFETCH(const printer_values::TextValue, value);
    QFETCH(const quint32, type);
    answeredType = type;
    published = QByteArray(static_cast<qsizetype>(value.capacity), '1');
    QCOMPARE(printer_values::read(nullptr, value), QString::fromLatin1(published));
    published.append('1');
    QVERIFY(printer_values::read(nullptr, value).isNull());
    published.append(1000, '1');
    QVERIFY(printer_values::read(nullptr, value).isNull());
}

void LongPrinterValuesTest::number_data()
{
    QTest::addColumn<quint32>("type");
    QTest::newRow("bytes") << quint32{REG_BINARY};
    QTest::newRow("word") << quint32{REG_DWORD};
}

void LongPrinterValuesTest::number()
{
    QFETCH(const quint32, type);
    answeredType = type;
    published = QByteArray("\1\0\0\0", 4);
    QCOMPARE(printer_values::read(nullptr, printer_values::updateError), QStringLiteral("1"));
    published.append('\0');
    QVERIFY(printer_values::read(nullptr, printer_values::updateError).isNull());
}

QTEST_GUILESS_MAIN(LongPrinterValuesTest)
#include "tst_long_printer_values.moc"
