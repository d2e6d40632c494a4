// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "catalogue_file.h"
#include "commands.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "records.h"
#include "stop_condition.h"

#include <case_recorder.h>
#include <printer_discovery.h>
#include <printer_status_controller.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QTimer>

#include <array>
#include <cmath>
#include <optional>

using namespace std::chrono_literals;

namespace {

/// How often it says what it has.
constexpr auto progressInterval = 30s;
constexpr qint64 mebibyte = qint64(1024) * 1024;
constexpr qint64 smallestLimit = mebibyte;
constexpr qint64 largestLimit = 1024 * mebibyte;

/// The bytes that a text such as "500K", "64M", "1G" or "1048576" means; empty if it is none.
std::optional<qint64> sizeMeantBy(const QString& text)
{
    struct Unit
    {
        QChar letter;
        qint64 bytes;
    };
    constexpr std::array units{Unit{u'K', 1024}, Unit{u'M', mebibyte}, Unit{u'G', 1024 * mebibyte}};
    QString number = text;
    qint64 unit = 1;
    for (const Unit& candidate : units) {
        if (!number.endsWith(candidate.letter, Qt::CaseInsensitive))
            continue;
        number.chop(1);
        unit = candidate.bytes;
        break;
    }
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    const double bytes = value * static_cast<double>(unit);
    if (!isNumber || !std::isfinite(bytes) || bytes < smallestLimit || bytes > largestLimit)
        return std::nullopt;
    return static_cast<qint64>(bytes);
}

QString sizeText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeIecFormat);
}

QString durationText(std::chrono::milliseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration).count();
    const auto two = [](qint64 number) {
        return QString::number(number).rightJustified(2, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600)
        .arg(two(seconds / 60 % 60), two(seconds % 60));
}

QString json(const VxKit::CaseRecorderSummary& summary, bool isLast)
{
    return json_text::object(
               {{QStringLiteral("event"),
                 json_text::value(isLast ? QStringLiteral("end") : QStringLiteral("progress"))},
                {QStringLiteral("file"), json_text::value(summary.fileName)},
                {QStringLiteral("seconds"),
                 json_text::value(static_cast<double>(summary.duration.count()) / 1000)},
                {QStringLiteral("printers"), json_text::value(summary.printers)},
                {QStringLiteral("steps"), json_text::value(summary.steps)},
                {QStringLiteral("signals"), json_text::value(summary.signalCount)},
                {QStringLiteral("logLines"), json_text::value(summary.logLines)},
                {QStringLiteral("faster"), json_text::value(summary.faster)},
                {QStringLiteral("dropped"), json_text::value(summary.dropped)},
                {QStringLiteral("lost"), json_text::value(summary.lost)},
                {QStringLiteral("bytes"), json_text::value(summary.bytes)}}) +
           QLatin1Char('\n');
}

/// What has been recorded so far, on one line.
QString progress(const VxKit::CaseRecorderSummary& summary)
{
    return ToolText::tr("%1  printers %2, changes %3, signals %4, log lines %5, %6")
        .arg(durationText(summary.duration))
        .arg(summary.printers)
        .arg(summary.steps)
        .arg(summary.signalCount)
        .arg(summary.logLines)
        .arg(sizeText(summary.bytes));
}

void printSummary(Output& output, const VxKit::CaseRecorderSummary& summary, bool isPlain)
{
    const QLocale locale;
    QList<QList<Cell>> rows{{{ToolText::tr("File")}, {summary.fileName}},
                            {{ToolText::tr("Size")}, {sizeText(summary.bytes)}},
                            {{ToolText::tr("Duration")}, {durationText(summary.duration)}},
                            {{ToolText::tr("Printers")}, {locale.toString(summary.printers)}},
                            {{ToolText::tr("Changes")}, {locale.toString(summary.steps)}},
                            {{ToolText::tr("Signals")}, {locale.toString(summary.signalCount)}},
                            {{ToolText::tr("Log lines")}, {locale.toString(summary.logLines)}}};
    if (summary.faster > 0)
        rows.append({{ToolText::tr("Faster than read")}, {locale.toString(summary.faster)}});
    if (summary.dropped > 0)
        rows.append(
            {{ToolText::tr("Left out to keep the limit")}, {locale.toString(summary.dropped)}});
    if (summary.lost > 0)
        rows.append({{ToolText::tr("Not written")}, {locale.toString(summary.lost)}});
    output.details(rows);
    output.line(
        {{isPlain ? ToolText::tr("The file has the names of printers, people and computers. "
                                 "\"vxprintmon case redact\" takes them out.")
                  : ToolText::tr("Names, serial numbers and addresses are replaced. \"vxprintmon "
                                 "case show\" shows what is in the file.")}});
}

} // namespace

void checkRecord(const CommandLine& line)
{
    if (!line.limit.isEmpty() && !sizeMeantBy(line.limit))
        throw wrongUsage(ToolText::tr("--limit: expected a size from 1M to 1G such as 64M, "
                                      "found \"%1\"")
                             .arg(line.limit));
}

void runRecord(const CommandLine& line, Output& output, Backend& backend)
{
    VxKit::CaseRecorderOptions options;
    options.fileName = line.arguments.first();
    options.isPlain = line.plain;
    options.recorder = QStringLiteral("vxprintmon");
    if (!line.limit.isEmpty())
        options.maxFileSize = *sizeMeantBy(line.limit);
    if (QFileInfo::exists(options.fileName))
        throw Failure(ToolText::tr("%1 exists and is not replaced; choose another name, or delete "
                                   "it first")
                          .arg(options.fileName));

    VxKit::CaseRecorder recorder(options);
    if (!recorder.isRecording())
        throw Failure(
            ToolText::tr("cannot create %1: %2").arg(options.fileName, recorder.errorString()));
    PrinterStatusController controller;
    catalogue_file::use(line, controller, output);
    recorder.setController(&controller);
    VxKit::PrinterDiscovery discovery(&controller);

    StopCondition stop(controller, output);
    QObject::connect(&stop, &StopCondition::met, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    if (line.seconds)
        stop.setTimeLimit(std::chrono::milliseconds(qRound(*line.seconds * 1000)));
    if (!line.json)
        output.line({{line.seconds ? ToolText::tr("Recording into %1.").arg(options.fileName)
                                   : ToolText::tr("Recording into %1, until it is interrupted "
                                                  "(Ctrl-C).")
                                         .arg(options.fileName)}});

    bool hasComplained = false;
    const auto complain = [&] {
        const QString error = recorder.errorString();
        if (!error.isEmpty() && !hasComplained)
            output.complain(ToolText::tr("cannot write %1: %2; it is tried again every second")
                                .arg(options.fileName, error));
        hasComplained = !error.isEmpty();
    };
    QTimer errorTimer;
    QObject::connect(&errorTimer, &QTimer::timeout, &controller, complain);
    errorTimer.start(1s);
    QTimer progressTimer;
    QObject::connect(&progressTimer, &QTimer::timeout, &controller, [&] {
        if (line.json)
            output.text(json(recorder.summary(), false));
        else
            output.line({{progress(recorder.summary())}});
    });
    progressTimer.start(progressInterval);

    backend.start([&controller] { return records::watchedPrinters(controller); });
    QCoreApplication::exec();

    recorder.stop();
    const VxKit::CaseRecorderSummary summary = recorder.summary();
    if (line.json)
        output.text(json(summary, true));
    else
        printSummary(output, summary, line.plain);
    if (!recorder.errorString().isEmpty())
        throw Failure(
            ToolText::tr("cannot write %1: %2").arg(options.fileName, recorder.errorString()));
}
