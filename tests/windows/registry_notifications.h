// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// Change notifications of printers where the system's are a stub: the library that is named is
/// given three functions of ours. They wait for the changes of the printer's key in the registry,
/// which is where the spooler keeps what it knows.
///
/// False when the library does not import all three.
bool supplyChangeNotifications(const wchar_t* library);
