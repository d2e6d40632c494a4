// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "slot_text.h"

#include <QtCore/QCoreApplication>

namespace VxKit {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::Slot)
};

} // namespace

QString slotText(Slot slot)
{
    if (slot == Slot::Ribbon1)
        return Text::tr("Ribbon 1");
    return slot == Slot::Ribbon2 ? Text::tr("Ribbon 2") : Text::tr("Supply");
}

} // namespace VxKit
