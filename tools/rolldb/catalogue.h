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

/// A name in each language that it was given in.
struct Name
{
    QString english;
    QMap<int, QString> translations; ///< By language number, without English.
};

/// What a supply database is made from: everything checked, references resolved to places in the
/// lists.
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

/// The bytes of a file of the catalogue's directory, by its name in it; nothing when there is none.
using ReadFile = std::function<std::optional<QByteArray>(const QString& name)>;

/// Reads a catalogue from its files; throws a Fault for the first thing wrong in them.
Catalogue readCatalogue(const ReadFile& readFile);

/// The same from a directory.
Catalogue readCatalogueDirectory(const QString& directory);

/// The number of a language by its tag ("de"); nothing for a language that has no number.
std::optional<int> languageNumber(const QString& tag);
