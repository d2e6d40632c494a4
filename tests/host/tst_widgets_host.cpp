// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The example with a window, on virtual printers. With VX_PICTURE=FILE in the environment the test
// also saves the picture of the window that the guide shows.
#include "machine_test.h"
#include "run_in_english.h"
#include "sample_database.h"

#include <printer_discovery.h>
#include <printer_list_model.h>
#include <printer_list_view.h>
#include <printer_readings.h>
#include <printer_status_controller.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>

using virtualwindows::PrinterValue;

namespace {

/// What main() of the example creates, with a name for each.
struct Host
{
    Host()
    {
        QObject::connect(&discovery, &VxKit::PrinterDiscovery::printersChanged, &readings,
                         &VxKit::PrinterReadings::refresh);
        printers.setReadings(&readings);
        view.setModel(&printers);
        view.show();
    }

    PrinterStatusController controller;
    VxKit::PrinterReadings readings{&controller};
    VxKit::PrinterDiscovery discovery{&controller};
    VxKit::PrinterListModel printers;
    VxKit::PrinterListView view;
};

QStringList shownBy(const Host& host, int role)
{
    const QAbstractItemModel& rows = *host.view.findChild<QAbstractItemView*>()->model();
    QStringList texts;
    for (int row = 0; row < rows.rowCount(); ++row)
        texts.append(rows.index(row, 0).data(role).toString());
    return texts;
}

} // namespace

class WidgetsHostTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void showsWhatIsLoaded();
    void showsChanges();
    void showsPrintersThatCome();

private:
    void addPrinters();
};

void WidgetsHostTest::initTestCase()
{
    writeSampleDatabase(QCoreApplication::applicationDirPath());
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

void WidgetsHostTest::showsWhatIsLoaded()
{
    addPrinters();
    Host host;
    const QString packing = QStringLiteral("Packing, active printer, Ready (OK), AlderMax");
    QTRY_VERIFY2(shownBy(host, Qt::AccessibleTextRole).contains(packing),
                 qPrintable(shownBy(host, Qt::AccessibleTextRole).join(u'|')));
    const auto told = [&host] {
        const qsizetype row = host.view.shownPrinters().indexOf(QStringLiteral("Packing"));
        return shownBy(host, Qt::AccessibleDescriptionRole).value(row);
    };
    QTRY_VERIFY2(told().contains(QLatin1String("Supply: Blue Vinyl, 75 %")) ||
                     told().contains(QLatin1String("Supply: Vinyl Blue, 75 %")),
                 qPrintable(told()));
    QCOMPARE(host.view.shownPrinters().size(), 3);
}

void WidgetsHostTest::showsChanges()
{
    addPrinters();
    Host host;
    machine().publish(QStringLiteral("Returns"), PrinterValue::text("StatusCode", "3"));
    QTRY_COMPARE(host.view.shownPrinters().first(), QStringLiteral("Returns")); // the worst
    host.view.resize(900, 260);
    if (const QString picture = qEnvironmentVariable("VX_PICTURE"); !picture.isEmpty())
        QVERIFY(host.view.grab().save(picture));
}

void WidgetsHostTest::showsPrintersThatCome()
{
    Host host;
    QVERIFY(host.view.shownPrinters().isEmpty());
    addPrinters();
    QTRY_COMPARE(host.view.shownPrinters().size(), 3);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, WidgetsHostTest>(argc, argv);
}
#include "tst_widgets_host.moc"
