// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

#ifdef CUTELOGGER_BUILD
#define CUTELOGGERSHARED_EXPORT Q_DECL_EXPORT
#else
#define CUTELOGGERSHARED_EXPORT Q_DECL_IMPORT
#endif
