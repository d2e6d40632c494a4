// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// Provides the library with change notifications of printers where the system's are a stub. The
/// three functions wait for changes of the printer's key in the registry, where the spooler stores
/// its values.
///
/// False when the library does not import all three of them.
bool supplyChangeNotifications(const wchar_t* library);
