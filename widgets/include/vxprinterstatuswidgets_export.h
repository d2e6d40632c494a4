// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/qglobal.h>

#if defined(VX_WIDGETS_BUILD)
#define VX_WIDGETS_EXPORT Q_DECL_EXPORT
#else
#define VX_WIDGETS_EXPORT Q_DECL_IMPORT
#endif
