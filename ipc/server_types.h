// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

/// The numbers of the services, by which clients find them.
enum ServerType : int
{
    SupplyDatabaseServer = 0,
    PrinterControllerServer = 1,
    PrintQueueServer = 2,
};
