// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A database written back as tables, and the tables of the template.
#include "failure_of.h"
#include "patience.h"
#include "run_statement.h"
#include "small_catalogue.h"
#include "start_process.h"
#include "test_file.h"
#include "test_files.h"

#include <catalogue_tables.h>
#include <database_check.h>
#include <database_reader.h>
#include <folder_writer.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>

#include <algorithm>
#include <memory>

#ifdef Q_OS_UNIX
#include "file_size_limit.h"
#endif

namespace {

// An absolute path, because on Windows the tool may run on another drive.
const QString sampleCatalogue = QDir(testFile(VX_SAMPLE_CATALOGUE)).absolutePath();

/// A catalogue of any content that tables can have, in any order.
class RandomCatalogue
{
public:
    explicit RandomCatalogue(quint32 seed)
        : m_random(seed)
    {}

    Catalogue make()
    {
        Catalogue catalogue;
        for (const char* tag : {"en", "de", "ja", "zh-Hans"}) {
            const QString text = QString::fromLatin1(tag);
            if (text == QLatin1String("en") || coin())
                catalogue.languages.insert(languageNumber(text).value(), text);
        }
        m_languages = catalogue.languages.keys().mid(1);
        for (int i = 0; i < 1 + atMost(5); ++i)
            catalogue.colours.append({QStringLiteral("colour%1").arg(i), atMost(0xffffff), name()});
        for (const int number : numbers(1 + atMost(6), 999999))
            catalogue.materials.append({number, name()});
        for (const int number : numbers(2 + atMost(6), 999999))
            catalogue.formats.append({number, formatType(), name()});
        const int pictures = atMost(4);
        for (int i = 0; i < pictures; ++i)
            catalogue.backgrounds.append(
                {QStringLiteral("Bild %1, neu; é.png").arg(i),
                 SmallCatalogue().files.value(QStringLiteral("backgrounds/dot.png"))});
        addSupplies(catalogue);
        addRibbons(catalogue);
        addSettings(catalogue);
        addPrinterFormats(catalogue);
        return catalogue;
    }

private:
    int atMost(int most) { return m_random.bounded(most + 1); }
    bool coin() { return atMost(1) == 1; }

    QList<int> numbers(int count, int most)
    {
        QSet<int> found;
        while (found.size() < count)
            found.insert(1 + atMost(most - 1));
        return shuffled(found.values());
    }

    template <typename Value>
    QList<Value> shuffled(QList<Value> values)
    {
        std::shuffle(values.begin(), values.end(), m_random);
        return values;
    }

    double size(double most) { return std::max(1e-6, m_random.generateDouble() * most); }

    QString text()
    {
        static const QStringList pieces{
            QStringLiteral("a"),  QStringLiteral(","),  QStringLiteral(";"),  QStringLiteral("\""),
            QStringLiteral("Ä"),  QStringLiteral("白"), QStringLiteral("%1"), QStringLiteral("😀"),
            QStringLiteral("=1"), QStringLiteral("b c")};
        QString result = QStringLiteral("n");
        for (int i = 0; i < atMost(6); ++i)
            result += pieces.at(atMost(static_cast<int>(pieces.size()) - 1));
        return result;
    }

    Name name()
    {
        Name result{text(), {}};
        for (const int language : std::as_const(m_languages)) {
            if (coin())
                result.translations.insert(language, text());
        }
        return result;
    }

    QString formatType()
    {
        static const QStringList types{QStringLiteral("continuous"), QStringLiteral("die-cut"),
                                       QStringLiteral("sleeve"), QStringLiteral("tag")};
        return types.at(atMost(3));
    }

    void addSupplies(Catalogue& catalogue)
    {
        const int count = atMost(40);
        QList<int> kinds = numbers(2 * count, 999999);
        const int colours = static_cast<int>(catalogue.colours.size());
        for (const int number : numbers(count, 100000)) {
            const Catalogue::Format& format =
                catalogue.formats.at(atMost(static_cast<int>(catalogue.formats.size()) - 1));
            Catalogue::Supply supply{};
            supply.sku = QStringLiteral("%1%2").arg(coin() ? u'S' : u's').arg(number);
            supply.material =
                catalogue.materials.at(atMost(static_cast<int>(catalogue.materials.size()) - 1))
                    .number;
            supply.format = format.number;
            supply.colour = atMost(colours - 1);
            supply.width = size(100);
            supply.length = size(100000);
            if (coin()) {
                supply.secondColour = atMost(colours - 1);
                supply.secondColourWidth = supply.width / 3;
            }
            if (format.type != QLatin1String("continuous"))
                supply.labelLength = supply.length / 7;
            if (coin())
                supply.separatorWidth = coin() ? 0.0 : size(100);
            supply.isLandscape = coin();
            if (!catalogue.backgrounds.isEmpty() && coin())
                supply.background = atMost(static_cast<int>(catalogue.backgrounds.size()) - 1);
            supply.multiUpCount = 1 + atMost(3);
            if (supply.multiUpCount > 1)
                supply.multiUpGap = size(1);
            for (int i = 0; i < atMost(2); ++i)
                supply.kinds.append(kinds.takeLast());
            catalogue.supplies.append(supply);
        }
    }

    void addRibbons(Catalogue& catalogue)
    {
        const int count = atMost(20);
        QList<int> free = numbers(2 * count, 100000);
        for (const int number : numbers(count, 100000)) {
            Catalogue::Ribbon ribbon{
                QStringLiteral("R.%1").arg(number), text(), size(100), size(100000), {}, {}};
            for (int i = 0; i < 1 + atMost(15); ++i)
                ribbon.panelColours.append(atMost(static_cast<int>(catalogue.colours.size()) - 1));
            for (int i = 0; i < atMost(2); ++i)
                ribbon.numbers.append(free.takeLast());
            catalogue.ribbons.append(ribbon);
        }
    }

    void addSettings(Catalogue& catalogue)
    {
        for (const Catalogue::Supply& supply : std::as_const(catalogue.supplies)) {
            for (const Catalogue::Ribbon& ribbon : std::as_const(catalogue.ribbons)) {
                const int panels = static_cast<int>(ribbon.panelColours.size());
                for (int panel = 1; panel <= panels; ++panel) {
                    if (atMost(3) == 0)
                        catalogue.settings.append({ribbon.sku, panel, supply.sku, atMost(1000),
                                                   atMost(1000), 1 + atMost(999), atMost(1000)});
                }
            }
        }
        catalogue.settings = shuffled(catalogue.settings);
    }

    void addPrinterFormats(Catalogue& catalogue)
    {
        QStringList models{QString(), QStringLiteral("Alder"), QStringLiteral("Öre, \"2\""),
                           QStringLiteral("\ufb01r"), QStringLiteral("😀")};
        for (const QString& model : shuffled(models)) {
            int position = 0;
            for (const Catalogue::Format& format : shuffled(catalogue.formats)) {
                if (coin())
                    catalogue.printerFormats.append({model, position++, format.number});
            }
        }
    }

    QRandomGenerator m_random;
    QList<int> m_languages;
};

QStringList allFilesIn(const QString& folder)
{
    QStringList names;
    const QDir dir(folder);
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.append(dir.relativeFilePath(files.next()));
    names.sort();
    return names;
}

} // namespace

class RollDbExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sampleExportedAndBuiltHasTheSameBytes();
    void anyCatalogueExportedAndBuiltHasTheSameBytes_data();
    void anyCatalogueExportedAndBuiltHasTheSameBytes();
    void exportHasWhatTheTablesHad();
    void tableWithQuotedFieldsIsExact();
    void refusesToReplaceFiles_data();
    void refusesToReplaceFiles();
    void replacesFilesIfForced();
    void refusesAFileInPlaceOfTheFolder();
    void refusesAFolderInPlaceOfAFile();
    void refusesAFolderWithoutItsParent();
    void keepsAFolderFreeOfNamesThatLeadOutOfIt_data();
    void keepsAFolderFreeOfNamesThatLeadOutOfIt();
    void refusesADamagedDatabase();
#ifdef Q_OS_UNIX
    void leavesTheFolderAsItWasIfAFileCannotBeWritten_data();
    void leavesTheFolderAsItWasIfAFileCannotBeWritten();
#endif
    void templateCanBeBuilt();
    void templateShowsEveryColumn();

private:
    QString inFolder(const char* name) const
    {
        return m_folder->filePath(QString::fromLatin1(name));
    }
    /// The exit status, standard output and standard error of the tool; "@" in the arguments is the
    /// test's folder, and the other way round in what it prints.
    QString run(QStringList arguments) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void RollDbExportTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void RollDbExportTest::cleanup()
{
    m_folder.reset();
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

QString RollDbExportTest::run(QStringList arguments) const
{
    const QString folder = m_folder->path() + u'/';
    QProcess tool;
    startProcess(tool, testFile(VX_ROLLDB),
                 arguments.replaceInStrings(QStringLiteral("@"), folder));
    if (!tool.waitForFinished(patience))
        return tool.errorString();
    return QString::number(tool.exitCode()) + u'\n' +
           QString::fromUtf8(tool.readAllStandardOutput() + tool.readAllStandardError())
               .remove(u'\r')
               .replace(folder, QStringLiteral("@"));
}

void RollDbExportTest::sampleExportedAndBuiltHasTheSameBytes()
{
    QCOMPARE(run({QStringLiteral("build"), sampleCatalogue, QStringLiteral("@first.db")}).at(0),
             QChar(u'0'));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("@first.db"), QStringLiteral("@out")}),
             QStringLiteral("0\n@out: files written: 11\n"));
    QCOMPARE(
        run({QStringLiteral("build"), QStringLiteral("@out"), QStringLiteral("@second.db")}).at(0),
        QChar(u'0'));
    QVERIFY(!contentOf(inFolder("first.db")).isEmpty());
    QCOMPARE(contentOf(inFolder("second.db")), contentOf(inFolder("first.db")));
}

void RollDbExportTest::anyCatalogueExportedAndBuiltHasTheSameBytes_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void RollDbExportTest::anyCatalogueExportedAndBuiltHasTheSameBytes()
{
    QFETCH(const quint32, seed);
    const Catalogue catalogue = RandomCatalogue(seed).make();
    writeDatabase(catalogue, inFolder("first.db"));
    QVERIFY(readDatabase(inFolder("first.db")) == ordered(catalogue));
    writeFolder(catalogueFiles(readDatabase(inFolder("first.db"))), inFolder("out"), false);
    writeDatabase(readCatalogueDirectory(inFolder("out")), inFolder("second.db"));
    QCOMPARE(contentOf(inFolder("second.db")), contentOf(inFolder("first.db")));
}

void RollDbExportTest::exportHasWhatTheTablesHad()
{
    SmallCatalogue().write(inFolder("roll.db"));
    const QMap<QString, QByteArray> files = catalogueFiles(readDatabase(inFolder("roll.db")));
    const QHash<QString, QByteArray> before = SmallCatalogue().files;
    QCOMPARE(QSet<QString>(files.keyBegin(), files.keyEnd()),
             QSet<QString>(before.keyBegin(), before.keyEnd()));
    QCOMPARE(files.value(QStringLiteral("backgrounds/dot.png")),
             before.value(QStringLiteral("backgrounds/dot.png")));
    // The database knows neither the order of supplies nor the case of a colour's digits, and a
    // table has a column for every language.
    QCOMPARE(files.value(QStringLiteral("colours.csv")),
             QByteArray(before.value(QStringLiteral("colours.csv"))).replace("C8102E", "c8102e"));
    QCOMPARE(files.value(QStringLiteral("materials.csv")),
             QByteArray("material,en,de,ja\n0,Paper,Papier,\n7,Vinyl,Vinylfolie,\n"));
    QCOMPARE(files.value(QStringLiteral("ribbons.csv")),
             before.value(QStringLiteral("ribbons.csv")));
    const auto sorted = [](const QByteArray& table) {
        QList<QByteArray> lines = table.split('\n');
        std::ranges::sort(lines);
        return lines;
    };
    for (const char* file : {"supplies.csv", "print_settings.csv"})
        QCOMPARE(sorted(files.value(QString::fromLatin1(file))),
                 sorted(before.value(QString::fromLatin1(file))));
    QCOMPARE(files.value(QStringLiteral("printer_formats.csv")),
             QByteArray("model,format\n*,1\n*,2\nAlder,2\nAlderMax,2\nAlderMax,1\n"));
}

void RollDbExportTest::tableWithQuotedFieldsIsExact()
{
    SmallCatalogue catalogue;
    catalogue.replace("materials.csv", "Vinyl,Vinylfolie", R"("a, ""b"";c",d)");
    catalogue.write(inFolder("roll.db"));
    QCOMPARE(
        catalogueFiles(readDatabase(inFolder("roll.db"))).value(QStringLiteral("materials.csv")),
        QByteArray("material,en,de,ja\n0,Paper,Papier,\n7,\"a, \"\"b\"\";c\",d,\n"));
}

void RollDbExportTest::refusesToReplaceFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a table") << QStringLiteral("ribbons.csv");
    QTest::newRow("a table with tabs") << QStringLiteral("ribbons.tsv");
    QTest::newRow("a picture") << QStringLiteral("backgrounds/dot.png");
}

void RollDbExportTest::refusesToReplaceFiles()
{
    QFETCH(const QString, file);
    SmallCatalogue().write(inFolder("roll.db"));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out/backgrounds")));
    QVERIFY(writeFile(inFolder("out/") + file, "old"));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("@roll.db"), QStringLiteral("@out")}),
             QStringLiteral("1\nrolldb: @out/%1 exists already; --force replaces it\n").arg(file));
    QCOMPARE(allFilesIn(inFolder("out")), QStringList{file});
    QCOMPARE(contentOf(inFolder("out/") + file), QByteArray("old"));
}

void RollDbExportTest::replacesFilesIfForced()
{
    SmallCatalogue().write(inFolder("roll.db"));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out")));
    for (const char* file : {"out/ribbons.tsv", "out/ribbons.csv", "out/notes.txt"})
        QVERIFY(writeFile(inFolder(file), "old"));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("--force"), QStringLiteral("@roll.db"),
                  QStringLiteral("@out")}),
             QStringLiteral("0\n@out: files written: 8\n"));
    QStringList expected = SmallCatalogue().files.keys();
    expected.append(QStringLiteral("notes.txt"));
    expected.sort();
    QCOMPARE(allFilesIn(inFolder("out")), expected);
    QCOMPARE(contentOf(inFolder("out/notes.txt")), QByteArray("old"));
    QVERIFY(ordered(readCatalogueDirectory(inFolder("out"))) == ordered(SmallCatalogue().read()));
}

void RollDbExportTest::refusesAFileInPlaceOfTheFolder()
{
    QVERIFY(writeFile(inFolder("out"), "old"));
    QCOMPARE(run({QStringLiteral("template"), QStringLiteral("--force"), QStringLiteral("@out")}),
             QStringLiteral("1\nrolldb: @out: not a directory\n"));
    QCOMPARE(contentOf(inFolder("out")), QByteArray("old"));
}

void RollDbExportTest::refusesAFolderInPlaceOfAFile()
{
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out/ribbons.csv")));
    QCOMPARE(run({QStringLiteral("template"), QStringLiteral("--force"), QStringLiteral("@out")}),
             QStringLiteral("1\nrolldb: @out/ribbons.csv: not a file, so it is not replaced\n"));
    QCOMPARE(allFilesIn(inFolder("out")), QStringList());

    QVERIFY(writeFile(inFolder("backgrounds"), "a file in place of the folder of pictures"));
    SmallCatalogue().write(inFolder("roll.db"));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("@roll.db"), QStringLiteral("@.")}),
             QStringLiteral("1\nrolldb: @./backgrounds: the folder cannot be created\n"));
    QCOMPARE(filesIn(m_folder->path()),
             (QStringList{QStringLiteral("backgrounds"), QStringLiteral("roll.db")}));
}

void RollDbExportTest::refusesAFolderWithoutItsParent()
{
    const QString answer = run({QStringLiteral("template"), QStringLiteral("@none/out")});
    QVERIFY2(answer.startsWith(QStringLiteral("1\nrolldb: @none: ")), qPrintable(answer));
    QCOMPARE(answer.count(u'\n'), 2);
    QVERIFY(!QFileInfo::exists(inFolder("none")));
}

void RollDbExportTest::keepsAFolderFreeOfNamesThatLeadOutOfIt_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("fault");
    QTest::newRow("a path upwards")
        << QByteArray("UPDATE background SET file = '../../evil.png'")
        << QStringLiteral(
               "rolldb: supplies.csv:4, column 13 (background): \"../../evil.png\" is not "
               "a plain file name\n");
    QTest::newRow("no picture")
        << QByteArray("UPDATE background SET image = x'00'")
        << QStringLiteral("rolldb: supplies.csv:4, column 13 (background): backgrounds/dot.png is "
                          "not a readable image\n");
    QTest::newRow("a hidden character")
        << QByteArray("UPDATE name SET english = 'a' || char(27) WHERE english = 'Paper'")
        << QStringLiteral("rolldb: materials.csv:2, column 2 (en): the character U+001B is "
                          "invisible; remove it\n");
    QTest::newRow("spaces that a table does not keep")
        << QByteArray("UPDATE name SET english = ' Paper' WHERE english = 'Paper'")
        << QStringLiteral("rolldb: it has content that the tables cannot express\n");
}

void RollDbExportTest::keepsAFolderFreeOfNamesThatLeadOutOfIt()
{
    QFETCH(const QByteArray, change);
    QFETCH(const QString, fault);
    SmallCatalogue().write(inFolder("roll.db"));
    QVERIFY(runStatement(inFolder("roll.db"), change));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("@roll.db"), QStringLiteral("@out")}),
             QStringLiteral("1\nrolldb: @roll.db: it cannot be written as tables:\n") + fault);
    QCOMPARE(allFilesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

void RollDbExportTest::refusesADamagedDatabase()
{
    QVERIFY(writeFile(inFolder("roll.db"), "not a database"));
    QCOMPARE(run({QStringLiteral("export"), QStringLiteral("@roll.db"), QStringLiteral("@out")}),
             QStringLiteral("1\nrolldb: @roll.db: not an SQLite database\n"));
    QVERIFY(!QFileInfo::exists(inFolder("out")));
}

#ifdef Q_OS_UNIX

void RollDbExportTest::leavesTheFolderAsItWasIfAFileCannotBeWritten_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("a new folder") << false;
    QTest::newRow("an existing folder") << true;
}

// A limit on the file size interrupts a write like a full disk.
void RollDbExportTest::leavesTheFolderAsItWasIfAFileCannotBeWritten()
{
    QFETCH(const bool, exists);
    const QString out = inFolder("out");
    QMap<QString, QByteArray> files{{QStringLiteral("colours.csv"), "new"},
                                    {QStringLiteral("ribbons.csv"), QByteArray(100000, 'x')}};
    if (exists) {
        QVERIFY(QDir().mkdir(out));
        QVERIFY(writeFile(out + QStringLiteral("/colours.csv"), "old"));
    }
    const QString fault = failureOf([&] {
        const FileSizeLimit limit(50000);
        QVERIFY(limit.isSet());
        writeFolder(files, out, true);
    });
    QVERIFY2(fault.endsWith(QStringLiteral("/ribbons.csv: ") + qt_error_string(EFBIG)),
             qPrintable(fault));
    QCOMPARE(QFileInfo::exists(out), exists);
    QCOMPARE(allFilesIn(m_folder->path()),
             exists ? QStringList{QStringLiteral("out/colours.csv")} : QStringList());
    QCOMPARE(contentOf(out + QStringLiteral("/colours.csv")), QByteArray(exists ? "old" : ""));
}

#endif

void RollDbExportTest::templateCanBeBuilt()
{
    QCOMPARE(run({QStringLiteral("template"), QStringLiteral("@out")}),
             QStringLiteral("0\n@out: files written: 7\n"));
    QCOMPARE(run({QStringLiteral("build"), QStringLiteral("@out"), QStringLiteral("@roll.db")}),
             QStringLiteral("0\n@roll.db: 2 supplies, 1 ribbons, 2 print settings, 7 languages\n"));
}

void RollDbExportTest::templateShowsEveryColumn()
{
    const QMap<QString, QByteArray> files = catalogueFiles(templateCatalogue());
    QCOMPARE(files.size(), 7);
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QList<QByteArray> lines = file->trimmed().split('\n');
        QVERIFY2(lines.size() > 1, qPrintable(file.key()));
        const QList<QByteArray> columns = lines.first().split(',');
        for (qsizetype column = 0; column < columns.size(); ++column) {
            // A picture would be a file of its own.
            if (columns.at(column) == "background")
                continue;
            const bool hasExample =
                std::any_of(lines.begin() + 1, lines.end(), [column](const QByteArray& line) {
                    return !line.split(',').at(column).isEmpty();
                });
            QVERIFY2(hasExample, columns.at(column).constData());
        }
    }
}

QTEST_GUILESS_MAIN(RollDbExportTest)
#include "tst_rolldb_export.moc"
