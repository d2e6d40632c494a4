// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <functional>
#include <optional>

/// A name in English and in the languages that it is translated into.
struct Name
{
    QString english;
    QMap<int, QString> translations; ///< By language number, without English.

    /// The name in a language; in English if there is no translation.
    QString in(int language) const { return translations.value(language, english); }
    bool operator==(const Name&) const = default;
};

/// The content of a supply database. All values are checked, and references are resolved to indices
/// into the lists.
struct Catalogue
{
    struct Colour
    {
        QString key;
        int rgb;
        Name name;
        bool operator==(const Colour&) const = default;
    };
    struct Material
    {
        int number;
        Name name;
        bool operator==(const Material&) const = default;
    };
    struct Format
    {
        int number;
        QString type;
        Name name;
        bool operator==(const Format&) const = default;
    };
    struct Background
    {
        QString file;
        QByteArray image;
        bool operator==(const Background&) const = default;
    };
    struct Supply
    {
        QString sku;
        int material;
        int format;
        qsizetype colour;
        std::optional<qsizetype> secondColour;
        std::optional<double> secondColourWidth;
        double width;
        double length;
        std::optional<double> labelLength;
        std::optional<double> separatorWidth;
        bool isLandscape;
        std::optional<qsizetype> background;
        int multiUpCount;
        std::optional<double> multiUpGap;
        QList<int> kinds;
        bool operator==(const Supply&) const = default;
    };
    struct Ribbon
    {
        QString sku;
        QString type;
        double width;
        double length;
        QList<qsizetype> panelColours;
        QList<int> numbers;
        bool operator==(const Ribbon&) const = default;
    };
    struct PrintSetting
    {
        QString ribbonSku;
        int panel;
        QString supplySku;
        int heat;
        int heatOffset;
        int maxSpeed;
        int tension;
        bool operator==(const PrintSetting&) const = default;
    };
    struct PrinterFormat
    {
        QString model; ///< Empty for printers of any other model.
        int position;
        int format;
        bool operator==(const PrinterFormat&) const = default;
    };

    QMap<int, QString> languages; ///< Language tags by language number.
    QList<Colour> colours;
    QList<Material> materials;
    QList<Format> formats;
    QList<Background> backgrounds;
    QList<Supply> supplies;
    QList<Ribbon> ribbons;
    QList<PrintSetting> settings;
    QList<PrinterFormat> printerFormats;

    bool operator==(const Catalogue&) const = default;
};

/// The same catalogue with its lists in the order of a database, which does not know in which order
/// the rows of most tables were: by their keys, except colours. Two catalogues are the same if
/// their ordered ones are equal.
Catalogue ordered(Catalogue catalogue);

/// Returns the content of a file in the catalogue's directory, or nothing if there is no such file.
using ReadFile = std::function<std::optional<QByteArray>(const QString& name)>;

/// Reads a catalogue from its files. Throws a Failure with all mistakes in them, in the order of
/// the files, lines and columns.
///
/// Mistakes that may only follow from others are not reported: a reference to a row that is missing
/// when another row of that table could not be read, or a size that depends on one that is wrong.
Catalogue readCatalogue(const ReadFile& readFile);

/// Reads a catalogue from a directory.
Catalogue readCatalogueDirectory(const QString& directory);

/// The number of the language with a tag such as "de"; nothing if the language has no number.
std::optional<int> languageNumber(const QString& tag);
