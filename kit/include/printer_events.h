// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_event.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

namespace VxKit {

class PrinterReadings;

/// Reports what happens to printers, as a person would tell it: one event for one thing that
/// happened, and none for a level that only counts down.
///
/// @code
/// VxKit::PrinterEvents events(&readings);
/// QObject::connect(&events, &VxKit::PrinterEvents::happened, [](const VxKit::PrinterEvent& event)
/// {
///     qInfo() << event.printer << VxKit::eventText(event);
/// });
/// events.start();
/// @endcode
///
/// **Levels.** A level is reported when it has fallen to 25, 10 or 5 %, for each mark once a roll
/// or ribbon. A level that falls below several marks at once is reported with the lowest. A mark
/// counts again when something else is loaded, or when the level has risen to two percent above
/// it. What is found below a mark when it is loaded has not fallen, so that only its `Supply` or
/// `Ribbon` event says how much is left.
///
/// **Spooler.** A spooler that stops is one event and not one for each printer. When it runs again,
/// a printer is reported if its status differs from the one before the stop.
///
/// **Threads.** The object belongs to the thread of the readings. When the readings are destroyed
/// first, nothing is reported any more. It may be destroyed in a slot that is connected to its
/// signal.
class VX_KIT_EXPORT PrinterEvents : public QObject
{
    Q_OBJECT

public:
    /// `readings` may be null, for readings from elsewhere that are passed to `setReading`.
    explicit PrinterEvents(PrinterReadings* readings, QObject* parent = nullptr);
    ~PrinterEvents() override;
    Q_DISABLE_COPY_MOVE(PrinterEvents)

    /// Reports what is true now (the status of each printer, what is loaded and its firmware, as
    /// events without `before`), and from then on every change. Has no effect the second time.
    void start();

    /// @name Readings from elsewhere, such as another process
    /// @{
    /// Reports what differs from the earlier reading of the printer with that name. A first reading
    /// is reported as by `start`. One that is gone is reported as gone, once. A null reading is
    /// ignored.
    void setReading(const PrinterReading& reading);
    /// Reports that the printer was added, and what is true of it.
    void addReading(const PrinterReading& reading);
    /// Reports that the printer has a new name, and what else differs from its earlier reading.
    void renameReading(const QString& oldName, const PrinterReading& reading);
    /// @}

Q_SIGNALS:
    void happened(const VxKit::PrinterEvent& event);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
