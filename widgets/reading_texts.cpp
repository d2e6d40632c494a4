// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "reading_texts.h"

#include "level_bar.h"
#include "plain_line.h"

#include <QtCore/QLocale>
#include <QtCore/QMetaEnum>
#include <QtCore/QStringList>

namespace VxKit {

QString ReadingTexts::notKnown()
{
    return tr("Not known");
}

QString ReadingTexts::model(const PrinterReading& reading)
{
    return QLatin1String(QMetaEnum::fromType<VXPrinting::PrinterType>().valueToKey(
        static_cast<int>(reading.model())));
}

QString ReadingTexts::time(const QDateTime& time)
{
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat)
                          : QString();
}

QString ReadingTexts::shortTime(const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    return local.date() == QDate::currentDate()
               ? QLocale().toString(local.time(), QLocale::ShortFormat)
               : ReadingTexts::time(time);
}

QString ReadingTexts::status(const PrinterReading& reading)
{
    return plainLine(reading.statusInfo().shortTitle);
}

QString ReadingTexts::presence(const PrinterReading& reading)
{
    using Watching = PrinterReading::Watching;
    switch (reading.watching()) {
    case Watching::Gone:
        return reading.goneSince().isValid() ? tr("Removed %1").arg(time(reading.goneSince()))
                                             : tr("Removed");
    case Watching::NetworkPrinter:
        return tr("Network printer, not watched");
    case Watching::NotManaged:
        return tr("Not watched: you may not manage it");
    case Watching::NotDiscovered:
        return tr("Not watched yet");
    case Watching::Replaced:
        return tr("Replaced: watched again after a restart");
    case Watching::OfflineSinceDiscovery:
        return tr("Offline");
    case Watching::AgentOffline:
        //: the agent on the printer's computer
        return reading.unheardSince().isValid()
                   ? tr("Agent offline since %1").arg(shortTime(reading.unheardSince()))
                   : tr("Agent offline");
    case Watching::NotConnected:
        //: the values are old
        return tr("As it was at %1").arg(shortTime(reading.unheardSince()));
    case Watching::Watched:
        break;
    }
    return reading.isOnline() ? QString() : tr("Offline");
}

bool ReadingTexts::isStale(const PrinterReading& reading)
{
    return reading.watching() != PrinterReading::Watching::Watched || !reading.isOnline();
}

QString ReadingTexts::age(const QDateTime& then, const QDateTime& now)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    const qint64 seconds = then.secsTo(now);
    // Also a clock that was put back: nothing is reported in the future.
    if (seconds < minute)
        return tr("just now");
    if (seconds < hour)
        return tr("%1 min ago").arg(seconds / minute);
    if (seconds < 24 * hour)
        return tr("%1 h ago").arg(seconds / hour);
    return time(then);
}

QString ReadingTexts::lastReport(const PrinterReading& reading, const QDateTime& now)
{
    if (!reading.lastReport().isValid())
        return tr("No report yet");
    //: %1 is such as "5 min ago"
    return tr("Last report: %1").arg(age(reading.lastReport(), now));
}

QString ReadingTexts::spokenName(const PrinterReading& reading)
{
    const StatusInfo info = reading.statusInfo();
    QStringList parts{plainLine(reading.name())};
    if (reading.isActive())
        parts.append(tr("active printer"));
    //: %1 is a status, %2 is such as "error"
    parts.append(tr("%1 (%2)").arg(status(reading), severityName(info.severity)));
    parts.append(model(reading));
    if (const QString text = presence(reading); !text.isEmpty() && text != status(reading))
        parts.append(text);
    return parts.join(QStringLiteral(", "));
}

QString ReadingTexts::spokenDetails(const PrinterReading& reading, const QDateTime& now)
{
    const auto sentence = [](const QString& text) {
        //: %1 is a sentence without its full stop
        return tr("%1.").arg(text);
    };
    QStringList sentences;
    const QList<Slot> slotList = reading.slotList();
    for (const Slot slot : slotList)
        sentences.append(sentence(plainLine(levelSentence(slot, reading.level(slot)))));
    const StatusInfo info = reading.statusInfo();
    sentences << plainLine(info.explanation) << plainLine(info.remedy)
              << sentence(lastReport(reading, now));
    return sentences.join(u' ');
}

QString ReadingTexts::toolTip(const PrinterReading& reading, const QDateTime& now)
{
    const StatusInfo info = reading.statusInfo();
    const auto paragraph = [](const QString& text) {
        return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
    };
    QString text =
        QStringLiteral("<p><b>%1</b><br>%2</p>")
            .arg(plainLine(reading.name()).toHtmlEscaped(), model(reading).toHtmlEscaped());
    text += QStringLiteral("<p><b>%1</b></p>").arg(status(reading).toHtmlEscaped());
    text += paragraph(plainLine(info.explanation)) + paragraph(plainLine(info.remedy));
    QStringList lines;
    const QList<Slot> slotList = reading.slotList();
    for (const Slot slot : slotList)
        lines.append(plainLine(levelSentence(slot, reading.level(slot))).toHtmlEscaped());
    if (reading.isActive())
        lines.append(tr("This is the active printer.").toHtmlEscaped());
    if (const QString reason = presence(reading); !reason.isEmpty())
        lines.append(reason.toHtmlEscaped());
    lines.append(lastReport(reading, now).toHtmlEscaped());
    return text + QStringLiteral("<p>%1</p>").arg(lines.join(QStringLiteral("<br>")));
}

QString ReadingTexts::details(const PrinterReading& reading)
{
    const StatusInfo info = reading.statusInfo();
    QStringList lines;
    const auto add = [&lines](const QString& name, const QString& value) {
        lines.append(tr("%1: %2").arg(name, value.isEmpty() ? notKnown() : value));
    };
    add(tr("Printer"), plainLine(reading.name()));
    add(tr("Model"), model(reading));
    add(tr("Serial number"), plainLine(reading.serialNumber()));
    add(tr("Driver"), plainLine(reading.driver()));
    add(tr("Port"), plainLine(reading.port()));
    add(tr("Firmware"), plainLine(reading.firmwareVersion()));
    add(tr("Status"),
        tr("%1 (%2, code %3)")
            .arg(status(reading), severityName(info.severity), QString::number(info.code)));
    add(tr("Explanation"), plainLine(info.explanation));
    add(tr("Remedy"), plainLine(info.remedy));
    const QList<Slot> slotList = reading.slotList();
    for (const Slot slot : slotList)
        lines.append(plainLine(levelSentence(slot, reading.level(slot))));
    if (const QString reason = presence(reading); !reason.isEmpty())
        lines.append(reason);
    add(tr("Last report"), time(reading.lastReport()));
    return lines.join(u'\n') + u'\n';
}

} // namespace VxKit
