// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_replay.h"
#include "tool_text.h"

#include <printer_types.h>
#include <windows_printer_info.h>

#include <QtCore/QMap>
#include <QtCore/QSet>

#include <algorithm>
#include <optional>
#include <tuple>

namespace {

using case_replay::Difference;
using case_replay::Outputs;
using virtualwindows::Case;
using virtualwindows::CaseChapter;
using virtualwindows::CaseOutput;
using Kind = CaseOutput::Kind;

constexpr QLatin1String threadFile("printer_status_thread");
constexpr QLatin1String controllerFile("printer_status_controller");
constexpr QLatin1String printerInfoFile("windows_printer_info");

/// The signals and lines of one printer that come in a fixed order.
struct Stream
{
    QString printer;
    /// What a monitoring thread writes into the log, and each signal that is about no printer, can
    /// come sooner or later than the rest.
    QString part;

    friend bool operator<(const Stream& left, const Stream& right)
    {
        return std::tie(left.printer, left.part) < std::tie(right.printer, right.part);
    }
};

QString between(const QString& text, QLatin1String begin, QLatin1String end)
{
    const qsizetype from = begin.size();
    const qsizetype to = end.isEmpty() ? text.size() : text.lastIndexOf(end);
    return text.startsWith(begin) && to >= from ? text.sliced(from, to - from) : QString();
}

/// The printer that a line of the controller is about; null if it is about none.
QString printerOfLine(const QString& message)
{
    static constexpr QLatin1String active("Setting defaultActivePrinter ");
    QString printer = between(message, QLatin1String("Evaluating Printer: "), QLatin1String(" ( "));
    if (printer.isNull())
        printer = between(message, active, QLatin1String(" from user-selected default."));
    if (printer.isNull())
        printer = between(message, active, QLatin1String(" from Windows default."));
    if (printer.isNull())
        printer = between(message, active, QLatin1String("."));
    if (printer.isNull())
        printer = between(message, QLatin1String(""), QLatin1String(" went offline"));
    if (printer.isNull() && message.startsWith(QLatin1String("\n \"")))
        printer = message.section(u'"', 1, 1);
    return printer;
}

/// The printers of other makers, and of models that are not supported.
QSet<QString> ignoredPrinters(const QList<CaseOutput>& outputs)
{
    static constexpr QLatin1String evaluating("Evaluating Printer: ");
    static constexpr QLatin1String driver(" ( ");
    QSet<QString> ignored;
    for (const CaseOutput& output : outputs) {
        const QString name = between(output.message, evaluating, driver);
        if (name.isNull())
            continue;
        const QString rest = output.message.sliced(evaluating.size() + name.size());
        const auto type =
            WindowsPrinterInfo::printerType(between(rest, driver, QLatin1String(" ).")));
        if (!VXPrinting::isSupported(type))
            ignored.insert(name);
    }
    return ignored;
}

/// While no printer is supported, the library makes any of the ignored ones the active printer,
/// not the same one in each process. That it does so is compared, and not which one it takes.
CaseOutput comparable(CaseOutput output, const QSet<QString>& ignored)
{
    static constexpr QLatin1String active("activePrinterName");
    if (output.kind == Kind::Signal) {
        if (ignored.contains(output.arguments.value(active).toString()))
            output.arguments.insert(active, QString());
    } else if (output.function.contains(QLatin1String("::initializeDefaultPrinter(")) &&
               ignored.contains(printerOfLine(output.message))) {
        output.message.clear();
    }
    return output;
}

/// Nothing for what only the host causes, which is not played again, and for what is not the
/// library's.
std::optional<Stream> streamOf(const CaseOutput& output)
{
    if (output.kind == Kind::Signal) {
        for (const char* name : {"printerName", "activePrinterName"}) {
            const auto printer = output.arguments.constFind(QLatin1String(name));
            if (printer != output.arguments.cend())
                return Stream{printer->toString(), {}};
        }
        return Stream{{}, output.name};
    }
    if (output.sourceFile == threadFile)
        return Stream{between(output.message, QLatin1String(""), QLatin1String(": ")), threadFile};
    if (output.sourceFile == printerInfoFile)
        return Stream{{}, printerInfoFile};
    const bool isHosts = output.function.contains(QLatin1String("::sendToLogger(")) ||
                         output.function.contains(QLatin1String("::sendCommandToPrinter("));
    if (output.sourceFile != controllerFile || isHosts)
        return std::nullopt;
    return Stream{printerOfLine(output.message), {}};
}

using Streams = QMap<Stream, QList<CaseOutput>>;

Streams sorted(const QList<CaseOutput>& outputs, const QSet<QString>& ignored)
{
    Streams streams;
    for (const CaseOutput& output : outputs) {
        const CaseOutput compared = comparable(output, ignored);
        if (const std::optional<Stream> stream = streamOf(compared))
            streams[*stream].append(compared);
    }
    return streams;
}

bool isSame(const CaseOutput& left, const CaseOutput& right)
{
    if (left.kind != right.kind)
        return false;
    if (left.kind == Kind::Signal)
        return left.name == right.name && left.arguments == right.arguments;
    return left.level.compare(right.level, Qt::CaseInsensitive) == 0 &&
           left.sourceFile == right.sourceFile && left.sourceLine == right.sourceLine &&
           left.function == right.function &&
           // Redaction leaves out a text that it does not know.
           (left.message == right.message || left.message.isNull() || right.message.isNull());
}

std::optional<Difference> firstDifference(const Stream& stream, const QList<CaseOutput>& recorded,
                                          const QList<CaseOutput>& replayed, bool isCut)
{
    const auto [left, right] = std::ranges::mismatch(recorded, replayed, isSame);
    const bool isRecordedDone = left == recorded.end();
    if (isRecordedDone && (right == replayed.end() || isCut))
        return std::nullopt;
    Difference difference;
    difference.printer = stream.printer;
    difference.place = left - recorded.begin() + 1;
    if (!isRecordedDone)
        difference.recorded = *left;
    if (right != replayed.end())
        difference.replayed = *right;
    return difference;
}

/// Where in the file it is: what was not recorded has the line of its step.
int lineOf(const Difference& difference)
{
    return difference.recorded ? difference.recorded->line : difference.replayed->line;
}

QString valueText(const QVariant& value)
{
    return value.typeId() == QMetaType::QString ? u'"' + value.toString() + u'"' : value.toString();
}

QString side(const QString& title, const std::optional<CaseOutput>& output)
{
    if (!output)
        return QStringLiteral("  %1: %2").arg(title, ToolText::tr("nothing"));
    return QStringLiteral("  %1: %2 (%3)")
        .arg(title, case_replay::described(*output).replace(u'\n', u' '),
             ToolText::tr("line %1, after %2 s")
                 .arg(output->line)
                 .arg(static_cast<double>(output->at.count()) / 1000, 0, 'f', 3));
}

} // namespace

case_replay::Comparison case_replay::compare(const Case& recorded, const Outputs& outputs)
{
    Comparison comparison;
    for (const CaseChapter& chapter : recorded.chapters) {
        comparison.stepCount += chapter.steps.size();
        const auto count = std::ranges::count(chapter.outputs, Kind::Signal, &CaseOutput::kind);
        comparison.signalCount += count;
        comparison.logLineCount += chapter.outputs.size() - count;
    }
    for (qsizetype place = 0; place < recorded.chapters.size() && !comparison.first; ++place) {
        const bool isLast = place + 1 == recorded.chapters.size();
        const bool isCut = !isLast || recorded.isCut;
        QList<CaseOutput> replayed = outputs.value(place);
        // A host can be recorded without its signals.
        if (comparison.signalCount == 0)
            replayed.removeIf([](const CaseOutput& output) { return output.kind == Kind::Signal; });
        const QList<CaseOutput>& outputsBefore = recorded.chapters.at(place).outputs;
        // A recording that began while the controller was there does not say itself which they are.
        const QSet<QString> ignored = ignoredPrinters(outputsBefore) + ignoredPrinters(replayed);
        const Streams before = sorted(outputsBefore, ignored);
        const Streams now = sorted(replayed, ignored);
        Streams all = now;
        all.insert(before);
        for (auto stream = all.cbegin(); stream != all.cend(); ++stream) {
            const std::optional<Difference> difference = firstDifference(
                stream.key(), before.value(stream.key()), now.value(stream.key()), isCut);
            if (difference &&
                (!comparison.first || lineOf(*difference) < lineOf(*comparison.first)))
                comparison.first = difference;
        }
    }
    return comparison;
}

QString case_replay::described(const CaseOutput& output)
{
    if (output.kind == Kind::LogLine)
        return QStringLiteral("[%1] %2:%3 %4")
            .arg(output.level, output.sourceFile)
            .arg(output.sourceLine)
            .arg(output.message);
    QStringList arguments;
    for (auto entry = output.arguments.cbegin(); entry != output.arguments.cend(); ++entry)
        arguments.append(entry.key() + QStringLiteral(": ") + valueText(*entry));
    return QStringLiteral("%1(%2)").arg(output.name, arguments.join(QStringLiteral(", ")));
}

QString case_replay::described(const std::optional<Difference>& difference)
{
    if (!difference)
        return {};
    const QString subject =
        difference->printer.isNull()
            ? ToolText::tr("Signals and log lines that are about no printer: the first difference "
                           "is at number %1")
                  .arg(difference->place)
            : ToolText::tr("Signals and log lines of \"%1\": the first difference is at number %2")
                  .arg(difference->printer)
                  .arg(difference->place);
    return QStringList{subject, side(ToolText::tr("recorded"), difference->recorded),
                       side(ToolText::tr("replayed"), difference->replayed)}
        .join(u'\n');
}
