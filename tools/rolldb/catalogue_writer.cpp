// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_writer.h"

#include "database_check.h"
#include "fault.h"

#include <supplydb_schema.h>

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
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

class Writer
{
public:
    explicit Writer(const QSqlDatabase& database)
        : m_database(database)
    {}

    void write(const Catalogue& catalogue)
    {
        // A file that is not in place yet needs no protection against a crash.
        run(QStringLiteral("PRAGMA journal_mode = OFF"));
        run(QStringLiteral("PRAGMA synchronous = OFF"));
        run(QStringLiteral("PRAGMA foreign_keys = ON"));
        run(QStringLiteral("BEGIN"));
        for (const QString& statement : SupplyDbSchema::statements())
            run(statement);
        writeVocabulary(catalogue);
        writeSupplies(catalogue);
        writeRibbons(catalogue);
        run(QStringLiteral("COMMIT"));
    }

private:
    /// A statement that puts one row after the other into a table.
    class Insert
    {
    public:
        Insert(const QSqlDatabase& database, const QString& table, int columns)
            : m_query(database)
        {
            QStringList marks;
            marks.fill(QStringLiteral("?"), columns);
            if (!m_query.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)")
                                     .arg(table, marks.join(QStringLiteral(", ")))))
                throw Fault(m_query.lastError().databaseText());
        }

        void row(const QVariantList& values)
        {
            for (qsizetype i = 0; i < values.size(); ++i)
                m_query.bindValue(static_cast<int>(i), values.at(i));
            if (!m_query.exec())
                throw Fault(m_query.lastError().databaseText());
        }

    private:
        QSqlQuery m_query;
    };

    Insert into(const char* table, int columns) const
    {
        return {m_database, QString::fromLatin1(table), columns};
    }

    void run(const QString& statement) const
    {
        QSqlQuery query(m_database);
        if (!query.exec(statement))
            throw Fault(query.lastError().databaseText());
    }

    QVariant writeName(const Name& name)
    {
        const QVariant id = rowId(m_names++);
        into("name", 2).row({id, name.english});
        Insert translation = into("translation", 3);
        for (auto entry = name.translations.begin(); entry != name.translations.end(); ++entry)
            translation.row({id, entry.key(), entry.value()});
        return id;
    }

    void writeVocabulary(const Catalogue& catalogue)
    {
        Insert language = into("language", 2);
        for (auto entry = catalogue.languages.begin(); entry != catalogue.languages.end(); ++entry)
            language.row({entry.key(), entry.value()});
        Insert colour = into("colour", 4);
        for (qsizetype i = 0; i < catalogue.colours.size(); ++i) {
            const Catalogue::Colour& source = catalogue.colours.at(i);
            colour.row({rowId(i), source.key, source.rgb, writeName(source.name)});
        }
        Insert material = into("material", 2);
        for (const Catalogue::Material& source : catalogue.materials)
            material.row({source.number, writeName(source.name)});
        Insert format = into("format", 3);
        for (const Catalogue::Format& source : catalogue.formats)
            format.row({source.number, source.type, writeName(source.name)});
        Insert printerFormat = into("printer_format", 3);
        for (const Catalogue::PrinterFormat& source : catalogue.printerFormats)
            printerFormat.row({source.model.isNull() ? QStringLiteral("") : source.model,
                               source.position, source.format});
    }

    void writeSupplies(const Catalogue& catalogue)
    {
        Insert background = into("background", 3);
        for (qsizetype i = 0; i < catalogue.backgrounds.size(); ++i)
            background.row(
                {rowId(i), catalogue.backgrounds.at(i).file, catalogue.backgrounds.at(i).image});
        Insert supply = into("supply", 14);
        Insert kind = into("supply_kind", 2);
        for (const Catalogue::Supply& source : catalogue.supplies) {
            supply.row({source.sku, source.material, source.format, rowId(source.colour),
                        source.secondColour ? rowId(*source.secondColour) : QVariant(),
                        orNull(source.secondColourWidth), source.width, source.length,
                        orNull(source.labelLength), orNull(source.separatorWidth),
                        source.isLandscape ? 1 : 0,
                        source.background ? rowId(*source.background) : QVariant(),
                        source.multiUpCount, orNull(source.multiUpGap)});
            for (const int number : source.kinds)
                kind.row({number, source.sku});
        }
    }

    void writeRibbons(const Catalogue& catalogue)
    {
        Insert ribbon = into("ribbon", 4);
        Insert panel = into("ribbon_panel", 3);
        Insert number = into("ribbon_number", 2);
        for (const Catalogue::Ribbon& source : catalogue.ribbons) {
            ribbon.row({source.sku, source.type, source.width, source.length});
            for (qsizetype i = 0; i < source.panelColours.size(); ++i)
                panel.row({source.sku, rowId(i), rowId(source.panelColours.at(i))});
            for (const int ribbonNumber : source.numbers)
                number.row({ribbonNumber, source.sku});
        }
        Insert setting = into("print_setting", 7);
        for (const Catalogue::PrintSetting& source : catalogue.settings)
            setting.row({source.ribbonSku, source.panel, source.supplySku, source.heat,
                         source.heatOffset, source.maxSpeed, source.tension});
    }

    const QSqlDatabase& m_database;
    qsizetype m_names = 0;
};

/// A connection that may write, gone with its name at the end of the scope.
class WritingConnection
{
public:
    explicit WritingConnection(const QString& path)
        : m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), path))
    {
        m_database.setDatabaseName(path);
        if (!m_database.open())
            throw Fault(m_database.lastError().databaseText());
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

void putInPlace(const QString& madeFile, const QString& path)
{
    QFile made(madeFile);
    if (!made.open(QIODevice::ReadOnly))
        throw Fault(QStringLiteral("%1: %2").arg(madeFile, made.errorString()));
    QSaveFile target(path); // writes beside the path and renames
    const QByteArray bytes = made.readAll();
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() ||
        !target.commit())
        throw Fault(QStringLiteral("%1: %2").arg(path, target.errorString()));
}

} // namespace

void writeDatabase(const Catalogue& catalogue, const QString& path)
{
    const QTemporaryDir workshop;
    if (!workshop.isValid())
        throw Fault(QStringLiteral("%1: %2").arg(workshop.path(), workshop.errorString()));
    const QString draft = workshop.filePath(QStringLiteral("draft.db"));
    {
        const WritingConnection connection(draft);
        Writer(connection.database()).write(catalogue);
    }
    checkDatabase(draft);
    putInPlace(draft, path);
}
