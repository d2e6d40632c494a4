// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDebug>
#include <QtCore/QString>

#include <cute_logger.h>

/// How the library writes the fixed lines of its log.
///
/// People who support printers search logs for these lines by text and by place, and compare the
/// logs of different versions. So the file, number and function of a line are fixed and do not
/// follow the source. Every line is written at debug level, also those that begin with "ERROR:".
/// The lines themselves are in `printer_info_log_lines.h` and, for `status/`, in `log_lines.h`.
namespace log_lines {

struct LogLine
{
    const char* file;
    int number;
    const char* function;
    const char* message; ///< printf-style; null for lines whose text is passed
};

/// Writes a line whose message is printf-style, with 8-bit text.
template <typename... Text>
void print(const LogLine& line, const Text&... text)
{
    CuteMessageLogger logger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number,
                             line.function);
    if constexpr (sizeof...(text) == 0)
        logger.write("%s", line.message);
    else
        logger.write(line.message, static_cast<const char*>(text)...);
}

/// Writes a text without any formatting.
inline void write(const LogLine& line, const QString& text)
{
    CuteMessageLogger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number, line.function)
        .write(text);
}

/// Writes the text that `items` streams; the stream adds a blank after each item.
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
