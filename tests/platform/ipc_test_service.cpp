// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_test_service.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

void TestService::block(int milliseconds)
{
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void TestService::quit()
{
    QCoreApplication::quit();
}
