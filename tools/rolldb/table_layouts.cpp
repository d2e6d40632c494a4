// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "table_layouts.h"

// Unknown columns are refused: nobody would read them.
const TableLayout table_layouts::colours{
    0, "colours.csv", {QStringLiteral("colour"), QStringLiteral("rgb")}, true};
const TableLayout table_layouts::materials{1, "materials.csv", {QStringLiteral("material")}, true};
const TableLayout table_layouts::formats{
    2, "formats.csv", {QStringLiteral("format"), QStringLiteral("type")}, true};
const TableLayout table_layouts::supplies{
    3,
    "supplies.csv",
    {QStringLiteral("sku"), QStringLiteral("kinds"), QStringLiteral("material"),
     QStringLiteral("format"), QStringLiteral("colour"), QStringLiteral("second_colour"),
     QStringLiteral("second_colour_width"), QStringLiteral("width"), QStringLiteral("length"),
     QStringLiteral("label_length"), QStringLiteral("separator_width"), QStringLiteral("landscape"),
     QStringLiteral("background"), QStringLiteral("multi_up_count"),
     QStringLiteral("multi_up_gap")},
    false};
const TableLayout table_layouts::ribbons{4,
                                         "ribbons.csv",
                                         {QStringLiteral("sku"), QStringLiteral("numbers"),
                                          QStringLiteral("type"), QStringLiteral("width"),
                                          QStringLiteral("length"), QStringLiteral("panels")},
                                         false};
const TableLayout table_layouts::settings{5,
                                          "print_settings.csv",
                                          {QStringLiteral("ribbon"), QStringLiteral("panel"),
                                           QStringLiteral("supply"), QStringLiteral("heat"),
                                           QStringLiteral("heat_offset"),
                                           QStringLiteral("max_speed"), QStringLiteral("tension")},
                                          false};
const TableLayout table_layouts::printerFormats{
    6, "printer_formats.csv", {QStringLiteral("model"), QStringLiteral("format")}, false};

const QString table_layouts::englishTag = QStringLiteral("en");
const QString table_layouts::anyModel = QStringLiteral("*");
const QString table_layouts::backgroundFolder = QStringLiteral("backgrounds/");

QString TableLayout::tabbedFileName() const
{
    return fileName().chopped(3) + QStringLiteral("tsv");
}
