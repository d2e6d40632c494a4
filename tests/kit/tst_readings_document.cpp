// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Each example of docs/readings.md, calculated from its own row.
#include "readings_test.h"
#include "test_file.h"

#include <supplyc.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QFile>

class ReadingsDocumentTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void example_data();
    void example();
    void everyKindOfExampleIsThere();

private:
    static QList<QStringList> examples();
};

namespace {

enum Column
{
    Model,
    SlotName,
    Identifier,
    Mileage,
    Sku,
    Feet,
    Length,
    NewMeters,
    Meters,
    Ratio,
    Labels,
    Columns,
};

const QString none = QStringLiteral("–");

template <typename Number>
QString shown(const std::optional<Number>& number, int decimals)
{
    return number ? QString::number(double(*number), 'f', decimals) : none;
}

} // namespace

QList<QStringList> ReadingsDocumentTest::examples()
{
    QFile file(testFile(VX_READINGS_DOCUMENT));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", VX_READINGS_DOCUMENT);
    QList<QStringList> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        QStringList cells = line.split(QLatin1Char('|'));
        if (cells.size() != Columns + 2)
            continue;
        cells = cells.sliced(1, Columns);
        for (QString& cell : cells)
            cell = cell.trimmed();
        if (cells.at(Model) != QLatin1String("model") && !cells.at(Model).startsWith(u'-'))
            rows.append(cells);
    }
    return rows;
}

void ReadingsDocumentTest::example_data()
{
    QTest::addColumn<QStringList>("cells");
    const QList<QStringList> rows = examples();
    for (const QStringList& row : rows)
        QTest::addRow("%s, %s", qPrintable(row.at(Identifier)), qPrintable(row.at(Mileage))) << row;
}

void ReadingsDocumentTest::example()
{
    QFETCH(const QStringList, cells);
    const QString name = QStringLiteral("Packing");
    const QString slotText = cells.at(SlotName);
    const bool isSupply = slotText == QLatin1String("supply");
    addPrinter(name, QStringLiteral("Stratamark ") + cells.at(Model));
    const quint32 mileage = cells.at(Mileage).toUInt();
    if (isSupply) {
        publishText(name, "SupplyIdentifier", cells.at(Identifier).toLatin1());
        publishNumber(name, "Mileage", mileage);
    } else {
        const bool isFirst = slotText == QLatin1String("ribbon1");
        publishNumber(name, isFirst ? "Ribbon1Identifier" : "Ribbon2Identifier",
                      cells.at(Identifier).toUInt());
        publishNumber(name, isFirst ? "Ribbon1Mileage" : "Ribbon2Mileage", mileage);
    }
    makeReadings();
    QVERIFY(settleAll(1));

    const Reading now = reading(name);
    const QList<Slot> slotList = now.slotList();
    const auto slot = std::ranges::find_if(
        slotList, [&](Slot candidate) { return VxKit::slotName(candidate) == slotText; });
    QVERIFY(slot != slotList.end());
    const VxKit::Level level = now.level(*slot);
    const SupplyInformation record = controller().getSupplyIdController()->supplyInformation(name);
    QCOMPARE(level.sku, cells.at(Sku));
    QCOMPARE(isSupply ? QString::number(SupplyC(cells.at(Identifier)).lengthInFeet) : none,
             cells.at(Feet));
    QCOMPARE(QString::number(isSupply                 ? record.supplyLength
                             : *slot == Slot::Ribbon1 ? record.ribbon1Length
                                                      : record.ribbon2Length),
             cells.at(Length));
    QCOMPARE(shown(level.totalMeters, 2), cells.at(NewMeters));
    QCOMPARE(shown(level.meters, 2), cells.at(Meters));
    QCOMPARE(shown(level.ratio, 3), cells.at(Ratio));
    QCOMPARE(shown(level.labels, 0), cells.at(Labels));
    QCOMPARE(level.coarse, cells.at(Model) == QLatin1String("Alder"));

    // The library agrees, and says 0 where nothing is known.
    const PrinterStatusInformation library = this->record(name);
    QCOMPARE(level.percentage().value_or(0), isSupply                 ? library.supplyPercentage
                                             : *slot == Slot::Ribbon1 ? library.ribbon1Percentage
                                                                      : library.ribbon2Percentage);
}

void ReadingsDocumentTest::everyKindOfExampleIsThere()
{
    int continuous = 0;
    int sideBySide = 0;
    int coarse = 0;
    int ribbons = 0;
    int impossible = 0;
    const QList<QStringList> rows = examples();
    for (const QStringList& row : rows) {
        const bool isRibbon = row.at(SlotName).startsWith(QLatin1String("ribbon"));
        ribbons += isRibbon ? 1 : 0;
        impossible += row.at(Ratio) == none ? 1 : 0;
        coarse += row.at(Model) == QLatin1String("Alder") ? 1 : 0;
        continuous += !isRibbon && row.at(Ratio) != none && row.at(Labels) == none ? 1 : 0;
        sideBySide += row.at(Sku).contains(QLatin1String("UP-")) ? 1 : 0;
    }
    QVERIFY(continuous && sideBySide && coarse && ribbons && impossible);
    QVERIFY(rows.size() >= 8);
}

QTEST_GUILESS_MAIN(ReadingsDocumentTest)
#include "tst_readings_document.moc"
