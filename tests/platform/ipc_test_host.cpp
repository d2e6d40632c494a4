// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A process that publishes the test service, for tests that need a second one.
//
//     ipc_test_host SERVER_TYPE
//
// prints the name that the service is published under and serves it until its `quit` is called or
// its standard input ends.
#include "ipc_host_main.h"
#include "ipc_test_service.h"

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    bool ok = false;
    const int serverType = QString::fromLocal8Bit(argc == 2 ? argv[1] : "").toInt(&ok);
    if (!ok) {
        std::fputs("ipc_test_host: expected a server type\n", stderr);
        return 2;
    }
    const TestService service(serverType);
    return serveUntilInputEnds({&service});
}
