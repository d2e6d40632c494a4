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
    };
    struct Material
    {
        int number;
        Name name;
    };
    struct Format
    {
        int number;
        QString type;
        Name name;
    };
    struct Background
    {
        QString file;
        QByteArray image;
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
    };
    struct Ribbon
    {
        QString sku;
        QString type;
        double width;
        double length;
        QList<qsizetype> panelColours;
        QList<int> numbers;
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
    };
    struct PrinterFormat
    {
        QString model; ///< Empty for printers of any other model.
        int position;
        int format;
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
};

/// Returns the content of a file in the catalogue's directory, or nothing if there is no such file.
using ReadFile = std::function<std::optional<QByteArray>(const QString& name)>;

/// Reads a catalogue from its files. Throws a Failure for the first error in them.
Catalogue readCatalogue(const ReadFile& readFile);

/// Reads a catalogue from a directory.
Catalogue readCatalogueDirectory(const QString& directory);

/// The number of the language with a tag such as "de"; nothing if the language has no number.
std::optional<int> languageNumber(const QString& tag);
