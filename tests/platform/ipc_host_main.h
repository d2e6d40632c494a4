// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxipcserver.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <cstdio>
#include <functional>
#include <initializer_list>
#include <thread>
#include <vector>

/// The rest of a process that serves others: prints the names that it serves under, a line for
/// each, and serves until the standard input ends or something quits the application. `names` is
/// called from the event loop, when services have been published.
inline int serveUntilInputEnds(std::function<QStringList()> names)
{
    QTimer::singleShot(0, qApp, [names = std::move(names)] {
        for (const QStringList all = names(); const QString& name : all)
            std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
    });
    // When the process that started this one dies, its end of the pipe is closed.
    std::thread([application = qApp] {
        QFile input;
        if (input.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            while (!input.read(1).isEmpty()) {
            }
        }
        QMetaObject::invokeMethod(application, &QCoreApplication::quit, Qt::QueuedConnection);
    }).detach();
    return QCoreApplication::exec();
}

/// The same with the names of services, in this order.
inline int serveUntilInputEnds(std::initializer_list<const VXIPCServer*> services)
{
    return serveUntilInputEnds([all = std::vector(services)] {
        QStringList names;
        for (const VXIPCServer* service : all)
            names.append(service->serverName());
        return names;
    });
}
