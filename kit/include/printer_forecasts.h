// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "run_out_forecast.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>

namespace VxKit {

class PrinterReadings;
class UsageHistoryReader;

/// Forecasts when the rolls and ribbons of a `PrinterReadings` will end, and warns before they do.
///
/// @code
/// VxKit::PrinterForecasts forecasts(&readings);
/// forecasts.setWarningSettings({.labels = 100});
/// QObject::connect(&forecasts, &VxKit::PrinterForecasts::warned,
///                  [](const QString& printer, const VxKit::RunOutForecast::Warning& warning) {
///                      qWarning() << printer << VxKit::PrinterForecasts::text(warning);
///                  });
/// @endcode
///
/// It passes each report to a `RunOutForecast`, and has the readings carry the estimates:
/// `PrinterReading::estimatedSecondsRemaining`, also as JSON and in the status service. Only one
/// object at a time estimates for the same readings: the one that was created last.
///
/// What it learns is lost with it, and learned again from a `UsageHistory`: see `learn`. A host
/// without a history keeps `model().state()` and passes it to `model().restore` when it starts
/// again.
///
/// The object belongs to the readings' thread. When the readings are destroyed first, it hears
/// nothing more and knows nothing about any printer.
class VX_KIT_EXPORT PrinterForecasts : public QObject
{
    Q_OBJECT

public:
    /// Tells the time, for tests. Without a function, the system's clock.
    using Clock = std::function<QDateTime()>;

    explicit PrinterForecasts(PrinterReadings* readings, QObject* parent = nullptr,
                              const Clock& clock = {});
    ~PrinterForecasts() override;
    Q_DISABLE_COPY_MOVE(PrinterForecasts)

    /// Learns from everything that a history holds, in place of what was learned so far, and goes
    /// on from there. Settings and jobs stay. Of what is older than a day, one change an hour is
    /// enough; it takes two or three seconds for 50 printers that are always busy. False when there
    /// is nothing to learn from.
    bool learn(const UsageHistoryReader& history);

    /// When what is loaded in a slot will have been used up; empty, with the reason in `*reason`,
    /// when that is not known.
    std::optional<RunOutForecast::Forecast>
    forecast(const QString& printer, Slot slot, RunOutForecast::Reason* reason = nullptr) const;

    /// What the forecasts are made with. Printers are known to it by `UsageHistory::printerKey`.
    RunOutForecast& model();

    /// What to warn of. Warnings that are due already are emitted from the event loop.
    void setWarningSettings(const RunOutForecast::WarningSettings& settings);

    /// How many labels the job needs that is to be printed next from a slot of a printer; empty for
    /// no job. A warning that is due already is emitted from the event loop.
    void setJob(const QString& printer, Slot slot, std::optional<int> labels);
    /// The same for all printers, those that will be added too.
    void setJob(Slot slot, std::optional<int> labels);

    /// The warnings of a slot that are due and have not been emitted. They are not emitted then.
    QList<RunOutForecast::Warning> takeWarnings(const QString& printer, Slot slot);

    /// A warning in one sentence, in the application's language.
    static QString text(const RunOutForecast::Warning& warning);

Q_SIGNALS:
    /// A roll or ribbon will soon not be enough. Emitted once for each concern and roll.
    void warned(const QString& printer, const VxKit::RunOutForecast::Warning& warning);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit

Q_DECLARE_METATYPE(VxKit::RunOutForecast::Warning)
