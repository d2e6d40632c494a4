// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxipcserver.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTimer>

#include <cstdio>
#include <initializer_list>
#include <thread>
#include <vector>

/// The rest of a process that publishes services for a test: prints the name of each, a line for
/// each, and serves them until the standard input ends or something quits the application.
inline int serveUntilInputEnds(std::initializer_list<const VXIPCServer*> services)
{
    // Published when the event loop runs, and in this order.
    QTimer::singleShot(0, qApp, [names = std::vector(services)] {
        for (const VXIPCServer* service : names)
            std::printf("%s\n", qPrintable(service->serverName()));
        std::fflush(stdout);
    });
    // A test that dies closes its end of the pipe, which must not leave this process behind.
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
