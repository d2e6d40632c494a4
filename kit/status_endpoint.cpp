// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_endpoint.h"

#include "catalogue_list.h"
#include "catalogue_texts.h"
#include "change_queue.h"
#include "preflight.h"
#include "printer_readings.h"
#include "status_info.h"

#include <vxlocalelanguages.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
#include <QtCore/QVariantList>

namespace VxKit {

namespace {

/// How much of an unknown name an error repeats: a printer's name is not longer.
constexpr qsizetype longestShown = 478;

QString nameIn(const QJsonObject& reading)
{
    return reading.value(QLatin1String("name")).toString();
}

} // namespace

class StatusEndpoint::Private
{
public:
    Private(StatusEndpoint& endpoint, PrinterReadings* printerReadings)
        : readings(printerReadings)
        , preflight(printerReadings)
        , changes([this](const QString& name) { reportChange(name); }, &endpoint)
        , m_endpoint(endpoint)
    {
        m_background.setMaxThreadCount(1);
        VXLocaleLanguages languages;
        const QString named = readings ? readings->catalogueFile() : QString();
        const QString file = named.isEmpty() ? cataloguePath() : named;
        m_background.start([this, file, languageId = languages.getCurrentLanguageId()] {
            m_catalogue = readCatalogueList(file, languageId);
        });
    }

    const QJsonObject& catalogue()
    {
        m_background.waitForDone();
        return m_catalogue;
    }

    void refuseUnknown(const QString& printer, const QString& argument)
    {
        m_endpoint.refuseCall(
            unknownPrinter,
            QStringLiteral("there is no printer \"%1\"; printers() lists those that there are")
                .arg(printer.left(longestShown)),
            {{QStringLiteral("argument"), argument}});
    }

    const QPointer<PrinterReadings> readings;
    const Preflight preflight;
    ChangeQueue changes;

private:
    void reportChange(const QString& name)
    {
        // With many printers and nobody to tell it to, writing readings would be the only cost.
        static const QMetaMethod signal = QMetaMethod::fromSignal(&StatusEndpoint::printerChanged);
        if (readings && m_endpoint.isSignalConnected(signal))
            Q_EMIT m_endpoint.printerChanged(readings->reading(name).toJson());
    }

    StatusEndpoint& m_endpoint;
    QJsonObject m_catalogue;
    /// Last, so that its destructor waits for the thread that writes the catalogue.
    QThreadPool m_background;
};

StatusEndpoint::StatusEndpoint(PrinterReadings* readings, QObject* parent)
    : VXIPCServer(serverType, parent)
    , d(std::make_unique<Private>(*this, readings))
{
    coalesceSignal(QByteArrayLiteral("printerChanged"), [](const QVariantList& arguments) {
        return nameIn(arguments.value(0).toJsonObject());
    });
    if (!readings)
        return;
    connect(readings, &PrinterReadings::changed, &d->changes, &ChangeQueue::add);
    connect(readings, &PrinterReadings::added, this, [this, readings](const QString& name) {
        d->changes.drop(name);
        Q_EMIT printerAdded(readings->reading(name).toJson());
    });
    connect(readings, &PrinterReadings::gone, this,
            [this, &changes = d->changes](const QString& name) {
                const QPointer<StatusEndpoint> self(this);
                changes.reportNow(name);
                if (self)
                    Q_EMIT printerGone(name);
            });
    connect(readings, &PrinterReadings::renamed, this,
            [this](const QString& oldName, const QString& newName) {
                d->changes.rename(oldName, newName);
                Q_EMIT printerRenamed(oldName, newName);
            });
}

StatusEndpoint::~StatusEndpoint() = default;

QJsonArray StatusEndpoint::printers()
{
    QJsonArray all;
    if (!d->readings)
        return all;
    for (const QList<PrinterReading> readings = d->readings->readings();
         const PrinterReading& reading : readings)
        all.append(reading.toJson());
    return all;
}

QJsonObject StatusEndpoint::printer(const QString& name)
{
    const PrinterReading reading = d->readings ? d->readings->reading(name) : PrinterReading();
    if (!reading.isNull())
        return reading.toJson();
    d->refuseUnknown(name, QStringLiteral("name"));
    return {};
}

QJsonObject StatusEndpoint::statusInfo(int code, const QString& language)
{
    return VxKit::statusInfo(code, language).toJson();
}

QJsonObject StatusEndpoint::supplies()
{
    return d->catalogue();
}

QJsonObject StatusEndpoint::preflight(const QString& printer, const QString& supplySku, int labels,
                                      const QStringList& ribbonSkus)
{
    if (!d->readings || d->readings->reading(printer).isNull()) {
        d->refuseUnknown(printer, QStringLiteral("printer"));
        return {};
    }
    return d->preflight.check(printer, supplySku, labels, ribbonSkus).toJson();
}

} // namespace VxKit
