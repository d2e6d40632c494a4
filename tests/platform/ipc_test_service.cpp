// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_test_service.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

QString TestService::overloaded(int)
{
    return QStringLiteral("int");
}

QString TestService::overloaded(double)
{
    return QStringLiteral("double");
}

QString TestService::overloaded(QString)
{
    return QStringLiteral("text");
}

QString TestService::overloaded(int, qulonglong)
{
    return QStringLiteral("int, wide");
}

QString TestService::overloaded(int, QString)
{
    return QStringLiteral("int, text");
}

void TestService::block(int milliseconds)
{
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void TestService::quit()
{
    QCoreApplication::quit();
}
