// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_event.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <cmath>

namespace VxKit {

namespace {

constexpr char context[] = "VxKit::PrinterEvent";

/// The words of events in one language: the application's, or English.
class Words
{
public:
    explicit Words(bool isEnglish)
        : m_isEnglish(isEnglish)
    {}

    QString of(const PrinterEvent& event) const;

private:
    QString translated(const char* text) const
    {
        return m_isEnglish ? QString::fromLatin1(text) : QCoreApplication::translate(context, text);
    }
    QString time(const QDateTime& time) const
    {
        return m_isEnglish ? time.toLocalTime().toString(Qt::ISODate)
                           : QLocale().toString(time.toLocalTime(), QLocale::ShortFormat);
    }
    QString number(double number, int decimals) const
    {
        return m_isEnglish ? QString::number(number, 'f', decimals)
                           : QLocale().toString(number, 'f', decimals);
    }
    QString status(const PrinterEvent& event) const
    {
        if (!event.code)
            return event.text;
        return statusInfo(*event.code, m_isEnglish ? QStringLiteral("en") : QString()).shortTitle;
    }
    QString slot(const PrinterEvent& event) const;
    QString loaded(const PrinterEvent& event) const;
    QString left(const PrinterEvent::Values& values, bool withLength) const;
    QString firmware(const PrinterEvent& event) const;
    QString versions(const PrinterEvent::Values& values) const;

    bool m_isEnglish;
};

QString Words::slot(const PrinterEvent& event) const
{
    switch (event.slot.value_or(Slot::Supply)) {
    case Slot::Ribbon1:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Ribbon 1: %1"));
    case Slot::Ribbon2:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Ribbon 2: %1"));
    case Slot::Supply:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Supply: %1"));
}

/// How much is left: nothing, "80 % left", or with the length "24 % left (12.3 m, 95 labels)".
QString Words::left(const PrinterEvent::Values& values, bool withLength) const
{
    QStringList amounts;
    if (withLength && values.meters)
        amounts.append(translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "%1 m"))
                           .arg(number(*values.meters, 1)));
    if (withLength && values.labels) {
        const QString pattern =
            *values.labels == 1 ? translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "%1 label"))
                                : translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "%1 labels"));
        amounts.append(pattern.arg(*values.labels));
    }
    const QString length = amounts.join(QStringLiteral(", "));
    if (!values.ratio || !std::isfinite(*values.ratio))
        return length;
    // Rounded down, so that a level that has fallen to a mark is not shown above it. The small
    // number makes up for ratios such as 0.57, whose hundredfold is a little less than 57.
    const double percent = std::floor(*values.ratio * 100 + 1e-6);
    const QString share =
        translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "%1 % left")).arg(number(percent, 0));
    return length.isEmpty() ? share : QStringLiteral("%1 (%2)").arg(share, length);
}

QString Words::loaded(const PrinterEvent& event) const
{
    const PrinterEvent::Values& now = event.after;
    if (now.state == Level::State::Empty)
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "nothing loaded"));
    QString what;
    if (now.state == Level::State::NotInCatalogue)
        what = translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "not in the catalogue (%1)"))
                   .arg(now.identifier);
    else if (m_isEnglish || now.name.isEmpty())
        what = now.sku.isEmpty() ? now.identifier : now.sku;
    else
        what = now.sku.isEmpty() ? now.name : QStringLiteral("%1 (%2)").arg(now.name, now.sku);
    const QString amount = left(now, false);
    return amount.isEmpty() ? what : what + QStringLiteral(", ") + amount;
}

QString Words::versions(const PrinterEvent::Values& values) const
{
    if (values.bootVersion.isEmpty())
        return values.firmwareVersion;
    return QStringLiteral("%1, %2").arg(values.firmwareVersion, values.bootVersion);
}

QString Words::firmware(const PrinterEvent& event) const
{
    if (event.code)
        return translated(
                   QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Firmware update failed, error %1"))
            .arg(*event.code);
    const QString before = versions(event.before);
    const QString after = versions(event.after);
    if (before.isEmpty())
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Firmware %1")).arg(after);
    return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Firmware %1, was %2"))
        .arg(after, before);
}

QString Words::of(const PrinterEvent& event) const
{
    using Kind = PrinterEvent::Kind;
    switch (event.kind) {
    case Kind::Status:
        return status(event);
    case Kind::Supply:
    case Kind::Ribbon:
        return slot(event).arg(loaded(event));
    case Kind::Level:
        return slot(event).arg(left(event.after, true));
    case Kind::CommandFailed:
        return event.reason.isEmpty() || m_isEnglish
                   ? event.text
                   : translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Command failed: %1"))
                         .arg(event.reason);
    case Kind::PrinterAdded:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Printer added"));
    case Kind::PrinterGone:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Printer removed"));
    case Kind::PrinterRenamed:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Printer renamed, was %1"))
            .arg(event.before.printer);
    case Kind::SpoolerStopped:
        return translated(QT_TRANSLATE_NOOP("VxKit::PrinterEvent",
                                            "Print spooler stopped, no printer can be read"));
    case Kind::SpoolerRunning:
        return translated(
            QT_TRANSLATE_NOOP("VxKit::PrinterEvent", "Print spooler is running again"));
    case Kind::Firmware:
        return firmware(event);
    case Kind::EventsLost: {
        const qint64 lost = event.lost.value_or(0);
        const QString pattern =
            lost == 1
                ? translated(QT_TRANSLATE_NOOP(
                      "VxKit::PrinterEvent",
                      "%1 event is missing since %2, because the log could not be written"))
                : translated(QT_TRANSLATE_NOOP(
                      "VxKit::PrinterEvent",
                      "%1 events are missing since %2, because the log could not be written"));
        return pattern.arg(lost).arg(time(event.since));
    }
    }
    return event.text;
}

} // namespace

QString eventText(const PrinterEvent& event, const QString& language)
{
    const QString words = Words(language == QLatin1String("en")).of(event);
    return words.isEmpty() ? event.text : words;
}

} // namespace VxKit
