// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_log_message.h"

#include "plain_text.h"

#include <log_lines.h>
#include <printer_info_log_lines.h>
#include <windowserrors.h>

#include <QtCore/QDebug>

#include <algorithm>
#include <array>

namespace VxKit::case_log {

namespace {

using log_lines::LogLine;

constexpr std::array lines{
    &log_lines::openingFailed,
    &log_lines::notificationFailed,
    &log_lines::fullAccessFailed,
    &log_lines::evaluatingPrinter,
    &log_lines::activeFromUsersDefault,
    &log_lines::activeChosen,
    &log_lines::commandOpeningFailed,
    &log_lines::commandDocumentFailed,
    &log_lines::commandPageFailed,
    &log_lines::commandWritingFailed,
    &log_lines::hostsLine,
    &log_lines::wentOffline,
    &log_lines::activeFromWindowsDefault,
    &log_lines::supplyChanged,
    &log_lines::printerInfoSizing,
    &log_lines::printerInfoMemory,
    &log_lines::printerInfoReading,
};

const LogLine* lineAt(const QString& file, int number)
{
    const auto* const found = std::ranges::find_if(lines, [&](const LogLine* line) {
        return line->number == number && file == QLatin1String(line->file);
    });
    return found == lines.end() ? nullptr : *found;
}

/// The parts of a message between the fixed parts of its format.
std::optional<QString> onlyPart(const QString& message, const QString& format)
{
    const QStringList fixed = format.split(QStringLiteral("%s"));
    if (message.size() < fixed.first().size() + fixed.last().size() ||
        !message.startsWith(fixed.first()) || !message.endsWith(fixed.last()))
        return std::nullopt;
    return message.sliced(fixed.first().size(),
                          message.size() - fixed.first().size() - fixed.last().size());
}

/// "Evaluating Printer: %s ( %s ).": either part may contain what separates them.
std::optional<QString> evaluation(const QString& message, const Replacements& replacements)
{
    const QStringList fixed =
        QString::fromLatin1(log_lines::evaluatingPrinter.message).split(QStringLiteral("%s"));
    const QString& separator = fixed.at(1);
    const std::optional<QString> both =
        onlyPart(message, fixed.first() + QStringLiteral("%s") + fixed.last());
    if (!both)
        return std::nullopt;
    for (qsizetype place = both->indexOf(separator); place >= 0;
         place = both->indexOf(separator, place + 1)) {
        const QString printer = both->first(place);
        if (!replacements.isPrinter(printer))
            continue;
        return fixed.first() + replacements.printer(printer) + separator +
               replacements.driver(both->sliced(place + separator.size())) + fixed.last();
    }
    return std::nullopt;
}

/// Reads the items of a message that was streamed.
class StreamedItems
{
public:
    explicit StreamedItems(QStringView text)
        : m_rest(text)
    {}

    bool skip(QStringView text)
    {
        if (!m_rest.startsWith(text))
            return false;
        m_rest = m_rest.sliced(text.size());
        return true;
    }
    /// A quoted text and the blank behind it.
    std::optional<QString> text();
    bool isAtEnd() const { return m_rest.isEmpty(); }

private:
    std::optional<QChar> escaped();

    QStringView m_rest;
};

std::optional<QString> StreamedItems::text()
{
    if (!skip(u"\""))
        return std::nullopt;
    QString result;
    while (!m_rest.isEmpty()) {
        if (skip(u"\" "))
            return result;
        if (!m_rest.startsWith(u'\\')) {
            result += m_rest.front();
            m_rest = m_rest.sliced(1);
            continue;
        }
        // Texts with an escape other than these two are rare, and they are left out.
        if (skip(u"\\\""))
            result += u'"';
        else if (skip(u"\\\\"))
            result += u'\\';
        else
            return std::nullopt;
    }
    return std::nullopt;
}

/// The texts of `supplyChanged`: the printer, whether it is online, and the supply's SKU, colour,
/// colour name and material.
std::optional<QString> supply(const QString& message, const Replacements& replacements)
{
    StreamedItems items(message);
    if (!items.skip(u"\n "))
        return std::nullopt;
    const std::optional<QString> printer = items.text();
    if (!printer)
        return std::nullopt;
    const bool isOnline = items.skip(u"true ");
    if (!isOnline && !items.skip(u"false "))
        return std::nullopt;
    const std::optional<QString> sku = items.text();
    const std::optional<QString> colour = items.text();
    const std::optional<QString> colourName = items.text();
    const std::optional<QString> material = items.text();
    constexpr qsizetype digits = 6;
    if (!sku || !colour || !colourName || !material || !items.isAtEnd() ||
        !colour->startsWith(u'#') || !plain_text::isHex(colour->sliced(1), digits, digits))
        return std::nullopt;

    QString result;
    QDebug(&result) << "\n"
                    << replacements.printer(*printer) << isOnline << replacements.sku(*sku)
                    << *colour << replacements.name(*colourName) << replacements.name(*material);
    return result;
}

/// "Failure to access the printer  1722 The RPC server is unavailable. "
std::optional<QString> systemError(const QString& message, QLatin1String before)
{
    const QString rest = message.startsWith(before) ? message.sliced(before.size()) : QString();
    const QString number = rest.section(u' ', 0, 0);
    constexpr qsizetype mostDigits = 10;
    if (!plain_text::isDigits(number, 1, mostDigits))
        return std::nullopt;
    // The system's words, unless they are somebody else's.
    const QString words = rest.sliced(number.size()).trimmed();
    return words == windows_errors::winError(number.toUInt()).trimmed() ? std::optional(message)
                                                                        : std::nullopt;
}

} // namespace

bool isLine(const QString& file, int number, const QString& function)
{
    const LogLine* const line = lineAt(file, number);
    return line && function == QLatin1String(line->function);
}

std::optional<QString> redactedMessage(const QString& file, int number, const QString& message,
                                       const Replacements& replacements)
{
    const LogLine* const line = lineAt(file, number);
    if (line == &log_lines::evaluatingPrinter)
        return evaluation(message, replacements);
    if (line == &log_lines::supplyChanged)
        return supply(message, replacements);
    if (line == &log_lines::printerInfoSizing)
        return systemError(message, QLatin1String(""));
    if (line == &log_lines::printerInfoReading)
        return systemError(message, QLatin1String("Failure to access the printer  "));
    if (line == &log_lines::printerInfoMemory)
        return message.trimmed() == QLatin1String("Failure to allocate memory.")
                   ? std::optional(message)
                   : std::nullopt;
    if (!line || !line->message)
        return std::nullopt;
    const QString format = QString::fromLatin1(line->message);
    if (!format.contains(QLatin1String("%s")))
        return message == format ? std::optional(message) : std::nullopt;
    const std::optional<QString> printer = onlyPart(message, format);
    if (!printer)
        return std::nullopt;
    return QString(format).replace(QStringLiteral("%s"),
                                   printer->isEmpty() ? QString() : replacements.printer(*printer));
}

} // namespace VxKit::case_log
