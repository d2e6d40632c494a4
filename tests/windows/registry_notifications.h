// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// Change notifications of printers where the system's are a stub: the library that is loaded,
/// which stays as it ships, is given three functions of ours in its import table. They wait for the
/// changes of the printer's key in the registry, which is where the spooler keeps what it knows.
///
/// False when the library imports none of the three.
bool supplyChangeNotifications(const wchar_t* library);
