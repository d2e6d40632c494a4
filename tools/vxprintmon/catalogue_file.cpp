// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_file.h"

#include "command_line.h"
#include "default_catalogue.h"
#include "output.h"
#include "tool_text.h"

#include <printer_status_controller.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

QString catalogue_file::named(const CommandLine& line)
{
    return line.catalogueFile.isEmpty() ? qEnvironmentVariable("VX_ROLL_DB") : line.catalogueFile;
}

QString catalogue_file::path(const CommandLine& line)
{
    const QString file = named(line);
    return file.isEmpty() ? defaultCatalogue() : file;
}

void catalogue_file::use(const CommandLine& line, PrinterStatusController& controller,
                         const Output& output)
{
    VXIPCSUPPLYDController& service = *controller.getSupplyIdController();
    service.setCatalogueFile(path(line));
    if (!service.supplySKUList().isEmpty() || !service.supplyRibbonSKUList().isEmpty())
        return;
    const QString path = QDir::toNativeSeparators(service.catalogueFile());
    if (QFileInfo::exists(service.catalogueFile()))
        output.complain(
            ToolText::tr("supplies and ribbons have no names: nothing can be read from "
                         "the catalogue %1; \"rolldb check\" says what is wrong with it")
                .arg(path));
    else
        output.complain(
            ToolText::tr("supplies and ribbons have no names: there is no catalogue %1; "
                         "put it there, or name another one with --catalogue or "
                         "VX_ROLL_DB")
                .arg(path));
}
