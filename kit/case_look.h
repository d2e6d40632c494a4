// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_item.h"
#include "spooler_owners.h"
#include "wake_up.h"

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>
#include <vector>

namespace VxKit {

class CaseSession;

/// Looks at what the library does not read: which printers there are and how they are, the default
/// printer, the service, jobs, and other values. On a thread of its own.
class CaseLook
{
public:
    /// Zero: never, unless it is asked for.
    CaseLook(CaseSession& session, std::chrono::milliseconds interval);
    ~CaseLook();
    Q_DISABLE_COPY_MOVE(CaseLook)

    /// Looks soon.
    void wake() { m_wakeUp.wake(); }

private:
    void run();
    bool waitForNext();
    void look();
    void lookAtPrinters();
    void lookAtRights();
    void lookAtValues();
    void lookAtJobs();
    void lookAtJobs(const QString& printer, QMap<DWORD, QJsonObject>& known);

    CaseSession& m_session;
    const std::chrono::milliseconds m_interval;
    WakeUp m_wakeUp;
    std::atomic<bool> m_isEnding = false;

    // Only the thread uses the rest.
    PrinterOwner m_server;
    NotificationOwner m_notification;
    DWORD m_changes = 0;
    QStringList m_names;
    qsizetype m_nextRights = 0;
    QStringList m_waitingForValues;
    QHash<QString, std::chrono::steady_clock::time_point> m_valuesRead;
    QHash<QString, PublishedValues> m_otherValues;
    QHash<QString, QMap<DWORD, QJsonObject>> m_jobs;

    std::thread m_thread;
};

/// What is read at once of the spooler, for the beginning of a file.
struct SpoolerReading
{
    std::vector<BYTE> block;
    DWORD count = 0;
    std::vector<PublishedValues> values;     ///< of each printer
    std::vector<std::optional<bool>> rights; ///< whether the user may administer it
    std::optional<QString> defaultPrinter;   ///< null: there is none
    std::optional<DWORD> service;
    QList<QJsonObject> devices;

    const PRINTER_INFO_2W* records() const
    {
        return reinterpret_cast<const PRINTER_INFO_2W*>(block.data());
    }
};
SpoolerReading readSpooler();

} // namespace VxKit
