// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "small_catalogue.h"

#include <cached_query.h>
#include <lock_waiter.h>
#include <supplydb_connection.h>
#include <supplydb_schema.h>
#include <vxsupplydatabase.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace {

constexpr int germanId = 1;
constexpr int japanese = 4;
constexpr int polish = 9;

const QString Connection = QStringLiteral("the connection");
const QString Tape = QStringLiteral("TAPE-1");
const QString Label = QStringLiteral("LABEL-1");
const QString Spare = QStringLiteral("SPARE-1");
const QString RibbonK = QStringLiteral("RIBBON-K");
const QString RibbonRK = QStringLiteral("RIBBON-RK");
const QString RibbonT = QStringLiteral("RIBBON-T");
const QString Unknown = QStringLiteral("NO-SUCH");
const QString TapeId = QStringLiteral("000001F41000420000A7");

/// A connection of the test's own, which may write.
class Other
{
public:
    explicit Other(const QString& path, const QString& name = QStringLiteral("other"))
        : m_name(name)
        , m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
    {
        m_database.setDatabaseName(path);
        m_database.open();
    }
    ~Other()
    {
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY_MOVE(Other)

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

/// Has a file locked, on a thread of its own, until it goes or the time is over.
class Locker
{
public:
    Locker(const QString& path, int milliseconds)
        : m_thread([this, path, milliseconds] {
            const Other other(path, QStringLiteral("locker"));
            m_hasLocked = other.run("BEGIN EXCLUSIVE");
            m_isReady.release();
            m_mayLetGo.tryAcquire(1, milliseconds);
            m_hasLocked = m_hasLocked && other.run("ROLLBACK");
        })
    {
        m_isReady.acquire();
    }
    ~Locker()
    {
        m_mayLetGo.release();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(Locker)

    bool hasLocked() const { return m_hasLocked; }

private:
    QSemaphore m_isReady;
    QSemaphore m_mayLetGo;
    std::atomic<bool> m_hasLocked = false;
    std::thread m_thread;
};

/// A time that passes only where somebody waits for a locked file, for this thread.
class SleptTime
{
public:
    using Milliseconds = LockWaiter::Milliseconds;

    explicit SleptTime(const std::function<void()>& inEachSleep = [] {})
    {
        now = Milliseconds{0};
        s_inEachSleep = inEachSleep;
        LockWaiter::ofThisThread() = LockWaiter({[] { return now; },
                                                     [](Milliseconds duration) {
                                                         now += duration;
                                                         s_inEachSleep();
                                                     }});
    }
    ~SleptTime()
    {
        LockWaiter::ofThisThread() = LockWaiter();
        s_inEachSleep = {};
    }
    Q_DISABLE_COPY_MOVE(SleptTime)

    static inline Milliseconds now{0};

private:
    static inline std::function<void()> s_inEachSleep;
};

/// Asks everything that can be asked of a supply and a ribbon. True when nothing is known of them.
bool knowsNothing(const VXSupplyDatabase& database, const QString& sku, const QString& ribbon)
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

bool holdsNothing(const VXSupplyDatabase& database)
{
    return database.supplySKUList().isEmpty() && database.supplyRibbonSKUList().isEmpty() &&
           database.supplyColorHash().isEmpty() && database.supplyRibbonColorHash().isEmpty();
}

} // namespace

class VXSupplyDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        SmallCatalogue().write(path());
        m_database = std::make_unique<VXSupplyDatabase>();
        m_database->setup(path(), Connection);
    }
    void cleanup()
    {
        m_database.reset();
        m_folder.reset();
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    }

    void knowsASupply()
    {
        QCOMPARE(m_database->supplyMaterial(Tape), 7);
        QCOMPARE(m_database->supplyMaterialName(Tape), QStringLiteral("Vinyl"));
        QCOMPARE(m_database->supplyFormat(Tape), 1);
        QCOMPARE(m_database->supplyFormatName(Tape), QStringLiteral("Tape"));
        QCOMPARE(m_database->supplyFormatType(Tape), QStringLiteral("continuous"));
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
        QCOMPARE(m_database->supplyColorNameEn(Tape), QStringLiteral("White"));
        QCOMPARE(m_database->supplySecColorRGB(Tape), 0xC8102E);
        QCOMPARE(m_database->supplySecColorName(Tape), QStringLiteral("Red"));
        QCOMPARE(m_database->supplySecColorNameEn(Tape), QStringLiteral("Red"));
        QCOMPARE(m_database->supplySecColorWidth(Tape), 1.25);
        QCOMPARE(m_database->supplyWidth(Tape), 4.0);
        QCOMPARE(m_database->supplyLength(Tape), 6000.0);
        QCOMPARE(m_database->supplyIsLandscape(Tape), 1);
        QCOMPARE(m_database->supplyBackgroundImage(Tape),
                 SmallCatalogue().files.value(QStringLiteral("backgrounds/dot.png")));
    }

    void knowsLabelsSideBySide()
    {
        QCOMPARE(m_database->supplyMaterial(Label), 0);
        QCOMPARE(m_database->supplyFormatType(Label), QStringLiteral("die-cut"));
        QCOMPARE(m_database->supplyNonContinuousLength(Label), 1.5);
        QCOMPARE(m_database->supplySeparatorWidth(Label), 0.125);
        QCOMPARE(m_database->supplyIsLandscape(Label), 0);
        QCOMPARE(m_database->supplyMultiUpCount(Label), 3);
        QCOMPARE(m_database->supplyMultiUpGapSize(Label), 0.1);
    }

    void answersThatASupplyHasNoSuchThing()
    {
        QCOMPARE(m_database->supplyNonContinuousLength(Tape), -1.0);
        QCOMPARE(m_database->supplySeparatorWidth(Tape), -1.0);
        QCOMPARE(m_database->supplyMultiUpCount(Tape), 1);
        QCOMPARE(m_database->supplyMultiUpGapSize(Tape), -1.0);
        QCOMPARE(m_database->supplySecColorRGB(Label), -1);
        QCOMPARE(m_database->supplySecColorName(Label), QString());
        QCOMPARE(m_database->supplySecColorNameEn(Label), QString());
        QCOMPARE(m_database->supplySecColorWidth(Label), -1.0);
        QCOMPARE(m_database->supplyBackgroundImage(Label), QByteArray());
        QCOMPARE(m_database->supplySeparatorWidth(Spare), 0.0); // labels that touch
    }

    void namesAreInTheLanguageOrInEnglish_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("white");
        QTest::addColumn<QString>("black");
        QTest::addColumn<QString>("teal");
        QTest::addColumn<QString>("vinyl");
        QTest::addColumn<QString>("tape");

        QTest::newRow("English") << 0 << "White"
                                 << "Black"
                                 << "Teal"
                                 << "Vinyl"
                                 << "Tape";
        QTest::newRow("German") << germanId << QStringLiteral("Weiß") << "Schwarz"
                                << "Teal"
                                << "Vinylfolie"
                                << "Band";
        QTest::newRow("Japanese") << japanese << QStringLiteral("白") << "Black"
                                  << "Teal"
                                  << "Vinyl"
                                  << "Tape";
        QTest::newRow("a language without any name") << polish << "White"
                                                     << "Black"
                                                     << "Teal"
                                                     << "Vinyl"
                                                     << "Tape";
        QTest::newRow("no language's number") << -7 << "White"
                                              << "Black"
                                              << "Teal"
                                              << "Vinyl"
                                              << "Tape";
    }
    void namesAreInTheLanguageOrInEnglish()
    {
        QFETCH(int, language);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
        m_database->setLanguageId(language);
        QTEST(m_database->supplyColorName(Tape), "white");
        QTEST(m_database->supplyColorName(Spare), "black");
        QTEST(m_database->supplyColorName(Label), "teal");
        QTEST(m_database->supplyMaterialName(Tape), "vinyl");
        QTEST(m_database->supplyFormatName(Tape), "tape");
        QTEST(m_database->supplyRibbonColorName(RibbonK, 1), "black");
        QCOMPARE(m_database->supplyColorNameEn(Tape), QStringLiteral("White"));
        QCOMPARE(m_database->supplySecColorNameEn(Tape), QStringLiteral("Red"));
    }

    void keepsNoNameOfAnotherLanguage()
    {
        const auto names = [this] {
            return QStringList{m_database->supplyColorName(Tape),
                               m_database->supplySecColorName(Tape),
                               m_database->supplyMaterialName(Tape),
                               m_database->supplyFormatName(Tape),
                               m_database->supplyRibbonColorName(RibbonK, 1),
                               m_database->supplyRibbonsColorNames({RibbonRK}).value(0)};
        };
        const QStringList english{QStringLiteral("White"), QStringLiteral("Red"),
                                  QStringLiteral("Vinyl"), QStringLiteral("Tape"),
                                  QStringLiteral("Black"), QStringLiteral("Red")};
        QCOMPARE(names(), english);
        m_database->setLanguageId(germanId);
        QCOMPARE(names(), (QStringList{QStringLiteral("Weiß"), QStringLiteral("Rot"),
                                       QStringLiteral("Vinylfolie"), QStringLiteral("Band"),
                                       QStringLiteral("Schwarz"), QStringLiteral("Rot")}));
        m_database->setLanguageId(0);
        QCOMPARE(names(), english);
    }

    void keepsTheLanguageOverASetup()
    {
        m_database->setLanguageId(germanId);
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplySecColorName(Tape), QStringLiteral("Rot"));
    }

    void knowsNothingOfAnUnknownSku_data()
    {
        QTest::addColumn<QString>("sku");

        QTest::newRow("null") << QString();
        QTest::newRow("empty") << "";
        QTest::newRow("nothing loaded") << "-1";
        QTest::newRow("not in the file") << Unknown;
        QTest::newRow("other case") << "tape-1";
        QTest::newRow("a space behind") << "TAPE-1 ";
        QTest::newRow("a statement") << "' OR 1 = 1 --";
        QTest::newRow("a NUL behind") << Tape + QChar(0);
        QTest::newRow("other script") << QStringLiteral("白");
        QTest::newRow("as long as can be") << QString(40, u'A');
        QTest::newRow("a million characters") << QString(1000000, u'A');
    }
    void knowsNothingOfAnUnknownSku()
    {
        QFETCH(QString, sku);
        QVERIFY(knowsNothing(*m_database, sku, sku));
        QVERIFY(knowsNothing(*m_database, sku, sku)); // from memory, too
        QCOMPARE(m_database->supplyRibbonHeat(RibbonK, 1, sku), -1);
        QCOMPARE(m_database->supplyRibbonHeat(sku, 1, Tape), -1);
    }

    void knowsNothingBeforeASetup()
    {
        VXSupplyDatabase fresh;
        QVERIFY(knowsNothing(fresh, Tape, RibbonK));
        QVERIFY(holdsNothing(fresh));
        QCOMPARE(fresh.supplyId(), QString());
        QCOMPARE(fresh.supplySKU(), QStringLiteral("-1"));
        QCOMPARE(fresh.supplyRibbonSKUs(), QStringList());
        QCOMPARE(fresh.supplySupplyRGB(), QString());
        QCOMPARE(fresh.supplyRibbon1RGBs(), QStringList());
        QCOMPARE(fresh.supplyRibbon2RGBs(), QStringList());
    }

    void asksOnlyWhatIsSupplyOrRibbon() { QVERIFY(knowsNothing(*m_database, RibbonK, Tape)); }

    void knowsARibbon()
    {
        QCOMPARE(m_database->supplyRibbonType(RibbonRK), QStringLiteral("resin"));
        QCOMPARE(m_database->supplyRibbonPanels(RibbonRK), 2);
        QCOMPARE(m_database->supplyRibbonPanels(RibbonK), 1);
        QCOMPARE(m_database->supplyRibbonWidth(RibbonRK), 4.33);
        QCOMPARE(m_database->supplyRibbonLength(RibbonRK), 2360.0);
        QCOMPARE(m_database->supplyRibbonColorName(RibbonRK, 1), QStringLiteral("Red"));
        QCOMPARE(m_database->supplyRibbonColorRGB(RibbonRK, 1), 0xC8102E);
        QCOMPARE(m_database->supplyRibbonColorName(RibbonRK, 2), QStringLiteral("Black"));
        QCOMPARE(m_database->supplyRibbonColorRGB(RibbonRK, 2), 0x000000);
    }

    void knowsNothingOfAMissingPanel_data()
    {
        QTest::addColumn<int>("panel");
        for (const int panel : {0, 3, -1, std::numeric_limits<int>::max()})
            QTest::addRow("panel %d", panel) << panel;
    }
    void knowsNothingOfAMissingPanel()
    {
        QFETCH(int, panel);
        QCOMPARE(m_database->supplyRibbonColorName(RibbonRK, panel), QString());
        QCOMPARE(m_database->supplyRibbonColorRGB(RibbonRK, panel), -1);
        QCOMPARE(m_database->supplyRibbonHeat(RibbonRK, panel, Tape), -1);
    }

    void knowsHowAPanelPrintsOnASupply()
    {
        QCOMPARE(m_database->supplyRibbonHeat(RibbonRK, 2, Tape), 55);
        QCOMPARE(m_database->supplyRibbonHeatOffset(RibbonRK, 2, Tape), 1);
        QCOMPARE(m_database->supplyRibbonMaxSpeed(RibbonRK, 2, Tape), 4);
        QCOMPARE(m_database->supplyRibbonTension(RibbonRK, 2, Tape), 33);
        QCOMPARE(m_database->supplyRibbonHeat(RibbonRK, 1, Tape), 58);
        QCOMPARE(m_database->supplyRibbonHeat(RibbonK, 1, Label), 44);
        QCOMPARE(m_database->supplyRibbonHeat(RibbonRK, 1, Label), -1); // are not used together
    }

    void listsHaveAnEntryForEachRibbon()
    {
        const QStringList ribbons{RibbonRK, Unknown, RibbonK, QString(), RibbonT};
        QCOMPARE(m_database->supplyRibbonsColorNames(ribbons),
                 (QStringList{QStringLiteral("Red"), QString(), QStringLiteral("Black"), QString(),
                              QStringLiteral("Teal")}));
        QCOMPARE(m_database->supplyRibbonsColorRGBs(ribbons),
                 (QVariantList{0xC8102E, -1, 0, -1, 0x008080}));
        QCOMPARE(m_database->supplyRibbonsHeats(ribbons, Tape), (QVariantList{58, -1, 52, -1, -1}));
        QCOMPARE(m_database->supplyRibbonsHeatOffsets(ribbons, Tape),
                 (QVariantList{2, -1, 0, -1, -1}));
        QCOMPARE(m_database->supplyRibbonsMaxSpeeds(ribbons, Tape),
                 (QVariantList{3, -1, 4, -1, -1}));
        QCOMPARE(m_database->supplyRibbonsTensions(ribbons, Tape),
                 (QVariantList{32, -1, 30, -1, -1}));
        QCOMPARE(m_database->supplyRibbonsHeats(ribbons, QString()),
                 (QVariantList{-1, -1, -1, -1, -1}));
    }

    void listsOfNoRibbonAreEmpty()
    {
        QCOMPARE(m_database->supplyRibbonsColorNames({}), QStringList());
        QCOMPARE(m_database->supplyRibbonsColorRGBs({}), QVariantList());
        QCOMPARE(m_database->supplyRibbonsHeats({}, Tape), QVariantList());
        QCOMPARE(m_database->supplyRibbonsHeatOffsets({}, Tape), QVariantList());
        QCOMPARE(m_database->supplyRibbonsMaxSpeeds({}, Tape), QVariantList());
        QCOMPARE(m_database->supplyRibbonsTensions({}, Tape), QVariantList());
    }

    void listsWhatItHolds()
    {
        QCOMPARE(m_database->supplySKUList(), (QStringList{Label, Spare, Tape}));
        QCOMPARE(m_database->supplyRibbonSKUList(), (QStringList{RibbonK, RibbonRK, RibbonT}));
        QCOMPARE(m_database->supplyColorHash(),
                 (QVariantHash{{Label, 0x008080}, {Spare, 0}, {Tape, 0xFFFFFF}}));
        QCOMPARE(m_database->supplyRibbonColorHash(),
                 (QVariantHash{{RibbonK, 0}, {RibbonRK, 0xC8102E}, {RibbonT, 0x008080}}));
    }

    void theSupplyIdentifierDecidesTheSku_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("sku");
        QTest::addColumn<QString>("rgb");

        QTest::newRow("a kind") << TapeId << Tape << "16777215";
        QTest::newRow("another kind of the SKU") << "00000064100043000001" << Tape << "16777215";
        QTest::newRow("another SKU") << "00000064100050000001" << Label << "32896";
        QTest::newRow("nothing loaded") << "-1"
                                        << "-1"
                                        << "";
        QTest::newRow("empty") << ""
                               << "-1"
                               << "";
        QTest::newRow("twenty zeros") << "00000000000000000000"
                                      << "-1"
                                      << "";
        QTest::newRow("nineteen zeros") << "0000000000000000000"
                                        << ""
                                        << "";
        QTest::newRow("a kind not in the file") << "00000064999999000001"
                                                << ""
                                                << "";
        QTest::newRow("cannot be decoded") << "what is this roll ?!"
                                           << ""
                                           << "";
    }
    void theSupplyIdentifierDecidesTheSku()
    {
        QFETCH(QString, id);
        m_database->setSupplyId(TapeId);
        QCOMPARE(m_database->supplySKU(), Tape);
        m_database->setSupplyId(id);
        QCOMPARE(m_database->supplyId(), id);
        QTEST(m_database->supplySKU(), "sku");
        QTEST(m_database->supplySupplyRGB(), "rgb");
    }

    void theRibbonIdentifiersDecideTheSkus_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QStringList>("skus");
        QTest::addColumn<QStringList>("rgbs1");
        QTest::addColumn<QStringList>("rgbs2");

        const QStringList none;
        const QStringList black{QStringLiteral("0")};
        const QStringList redBlack{QStringLiteral("13111342"), QStringLiteral("0")};
        QTest::newRow("none") << none << none << none << none;
        QTest::newRow("two") << QStringList{QStringLiteral("2001"), QStringLiteral("2003")}
                             << QStringList{RibbonK, RibbonRK} << black << redBlack;
        QTest::newRow("another number of the SKU")
            << QStringList{QStringLiteral("2002")} << QStringList{RibbonK} << black << none;
        QTest::newRow("nothing in the first place")
            << QStringList{QStringLiteral("-1"), QStringLiteral("2003")}
            << QStringList{QStringLiteral("-1"), RibbonRK} << none << redBlack;
        QTest::newRow("all bits set") << QStringList{QStringLiteral("4294967295")}
                                      << QStringList{QStringLiteral("-1")} << none << none;
        QTest::newRow("zero") << QStringList{QStringLiteral("0")}
                              << QStringList{QStringLiteral("-1")} << none << none;
        QTest::newRow("empty") << QStringList{QStringLiteral(""), QStringLiteral("2001")}
                               << QStringList{QStringLiteral("-1"), RibbonK} << none << black;
        QTest::newRow("not in the file") << QStringList{QStringLiteral("2099")}
                                         << QStringList{QStringLiteral("")} << none << none;
        QTest::newRow("no number") << QStringList{QStringLiteral("ribbon")}
                                   << QStringList{QStringLiteral("")} << none << none;
        QTest::newRow("three") << QStringList{QStringLiteral("2001"), QStringLiteral("2003"),
                                              QStringLiteral("2002")}
                               << QStringList{RibbonK, RibbonRK, RibbonK} << black << redBlack;
    }
    void theRibbonIdentifiersDecideTheSkus()
    {
        QFETCH(QStringList, ids);
        m_database->setRibbonIds({QStringLiteral("2003")});
        QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{RibbonRK});
        m_database->setRibbonIds(ids);
        QTEST(m_database->supplyRibbonSKUs(), "skus");
        QTEST(m_database->supplyRibbon1RGBs(), "rgbs1");
        QTEST(m_database->supplyRibbon2RGBs(), "rgbs2");
    }

    void whatIsLoadedOutlastsASetup()
    {
        VXSupplyDatabase database;
        database.setSupplyId(TapeId);
        database.setRibbonIds({QStringLiteral("2001")});
        QCOMPARE(database.supplySKU(), QString()); // loaded, but of no known kind
        database.setup(path(), QStringLiteral("late"));
        QCOMPARE(database.supplySKU(), Tape);
        QCOMPARE(database.supplyRibbonSKUs(), QStringList{RibbonK});
    }

    void whatIsLoadedIsLookedUpAgainAfterASetup()
    {
        m_database->setSupplyId(TapeId);
        m_database->setRibbonIds({QStringLiteral("2001"), QStringLiteral("2003")});
        QCOMPARE(m_database->supplySKU(), Tape);
        QCOMPARE(m_database->supplyRibbonSKUs(), (QStringList{RibbonK, RibbonRK}));
        {
            const Other other(path());
            QVERIFY(other.run("UPDATE supply_kind SET supply_sku = 'LABEL-1' WHERE kind = 100042"));
            QVERIFY(
                other.run("UPDATE ribbon_number SET ribbon_sku = 'RIBBON-T' WHERE number = 2003"));
        }
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplySKU(), Label);
        QCOMPARE(m_database->supplyRibbonSKUs(), (QStringList{RibbonK, RibbonT}));
    }

    void theTypeIndexIsThePlaceInTheModelsList_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<int>("tape");
        QTest::addColumn<int>("label");

        QTest::newRow("a model") << "Stratamark AlderMax" << 1 << 0;
        QTest::newRow("a model within a name") << "warehouse aldermax (Copy 2)" << 1 << 0;
        QTest::newRow("a model that begins another's name") << "Stratamark Alder" << -1 << 0;
        QTest::newRow("no model") << "Label printer" << 0 << 1;
        QTest::newRow("no particular printer") << "-" << 0 << 1;
        QTest::newRow("no name") << "" << 0 << 1;
    }
    void theTypeIndexIsThePlaceInTheModelsList()
    {
        QFETCH(QString, printer);
        QTEST(m_database->supplyTypeIndex(Tape, printer), "tape");
        QTEST(m_database->supplyTypeIndex(Label, printer), "label");
        QCOMPARE(m_database->supplyTypeIndex(Unknown, printer), -1);
    }

    void noFileNoAnswers_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isThere");

        QTest::newRow("missing") << QByteArray() << false;
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("short") << QByteArray("SQLite format 3\0", 16) << true;
        QTest::newRow("text") << QByteArray("sku,colour\n").repeated(100) << true;
        QTest::newRow("header only")
            << (QByteArray("SQLite format 3\0", 16) + QByteArray(84, '\0')) << true;
    }
    void noFileNoAnswers()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isThere);
        const QString strange = m_folder->filePath(QStringLiteral("strange.db"));
        if (isThere)
            writeFile(strange, content);
        m_database->setup(strange, Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QVERIFY(holdsNothing(*m_database));
        QCOMPARE(QFile::exists(strange), isThere);
        if (isThere)
            QCOMPARE(readFile(strange), content);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), isThere ? 2 : 1);
    }

    void aFolderIsNoDatabase()
    {
        m_database->setup(m_folder->path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        m_database->setup(QString(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        m_database->setup(QStringLiteral(":memory:"), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
    }

    void aStrangeDatabaseIsLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("statement");

        QTest::newRow("of another application") << QByteArray("PRAGMA application_id = 7");
        QTest::newRow("newer") << QByteArray("PRAGMA user_version = 2");
        QTest::newRow("of no version") << QByteArray("PRAGMA user_version = 0");
    }
    void aStrangeDatabaseIsLeftAlone()
    {
        QFETCH(QByteArray, statement);
        QVERIFY(Other(path()).run(statement.constData()));
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QVERIFY(holdsNothing(*m_database));
    }

    // Reading one would leave two files beside it.
    void aDatabaseWithAWriteAheadLogIsLeftAlone()
    {
        m_database.reset();
        QVERIFY(Other(path()).run("PRAGMA journal_mode = WAL"));
        m_database = std::make_unique<VXSupplyDatabase>();
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("roll.db")});
    }

    void aFileOfOtherTablesIsRefused_data()
    {
        QTest::addColumn<QByteArrayList>("changes");

        const auto row = [](const char* name, const QByteArrayList& changes) {
            QTest::newRow(name) << changes;
        };
        const QByteArray drop = "DROP TABLE print_setting";
        row("a missing table", {drop});
        row("an endless view",
            {drop,
             "CREATE VIEW print_setting AS WITH RECURSIVE n (heat) AS (SELECT 1 UNION ALL SELECT "
             "heat + 1 FROM n) SELECT heat, 0 AS heat_offset, 1 AS max_speed, 1 AS tension, "
             "'RIBBON-K' AS ribbon_sku, 1 AS panel, 'TAPE-1' AS supply_sku FROM n"});
        row("a view more", {"CREATE VIEW other AS SELECT * FROM supply"});
        row("a table more", {"CREATE TABLE other (id INTEGER)"});
        row("a table without its constraints",
            {drop, "CREATE TABLE print_setting (ribbon_sku TEXT, panel INTEGER, supply_sku TEXT, "
                   "heat INTEGER, heat_offset INTEGER, max_speed INTEGER, tension INTEGER)"});
        row("a column that is computed",
            {"ALTER TABLE name ADD COLUMN copy TEXT AS (english || english)"});
        row("an index of what is computed", {"CREATE INDEX other ON name (length(english))"});
        row("a trigger", {"CREATE TRIGGER other AFTER DELETE ON supply BEGIN SELECT 1; END"});
        row("statistics, by which SQLite would plan", {"ANALYZE"});
    }
    void aFileOfOtherTablesIsRefused()
    {
        QFETCH(QByteArrayList, changes);
        {
            const Other other(path());
            for (const QByteArray& change : changes)
                QVERIFY(other.run(change.constData()));
        }
        QCOMPARE(faultOf(path()), QStringLiteral("its tables are not those of schema version 1"));
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QVERIFY(holdsNothing(*m_database));
    }

    void aFileThatIsTooLargeIsRefused()
    {
        QVERIFY(QFile::resize(path(), supplydb_schema::maxFileBytes + 1));
        QCOMPARE(faultOf(path()), QStringLiteral("larger than 64 MiB"));
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
    }

    void readsAFileOfTheGreatestSize()
    {
        QVERIFY(QFile::resize(path(), supplydb_schema::maxFileBytes));
        QCOMPARE(faultOf(path()), QString());
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
    }

    // Files that one program makes of other tables may have the same header and the same size.
    void aFileWithTheSameHeaderIsLookedAtAgain()
    {
        const QByteArray whole = readFile(path());
        QByteArray damaged = whole;
        constexpr qsizetype kindOfPage2 = 4096;
        damaged[kindOfPage2] = 0;
        // Long enough ago for what was found to be kept.
        const QDateTime hourAgo = QDateTime::currentDateTime().addSecs(-3600);
        QVERIFY(writeFileAt(path(), whole, hourAgo));
        QCOMPARE(faultOf(path()), QString());
        QVERIFY(writeFileAt(path(), damaged, hourAgo.addSecs(60)));
        QCOMPARE(faultOf(path()),
                 QStringLiteral("damaged: page 2 is of a kind that does not belong there"));
        QVERIFY(writeFileAt(path(), whole, hourAgo.addSecs(120)));
        QCOMPARE(faultOf(path()), QString());
    }

    void rowsWithoutMeasureAreRefused_data()
    {
        QTest::addColumn<QByteArray>("change");
        QTest::addColumn<QString>("fault");

        const QByteArray numbers = "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM "
                                   "n WHERE i <= 16384) ";
        QTest::newRow("a long name")
            << QByteArray("UPDATE name SET english = printf('%.*c', 10000000, 'x') WHERE id = 1")
            << QStringLiteral("a row of more than 2048 bytes in name");
        QTest::newRow("a long key")
            << QByteArray("UPDATE colour SET key = printf('%.*c', 3000, 'x') WHERE id = 1")
            << QStringLiteral("a row of more than 2048 bytes in colour");
        QTest::newRow("a large picture")
            << QByteArray("UPDATE background SET image = zeroblob(300000)")
            << QStringLiteral("a row of more than 264192 bytes in background");
        QTest::newRow("many supplies")
            << numbers + "INSERT INTO supply SELECT 'S' || i, 7, 1, 1, NULL, NULL, 1, 1, NULL, "
                         "NULL, 1, NULL, 1, NULL FROM n"
            << QStringLiteral("more than 16384 rows in supply");
        QTest::newRow("many ribbons")
            << numbers + "INSERT INTO ribbon SELECT 'R' || i, 'wax', 1, 1 FROM n"
            << QStringLiteral("more than 16384 rows in ribbon");
        QTest::newRow("many models")
            << numbers + "INSERT INTO printer_format SELECT 'P' || i, 0, 1 FROM n"
            << QStringLiteral("more than 16384 rows in printer_format");
    }
    void rowsWithoutMeasureAreRefused()
    {
        QFETCH(QByteArray, change);
        {
            const Other other(path());
            QVERIFY(other.run("PRAGMA ignore_check_constraints = ON"));
            QVERIFY(other.run(change.constData()));
        }
        QTEST(faultOf(path()), "fault");
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QVERIFY(holdsNothing(*m_database));
    }

    void readsAsManyRowsAsItMay()
    {
        {
            const Other other(path());
            QVERIFY(other.run("WITH RECURSIVE n (i) AS (SELECT 4 UNION ALL SELECT i + 1 FROM n "
                              "WHERE i < 16384) INSERT INTO supply SELECT 'S' || i, 7, 1, 1, NULL, "
                              "NULL, 1, 1, NULL, NULL, 1, NULL, 1, NULL FROM n"));
            QVERIFY(other.run("UPDATE name SET english = printf('%.*c', 200, char(128512)) "
                              "WHERE id = 1"));
            QVERIFY(other.run("UPDATE background SET image = zeroblob(262144)"));
        }
        QCOMPARE(faultOf(path()), QString());
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplySKUList().size(), 16384);
        QCOMPARE(m_database->supplyColorName(Tape).toUcs4().size(), 200);
        QCOMPARE(m_database->supplyBackgroundImage(Tape).size(), 262144);
    }

    // A tree that leads to a page twice has endlessly many rows on a few pages.
    void pagesInDisorderAreRefused_data()
    {
        QTest::addColumn<QByteArray>("change");
        QTest::addColumn<QString>("fault");

        const auto root = [](const char* table) {
            return QByteArray("(SELECT rootpage FROM sqlite_schema WHERE name = '") + table + "')";
        };
        const QByteArray update = "UPDATE sqlite_schema SET rootpage = ";
        QTest::newRow("two tables on one page")
            << update + root("name") + " WHERE name = 'material'"
            << QStringLiteral("page 4 is used twice");
        QTest::newRow("a table on no page") << QByteArray(update + "0 WHERE name = 'name'")
                                            << QStringLiteral("page 0 is not in the file");
        QTest::newRow("a table behind the end") << QByteArray(update + "999 WHERE name = 'name'")
                                                << QStringLiteral("page 999 is not in the file");
        QTest::newRow("a table kept as an index is")
            << update + root("translation") + " WHERE name = 'name'"
            << QStringLiteral("page 5 is of a kind that does not belong there");
    }
    void pagesInDisorderAreRefused()
    {
        QFETCH(QByteArray, change);
        QFETCH(QString, fault);
        {
            const Other other(path());
            QVERIFY(other.run("PRAGMA writable_schema = ON"));
            QVERIFY(other.run(change.constData()));
        }
        QCOMPARE(faultOf(path()), QStringLiteral("damaged: ") + fault);
        m_database->setup(path(), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
    }

    void aTreeThatLeadsToAPageTwiceIsRefused()
    {
        const QString sample = m_folder->filePath(QStringLiteral("sample.db"));
        writeDatabase(readCatalogueDirectory(QStringLiteral(VX_SAMPLE_CATALOGUE)), sample);
        QCOMPARE(faultOf(sample), QString());
        constexpr qsizetype pageSize = 4096;
        qsizetype root = 0;
        {
            const Other other(sample);
            QSqlQuery query(other.database());
            QVERIFY(query.exec(
                QStringLiteral("SELECT rootpage FROM sqlite_schema WHERE name = 'print_setting'")));
            QVERIFY(query.next());
            root = query.value(0).toInt();
        }
        QByteArray bytes = readFile(sample);
        // The page behind the last row becomes that in front of the first.
        const qsizetype page = (root - 1) * pageSize;
        QCOMPARE(bytes.at(page), '\x02');
        const qsizetype firstCell = static_cast<quint8>(bytes.at(page + 12)) * 256 +
                                    static_cast<quint8>(bytes.at(page + 13));
        bytes.replace(page + 8, 4, bytes.sliced(page + firstCell, 4));
        writeFile(sample, bytes);
        QVERIFY2(faultOf(sample).endsWith(QStringLiteral(" is used twice")),
                 qPrintable(faultOf(sample)));
    }

    // Pictures are not read when a file is opened, but their pages are counted.
    void aPictureThatComesBackToItsPageIsRefused()
    {
        QVERIFY(Other(path()).run("UPDATE background SET image = zeroblob(262144)"));
        QCOMPARE(faultOf(path()), QString());
        QByteArray bytes = readFile(path());
        constexpr qsizetype pageSize = 4096;
        // The file ends with the picture's pages, each of which begins with the number of the next.
        const qsizetype page = bytes.size() / pageSize - 2;
        QByteArray number(4, '\0');
        qToBigEndian(static_cast<quint32>(page), number.data());
        bytes.replace((page - 1) * pageSize, number.size(), number);
        writeFile(path(), bytes);
        QCOMPARE(faultOf(path()), QStringLiteral("damaged: page %1 is used twice").arg(page));
    }

    // How much of a row is on its page, and how much behind it, is a matter of a byte.
    void readsRowsOfEachLength_data()
    {
        QTest::addColumn<int>("pageSize");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("greatest");

        QTest::newRow("small pages") << 512 << 1 << 1200;
        QTest::newRow("usual pages") << 4096 << 3900 << 4200;
        QTest::newRow("the largest pages") << 65536 << 65480 << 65520;
    }
    void readsRowsOfEachLength()
    {
        QFETCH(const int, pageSize);
        QFETCH(const int, least);
        QFETCH(const int, greatest);
        {
            const Other other(path());
            const QByteArray size = "PRAGMA page_size = " + QByteArray::number(pageSize);
            QVERIFY(other.run(size.constData()));
            QVERIFY(other.run("VACUUM"));
            // The names are an index of their own.
            const QByteArray rows =
                "WITH RECURSIVE n (i) AS (SELECT " + QByteArray::number(least) +
                " UNION ALL SELECT i + 1 FROM n WHERE i < " + QByteArray::number(greatest) +
                ") INSERT INTO background SELECT 1000 + i, printf('%0*d', 4 + i % 197, i), "
                "zeroblob(i) FROM n";
            QVERIFY(other.run(rows.constData()));
        }
        QCOMPARE(faultOf(path()), QString());
    }

    void aFileOfAnotherEncodingIsRefused()
    {
        QByteArray bytes = readFile(path());
        constexpr qsizetype lastByteOfTheEncoding = 59;
        bytes[lastByteOfTheEncoding] = 2;
        writeFile(path(), bytes);
        QCOMPARE(faultOf(path()), QStringLiteral("its texts are not UTF-8"));
    }

    // Whatever it answers, it answers. Some of the damage is noticed before the file is opened, and
    // some is left to SQLite.
    void damageIsSurvived()
    {
        const QByteArray whole = readFile(path());
        int opened = 0;
        constexpr quint32 seeds = 200;
        for (quint32 seed = 1; seed <= seeds; ++seed) {
            QRandomGenerator random(seed);
            QByteArray bytes = whole;
            // The header is left in order so that the rest is looked at.
            for (quint32 i = 0; i < 1 + seed % 16; ++i)
                bytes[random.bounded(100, static_cast<int>(bytes.size()))] =
                    static_cast<char>(random.bounded(256));
            if (seed % 16 == 0)
                bytes.truncate(random.bounded(100, static_cast<int>(bytes.size())));
            const QString damaged = m_folder->filePath(QStringLiteral("damaged.db"));
            writeFile(damaged, bytes);
            m_database->setup(damaged, Connection);
            m_database->setSupplyId(TapeId);
            m_database->setRibbonIds({QStringLiteral("2001"), QStringLiteral("2003")});
            for (const QString& sku : {Tape, Label, Spare}) {
                for (const QString& ribbon : {RibbonK, RibbonRK, RibbonT})
                    knowsNothing(*m_database, sku, ribbon);
            }
            holdsNothing(*m_database);
            m_database->supplyRibbon1RGBs();
            QCOMPARE(readFile(damaged), bytes);
            opened += QSqlDatabase::contains(Connection) ? 1 : 0;
        }
        QVERIFY(opened > 0);
        QVERIFY(opened < static_cast<int>(seeds));

        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplySKU(), Tape);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
    }

    void readingLeavesNoTrace()
    {
        const QByteArray before = readFile(path());
        QVERIFY(!knowsNothing(*m_database, Tape, RibbonK));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("roll.db")});
        m_database.reset();
        QCOMPARE(readFile(path()), before);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("roll.db")});
    }

    void readsAFileThatMayNotBeWritten()
    {
        QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner));
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
        m_database.reset();
        QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    }

    void readsAFileOfAnyName()
    {
        const QString name = m_folder->filePath(QStringLiteral("Rollen #1 ラベル é.db"));
        QVERIFY(QFile::copy(path(), name));
        m_database->setup(name, QStringLiteral("Etikettendrucker é_CONNECTION_NAME"));
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
    }

    // Also shows that no lock is left on a file that was read from.
    void aChangedFileIsNoticedAtTheNextSetup()
    {
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        QCOMPARE(m_database->supplySKUList().size(), 3);
        {
            const Other other(path());
            QVERIFY(other.run("UPDATE colour SET rgb = 1 WHERE key = 'white'"));
            QVERIFY(other.run("DELETE FROM supply WHERE sku = 'SPARE-1'"));
        }
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        QCOMPARE(m_database->supplySKUList().size(), 3);
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplyColorRGB(Tape), 1);
        QCOMPARE(m_database->supplySKUList().size(), 2);
    }

    void aFileThatIsGoneIsNoticedAtTheNextSetup()
    {
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        m_database->setup(m_folder->filePath(QStringLiteral("gone.db")), Connection);
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QVERIFY(!QSqlDatabase::contains(Connection));
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
    }

    // What could not be had must not be taken for what is not there.
    void aLockedFileIsAskedAgain()
    {
        const Other other(path());
        QVERIFY(other.run("BEGIN EXCLUSIVE"));
        QCOMPARE(m_database->supplyColorRGB(Tape), -1);
        QVERIFY(other.run("ROLLBACK"));
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
    }

    void aPassingLockLosesNoSku()
    {
        m_database->setSupplyId(TapeId);
        m_database->setRibbonIds({QStringLiteral("2001")});
        {
            const Other other(path());
            QVERIFY(other.run("BEGIN EXCLUSIVE"));
            QCOMPARE(m_database->supplySKU(), QString());
            QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{QString()});
            QVERIFY(other.run("ROLLBACK"));
        }
        QCOMPARE(m_database->supplySKU(), Tape);
        QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{RibbonK});
    }

    void aPassingLockIsWaitedFor()
    {
        const Other other(path());
        QVERIFY(other.run("BEGIN EXCLUSIVE"));
        int sleeps = 0;
        const SleptTime time([&other, &sleeps] {
            if (++sleeps == 3)
                other.run("ROLLBACK");
        });
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        QCOMPARE(sleeps, 3);
    }

    void aLockedFileIsWaitedForOnceASecond()
    {
        using namespace std::chrono_literals;
        const Other other(path());
        QVERIFY(other.run("BEGIN EXCLUSIVE"));
        const SleptTime time;
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QCOMPARE(SleptTime::now, 100ms);
        SleptTime::now += 999ms;
        VXSupplyDatabase second; // for whose sake its thread does not wait either
        second.setup(path(), QStringLiteral("second"));
        QVERIFY(knowsNothing(second, Tape, RibbonK));
        QCOMPARE(SleptTime::now, 1099ms);
        SleptTime::now += 1ms;
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
        QCOMPARE(SleptTime::now, 1200ms);
    }

    // Result codes of SQLite's, https://www.sqlite.org/rescode.html.
    void knowsEachCodeOfALock_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("isLock");

        QTest::newRow("SQLITE_BUSY") << 5 << true;
        QTest::newRow("SQLITE_LOCKED") << 6 << true;
        QTest::newRow("SQLITE_BUSY_RECOVERY") << 261 << true;
        QTest::newRow("SQLITE_LOCKED_SHAREDCACHE") << 262 << true;
        QTest::newRow("SQLITE_BUSY_TIMEOUT") << 773 << true;
        QTest::newRow("SQLITE_ERROR") << 1 << false;
        QTest::newRow("SQLITE_NOMEM") << 7 << false;
        QTest::newRow("SQLITE_IOERR_READ") << 266 << false;
    }
    void knowsEachCodeOfALock()
    {
        QFETCH(const int, code);
        const QSqlError error({}, {}, QSqlError::StatementError, QString::number(code));
        QTEST(LockWaiter::isLocked(error), "isLock");
    }

    // The file is free again long after all questions are answered: whoever waits for it to the end
    // has an answer.
    void aLockedFileIsGivenUp()
    {
        constexpr int lockedFor = 3000;
        const Locker locker(path(), lockedFor);
        QVERIFY(locker.hasLocked());
        QVERIFY(knowsNothing(*m_database, Tape, RibbonK));
    }

    void aFileThatComesLaterIsNoticed()
    {
        const QString late = m_folder->filePath(QStringLiteral("late.db"));
        m_database->setup(late, Connection);
        m_database->setSupplyId(TapeId);
        QCOMPARE(m_database->supplySKU(), QString());
        QVERIFY(QFile::copy(path(), late));
        QTRY_COMPARE(m_database->supplySKU(), Tape);
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
    }

    void aFileThatIsMendedIsNoticed()
    {
        const QByteArray whole = readFile(path());
        writeFile(path(), whole.first(5000));
        m_database->setup(path(), Connection);
        QCOMPARE(m_database->supplyColorName(Tape), QString());
        writeFile(path(), whole);
        QTRY_COMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
    }

    void aFileThatCannotBeUsedIsNotLookedAtForEachQuestion()
    {
        const QString late = m_folder->filePath(QStringLiteral("late.db"));
        QElapsedTimer timer;
        timer.start();
        m_database->setup(late, Connection);
        QCOMPARE(m_database->supplyColorRGB(Tape), -1);
        QVERIFY(QFile::copy(path(), late));
        const int rgb = m_database->supplyColorRGB(Tape);
        if (timer.hasExpired(SupplyDbConnection::retryInterval.count()))
            QSKIP("the two questions were not within the time in which the file is left alone");
        QCOMPARE(rgb, -1);
    }

    void objectsHaveNothingInCommon()
    {
        VXSupplyDatabase german;
        german.setup(path(), QStringLiteral("second"));
        german.setLanguageId(germanId);
        german.setRibbonIds({QStringLiteral("2003")});
        m_database->setSupplyId(TapeId);
        {
            VXSupplyDatabase empty;
            empty.setup(m_folder->filePath(QStringLiteral("none.db")), QStringLiteral("third"));
            QCOMPARE(empty.supplyColorName(Tape), QString());
        }
        QCOMPARE(german.supplyColorName(Tape), QStringLiteral("Weiß"));
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
        QCOMPARE(german.supplySKU(), QStringLiteral("-1"));
        QCOMPARE(m_database->supplySKU(), Tape);
        QCOMPARE(m_database->supplyRibbonSKUs(), QStringList());
        german.setup(QString(), QStringLiteral("second"));
        QCOMPARE(m_database->supplyColorName(Label), QStringLiteral("Teal"));
    }

    void oneConnectionNameServesTwoObjects()
    {
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList()); // until something is asked
        QCOMPARE(m_database->supplyColorRGB(Tape), 0xFFFFFF);
        auto second = std::make_unique<VXSupplyDatabase>();
        second->setup(path(), Connection);
        QCOMPARE(second->supplyColorName(Tape), QStringLiteral("White"));
        QCOMPARE(m_database->supplyColorName(Tape), QStringLiteral("White"));
        second.reset();
        QCOMPARE(m_database->supplyColorName(Label), QStringLiteral("Teal"));
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList{Connection});
    }

    // Each answer beside the one that a statement of the test's own has, for everything there is.
    void agreesWithTheSampleDatabase()
    {
        const QString sample = m_folder->filePath(QStringLiteral("sample.db"));
        writeDatabase(readCatalogueDirectory(QStringLiteral(VX_SAMPLE_CATALOGUE)), sample);
        m_database->setup(sample, Connection);
        m_database->setLanguageId(japanese);
        const Other other(sample);

        QSqlQuery supplies(other.database());
        QVERIFY(supplies.exec(QStringLiteral(
            "SELECT s.sku, s.width, s.length, c.rgb, t.text FROM supply s, colour c, translation t "
            "WHERE c.id = s.colour_id AND t.name_id = c.name_id AND t.language_id = 4")));
        int supplyCount = 0;
        for (; supplies.next(); ++supplyCount) {
            const QString sku = supplies.value(0).toString();
            QCOMPARE(m_database->supplyWidth(sku), supplies.value(1).toDouble());
            QCOMPARE(m_database->supplyLength(sku), supplies.value(2).toDouble());
            QCOMPARE(m_database->supplyColorRGB(sku), supplies.value(3).toInt());
            QCOMPARE(m_database->supplyColorName(sku), supplies.value(4).toString());
        }
        QCOMPARE(m_database->supplySKUList().size(), supplyCount);
        QVERIFY(supplyCount >= 40);

        QSqlQuery settings(other.database());
        QVERIFY(settings.exec(QStringLiteral("SELECT * FROM print_setting")));
        int settingCount = 0;
        for (; settings.next(); ++settingCount) {
            const QString ribbon = settings.value(0).toString();
            const int panel = settings.value(1).toInt();
            const QString sku = settings.value(2).toString();
            QCOMPARE(m_database->supplyRibbonHeat(ribbon, panel, sku), settings.value(3).toInt());
            QCOMPARE(m_database->supplyRibbonHeatOffset(ribbon, panel, sku),
                     settings.value(4).toInt());
            QCOMPARE(m_database->supplyRibbonMaxSpeed(ribbon, panel, sku),
                     settings.value(5).toInt());
            QCOMPARE(m_database->supplyRibbonTension(ribbon, panel, sku),
                     settings.value(6).toInt());
        }
        QVERIFY(settingCount > 0);
        QVERIFY(m_database->supplyRibbonSKUList().size() >= 20);
    }

    void keepsNoMoreAnswersThanItMay()
    {
        const Other other(path());
        CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                      readText, 2);
        const auto answer = [&](int id) {
            return query.answer(other.database(), id, id);
        };
        QCOMPARE(answer(1), QStringLiteral("White"));
        QCOMPARE(answer(2), QStringLiteral("Red"));
        QVERIFY(other.run("UPDATE name SET english = 'new'"));
        QCOMPARE(answer(1), QStringLiteral("White"));
        QCOMPARE(answer(3), QStringLiteral("new")); // in the place of 2, used before 1 was
        QCOMPARE(answer(1), QStringLiteral("White"));
        QCOMPARE(answer(2), QStringLiteral("new"));
        query.clear();
        QCOMPARE(answer(1), QStringLiteral("new"));
    }

    void readsAllAtTheSecondKey()
    {
        const Other other(path());
        CachedQuery<int, QString> query(
            QStringLiteral("SELECT english FROM name WHERE id = ?"), readText, 4,
            {QStringLiteral("SELECT english, id FROM name ORDER BY id DESC"),
             [](const QSqlQuery& row) {
                 return row.value(1).toInt();
             }});
        const auto answer = [&](int id) {
            return query.answer(other.database(), id, id);
        };
        QVERIFY(other.run("UPDATE name SET english = 'name ' || id"));
        const int last = 8; // colours, materials and formats
        QCOMPARE(answer(last), QStringLiteral("name 8"));
        QVERIFY(other.run("UPDATE name SET english = 'new ' || id"));
        QCOMPARE(answer(last), QStringLiteral("name 8")); // one key was not enough
        QCOMPARE(answer(last - 1), QStringLiteral("new 7"));
        QVERIFY(other.run("UPDATE name SET english = 'newer ' || id"));
        QCOMPARE(answer(last), QStringLiteral("name 8")); // what was kept stays
        QCOMPARE(answer(last - 3), QStringLiteral("new 5"));
        QCOMPARE(answer(last - 4), QStringLiteral("newer 4")); // there was room for four
        QCOMPARE(answer(99), QString());
    }

    void doesNotKeepAnAnswerThatIsTooLarge()
    {
        const Other other(path());
        CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                      readText, 4, [](const QString& text) { return text.size(); });
        const auto answer = [&](int id) {
            return query.answer(other.database(), id, id);
        };
        QCOMPARE(answer(1), QStringLiteral("White"));
        QCOMPARE(answer(2), QStringLiteral("Red"));
        QVERIFY(other.run("UPDATE name SET english = 'new'"));
        QCOMPARE(answer(2), QStringLiteral("Red"));
        QCOMPARE(answer(1), QStringLiteral("new"));
    }

    void answersAFailureWithNoOtherKeysAnswer()
    {
        const Other other(path());
        CachedQuery<int, QString> query(QStringLiteral("SELECT english FROM name WHERE id = ?"),
                                      readText, 4, [](const QString& text) { return text.size(); });
        // Too large to be kept.
        QCOMPARE(query.answer(other.database(), 1, 1), QStringLiteral("White"));
        QVERIFY(other.run("ALTER TABLE name RENAME TO former_name"));
        QCOMPARE(query.answer(other.database(), 2, 2), QString());
    }

    void doesNotKeepHalfAnAnswer()
    {
        const Other other(path());
        QVERIFY(other.run("CREATE TABLE remark (id INTEGER PRIMARY KEY, number INTEGER)"));
        QVERIFY(other.run("INSERT INTO remark VALUES (1, 5), (2, -9223372036854775807 - 1)"));
        // The second row's number has no absolute value.
        CachedQuery<int, QStringList> query(
            QStringLiteral("SELECT abs(number) FROM remark WHERE id >= ? ORDER BY id"),
            [](const QSqlQuery& row, QStringList& numbers) {
                numbers.append(row.value(0).toString());
            },
            2);
        const auto answer = [&] {
            return query.answer(other.database(), 1, 1);
        };
        QCOMPARE(answer(), QStringList());
        QVERIFY(other.run("UPDATE remark SET number = -7 WHERE id = 2"));
        QCOMPARE(answer(), (QStringList{QStringLiteral("5"), QStringLiteral("7")}));
    }

    void doesNotKeepAFailure()
    {
        const Other other(path());
        CachedQuery<int, QString> query(QStringLiteral("SELECT text FROM remark WHERE id = ?"),
                                      readText, 2);
        QCOMPARE(query.answer(other.database(), 1, 1), QString());
        QVERIFY(other.run("CREATE TABLE remark (id INTEGER PRIMARY KEY, text TEXT)"));
        QVERIFY(other.run("INSERT INTO remark VALUES (1, 'here')"));
        QCOMPARE(query.answer(other.database(), 1, 1), QStringLiteral("here"));
    }

private:
    static void readText(const QSqlQuery& row, QString& text) { text = row.value(0).toString(); }

    QString path() const { return m_folder->filePath(QStringLiteral("roll.db")); }

    /// Why a file is not opened; empty when it is.
    static QString faultOf(const QString& name)
    {
        SupplyDbConnection connection;
        connection.setUp(name, QStringLiteral("looked at"));
        return connection.open() ? QString() : connection.fault();
    }

    static QByteArray readFile(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool writeFileAt(const QString& name, const QByteArray& content, const QDateTime& time)
    {
        writeFile(name, content);
        QFile file(name);
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(time, QFileDevice::FileModificationTime);
    }
    static void writeFile(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<VXSupplyDatabase> m_database;
};

QTEST_GUILESS_MAIN(VXSupplyDatabaseTest)
#include "tst_vxsupplydb.moc"
