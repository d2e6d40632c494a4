// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcsupplyd.h"

IVXIPCSUPPLYD::IVXIPCSUPPLYD(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{}

IVXIPCSUPPLYD::~IVXIPCSUPPLYD() = default;

// Included here rather than compiled with the meta-objects of the other classes, so that a program
// that is only a client links without the records that the interfaces name.
#include "moc_ivxipcsupplyd.cpp"
