// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the values that a driver can publish are read.

#include "machine_test.h"

#include "printer_status_thread.h"
#include "windows_handles.h"

#include <span>

using virtualwindows::PrinterValue;

namespace {

const QString printerName = QStringLiteral("Label Printer");

using Reader = QString (PrinterStatusThread::*)(void*);

struct NamedReader
{
    const char* reader;
    Reader read;
    const char* valueName;
};
const NamedReader textReaders[] = {
    {"getSupplyId", &PrinterStatusThread::getSupplyId, "SupplyIdentifier"},
    {"getPrinterStatus", &PrinterStatusThread::getPrinterStatus, "StatusCode"},
    {"getSoftwareVersion", &PrinterStatusThread::getSoftwareVersion, "SoftwareVersion"},
    {"getEthernetConfig", &PrinterStatusThread::getEthernetConfig, "EthernetConfig"},
};
const NamedReader numberReaders[] = {
    {"getRibbon1Id", &PrinterStatusThread::getRibbon1Id, "Ribbon1Identifier"},
    {"getRibbon2Id", &PrinterStatusThread::getRibbon2Id, "Ribbon2Identifier"},
    {"getSupplyIntMileage", &PrinterStatusThread::getSupplyIntMileage, "Mileage"},
    {"getRibbon1IntMileage", &PrinterStatusThread::getRibbon1IntMileage, "Ribbon1Mileage"},
    {"getRibbon2IntMileage", &PrinterStatusThread::getRibbon2IntMileage, "Ribbon2Mileage"},
    {"getUpdateProgress", &PrinterStatusThread::getUpdateProgress, "UpdateProgress"},
    {"getUpdateError", &PrinterStatusThread::getUpdateError, "UpdateError"},
};

} // namespace

class PrinterValuesTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void textValue_data();
    void textValue();
    void numberValue_data();
    void numberValue();
    void eachReaderQueriesOneValueOnce_data();
    void eachReaderQueriesOneValueOnce();
    void absentValue_data();
    void absentValue();
    void failedCallGivesAnEmptyText_data();
    void failedCallGivesAnEmptyText();
    void readersLeaveTheHandleOpen();
    void nameOfAnOpenPrinter();
    void nameChangesWhenThePrinterIsRenamed();
    void nameIsEmptyWhenTheSizeIsRefused();
    void nameIsEmptyWhenTheReadingFails();
    void nameIsEmptyForAClosedHandle();

private:
    QString read(const QByteArray& valueName)
    {
        for (const auto& readers : {std::span<const NamedReader>(textReaders),
                                    std::span<const NamedReader>(numberReaders)}) {
            for (const NamedReader& reader : readers) {
                if (valueName == reader.valueName)
                    return (m_thread.*reader.read)(m_printer.get());
            }
        }
        qFatal("no reader of %s", valueName.constData());
    }

    PrinterStatusThread m_thread;
    PrinterHandle m_printer;
};

void PrinterValuesTest::init()
{
    MachineTest::init();
    machine().addPrinter({.name = printerName, .driver = QStringLiteral("Stratamark Alder")});
    m_printer = openPrinter(printerName);
    QVERIFY(m_printer.isValid());
}

void PrinterValuesTest::cleanup()
{
    m_printer.close();
    MachineTest::cleanup();
}

void PrinterValuesTest::textValue_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* title, const char* name, quint32 type, const QByteArray& bytes,
                        const QString& text) {
        QTest::newRow(title) << QByteArray(name) << type << bytes << text;
    };
    const QByteArray twenty = "12345678901234567890";
    const QString twentyText = QString::fromLatin1(twenty);
    const QByteArray nul(1, '\0');

    row("supply: 20 characters and NUL", "SupplyIdentifier", REG_SZ, twenty + nul, twentyText);
    row("supply: as bytes", "SupplyIdentifier", REG_BINARY, twenty + nul, twentyText);
    row("supply: 19 characters and NUL", "SupplyIdentifier", REG_SZ, twenty.first(19) + nul, {});
    row("supply: 21 characters and NUL", "SupplyIdentifier", REG_SZ, twenty + "1" + nul, {});
    row("supply: 21 bytes without NUL", "SupplyIdentifier", REG_BINARY, twenty + "1",
        twentyText + QLatin1Char('1'));
    row("supply: 20 bytes without NUL", "SupplyIdentifier", REG_BINARY, twenty, {});
    row("supply: cut at the first NUL", "SupplyIdentifier", REG_BINARY,
        QByteArray("12345") + QByteArray(16, '\0'), QStringLiteral("12345"));
    row("supply: a number", "SupplyIdentifier", REG_DWORD, QByteArray(21, '1'), {});
    row("supply: without a type", "SupplyIdentifier", REG_NONE, twenty + nul, {});
    row("supply: expandable text", "SupplyIdentifier", REG_EXPAND_SZ, twenty + nul, {});

    row("status: text", "StatusCode", REG_SZ, QByteArray("42") + nul, QStringLiteral("42"));
    row("status: bytes", "StatusCode", REG_BINARY, QByteArray("42") + nul, QStringLiteral("42"));
    row("status: a number", "StatusCode", REG_DWORD, QByteArray("\x2a\0\0\0", 4), {});
    row("status: 128 bytes", "StatusCode", REG_SZ, QByteArray(127, '7') + nul,
        QString(127, QLatin1Char('7')));
    row("status: 128 bytes without NUL", "StatusCode", REG_BINARY, QByteArray(128, '7'),
        QString(128, QLatin1Char('7')));
    row("status: 129 bytes", "StatusCode", REG_SZ, QByteArray(128, '7') + nul, {});
    row("status: empty", "StatusCode", REG_SZ, nul, {});
    row("status: multiple texts", "StatusCode", REG_MULTI_SZ, QByteArray("42") + nul + nul, {});

    row("version: UTF-8", "SoftwareVersion", REG_SZ, QByteArray("1.2.3,b\xc3\xb6t") + nul,
        QStringLiteral("1.2.3,böt"));
    row("version: 37 bytes", "SoftwareVersion", REG_SZ, QByteArray(36, 'v') + nul,
        QString(36, QLatin1Char('v')));
    row("version: 37 bytes without NUL", "SoftwareVersion", REG_BINARY, QByteArray(37, 'v'),
        QString(37, QLatin1Char('v')));
    row("version: 38 bytes", "SoftwareVersion", REG_SZ, QByteArray(37, 'v') + nul, {});
    row("version: a number", "SoftwareVersion", REG_DWORD, QByteArray("1234"), {});

    row("network: 74 bytes", "EthernetConfig", REG_SZ, QByteArray(73, 'e') + nul,
        QString(73, QLatin1Char('e')));
    row("network: 75 bytes", "EthernetConfig", REG_SZ, QByteArray(74, 'e') + nul, {});
    row("network: bytes", "EthernetConfig", REG_BINARY, QByteArray("dhcp") + nul,
        QStringLiteral("dhcp"));
}

void PrinterValuesTest::textValue()
{
    QFETCH(const QByteArray, name);
    QFETCH(const quint32, type);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);

    machine().publish(printerName, PrinterValue{name, type, bytes});
    QCOMPARE(read(name), text);
}

void PrinterValuesTest::numberValue_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto word = [](quint32 number) {
        QByteArray bytes(4, '\0');
        qToLittleEndian(number, bytes.data());
        return bytes;
    };
    const auto row = [](const QByteArray& title, const QByteArray& name, quint32 type,
                        const QByteArray& bytes, const QString& text) {
        QTest::newRow(title.constData()) << name << type << bytes << text;
    };

    const std::pair<QByteArray, quint32> ceilings[] = {
        {"Ribbon1Identifier", 100000}, {"Ribbon2Identifier", 100000}, {"Mileage", 152400},
        {"Ribbon1Mileage", 130000},    {"Ribbon2Mileage", 120700},
    };
    for (const auto& [name, ceiling] : ceilings) {
        row(name + ": at its ceiling", name, REG_DWORD, word(ceiling), QString::number(ceiling));
        row(name + ": above its ceiling", name, REG_DWORD, word(ceiling + 1), {});
        row(name + ": the largest positive", name, REG_DWORD, word(0x7FFFFFFF), {});
    }
    row("ribbon 1 may go further than ribbon 2", "Ribbon1Mileage", REG_DWORD, word(120701),
        QStringLiteral("120701"));
    for (const QByteArray name : {"UpdateProgress", "UpdateError"})
        row(name + ": has no ceiling", name, REG_DWORD, word(0x7FFFFFFF),
            QStringLiteral("2147483647"));

    for (const NamedReader& reader : numberReaders) {
        const QByteArray name = reader.valueName;
        row(name + ": zero", name, REG_DWORD, word(0), QStringLiteral("0"));
        row(name + ": all bits", name, REG_DWORD, word(0xFFFFFFFF), QStringLiteral("4294967295"));
        row(name + ": the top bit", name, REG_DWORD, word(0x80000000),
            QStringLiteral("2147483648"));
        row(name + ": as bytes", name, REG_BINARY, word(321), QStringLiteral("321"));
        row(name + ": two bytes", name, REG_BINARY, word(321).first(2), QStringLiteral("321"));
        row(name + ": more bytes than a word", name, REG_BINARY, word(321) + word(0), {});
        row(name + ": five bytes", name, REG_BINARY, word(321) + '\0', {});
        row(name + ": as text", name, REG_SZ, QByteArray("321", 4), {});
        row(name + ": big-endian", name, REG_DWORD_BIG_ENDIAN, word(321), {});
        row(name + ": without a type", name, REG_NONE, word(321), {});
        row(name + ": expandable text", name, REG_EXPAND_SZ, word(321), {});
    }
}

void PrinterValuesTest::numberValue()
{
    textValue();
}

void PrinterValuesTest::eachReaderQueriesOneValueOnce_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("capacity");

    const std::pair<const char*, int> capacities[] = {
        {"SupplyIdentifier", 21}, {"StatusCode", 128},      {"SoftwareVersion", 37},
        {"EthernetConfig", 74},   {"Ribbon1Identifier", 4}, {"Ribbon2Identifier", 4},
        {"Mileage", 4},           {"Ribbon1Mileage", 4},    {"Ribbon2Mileage", 4},
        {"UpdateProgress", 4},    {"UpdateError", 4},
    };
    for (const auto& [name, capacity] : capacities)
        QTest::newRow(name) << QByteArray(name) << capacity;
}

void PrinterValuesTest::eachReaderQueriesOneValueOnce()
{
    QFETCH(const QByteArray, name);
    QFETCH(const int, capacity);

    machine().recordCalls();
    read(name);

    const QList<virtualwindows::Call> calls = machine().calls();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.first().function, QStringLiteral("GetPrinterDataA"));
    QVERIFY2(calls.first().arguments.contains(QString::fromLatin1(name)),
             qPrintable(calls.first().arguments.join(QLatin1Char(' '))));
    QVERIFY2(calls.first().arguments.contains(QString::number(capacity)),
             qPrintable(calls.first().arguments.join(QLatin1Char(' '))));
}

void PrinterValuesTest::absentValue_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const auto& readers :
         {std::span<const NamedReader>(textReaders), std::span<const NamedReader>(numberReaders)}) {
        for (const NamedReader& reader : readers)
            QTest::newRow(reader.reader) << QByteArray(reader.valueName);
    }
}

void PrinterValuesTest::absentValue()
{
    QFETCH(const QByteArray, name);
    QVERIFY(read(name).isNull());
}

void PrinterValuesTest::failedCallGivesAnEmptyText_data()
{
    absentValue_data();
}

void PrinterValuesTest::failedCallGivesAnEmptyText()
{
    QFETCH(const QByteArray, name);
    machine().publish(printerName, name == "SupplyIdentifier"
                                       ? PrinterValue::text(name, "12345678901234567890")
                                       : PrinterValue{name, REG_BINARY, QByteArray("1\0\0\0", 4)});
    QVERIFY(!read(name).isEmpty());

    machine().failCall(QStringLiteral("GetPrinterDataA"), 1, RPC_S_SERVER_UNAVAILABLE);
    QVERIFY(read(name).isEmpty());
}

void PrinterValuesTest::readersLeaveTheHandleOpen()
{
    const int open = machine().openHandles();
    for (const auto& readers :
         {std::span<const NamedReader>(textReaders), std::span<const NamedReader>(numberReaders)}) {
        for (const NamedReader& reader : readers)
            (m_thread.*reader.read)(m_printer.get());
    }
    m_thread.getPrinterNameFromHandle(m_printer.get());
    QCOMPARE(machine().openHandles(), open);
}

void PrinterValuesTest::nameOfAnOpenPrinter()
{
    QCOMPARE(m_thread.getPrinterNameFromHandle(m_printer.get()), printerName);
}

void PrinterValuesTest::nameChangesWhenThePrinterIsRenamed()
{
    const QString newName = QStringLiteral("Étiquettes 日本");
    machine().renamePrinter(printerName, newName);
    QCOMPARE(m_thread.getPrinterNameFromHandle(m_printer.get()), newName);
}

void PrinterValuesTest::nameIsEmptyWhenTheSizeIsRefused()
{
    machine().failCall(QStringLiteral("GetPrinterW"), 1, ERROR_ACCESS_DENIED);
    QVERIFY(m_thread.getPrinterNameFromHandle(m_printer.get()).isEmpty());
    QCOMPARE(machine().callCount(QStringLiteral("GetPrinterW")), 1);
}

void PrinterValuesTest::nameIsEmptyWhenTheReadingFails()
{
    machine().failCall(QStringLiteral("GetPrinterW"), 2, ERROR_ACCESS_DENIED);
    QVERIFY(m_thread.getPrinterNameFromHandle(m_printer.get()).isEmpty());
    QCOMPARE(machine().callCount(QStringLiteral("GetPrinterW")), 2);
}

void PrinterValuesTest::nameIsEmptyForAClosedHandle()
{
    machine().stopSpooler();
    QVERIFY(m_thread.getPrinterNameFromHandle(m_printer.get()).isEmpty());
}

QTEST_GUILESS_MAIN(PrinterValuesTest)
#include "tst_printer_values.moc"
