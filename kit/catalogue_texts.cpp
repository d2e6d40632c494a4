// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_texts.h"

#include <QtCore/QCoreApplication>

namespace VxKit {

QString cataloguePath()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/roll.db");
}

QStringList hexColors(const QList<int>& colors)
{
    QStringList texts;
    for (const int rgb : colors) {
        if (rgb >= 0)
            texts.append(QStringLiteral("#%1").arg(static_cast<uint>(rgb) & 0xFFFFFFU, 6, 16,
                                                   QLatin1Char('0')));
    }
    return texts;
}

QString nameOf(QStringList colorNames, const QString& material)
{
    colorNames.removeAll(QString());
    const QString colors = colorNames.join(QLatin1Char('/'));
    if (colors.isEmpty() || material.isEmpty())
        return colors + material;
    //: The name of a supply or ribbon for people. %1 is its colour or colours, such as "Yellow" or
    //: "Black/Red", %2 its material, such as "Vinyl".
    return QCoreApplication::translate("VxKit::SupplyCatalogue", "%1 %2").arg(colors, material);
}

} // namespace VxKit
