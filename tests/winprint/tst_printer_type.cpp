// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which model is recognised by a driver's name.
#include "windows_printer_info.h"

#include <QtTest/QtTest>

using VXPrinting::PrinterType;

class PrinterTypeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeOfADriver_data();
    void typeOfADriver();
    void numbersAreFixed();
    void enumerationIsKnownByName();
};

void PrinterTypeTest::typeOfADriver_data()
{
    QTest::addColumn<QString>("driver");
    QTest::addColumn<int>("type");

    const auto row = [](const char* driver, int type) {
        QTest::newRow(*driver ? driver : "empty") << QString::fromUtf8(driver) << type;
    };
    row("Stratamark Alder", 101);
    row("Stratamark BirchMax", 102);
    row("Stratamark CedarMax", 103);
    row("Stratamark AlderMax", 104);
    row("STRATAMARK CEDARMAX", 103);
    row("stratamark aldermax", 104);
    row("sTRATAMARK aLDER", 101);

    row("Stratamark AlderMax (Copy 1)", 10);
    row("Stratamark Alder ", 10);
    row("Stratamark  Alder", 10);
    row("Stratamark Birch", 10);
    row("Stratamark Cedar", 10);
    row("Stratamark Alde", 10);
    row("Stratamark ", 10);
    row("Harlow Devices Alder", 10);
    row("Harlow Devices ", 10);
    row("harlow devices anything", 10);
    row("Harlow Devices Stratamark Alder", 10);

    row("Stratamark", 0);
    row("StratamarkAlder", 0);
    row("Harlow Devices", 0);
    row(" Stratamark Alder", 0);
    row("Alder", 0);
    row("Some Office Printer", 0);
    row("", 0);
}

void PrinterTypeTest::typeOfADriver()
{
    QFETCH(const QString, driver);
    QFETCH(const int, type);
    QCOMPARE(static_cast<int>(WindowsPrinterInfo::printerType(driver)), type);
}

void PrinterTypeTest::numbersAreFixed()
{
    QCOMPARE(static_cast<int>(PrinterType::Unknown), 0);
    QCOMPARE(static_cast<int>(PrinterType::Generic), 10);
    QCOMPARE(static_cast<int>(PrinterType::Alder), 101);
    QCOMPARE(static_cast<int>(PrinterType::BirchMax), 102);
    QCOMPARE(static_cast<int>(PrinterType::CedarMax), 103);
    QCOMPARE(static_cast<int>(PrinterType::AlderMax), 104);
    static_assert(std::is_same_v<std::underlying_type_t<PrinterType>, int>);
}

void PrinterTypeTest::enumerationIsKnownByName()
{
    const QMetaType type = QMetaType::fromName("VXPrinting::PrinterType");
    QVERIFY(type.isValid());
    QCOMPARE(type, QMetaType::fromType<PrinterType>());
}

QTEST_GUILESS_MAIN(PrinterTypeTest)
#include "tst_printer_type.moc"
