// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxerror.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Description
{
    qint32 code;
    const char* text;
};

// clang-format off
constexpr std::array descriptions{
    Description{0,   QT_TRANSLATE_NOOP("VXError", "The printer is disconnected")},
    Description{1,   QT_TRANSLATE_NOOP("VXError", "The printer is ready")},
    Description{2,   QT_TRANSLATE_NOOP("VXError", "The printer is out of labels")},
    Description{3,   QT_TRANSLATE_NOOP("VXError", "The ribbon has run out")},
    Description{4,   QT_TRANSLATE_NOOP("VXError", "The cover is open")},
    Description{5,   QT_TRANSLATE_NOOP("VXError", "The labels are jammed")},
    Description{6,   QT_TRANSLATE_NOOP("VXError", "The cutter is jammed")},
    Description{7,   QT_TRANSLATE_NOOP("VXError", "The cutter cover is open")},
    Description{8,   QT_TRANSLATE_NOOP("VXError", "The print head is too hot")},
    Description{9,   QT_TRANSLATE_NOOP("VXError", "The print head is not connected")},
    Description{10,  QT_TRANSLATE_NOOP("VXError", "The motor is too hot")},
    Description{11,  QT_TRANSLATE_NOOP("VXError", "No labels are loaded")},
    Description{12,  QT_TRANSLATE_NOOP("VXError", "No ribbon is loaded")},
    Description{13,  QT_TRANSLATE_NOOP("VXError", "The labels are not recognized")},
    Description{14,  QT_TRANSLATE_NOOP("VXError", "The ribbon is not recognized")},
    Description{15,  QT_TRANSLATE_NOOP("VXError", "The ribbon does not suit the labels")},
    Description{16,  QT_TRANSLATE_NOOP("VXError", "The start of the label was not found")},
    Description{17,  QT_TRANSLATE_NOOP("VXError", "The ribbon is torn or slack")},
    Description{18,  QT_TRANSLATE_NOOP("VXError", "The label sensor must be calibrated")},
    Description{19,  QT_TRANSLATE_NOOP("VXError", "The printer is paused")},
    Description{20,  QT_TRANSLATE_NOOP("VXError", "The printer's memory is full")},
    Description{21,  QT_TRANSLATE_NOOP("VXError", "The firmware is being updated")},
    Description{22,  QT_TRANSLATE_NOOP("VXError", "The firmware update has failed")},
    Description{23,  QT_TRANSLATE_NOOP("VXError", "The battery is low")},
    Description{254, QT_TRANSLATE_NOOP("VXError", "The print spooler is not running")},
    Description{255, QT_TRANSLATE_NOOP("VXError", "The printer's status is not known")},
    Description{256, QT_TRANSLATE_NOOP("VXError", "The printer is reached over a network")},
    Description{257, QT_TRANSLATE_NOOP("VXError", "The printer is offline")},
    Description{258, QT_TRANSLATE_NOOP("VXError", "The printer is not managed")},
};
// clang-format on

} // namespace

QString getErrorDescription(const VXError& error)
{
    const auto found = std::ranges::find(descriptions, error.code, &Description::code);
    if (found == descriptions.end())
        return QCoreApplication::translate("VXError", "Printer error %1").arg(error.code);
    return QCoreApplication::translate("VXError", found->text);
}
