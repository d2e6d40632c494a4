// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcprintqd.h"

IVXIPCPRINTQD::IVXIPCPRINTQD(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{}

IVXIPCPRINTQD::~IVXIPCPRINTQD() = default;

// Included here rather than compiled with the meta-objects of the other classes, so that a program
// that is only a client links without the records that the interfaces name.
#include "moc_ivxipcprintqd.cpp"
