// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The result of a raw print job: sent, or the step that failed.
enum class RawPrintJobResult
{
    Sent,
    PrinterNotOpened,
    DocumentNotStarted,
    PageNotStarted,
    DataNotAccepted,
};

/// Sends a command text, with a line end added, as a raw print job of one page. The job has the
/// command as its name. On return everything that was opened or started has been ended, also when a
/// step failed.
RawPrintJobResult sendRawPrintJob(const QString& command, const QString& printerName);
