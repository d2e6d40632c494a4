// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What all recorders of a process share: they are told about the library's calls, its log and the
// controller's signals, number the steps and put everything into one order.
#pragma once

#include "call_tap.h"
#include "case_item.h"
#include "case_spooler_state.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <vector>

class AbstractAppender;
class PrinterStatusController;
class QThread;

namespace VxKit {

class CaseLook;
class CaseSink;
class CaseWatch;
class CaseWorld;
class StepReceiver;
struct SpoolerReading;

/// The controller's signals.
enum class CaseSignal : quint8
{
    AvailablePrintersUpdated,
    PrinterErrorChanged,
    StatusChanged,
    SupplyIdChanged,
    RibbonIdsChanged,
    ActiveDefaultPrinterSet,
    SoftwareVersionUpdated,
};

/// For tests: how short a wait has to be to be taken for one that a change had ended before it
/// began.
VX_KIT_EXPORT void setShortWait(std::chrono::nanoseconds time);

/// The only one exists until the process ends. It records while it has sinks.
class CaseSession final : public CallListener
{
public:
    static CaseSession& instance();

    /// Begins to record into a sink. With a controller that exists already, its records belong to
    /// the beginning.
    void add(const std::shared_ptr<CaseSink>& sink, std::chrono::milliseconds lookInterval,
             const PrinterStatusController* controller);
    /// The same, but only when the library lists the printers for the first time.
    void addWaiting(const std::shared_ptr<CaseSink>& sink, std::chrono::milliseconds lookInterval);
    /// Ends a sink's file.
    void remove(const std::shared_ptr<CaseSink>& sink);
    void attach(PrinterStatusController* controller);
    /// The same, unless another controller is being recorded.
    void attachIfAlone(PrinterStatusController* controller);
    bool flush(QDeadlineTimer deadline);
    /// Whether there is a sink, also one that waits.
    bool isRecording() const { return m_isRecording.load(std::memory_order_relaxed); }

    // Of the library's calls
    void opened(const char* printer, HANDLE handle, ACCESS_MASK access, DWORD error) override;
    void readValue(const char* name, DWORD type, const BYTE* bytes, DWORD size, DWORD needed,
                   DWORD error) override;
    void readRecord(HANDLE printer, DWORD level, const BYTE* record, DWORD error) override;
    void willList() override;
    void listed(DWORD level, const BYTE* records, DWORD count, DWORD error) override;
    void readDefault(const WCHAR* name, DWORD error) override;
    void beganWatching(DWORD error) override;
    void rearmed(DWORD error) override;
    void queriedService(DWORD state, DWORD error) override;
    void failed(const char* function, DWORD error) override;
    void willWait() override;
    void waited(DWORD result, qint64 nanoseconds) override;

    // Of the library's log and the controller
    void logged(int level, const char* file, int line, const char* function,
                const QString& message);
    void signalled(quint8 signal, int status, const QString& printer);
    void appenderGone() { m_appender = nullptr; }

    // Of the look. The lines are recorded if nobody has recorded others since the state had a
    // version.
    unsigned stateVersion();
    void lookedAtPrinters(const PRINTER_INFO_2W* records, DWORD count, unsigned version,
                          bool mayBeRenamed);
    void lookedAtRights(const QString& printer, bool isAdministrable, unsigned version);
    void lookedAtDefault(const QString& name, unsigned version);
    void lookedAtService(DWORD state, unsigned version);
    void lookedAtValues(const QString& printer, const PublishedValues& values);
    void lookedAtJob(const QJsonObject& job);
    /// The printers that have been notified since the last call.
    QStringList takeNotified();
    QStringList printersWithJobs();
    /// Lines are being lost, and there is room again: everything has to be read anew.
    bool isResyncWanted() const { return m_isResyncDue.load(std::memory_order_relaxed); }
    void resync();
    QStringList printers();

    // On the controller's thread
    void beginStep(const QString& printer, int step);
    void endStep(const QString& printer, int step);
    void recordsWanted();
    void caughtUp() { m_isCatchingUp = false; }

private:
    CaseSession() = default;
    ~CaseSession() override = default;

    using Lock = std::unique_lock<std::mutex>;

    bool start(std::chrono::milliseconds lookInterval);
    void begin(const PrinterStatusController* controller);
    void end();
    void pushSink(const Lock& lock, const std::shared_ptr<CaseSink>& sink,
                  const PrinterStatusController* controller);
    void takeOver(const Lock& lock, const SpoolerReading& reading);
    void beginAnew(const Lock& lock, const SpoolerReading& reading);
    void push(const Lock& lock, CaseItem item);
    void pushLine(const Lock& lock, const QJsonObject& line);
    void pushLines(const Lock& lock, const QList<QJsonObject>& lines);
    int pushStep(const Lock& lock, CaseItem item);
    std::optional<PublishedValues> takeInitialValues(const Lock& lock, const QString& printer);
    void addBlock(const Lock& lock, CaseItem& item, const PublishedValues& values);
    CaseWatch* watchOfThisThread();
    void complete(CaseWatch& watch);
    void beginReports(CaseWatch& watch);
    void endReports(CaseWatch& watch);
    void postMark(quint8 what, const QString& printer, int step);
    void renamed(CaseWatch& watch, const QString& name);
    bool isControllersThread() const;
    bool isOfWhatWasLost() const;
    void noteRunning(const Lock& lock);
    bool hasNewRecords();
    void discover(const Lock& lock);
    void openedByController(const char* printer, HANDLE handle, ACCESS_MASK access, DWORD error);
    void readByController(HANDLE printer, const BYTE* record, DWORD error);
    int stepOf(const QString& printer) const;
    int anyOpenStep() const;
    void recordFailure(const Lock& lock, const char* call, const QString& printer, DWORD error,
                       int at, int& succeeded);
    qint64 now() const;
    void write();
    struct Writing;
    void writeItem(CaseItem& item, Writing& writing);
    static void writeRows(const PublishedValues& values, const CaseItem& item, Writing& writing);
    void noticeCatalogue();

    std::atomic<bool> m_isRecording = false;
    std::atomic<bool> m_hasBegun = false;
    std::atomic<unsigned> m_generation = 1;
    std::atomic<QThread*> m_controllersThread = nullptr;
    std::chrono::steady_clock::time_point m_epoch = std::chrono::steady_clock::now();

    std::mutex m_mutex;
    // All of these are guarded by the mutex.
    std::condition_variable m_changed;
    std::vector<CaseItem> m_queue;
    /// The blocks of the items in the queue that have their size alone, one after the other.
    QByteArray m_queuedBlocks;
    qsizetype m_queuedBytes = 0;
    qint64 m_lostItems = 0;
    std::atomic<bool> m_isOverflowing = false;
    std::atomic<bool> m_isResyncDue = false; ///< nothing waits any more
    /// The controller still handles reports of steps that were lost.
    std::atomic<bool> m_isCatchingUp = false;
    bool m_isEnding = false;
    quint64 m_flushesWanted = 0;
    quint64 m_flushesDone = 0;
    int m_lastStep = 0;
    int m_lastMarkedStep = 0; ///< the last that the controller's thread is told about
    int m_lastDiscovery = 0;
    /// How many calls on the controller's thread have succeeded in its step since one failed.
    struct Succeeded
    {
        int opened = 0;
        int recordsRead = 0;
        int listed = 0;
        int defaultsRead = 0;
    };
    Succeeded m_succeeded;
    qsizetype m_recordCount = 0; ///< of the controller, when it was asked last
    SpoolerState m_state;
    QHash<QString, PublishedValues> m_initialValues; ///< of printers that no thread has read yet
    std::unordered_map<QThread*, std::unique_ptr<CaseWatch>> m_watches;
    std::vector<std::unique_ptr<CaseWatch>> m_oldWatches;
    std::vector<std::shared_ptr<CaseSink>> m_waitingSinks;
    int m_sinkCount = 0;
    bool m_isRecordsAsked = false;
    std::atomic<qint64> m_faster = 0;
    std::chrono::milliseconds m_lookInterval{};

    // Whose reports are being sent. Threads that wait their turn use the mutex.
    std::atomic<const CaseWatch*> m_reporter = nullptr;
    std::atomic<int> m_waitingReporters = 0;
    std::mutex m_turnMutex;
    std::condition_variable m_reported;
    bool m_isAnyHeldUp = false; ///< with the mutex: a thread kept its turn for too long

    // Only on the controller's thread.
    enum class Phase
    {
        Unknown,      ///< no controller has been seen
        Constructing, ///< it has listed the printers once
        Running,
    };
    Phase m_phase = Phase::Unknown;
    bool m_mayBeDiscovering = false; ///< the printers have been listed in this event
    bool m_isInDiscovery = false;    ///< it has found some
    bool m_hasFound = false;         ///< in this construction
    HANDLE m_openHandle = nullptr;
    QString m_openName;
    QHash<QString, int> m_openSteps;
    int m_latestOpenStep = -1;
    int m_latestBegunStep = 0;
    QString m_latestPrinter;

    /// Changed on the controller's thread only, with this mutex and the other one locked.
    std::mutex m_receiverMutex;
    std::unique_ptr<StepReceiver> m_receiver;
    QPointer<PrinterStatusController> m_controller;
    QString m_catalogueFile;
    AbstractAppender* m_appender = nullptr;
    std::unique_ptr<CaseLook> m_look;
    std::thread m_writer;
};

} // namespace VxKit
