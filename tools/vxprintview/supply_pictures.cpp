// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supply_pictures.h"

#include <vxsupplydatabase.h>

SupplyPictures::SupplyPictures(const QString& catalogueFile)
    : m_catalogueFile(catalogueFile)
    , m_database(std::make_shared<VXSupplyDatabase>())
{}

QByteArray SupplyPictures::operator()(const QString& sku) const
{
    // Each time, because a catalogue that was replaced is noticed by this.
    m_database->setup(m_catalogueFile, QStringLiteral("pictures of the window"));
    return m_database->supplyBackgroundImage(sku);
}
