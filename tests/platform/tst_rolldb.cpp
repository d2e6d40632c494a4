// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "failure_of.h"
#include "patience.h"
#include "run_in_english.h"
#include "run_statement.h"
#include "small_catalogue.h"
#include "start_process.h"
#include "test_file.h"
#include "test_files.h"

#include <database_check.h>
#include <file_replacement.h>
#include <sku_report.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>

#include <memory>

#ifdef Q_OS_UNIX
#include "file_size_limit.h"

#include <sys/stat.h>
#endif

namespace {

// An absolute path, because on Windows the tool may run on another drive.
const QString sampleCatalogue = QDir(testFile(VX_SAMPLE_CATALOGUE)).absolutePath();

} // namespace

class RollDbTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void acceptsAsManyPanelsAsAreAllowed();
    void buildsTheSampleCatalogue();
    void theSameTablesGiveTheSameFile();
    void replacesTheOldFile();
    void keepsTheOldFileWhenARowIsInvalid();
    void keepsTheOldFileWhenTheSchemaRefusesARow();
    void namesThePathThatItCannotWrite();
#ifdef Q_OS_UNIX
    void doesNotReplaceAPipe_data();
    void doesNotReplaceAPipe();
    void doesNotWaitForAPipe_data();
    void doesNotWaitForAPipe();
    void reportsWhyAFileCannotBeWritten();
#endif
    void findsInvalidContent_data();
    void findsInvalidContent();
    void findsDamage();
    void reportsASupply();
    void reportsARibbon();
    void refusesToReportAnUnknownSku();
    void theToolReturnsItsResultAndExitStatus_data();
    void theToolReturnsItsResultAndExitStatus();
    void theToolPrintsItsHelp_data();
    void theToolPrintsItsHelp();

private:
    QString path() const
    {
        return m_folder->filePath(QStringLiteral("roll.db"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void RollDbTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void RollDbTest::cleanup()
{
    m_folder.reset();
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void RollDbTest::acceptsAsManyPanelsAsAreAllowed()
{
    SmallCatalogue catalogue;
    catalogue.replace("ribbons.csv", ",red black", ',' + QByteArray("red ").repeated(16));
    catalogue.write(path());
    const QString report = skuReport(path(), QStringLiteral("RIBBON-RK"), {});
    QCOMPARE(report.count(QStringLiteral("panel: ")), 16);
}

void RollDbTest::buildsTheSampleCatalogue()
{
    writeDatabase(readCatalogueDirectory(sampleCatalogue), path());
    const DatabaseCounts counts = checkDatabase(path());
    QVERIFY(counts.supplies >= 40);
    QVERIFY(counts.ribbons >= 20);
    QVERIFY(counts.settings > counts.supplies);
    QCOMPARE(counts.languages, 5);
}

void RollDbTest::theSameTablesGiveTheSameFile()
{
    const QString second = m_folder->filePath(QStringLiteral("second.db"));
    SmallCatalogue().write(path());
    SmallCatalogue().write(second);
    QVERIFY(!contentOf(path()).isEmpty());
    QCOMPARE(contentOf(path()), contentOf(second));
}

void RollDbTest::replacesTheOldFile()
{
    QVERIFY(writeFile(path(), "old"));
    SmallCatalogue().write(path());
    QCOMPARE(checkDatabase(path()).supplies, 3);
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

void RollDbTest::keepsTheOldFileWhenARowIsInvalid()
{
    SmallCatalogue().write(path());
    const QByteArray before = contentOf(path());
    SmallCatalogue bad;
    bad.replace("ribbons.csv", "2003", "x");
    QVERIFY(!failureOf([&] { bad.write(path()); }).isNull());
    QCOMPARE(contentOf(path()), before);
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

// The schema is the last line of defence: what the reader of the tables misses must not get into a
// file.
void RollDbTest::keepsTheOldFileWhenTheSchemaRefusesARow()
{
    SmallCatalogue().write(path());
    const QByteArray before = contentOf(path());
    Catalogue catalogue = SmallCatalogue().read();
    catalogue.settings[0].heatOffset = -1;
    const QString fault = failureOf([&] { writeDatabase(catalogue, path()); });
    QVERIFY2(fault.startsWith(path() + QStringLiteral(": cannot be created in ")),
             qPrintable(fault));
    QVERIFY2(fault.contains(QStringLiteral("heat_offset")), qPrintable(fault));
    catalogue = SmallCatalogue().read();
    catalogue.supplies[0].material = 99;
    QVERIFY(failureOf([&] {
                writeDatabase(catalogue, path());
            }).contains(QStringLiteral("FOREIGN KEY")));
    QCOMPARE(contentOf(path()), before);
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

void RollDbTest::namesThePathThatItCannotWrite()
{
    const QString nowhere = m_folder->filePath(QStringLiteral("missing/roll.db"));
    const QString fault = failureOf([&] { SmallCatalogue().write(nowhere); });
    QVERIFY2(fault.startsWith(nowhere + QStringLiteral(": ")), qPrintable(fault));
    QVERIFY(!QDir(m_folder->filePath(QStringLiteral("missing"))).exists());
}

#ifdef Q_OS_UNIX

void RollDbTest::doesNotReplaceAPipe_data()
{
    QTest::addColumn<QString>("target");

    QTest::newRow("the pipe itself") << QStringLiteral("pipe");
    QTest::newRow("a link to it") << QStringLiteral("link");
}

// The same code protects devices, which only the superuser could create here.
void RollDbTest::doesNotReplaceAPipe()
{
    QFETCH(QString, target);
    const QString pipe = m_folder->filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(pipe, m_folder->filePath(QStringLiteral("link"))));
    target = m_folder->filePath(target);
    QCOMPARE(failureOf([&target] { SmallCatalogue().write(target); }),
             target + QStringLiteral(": not a file, so it is not replaced"));
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(pipe).constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void RollDbTest::doesNotWaitForAPipe_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("fault");

    QTest::newRow("a table") << QStringLiteral("ribbons.csv")
                             << QStringLiteral("ribbons.csv is not a file");
    QTest::newRow("a picture")
        << QStringLiteral("backgrounds/dot.png")
        << QStringLiteral(
               "supplies.csv:2, column 13 (background): backgrounds/dot.png is not a file");
}

void RollDbTest::doesNotWaitForAPipe()
{
    QFETCH(QString, file);
    QFETCH(QString, fault);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("backgrounds")));
    const SmallCatalogue catalogue;
    for (auto entry = catalogue.files.begin(); entry != catalogue.files.end(); ++entry)
        QVERIFY(writeFile(m_folder->filePath(entry.key()), entry.value()));
    const QByteArray pipe = QFile::encodeName(m_folder->filePath(file));
    QVERIFY(QFile::remove(m_folder->filePath(file)));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    QProcess tool;
    tool.start(testFile(VX_ROLLDB), {QStringLiteral("build"), m_folder->path(), path()});
    QVERIFY2(tool.waitForFinished(), qPrintable(tool.errorString()));
    QCOMPARE(tool.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(tool.readAllStandardError()),
             QStringLiteral("rolldb: ") + fault + u'\n');
    QVERIFY(!QFile::exists(path()));
}

// A limit on the file size interrupts a write like a full disk.
void RollDbTest::reportsWhyAFileCannotBeWritten()
{
    QVERIFY(writeFile(path(), "old"));
    const QString fault = failureOf([this] {
        const FileSizeLimit limit(50000);
        QVERIFY(limit.isSet());
        replaceFile(path(), QByteArray(100000, 'x'));
    });
    QCOMPARE(fault, path() + QStringLiteral(": ") + qt_error_string(EFBIG));
    QCOMPARE(contentOf(path()), QByteArray("old"));
    QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("roll.db")});
}

#endif

void RollDbTest::findsInvalidContent_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<QString>("fault");

    QTest::newRow("nothing") << QByteArray("VACUUM") << QString();
    QTest::newRow("statistics") << QByteArray("ANALYZE name")
                                << QStringLiteral("its tables are not those of schema version 1");
    QTest::newRow("another schema version")
        << QByteArray("PRAGMA user_version = 9")
        << QStringLiteral("schema version 9; only version 1 can be read");
    QTest::newRow("another application")
        << QByteArray("PRAGMA application_id = 1")
        << QStringLiteral("an SQLite database, but not a supply database");
    QTest::newRow("another table")
        << QByteArray("CREATE TABLE note (text TEXT)")
        << QStringLiteral("its tables are not those of schema version 1");
    QTest::newRow("a trigger")
        << QByteArray("CREATE TRIGGER gone AFTER DELETE ON supply BEGIN SELECT 1; END")
        << QStringLiteral("its tables are not those of schema version 1");
    QTest::newRow("a missing table")
        << QByteArray("DROP TABLE print_setting")
        << QStringLiteral("its tables are not those of schema version 1");
    QTest::newRow("a row that refers to a missing row")
        << QByteArray("DELETE FROM material WHERE id = 7")
        << QStringLiteral("a row of supply refers to a missing row of material");
    QTest::newRow("a missing panel")
        << QByteArray("DELETE FROM ribbon_panel WHERE ribbon_sku = 'RIBBON-T'")
        << QStringLiteral("the panels of ribbon RIBBON-T are not numbered consecutively from 1");
    QTest::newRow("a panel of a ribbon that is missing")
        << QByteArray("UPDATE ribbon_panel SET ribbon_sku = 'TAPE-1' WHERE ribbon_sku = 'RIBBON-T'")
        << QStringLiteral(
               "a row of ribbon_panel refers to a missing row of ribbon\n@: the panels of "
               "ribbon RIBBON-T are not numbered consecutively from 1");
    QTest::newRow("a supply that is a ribbon")
        << QByteArray("UPDATE supply SET sku = 'RIBBON-T' WHERE sku = 'SPARE-1'")
        << QStringLiteral("RIBBON-T is both a supply and a ribbon");
    QTest::newRow("everything at once")
        << QByteArray("UPDATE supply SET label_length = 2 - ifnull(label_length, 0), "
                      "format_id = 3 - format_id, material_id = 9")
        << QStringLiteral("a row of supply refers to a missing row of material\n"
                          "@: supply LABEL-1 has a label length and a continuous format, or "
                          "neither\n"
                          "@: supply SPARE-1 has a label length and a continuous format, or "
                          "neither");
    QTest::newRow("a continuous label")
        << QByteArray("UPDATE supply SET label_length = 1")
        << QStringLiteral("supply TAPE-1 has a label length and a continuous format, or neither");
    QTest::newRow("a gap in a printer's list")
        << QByteArray("DELETE FROM printer_format WHERE model = 'AlderMax' AND position = 0")
        << QStringLiteral("the formats of the printer model \"AlderMax\" are not numbered "
                          "consecutively from 0");
    QTest::newRow("another first language")
        << QByteArray("UPDATE language SET tag = 'eo' WHERE id = 0")
        << QStringLiteral("the language 0 is \"eo\", not English");
    QTest::newRow("no English") << QByteArray("DELETE FROM language WHERE id = 0")
                                << QStringLiteral("English is missing");
}

void RollDbTest::findsInvalidContent()
{
    QFETCH(QByteArray, change);
    QFETCH(QString, fault);
    SmallCatalogue().write(path());
    QVERIFY(runStatement(path(), change));
    const QString found = failureOf([this] { checkDatabase(path()); });
    fault.replace(u'@', path());
    QCOMPARE(found, fault.isEmpty() ? QString() : path() + QStringLiteral(": ") + fault);
}

void RollDbTest::findsDamage()
{
    SmallCatalogue().write(path());
    QByteArray bytes = contentOf(path());
    bytes.replace(4096, 4096, QByteArray(4096, '\xff'));
    QVERIFY(writeFile(path(), bytes));
    const QString found = failureOf([this] { checkDatabase(path()); });
    QVERIFY2(found.startsWith(path() + QStringLiteral(": damaged: ")), qPrintable(found));
    QVERIFY(!found.contains(u'\n'));
}

void RollDbTest::reportsASupply()
{
    SmallCatalogue().write(path());
    QCOMPARE(skuReport(path(), QStringLiteral("TAPE-1"), {.language = 1}),
             QStringLiteral(
                 "supply:          TAPE-1\n"
                 "kinds:           100042 100043\n"
                 "material:        7 Vinylfolie\n"
                 "format:          1 Band\n"
                 "type:            continuous\n"
                 "colour:          #ffffff Weiß\n"
                 "second colour:   #c8102e Rot\n"
                 "stripe:          1.25 in\n"
                 "width:           4 in\n"
                 "length:          6000 in\n"
                 "landscape:       yes\n"
                 "side by side:    1\n"
                 "background:      dot.png, 69 bytes\n"
                 "printed with:    RIBBON-K panel 1: heat 52, offset 0, speed 4, tension 30\n"
                 "printed with:    RIBBON-RK panel 1: heat 58, offset 2, speed 3, tension 32\n"
                 "printed with:    RIBBON-RK panel 2: heat 55, offset 1, speed 4, tension 33\n"));
}

void RollDbTest::reportsARibbon()
{
    SmallCatalogue().write(path());
    QCOMPARE(skuReport(path(), QStringLiteral("RIBBON-RK"), {}),
             QStringLiteral(
                 "ribbon:          RIBBON-RK\n"
                 "numbers:         2003\n"
                 "type:            resin\n"
                 "width:           4.33 in\n"
                 "length:          2360 in\n"
                 "panel:           #c8102e Red\n"
                 "panel:           #000000 Black\n"
                 "prints on:       TAPE-1 panel 1: heat 58, offset 2, speed 3, tension 32\n"
                 "prints on:       TAPE-1 panel 2: heat 55, offset 1, speed 4, tension 33\n"));
}

void RollDbTest::refusesToReportAnUnknownSku()
{
    SmallCatalogue().write(path());
    QCOMPARE(failureOf([this] { skuReport(path(), QStringLiteral("NO-SUCH"), {}); }),
             path() + QStringLiteral(": no supply or ribbon \"NO-SUCH\""));
}

void RollDbTest::theToolReturnsItsResultAndExitStatus_data()
{
    // "@" is replaced with the test's folder.
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error");

    const QString usage = QStringLiteral(" (see rolldb --help)\n");
    const QString names = QStringLiteral("build, check, list, show, find, export, template");
    QTest::newRow("build")
        << QStringList{QStringLiteral("build"), sampleCatalogue, QStringLiteral("@new.db")} << 0
        << QStringLiteral("@new.db: 46 supplies, 22 ribbons, 894 print settings, 5 languages\n")
        << QString();
    QTest::newRow("check")
        << QStringList{QStringLiteral("check"), QStringLiteral("@roll.db")} << 0
        << QStringLiteral("@roll.db: ok, 3 supplies, 3 ribbons, 4 print settings, 3 languages\n")
        << QString();
    QTest::newRow("show")
        << QStringList{QStringLiteral("show"), QStringLiteral("--language"), QStringLiteral("de"),
                       QStringLiteral("@roll.db"), QStringLiteral("RIBBON-T")}
        << 0
        << QStringLiteral(
               "ribbon:          RIBBON-T\ntype:            resin\nwidth:           2.4 in\n"
               "length:          4725 in\npanel:           #008080 Teal\n")
        << QString();
    QTest::newRow("no command") << QStringList{} << 2 << QString()
                                << QStringLiteral("rolldb: expected a command: ") + names + usage;
    QTest::newRow("an unknown command")
        << QStringList{QStringLiteral("fix")} << 2 << QString()
        << QStringLiteral("rolldb: unknown command \"fix\"; expected one of ") + names + usage;
    QTest::newRow("too few arguments")
        << QStringList{QStringLiteral("build"), QStringLiteral("x")} << 2 << QString()
        << QStringLiteral("rolldb: build takes DIRECTORY FILE, found \"x\"") + usage;
    QTest::newRow("no arguments") << QStringList{QStringLiteral("check")} << 2 << QString()
                                  << QStringLiteral("rolldb: check takes PATH, found nothing") +
                                         usage;
    QTest::newRow("too many arguments")
        << QStringList{QStringLiteral("list"), QStringLiteral("a"), QStringLiteral("b")} << 2
        << QString() << QStringLiteral("rolldb: list takes FILE, found \"a\" \"b\"") + usage;
    QTest::newRow("help about an unknown command")
        << QStringList{QStringLiteral("help"), QStringLiteral("fix")} << 2 << QString()
        << QStringLiteral("rolldb: unknown command \"fix\"; expected one of ") + names + usage;
    QTest::newRow("help about two commands")
        << QStringList{QStringLiteral("help"), QStringLiteral("list"), QStringLiteral("find")} << 2
        << QString() << QStringLiteral("rolldb: help takes at most one command") + usage;
    QTest::newRow("an option of another command")
        << QStringList{QStringLiteral("build"), QStringLiteral("--json"), QStringLiteral("a"),
                       QStringLiteral("b")}
        << 2 << QString()
        << QStringLiteral("rolldb: --json is valid only with list, show, find") + usage;
    QTest::newRow("force where nothing is replaced")
        << QStringList{QStringLiteral("check"), QStringLiteral("--force"), QStringLiteral("a")} << 2
        << QString()
        << QStringLiteral("rolldb: --force is valid only with export, template") + usage;
    QTest::newRow("an option without its value")
        << QStringList{QStringLiteral("list"), QStringLiteral("--language")} << 2 << QString()
        << QStringLiteral("rolldb: Missing value after '--language'.") + usage;
    QTest::newRow("the version") << QStringList{QStringLiteral("--version")} << 0
                                 << QStringLiteral("rolldb " VX_VERSION "\n") << QString();
    QTest::newRow("check of a directory")
        << QStringList{QStringLiteral("check"), sampleCatalogue} << 0
        << sampleCatalogue +
               QStringLiteral(": ok, 46 supplies, 22 ribbons, 894 print settings, 5 languages\n")
        << QString();
    QTest::newRow("another option")
        << QStringList{QStringLiteral("check"), QStringLiteral("--fix"), QStringLiteral("@roll.db")}
        << 2 << QString() << QStringLiteral("rolldb: Unknown option 'fix'.") + usage;
    QTest::newRow("another language")
        << QStringList{QStringLiteral("show"), QStringLiteral("--language"), QStringLiteral("xx"),
                       QStringLiteral("@roll.db"), QStringLiteral("TAPE-1")}
        << 2 << QString() << QStringLiteral("rolldb: \"xx\" is not a known language") + usage;
    QTest::newRow("no directory") << QStringList{QStringLiteral("build"),
                                                 QStringLiteral("@nowhere"),
                                                 QStringLiteral("@new.db")}
                                  << 1 << QString()
                                  << QStringLiteral("rolldb: @nowhere: no such directory\n");
    QTest::newRow("no tables")
        << QStringList{QStringLiteral("build"), QStringLiteral("@"), QStringLiteral("@new.db")} << 1
        << QString()
        << QStringLiteral("rolldb: colours.csv: no such file, or it cannot be read\n"
                          "rolldb: materials.csv: no such file, or it cannot be read\n"
                          "rolldb: formats.csv: no such file, or it cannot be read\n"
                          "rolldb: supplies.csv: no such file, or it cannot be read\n"
                          "rolldb: ribbons.csv: no such file, or it cannot be read\n"
                          "rolldb: print_settings.csv: no such file, or it cannot be read\n"
                          "rolldb: printer_formats.csv: no such file, or it cannot be read\n");
    QTest::newRow("no file") << QStringList{QStringLiteral("check"), QStringLiteral("@none.db")}
                             << 1 << QString()
                             << QStringLiteral("rolldb: @none.db: no such file\n");
    QTest::newRow("no database") << QStringList{QStringLiteral("show"), QStringLiteral("@text.db"),
                                                QStringLiteral("TAPE-1")}
                                 << 1 << QString()
                                 << QStringLiteral("rolldb: @text.db: not an SQLite database\n");
}

void RollDbTest::theToolReturnsItsResultAndExitStatus()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    QFETCH(QString, error);
    const QString folder = m_folder->path() + u'/';
    SmallCatalogue().write(path());
    QVERIFY(writeFile(m_folder->filePath(QStringLiteral("text.db")), "not a database"));
    QProcess tool;
    startProcess(tool, testFile(VX_ROLLDB),
                 arguments.replaceInStrings(QStringLiteral("@"), folder));
    QVERIFY2(tool.waitForFinished(patience), qPrintable(tool.errorString()));
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(QString::fromUtf8(tool.readAllStandardError()).remove(u'\r'),
             error.replace(QStringLiteral("@"), folder));
    QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()).remove(u'\r'),
             output.replace(QStringLiteral("@"), folder));
    QTEST(tool.exitCode(), "status");
}

void RollDbTest::theToolPrintsItsHelp_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("parts");
    const QStringList all{QStringLiteral("Usage: rolldb COMMAND"),
                          QStringLiteral("  build DIRECTORY FILE"),
                          QStringLiteral("  check PATH"),
                          QStringLiteral("  list FILE"),
                          QStringLiteral("  show FILE SKU"),
                          QStringLiteral("  find FILE IDENTIFIER"),
                          QStringLiteral("  export FILE DIRECTORY"),
                          QStringLiteral("  template DIRECTORY"),
                          QStringLiteral("  --language TAG"),
                          QStringLiteral("  --force"),
                          QStringLiteral("  --json"),
                          QStringLiteral("  --version")};
    const QStringList find{QStringLiteral("Usage: rolldb find [OPTION]... FILE IDENTIFIER\n"),
                           QStringLiteral("  --json"), QStringLiteral("  -h, --help")};
    QTest::newRow("--help") << QStringList{QStringLiteral("--help")} << all;
    QTest::newRow("-h") << QStringList{QStringLiteral("-h")} << all;
    QTest::newRow("help") << QStringList{QStringLiteral("help")} << all;
    QTest::newRow("help --version")
        << QStringList{QStringLiteral("help"), QStringLiteral("--version")} << all;
    const auto about = [](const char* command, const char* usage, const char* text) {
        QTest::newRow(command) << QStringList{QStringLiteral("help"), QString::fromLatin1(command)}
                               << QStringList{
                                      QStringLiteral("Usage: rolldb %1 [OPTION]... %2\n")
                                          .arg(QLatin1String(command), QLatin1String(usage)),
                                      QString::fromLatin1(text)};
    };
    about("build", "DIRECTORY FILE", "All mistakes in the tables are printed, up to 50");
    about("check", "PATH",
          "verify a supply database or a directory of tables\n\nNothing is written.");
    about("list", "FILE", "With the numbers in identifiers that stand for them, and their names.");
    about("show", "FILE SKU",
          "print what FILE has about a supply or a ribbon\n\nOptions:\n  --lang");
    about("export", "FILE DIRECTORY", "A database that is built from them has the same bytes.");
    about("template", "DIRECTORY",
          "every column with its name and an example.\n\nOptions:\n  --force");
    QTest::newRow("help find") << QStringList{QStringLiteral("help"), QStringLiteral("find")}
                               << find;
    QTest::newRow("find --help") << QStringList{QStringLiteral("find"), QStringLiteral("--help")}
                                 << find;
    QTest::newRow("-h find x") << QStringList{QStringLiteral("-h"), QStringLiteral("find"),
                                              QStringLiteral("x")}
                               << find;
}

void RollDbTest::theToolPrintsItsHelp()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, parts);
    QProcess tool;
    startProcess(tool, testFile(VX_ROLLDB), arguments);
    QVERIFY2(tool.waitForFinished(patience), qPrintable(tool.errorString()));
    QCOMPARE(tool.exitCode(), 0);
    const QString help = QString::fromUtf8(tool.readAllStandardOutput()).remove(u'\r');
    for (const QString& part : parts)
        QVERIFY2(help.contains(part), qPrintable(part));
    // The help about a command has no option that it does not accept.
    const bool replaces = help.contains(QStringLiteral("rolldb COMMAND")) ||
                          help.contains(QStringLiteral("rolldb export")) ||
                          help.contains(QStringLiteral("rolldb template"));
    QCOMPARE(help.contains(QStringLiteral("--force")), replaces);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QCoreApplication, RollDbTest>(argc, argv);
}
#include "tst_rolldb.moc"
