// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The test service in a process of its own, which ends with this object at the latest.
class HostProcess
{
public:
    /// Starts and waits until the service is published.
    explicit HostProcess(int serverType)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ipc_test_host"),
                        {QString::number(serverType)});
        while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
        }
        m_name = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }

    ~HostProcess()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished())
            kill();
    }
    Q_DISABLE_COPY_MOVE(HostProcess)

    /// Empty when it could not be started.
    QString serverName() const { return m_name; }
    qint64 processId() const { return m_process.processId(); }

    /// Ends it in the middle of whatever it is doing.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QString m_name;
};
