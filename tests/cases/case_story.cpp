// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_story.h"

#include "printer_status_thread.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>

#include <algorithm>

using virtualwindows::Machine;

CaseStory::CaseStory(const VxKit::CaseRecorderOptions& options, const QString& catalogue)
    : m_fileName(options.fileName)
{
    Machine::instance().driveTime();
    m_clock.start();
    m_moments.append({0, 0});
    m_recorder = std::make_unique<VxKit::CaseRecorder>(options);
    m_controller = std::make_unique<PrinterStatusController>();
    m_controller->getSupplyIdController()->setCatalogueFile(catalogue);
    m_recorder->setController(m_controller.get());
    m_isRecording = m_recorder->errorString().isEmpty();
}

bool CaseStory::settle()
{
    using namespace std::chrono_literals;
    if (!m_isRecording)
        return false;
    const auto isAtRest = [this] {
        int running = 0;
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& record : records) {
            const auto* const thread =
                m_controller->statusThread(record.value<PrinterStatusInformation>().printerName);
            running += thread && thread->isRunning() ? 1 : 0;
        }
        // One more is the thread with which the recorder looks for itself.
        return Machine::instance().waitForWaitingThreads(running + 1, 20ms);
    };
    const auto end = std::chrono::steady_clock::now() + 1min;
    while (!isAtRest()) {
        if (std::chrono::steady_clock::now() > end) {
            m_hasComeToRest = false;
            break;
        }
    }
    return m_hasComeToRest;
}

void CaseStory::deliver()
{
    QCoreApplication::sendPostedEvents();
}

void CaseStory::at(std::chrono::milliseconds moment, const std::function<void()>& happen)
{
    settle();
    deliver();
    m_recorder->flush();
    begin(moment);
    Machine::instance().advance(moment - m_now);
    m_now = moment;
    settle();
    deliver();
    happen();
    settle();
    deliver();
    m_recorder->flush();
}

QString CaseStory::end()
{
    settle();
    deliver();
    m_recorder->stop();
    m_controller.reset();
    const QString error = m_recorder->errorString();
    m_recorder.reset();
    return m_hasComeToRest ? error : QStringLiteral("a monitoring thread does not come to rest");
}

void CaseStory::begin(std::chrono::milliseconds moment)
{
    // Lines have milliseconds, so what belongs to different moments must be that far apart.
    QThread::msleep(3);
    m_moments.append({static_cast<double>(m_clock.nsecsElapsed()) / 1e9,
                      static_cast<double>(moment.count()) / 1000});
    QThread::msleep(3);
}

double CaseStory::toldTime(double recorded) const
{
    const auto next = std::ranges::upper_bound(m_moments, recorded, {}, &Moment::recorded);
    const Moment& moment = next == m_moments.begin() ? *next : *std::prev(next);
    return moment.told + std::max(0.0, recorded - moment.recorded);
}

bool CaseStory::tellStoryTimes() const
{
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    static const QRegularExpression pattern(QStringLiteral(R"("t":([0-9.]+))"));
    QByteArray told;
    while (!file.atEnd()) {
        QString line = QString::fromUtf8(file.readLine());
        if (const QRegularExpressionMatch match = pattern.match(line); match.hasMatch())
            line.replace(match.capturedStart(1), match.capturedLength(1),
                         QString::number(toldTime(match.captured(1).toDouble()), 'f', 3));
        told += line.toUtf8();
    }
    file.close();
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(told) == told.size() && file.flush();
}
