// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The example with a window, on virtual printers. With VX_PICTURE=FILE in the environment the test
// also saves the picture of the window that the guide shows.
#include "machine_test.h"
#include "printer_window.h"
#include "run_in_english.h"
#include "sample_database.h"

#include <QtWidgets/QPushButton>

using virtualwindows::PrinterValue;

class WidgetsHostTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() override;

    void showsPrintersAtTheStart();
    void showsLoadedSuppliesAndRibbons();
    void showsChanges();
    void warnsOfErrors();
    void findsPrintersWhenAsked();
    void showsAnEmptyTableWithoutPrinters();

private:
    void addPrinters();
    /// True when `count` threads have read their printer; the window then shows what they reported.
    [[nodiscard]] bool settle(int count)
    {
        const bool areWaiting = machine().waitForWaitingThreads(count);
        QCoreApplication::processEvents();
        return areWaiting;
    }
    static QStringList row(const PrinterWindow& window, int number)
    {
        const auto* table = window.findChild<QTableWidget*>();
        QStringList texts;
        for (int column = 0; column < table->columnCount(); ++column)
            texts.append(table->item(number, column)->text());
        return texts;
    }
    static int rows(const PrinterWindow& window)
    {
        return window.findChild<QTableWidget*>()->rowCount();
    }
};

void WidgetsHostTest::initTestCase()
{
    writeSampleDatabase(QCoreApplication::applicationDirPath());
}

void WidgetsHostTest::init()
{
    MachineTest::init();
    machine().driveTime();
}

void WidgetsHostTest::addPrinters()
{
    machine().addPrinter(
        {.name = QStringLiteral("Packing"), .driver = QStringLiteral("Stratamark AlderMax")});
    machine().publish(QStringLiteral("Packing"),
                      {PrinterValue::text("StatusCode", "1"),
                       PrinterValue::text("SupplyIdentifier", "000000641000050000A7"),
                       PrinterValue::number("Mileage", 22860),
                       PrinterValue::number("Ribbon1Identifier", 2001),
                       PrinterValue::number("Ribbon1Mileage", 90000),
                       PrinterValue::number("Ribbon2Identifier", 2004),
                       PrinterValue::number("Ribbon2Mileage", 30000),
                       PrinterValue::text("SoftwareVersion", "4.1.3,boot 1.7")});
    machine().addPrinter(
        {.name = QStringLiteral("Returns"), .driver = QStringLiteral("Stratamark BirchMax")});
    machine().publish(QStringLiteral("Returns"),
                      {PrinterValue::text("StatusCode", "1"),
                       PrinterValue::text("SupplyIdentifier", "000000641000030000B2"),
                       PrinterValue::number("Mileage", 9144),
                       PrinterValue::number("Ribbon1Identifier", 2011),
                       PrinterValue::number("Ribbon1Mileage", 110000),
                       PrinterValue::text("SoftwareVersion", "3.9.1")});
    machine().addPrinter({.name = QStringLiteral("Branch Office"),
                          .driver = QStringLiteral("Stratamark CedarMax"),
                          .port = QStringLiteral("192.168.1.20")});
    machine().setDefaultPrinter(QStringLiteral("Packing"));
}

void WidgetsHostTest::showsPrintersAtTheStart()
{
    addPrinters();
    const PrinterWindow window;
    QCOMPARE(rows(window), 3);
    QCOMPARE(row(window, 0),
             (QStringList{
                 QStringLiteral("Branch Office"),
                 QStringLiteral("Printer Is Remotely Connected.\nUnable to retrieve printer info."),
                 {},
                 {},
                 {},
                 {}}));
    QCOMPARE(row(window, 1),
             (QStringList{QStringLiteral("Packing"),
                          QStringLiteral("Unable To Retrieve Printer Info. (Code 255)"),
                          {},
                          {},
                          {},
                          {}}));
    QVERIFY(settle(2));
}

void WidgetsHostTest::showsLoadedSuppliesAndRibbons()
{
    addPrinters();
    PrinterWindow window;
    window.show();
    QVERIFY(settle(2));
    QCOMPARE(row(window, 1),
             (QStringList{QStringLiteral("Packing"), QStringLiteral("Ready"),
                          QStringLiteral("Vinyl Blue, 75 %"), QStringLiteral("Black, 74 %"),
                          QStringLiteral("Red, 24 %"), QStringLiteral("4.1.3")}));
    QCOMPARE(row(window, 2), (QStringList{QStringLiteral("Returns"),
                                          QStringLiteral("Ready"),
                                          QStringLiteral("Vinyl Yellow, 30 %"),
                                          QStringLiteral("Black, 91 %"),
                                          {},
                                          QStringLiteral("3.9.1")}));
    const auto* table = window.findChild<QTableWidget*>();
    QCOMPARE(table->item(1, 2)->data(Qt::DecorationRole).value<QColor>(), QColor(0x0057b8));
    QVERIFY(table->item(1, 0)->font().bold());
    QVERIFY(!table->item(2, 0)->font().bold());

    // An error, so that the picture shows one.
    machine().publish(QStringLiteral("Returns"), PrinterValue::text("StatusCode", "3"));
    QVERIFY(settle(2));
    if (const QString picture = qEnvironmentVariable("VX_PICTURE"); !picture.isEmpty())
        QVERIFY(window.grab().save(picture));
}

void WidgetsHostTest::showsChanges()
{
    addPrinters();
    const PrinterWindow window;
    QVERIFY(settle(2));
    machine().publish(QStringLiteral("Packing"), PrinterValue::number("Ribbon1Identifier", 2006));
    QVERIFY(settle(2));
    QCOMPARE(row(window, 1).at(3), QStringLiteral("Green, 74 %"));
    machine().publish(QStringLiteral("Packing"),
                      PrinterValue::text("SupplyIdentifier", "00000000000000000000"));
    QVERIFY(settle(2));
    QCOMPARE(row(window, 1).at(2), QString());
}

void WidgetsHostTest::warnsOfErrors()
{
    machine().addPrinter(
        {.name = QStringLiteral("Packing"), .driver = QStringLiteral("Stratamark Alder")});
    machine().publish(QStringLiteral("Packing"), PrinterValue::text("StatusCode", "1"));
    PrinterWindow window;
    window.show();
    const auto* warning = window.findChild<QLabel*>();
    QVERIFY(settle(1));
    QVERIFY(!warning->isVisible());
    machine().publish(QStringLiteral("Packing"), PrinterValue::text("StatusCode", "4"));
    QVERIFY(settle(1));
    QVERIFY(warning->isVisible());
    QCOMPARE(row(window, 0).at(1), QStringLiteral("The cover is open"));
    machine().publish(QStringLiteral("Packing"), PrinterValue::text("StatusCode", "1"));
    QVERIFY(settle(1));
    QVERIFY(!warning->isVisible());
}

void WidgetsHostTest::findsPrintersWhenAsked()
{
    const PrinterWindow window;
    QCOMPARE(rows(window), 0);
    addPrinters();
    window.findChild<QPushButton*>()->click();
    QCOMPARE(rows(window), 3);
    QVERIFY(settle(2));
    QCOMPARE(row(window, 1).at(1), QStringLiteral("Ready"));
}

void WidgetsHostTest::showsAnEmptyTableWithoutPrinters()
{
    PrinterWindow window;
    window.show();
    QCoreApplication::processEvents();
    QCOMPARE(rows(window), 0);
    window.findChild<QPushButton*>()->click();
    QCOMPARE(rows(window), 0);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, WidgetsHostTest>(argc, argv);
}
#include "tst_widgets_host.moc"
