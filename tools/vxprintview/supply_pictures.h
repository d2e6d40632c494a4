// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>

class VXSupplyDatabase;

/// The pictures of supplies in a catalogue, as `VxKit::PrinterDetails` asks for them. Copies share
/// the opened catalogue. All calls must come from one thread.
class SupplyPictures
{
public:
    explicit SupplyPictures(const QString& catalogueFile);

    /// The content of an image file; empty for what the catalogue has no picture of.
    QByteArray operator()(const QString& sku) const;

private:
    QString m_catalogueFile;
    std::shared_ptr<VXSupplyDatabase> m_database;
};
