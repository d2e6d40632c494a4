// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// What became of a raw print job.
enum class RawPrintJobResult
{
    Sent,
    PrinterNotOpened,
    DocumentNotStarted,
    PageNotStarted,
    DataNotAccepted,
};

/// Sends a command text with a line end as a raw print job of one page, which is named after the
/// command. Whatever the outcome, everything that was opened or started has been ended on return.
RawPrintJobResult sendRawPrintJob(const QString& command, const QString& printerName);
