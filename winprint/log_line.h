// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDebug>
#include <QtCore/QString>

#include <cute_logger.h>

/// How the library writes the fixed lines of its log.
///
/// People who support printers search logs for these lines, by text and by place, and compare logs
/// of many versions. The place that a line names is therefore its identity: it is kept with the
/// line and does not follow the source. Every line is written at debug level, the "ERROR:" ones
/// too. The lines themselves are in `printer_info_log_lines.h` and in `log_lines.h` of `status/`.
namespace log_lines {

struct LogLine
{
    const char* file;
    int number;
    const char* function;
    const char* message; ///< printf-style; null for the lines that are streamed
};

/// Writes a line whose message is printf-style, with 8-bit text.
template <typename... Text>
void print(const LogLine& line, const Text&... text)
{
    CuteMessageLogger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number, line.function)
        .write(line.message, static_cast<const char*>(text)...);
}

/// Writes a text as it stands.
inline void write(const LogLine& line, const QString& text)
{
    CuteMessageLogger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number, line.function)
        .write(text);
}

/// Writes a line item by item: `items` streams them, each of which is followed by a blank.
template <typename Items>
void stream(const LogLine& line, Items&& items)
{
    QString text;
    {
        QDebug debug(&text);
        items(debug);
    }
    write(line, text);
}

} // namespace log_lines
