// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/qglobal.h>

#if defined(VX_PRINTERSTATUS_BUILD)
#define VX_PRINTERSTATUS_EXPORT Q_DECL_EXPORT
#else
#define VX_PRINTERSTATUS_EXPORT Q_DECL_IMPORT
#endif
