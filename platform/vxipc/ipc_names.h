// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QLatin1String>

/// What every endpoint's name begins with; the number of its service follows, as in "vxipc-0".
inline constexpr QLatin1String endpointNamePrefix("vxipc-");
