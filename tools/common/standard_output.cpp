// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "standard_output.h"

#include "shown_text.h"
#include "system_output.h"
#include "tool_text.h"

#include <cerrno>
#include <system_error>

StandardOutput::StandardOutput(const char* tool, std::FILE* stream)
    : m_tool(tool)
    , m_stream(stream)
{
    system_output::prepare();
}

void StandardOutput::write(const QString& text)
{
    if (m_isOver)
        return;
    if (system_output::write(m_stream, text))
        return;
    const int error = errno;
    m_isOver = true;
    if (!system_output::failedAtClosedPipe())
        m_failure = QString::fromLocal8Bit(std::generic_category().message(error));
}

bool StandardOutput::isOver()
{
    m_isOver = m_isOver || system_output::isPipeClosed(m_stream);
    return m_isOver;
}

void StandardOutput::complain(const QString& message) const
{
    system_output::write(stderr,
                         toolName() + QLatin1String(": ") + shownAsMessage(message) + u'\n');
}

int StandardOutput::exitStatus(int status) const
{
    constexpr int failed = 1;
    if (m_failure.isEmpty())
        return status;
    complain(ToolText::tr("standard output could not be written: %1").arg(m_failure));
    return failed;
}
