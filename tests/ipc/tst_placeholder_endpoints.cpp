// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The printer-controller and print-queue services, called in their own process.
#include "vx_ipc_m4_controller.h"
#include "vx_ipc_printqd_controller.h"

#include <QtCore/QMetaProperty>
#include <QtTest/QTest>

class PlaceholderEndpointsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusThatWasNeverReportedIsUnknown();
    void storesTheLastStatusOfEachName();
    void endpointsStoreStatusesSeparately();
    void ownProcessMayReportAnyNameAndStatus();
    void answersAMessageWithAndWithoutItsValue();
    void storesNoJob();

    void registersTheJobRecord();
    void jobRecordIsEmptyByDefault();
    void aJobRecordHasItsTextsInRuns();
};

void PlaceholderEndpointsTest::statusThatWasNeverReportedIsUnknown()
{
    VXIPCM4Controller printers;
    QCOMPARE(printers.parent(), nullptr);
    QCOMPARE(printers.getPrinterStatus(QStringLiteral("CedarMax")), 255);
    QCOMPARE(printers.getPrinterStatus(QString()), 255);
    printers.onStatusChanged(7, QStringLiteral("CedarMax"));
    QCOMPARE(printers.getPrinterStatus(QStringLiteral("cedarmax")), 255);
    QCOMPARE(printers.getPrinterStatus(QStringLiteral("CedarMax ")), 255);
    QCOMPARE(printers.getPrinterStatus(QString()), 255);
}

void PlaceholderEndpointsTest::storesTheLastStatusOfEachName()
{
    VXIPCM4Controller printers;
    for (const int status : {7, -1, 0, 255, 258}) {
        printers.onStatusChanged(status, QStringLiteral("CedarMax"));
        QCOMPARE(printers.getPrinterStatus(QStringLiteral("CedarMax")), status);
    }
    printers.onStatusChanged(3, QString());
    QCOMPARE(printers.getPrinterStatus(QString()), 3);
    QCOMPARE(printers.getPrinterStatus(QStringLiteral("CedarMax")), 258);
}

void PlaceholderEndpointsTest::endpointsStoreStatusesSeparately()
{
    VXIPCM4Controller first;
    VXIPCM4Controller second;
    first.onStatusChanged(1, QStringLiteral("CedarMax"));
    QCOMPARE(second.getPrinterStatus(QStringLiteral("CedarMax")), 255);
}

void PlaceholderEndpointsTest::ownProcessMayReportAnyNameAndStatus()
{
    // More names, and longer ones, than other processes may store.
    VXIPCM4Controller printers;
    constexpr int nameCount = 5000;
    for (int i = 0; i < nameCount; ++i)
        printers.onStatusChanged(i, QStringLiteral("printer %1").arg(i));
    for (int i = 0; i < nameCount; ++i)
        QCOMPARE(printers.getPrinterStatus(QStringLiteral("printer %1").arg(i)), i);
    const QString longName(100000, QLatin1Char('n'));
    printers.onStatusChanged(7, longName);
    QCOMPARE(printers.getPrinterStatus(longName), 7);
}

void PlaceholderEndpointsTest::answersAMessageWithAndWithoutItsValue()
{
    VXIPCM4Controller printers;
    QVERIFY(printers.sendMCCMessage(1, 2));
    QVERIFY(printers.sendMCCMessage(1, 2, qulonglong{0}));
    QVERIFY(printers.sendMCCMessage(1, 2, QStringLiteral("text")));
    for (const char* signature : {"sendMCCMessage(int,int)", "sendMCCMessage(int,int,qulonglong)",
                                  "sendMCCMessage(int,int,QString)"})
        QVERIFY2(printers.metaObject()->indexOfSlot(signature) >= 0, signature);
}

void PlaceholderEndpointsTest::storesNoJob()
{
    VXIPCPRINTQDController queue;
    const QString id = QStringLiteral("{1}");
    queue.addJob(id, QStringLiteral("labels"), QStringLiteral("Quillmark"), 1);
    queue.addJob(id, QStringLiteral("labels"), QStringLiteral("Quillmark"), 1, 4);
    QCOMPARE(queue.getJobList(), QStringList());
    QVERIFY(queue.getJobInfo(id).guid.isNull());
    for (const char* signature :
         {"addJob(QString,QString,QString,int)", "addJob(QString,QString,QString,int,int)"})
        QVERIFY2(queue.metaObject()->indexOfSlot(signature) >= 0, signature);
}

void PlaceholderEndpointsTest::registersTheJobRecord()
{
    const VXIPCPRINTQDController queue;
    const QMetaType type = QMetaType::fromName("PrintJobMetaData");
    QCOMPARE(type, QMetaType::fromType<PrintJobMetaData>());
    QVERIFY(!type.hasRegisteredDataStreamOperators());
    QVERIFY(!type.isEqualityComparable());
}

void PlaceholderEndpointsTest::jobRecordIsEmptyByDefault()
{
    VXIPCPRINTQDController queue;
    const PrintJobMetaData record = queue.getJobInfo(QStringLiteral("{1}"));
    const QMetaObject& members = PrintJobMetaData::staticMetaObject;
    for (int i = 0; i < members.propertyCount(); ++i) {
        const QVariant value = members.property(i).readOnGadget(&record);
        if (value.typeId() == QMetaType::QString)
            QVERIFY2(value.toString().isNull(), members.property(i).name());
        else
            QVERIFY2(value.toInt() == 0, members.property(i).name());
    }
}

void PlaceholderEndpointsTest::aJobRecordHasItsTextsInRuns()
{
    const QMetaObject& members = PrintJobMetaData::staticMetaObject;
    QByteArray kinds;
    for (int i = 0; i < members.propertyCount(); ++i) {
        const bool isText = members.property(i).typeId() == QMetaType::QString;
        if (isText || !kinds.endsWith('-'))
            kinds += isText ? 't' : '-';
    }
    QCOMPARE(kinds, QByteArray("-ttt-tt-tt-tt-t"));
}

QTEST_GUILESS_MAIN(PlaceholderEndpointsTest)
#include "tst_placeholder_endpoints.moc"
