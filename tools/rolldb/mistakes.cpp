// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "mistakes.h"

#include "tool_text.h"

#include <iterator>

void Mistakes::add(int file, const Mistake& mistake)
{
    m_kept.emplace(Place{file, mistake.line(), mistake.column()}, mistake.message());
    if (m_kept.size() > most) {
        m_kept.erase(std::prev(m_kept.end()));
        ++m_others;
    }
}

void Mistakes::throwIfAny() const
{
    if (m_kept.empty())
        return;
    QStringList messages;
    for (const auto& [place, message] : m_kept)
        messages.append(message);
    if (m_others > 0)
        messages.append(ToolText::tr("... and %1 more").arg(m_others));
    throw Failure(messages);
}
