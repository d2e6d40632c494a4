// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The input is a table as a spreadsheet may export it. Either it is refused in one line that names
// the file, or all of its fields can be read.
#include "one_line.h"
#include "require.h"

#include <csv_table.h>
#include <failure.h>
#include <shown_text.h>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString file = QStringLiteral("table.csv");
    try {
        const CsvTable table = CsvTable::parse(
            file, QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
        require(!table.columns().isEmpty(), "a table has columns");
        for (qsizetype row = 0; row < table.rowCount(); ++row) {
            bool hasText = false;
            for (const QString& column : table.columns()) {
                const CsvField field = table.field(row, column);
                require(field.text == field.text.trimmed(), "a field has no spaces around it");
                require(!field.text.contains(QChar::Null), "a field has no NUL");
                require(field.place().startsWith(file), "a field names its file");
                hasText = hasText || !field.text.isEmpty();
            }
            require(hasText, "a row has text");
        }
    } catch (const Failure& failure) {
        require(failure.message().startsWith(file), "a failure names its file");
        require(isOneLine(shownAsMessage(failure.message())), "a failure is one line");
    }
    return 0;
}
