// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The controller's meta-object: every method, in order, and the property.
#include "controller_test.h"
#include "printer_status_thread.h"

#include <QtCore/QMetaProperty>

class ControllerMetaObjectTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void derivesFromQObjectAlone();
    void method_data();
    void method();
    void hasNoOtherMethods();
    void availablePrintersIsTheOnlyProperty();
    void typesAreRegisteredByName();
    void everyPublicSlotCanBeCalledByName();
    void recordsAreReadThroughTheProperty();
    void threadsAreHandedOutOutsideOfIt();
};

void ControllerMetaObjectTest::derivesFromQObjectAlone()
{
    const QMetaObject& meta = PrinterStatusController::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.className(), "PrinterStatusController");
    QCOMPARE(meta.constructorCount(), 0);
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

namespace {

struct Method
{
    QMetaMethod::MethodType kind;
    QMetaMethod::Access access;
    const char* result;
    const char* signature;
    const char* arguments;
};

constexpr auto signalKind = QMetaMethod::Signal;
constexpr auto slotKind = QMetaMethod::Slot;
constexpr auto publicAccess = QMetaMethod::Public;
constexpr auto privateAccess = QMetaMethod::Private;

constexpr Method methods[] = {
    {signalKind, publicAccess, "void", "availablePrintersUpdated()", ""},
    {signalKind, publicAccess, "void", "printerErrorChangedSignal(bool)", "printerInErrorState"},
    {signalKind, publicAccess, "void", "statusChangedSignal(int,QString)", "status printerName"},
    {signalKind, publicAccess, "void", "supplyIdChangedSignal(QString)", "printerName"},
    {signalKind, publicAccess, "void", "ribbonIdsChangedSignal(QString)", "printerName"},
    {signalKind, publicAccess, "void", "activeDefaultPrinterSetSignal(QString,bool)",
     "activePrinterName isVX"},
    {signalKind, publicAccess, "void", "softwareVersionUpdated(QString)", "printerName"},
    {slotKind, publicAccess, "void", "checkForPrinters()", ""},
    {slotKind, publicAccess, "VXPrinting::PrinterType", "getPrinterTypeEnum(QString)",
     "printerName"},
    {slotKind, publicAccess, "QString", "getStatusTitle(int)", "statusEnum"},
    {slotKind, publicAccess, "void", "sendToLogger(QString)", "message"},
    {slotKind, publicAccess, "void", "sendCommandToPrinter(QString,QString)",
     "command printerName"},
    {slotKind, publicAccess, "QString", "getPrinterSoftwareVersion(QString)", "printerName"},
    {slotKind, privateAccess, "void", "onPrinterStatusChanged(QString,QString)",
     "printerName status"},
    {slotKind, privateAccess, "void", "onSupplyIdChanged(QString,QString)", "printerName id"},
    {slotKind, privateAccess, "void", "onRibbonIdsChanged(QString,QStringList)", "printerName ids"},
    {slotKind, privateAccess, "void", "onSupplyIntMileageChanged(QString,QString)",
     "printerName mileage"},
    {slotKind, privateAccess, "void", "onRibbon1IntMileageChanged(QString,QString)",
     "printerName mileage"},
    {slotKind, privateAccess, "void", "onRibbon2IntMileageChanged(QString,QString)",
     "printerName mileage"},
    {slotKind, privateAccess, "void", "onSoftwareVersionChanged(QString,QString)",
     "printerName version"},
};

QMetaMethod methodAt(int index)
{
    const QMetaObject& meta = PrinterStatusController::staticMetaObject;
    return meta.method(meta.methodOffset() + index);
}

} // namespace

void ControllerMetaObjectTest::method_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < int(std::size(methods)); ++index)
        QTest::addRow("%d %s", index, methods[index].signature) << index;
}

void ControllerMetaObjectTest::method()
{
    QFETCH(const int, index);
    const Method& expected = methods[index];
    const QMetaMethod found = methodAt(index);

    QCOMPARE(found.methodSignature(), QByteArray(expected.signature));
    QCOMPARE(found.methodType(), expected.kind);
    QCOMPARE(found.access(), expected.access);
    QCOMPARE(QByteArray(found.typeName()), QByteArray(expected.result));
    QCOMPARE(found.parameterNames().join(' '), QByteArray(expected.arguments));
    QCOMPARE(found.revision(), 0);
    QCOMPARE(QByteArray(found.tag()), QByteArray());
    QVERIFY(!(found.attributes() & QMetaMethod::Cloned));
    for (int argument = 0; argument < found.parameterCount(); ++argument)
        QVERIFY(found.parameterMetaType(argument).isValid());
}

void ControllerMetaObjectTest::hasNoOtherMethods()
{
    const QMetaObject& meta = PrinterStatusController::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), int(std::size(methods)));
}

void ControllerMetaObjectTest::availablePrintersIsTheOnlyProperty()
{
    const QMetaObject& meta = PrinterStatusController::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);

    const QMetaProperty property = meta.property(meta.propertyOffset());
    QCOMPARE(property.name(), "availablePrinters");
    QCOMPARE(property.metaType(), QMetaType::fromType<QVariantList>());
    QCOMPARE(property.notifySignal().methodSignature(), QByteArray("availablePrintersUpdated()"));
    QVERIFY(property.isReadable());
    QVERIFY(property.isDesignable());
    QVERIFY(property.isScriptable());
    QVERIFY(property.isStored());
    QVERIFY(!property.isWritable());
    QVERIFY(!property.isResettable());
    QVERIFY(!property.isConstant());
    QVERIFY(!property.isFinal());
    QVERIFY(!property.isUser());
    QVERIFY(!property.isRequired());
}

void ControllerMetaObjectTest::typesAreRegisteredByName()
{
    QCOMPARE(QMetaType::fromName("PrinterStatusInformation"),
             QMetaType::fromType<PrinterStatusInformation>());
    QCOMPARE(QMetaType::fromName("VXPrinting::PrinterType"),
             QMetaType::fromType<VXPrinting::PrinterType>());
    QVERIFY(!QMetaType::fromName("PrinterStatusInformation").hasRegisteredDataStreamOperators());
}

void ControllerMetaObjectTest::everyPublicSlotCanBeCalledByName()
{
    addPrinter(QStringLiteral("Packing"), QStringLiteral("Stratamark CedarMax"));
    QObject& object = makeController();

    auto type = VXPrinting::PrinterType::Unknown;
    QVERIFY(QMetaObject::invokeMethod(&object, "getPrinterTypeEnum",
                                      Q_RETURN_ARG(VXPrinting::PrinterType, type),
                                      Q_ARG(QString, QStringLiteral("Packing"))));
    QCOMPARE(type, VXPrinting::PrinterType::CedarMax);

    QString title;
    QVERIFY(QMetaObject::invokeMethod(&object, "getStatusTitle", Q_RETURN_ARG(QString, title),
                                      Q_ARG(int, 1)));
    QCOMPARE(title, QStringLiteral("Ready"));

    report("onSoftwareVersionChanged", QStringLiteral("Packing"), QStringLiteral("2.4,boot 7"));
    QString version;
    QVERIFY(QMetaObject::invokeMethod(&object, "getPrinterSoftwareVersion",
                                      Q_RETURN_ARG(QString, version),
                                      Q_ARG(QString, QStringLiteral("Packing"))));
    QCOMPARE(version, QStringLiteral("2.4"));

    addPrinter(QStringLiteral("Shipping"));
    QVERIFY(QMetaObject::invokeMethod(&object, "checkForPrinters"));
    QCOMPARE(recordNames(), QStringList({QStringLiteral("Packing"), QStringLiteral("Shipping")}));

    takeLog();
    QVERIFY(QMetaObject::invokeMethod(&object, "sendToLogger",
                                      Q_ARG(QString, QStringLiteral("from the host"))));
    QCOMPARE(takeMessages(), QStringList{QStringLiteral("from the host")});

    QVERIFY(QMetaObject::invokeMethod(&object, "sendCommandToPrinter",
                                      Q_ARG(QString, QStringLiteral("FEED")),
                                      Q_ARG(QString, QStringLiteral("Packing"))));
    QCOMPARE(machine().jobs(QStringLiteral("Packing")).size(), 1);
}

void ControllerMetaObjectTest::recordsAreReadThroughTheProperty()
{
    addPrinter(QStringLiteral("Packing"));
    const QObject& object = makeController();

    const QVariantList records = object.property("availablePrinters").toList();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().metaType(), QMetaType::fromType<PrinterStatusInformation>());
    const QMetaObject& gadget = PrinterStatusInformation::staticMetaObject;
    const QMetaProperty name = gadget.property(gadget.indexOfProperty("printerName"));
    QCOMPARE(name.readOnGadget(records.first().constData()), QVariant(QStringLiteral("Packing")));
}

void ControllerMetaObjectTest::threadsAreHandedOutOutsideOfIt()
{
    addPrinter(QStringLiteral("Packing"));
    addNetworkPrinter(QStringLiteral("Far"));
    const PrinterStatusController& printers = makeController();
    QVERIFY(printers.statusThread(QStringLiteral("Packing")));
    QVERIFY(printers.statusThread(QStringLiteral("Packing"))->isRunning());
    QVERIFY(!printers.statusThread(QStringLiteral("Far")));
    QVERIFY(!printers.statusThread(QStringLiteral("Nobody")));
    QVERIFY(!printers.statusThread(QString()));
    // It is a plain member: the meta-object, of which the other tests check each entry, has no
    // trace of it.
    QVERIFY(PrinterStatusController::staticMetaObject.indexOfMethod("statusThread(QString)") < 0);
}

QTEST_GUILESS_MAIN(ControllerMetaObjectTest)
#include "tst_controller_meta_object.moc"
