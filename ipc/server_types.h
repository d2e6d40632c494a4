// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// The numbers that the services are published and found under.
enum ServerType : int
{
    SupplyDatabaseServer = 0,
    PrinterControllerServer = 1,
    PrintQueueServer = 2,
};
