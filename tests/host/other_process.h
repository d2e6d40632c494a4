// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "patience.h"
#include "start_process.h"

#include <vxipcserver.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QProcess>
#include <QtTest/QtTest>

/// What another process is told when it calls an endpoint of this one. The process is the tool for
/// it; this one's event loop runs meanwhile, as a host's does.
///
/// Undefined when the call fails; the reason is in the test's output.
inline QJsonValue askFromOutside(const VXIPCServer& endpoint, const QString& method,
                                 const QStringList& arguments)
{
    // Published by the event loop.
    if (!QTest::qWaitFor([&endpoint] { return !endpoint.serverName().isEmpty(); }, patience))
        return QJsonValue::Undefined;
    QProcess process;
    startProcess(process, QStringLiteral(VX_VXIPC),
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
