// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a monitoring thread reads and reports, and in which order.
#include "thread_test.h"

#include <QtCore/QMetaMethod>

namespace {

const QStringList valuesInReadingOrder{
    QStringLiteral("SupplyIdentifier"),  QStringLiteral("Ribbon1Identifier"),
    QStringLiteral("Ribbon2Identifier"), QStringLiteral("StatusCode"),
    QStringLiteral("SoftwareVersion"),   QStringLiteral("EthernetConfig"),
    QStringLiteral("Mileage"),           QStringLiteral("Ribbon1Mileage"),
    QStringLiteral("Ribbon2Mileage"),    QStringLiteral("UpdateProgress"),
    QStringLiteral("UpdateError"),
};

/// The calls of one read of the printer, without the handles.
QStringList oneRead()
{
    QStringList calls;
    for (const QString& value : valuesInReadingOrder)
        calls.append(QStringLiteral("GetPrinterDataA ") + value);
    return calls << QStringLiteral("GetPrinterW 1") << QStringLiteral("GetPrinterW 1");
}

/// Calls as "function argument"; the argument is the value's name or the record's level.
QStringList outline(const QList<Call>& calls)
{
    QStringList lines;
    for (const Call& call : calls) {
        const bool isRead = call.function.startsWith(QLatin1String("GetPrinter"));
        lines.append(isRead ? call.function + QLatin1Char(' ') + call.arguments.at(1)
                            : call.function);
    }
    return lines;
}

} // namespace

class PrinterStatusThreadTest : public ThreadTest
{
    Q_OBJECT

private Q_SLOTS:
    void signalsOfTheMetaObject();
    void firstReadReportsEverythingInOrder();
    void firstReadOfAPrinterWithoutValuesReportsItsName();
    void startAndFirstReadMakeTheirCallsInOrder();
    void startAndFirstReadPassTheseArguments();
    void notificationIsReadThroughTheOpenHandle();
    void notificationWithoutAChangeReportsNothing();
    void valueThatChangesIsReportedAlone_data();
    void valueThatChangesIsReportedAlone();
    void valueThatDisappearsIsReportedAsEmpty();
    void valuesThatChangeTogetherAreReportedInOrder();
    void ribbon2AloneIsReportedWithBoth();
    void ribbon1AloneIsReportedWithBoth();
    void bothRibbonsAreReportedOnce();
    void changeOfLetterCaseIsAChange();
    void renamedPrinterIsReportedUnderItsMonitoredName();
    void changeBetweenWakeUpAndReArmingIsNotLost();
    void status255IsReadThroughANewHandle();
    void statusLike255IsReadThroughTheOpenHandle_data();
    void statusLike255IsReadThroughTheOpenHandle();
    void status255WithoutFullAccessIsReadThroughTheOpenHandle();
    void printerNameOutsideLatin1();
    void eachReportCarriesTheNameAtThatMoment();
    void signalsAreEmittedOnTheMonitoringThread();
};

void PrinterStatusThreadTest::signalsOfTheMetaObject()
{
    const QMetaObject& meta = PrinterStatusThread::staticMetaObject;
    QStringList declared;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        const QByteArray kind = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
        declared.append(QString::fromLatin1(kind + method.methodSignature() + ' ' +
                                            method.parameterNames().join(' ')));
    }
    const auto valueSignal = [](const char* name, const char* argument) {
        return QStringLiteral("signal %1(QString,QString) dashboardPrinterName %2")
            .arg(QLatin1String(name), QLatin1String(argument));
    };
    const QStringList expected{
        valueSignal("supplyIdChanged", "newId"),
        QStringLiteral("signal ribbonIdsChanged(QString,QStringList) dashboardPrinterName newIds"),
        valueSignal("printerStatusChanged", "newStatus"),
        valueSignal("supplyIntMileageChanged", "newMileage"),
        valueSignal("ribbon1IntMileageChanged", "newMileage"),
        valueSignal("ribbon2IntMileageChanged", "newMileage"),
        valueSignal("printerNameChangedSignal", "newName"),
        valueSignal("softwareVersionChanged", "newVersion"),
        valueSignal("updateProgressChanged", "newProgress"),
        valueSignal("updateErrorChanged", "newError"),
        valueSignal("ethernetConfigChanged", "newEthernetConfig"),
        QStringLiteral("slot stop() "),
    };
    QCOMPARE(declared, expected);
    QCOMPARE(meta.superClass(), &QThread::staticMetaObject);
}

void PrinterStatusThreadTest::firstReadReportsEverythingInOrder()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());

    const QList<Report> expected{
        status("1"),
        report("supplyIdChanged", QString::fromLatin1(supplyIdentifier('1'))),
        {QStringLiteral("ribbonIdsChanged"),
         labelPrinter,
         {QStringLiteral("101"), QStringLiteral("102")}},
        report("supplyIntMileageChanged", QStringLiteral("103")),
        report("ribbon1IntMileageChanged", QStringLiteral("104")),
        report("ribbon2IntMileageChanged", QStringLiteral("105")),
        report("printerNameChangedSignal", labelPrinter),
        report("softwareVersionChanged", QStringLiteral("version 1")),
        report("ethernetConfigChanged", QStringLiteral("network 1")),
        report("updateProgressChanged", QStringLiteral("106")),
        report("updateErrorChanged", QStringLiteral("107")),
    };
    QCOMPARE(takeReports(), expected);
    QVERIFY(logged().isEmpty());
}

void PrinterStatusThreadTest::firstReadOfAPrinterWithoutValuesReportsItsName()
{
    QVERIFY(watch());
    QCOMPARE(takeReports(), QList<Report>{report("printerNameChangedSignal", labelPrinter)});
}

void PrinterStatusThreadTest::startAndFirstReadMakeTheirCallsInOrder()
{
    machine().recordCalls();
    QVERIFY(watch());

    const QStringList expected =
        QStringList{QStringLiteral("OpenPrinterA"),
                    QStringLiteral("FindFirstPrinterChangeNotification"),
                    QStringLiteral("OpenPrinterA")}
        << oneRead()
        << QStringList{
               QStringLiteral("ClosePrinter"),       QStringLiteral("CreateEventW"),
               QStringLiteral("OpenSCManagerW"),     QStringLiteral("OpenServiceW"),
               QStringLiteral("QueryServiceStatus"), QStringLiteral("WaitForMultipleObjects")};
    QCOMPARE(outline(machine().calls()), expected);
}

void PrinterStatusThreadTest::startAndFirstReadPassTheseArguments()
{
    machine().recordCalls();
    QVERIFY(watch());

    const QList<Call> opened = machine().calls(QStringLiteral("OpenPrinterA"));
    QCOMPARE(opened.at(0).arguments, (QStringList{labelPrinter, QStringLiteral("0")}));
    QCOMPARE(opened.at(1).arguments, (QStringList{labelPrinter, QString::number(0x000F000C)}));

    const QStringList asked = lastCall("FindFirstPrinterChangeNotification").arguments;
    QCOMPARE(asked.mid(1), (QStringList{QString::number(0x7777FFFF), QStringLiteral("0"),
                                        QStringLiteral("0x0")}));
    const QString printer = asked.first();

    // The first read uses the handle with full access, which is closed after it.
    const QString fullAccess =
        machine().calls(QStringLiteral("GetPrinterDataA")).first().arguments.first();
    QVERIFY(fullAccess != printer);
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{fullAccess});

    QCOMPARE(lastCall("CreateEventW").arguments,
             (QStringList{QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("null")}));
    QCOMPARE(lastCall("OpenSCManagerW").arguments,
             (QStringList{QStringLiteral("null"), QStringLiteral("null"), QStringLiteral("0")}));
    QCOMPARE(lastCall("OpenServiceW").arguments.mid(1),
             (QStringList{QStringLiteral("Spooler"), QStringLiteral("4")}));

    const QStringList waited = lastCall("WaitForMultipleObjects").arguments;
    QCOMPARE(waited.size(), 5);
    QCOMPARE(waited.at(0), QStringLiteral("2"));
    QCOMPARE(waited.mid(3), (QStringList{QStringLiteral("0"), QStringLiteral("5000")}));
}

void PrinterStatusThreadTest::notificationIsReadThroughTheOpenHandle()
{
    machine().recordCalls();
    QVERIFY(watch());
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    const QString change = lastCall("WaitForMultipleObjects").arguments.at(2);
    machine().clearCalls();

    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));

    QCOMPARE(outline(machine().calls()),
             QStringList{QStringLiteral("FindNextPrinterChangeNotification")}
                 << oneRead() << QStringLiteral("WaitForMultipleObjects"));
    QCOMPARE(lastCall("FindNextPrinterChangeNotification").arguments,
             (QStringList{change, QStringLiteral("0x0"), QStringLiteral("0x0")}));
    for (const char* function : {"GetPrinterDataA", "GetPrinterW"}) {
        const QList<Call> reads = machine().calls(QString::fromLatin1(function));
        for (const Call& read : reads)
            QCOMPARE(read.arguments.first(), printer);
    }
    QCOMPARE(takeReports().last(), status("1"));
}

void PrinterStatusThreadTest::notificationWithoutAChangeReportsNothing()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    machine().notify(labelPrinter, 0x2);
    QVERIFY(settle());
    machine().publish(labelPrinter, everyValue());
    QVERIFY(settle());
    QCOMPARE(takeReports(), QList<Report>());
    QCOMPARE(machine().callCount(QStringLiteral("FindNextPrinterChangeNotification")), 2);
}

void PrinterStatusThreadTest::valueThatChangesIsReportedAlone_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QStringList>("values");

    const auto row = [](int index, const char* signal, const QStringList& values) {
        QTest::newRow(signal) << index << QString::fromLatin1(signal) << values;
    };
    row(0, "supplyIdChanged", {QString::fromLatin1(supplyIdentifier('2'))});
    row(3, "printerStatusChanged", {QStringLiteral("2")});
    row(4, "softwareVersionChanged", {QStringLiteral("version 2")});
    row(5, "ethernetConfigChanged", {QStringLiteral("network 2")});
    row(6, "supplyIntMileageChanged", {QStringLiteral("203")});
    row(7, "ribbon1IntMileageChanged", {QStringLiteral("204")});
    row(8, "ribbon2IntMileageChanged", {QStringLiteral("205")});
    row(9, "updateProgressChanged", {QStringLiteral("206")});
    row(10, "updateErrorChanged", {QStringLiteral("207")});
}

void PrinterStatusThreadTest::valueThatChangesIsReportedAlone()
{
    QFETCH(const int, index);
    QFETCH(const QString, signal);
    QFETCH(const QStringList, values);

    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    QVERIFY(publish(everyValue('2').at(index)));
    QCOMPARE(takeReports(), (QList<Report>{{signal, labelPrinter, values}}));
    QVERIFY(publish(everyValue('2').at(index)));
    QCOMPARE(takeReports(), QList<Report>());
}

void PrinterStatusThreadTest::valueThatDisappearsIsReportedAsEmpty()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    machine().unpublish(labelPrinter, "Mileage");
    QVERIFY(settle());
    QCOMPARE(takeReports(), QList<Report>{report("supplyIntMileageChanged", {})});

    // A number that is not plausible is not reported either.
    QVERIFY(publish(PrinterValue::number("Ribbon1Identifier", 100001)));
    QCOMPARE(takeReports(), (QList<Report>{{QStringLiteral("ribbonIdsChanged"),
                                            labelPrinter,
                                            {QString(), QStringLiteral("102")}}}));
}

void PrinterStatusThreadTest::valuesThatChangeTogetherAreReportedInOrder()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    machine().publish(labelPrinter, everyValue('2'));
    QVERIFY(settle());
    QStringList order;
    const QList<Report> reports = takeReports();
    for (const Report& report : reports)
        order.append(report.signal);
    QCOMPARE(order, (QStringList{
                        QStringLiteral("printerStatusChanged"),
                        QStringLiteral("supplyIdChanged"),
                        QStringLiteral("ribbonIdsChanged"),
                        QStringLiteral("supplyIntMileageChanged"),
                        QStringLiteral("ribbon1IntMileageChanged"),
                        QStringLiteral("ribbon2IntMileageChanged"),
                        QStringLiteral("softwareVersionChanged"),
                        QStringLiteral("ethernetConfigChanged"),
                        QStringLiteral("updateProgressChanged"),
                        QStringLiteral("updateErrorChanged"),
                    }));
}

void PrinterStatusThreadTest::ribbon2AloneIsReportedWithBoth()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    QVERIFY(publish(PrinterValue::number("Ribbon2Identifier", 77)));
    QCOMPARE(takeReports(), (QList<Report>{{QStringLiteral("ribbonIdsChanged"),
                                            labelPrinter,
                                            {QStringLiteral("101"), QStringLiteral("77")}}}));
    QVERIFY(publish(PrinterValue::number("Ribbon2Identifier", 77)));
    QCOMPARE(takeReports(), QList<Report>());
}

void PrinterStatusThreadTest::ribbon1AloneIsReportedWithBoth()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    QVERIFY(publish(PrinterValue::number("Ribbon1Identifier", 77)));
    QCOMPARE(takeReports(), (QList<Report>{{QStringLiteral("ribbonIdsChanged"),
                                            labelPrinter,
                                            {QStringLiteral("77"), QStringLiteral("102")}}}));
    QVERIFY(publish(PrinterValue::number("Ribbon1Identifier", 77)));
    QCOMPARE(takeReports(), QList<Report>());
}

void PrinterStatusThreadTest::bothRibbonsAreReportedOnce()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    takeReports();

    machine().publish(labelPrinter, {PrinterValue::number("Ribbon1Identifier", 7),
                                     PrinterValue::number("Ribbon2Identifier", 8)});
    QVERIFY(settle());
    QCOMPARE(takeReports(), (QList<Report>{{QStringLiteral("ribbonIdsChanged"),
                                            labelPrinter,
                                            {QStringLiteral("7"), QStringLiteral("8")}}}));
}

void PrinterStatusThreadTest::changeOfLetterCaseIsAChange()
{
    machine().publish(labelPrinter, PrinterValue::text("SoftwareVersion", "boot"));
    QVERIFY(watch());
    takeReports();
    QVERIFY(publish(PrinterValue::text("SoftwareVersion", "BOOT")));
    QCOMPARE(takeReports(),
             QList<Report>{report("softwareVersionChanged", QStringLiteral("BOOT"))});
}

void PrinterStatusThreadTest::renamedPrinterIsReportedUnderItsMonitoredName()
{
    QVERIFY(watch());
    takeReports();
    const QString newName = QStringLiteral("Renamed Printer");
    machine().renamePrinter(labelPrinter, newName);
    QVERIFY(settle());
    QCOMPARE(takeReports(), QList<Report>{report("printerNameChangedSignal", newName)});

    machine().publish(newName, PrinterValue::text("StatusCode", "5"));
    QVERIFY(settle());
    QCOMPARE(takeReports(), QList<Report>{status("5")});
}

void PrinterStatusThreadTest::changeBetweenWakeUpAndReArmingIsNotLost()
{
    QVERIFY(watch());
    takeReports();
    // The second value is published when the thread, woken by the first one, re-arms the
    // notification.
    bool isSecondPublished = false;
    machine().setCallHook([&](const Call& call) {
        if (isSecondPublished ||
            call.function != QLatin1String("FindNextPrinterChangeNotification"))
            return;
        isSecondPublished = true;
        machine().publish(labelPrinter, PrinterValue::text("StatusCode", "2"));
    });
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("2")});

    // The third one is published after the re-arming, while the values are being read.
    bool isThirdPublished = false;
    machine().setCallHook([&](const Call& call) {
        if (isThirdPublished || call.function != QLatin1String("GetPrinterW"))
            return;
        isThirdPublished = true;
        machine().publish(labelPrinter, PrinterValue::text("StatusCode", "4"));
    });
    QVERIFY(publish(PrinterValue::text("StatusCode", "3")));
    QCOMPARE(takeReports(), (QList<Report>{status("3"), status("4")}));
}

void PrinterStatusThreadTest::status255IsReadThroughANewHandle()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "255"));
    QVERIFY(watch());
    QCOMPARE(takeReports().first(), status("255"));
    machine().recordCalls();

    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
    const QStringList expected =
        QStringList{QStringLiteral("FindNextPrinterChangeNotification"),
                    QStringLiteral("OpenPrinterA")}
        << oneRead()
        << QStringList{QStringLiteral("ClosePrinter"), QStringLiteral("WaitForMultipleObjects")};
    QCOMPARE(outline(machine().calls()), expected);
    QCOMPARE(lastCall("OpenPrinterA").arguments,
             (QStringList{labelPrinter, QString::number(0x000F000C)}));
    QCOMPARE(lastCall("ClosePrinter").arguments.first(),
             lastCall("GetPrinterDataA").arguments.first());

    // The status is known again: the next read uses the handle that stays open.
    machine().clearCalls();
    QVERIFY(publish(PrinterValue::text("StatusCode", "2")));
    QVERIFY(!functionsCalled().contains(QStringLiteral("OpenPrinterA")));
}

void PrinterStatusThreadTest::statusLike255IsReadThroughTheOpenHandle_data()
{
    QTest::addColumn<QByteArray>("code");
    for (const char* code : {"0255", "255 ", "25", "254", "2550"})
        QTest::newRow(code) << QByteArray(code);
}

void PrinterStatusThreadTest::statusLike255IsReadThroughTheOpenHandle()
{
    QFETCH(const QByteArray, code);
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", code));
    QVERIFY(watch());
    machine().recordCalls();
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QVERIFY(!functionsCalled().contains(QStringLiteral("OpenPrinterA")));
}

void PrinterStatusThreadTest::status255WithoutFullAccessIsReadThroughTheOpenHandle()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "255"));
    QVERIFY(watch());
    takeReports();
    machine().recordCalls();
    machine().setAdministrable(labelPrinter, false);
    QVERIFY(settle());

    // It is read through the open handle, which is not closed.
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
    QVERIFY(!functionsCalled().contains(QStringLiteral("ClosePrinter")));
}

void PrinterStatusThreadTest::printerNameOutsideLatin1()
{
    const QString name = QStringLiteral("Étiquettes 日本 №1");
    machine().addPrinter({.name = name, .driver = QStringLiteral("Stratamark Alder")});
    thread().setMonitoredPrinterName(name);
    QVERIFY(watch());
    QCOMPARE(takeReports(),
             (QList<Report>{{QStringLiteral("printerNameChangedSignal"), name, {name}}}));
}

void PrinterStatusThreadTest::eachReportCarriesTheNameAtThatMoment()
{
    QVERIFY(watch());
    takeReports();
    // The name is set while the thread is inside the call, so no lock is needed.
    machine().setCallHook([&](const Call& call) {
        if (call.function == QLatin1String("GetPrinterW"))
            thread().setMonitoredPrinterName(QStringLiteral("Another Name"));
    });
    QVERIFY(publish(PrinterValue::text("StatusCode", "6")));
    QCOMPARE(takeReports(), (QList<Report>{{QStringLiteral("printerStatusChanged"),
                                            QStringLiteral("Another Name"),
                                            {QStringLiteral("6")}}}));
}

void PrinterStatusThreadTest::signalsAreEmittedOnTheMonitoringThread()
{
    machine().recordCalls();
    Qt::HANDLE reportingThread = nullptr;
    connect(
        &thread(), &PrinterStatusThread::printerNameChangedSignal, &thread(),
        [&] { reportingThread = QThread::currentThreadId(); }, Qt::DirectConnection);
    QVERIFY(watch());
    const QList<Call> calls = machine().calls();
    for (const Call& call : calls)
        QCOMPARE(call.thread, reportingThread);
    QVERIFY(reportingThread != QThread::currentThreadId());
}

QTEST_GUILESS_MAIN(PrinterStatusThreadTest)
#include "tst_printer_status_thread.moc"
