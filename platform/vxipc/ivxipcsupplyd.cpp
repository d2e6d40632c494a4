// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcsupplyd.h"

IVXIPCSUPPLYD::IVXIPCSUPPLYD(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{}

IVXIPCSUPPLYD::~IVXIPCSUPPLYD() = default;

// Here rather than in one object with the library's other classes: a program that is only a client
// then links without the records that the interfaces name.
#include "moc_ivxipcsupplyd.cpp"
