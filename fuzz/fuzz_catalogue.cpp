// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The input consists of the files of a catalogue. Each follows a line with "@" and its name;
// missing files are taken from a small valid catalogue. Either the catalogue is refused in lines
// that name their files, or its rows fit the tables of a database, which the check accepts, and can
// be written as tables again.
#include "one_line.h"
#include "qt_application.h"
#include "require.h"
#include "small_catalogue.h"

#include <catalogue_tables.h>
#include <database_check.h>
#include <failure.h>
#include <mistakes.h>
#include <shown_text.h>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace {

void takeFiles(const QByteArray& bytes, SmallCatalogue& catalogue)
{
    QString name;
    for (const QByteArray& line : bytes.split('\n')) {
        if (line.startsWith('@')) {
            name = QString::fromUtf8(line.mid(1));
            catalogue.files.insert(name, {});
        } else if (!name.isNull()) {
            catalogue.files[name] += line + '\n';
        }
    }
}

/// Empty tables in memory, with prepared statements. They are created once: a file for each input
/// would take longer than everything else.
class Tables
{
public:
    Tables()
    {
        m_database.setDatabaseName(QStringLiteral(":memory:"));
        require(m_database.open(), "SQLite opens a database in memory");
        QSqlQuery(m_database).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        createTables(m_database);
        m_writer.emplace(m_database);
        m_checker.emplace(m_database, QStringLiteral("roll.db"));
    }

    void write(const Catalogue& catalogue)
    {
        require(m_database.transaction(), "a transaction begins");
        m_writer->write(catalogue);
        const DatabaseCounts counts = m_checker->checkContent();
        require(counts.supplies == catalogue.supplies.size(), "all supplies are stored");
        require(counts.ribbons == catalogue.ribbons.size(), "all ribbons are stored");
        require(counts.settings == catalogue.settings.size(), "all print settings are stored");
        require(counts.languages == catalogue.languages.size(), "all languages are stored");
        require(m_database.rollback(), "the tables are empty again");
    }

private:
    QSqlDatabase m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    std::optional<CatalogueWriter> m_writer;
    std::optional<DatabaseChecker> m_checker;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ensureCoreApplication();
    static Tables tables;

    constexpr auto most = static_cast<qsizetype>(Mistakes::most);
    static const SmallCatalogue valid;
    SmallCatalogue files = valid;
    takeFiles(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), files);
    Catalogue catalogue;
    try {
        catalogue = files.read();
    } catch (const Failure& failure) {
        const QStringList messages = failure.messages();
        require(messages.size() <= most + 1, "the number of messages is limited");
        for (qsizetype i = 0; i < messages.size(); ++i) {
            const QString file = messages.at(i).section(u':', 0, 0);
            require(i == most || files.files.contains(file), "a mistake names its file");
            require(isOneLine(shownAsMessage(messages.at(i))), "a mistake is one line");
        }
        return 0;
    }
    try {
        tables.write(catalogue);
        catalogueFiles(catalogue);
    } catch (const Failure& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        require(false, "a catalogue that was accepted fits the tables, and the other way round");
    }
    return 0;
}
