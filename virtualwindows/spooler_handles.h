// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "internals.h"

namespace virtualwindows {

// With the machine's lock held; null: the last error says why, and a misuse is in the ledger.

/// A printer handle, the print server's included, that the running spooler knows.
std::shared_ptr<PrinterHandleObject> livePrinterHandle(HANDLE handle, const ApiCall& call);

/// The handle of a printer that was opened with these rights.
std::shared_ptr<PrinterHandleObject> handleOfPrinter(HANDLE handle, const ApiCall& call,
                                                     ACCESS_MASK access);

/// Finishes the job that is being written through the handle, if there is one.
void endDocument(PrinterHandleObject& handle);

} // namespace virtualwindows
