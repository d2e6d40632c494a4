// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The files of a catalogue: each follows a line of "@" and its name, those that are not there are
// the ones of a small catalogue that is in order. A catalogue is refused in one line that names a
// file, or its rows go into the tables of a database, which the check finds in order.
#include "require.h"
#include "small_catalogue.h"

#include <database_check.h>
#include <fault.h>

#include <QtCore/QCoreApplication>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>

#include <algorithm>
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

bool isOneLine(const QString& text)
{
    return std::ranges::none_of(text, [](QChar character) {
        return character.category() == QChar::Other_Control ||
               character.category() == QChar::Separator_Line ||
               character.category() == QChar::Separator_Paragraph;
    });
}

/// Empty tables in memory, with prepared statements. They are made once: making a file for each
/// input would take longer than all the rest.
class Tables
{
public:
    Tables()
    {
        m_database.setDatabaseName(QStringLiteral(":memory:"));
        require(m_database.open(), "SQLite has a database in memory");
        QSqlQuery(m_database).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        createTables(m_database);
        m_writer.emplace(m_database);
        m_checker.emplace(m_database, QStringLiteral("roll.db"));
    }

    void take(const Catalogue& catalogue)
    {
        require(m_database.transaction(), "a transaction begins");
        m_writer->write(catalogue);
        const DatabaseCounts counts = m_checker->checkContent();
        require(counts.supplies == catalogue.supplies.size(), "all supplies are there");
        require(counts.ribbons == catalogue.ribbons.size(), "all ribbons are there");
        require(counts.settings == catalogue.settings.size(), "all print settings are there");
        require(counts.languages == catalogue.languages.size(), "all languages are there");
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
    static int argc = 1;
    static char name[] = "fuzz_catalogue";
    static char* argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static Tables tables;

    static const SmallCatalogue inOrder;
    SmallCatalogue files = inOrder;
    takeFiles(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), files);
    Catalogue catalogue;
    try {
        catalogue = files.read();
    } catch (const Fault& fault) {
        const QString file = fault.message().section(u':', 0, 0);
        require(files.files.contains(file), "a fault says in which file it is");
        require(isOneLine(fault.message()), "a fault is one line");
        return 0;
    }
    try {
        tables.take(catalogue);
    } catch (const Fault& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        require(false, "a catalogue that was read fits the tables");
    }
    return 0;
}
