// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "patience.h"
#include "start_process.h"
#include "test_file.h"

#include <vxipcserver.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtTest/QtTest>

/// Calls an endpoint of this process from another process and returns the result. The other process
/// runs vxipc; meanwhile the event loop of this one runs, as a host's does.
///
/// Undefined if the call fails; the reason is printed.
inline QJsonValue callFromOtherProcess(const VXIPCServer& endpoint, const QString& method,
                                       const QStringList& arguments)
{
    // The event loop publishes the endpoint.
    if (!QTest::qWaitFor([&endpoint] { return !endpoint.serverName().isEmpty(); }, patience))
        return QJsonValue::Undefined;
    QProcess process;
    startProcess(process, testFile(VX_VXIPC),
                 QStringList{QStringLiteral("--json"), QStringLiteral("call"),
                             endpoint.serverName(), method, QStringLiteral("--")} +
                     arguments);
    const bool ended =
        QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, patience);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qWarning("%s: %s%s", qPrintable(method), qPrintable(process.errorString()),
                 process.readAllStandardError().constData());
        return QJsonValue::Undefined;
    }
    const QByteArray answer = process.readAllStandardOutput().trimmed();
    return QJsonDocument::fromJson('[' + answer + ']').array().at(0);
}
