// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/qglobal.h>

#if defined(VIRTUALWINDOWS_BUILD)
#define VIRTUALWINDOWS_EXPORT Q_DECL_EXPORT
#else
#define VIRTUALWINDOWS_EXPORT Q_DECL_IMPORT
#endif
