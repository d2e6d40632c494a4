// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A test that hangs, as does the process that it starts. scripts/test-windows-kit lets the kit run
// it.
#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>

#include <windows.h>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString child = QStringLiteral("child");
    if (QCoreApplication::arguments().value(1) != child &&
        !QProcess::startDetached(QCoreApplication::applicationFilePath(), {child}))
        return 1;
    Sleep(INFINITE);
    return 0;
}
