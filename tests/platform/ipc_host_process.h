// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "patience.h"
#include "start_process.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Services in a process of their own, which ends with this object at the latest.
class HostProcess
{
public:
    /// The test service.
    explicit HostProcess(int serverType)
        : HostProcess(QStringLiteral("ipc_test_host"), {QString::number(serverType)}, 1)
    {}

    /// A program in the folder of this one. Starts it and waits until it has published that many
    /// services.
    HostProcess(const QString& program, const QStringList& arguments, int services)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        startProcess(m_process, QCoreApplication::applicationDirPath() + QLatin1Char('/') + program,
                     arguments);
        for (int i = 0; i < services; ++i) {
            while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
            }
            m_names.append(QString::fromLocal8Bit(m_process.readLine()).trimmed());
        }
    }

    ~HostProcess()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(patience))
            kill();
    }
    Q_DISABLE_COPY_MOVE(HostProcess)

    /// Empty when it could not be started.
    QString serverName(int service = 0) const { return m_names.at(service); }
    qint64 processId() const { return m_process.processId(); }

    /// Ends the process in the middle of its work.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }

private:
    QProcess m_process;
    QStringList m_names;
};
