// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/qglobal.h>

#if defined(VX_KIT_BUILD)
#define VX_KIT_EXPORT Q_DECL_EXPORT
#else
#define VX_KIT_EXPORT Q_DECL_IMPORT
#endif
