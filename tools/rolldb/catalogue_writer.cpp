// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_writer.h"

#include "database_check.h"
#include "failure.h"
#include "file_replacement.h"
#include "tool_text.h"

#include <supplydb_schema.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

namespace {

template <typename Number>
QVariant orNull(const std::optional<Number>& value)
{
    return value ? QVariant(*value) : QVariant();
}

// Rows are numbered from 1 in the order of the lists.
QVariant rowId(qsizetype place)
{
    return static_cast<qlonglong>(place + 1);
}

void run(const QSqlDatabase& database, const QString& statement)
{
    QSqlQuery query(database);
    if (!query.exec(statement))
        throw Failure(query.lastError().databaseText());
}

/// A connection that may write. It and its name are removed at the end of the scope.
class WritingConnection
{
public:
    explicit WritingConnection(const QString& path)
        : m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), path))
    {
        m_database.setDatabaseName(path);
        if (!m_database.open())
            throw Failure(m_database.lastError().databaseText());
    }
    ~WritingConnection()
    {
        const QString name = m_database.connectionName();
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
    }
    Q_DISABLE_COPY_MOVE(WritingConnection)

    const QSqlDatabase& database() const { return m_database; }

private:
    QSqlDatabase m_database;
};

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw Failure(QStringLiteral("%1: %2").arg(path, file.errorString()));
    return bytes;
}

void writeDraft(const Catalogue& catalogue, const QString& path)
{
    const WritingConnection connection(path);
    const QSqlDatabase& database = connection.database();
    // The draft needs no protection against a crash: it is not in its place yet.
    run(database, QStringLiteral("PRAGMA journal_mode = OFF"));
    run(database, QStringLiteral("PRAGMA synchronous = OFF"));
    run(database, QStringLiteral("PRAGMA foreign_keys = ON"));
    run(database, QStringLiteral("BEGIN"));
    createTables(database);
    CatalogueWriter(database).write(catalogue);
    run(database, QStringLiteral("COMMIT"));
}

} // namespace

void createTables(const QSqlDatabase& database)
{
    for (const QString& statement : supplydb_schema::statements())
        run(database, statement);
}

CatalogueWriter::Insert::Insert(const QSqlDatabase& database, const char* table, int columns)
    : m_query(database)
{
    QStringList marks;
    marks.fill(QStringLiteral("?"), columns);
    if (!m_query.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)")
                             .arg(QLatin1String(table), marks.join(QStringLiteral(", ")))))
        throw Failure(m_query.lastError().databaseText());
}

void CatalogueWriter::Insert::row(const QVariantList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        m_query.bindValue(static_cast<int>(i), values.at(i));
    if (!m_query.exec())
        throw Failure(m_query.lastError().databaseText());
}

CatalogueWriter::CatalogueWriter(const QSqlDatabase& database)
    : m_language(database, "language", 2)
    , m_name(database, "name", 2)
    , m_translation(database, "translation", 3)
    , m_colour(database, "colour", 4)
    , m_material(database, "material", 2)
    , m_format(database, "format", 3)
    , m_printerFormat(database, "printer_format", 3)
    , m_background(database, "background", 3)
    , m_supply(database, "supply", 14)
    , m_supplyKind(database, "supply_kind", 2)
    , m_ribbon(database, "ribbon", 4)
    , m_ribbonPanel(database, "ribbon_panel", 3)
    , m_ribbonNumber(database, "ribbon_number", 2)
    , m_printSetting(database, "print_setting", 7)
{}

void CatalogueWriter::write(const Catalogue& catalogue)
{
    // The order of the rows decides on which pages of the file they are.
    const Catalogue rows = ordered(catalogue);
    m_names = 0;
    writeVocabulary(rows);
    writeSupplies(rows);
    writeRibbons(rows);
}

QVariant CatalogueWriter::writeName(const Name& name)
{
    const QVariant id = rowId(m_names++);
    m_name.row({id, name.english});
    for (auto entry = name.translations.begin(); entry != name.translations.end(); ++entry)
        m_translation.row({id, entry.key(), entry.value()});
    return id;
}

void CatalogueWriter::writeVocabulary(const Catalogue& catalogue)
{
    for (auto entry = catalogue.languages.begin(); entry != catalogue.languages.end(); ++entry)
        m_language.row({entry.key(), entry.value()});
    for (qsizetype i = 0; i < catalogue.colours.size(); ++i) {
        const Catalogue::Colour& source = catalogue.colours.at(i);
        m_colour.row({rowId(i), source.key, source.rgb, writeName(source.name)});
    }
    for (const Catalogue::Material& source : catalogue.materials)
        m_material.row({source.number, writeName(source.name)});
    for (const Catalogue::Format& source : catalogue.formats)
        m_format.row({source.number, source.type, writeName(source.name)});
    for (const Catalogue::PrinterFormat& source : catalogue.printerFormats)
        m_printerFormat.row({source.model.isNull() ? QStringLiteral("") : source.model,
                             source.position, source.format});
}

void CatalogueWriter::writeSupplies(const Catalogue& catalogue)
{
    for (qsizetype i = 0; i < catalogue.backgrounds.size(); ++i)
        m_background.row(
            {rowId(i), catalogue.backgrounds.at(i).file, catalogue.backgrounds.at(i).image});
    for (const Catalogue::Supply& source : catalogue.supplies) {
        m_supply.row({source.sku, source.material, source.format, rowId(source.colour),
                      source.secondColour ? rowId(*source.secondColour) : QVariant(),
                      orNull(source.secondColourWidth), source.width, source.length,
                      orNull(source.labelLength), orNull(source.separatorWidth),
                      source.isLandscape ? 1 : 0,
                      source.background ? rowId(*source.background) : QVariant(),
                      source.multiUpCount, orNull(source.multiUpGap)});
        for (const int number : source.kinds)
            m_supplyKind.row({number, source.sku});
    }
}

void CatalogueWriter::writeRibbons(const Catalogue& catalogue)
{
    for (const Catalogue::Ribbon& source : catalogue.ribbons) {
        m_ribbon.row({source.sku, source.type, source.width, source.length});
        for (qsizetype i = 0; i < source.panelColours.size(); ++i)
            m_ribbonPanel.row({source.sku, rowId(i), rowId(source.panelColours.at(i))});
        for (const int ribbonNumber : source.numbers)
            m_ribbonNumber.row({ribbonNumber, source.sku});
    }
    for (const Catalogue::PrintSetting& source : catalogue.settings)
        m_printSetting.row({source.ribbonSku, source.panel, source.supplySku, source.heat,
                            source.heatOffset, source.maxSpeed, source.tension});
}

void writeDatabase(const Catalogue& catalogue, const QString& path)
{
    requireFileOrNothing(path);
    const QTemporaryDir workshop;
    if (!workshop.isValid())
        throw Failure(QStringLiteral("%1: %2").arg(workshop.path(), workshop.errorString()));
    const QString draft = workshop.filePath(QStringLiteral("draft.db"));
    try {
        writeDraft(catalogue, draft);
    } catch (const Failure& failure) {
        throw Failure(ToolText::tr("%1: cannot be created in %2: %3")
                          .arg(path, workshop.path(), failure.message()));
    }
    checkDatabase(draft, path);
    replaceFile(path, bytesOf(draft));
}
