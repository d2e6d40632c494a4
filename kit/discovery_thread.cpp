// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "discovery_thread.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// How often everything is looked at for which there is no notification.
constexpr std::chrono::milliseconds tick = 5s;
/// At most one listing in this time, and at most this part of the time for listings.
constexpr std::chrono::milliseconds shortestRest = 1s;
constexpr std::chrono::milliseconds longestRest = 30s;
constexpr int restPerListing = 100;
/// How many printers' rights are tried each time, because each takes a call to the spooler.
constexpr int inspectedAtOnce = 8;
/// In ticks: how long the thread waits at most before it tries again to get a notification.
constexpr int longestPause = 12;

constexpr DWORD watchedChanges =
    PRINTER_CHANGE_ADD_PRINTER | PRINTER_CHANGE_SET_PRINTER | PRINTER_CHANGE_DELETE_PRINTER;

/// The print server of this machine.
PrinterOwner openServer()
{
    HANDLE handle = nullptr;
    return PrinterOwner(OpenPrinterW(nullptr, &handle, nullptr) ? handle : nullptr);
}

/// Adds what was found out later.
void append(ListingChanges& changes, const ListingChanges& more)
{
    changes.any = changes.any || more.any;
    changes.gone += more.gone;
    changes.renamed += more.renamed;
    changes.added += more.added;
    changes.online += more.online;
    changes.administrable += more.administrable;
}

} // namespace

DiscoveryThread::DiscoveryThread(const std::function<void(const DiscoveryNews&)>& report)
    : m_report(report)
{
    setObjectName(QStringLiteral("VxKit::PrinterDiscovery"));
}

DiscoveryThread::~DiscoveryThread()
{
    m_isEnding = true;
    do
        m_wakeUp.wake();
    while (!QThread::wait(100));
}

bool DiscoveryThread::rest(Milliseconds time)
{
    if (!m_isEnding)
        m_wakeUp.wait(time);
    return !m_isEnding;
}

bool DiscoveryThread::waitForChange(Milliseconds time)
{
    const std::array handles{m_notification.get()};
    if (!m_isEnding && m_wakeUp.wait(time, handles).why == Waited::Why::Failed) {
        stopWatching(); // a handle that cannot be waited for is of no use
        m_ticksToNextTry = longestPause;
        return rest(time);
    }
    return !m_isEnding;
}

bool DiscoveryThread::watchServer()
{
    if (m_wakeUp.canWaitForHandles())
        m_server = openServer();
    if (m_server)
        m_notification = watchChanges(m_server, watchedChanges);
    if (!m_notification)
        m_server.reset();
    m_news.isNotified = m_notification != nullptr;
    return m_news.isNotified;
}

void DiscoveryThread::stopWatching()
{
    m_notification.reset();
    m_server.reset();
    m_news.isNotified = false;
    m_ticksToNextTry = 0;
    m_ticksBetweenTries = 1;
    m_isListingDue = true; // changes may have been missed
}

bool DiscoveryThread::rearm(DWORD& changes)
{
    DWORD more = 0;
    if (!FindNextPrinterChangeNotification(m_notification.get(), &more, nullptr, nullptr)) {
        stopWatching();
        return false;
    }
    changes |= more;
    return true;
}

void DiscoveryThread::run()
{
    do {
        m_rest = 0ms;
        DWORD changes = 0;
        // Also after a time-out: only this call tells that the spooler was restarted.
        if (m_notification && rearm(changes))
            lookAfterChange(changes);
        else
            lookWithoutNotification();
        inspect();
        compareDefaultPrinter();
        tell();
    } while (waitForNext());
}

bool DiscoveryThread::waitForNext()
{
    if (!m_notification)
        return rest(std::max(m_rest, tick));
    if (m_rest > 0ms && !rest(m_rest))
        return false;
    return (m_rest > 0ms && m_isListingDue) || waitForChange(tick);
}

void DiscoveryThread::lookAfterChange(DWORD changes)
{
    if (!m_isListingDue && !changes)
        return;
    m_isListingDue = true;
    listAll(changes);
}

void DiscoveryThread::lookWithoutNotification()
{
    const bool isTimeToTry = --m_ticksToNextTry <= 0;
    if (isTimeToTry && watchServer()) {
        listAll(0);
        return;
    }
    if (isTimeToTry) {
        m_ticksToNextTry = m_ticksBetweenTries;
        m_ticksBetweenTries = std::min(m_ticksBetweenTries * 2, longestPause);
    }
    if (m_isListingDue) {
        listAll(0);
        return;
    }
    switch (m_listing.listNames()) {
    case PrinterListing::Outcome::Failed:
        noteFailedListing();
        break;
    case PrinterListing::Outcome::Different:
        m_isListingDue = true;
        listAll(0);
        break;
    case PrinterListing::Outcome::Same:
        break;
    }
}

bool DiscoveryThread::listAll(DWORD changes)
{
    const auto begin = std::chrono::steady_clock::now();
    const PrinterListing::Outcome outcome = m_listing.list();
    const auto duration = std::chrono::ceil<Milliseconds>(
        (std::chrono::steady_clock::now() - begin) * restPerListing);
    m_rest = std::clamp(duration, shortestRest, longestRest);
    if (outcome == PrinterListing::Outcome::Failed) {
        noteFailedListing();
        return false;
    }
    m_isListingDue = false;
    noteRunning(true);

    if (outcome == PrinterListing::Outcome::Different) {
        // Names that are gone and names that are new belong together if the spooler has reported
        // nothing but changed printers up to now. What it reports meanwhile may be newer than the
        // listing.
        DWORD meanwhile = 0;
        if (m_notification && m_listing.hasRenameCandidates() && rearm(meanwhile))
            m_isListingDue = meanwhile != 0;
        const DWORD all = changes | meanwhile;
        const bool mayBeRenamed =
            m_notification && (all & PRINTER_CHANGE_SET_PRINTER) &&
            !(all & (PRINTER_CHANGE_ADD_PRINTER | PRINTER_CHANGE_DELETE_PRINTER));
        // The first listing is the one that later ones are compared with.
        if (m_hasListed)
            append(m_news.changes, m_listing.differences(mayBeRenamed));
        m_listing.takeOver();
        m_hasNews = true;
    }
    m_news.isFirst = !m_hasListed;
    m_hasNews = m_hasNews || m_news.isFirst;
    m_hasListed = true;
    return true;
}

void DiscoveryThread::noteFailedListing()
{
    m_isListingDue = true;
    if (m_listing.error() == RPC_S_SERVER_UNAVAILABLE)
        noteRunning(false);
}

void DiscoveryThread::noteRunning(bool running)
{
    if (m_news.isSpoolerRunning == running)
        return;
    m_news.isSpoolerRunning = running;
    m_news.isRunningNew = true;
    m_news.changes.any = m_news.changes.any || running;
    m_hasNews = true;
    m_ticksToNextTry = 0;
    m_ticksBetweenTries = 1;
}

void DiscoveryThread::inspect()
{
    if (!m_hasListed || !m_news.isSpoolerRunning)
        return;
    const ListingChanges changes = m_listing.inspect(inspectedAtOnce, !m_notification);
    append(m_news.changes, changes);
    m_hasNews = m_hasNews || changes.any;
}

void DiscoveryThread::compareDefaultPrinter()
{
    const std::optional<QString> name = queryDefaultPrinter();
    if (!m_hasListed || !name || *name == m_news.defaultPrinter)
        return;
    m_news.defaultPrinter = *name;
    m_news.isDefaultNew = true;
    m_hasNews = true;
}

void DiscoveryThread::tell()
{
    if (!m_hasNews)
        return;
    m_news.names = m_listing.names();
    m_report(m_news);
    m_news.changes = {};
    m_news.isDefaultNew = false;
    m_news.isRunningNew = false;
    m_news.isFirst = false;
    m_hasNews = false;
}

} // namespace VxKit
