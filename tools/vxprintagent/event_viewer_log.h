// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "agent_log.h"

#include <windows.h>

/// Writes to the Windows event log, in which the event viewer shows the lines under the agent's
/// name. May be used by several threads.
///
/// The texts of its entries come from a table of messages in this program's own resources, so that
/// the event viewer shows each line and nothing around it, and the numbers of the kinds (1
/// information, 2 warning, 3 error) are the agent's own. The ready-made table of Windows' own
/// eventcreate.exe would do too, but it belongs to a program that nobody promises to keep.
class EventViewerLog : public AgentLog
{
public:
    EventViewerLog();
    ~EventViewerLog() override;
    Q_DISABLE_COPY_MOVE(EventViewerLog)

    void write(Level level, const QString& text) override;

    /// Has the event viewer find the texts in `program`. Returns an error of Windows.
    static DWORD addSource(const QString& program);
    static DWORD removeSource();

private:
    HANDLE m_log = nullptr;
};
