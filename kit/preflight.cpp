// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "preflight.h"

#include "preflight_check.h"
#include "printer_readings.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace VxKit {

using Verdict = PreflightResult::Verdict;
using Answer = PreflightResult::Answer;
using Kind = PreflightFinding::Kind;

class Preflight::Private
{
public:
    explicit Private(const PrinterReadings* printerReadings)
        : readings(printerReadings)
    {
        if (!readings)
            return;
        const auto remember = [this](const QString& name) {
            rememberPairs(readings->reading(name));
        };
        QObject::connect(readings, &PrinterReadings::added, &m_context, remember);
        QObject::connect(readings, &PrinterReadings::changed, &m_context, remember);
        for (const QList<PrinterReading> all = readings->readings();
             const PrinterReading& reading : all)
            rememberPairs(reading);
    }

    const QPointer<const PrinterReadings> readings;

private:
    /// Asks the catalogue now about what is loaded together, so that nobody has to wait for it.
    void rememberPairs(const PrinterReading& reading) const
    {
        const QString supply = reading.level(Slot::Supply).sku;
        for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
            const QString ribbon = reading.level(slot).sku;
            if (!supply.isEmpty() && !ribbon.isEmpty())
                readings->ribbonSuits(ribbon, supply);
        }
    }

    QObject m_context;
};

Verdict PreflightResult::verdict() const
{
    if (findings.isEmpty())
        return Verdict::Ready;
    switch (findings.first().kind) {
    case Kind::PrinterNotReady:
        return Verdict::PrinterNotReady;
    case Kind::WrongSupply:
        return Verdict::WrongSupply;
    case Kind::WrongRibbon:
        return Verdict::WrongRibbon;
    case Kind::NotEnough:
        return Verdict::NotEnough;
    case Kind::NotKnown:
        break;
    }
    return Verdict::NotKnown;
}

Answer PreflightResult::answer() const
{
    switch (verdict()) {
    case Verdict::Ready:
        return Answer::Yes;
    case Verdict::NotKnown:
        return Answer::NotKnown;
    default:
        return Answer::No;
    }
}

Preflight::Preflight(const PrinterReadings* readings)
    : d(std::make_unique<Private>(readings))
{}

Preflight::~Preflight() = default;

PreflightResult Preflight::check(const QString& printer, const QString& supplySku, int labels,
                                 const QStringList& ribbonSkus) const
{
    PreflightResult result{printer, supplySku, labels, ribbonSkus};
    const PrinterReadings* const readings = d->readings;
    if (!readings) {
        checkJob(result, {}, {});
        return result;
    }
    checkJob(result, readings->reading(printer),
             [readings](const QString& ribbon, const QString& supply) {
                 return readings->ribbonSuits(ribbon, supply);
             });
    return result;
}

} // namespace VxKit
