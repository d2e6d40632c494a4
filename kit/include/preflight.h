// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

namespace VxKit {

class PrinterReadings;

/// One reason why a job cannot be printed, or why that is not known.
struct VX_KIT_EXPORT PreflightFinding
{
    enum class Kind
    {
        PrinterNotReady, ///< the printer has a fault, is offline or was removed: see `statusCode`
        WrongSupply,     ///< another supply is loaded, or none
        WrongRibbon,     ///< another ribbon is loaded, or none, or it does not suit the supply
        NotEnough,       ///< what is left in the slot does not last
        NotKnown,        ///< see `reason`
    };
    /// Why something is not known.
    enum class Reason
    {
        None,           ///< it is known
        NoSuchPrinter,  ///< there is no reading of the printer
        NotWatched,     ///< the library does not watch the printer: see `PrinterReading::watching`
        NeverReported,  ///< the printer has not reported anything yet
        StatusNotKnown, ///< the printer has not reported its status
        SlotNotKnown,   ///< the printer does not report what is loaded in the slot
        NotInCatalogue, ///< the catalogue does not know what is loaded in the slot
        LevelNotKnown,  ///< how much is left in the slot
        SuitsNotKnown,  ///< whether the ribbon suits the supply: the catalogue cannot be asked
        NoLabelLength,  ///< the supply is continuous, or the catalogue lacks its labels' length
        WholePercents,  ///< the printer reports whole percents, too coarse for this job
        SeveralPanels,  ///< how much of a ribbon with several colours a label takes
    };

    Kind kind = Kind::NotKnown;
    Reason reason = Reason::None;
    /// The slot concerned. Without a value when it is the printer itself, or a ribbon for which the
    /// printer has no place.
    std::optional<Slot> slot{};
    /// What is loaded in the slot. Empty when nothing is, or it is not known.
    QString loadedSku{};
    QString loadedName{};
    /// What the driver publishes for it. Empty when nothing is loaded, or it is not known.
    QString loadedIdentifier{};
    /// What the job needs in the slot. Empty for a ribbon that the job does not name.
    QString wantedSku{};
    /// Of a loaded ribbon, whether the catalogue has print settings for it on the job's supply.
    /// Without a value for a supply, and when the catalogue does not know the two.
    std::optional<bool> suitsSupply{};
    /// For how many labels the slot's content lasts: at least and at most. The two differ when the
    /// level is not exact. Without a value unless the kind is `NotEnough`, or the reason
    /// `WholePercents` or `SeveralPanels`.
    std::optional<int> labelsAtLeast{};
    std::optional<int> labelsAtMost{};
    /// How many labels the job has too many, at least. Only of the kind `NotEnough`.
    std::optional<int> shortBy{};
    /// The status code of the kind `PrinterNotReady`.
    std::optional<int> statusCode{};

    bool operator==(const PreflightFinding&) const = default;
};

/// Whether a printer can print a job with what is loaded in it.
struct VX_KIT_EXPORT PreflightResult
{
    enum class Verdict
    {
        Ready,
        PrinterNotReady,
        WrongSupply,
        WrongRibbon,
        NotEnough,
        NotKnown,
    };
    enum class Answer
    {
        Yes,
        No,
        NotKnown,
    };

    /// The job.
    QString printer{};
    QString supplySku{};
    int labels = 0;
    QStringList ribbonSkus{};

    /// Everything that stands in the way, the most important first: in the order of `Kind`. Empty
    /// when the printer is ready for the job.
    QList<PreflightFinding> findings{};
    /// For how many labels what is loaded lasts: at least and at most. The two differ when a level
    /// is not exact. Without a value when it is not known, and unless what the job needs is loaded.
    std::optional<int> labelsAtLeast{};
    std::optional<int> labelsAtMost{};

    /// That of the first finding.
    Verdict verdict() const;
    /// "No" when a finding is certain, so that it is known that the job cannot be printed now;
    /// "not known" when no finding is certain.
    Answer answer() const;

    /// The answer in one line in the application's language: each finding in a sentence.
    QString text() const;
    /// One finding in a sentence.
    QString text(const PreflightFinding& finding) const;
    /// The result as other processes get it and the command line prints it: docs/preflight.md
    /// describes the object. What is not known is null.
    QJsonObject toJson() const;

    bool operator==(const PreflightResult&) const = default;
};

/// Tells before printing whether a job will fit: is the right supply loaded, do the ribbons suit
/// it, and is enough of both left?
///
/// @code
/// const VxKit::Preflight preflight(&readings);
/// const VxKit::PreflightResult result =
///     preflight.check(name, QStringLiteral("DE-400200-WH"), 500);
/// if (result.answer() != VxKit::PreflightResult::Answer::Yes)
///     qWarning() << result.text();
/// @endcode
///
/// Answers come from the readings and, for what is loaded, from memory: they take microseconds.
/// Nothing is asked of the printer or the spooler. Only the first question about a supply that is
/// not loaded reads the catalogue, which takes a fraction of a millisecond.
///
/// The object belongs to the readings' thread. When the readings are destroyed first, nothing is
/// known any more.
class VX_KIT_EXPORT Preflight
{
public:
    explicit Preflight(const PrinterReadings* readings);
    ~Preflight();
    Q_DISABLE_COPY_MOVE(Preflight)

    /// `labels` is how many labels the job prints, one by one: on a supply with three labels side
    /// by side, ten labels take four rows. With 0 or less, only what is loaded is checked, not how
    /// much of it.
    ///
    /// Each of `ribbonSkus` must be loaded, no matter in which of the printer's places, must suit
    /// the supply and last. When none is named, the job may use any: one loaded ribbon that suits
    /// and lasts is enough. A label takes as much of a ribbon as of the supply. Of a ribbon with
    /// several panels it takes as much as that at least, and at most as much for each panel.
    PreflightResult check(const QString& printer, const QString& supplySku, int labels,
                          const QStringList& ribbonSkus = {}) const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit

Q_DECLARE_METATYPE(VxKit::PreflightResult)
