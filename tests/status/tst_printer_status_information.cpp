// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The status record as hosts use it: its properties, and as a QVariant.
#include "printer_status_information.h"
#include "printer_types.h"

#include <QtCore/QMetaProperty>
#include <QtTest/QtTest>

namespace {

struct Property
{
    const char* name;
    QMetaType::Type type;
    QVariant defaultValue;
    QVariant otherValue;
};

const QList<Property>& properties()
{
    const auto text = [](const char* name) {
        return Property{name, QMetaType::QString, QString(),
                        QStringLiteral("text of ") + QString::fromLatin1(name)};
    };
    const auto number = [](const char* name, int defaultValue, int otherValue) {
        return Property{name, QMetaType::Int, defaultValue, otherValue};
    };
    const auto flag = [](const char* name, bool defaultValue) {
        return Property{name, QMetaType::Bool, defaultValue, !defaultValue};
    };
    static const QList<Property> table{
        text("printerName"),
        number("statusEnum", 255, 257),
        flag("printerOnline", true),
        flag("printerRemote", false),
        flag("printerNonAdmin", false),
        flag("printerDefault", false),
        number("ribbon1Percentage", 0, 11),
        text("ribbon1ColorHex"),
        text("ribbon1ColorName"),
        text("ribbon1SKU"),
        number("ribbon2Percentage", 0, 22),
        text("ribbon2ColorHex"),
        text("ribbon2ColorName"),
        text("ribbon2SKU"),
        text("softwareVersion"),
        number("supplyPercentage", 0, 33),
        text("supplyColorHex"),
        text("supplyColorName"),
        text("supplySKU"),
        text("supplyMaterialName"),
        flag("ribbon2Visible", false),
    };
    return table;
}

} // namespace

class PrinterStatusInformationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesInOrder();
    void defaults();
    void survivesAVariant();
    void copiesAreIndependent();
    void isKnownByName();
};

void PrinterStatusInformationTest::propertiesInOrder()
{
    const QMetaObject& meta = PrinterStatusInformation::staticMetaObject;
    QCOMPARE(meta.propertyCount(), 21);
    QCOMPARE(meta.methodCount(), 0);
    for (int index = 0; index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        const Property& expected = properties().at(index);
        QCOMPARE(property.name(), expected.name);
        QCOMPARE(property.metaType().id(), int(expected.type));
        QVERIFY2(property.isReadable() && property.isWritable() && property.isDesignable() &&
                     property.isScriptable() && property.isStored(),
                 expected.name);
        QVERIFY2(!property.hasNotifySignal() && !property.isConstant() && !property.isFinal(),
                 expected.name);
    }
}

void PrinterStatusInformationTest::defaults()
{
    const PrinterStatusInformation record;
    const QMetaObject& meta = PrinterStatusInformation::staticMetaObject;
    for (int index = 0; index < meta.propertyCount(); ++index)
        QCOMPARE(meta.property(index).readOnGadget(&record), properties().at(index).defaultValue);
    QCOMPARE(record.statusEnum, 255);
    QVERIFY(record.printerOnline);
}

void PrinterStatusInformationTest::survivesAVariant()
{
    const QMetaObject& meta = PrinterStatusInformation::staticMetaObject;
    PrinterStatusInformation record;
    for (int index = 0; index < meta.propertyCount(); ++index)
        QVERIFY(meta.property(index).writeOnGadget(&record, properties().at(index).otherValue));

    const QVariant variant = QVariant::fromValue(record);
    const auto stored = variant.value<PrinterStatusInformation>();
    for (const Property& expected : properties()) {
        const QMetaProperty property = meta.property(meta.indexOfProperty(expected.name));
        QCOMPARE(property.readOnGadget(variant.constData()), expected.otherValue);
        QCOMPARE(property.readOnGadget(&stored), expected.otherValue);
    }
}

void PrinterStatusInformationTest::copiesAreIndependent()
{
    PrinterStatusInformation record;
    record.printerName = QStringLiteral("first");
    PrinterStatusInformation copy = record;
    copy.printerName = QStringLiteral("second");
    QCOMPARE(record.printerName, QStringLiteral("first"));
}

void PrinterStatusInformationTest::isKnownByName()
{
    const QMetaType type = QMetaType::fromName("PrinterStatusInformation");
    QVERIFY(type.isValid());
    QCOMPARE(type, QMetaType::fromType<PrinterStatusInformation>());
    QVERIFY(!type.hasRegisteredDataStreamOperators());
    QCOMPARE(QMetaType::fromName("VXPrinting::PrinterType"),
             QMetaType::fromType<VXPrinting::PrinterType>());
}

QTEST_GUILESS_MAIN(PrinterStatusInformationTest)
#include "tst_printer_status_information.moc"
