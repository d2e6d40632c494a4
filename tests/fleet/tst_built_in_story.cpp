// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The built-in fleet matches the sample catalogue: the database knows every supply and ribbon that
// its printers hold at the start and during the story.
#include "virtualwindows/fleet.h"

#include <supplyc.h>
#include <vxsupplydatabase.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

namespace {

const QString noSupply = QString(20, QLatin1Char('0'));
const QStringList ribbonValues{QStringLiteral("Ribbon1Identifier"),
                               QStringLiteral("Ribbon2Identifier")};

} // namespace

class BuiltInStoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void databaseKnowsEverySupply_data();
    void databaseKnowsEverySupply();
    void databaseKnowsEveryRibbon_data();
    void databaseKnowsEveryRibbon();

private:
    /// All values that printers publish, each set with the name of its time in the story.
    QList<QPair<QString, QJsonObject>> m_published;
    VXSupplyDatabase m_database;
};

void BuiltInStoryTest::initTestCase()
{
    QVERIFY2(QFile::exists(QStringLiteral(VX_SAMPLE_DATABASE)), VX_SAMPLE_DATABASE);
    m_database.setup(QStringLiteral(VX_SAMPLE_DATABASE), QStringLiteral("story"));
    QVERIFY(!m_database.supplySKUList().isEmpty());

    const auto take = [this](const QString& moment, const QJsonObject& holder) {
        const QJsonObject values = holder.value(QStringLiteral("values")).toObject();
        if (!values.isEmpty())
            m_published.append({moment, values});
    };
    const QJsonObject fleet = QJsonDocument::fromJson(virtualwindows::builtInFleetText()).object();
    const QJsonArray printers = fleet.value(QStringLiteral("printers")).toArray();
    for (const QJsonValue& printer : printers)
        take(printer[QStringLiteral("name")].toString() + QStringLiteral(" at the start"),
             printer.toObject());
    const QJsonArray timeline = fleet.value(QStringLiteral("timeline")).toArray();
    for (const QJsonValue& event : timeline) {
        const QString moment =
            QStringLiteral("at %1 s").arg(event[QStringLiteral("at")].toDouble());
        take(moment, event.toObject());
        take(moment, event[QStringLiteral("add")].toObject());
    }
    QVERIFY(m_published.size() > 10);
}

void BuiltInStoryTest::databaseKnowsEverySupply_data()
{
    QTest::addColumn<QString>("identifier");
    for (const auto& [moment, values] : std::as_const(m_published)) {
        const QString identifier = values.value(QStringLiteral("SupplyIdentifier")).toString();
        if (!identifier.isEmpty() && identifier != noSupply)
            QTest::newRow(qPrintable(moment)) << identifier;
    }
}

void BuiltInStoryTest::databaseKnowsEverySupply()
{
    QFETCH(const QString, identifier);
    m_database.setSupplyId(identifier);
    const QString sku = m_database.supplySKU();
    QVERIFY2(!sku.isEmpty() && sku != QLatin1String("-1"), qPrintable(identifier));
    QVERIFY(!m_database.supplyColorName(sku).isEmpty());
    QVERIFY(!m_database.supplyMaterialName(sku).isEmpty());
    // Otherwise the percentage left of the supply would be wrong.
    QCOMPARE(SupplyC(identifier).lengthInFeet * 12.0, m_database.supplyLength(sku));
}

void BuiltInStoryTest::databaseKnowsEveryRibbon_data()
{
    QTest::addColumn<QString>("identifier");
    for (const auto& [moment, values] : std::as_const(m_published)) {
        for (const QString& name : ribbonValues) {
            if (values.contains(name))
                QTest::newRow(qPrintable(moment + QLatin1Char(' ') + name))
                    << QString::number(values.value(name).toInt());
        }
    }
}

void BuiltInStoryTest::databaseKnowsEveryRibbon()
{
    QFETCH(const QString, identifier);
    m_database.setRibbonIds({identifier});
    const QString sku = m_database.supplyRibbonSKUs().value(0);
    QVERIFY2(!sku.isEmpty() && sku != QLatin1String("-1"), qPrintable(identifier));
    QVERIFY(!m_database.supplyRibbonColorName(sku, 1).isEmpty());
    // The length that is assumed for every new ribbon.
    QCOMPARE(m_database.supplyRibbonLength(sku), 4725.0);
}

QTEST_GUILESS_MAIN(BuiltInStoryTest)
#include "tst_built_in_story.moc"
