// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "agent_log.h"

#include "shown_text.h"
#include "standard_output.h"

void ConsoleLog::write(Level level, const QString& text)
{
    switch (level) {
    case Level::Information:
        m_output.write(shownAsMessage(text) + QLatin1Char('\n'));
        break;
    case Level::Warning:
        m_output.complain(QStringLiteral("warning: ") + text);
        break;
    case Level::Error:
        m_output.complain(text);
        break;
    }
}
