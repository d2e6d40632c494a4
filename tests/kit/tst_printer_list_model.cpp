// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <printer_list_model.h>

#include <QtCore/QRandomGenerator>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <algorithm>

using VxKit::Level;
using VxKit::PrinterListModel;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

PrinterReading readingOf(const QString& name, int statusCode = 1)
{
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(statusCode);
    reading.setOnline(true);
    return reading;
}

Level halfARoll()
{
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = QStringLiteral("000000641000050000A7");
    level.sku = QStringLiteral("SKU");
    level.ratio = 0.5;
    level.meters = 15.24;
    level.labels = 120;
    return level;
}

QStringList namesIn(const PrinterListModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row).data(PrinterListModel::NameRole).toString());
    return names;
}

QStringList roleNamesOf(const PrinterListModel& model, const QList<int>& roles)
{
    const QHash<int, QByteArray> names = model.roleNames();
    QStringList texts;
    for (const int role : roles)
        texts.append(QLatin1String(names.value(role)));
    texts.sort();
    return texts;
}

} // namespace

class PrinterListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreInTheOrderOfNames();
    void rowsAreInsertedAndRemovedSingly();
    void everyRoleHasANameAndAValue();
    void unknownValuesAreInvalid();
    void secondRibbonOfAModelWithoutOneIsInvalid();
    void onlyChangedRolesAreReported_data();
    void onlyChangedRolesAreReported();
    void equalReadingIsNotReported();
    void goneReadingKeepsItsRow();
    void renamedRowMoves_data();
    void renamedRowMoves();
    void renamingOntoAnotherRowReplacesIt();
    void summaryFollowsTheRows();
    void newLanguageChangesTextsOnly();
    void keepsTheRulesOfModels();
    void mayBeDeletedInItsSignals_data();
    void mayBeDeletedInItsSignals();
};

void PrinterListModelTest::rowsAreInTheOrderOfNames()
{
    PrinterListModel model;
    for (const char* name : {"Shipping", "Packing", "returns", "Annex"})
        model.setReading(readingOf(QString::fromLatin1(name)));
    QCOMPARE(namesIn(model), (QStringList{QStringLiteral("Annex"), QStringLiteral("Packing"),
                                          QStringLiteral("Shipping"), QStringLiteral("returns")}));
    QCOMPARE(model.rowOf(QStringLiteral("Shipping")), 2);
    QCOMPARE(model.rowOf(QStringLiteral("shipping")), -1);
    QVERIFY(model.reading(4).isNull());
    QVERIFY(model.reading(-1).isNull());
}

void PrinterListModelTest::rowsAreInsertedAndRemovedSingly()
{
    PrinterListModel model;
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy counted(&model, &PrinterListModel::countChanged);
    model.setReading(readingOf(QStringLiteral("B")));
    model.setReading(readingOf(QStringLiteral("A")));
    model.setReading(PrinterReading());
    QCOMPARE(inserted.size(), 2);
    QCOMPARE(inserted.at(1).at(1).toInt(), 0);
    QCOMPARE(inserted.at(1).at(2).toInt(), 0);

    model.removeReading(QStringLiteral("B"));
    model.removeReading(QStringLiteral("unknown"));
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.at(0).at(1).toInt(), 1);
    QCOMPARE(removed.at(0).at(2).toInt(), 1);
    QCOMPARE(reset.size(), 0);
    QCOMPARE(counted.size(), 3);
    QCOMPARE(counted.last().at(0).toInt(), 1);
}

void PrinterListModelTest::everyRoleHasANameAndAValue()
{
    PrinterReading reading = readingOf(QStringLiteral("Shipping"), 2);
    reading.setDriver(QStringLiteral("Driver"));
    reading.setPort(QStringLiteral("001"));
    reading.setSerialNumber(QStringLiteral("SN"));
    reading.setFirmwareVersion(QStringLiteral("4.1"));
    reading.setBootVersion(QStringLiteral("1.7"));
    reading.setUpdateProgress(7);
    reading.setUpdateError(0);
    reading.setEthernetConfig(QStringLiteral("dhcp"));
    reading.setLastReport(QDateTime::currentDateTime());
    reading.setGone(QDateTime::currentDateTime());
    Level level = halfARoll();
    level.name = level.material = level.colorName = QStringLiteral("Yellow");
    level.colors = QStringList{QStringLiteral("#ffff00")};
    level.totalMeters = 30.48;
    level.mileage = 15240;
    for (const Slot slot : reading.slotList()) {
        reading.setLevel(slot, level);
        reading.setEstimatedSecondsRemaining(slot, VxKit::RemainingTime{60, 120, 240});
    }
    PrinterListModel model;
    model.setReading(reading);

    const QHash<int, QByteArray> names = model.roleNames();
    const auto roles = QMetaEnum::fromType<PrinterListModel::Role>();
    for (int i = 0; i < roles.keyCount(); ++i) {
        const int role = roles.value(i);
        QByteArray expected = QByteArray(roles.key(i)).chopped(4); // "Role"
        expected[0] = static_cast<char>(expected.at(0) | 0x20);
        QCOMPARE(names.value(role), expected);
        QVERIFY2(model.index(0).data(role).isValid(), expected.constData());
    }
    const QModelIndex row = model.index(0);
    QCOMPARE(row.data(), QStringLiteral("Shipping"));
    QCOMPARE(row.data(PrinterListModel::PrinterModelRole), QStringLiteral("AlderMax"));
    QCOMPARE(row.data(PrinterListModel::WatchingRole), QStringLiteral("watched"));
    QCOMPARE(row.data(PrinterListModel::PresentRole), false);
    QCOMPARE(row.data(PrinterListModel::StatusSeverityRole), QStringLiteral("error"));
    QCOMPARE(row.data(PrinterListModel::StatusKeyRole), QStringLiteral("out_of_labels"));
    QCOMPARE(row.data(PrinterListModel::SupplyStateRole), QStringLiteral("loaded"));
    QCOMPARE(row.data(PrinterListModel::Ribbon2LabelsRole), 120);
    QCOMPARE(row.data(PrinterListModel::Ribbon1MileageUnitRole), QStringLiteral("mm"));
    QCOMPARE(row.data(PrinterListModel::SupplyEstimatedSecondsRemainingRole)
                 .toMap()
                 .value(QStringLiteral("p50")),
             120.0);
    QVERIFY(row.data(PrinterListModel::ReadingRole).value<PrinterReading>() == reading);

    // A report with another estimate.
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    reading.setLastReport(reading.lastReport().addSecs(60));
    reading.setEstimatedSecondsRemaining(Slot::Ribbon1, std::nullopt);
    model.setReading(reading);
    QVERIFY(changed.at(0).at(2).value<QList<int>>().contains(
        PrinterListModel::Ribbon1EstimatedSecondsRemainingRole));
    QVERIFY(!row.data(PrinterListModel::Ribbon1EstimatedSecondsRemainingRole).isValid());
}

void PrinterListModelTest::unknownValuesAreInvalid()
{
    PrinterListModel model;
    model.setReading(readingOf(QStringLiteral("Shipping")));
    const QModelIndex row = model.index(0);
    for (const int role :
         {PrinterListModel::SupplyRatioRole, PrinterListModel::SupplyLabelsRole,
          PrinterListModel::SupplyMetersRole, PrinterListModel::SupplyNameRole,
          PrinterListModel::SupplyColorsRole, PrinterListModel::Ribbon1MileageUnitRole,
          PrinterListModel::GoneSinceRole, PrinterListModel::LastReportRole,
          PrinterListModel::SerialNumberRole, PrinterListModel::UpdateErrorRole})
        QVERIFY2(!row.data(role).isValid(), model.roleNames().value(role).constData());
    QCOMPARE(row.data(PrinterListModel::SupplyStateRole), QStringLiteral("notKnown"));
    QVERIFY(!row.data(Qt::ToolTipRole).isValid());
    QVERIFY(!model.data(QModelIndex(), PrinterListModel::NameRole).isValid());
}

void PrinterListModelTest::secondRibbonOfAModelWithoutOneIsInvalid()
{
    PrinterReading reading = readingOf(QStringLiteral("Returns"));
    reading.setModel(VXPrinting::PrinterType::BirchMax);
    PrinterListModel model;
    model.setReading(reading);
    QVERIFY(!model.index(0).data(PrinterListModel::Ribbon2StateRole).isValid());
    QCOMPARE(model.index(0).data(PrinterListModel::HasRibbon2Role), false);

    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    model.setReading(reading);
    QVERIFY(changed.at(0).at(2).value<QList<int>>().contains(PrinterListModel::Ribbon2StateRole));
}

void PrinterListModelTest::onlyChangedRolesAreReported_data()
{
    QTest::addColumn<PrinterReading>("after");
    QTest::addColumn<QStringList>("roles");

    PrinterReading before = readingOf(QStringLiteral("Shipping"));
    before.setLevel(Slot::Supply, halfARoll());
    PrinterReading after = before;
    after.setStatusCode(2);
    QTest::newRow("status") << after << QStringList{QStringLiteral("reading"),
                                                    QStringLiteral("statusCode"),
                                                    QStringLiteral("statusExplanation"),
                                                    QStringLiteral("statusKey"),
                                                    QStringLiteral("statusRemedy"),
                                                    QStringLiteral("statusSeverity"),
                                                    QStringLiteral("statusTitle")};
    after = before;
    Level level = halfARoll();
    level.ratio = 0.4;
    after.setLevel(Slot::Supply, level);
    QTest::newRow("ratio of the supply")
        << after << QStringList{QStringLiteral("reading"), QStringLiteral("supplyRatio")};
    level.ratio.reset();
    level.labels.reset();
    after.setLevel(Slot::Supply, level);
    QTest::newRow("level not known any more")
        << after
        << QStringList{QStringLiteral("reading"), QStringLiteral("supplyLabels"),
                       QStringLiteral("supplyRatio")};
    after = before;
    after.setGone(QDateTime::currentDateTime());
    QTest::newRow("gone") << after
                          << QStringList{QStringLiteral("goneSince"), QStringLiteral("present"),
                                         QStringLiteral("reading")};
}

void PrinterListModelTest::onlyChangedRolesAreReported()
{
    QFETCH(const PrinterReading, after);
    PrinterReading before = readingOf(QStringLiteral("Shipping"));
    before.setLevel(Slot::Supply, halfARoll());
    PrinterListModel model;
    model.setReading(readingOf(QStringLiteral("Annex")));
    model.setReading(before);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setReading(after);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 1);
    QTEST(roleNamesOf(model, changed.at(0).at(2).value<QList<int>>()), "roles");
}

void PrinterListModelTest::equalReadingIsNotReported()
{
    PrinterListModel model;
    model.setReading(readingOf(QStringLiteral("Shipping")));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setReading(readingOf(QStringLiteral("Shipping")));
    QCOMPARE(changed.size(), 0);
}

void PrinterListModelTest::goneReadingKeepsItsRow()
{
    PrinterReading reading = readingOf(QStringLiteral("Shipping"), 2);
    PrinterListModel model;
    model.setReading(reading);
    QCOMPARE(model.printersInError(), 1);
    reading.setGone(QDateTime::currentDateTime());
    model.setReading(reading);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0).data(PrinterListModel::PresentRole), false);
    QCOMPARE(model.printersInError(), 0);
}

void PrinterListModelTest::renamedRowMoves_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("moves");
    const auto list = [](const char* names) {
        return QString::fromLatin1(names).split(QLatin1Char(' '));
    };
    QTest::newRow("down") << QStringLiteral("B") << QStringLiteral("Z") << list("D F Z") << true;
    QTest::newRow("up") << QStringLiteral("F") << QStringLiteral("A") << list("A B D") << true;
    QTest::newRow("in its place") << QStringLiteral("D") << QStringLiteral("E") << list("B E F")
                                  << false;
    QTest::newRow("just before its place")
        << QStringLiteral("D") << QStringLiteral("C") << list("B C F") << false;
    QTest::newRow("unknown") << QStringLiteral("X") << QStringLiteral("A") << list("B D F")
                             << false;
}

void PrinterListModelTest::renamedRowMoves()
{
    QFETCH(const QString, oldName);
    QFETCH(const QString, newName);
    QFETCH(const bool, moves);
    PrinterListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const char* name : {"B", "D", "F"})
        model.setReading(readingOf(QString::fromLatin1(name)));
    const QPersistentModelIndex row(model.index(model.rowOf(oldName)));
    QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
    model.renameReading(oldName, newName);
    QTEST(namesIn(model), "names");
    QCOMPARE(moved.size(), moves ? 1 : 0);
    if (row.isValid())
        QCOMPARE(row.data().toString(), newName);
}

void PrinterListModelTest::renamingOntoAnotherRowReplacesIt()
{
    PrinterListModel model;
    model.setReading(readingOf(QStringLiteral("A"), 2));
    model.setReading(readingOf(QStringLiteral("B"), 1));
    model.renameReading(QStringLiteral("B"), QStringLiteral("A"));
    QCOMPARE(namesIn(model), QStringList{QStringLiteral("A")});
    QCOMPARE(model.reading(0).statusCode(), 1);
    QCOMPARE(model.printersInError(), 0);
}

void PrinterListModelTest::summaryFollowsTheRows()
{
    PrinterListModel model;
    QSignalSpy errors(&model, &PrinterListModel::printersInErrorChanged);
    QSignalSpy actives(&model, &PrinterListModel::activePrinterChanged);
    QVERIFY(!model.isInError());
    model.setReading(readingOf(QStringLiteral("A"), 2));
    model.setReading(readingOf(QStringLiteral("B"), 3));
    QVERIFY(model.isInError());
    QCOMPARE(model.property("printersInError").toInt(), 2);
    model.setReading(readingOf(QStringLiteral("B"), 1));
    model.removeReading(QStringLiteral("A"));
    QVERIFY(!model.property("inError").toBool());
    QCOMPARE(errors.size(), 4);

    PrinterReading active = readingOf(QStringLiteral("B"));
    active.setActive(true);
    model.setReading(active);
    QCOMPARE(model.activePrinter(), QStringLiteral("B"));
    // The new active printer is reported before the old one is not active any more.
    PrinterReading next = readingOf(QStringLiteral("C"));
    next.setActive(true);
    model.setReading(next);
    model.setReading(readingOf(QStringLiteral("B")));
    QCOMPARE(model.activePrinter(), QStringLiteral("C"));
    model.clear();
    QCOMPARE(model.activePrinter(), QString());
    QCOMPARE(actives.size(), 3);
}

void PrinterListModelTest::newLanguageChangesTextsOnly()
{
    PrinterListModel model;
    model.retranslate();
    model.setReading(readingOf(QStringLiteral("A")));
    model.setReading(readingOf(QStringLiteral("B")));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.retranslate();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 1);
    QCOMPARE(roleNamesOf(model, changed.at(0).at(2).value<QList<int>>()),
             (QStringList{QStringLiteral("statusExplanation"), QStringLiteral("statusRemedy"),
                          QStringLiteral("statusTitle")}));
}

void PrinterListModelTest::keepsTheRulesOfModels()
{
    PrinterListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const auto anyName = [&random] {
        return QString::number(random.bounded(20));
    };
    QMap<QString, int> expected;
    for (int i = 0; i < 2000; ++i) {
        const QString name = anyName();
        switch (random.bounded(8)) {
        case 0:
            model.removeReading(name);
            expected.remove(name);
            break;
        case 1: {
            const QString newName = anyName();
            model.renameReading(name, newName);
            if (expected.contains(name) && newName != name)
                expected.insert(newName, expected.take(name));
            break;
        }
        default:
            const int status = random.bounded(5);
            model.setReading(readingOf(name, status));
            expected.insert(name, status);
        }
        QCOMPARE(namesIn(model), QStringList(expected.keys()));
    }
    const QList<int> codes = expected.values();
    QCOMPARE(model.printersInError(),
             std::ranges::count_if(codes, [](int code) { return code >= 2; }));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
}

void PrinterListModelTest::mayBeDeletedInItsSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    for (const char* signal :
         {SIGNAL(rowsInserted(QModelIndex, int, int)), SIGNAL(rowsRemoved(QModelIndex, int, int)),
          SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)),
          SIGNAL(printersInErrorChanged(int)), SIGNAL(activePrinterChanged(QString))})
        QTest::newRow(signal + 1) << QByteArray(signal);
}

/// Deletes the model that emits the signal to which it is connected.
class Deleter : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void deleteSender() { delete sender(); }
};

void PrinterListModelTest::mayBeDeletedInItsSignals()
{
    QFETCH(const QByteArray, signal);
    auto* const model = new PrinterListModel;
    const QPointer<PrinterListModel> alive(model);
    Deleter deleter;
    model->setReading(readingOf(QStringLiteral("A")));
    connect(model, signal.constData(), &deleter, SLOT(deleteSender()));
    PrinterReading reading = readingOf(QStringLiteral("A"), 2);
    reading.setActive(true);
    model->setReading(reading);
    if (alive)
        model->setReading(readingOf(QStringLiteral("B")));
    if (alive)
        model->removeReading(QStringLiteral("A"));
    QVERIFY(!alive);
}

QTEST_GUILESS_MAIN(PrinterListModelTest)
#include "tst_printer_list_model.moc"
