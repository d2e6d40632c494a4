// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A preflight's answer in words, and as JSON.
#include "preflight.h"

#include "json_values.h"
#include "slot_text.h"
#include "status_info.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>

#include <array>

namespace VxKit {

using Verdict = PreflightResult::Verdict;
using Answer = PreflightResult::Answer;
using Kind = PreflightFinding::Kind;
using Reason = PreflightFinding::Reason;

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::Preflight)
};

/// The names of enumerators in JSON, in their order.
constexpr std::array verdictKeys{"ready",       "printerNotReady", "wrongSupply",
                                 "wrongRibbon", "notEnough",       "notKnown"};
constexpr std::array answerKeys{"yes", "no", "notKnown"};
constexpr std::array kindKeys{"printerNotReady", "wrongSupply", "wrongRibbon", "notEnough",
                              "notKnown"};
constexpr std::array reasonKeys{"",
                                "noSuchPrinter",
                                "notWatched",
                                "neverReported",
                                "statusNotKnown",
                                "slotNotKnown",
                                "notInCatalogue",
                                "levelNotKnown",
                                "suitsNotKnown",
                                "noLabelLength",
                                "wholePercents",
                                "severalPanels"};

template <typename Keys, typename Value>
QString keyOf(const Keys& keys, Value value)
{
    return QLatin1String(keys.at(static_cast<std::size_t>(value)));
}

/// "RS-43-BK (Black resin)"
QString loadedText(const PreflightFinding& finding)
{
    if (finding.loadedName.isEmpty())
        return finding.loadedSku;
    return QStringLiteral("%1 (%2)").arg(finding.loadedSku, finding.loadedName);
}

QString range(const std::optional<int>& least, const std::optional<int>& most)
{
    const QString first = QString::number(least.value_or(0));
    if (least == most)
        return first;
    //: Numbers of labels
    return Text::tr("%1 to %2").arg(first, QString::number(most.value_or(0)));
}

/// What is loaded instead of what the job needs.
QString otherLoaded(const PreflightFinding& finding)
{
    const QString slot = slotText(finding.slot.value_or(Slot::Supply));
    //: %1 is a place of the printer, such as "Ribbon 1". This holds for all texts that begin with
    //: it.
    return finding.loadedSku.isEmpty()
               ? Text::tr("%1: nothing is loaded, the job needs %2.").arg(slot, finding.wantedSku)
               : Text::tr("%1: %2 is loaded, the job needs %3.")
                     .arg(slot, loadedText(finding), finding.wantedSku);
}

QString wrongRibbon(const PreflightFinding& finding, const QString& supplySku)
{
    if (!finding.slot)
        return Text::tr("The job needs the ribbon %1 as well, but the printer has no place for it.")
            .arg(finding.wantedSku);
    if (finding.loadedSku.isEmpty() && finding.wantedSku.isEmpty())
        return Text::tr("No ribbon is loaded.");
    QStringList sentences;
    if (!finding.wantedSku.isEmpty() && finding.wantedSku != finding.loadedSku)
        sentences.append(otherLoaded(finding));
    if (finding.suitsSupply == false)
        sentences.append(Text::tr("The ribbon %1 does not suit the supply %2: the catalogue has no "
                                  "print settings for the two.")
                             .arg(loadedText(finding), supplySku));
    return sentences.join(QLatin1Char(' '));
}

QString notEnough(const PreflightFinding& finding, int labels)
{
    const QString text =
        finding.labelsAtLeast == finding.labelsAtMost
            ? Text::tr("%1: not enough. Labels left: %2, needed: %3, missing: %4.")
            : Text::tr("%1: not enough. Labels left: %2, needed: %3, missing: at least %4.");
    return text.arg(slotText(finding.slot.value_or(Slot::Supply)),
                    range(finding.labelsAtLeast, finding.labelsAtMost), QString::number(labels),
                    QString::number(finding.shortBy.value_or(0)));
}

QString notKnown(const PreflightFinding& finding, const PreflightResult& result)
{
    const QString slot = slotText(finding.slot.value_or(Slot::Supply));
    const QString left = range(finding.labelsAtLeast, finding.labelsAtMost);
    const QString wanted = QString::number(result.labels);
    switch (finding.reason) {
    case Reason::None:
        break;
    case Reason::NoSuchPrinter:
        return Text::tr("There is no label printer \"%1\".").arg(result.printer);
    case Reason::NotWatched:
        return Text::tr("It is not known what is loaded, because the printer is not watched.");
    case Reason::NeverReported:
        return Text::tr("It is not known what is loaded, because the printer has not reported "
                        "anything yet.");
    case Reason::StatusNotKnown:
        return Text::tr("It is not known whether the printer can print, because it has not "
                        "reported its status.");
    case Reason::SlotNotKnown:
        return Text::tr("%1: it is not known what is loaded, because the printer does not report "
                        "it.")
            .arg(slot);
    case Reason::NotInCatalogue:
        return Text::tr("%1: it is not known what is loaded, because %2 is not in the catalogue.")
            .arg(slot, finding.loadedIdentifier);
    case Reason::LevelNotKnown:
        return Text::tr("%1: it is not known how much is left.").arg(slot);
    case Reason::SuitsNotKnown:
        return Text::tr("%1: it is not known whether %2 suits the supply, because the catalogue "
                        "cannot be read.")
            .arg(slot, loadedText(finding));
    case Reason::NoLabelLength:
        return Text::tr("%1: it is not known how many labels are left, because the catalogue has "
                        "no length of a label for %2.")
            .arg(slot, loadedText(finding));
    case Reason::WholePercents:
        return Text::tr("%1: it is not known whether it lasts, because the printer reports whole "
                        "percents only. Labels left: %2, needed: %3.")
            .arg(slot, left, wanted);
    case Reason::SeveralPanels:
        return Text::tr("%1: it is not known whether it lasts, because a label may take several of "
                        "its colours. Labels left: %2, needed: %3.")
            .arg(slot, left, wanted);
    }
    return {};
}

QJsonObject toJson(const PreflightFinding& finding, const QString& text)
{
    return {
        {QStringLiteral("kind"), keyOf(kindKeys, finding.kind)},
        {QStringLiteral("reason"), textOrNull(keyOf(reasonKeys, finding.reason))},
        {QStringLiteral("slot"), finding.slot ? QJsonValue(slotName(*finding.slot)) : QJsonValue()},
        {QStringLiteral("loadedSku"), textOrNull(finding.loadedSku)},
        {QStringLiteral("loadedName"), textOrNull(finding.loadedName)},
        {QStringLiteral("loadedIdentifier"), textOrNull(finding.loadedIdentifier)},
        {QStringLiteral("wantedSku"), textOrNull(finding.wantedSku)},
        {QStringLiteral("suitsSupply"), valueOrNull(finding.suitsSupply)},
        {QStringLiteral("labelsAtLeast"), valueOrNull(finding.labelsAtLeast)},
        {QStringLiteral("labelsAtMost"), valueOrNull(finding.labelsAtMost)},
        {QStringLiteral("shortBy"), valueOrNull(finding.shortBy)},
        {QStringLiteral("statusCode"), valueOrNull(finding.statusCode)},
        {QStringLiteral("text"), text},
    };
}

} // namespace

QString PreflightResult::text(const PreflightFinding& finding) const
{
    switch (finding.kind) {
    case Kind::PrinterNotReady:
        return Text::tr("The printer is not ready: %1.")
            .arg(VxKit::statusInfo(finding.statusCode.value_or(VXPrinting::StatusCodes::unknown))
                     .shortTitle);
    case Kind::WrongSupply:
        return otherLoaded(finding);
    case Kind::WrongRibbon:
        return wrongRibbon(finding, supplySku);
    case Kind::NotEnough:
        return notEnough(finding, labels);
    case Kind::NotKnown:
        return notKnown(finding, *this);
    }
    return {};
}

QString PreflightResult::text() const
{
    QStringList sentences;
    for (const PreflightFinding& finding : findings)
        sentences.append(text(finding));
    if (sentences.isEmpty())
        sentences.append(labelsAtLeast
                             ? Text::tr("Ready. Labels left: %1, needed: %2.")
                                   .arg(range(labelsAtLeast, labelsAtMost), QString::number(labels))
                             : Text::tr("Ready: what the job needs is loaded."));
    return sentences.join(QLatin1Char(' '));
}

QJsonObject PreflightResult::toJson() const
{
    QJsonArray list;
    for (const PreflightFinding& finding : findings)
        list.append(VxKit::toJson(finding, text(finding)));
    return {
        {QStringLiteral("printer"), printer},
        {QStringLiteral("supplySku"), supplySku},
        {QStringLiteral("labels"), labels},
        {QStringLiteral("ribbonSkus"), QJsonArray::fromStringList(ribbonSkus)},
        {QStringLiteral("answer"), keyOf(answerKeys, answer())},
        {QStringLiteral("verdict"), keyOf(verdictKeys, verdict())},
        {QStringLiteral("labelsAtLeast"), valueOrNull(labelsAtLeast)},
        {QStringLiteral("labelsAtMost"), valueOrNull(labelsAtMost)},
        {QStringLiteral("findings"), list},
        {QStringLiteral("text"), text()},
    };
}

} // namespace VxKit
