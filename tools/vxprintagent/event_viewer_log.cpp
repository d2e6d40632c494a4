// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_viewer_log.h"

#include "agent_messages.h"
#include "shown_text.h"

#include <QtCore/QDir>

#include <array>
#include <string>

namespace {

const wchar_t source[] = L"vxprintagent";
const wchar_t sourceKey[] =
    L"SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application\\vxprintagent";

struct Kind
{
    WORD type;
    DWORD message;
};

Kind kindOf(AgentLog::Level level)
{
    switch (level) {
    case AgentLog::Level::Information:
        break;
    case AgentLog::Level::Warning:
        return {EVENTLOG_WARNING_TYPE, AGENT_WARNING};
    case AgentLog::Level::Error:
        return {EVENTLOG_ERROR_TYPE, AGENT_ERROR};
    }
    return {EVENTLOG_INFORMATION_TYPE, AGENT_INFORMATION};
}

/// The event viewer takes "%1" in an entry's text for a place to insert another text:
/// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-reporteventw
QString withoutInsertions(QString text)
{
    return text.replace(u'%', QLatin1String("\\u0025"));
}

DWORD setValue(HKEY key, const wchar_t* name, DWORD type, const void* data, std::size_t size)
{
    return static_cast<DWORD>(RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data),
                                             static_cast<DWORD>(size)));
}

} // namespace

EventViewerLog::EventViewerLog()
    : m_log(RegisterEventSourceW(nullptr, source))
{}

EventViewerLog::~EventViewerLog()
{
    if (m_log)
        DeregisterEventSource(m_log);
}

void EventViewerLog::write(Level level, const QString& text)
{
    if (!m_log)
        return;
    const Kind kind = kindOf(level);
    const std::wstring line = withoutInsertions(shownAsMessage(text)).toStdWString();
    std::array<const wchar_t*, 1> insertions{line.c_str()};
    // There is nowhere else to say that this has failed.
    ReportEventW(m_log, kind.type, 0, kind.message, nullptr, static_cast<WORD>(insertions.size()),
                 0, insertions.data(), nullptr);
}

// https://learn.microsoft.com/windows/win32/eventlog/event-sources
DWORD EventViewerLog::addSource(const QString& program)
{
    HKEY key = nullptr;
    auto error = static_cast<DWORD>(RegCreateKeyExW(HKEY_LOCAL_MACHINE, sourceKey, 0, nullptr, 0,
                                                    KEY_SET_VALUE, nullptr, &key, nullptr));
    if (error != ERROR_SUCCESS)
        return error;
    const std::wstring file = QDir::toNativeSeparators(program).toStdWString();
    const DWORD types = EVENTLOG_INFORMATION_TYPE | EVENTLOG_WARNING_TYPE | EVENTLOG_ERROR_TYPE;
    error = setValue(key, L"EventMessageFile", REG_SZ, file.c_str(),
                     (file.size() + 1) * sizeof(wchar_t));
    if (error == ERROR_SUCCESS)
        error = setValue(key, L"TypesSupported", REG_DWORD, &types, sizeof types);
    RegCloseKey(key);
    return error;
}

DWORD EventViewerLog::removeSource()
{
    const auto error = static_cast<DWORD>(RegDeleteKeyW(HKEY_LOCAL_MACHINE, sourceKey));
    return error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error;
}
