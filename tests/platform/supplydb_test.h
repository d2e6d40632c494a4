// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "small_catalogue.h"

#include <vxsupplydatabase.h>

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <memory>

inline constexpr int germanId = 1;
inline constexpr int japanese = 4;
inline constexpr int polish = 9;

inline const QString connectionName = QStringLiteral("the connection");
inline const QString tape = QStringLiteral("TAPE-1");
inline const QString label = QStringLiteral("LABEL-1");
inline const QString spare = QStringLiteral("SPARE-1");
inline const QString ribbonK = QStringLiteral("RIBBON-K");
inline const QString ribbonRK = QStringLiteral("RIBBON-RK");
inline const QString ribbonT = QStringLiteral("RIBBON-T");
inline const QString unknownSku = QStringLiteral("NO-SUCH");
inline const QString tapeId = QStringLiteral("000001F41000420000A7");

/// A separate connection that may write.
class TestConnection
{
public:
    explicit TestConnection(const QString& path,
                            const QString& name = QStringLiteral("test connection"))
        : m_name(name)
        , m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
    {
        m_database.setDatabaseName(path);
        m_database.open();
    }
    ~TestConnection()
    {
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY_MOVE(TestConnection)

    const QSqlDatabase& database() const { return m_database; }
    bool run(const char* statement) const
    {
        QSqlQuery query(m_database);
        const bool isDone = query.exec(QString::fromUtf8(statement));
        if (!isDone)
            qWarning("%s", qPrintable(query.lastError().text()));
        return isDone;
    }

private:
    QString m_name;
    QSqlDatabase m_database;
};

/// Queries every property of a supply and a ribbon. True if all of them are unknown.
inline bool knowsNothing(const VXSupplyDatabase& database, const QString& sku,
                         const QString& ribbon)
{
    const QStringList ribbons{ribbon};
    const QVariantList unknown{-1};
    return database.supplyMaterial(sku) == -1 && database.supplyMaterialName(sku).isEmpty() &&
           database.supplyFormat(sku) == -1 && database.supplyFormatName(sku).isEmpty() &&
           database.supplyFormatType(sku).isEmpty() && database.supplyColorRGB(sku) == -1 &&
           database.supplyColorName(sku).isEmpty() && database.supplyColorNameEn(sku).isEmpty() &&
           database.supplySecColorRGB(sku) == -1 && database.supplySecColorName(sku).isEmpty() &&
           database.supplySecColorNameEn(sku).isEmpty() &&
           database.supplySecColorWidth(sku) == -1.0 && database.supplyWidth(sku) == -1.0 &&
           database.supplyLength(sku) == -1.0 && database.supplyNonContinuousLength(sku) == -1.0 &&
           database.supplySeparatorWidth(sku) == -1.0 && database.supplyIsLandscape(sku) == 1 &&
           database.supplyMultiUpCount(sku) == 1 && database.supplyMultiUpGapSize(sku) == -1.0 &&
           database.supplyBackgroundImage(sku).isEmpty() &&
           database.supplyTypeIndex(sku, QStringLiteral("-")) == -1 &&
           database.supplyRibbonType(ribbon).isEmpty() &&
           database.supplyRibbonPanels(ribbon) == -1 &&
           database.supplyRibbonWidth(ribbon) == -1.0 &&
           database.supplyRibbonLength(ribbon) == -1.0 &&
           database.supplyRibbonColorName(ribbon, 1).isEmpty() &&
           database.supplyRibbonColorRGB(ribbon, 1) == -1 &&
           database.supplyRibbonHeat(ribbon, 1, sku) == -1 &&
           database.supplyRibbonHeatOffset(ribbon, 1, sku) == -1 &&
           database.supplyRibbonMaxSpeed(ribbon, 1, sku) == -1 &&
           database.supplyRibbonTension(ribbon, 1, sku) == -1 &&
           database.supplyRibbonsColorNames(ribbons) == QStringList{QString()} &&
           database.supplyRibbonsColorRGBs(ribbons) == unknown &&
           database.supplyRibbonsHeats(ribbons, sku) == unknown &&
           database.supplyRibbonsHeatOffsets(ribbons, sku) == unknown &&
           database.supplyRibbonsMaxSpeeds(ribbons, sku) == unknown &&
           database.supplyRibbonsTensions(ribbons, sku) == unknown;
}

inline bool holdsNothing(const VXSupplyDatabase& database)
{
    return database.supplySKUList().isEmpty() && database.supplyRibbonSKUList().isEmpty() &&
           database.supplyColorHash().isEmpty() && database.supplyRibbonColorHash().isEmpty();
}

/// Base of the tests of the supply database. Each test function gets a temporary folder with the
/// database of the small catalogue, and an object that reads it.
class SupplyDatabaseTest : public QObject
{
    Q_OBJECT

protected:
    QString path() const { return m_folder->filePath(QStringLiteral("roll.db")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VXSupplyDatabase> m_database;

protected Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        SmallCatalogue().write(path());
        m_database = std::make_unique<VXSupplyDatabase>();
        m_database->setup(path(), connectionName);
    }
    void cleanup()
    {
        m_database.reset();
        m_folder.reset();
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    }
};
