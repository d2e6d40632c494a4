// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "internals.h"

namespace virtualwindows {

// To be called with the machine's lock held. Null: the last error says why, and a misuse is
// recorded.

/// The object of a valid handle of a printer or of the print server.
std::shared_ptr<PrinterHandleObject> livePrinterHandle(HANDLE handle, const ApiCall& call);

/// The object of a valid handle of a printer that was opened with this access.
std::shared_ptr<PrinterHandleObject> handleOfPrinter(HANDLE handle, const ApiCall& call,
                                                     ACCESS_MASK access);

/// Jobs that are still in the queue.
DWORD waitingJobs(const Printer& printer);

/// Finishes the job that is being written through the handle, if any.
void endDocument(PrinterHandleObject& handle);

} // namespace virtualwindows
