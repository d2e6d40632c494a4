// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "value_names.h"

#include "virtualwindows/machine.h"

namespace VxKit {

QList<QByteArray> publishedValueNames(const QString& printerName, HANDLE /*printer*/)
{
    return virtualwindows::Machine::instance().valueNames(printerName);
}

} // namespace VxKit
