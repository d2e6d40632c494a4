// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "metrics_textfile.h"

#include "failure.h"
#include "file_replacement.h"

#include <QtCore/QFile>

#include <utility>

MetricsTextfile::MetricsTextfile(const QString& path, std::function<QByteArray()> makeText,
                                 std::chrono::milliseconds interval, QObject* parent)
    : QObject(parent)
    , m_path(path)
    , m_makeText(std::move(makeText))
{
    m_clock.setInterval(interval);
    connect(&m_clock, &QTimer::timeout, this, &MetricsTextfile::write);
}

MetricsTextfile::~MetricsTextfile()
{
    stop();
}

void MetricsTextfile::start()
{
    write();
    m_clock.start();
}

void MetricsTextfile::stop()
{
    m_clock.stop();
    if (m_isWritten)
        QFile::remove(m_path);
    m_isWritten = false;
}

void MetricsTextfile::write()
{
    try {
        replaceFile(m_path, m_makeText());
    } catch (const Failure& failure) {
        if (!std::exchange(m_hasFailed, true))
            Q_EMIT writingFailed(failure.message());
        return;
    }
    m_isWritten = true;
    if (std::exchange(m_hasFailed, false))
        Q_EMIT writingResumed();
}
