// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Printers for programs that know nothing of virtual ones, which every host is: when a program
// starts and VX_VIRTUAL_FLEET is set, the machine is filled before the program can look at it.
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

namespace {

QString folderOfThisLibrary()
{
    Dl_info info{};
    dladdr(reinterpret_cast<const void*>(&folderOfThisLibrary), &info);
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

void takeFleetFromEnvironment()
{
    if (qEnvironmentVariableIsEmpty("VX_VIRTUAL_FLEET"))
        return;
    // A library of its own, which programs without a fleet do without, and without its JSON reader.
    QLibrary library(folderOfThisLibrary() + QStringLiteral("/libvirtualwindows_fleet"));
    if (const QFunctionPointer take = library.resolve("virtualwindowsTakeFleetFromEnvironment")) {
        take();
        return;
    }
    std::fprintf(stderr, "virtualwindows: VX_VIRTUAL_FLEET: %s\n",
                 qPrintable(library.errorString()));
    std::exit(EXIT_FAILURE);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(takeFleetFromEnvironment)
