// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// A table of a catalogue.
struct TableLayout
{
    int number; ///< in the order in which the tables are read and their mistakes are reported
    const char* file;
    QStringList columns; ///< besides the names
    bool hasNames;       ///< whether there is a column for each language

    QString fileName() const { return QString::fromLatin1(file); }
    /// The file that a catalogue may have in its place, with tabs between the fields.
    QString tabbedFileName() const;
};

namespace table_layouts {

extern const TableLayout colours;
extern const TableLayout materials;
extern const TableLayout formats;
extern const TableLayout supplies;
extern const TableLayout ribbons;
extern const TableLayout settings;
extern const TableLayout printerFormats;

/// The tag of the language that every name has.
extern const QString englishTag;
/// Stands for all printers whose model has no list of its own.
extern const QString anyModel;
/// The folder of the pictures, with a slash.
extern const QString backgroundFolder;

} // namespace table_layouts
