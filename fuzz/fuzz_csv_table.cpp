// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The input is a table as a spreadsheet may export it, read as a file .csv and as a file .tsv. All
// mistakes are reported, each in one line that names the file, and all fields of the other rows can
// be read.
#include "one_line.h"
#include "require.h"

#include <csv_table.h>
#include <failure.h>
#include <shown_text.h>

#include <QtCore/QSet>

#include <cstddef>
#include <cstdint>

namespace {

void checkRows(const CsvTable& table, const QString& file)
{
    for (qsizetype row = 0; row < table.rowCount(); ++row) {
        bool hasText = false;
        for (const QString& column : table.columns()) {
            const CsvField field = table.field(row, column);
            require(field.text == field.text.trimmed(), "a field has no spaces around it");
            require(!field.text.contains(QChar::Null), "a field has no NUL");
            require(field.place().startsWith(file), "a field names its file");
            hasText = hasText || !field.text.isEmpty();
        }
        // The same name twice hides the second column.
        require(hasText || QSet<QString>(table.columns().begin(), table.columns().end()).size() <
                               table.columns().size(),
                "a row has text");
    }
}

void check(const QString& file, const QByteArray& bytes)
{
    QStringList mistakes;
    int line = 0;
    const CsvTable table = CsvTable::parse(file, bytes, [&](const Mistake& mistake) {
        require(mistake.message().startsWith(file), "a mistake names its file");
        require(isOneLine(shownAsMessage(mistake.message())), "a mistake is one line");
        require(mistake.line() >= line, "mistakes are in the order of their lines");
        line = mistake.line();
        mistakes.append(mistake.message());
    });
    checkRows(table, file);
    require(table.isComplete() || !mistakes.isEmpty(), "no row is left out without a reason");
    require(!table.columns().isEmpty() || !mistakes.isEmpty(), "a table has columns");

    QString first;
    try {
        CsvTable::parse(file, bytes);
    } catch (const Failure& failure) {
        first = failure.message();
    }
    require(first == mistakes.value(0), "reading ends with the first mistake");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check(QStringLiteral("table.csv"), bytes);
    check(QStringLiteral("table.tsv"), bytes);
    return 0;
}
