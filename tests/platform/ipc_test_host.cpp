// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process that publishes the test service, for tests that need a second one.
//
//     ipc_test_host SERVER_TYPE
//
// prints the name that the service is published under and serves it until its `quit` is called or
// its standard input ends.
#include "ipc_test_service.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTimer>

#include <cstdio>
#include <thread>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    bool ok = false;
    const int serverType = QString::fromLocal8Bit(argc == 2 ? argv[1] : "").toInt(&ok);
    if (!ok) {
        std::fputs("ipc_test_host: expected a server type\n", stderr);
        return 2;
    }
    TestService service(serverType);
    QTimer::singleShot(0, &service, [&service] {
        std::printf("%s\n", qPrintable(service.serverName()));
        std::fflush(stdout);
    });
    // A test that dies closes its end of the pipe, which must not leave this process behind.
    std::thread([&app] {
        QFile input;
        if (input.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            while (!input.read(1).isEmpty()) {
            }
        }
        QMetaObject::invokeMethod(&app, &QCoreApplication::quit, Qt::QueuedConnection);
    }).detach();
    return QCoreApplication::exec();
}
