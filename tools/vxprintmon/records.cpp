// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "records.h"

#include "json_text.h"

#include <QtCore/QMetaProperty>

#include <algorithm>
#include <tuple>

namespace records {

namespace {

/// All members of the record. If one is added to the record, this no longer compiles.
auto everythingOf(const Record& record)
{
    const auto& [printerName, statusEnum, online, remote, nonAdmin, wasActive, ribbon1Percentage,
                 ribbon1ColorHex, ribbon1ColorName, ribbon1Sku, ribbon2Percentage, ribbon2ColorHex,
                 ribbon2ColorName, ribbon2Sku, softwareVersion, supplyPercentage, supplyColorHex,
                 supplyColorName, supplySku, supplyMaterialName, ribbon2Visible] = record;
    return std::tie(printerName, statusEnum, online, remote, nonAdmin, wasActive, ribbon1Percentage,
                    ribbon1ColorHex, ribbon1ColorName, ribbon1Sku, ribbon2Percentage,
                    ribbon2ColorHex, ribbon2ColorName, ribbon2Sku, softwareVersion,
                    supplyPercentage, supplyColorHex, supplyColorName, supplySku,
                    supplyMaterialName, ribbon2Visible);
}

} // namespace

QList<Record> of(const PrinterStatusController& controller)
{
    QList<Record> all;
    const QVariantList entries = controller.getAvailablePrinters();
    all.reserve(entries.size());
    for (const QVariant& entry : entries)
        all.append(entry.value<Record>());
    return all;
}

bool isWatched(const Record& record)
{
    return !record.printerRemote && !record.printerNonAdmin;
}

int watchedPrinters(const PrinterStatusController& controller)
{
    return static_cast<int>(std::ranges::count_if(of(controller), &isWatched));
}

bool areSame(const Record& left, const Record& right)
{
    return everythingOf(left) == everythingOf(right);
}

QStringList JsonTexts::of(const QList<Record>& all)
{
    QStringList texts;
    texts.reserve(all.size());
    for (const Record& record : all) {
        Entry& entry = m_entries[record.printerName];
        if (entry.text.isEmpty() || !areSame(entry.record, record))
            entry = {record, m_textOf(record)};
        texts.append(entry.text);
    }
    return texts;
}

QString json(const Record& record)
{
    const QMetaObject& type = Record::staticMetaObject;
    QList<json_text::Member> members;
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        members.emplaceBack(
            QString::fromLatin1(property.name()),
            json_text::value(QJsonValue::fromVariant(property.readOnGadget(&record))));
    }
    return json_text::object(members);
}

} // namespace records
