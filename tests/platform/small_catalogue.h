// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <catalogue.h>
#include <catalogue_writer.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

/// The files of a catalogue that is small enough to know by heart. Tests change parts of it.
struct SmallCatalogue
{
    QHash<QString, QByteArray> files{
        {QStringLiteral("colours.csv"), "colour,rgb,en,de,ja\n"
                                        "white,#ffffff,White,Weiß,白\n"
                                        "red,#C8102E,Red,Rot,赤\n"
                                        "black,#000000,Black,Schwarz,\n"
                                        "teal,#008080,Teal,,\n"},
        {QStringLiteral("materials.csv"), "material,en,de\n"
                                          "7,Vinyl,Vinylfolie\n"
                                          "0,Paper,Papier\n"},
        {QStringLiteral("formats.csv"), "format,type,en,de\n"
                                        "1,continuous,Tape,Band\n"
                                        "2,die-cut,Labels,Etiketten\n"},
        {QStringLiteral("supplies.csv"),
         "sku,kinds,material,format,colour,second_colour,second_colour_width,width,length,"
         "label_length,separator_width,landscape,background,multi_up_count,multi_up_gap\n"
         "TAPE-1,100042 100043,7,1,white,red,1.25,4,6000,,,yes,dot.png,1,\n"
         "LABEL-1,100050,0,2,teal,,,0.9,1500,1.5,0.125,no,,3,0.1\n"
         "SPARE-1,,0,2,black,,,2,300,1,0,yes,,1,\n"},
        {QStringLiteral("ribbons.csv"), "sku,numbers,type,width,length,panels\n"
                                        "RIBBON-K,2001 2002,wax,4.33,4725,black\n"
                                        "RIBBON-RK,2003,resin,4.33,2360,red black\n"
                                        "RIBBON-T,,resin,2.4,4725,teal\n"},
        {QStringLiteral("print_settings.csv"),
         "ribbon,panel,supply,heat,heat_offset,max_speed,tension\n"
         "RIBBON-K,1,TAPE-1,52,0,4,30\n"
         "RIBBON-RK,1,TAPE-1,58,2,3,32\n"
         "RIBBON-RK,2,TAPE-1,55,1,4,33\n"
         "RIBBON-K,1,LABEL-1,44,0,8,26\n"},
        {QStringLiteral("printer_formats.csv"), "model,format\n"
                                                "Alder,2\n"
                                                "AlderMax,2\n"
                                                "AlderMax,1\n"
                                                "*,1\n"
                                                "*,2\n"},
        {QStringLiteral("backgrounds/dot.png"),
         QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR42mP4//8/"
                                "AAX+Av4zEpUUAAAAAElFTkSuQmCC")},
    };

    Catalogue read() const
    {
        return readCatalogue([this](const QString& name) -> std::optional<QByteArray> {
            const auto found = files.constFind(name);
            if (found == files.constEnd())
                return std::nullopt;
            return *found;
        });
    }
    void write(const QString& path) const { writeDatabase(read(), path); }

    /// Replaces a text that the file contains.
    void replace(const char* file, const QByteArray& before, const QByteArray& after)
    {
        QByteArray& text = files[QString::fromLatin1(file)];
        Q_ASSERT(text.count(before) > 0);
        text.replace(before, after);
    }
};
