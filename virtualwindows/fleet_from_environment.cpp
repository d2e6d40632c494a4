// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Virtual printers for programs without any code for them, such as hosts: if VX_VIRTUAL_FLEET is
// set when a program starts, the machine is filled before the program can use it.
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

/// Programs do not link the module, so it is installed in a folder of its own. In a build it is
/// beside this library.
QString moduleWithFleets()
{
    const QString folder = folderOfThisLibrary();
    const QString installed =
        folder + QStringLiteral("/VxPrinterStatus/libvirtualwindows_fleet.so");
    return QFileInfo::exists(installed) ? installed
                                        : folder + QStringLiteral("/libvirtualwindows_fleet.so");
}

void loadFleetFromEnvironment()
{
    if (qEnvironmentVariableIsEmpty("VX_VIRTUAL_FLEET"))
        return;
    // A separate library, so that programs without a fleet load neither it nor its JSON parser.
    QLibrary library(moduleWithFleets());
    if (const QFunctionPointer load = library.resolve("virtualwindowsLoadFleetFromEnvironment")) {
        load();
        return;
    }
    std::fprintf(stderr, "virtualwindows: VX_VIRTUAL_FLEET: %s\n",
                 qPrintable(library.errorString()));
    std::exit(EXIT_FAILURE);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(loadFleetFromEnvironment)
