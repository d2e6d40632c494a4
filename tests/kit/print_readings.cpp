// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Prints readings as JSON, one a line, for test_reading_schema.py: of no value at all, of extreme
// values, with hostile texts, and random ones.
#include "printer_level.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTimeZone>

#include <cstdio>
#include <limits>

using VxKit::CatalogueItem;
using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;
using VXPrinting::PrinterType;

namespace {

const QList<QString> texts{
    QStringLiteral("Shipping"),
    QStringLiteral("\"quoted\" \\ back/slash"),
    QString::fromUtf8("\x01\x02\x1f\x7f control\r\n\t"),
    QString::fromUtf8("Versandlager \xf0\x9f\x96\xa8 \xe6\x9d\xb1\xe4\xba\xac"),
    QString(QChar(0xD800)) + QStringLiteral(" unpaired"),
    QString(QChar(0x202E)) + QStringLiteral("desrever"),
    QString(4096, QLatin1Char('x')),
    QStringLiteral("null"),
    QStringLiteral(" "),
};

class RandomReadings
{
public:
    PrinterReading next()
    {
        PrinterReading reading;
        reading.setName(oneOf(texts));
        reading.setModel(
            oneOf(QList{PrinterType::Alder, PrinterType::AlderMax, PrinterType::BirchMax,
                        PrinterType::CedarMax, PrinterType::Generic, PrinterType::Unknown}));
        if (coin())
            reading.setDriver(oneOf(texts));
        if (coin())
            reading.setPort(oneOf(texts));
        if (coin())
            reading.setSerialNumber(oneOf(texts));
        if (coin())
            reading.setGone(time());
        const auto watching = QMetaEnum::fromType<PrinterReading::Watching>();
        reading.setWatching(PrinterReading::Watching(
            watching.value(int(m_random.bounded(quint32(watching.keyCount()))))));
        reading.setStatusCode(oneOf(QList{0, 1, 254, 255, 257, -1, std::numeric_limits<int>::min(),
                                          std::numeric_limits<int>::max()}));
        reading.setOnline(coin());
        reading.setActive(coin());
        if (coin())
            reading.setFirmwareVersion(oneOf(texts));
        if (coin())
            reading.setBootVersion(oneOf(texts));
        reading.setUpdateProgress(word());
        reading.setUpdateError(word());
        if (coin())
            reading.setEthernetConfig(oneOf(texts));
        if (coin())
            reading.setLastReport(time());
        for (const Slot slot : reading.slotList())
            setSlot(reading, slot);
        return reading;
    }

private:
    void setSlot(PrinterReading& reading, Slot slot)
    {
        const Level own = level(slot, reading.model());
        reading.setLevel(slot, own);
        const bool isLoaded =
            own.state == Level::State::Loaded || own.state == Level::State::NotInCatalogue;
        if (isLoaded && coin())
            reading.setEstimatedSecondsRemaining(
                slot,
                VxKit::RemainingTime{m_random.bounded(1e3), 1e3, 1e3 + m_random.bounded(1e8)});
    }
    bool coin() { return m_random.bounded(2) == 1; }
    template <typename Value>
    Value oneOf(const QList<Value>& values)
    {
        return values.at(m_random.bounded(int(values.size())));
    }
    std::optional<quint32> word()
    {
        return coin() ? std::nullopt
                      : std::optional(oneOf(
                            QList<quint32>{0, 1, 99, 100, 30480, 152400, 0x80000000, 0xFFFFFFFF}));
    }
    QDateTime time()
    {
        const QDateTime utc =
            QDateTime::fromMSecsSinceEpoch(qint64(m_random.bounded(4e12)), Qt::UTC);
        switch (m_random.bounded(4)) {
        case 0:
            return utc;
        case 1:
            return utc.toLocalTime();
        case 2:
            return utc.toTimeZone(QTimeZone(-12600));
        default:
            return utc.toOffsetFromUtc(20717); // not a whole number of minutes
        }
    }
    Level level(Slot slot, PrinterType model)
    {
        static const QList<QString> supplies{QString(), QStringLiteral("-1"),
                                             QString(20, QLatin1Char('0')),
                                             QStringLiteral("000000641000030000A7"), texts.at(2)};
        static const QList<QString> ribbons{QString(), QStringLiteral("0"), QStringLiteral("2001"),
                                            QStringLiteral("4294967295")};
        VxKit::SlotValues values;
        values.identifier = oneOf(slot == Slot::Supply ? supplies : ribbons);
        values.mileage = word();
        if (coin()) {
            CatalogueItem item;
            item.sku = oneOf(texts);
            item.name = oneOf(texts);
            item.material = coin() ? oneOf(texts) : QString();
            item.colorName = coin() ? oneOf(texts) : QString();
            if (coin())
                item.colors = QStringList(int(m_random.bounded(65)), QStringLiteral("#00c0ff"));
            item.length = oneOf(QList<double>{0.0, 0.5, 1200.0, 4725.0, 100.0 / 3.0});
            item.pitch = oneOf(QList<double>{0.0, 1.625, 1e-9, 5.75});
            item.labelsSideBySide = oneOf(QList<int>{1, 2, std::numeric_limits<int>::max()});
            values.item = std::make_shared<const CatalogueItem>(item);
        }
        return levelOf(slot, model, values);
    }

    QRandomGenerator m_random{20260131};
};

bool print(const PrinterReading& reading)
{
    const QJsonObject json = reading.toJson();
    QString error;
    const auto again = PrinterReading::fromJson(json, &error);
    if (!again || !(*again == reading) || again->toJson() != json) {
        std::fprintf(stderr, "a reading is not what it was written from: %s\n%s\n",
                     qPrintable(error), QJsonDocument(json).toJson().constData());
        return false;
    }
    std::printf("%s\n", QJsonDocument(json).toJson(QJsonDocument::Compact).constData());
    return true;
}

} // namespace

int main()
{
    PrinterReading nothing;
    nothing.setName(QStringLiteral("nothing known"));
    bool isRight = print(nothing);
    RandomReadings random;
    for (int count = 0; count < 5000; ++count)
        isRight = print(random.next()) && isRight;
    return isRight ? 0 : 1;
}
