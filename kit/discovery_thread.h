// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The thread of PrinterDiscovery: it waits for the print spooler's notifications and compares what
// is listed.
#pragma once

#include "printer_listing.h"
#include "spooler_owners.h"
#include "wake_up.h"

#include <QtCore/QThread>

#include <atomic>
#include <chrono>
#include <functional>

namespace VxKit {

/// What the thread has found out.
struct DiscoveryNews
{
    ListingChanges changes;
    QStringList names; ///< all printers that are listed now
    QString defaultPrinter;
    bool isDefaultNew = false;
    bool isSpoolerRunning = true;
    bool isRunningNew = false;
    bool isNotified = false;
    bool isFirst = false;
};

class DiscoveryThread : public QThread
{
public:
    /// `report` is called on the thread.
    explicit DiscoveryThread(const std::function<void(const DiscoveryNews&)>& report);
    /// Ends the thread and waits until it has ended.
    ~DiscoveryThread() override;
    Q_DISABLE_COPY_MOVE(DiscoveryThread)

protected:
    void run() override;

private:
    using Milliseconds = std::chrono::milliseconds;

    // All three return false when the thread has to end.
    bool rest(Milliseconds time);
    bool waitForChange(Milliseconds time);
    bool waitForNext();
    bool watchServer();
    void stopWatching();
    /// Re-arms the notification. False when it is dead, and no longer watched.
    bool rearm(DWORD& changes);

    void lookAfterChange(DWORD changes);
    void lookWithoutNotification();
    bool listAll(DWORD changes);
    void inspect();
    void compareDefaultPrinter();
    void noteFailedListing();
    void noteRunning(bool running);
    void tell();

    const std::function<void(const DiscoveryNews&)> m_report;
    WakeUp m_wakeUp;
    std::atomic<bool> m_isEnding = false;

    // Only the thread uses the rest.
    PrinterOwner m_server;
    NotificationOwner m_notification;
    int m_ticksToNextTry = 0;
    int m_ticksBetweenTries = 1;
    PrinterListing m_listing;
    bool m_isListingDue = true; ///< something may have changed since the last listing
    bool m_hasListed = false;
    Milliseconds m_rest{};
    DiscoveryNews m_news;
    bool m_hasNews = false;
};

} // namespace VxKit
