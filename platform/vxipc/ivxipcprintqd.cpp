// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcprintqd.h"

IVXIPCPRINTQD::IVXIPCPRINTQD(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{}

IVXIPCPRINTQD::~IVXIPCPRINTQD() = default;

// Here rather than in one object with the library's other classes: a program that is only a client
// then links without the records that the interfaces name.
#include "moc_ivxipcprintqd.cpp"
