// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>

class PrinterStatusController;

namespace VxKit {

/// Keeps a reading of every printer of a supported model that the print spooler lists, and reports
/// every change.
///
/// @code
/// PrinterStatusController controller;
/// VxKit::PrinterReadings readings(&controller);
/// QObject::connect(&readings, &VxKit::PrinterReadings::changed, [&](const QString& name) {
///     qInfo() << name << VxKit::statusInfo(readings.reading(name).statusCode()).title;
/// });
/// @endcode
///
/// **Which printers.** Also those that are offline since they were found, network printers,
/// printers that the user may not administer, and those that were removed while this object
/// existed. Printers of other makers and of unsupported models have no reading.
///
/// **Where the values come from.** The threads with which the controller watches the printers, the
/// controller's signals and its catalogue. Nothing is polled, and no further thread is created. The
/// list of printers is read when this object is created, in `refresh()`, when the controller
/// reports a printer that is not known yet, and when a thread reports that its printer has another
/// name or none. Printers that are not watched come and go unnoticed until `refresh()` is called:
/// connect `PrinterDiscovery::printersChanged` to it.
///
/// **Threads.** The object belongs to the controller's thread, on which all members are called and
/// all signals are emitted. Members that are called on another thread print a warning and return
/// nothing. When the controller is destroyed first, the readings stay as they were and nothing is
/// reported any more. The object may be destroyed in a slot that is connected to one of its
/// signals.
///
/// **Names.** A printer that is renamed keeps its reading. Its thread goes on reporting under the
/// old name, which also remains in the controller's records and signals.
///
/// **Signals.** `changed` is emitted once for each report of a printer, after the controller's own
/// signals for the same report. The reading has its new values before a signal is emitted.
class VX_KIT_EXPORT PrinterReadings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString activePrinter READ activePrinter NOTIFY activePrinterChanged)
    Q_PROPERTY(bool inError READ isInError NOTIFY inErrorChanged)
    Q_PROPERTY(int printersInError READ printersInError NOTIFY printersInErrorChanged)

public:
    /// Reads the list of printers, and for each watched printer the values that its driver
    /// publishes now. Without a controller, or when it belongs to another thread, a warning is
    /// printed and the readings stay empty.
    explicit PrinterReadings(PrinterStatusController* controller, QObject* parent = nullptr);
    ~PrinterReadings() override;
    Q_DISABLE_COPY_MOVE(PrinterReadings)

    /// The names of all printers that have a reading, sorted by `QString` order.
    QStringList names() const;
    /// The reading of one printer; a null reading for a name that is not known.
    PrinterReading reading(const QString& name) const;
    /// All readings, in the order of `names()`.
    QList<PrinterReading> readings() const;

    /// The active printer's name; empty when there is none. It may be a printer without a reading.
    QString activePrinter() const;
    /// The printer to work with now: the active one while it is present and online; else, of the
    /// printers that are present and online, one that is ready before one that is not, a local one
    /// before a network printer, the first by name. Empty when there is none.
    QString printerToUse() const;

    /// The file from which the names, colours and lengths of supplies and ribbons come; empty
    /// without a controller.
    QString catalogueFile() const;

    /// Whether a ribbon prints on a supply: whether the catalogue has print settings for the two.
    /// Without a value when the catalogue does not know the one or the other, or the controller was
    /// destroyed. Answers are kept in memory.
    std::optional<bool> ribbonSuits(const QString& ribbonSku, const QString& supplySku) const;

    /// Estimates how long what is loaded in a slot of a reading will last. Without a value when
    /// that is not known.
    using Estimator =
        std::function<std::optional<RemainingTime>(const PrinterReading& reading, Slot slot)>;
    /// Has `reading()` and `readings()` enter estimates from now on; an empty function ends this.
    /// `PrinterForecasts` does it.
    void setEstimator(Estimator estimator);

    /// Whether a present printer has a status of the severity `Error`.
    bool isInError() const;
    /// How many present printers have a status of the severity `Error`.
    int printersInError() const;

public Q_SLOTS:
    /// Compares the readings with the printers that the spooler lists now, and reports the
    /// differences. A list that cannot be read changes nothing. While a watched printer is missing
    /// and another one has its driver and port, neither is reported until the printer's thread has
    /// said whether it was renamed, or for one second. This function does not look for new printers
    /// to watch, which is what `PrinterStatusController::checkForPrinters()` does. It blocks for as
    /// long as the spooler does.
    void refresh();

Q_SIGNALS:
    /// A printer has a reading for the first time, or is listed again after it was gone.
    void added(const QString& name);
    /// A printer reported, or something else about it changed. `PrinterReading::differences` with
    /// an earlier copy says what.
    void changed(const QString& name);
    /// The spooler no longer lists the printer. Its reading remains and says since when.
    void gone(const QString& name);
    /// The printer has a new name, under which its reading is found from now on.
    void renamed(const QString& oldName, const QString& newName);
    /// Emitted after the `changed` of the printers concerned.
    void activePrinterChanged(const QString& name);
    void inErrorChanged(bool inError);
    void printersInErrorChanged(int count);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
