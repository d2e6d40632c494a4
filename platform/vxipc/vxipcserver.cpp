// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxipcserver.h"

VXIPCServer::VXIPCServer(int /*serverType*/, QObject* parent)
    : QObject(parent)
{
}

VXIPCServer::~VXIPCServer() = default;
