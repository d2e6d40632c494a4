// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "site_printers.h"

#include <QtCore/QDebug>

#include <memory>

namespace {

/// The part of the source that lives on its thread.
class SiteReader : public QObject
{
public:
    SiteReader(SitePrinters& source, const Site& site)
        : m_source(source)
        , m_site(site)
    {}

    void begin()
    {
        m_readings = m_site.open();
        connect(m_readings.get(), &SiteSource::changed, &m_source, &ViewSource::changed);
        connect(m_readings.get(), &SiteSource::removed, &m_source, &ViewSource::removed);
        connect(m_readings.get(), &SiteSource::happened, &m_source, &ViewSource::happened);
        connect(m_readings.get(), &SiteSource::listed, &m_source, &ViewSource::listed);
        connect(m_readings.get(), &SiteSource::stateChanged, &m_source,
                &ViewSource::siteStateChanged);
        connect(m_readings.get(), &SiteSource::warned, this,
                [](const QString& line) { qWarning().noquote() << line; });
        m_readings->start();
    }
    /// What is destroyed here leaves objects to be deleted by the thread's event loop, so that this
    /// is called while it runs.
    void end() { m_readings.reset(); }

private:
    SitePrinters& m_source;
    Site m_site;
    std::unique_ptr<SiteSource> m_readings;
};

} // namespace

SitePrinters::SitePrinters(const Site& site, QObject* parent)
    : ViewSource(parent)
{
    qRegisterMetaType<QList<VxKit::PrinterReading>>();
    qRegisterMetaType<QList<VxKit::PrinterEvent>>();
    qRegisterMetaType<SiteState>();
    m_thread.setObjectName(QStringLiteral("site"));
    auto* const reader = new SiteReader(*this, site);
    reader->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, reader, &SiteReader::begin);
    connect(&m_thread, &QThread::finished, reader, &QObject::deleteLater);
    m_reader = reader;
}

SitePrinters::~SitePrinters()
{
    if (!m_thread.isRunning()) {
        delete m_reader;
        return;
    }
    QMetaObject::invokeMethod(m_reader, [this] {
        static_cast<SiteReader*>(m_reader)->end();
        m_thread.quit();
    });
    m_thread.wait();
}

void SitePrinters::start()
{
    m_thread.start();
}
