// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcm4.h"

IVXIPCM4::IVXIPCM4(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{}

IVXIPCM4::~IVXIPCM4() = default;
