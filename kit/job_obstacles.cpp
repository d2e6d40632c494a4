// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "job_obstacles.h"

#include "printer_record.h"

#include "printer_types.h"
#include "status_codes.h"
#include "vxerror.h"
#include "windows_printer_info.h"

#include <QtCore/QCoreApplication>

#include <array>
#include <span>

namespace VxKit {

namespace {

struct Obstacle
{
    DWORD flag;
    const char* text;
};

/// The same obstacle has the same text, whether it comes from the job or from its printer.
constexpr const char* isOffline = QT_TRANSLATE_NOOP("VxKit", "The printer is offline.");
constexpr const char* hasNoPaper = QT_TRANSLATE_NOOP("VxKit", "The printer is out of labels.");
constexpr const char* hasError = QT_TRANSLATE_NOOP("VxKit", "The printer is in error.");
constexpr const char* needsHelp = QT_TRANSLATE_NOOP("VxKit", "The printer needs attention.");

constexpr std::array jobObstacles{
    Obstacle{JOB_STATUS_PAUSED, QT_TRANSLATE_NOOP("VxKit", "The job is paused.")},
    Obstacle{JOB_STATUS_DELETING, QT_TRANSLATE_NOOP("VxKit", "The job is being deleted.")},
    Obstacle{JOB_STATUS_ERROR, hasError},
    Obstacle{JOB_STATUS_OFFLINE, isOffline},
    Obstacle{JOB_STATUS_PAPEROUT, hasNoPaper},
    Obstacle{JOB_STATUS_BLOCKED_DEVQ,
             QT_TRANSLATE_NOOP("VxKit", "The driver cannot print the job.")},
    Obstacle{JOB_STATUS_USER_INTERVENTION, needsHelp},
};

constexpr std::array printerObstacles{
    Obstacle{PRINTER_STATUS_PAUSED, QT_TRANSLATE_NOOP("VxKit", "The printer is paused.")},
    Obstacle{PRINTER_STATUS_ERROR, hasError},
    Obstacle{PRINTER_STATUS_PAPER_JAM, QT_TRANSLATE_NOOP("VxKit", "Labels are jammed.")},
    Obstacle{PRINTER_STATUS_PAPER_OUT, hasNoPaper},
    Obstacle{PRINTER_STATUS_PAPER_PROBLEM,
             QT_TRANSLATE_NOOP("VxKit", "The printer has a problem with its labels.")},
    Obstacle{PRINTER_STATUS_OFFLINE, isOffline},
    Obstacle{PRINTER_STATUS_NOT_AVAILABLE,
             QT_TRANSLATE_NOOP("VxKit", "The printer is not available.")},
    Obstacle{PRINTER_STATUS_USER_INTERVENTION, needsHelp},
    Obstacle{PRINTER_STATUS_DOOR_OPEN, QT_TRANSLATE_NOOP("VxKit", "The printer is open.")},
};

constexpr const char* isSetOffline =
    QT_TRANSLATE_NOOP("VxKit", "The printer is set to work offline.");

void add(QStringList& obstacles, const QString& text)
{
    if (!text.isEmpty() && !obstacles.contains(text))
        obstacles.append(text);
}

void add(QStringList& obstacles, DWORD flags, std::span<const Obstacle> known)
{
    for (const Obstacle& obstacle : known) {
        if (flags & obstacle.flag)
            add(obstacles, QCoreApplication::translate("VxKit", obstacle.text));
    }
}

/// The status code that a driver of the maker publishes, if it is a number.
std::optional<int> queryStatusCode(const PrinterOwner& printer)
{
    WCHAR valueName[] = {'S', 't', 'a', 't', 'u', 's', 'C', 'o', 'd', 'e', 0};
    // Far longer than any number.
    std::array<WCHAR, 64> text{};
    DWORD type = REG_NONE;
    DWORD needed = 0;
    if (GetPrinterDataW(printer.get(), valueName, &type, reinterpret_cast<LPBYTE>(text.data()),
                        static_cast<DWORD>(sizeof text - sizeof(WCHAR)),
                        &needed) != ERROR_SUCCESS ||
        type != REG_SZ)
        return std::nullopt;
    bool isNumber = false;
    const int code = textFrom(text.data()).toInt(&isNumber);
    return isNumber ? std::optional(code) : std::nullopt;
}

} // namespace

void addObstacles(JobState& state, const PrinterOwner& printer, const QString& jobText)
{
    add(state.obstacles, state.jobStatus, jobObstacles);
    bool isSupported = false;
    if (const PrinterRecord record(printer); record.isValid()) {
        state.printerStatus = record->Status;
        add(state.obstacles, record->Status, printerObstacles);
        if (record->Attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE)
            add(state.obstacles, QCoreApplication::translate("VxKit", isSetOffline));
        isSupported =
            VXPrinting::isSupported(WindowsPrinterInfo::printerType(textFrom(record->pDriverName)));
    }
    if (isSupported)
        state.statusCode = queryStatusCode(printer);
    if (state.statusCode && *state.statusCode != VXPrinting::StatusCodes::ready)
        add(state.obstacles, getErrorDescription(VXError(*state.statusCode)));
    // What the driver says about the job counts only if it is held.
    if (!state.obstacles.isEmpty())
        add(state.obstacles, jobText);
}

} // namespace VxKit
