// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_session.h"

#include "case_catalogue_rows.h"
#include "case_look.h"
#include "case_sink.h"
#include "case_watch.h"
#include "case_world.h"
#include "printer_record.h"

#include "printer_status_controller.h"
#include "printer_status_information.h"
#include "printer_status_thread.h"
#include "vx_ipc_supplyd_controller.h"

#include <cute_logger.h>
#include <listening_appender.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QMetaProperty>
#include <QtCore/QThread>
#include <QtSql/QSqlDatabase>

#include <algorithm>
#include <cstring>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// So much may wait to be written.
constexpr qsizetype mostQueuedBytes = qsizetype(4) * 1024 * 1024;
/// Lines are written together that arrive within this time, but not more than these.
constexpr std::size_t itemsAtOnce = 256;
constexpr std::size_t enoughItems = itemsAtOnce * 3 / 4;
constexpr qsizetype usualBlocks = qsizetype(32) * 1024;
constexpr auto writingPause = 20ms;
/// A thread whose wait ends sooner was notified while it was still reading, or nearly so.
std::atomic<qint64> shortWait = 20000; // nanoseconds
/// At most one line in this time says so, in milliseconds.
constexpr qint64 fasterInterval = 10000;
constexpr DWORD wokenByNotification = WAIT_OBJECT_0 + 1;

// The files that the library's log names.
constexpr const char* controllerFile = "printer_status_controller";
constexpr std::array libraryFiles{controllerFile, "printer_status_thread", "windows_printer_info"};

bool isOfLibrary(const char* file)
{
    return file && std::ranges::any_of(libraryFiles, [file](const char* known) {
               return std::strcmp(known, file) == 0;
           });
}

/// What a thread was found to be, until another recording begins.
struct ThreadRole
{
    unsigned generation = 0;
    CaseWatch* watch = nullptr; ///< null: none of the library's threads
};
thread_local constinit ThreadRole role;

QJsonObject lineOf(const char* kind)
{
    return {{QStringLiteral("kind"), QLatin1String(kind)}};
}

/// The level of a line of the log that the library writes.
class LibraryAppender final : public VxListeningAppender
{
public:
    LibraryAppender() { setDetailsLevel(Logger::Trace); }
    ~LibraryAppender() override { CaseSession::instance().appenderGone(); }
    Q_DISABLE_COPY_MOVE(LibraryAppender)

protected:
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& /*category*/, const QString& message) override
    {
        if (isOfLibrary(file))
            CaseSession::instance().logged(level, file, line, function, message);
    }
};

QJsonObject recordsOf(const PrinterStatusController& controller)
{
    QJsonArray printers;
    const QVariantList all = controller.getAvailablePrinters();
    const QMetaObject& type = PrinterStatusInformation::staticMetaObject;
    for (const QVariant& entry : all) {
        QJsonObject record;
        for (int i = 0; i < type.propertyCount(); ++i) {
            const QMetaProperty property = type.property(i);
            record.insert(QLatin1String(property.name()),
                          QJsonValue::fromVariant(property.readOnGadget(entry.constData())));
        }
        printers.append(record);
    }
    QJsonObject line = lineOf("records");
    line.insert(QStringLiteral("printers"), printers);
    return line;
}

} // namespace

/// Tells the controller's thread which step's reports it handles next. The events arrive before and
/// after the reports, because all are queued in order.
class StepReceiver : public QObject
{
public:
    class Mark : public QEvent
    {
    public:
        enum What : quint8
        {
            Begin,
            End,
            Records,
            CaughtUp,
        };
        static QEvent::Type number()
        {
            static const int type = QEvent::registerEventType();
            return static_cast<QEvent::Type>(type);
        }
        Mark(What mark, QString printerName, int stepNumber)
            : QEvent(number())
            , what(mark)
            , printer(std::move(printerName))
            , step(stepNumber)
        {}

        const What what;
        const QString printer;
        const int step;
    };

    bool event(QEvent* event) override
    {
        if (event->type() != Mark::number())
            return QObject::event(event);
        const auto& mark = static_cast<const Mark&>(*event);
        CaseSession& session = CaseSession::instance();
        switch (mark.what) {
        case Mark::Begin:
            session.beginStep(mark.printer, mark.step);
            break;
        case Mark::End:
            session.endStep(mark.printer, mark.step);
            break;
        case Mark::Records:
            session.recordsWanted();
            break;
        case Mark::What::CaughtUp:
            session.caughtUp();
            break;
        }
        return true;
    }
};

void setShortWait(std::chrono::nanoseconds time)
{
    shortWait = time.count();
}

CaseSession& CaseSession::instance()
{
    // Never destroyed: threads may be in a call of the library until the process ends.
    static auto* const session = new CaseSession;
    return *session;
}

// Beginning and ending ////////////////////////////////////////////////////////////////////////////

/// False if it has been started before.
bool CaseSession::start(std::chrono::milliseconds lookInterval)
{
    if (m_isRecording.exchange(true))
        return false;
    m_epoch = std::chrono::steady_clock::now();
    m_lookInterval = lookInterval;
    m_isEnding = false;
    call_tap::install();
    // Qt sets up its list of database drivers when it is first used, without a lock. The library
    // does so on this thread with its first catalogue, and the writer must not do it at the same
    // time.
    QSqlDatabase::drivers();
    m_writer = std::thread([this] { write(); });
    m_appender = new LibraryAppender;
    VX_GLOBAL_LOGGER()->registerAppender(m_appender);
    return true;
}

void CaseSession::add(const std::shared_ptr<CaseSink>& sink, std::chrono::milliseconds lookInterval,
                      const PrinterStatusController* controller)
{
    start(lookInterval);
    {
        const Lock lock(m_mutex);
        if (m_hasBegun) {
            pushSink(lock, sink, controller ? controller : m_controller.get());
            return;
        }
        m_waitingSinks.push_back(sink);
    }
    begin(controller);
}

void CaseSession::addWaiting(const std::shared_ptr<CaseSink>& sink,
                             std::chrono::milliseconds lookInterval)
{
    start(lookInterval);
    {
        const Lock lock(m_mutex);
        m_waitingSinks.push_back(sink);
    }
    call_tap::setListener(this);
}

void CaseSession::pushSink(const Lock& lock, const std::shared_ptr<CaseSink>& sink,
                           const PrinterStatusController* controller)
{
    CaseItem item;
    item.kind = CaseItem::Kind::SinkAdded;
    item.sink = sink;
    item.step = m_lastStep;
    if (controller)
        item.object = recordsOf(*controller);
    push(lock, std::move(item));
    ++m_sinkCount;
}

void CaseSession::begin(const PrinterStatusController* controller)
{
    if (m_hasBegun.exchange(true))
        return;
    const SpoolerReading reading = readSpooler();
    {
        const Lock lock(m_mutex);
        takeOver(lock, reading);
        for (const std::shared_ptr<CaseSink>& sink : std::exchange(m_waitingSinks, {}))
            pushSink(lock, sink, controller);
        ++m_generation;
    }
    call_tap::setListener(this);
    auto look = std::make_unique<CaseLook>(*this, m_lookInterval);
    const Lock lock(m_mutex);
    m_look = std::move(look);
}

/// Makes what was read the state that everything is compared with.
void CaseSession::takeOver(const Lock& lock, const SpoolerReading& reading)
{
    const QList<QJsonObject> added =
        m_state.compare(reading.records(), reading.count, SpoolerState::now, m_lastStep, false);
    Q_UNUSED(added)
    const std::span records(reading.records(), reading.count);
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!records[i].pPrinterName)
            continue;
        CaseItem item;
        item.isForWorldAlone = true;
        item.object = printerFields(records[i]);
        item.object.insert(QStringLiteral("kind"), QStringLiteral("printer"));
        item.text = m_state.sharedName(textFrom(records[i].pPrinterName));
        item.block = reading.values[i].block();
        if (reading.rights[i]) {
            item.object.insert(QStringLiteral("administrable"), *reading.rights[i]);
            m_state.compareRights(item.text, *reading.rights[i], SpoolerState::now);
        }
        m_initialValues.insert(item.text, reading.values[i]);
        push(lock, item);
    }
    const auto pushState = [&](const std::optional<QJsonObject>& line) {
        if (!line)
            return;
        CaseItem item;
        item.isForWorldAlone = true;
        item.object = *line;
        push(lock, item);
    };
    for (const QJsonObject& device : reading.devices)
        pushState(device);
    if (reading.service)
        pushState(m_state.compareService(*reading.service));
    if (reading.defaultPrinter) {
        const QString& name = *reading.defaultPrinter;
        m_state.setDefault(name);
        pushState(QJsonObject{{QStringLiteral("kind"), QStringLiteral("default")},
                              {QStringLiteral("printer"),
                               name.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(name)}});
    }
}

void CaseSession::remove(const std::shared_ptr<CaseSink>& sink)
{
    bool isLast = false;
    // The file says what was lost before its end.
    if (m_isOverflowing)
        resync();
    {
        const Lock lock(m_mutex);
        if (std::erase(m_waitingSinks, sink) == 0) {
            CaseItem item;
            item.kind = CaseItem::Kind::SinkRemoved;
            item.sink = sink;
            push(lock, item);
            --m_sinkCount;
        }
        isLast = m_sinkCount == 0 && m_waitingSinks.empty();
    }
    flush(QDeadlineTimer(10000));
    if (isLast)
        end();
}

void CaseSession::end()
{
    call_tap::setListener(nullptr);
    std::unique_ptr<CaseLook> look;
    {
        const Lock lock(m_mutex);
        look = std::move(m_look);
    }
    look.reset();
    {
        const Lock lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_writer.join();
    if (AbstractAppender* const appender = m_appender) {
        VX_GLOBAL_LOGGER()->removeAppender(appender);
        delete appender;
    }
    if (m_controller)
        m_controller->disconnect(m_receiver.get());
    StepReceiver* receiver = nullptr;
    {
        const Lock lock(m_mutex);
        {
            const Lock receiverLock(m_receiverMutex);
            receiver = m_receiver.release();
        }
        // A host that goes on without a recorder gets the memory back.
        std::vector<CaseItem>().swap(m_queue);
        m_queuedBlocks = {};
        m_queuedBytes = 0;
        m_lostItems = 0;
        m_isOverflowing = false;
        m_isResyncDue = false;
        m_isCatchingUp = false;
        m_lastStep = 0;
        m_lastMarkedStep = 0;
        m_lastDiscovery = 0;
        m_succeeded = {};
        m_recordCount = 0;
        m_reporter = nullptr;
        m_faster = 0;
        m_state.clear();
        m_initialValues.clear();
        // A thread may just be using its watch; it removes it itself when it comes back.
        for (auto& [thread, watch] : m_watches)
            m_oldWatches.push_back(std::move(watch));
        m_watches.clear();
        m_controllersThread = nullptr;
        ++m_generation;
    }
    if (receiver)
        receiver->deleteLater();
    m_controller = nullptr;
    m_catalogueFile.clear();
    m_phase = Phase::Unknown;
    m_mayBeDiscovering = false;
    m_isInDiscovery = false;
    m_hasFound = false;
    m_openHandle = nullptr;
    m_openSteps.clear();
    m_latestOpenStep = -1;
    m_latestBegunStep = 0;
    m_hasBegun = false;
    m_isRecording = false;
}

void CaseSession::attach(PrinterStatusController* controller)
{
    if (!controller || m_controller == controller || !isRecording())
        return;
    if (m_controller)
        m_controller->disconnect(m_receiver.get());
    m_controller = controller;
    noticeCatalogue();
    const Lock lock(m_mutex);
    if (!m_receiver) {
        const Lock receiverLock(m_receiverMutex);
        m_receiver = std::make_unique<StepReceiver>();
        m_controllersThread = QThread::currentThread();
    }
    const bool isNew = m_phase == Phase::Constructing;
    m_phase = Phase::Running;
    m_mayBeDiscovering = false;

    using Controller = PrinterStatusController;
    QObject* const context = m_receiver.get();
    const auto record = [this](CaseSignal signal, int number, const QString& text) {
        signalled(static_cast<quint8>(signal), number, text);
    };
    QObject::connect(controller, &Controller::availablePrintersUpdated, context,
                     [record] { record(CaseSignal::AvailablePrintersUpdated, 0, {}); });
    QObject::connect(controller, &Controller::printerErrorChangedSignal, context,
                     [record](bool isInError) {
                         record(CaseSignal::PrinterErrorChanged, isInError ? 1 : 0, {});
                     });
    QObject::connect(controller, &Controller::statusChangedSignal, context,
                     [record](int status, const QString& printer) {
                         record(CaseSignal::StatusChanged, status, printer);
                     });
    QObject::connect(
        controller, &Controller::supplyIdChangedSignal, context,
        [record](const QString& printer) { record(CaseSignal::SupplyIdChanged, 0, printer); });
    QObject::connect(
        controller, &Controller::ribbonIdsChangedSignal, context,
        [record](const QString& printer) { record(CaseSignal::RibbonIdsChanged, 0, printer); });
    QObject::connect(controller, &Controller::activeDefaultPrinterSetSignal, context,
                     [record](const QString& printer, bool isVX) {
                         record(CaseSignal::ActiveDefaultPrinterSet, isVX ? 1 : 0, printer);
                     });
    QObject::connect(controller, &Controller::softwareVersionUpdated, context,
                     [record](const QString& printer) {
                         record(CaseSignal::SoftwareVersionUpdated, 0, printer);
                     });

    // Threads that have been reading before this recording are known by their printers. Those of a
    // controller that has just been created may still have to begin.
    const QVariantList records = controller->getAvailablePrinters();
    m_recordCount = records.size();
    for (const QVariant& entry : records) {
        const QString name = m_state.sharedName(
            static_cast<const PrinterStatusInformation*>(entry.constData())->printerName);
        PrinterStatusThread* const thread = controller->statusThread(name);
        if (!thread || m_watches.contains(thread))
            continue;
        auto watch =
            std::make_unique<CaseWatch>(name, m_lastDiscovery, takeInitialValues(lock, name));
        watch->batch = isNew ? CaseWatch::Batch::Start : CaseWatch::Batch::None;
        watch->isServiceKnown = !isNew;
        watch->serviceState = m_state.service().value_or(SERVICE_RUNNING);
        watch->currentName = name;
        m_watches.emplace(thread, std::move(watch));
    }
    ++m_generation;
}

void CaseSession::attachIfAlone(PrinterStatusController* controller)
{
    if (!m_controller)
        attach(controller);
}

bool CaseSession::flush(QDeadlineTimer deadline)
{
    Lock lock(m_mutex);
    if (!m_isRecording || m_isEnding)
        return true;
    const quint64 mine = ++m_flushesWanted;
    CaseItem item;
    item.kind = CaseItem::Kind::Flush;
    push(lock, item);
    m_changed.notify_all();
    const auto isDone = [&] {
        return m_flushesDone >= mine;
    };
    if (deadline.isForever()) {
        m_changed.wait(lock, isDone);
        return true;
    }
    return m_changed.wait_until(lock, deadline.deadline<std::chrono::steady_clock>(), isDone);
}

std::optional<PublishedValues> CaseSession::takeInitialValues(const Lock& lock,
                                                              const QString& printer)
{
    Q_UNUSED(lock)
    if (!m_initialValues.contains(printer))
        return {};
    return m_initialValues.take(printer);
}

qint64 CaseSession::now() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() -
                                                                 m_epoch)
        .count();
}

// The order of everything /////////////////////////////////////////////////////////////////////////

void CaseSession::push(const Lock& lock, CaseItem item)
{
    Q_UNUSED(lock)
    // What could not be left out does not count either: everything there is may need more room.
    const bool isControl = item.kind >= CaseItem::Kind::SinkAdded || item.isForWorldAlone;
    if (m_isOverflowing && !isControl) {
        ++m_lostItems;
        return;
    }
    item.time = now();
    if (!isControl)
        m_queuedBytes += item.bytes();
    m_queue.push_back(std::move(item));
    if (m_queue.size() == 1 || m_queue.size() == enoughItems)
        m_changed.notify_all();
    // Everything is read again when the writer has taken what waits.
    if (m_queuedBytes > mostQueuedBytes)
        m_isOverflowing = true;
}

void CaseSession::pushLine(const Lock& lock, const QJsonObject& line)
{
    CaseItem item;
    item.object = line;
    item.at = line.value(QLatin1String("at")).toInt(-1);
    push(lock, std::move(item));
}

void CaseSession::pushLines(const Lock& lock, const QList<QJsonObject>& lines)
{
    for (const QJsonObject& line : lines)
        pushLine(lock, line);
}

int CaseSession::pushStep(const Lock& lock, CaseItem item)
{
    // The numbers in the file have no holes.
    if (!m_isOverflowing)
        ++m_lastStep;
    item.step = m_lastStep;
    push(lock, std::move(item));
    return m_lastStep;
}

/// Copies the values that an item has, so that their memory is used again and again.
void CaseSession::addBlock(const Lock& lock, CaseItem& item, const PublishedValues& values)
{
    Q_UNUSED(lock)
    if (m_isOverflowing || values.isEmpty())
        return;
    item.waitingSize = static_cast<int>(values.size());
    m_queuedBlocks.append(values.block());
}

void CaseSession::logged(int level, const char* file, int line, const char* function,
                         const QString& message)
{
    CaseItem item;
    item.kind = CaseItem::Kind::Log;
    item.level = level;
    item.file = file;
    item.line = line;
    item.function = function;
    item.text = message;
    CaseWatch* const watch = watchOfThisThread();
    if (watch && watch->batch != CaseWatch::Batch::None) {
        watch->heldOutputs.push_back(std::move(item));
        return;
    }
    const Lock lock(m_mutex);
    if (isControllersThread() && message.startsWith(QLatin1String("Evaluating Printer: ")) &&
        std::strcmp(file, controllerFile) == 0)
        discover(lock);
    if (!isOfWhatWasLost())
        push(lock, std::move(item));
}

void CaseSession::signalled(quint8 signal, int status, const QString& printer)
{
    CaseItem item;
    item.kind = CaseItem::Kind::Signal;
    item.signal = signal;
    item.level = status;
    item.text = printer;
    const Lock lock(m_mutex);
    if (isOfWhatWasLost())
        return;
    // A printer that was offline before is found and ignored without a line of the log.
    if (signal == static_cast<quint8>(CaseSignal::StatusChanged) && m_latestOpenStep < 0)
        discover(lock);
    push(lock, std::move(item));
}

// The library's threads ///////////////////////////////////////////////////////////////////////////

CaseWatch* CaseSession::watchOfThisThread()
{
    const unsigned generation = m_generation.load(std::memory_order_acquire);
    if (role.generation == generation)
        return role.watch;
    auto* const thread = qobject_cast<PrinterStatusThread*>(QThread::currentThread());
    CaseWatch* const before = std::exchange(role.watch, nullptr);
    role.generation = generation;
    if (!thread)
        return nullptr;
    const Lock lock(m_mutex);
    std::unique_ptr<CaseWatch>& watch = m_watches[thread];
    if (watch && watch.get() == before)
        return role.watch = before;
    std::erase_if(m_oldWatches,
                  [before](const std::unique_ptr<CaseWatch>& old) { return old.get() == before; });
    // Another thread may have had the same address before.
    if (!watch || watch->isClaimed)
        watch = std::make_unique<CaseWatch>(QString(), m_lastDiscovery, PublishedValues());
    watch->isClaimed = true;
    return role.watch = watch.get();
}

bool CaseSession::isControllersThread() const
{
    QThread* const thread = m_controllersThread.load(std::memory_order_relaxed);
    return thread && thread == QThread::currentThread();
}

/// Whether the controller's thread handles a report of a step that the file does not have.
bool CaseSession::isOfWhatWasLost() const
{
    return m_isCatchingUp && isControllersThread() && !m_isInDiscovery;
}

/// The reports that follow are sent before those of the next thread, so that the controller handles
/// them in the order of the steps.
void CaseSession::beginReports(CaseWatch& watch)
{
    if (std::exchange(watch.isReporting, true))
        return;
    const auto take = [&] {
        const CaseWatch* nobody = nullptr;
        return m_reporter.compare_exchange_strong(nobody, &watch);
    };
    if (take())
        return;
    // A thread that has lost the processor goes on sooner. One in which a slot of the host waits
    // may never go on, so only the first such wait is a long one.
    constexpr auto mostWaiting = 1000ms;
    constexpr auto mostWaitingAgain = 20ms;
    Lock turn(m_turnMutex);
    ++m_waitingReporters;
    if (!m_reported.wait_for(turn, m_isAnyHeldUp ? mostWaitingAgain : mostWaiting, take)) {
        m_isAnyHeldUp = true;
        m_reporter = &watch;
    }
    --m_waitingReporters;
}

/// All reports have been sent when the thread makes its next call.
void CaseSession::endReports(CaseWatch& watch)
{
    if (!std::exchange(watch.isReporting, false))
        return;
    const CaseWatch* reporter = &watch;
    if (!m_reporter.compare_exchange_strong(reporter, nullptr) || m_waitingReporters == 0)
        return;
    {
        const Lock turn(m_turnMutex);
    } // who has begun to wait does so by now
    m_reported.notify_one();
}

void CaseSession::complete(CaseWatch& watch)
{
    const CaseWatch::Batch batch = std::exchange(watch.batch, CaseWatch::Batch::None);
    const bool hasNews = !watch.changed.isEmpty() || !watch.failed.isEmpty();
    watch.opened = 0;
    watch.recordsRead = 0;
    if (watch.hasRead())
        watch.forgetInitialValues();
    if (batch == CaseWatch::Batch::Wake && !hasNews && watch.heldOutputs.empty())
        return;

    CaseItem values;
    values.kind = CaseItem::Kind::Values;
    values.text = watch.printer;
    CaseItem other;
    if (batch == CaseWatch::Batch::Wake) {
        // Without news it has left a line in the log.
        if (!watch.failed.isEmpty())
            values.object.insert(QStringLiteral("failed"), std::exchange(watch.failed, {}));
    } else {
        other.object = lineOf(batch == CaseWatch::Batch::Poll ? "poll" : "started");
        other.object.insert(QStringLiteral("printer"), watch.printer);
        if (!watch.failed.isEmpty())
            other.object.insert(QStringLiteral("failed"), std::exchange(watch.failed, {}));
        other.at = batch == CaseWatch::Batch::Poll ? -1 : watch.at;
    }

    beginReports(watch);
    {
        const Lock lock(m_mutex);
        if (batch == CaseWatch::Batch::Wake) {
            addBlock(lock, values, watch.changed);
            watch.openStep = pushStep(lock, std::move(values));
        } else {
            // What the controller sees while it handles the first reports of a thread can differ
            // from what it saw when it started the thread, so the first read is a step of its own.
            watch.openStep = pushStep(lock, std::move(other));
            if (!watch.changed.isEmpty()) {
                addBlock(lock, values, watch.changed);
                values.at = watch.openStep;
                push(lock, std::move(values));
            }
        }
        if (m_receiver)
            m_lastMarkedStep = std::max(m_lastMarkedStep, watch.openStep);
        for (CaseItem& item : watch.heldOutputs)
            push(lock, std::move(item));
    }
    watch.changed.clear();
    if (!watch.heldOutputs.empty())
        std::vector<CaseItem>().swap(watch.heldOutputs);
    // The reports that the thread sends from now on belong to the step.
    postMark(StepReceiver::Mark::Begin, watch.printer, watch.openStep);
}

/// Tells the controller's thread about a step, between the reports that it handles.
void CaseSession::postMark(quint8 what, const QString& printer, int step)
{
    const Lock lock(m_receiverMutex);
    if (m_receiver)
        QCoreApplication::postEvent(
            m_receiver.get(),
            new StepReceiver::Mark(static_cast<StepReceiver::Mark::What>(what), printer, step));
}

void CaseSession::opened(const char* printer, HANDLE handle, ACCESS_MASK access, DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch) {
        openedByController(printer, handle, access, error);
        return;
    }
    endReports(*watch);
    const bool isForAdministration = (access & PRINTER_ACCESS_ADMINISTER) != 0;
    if (watch->printer.isNull()) {
        const Lock lock(m_mutex);
        watch->printer = printer ? m_state.nameOf(printer) : QString();
        watch->currentName = watch->printer;
        watch->setInitialValues(takeInitialValues(lock, watch->printer));
    }
    const bool saysRights =
        isForAdministration && (error == ERROR_SUCCESS || error == ERROR_ACCESS_DENIED);
    if (saysRights || error == ERROR_SUCCESS)
        ++watch->opened;
    if (saysRights) {
        const Lock lock(m_mutex);
        if (const auto line =
                m_state.compareRights(watch->printer, error == ERROR_SUCCESS, SpoolerState::now))
            pushLine(lock, *line);
        return;
    }
    if (error == ERROR_SUCCESS)
        return;
    watch->addFailure("OpenPrinterA", error, nullptr, std::exchange(watch->opened, 0));
    // Nothing is read then.
    if (!isForAdministration && watch->batch != CaseWatch::Batch::None)
        complete(*watch);
}

void CaseSession::beganWatching(DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch || error == ERROR_SUCCESS)
        return;
    watch->addFailure("FindFirstPrinterChangeNotification", error);
    if (watch->batch != CaseWatch::Batch::None)
        complete(*watch);
}

void CaseSession::rearmed(DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch)
        return;
    endReports(*watch);
    if (watch->batch != CaseWatch::Batch::None)
        complete(*watch);
    watch->batch = CaseWatch::Batch::Wake;
    watch->isNotified.store(true, std::memory_order_relaxed);
    if (error != ERROR_SUCCESS)
        watch->addFailure("FindNextPrinterChangeNotification", error);
}

void CaseSession::readValue(const char* name, DWORD type, const BYTE* bytes, DWORD size,
                            DWORD needed, DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (watch && watch->batch != CaseWatch::Batch::None)
        watch->read(name, type, bytes, size, needed, error);
}

void CaseSession::readRecord(HANDLE printer, DWORD level, const BYTE* record, DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch) {
        if (level == 2)
            readByController(printer, record, error);
        return;
    }
    if (error == ERROR_SUCCESS || error == ERROR_INSUFFICIENT_BUFFER)
        ++watch->recordsRead;
    if (level != 1 || error == ERROR_INSUFFICIENT_BUFFER ||
        watch->batch == CaseWatch::Batch::None || (error == ERROR_SUCCESS && !record))
        return;
    if (error != ERROR_SUCCESS) {
        watch->addFailure("GetPrinterW", error, nullptr, std::exchange(watch->recordsRead, 0));
    } else {
        const LPCWSTR name = reinterpret_cast<const PRINTER_INFO_1W*>(record)->pName;
        if (name &&
            QStringView(watch->currentName) != QStringView(reinterpret_cast<const char16_t*>(name)))
            renamed(*watch, textFrom(name));
    }
    // It is the last read; the signals follow.
    complete(*watch);
}

void CaseSession::renamed(CaseWatch& watch, const QString& name)
{
    const Lock lock(m_mutex);
    if (watch.printer.isNull())
        watch.printer = name;
    else if (const auto line = m_state.rename(watch.currentName, name))
        pushLine(lock, *line);
    watch.currentName = name;
}

void CaseSession::queriedService(DWORD state, DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch)
        return;
    endReports(*watch);
    const bool isFirst = !std::exchange(watch->isServiceKnown, true);
    if (!isFirst && state == watch->serviceState)
        return;
    // A thread that was there before this recording found the service running, or it would not
    // have been woken.
    watch->serviceState = state;
    if (error == ERROR_SUCCESS) {
        const Lock lock(m_mutex);
        auto line = m_state.compareService(state);
        // From then on the thread notices only what differs from this state.
        if (isFirst && (line || state != SERVICE_RUNNING)) {
            if (!line)
                line = SpoolerState::serviceLine(state);
            line->insert(QStringLiteral("printer"), watch->printer);
        }
        if (line)
            pushLine(lock, *line);
    }
    if (isFirst) {
        if (error != ERROR_SUCCESS)
            failed("QueryServiceStatus", error);
        return;
    }
    if (watch->batch != CaseWatch::Batch::None)
        complete(*watch);
    watch->batch = CaseWatch::Batch::Poll;
    if (error != ERROR_SUCCESS)
        watch->addFailure("QueryServiceStatus", error);
    if (state != SERVICE_RUNNING)
        complete(*watch); // it only says so
}

void CaseSession::failed(const char* function, DWORD error)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch)
        return;
    endReports(*watch);
    watch->addFailure(function, error);
    if (watch->batch != CaseWatch::Batch::None)
        return;
    // After the first read, but before the thread waits for the first time.
    const Lock lock(m_mutex);
    CaseItem item;
    item.object = lineOf("started");
    item.object.insert(QStringLiteral("printer"), watch->printer);
    item.object.insert(QStringLiteral("failed"), std::exchange(watch->failed, {}));
    item.at = watch->at;
    push(lock, std::move(item));
}

void CaseSession::willWait()
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch)
        return;
    if (watch->batch != CaseWatch::Batch::None)
        complete(*watch);
    if (const int step = std::exchange(watch->openStep, -1); step >= 0)
        postMark(StepReceiver::Mark::End, watch->printer, step);
    endReports(*watch);
}

void CaseSession::waited(DWORD result, qint64 nanoseconds)
{
    CaseWatch* const watch = watchOfThisThread();
    if (!watch)
        return;
    if (result == WAIT_OBJECT_0) {
        // The thread ends.
        const Lock lock(m_mutex);
        std::erase_if(m_watches,
                      [watch](const auto& entry) { return entry.second.get() == watch; });
        role.watch = nullptr;
        return;
    }
    if (result != wokenByNotification || nanoseconds > shortWait)
        return;
    const Lock lock(m_mutex);
    ++m_faster;
    const qint64 time = now();
    if (watch->lastFaster >= 0 && time - watch->lastFaster < fasterInterval)
        return;
    watch->lastFaster = time;
    QJsonObject line = lineOf("faster");
    line.insert(QStringLiteral("printer"), watch->printer);
    pushLine(lock, line);
}

// The controller's thread /////////////////////////////////////////////////////////////////////////

void CaseSession::willList()
{
    if (!m_hasBegun.load(std::memory_order_acquire) && !watchOfThisThread())
        begin(nullptr);
}

void CaseSession::listed(DWORD level, const BYTE* records, DWORD count, DWORD error)
{
    if (isControllersThread() && (error == ERROR_SUCCESS || error == ERROR_INSUFFICIENT_BUFFER))
        ++m_succeeded.listed;
    if (level != 2 || error == ERROR_INSUFFICIENT_BUFFER || (error == ERROR_SUCCESS && !records) ||
        watchOfThisThread())
        return;
    const Lock lock(m_mutex);
    if (!m_controllersThread) {
        m_controllersThread = QThread::currentThread();
        const Lock receiverLock(m_receiverMutex);
        m_receiver = std::make_unique<StepReceiver>();
    }
    if (!isControllersThread())
        return;
    if (m_phase == Phase::Unknown || (m_phase == Phase::Constructing && !m_hasFound))
        m_phase = Phase::Constructing;
    else
        m_phase = Phase::Running;
    if (error != ERROR_SUCCESS) {
        recordFailure(lock, "EnumPrintersW", {}, error,
                      m_phase == Phase::Constructing ? 0 : m_latestOpenStep, m_succeeded.listed);
        return;
    }
    noteRunning(lock);
    m_mayBeDiscovering = true;
    // If something is found, these two calls are the first of the step.
    if (m_phase == Phase::Running && m_latestOpenStep < 0)
        m_succeeded = {.listed = 2};
    const auto* const printers = reinterpret_cast<const PRINTER_INFO_2W*>(records);
    if (m_latestOpenStep >= 0 && m_state.isSameDriver(printers, count, m_latestPrinter))
        return;
    pushLines(lock, m_state.compare(printers, count, m_latestOpenStep, m_lastStep, false));
}

/// What has just succeeded needs the service, which was last found in another state.
void CaseSession::noteRunning(const Lock& lock)
{
    if (const auto line = m_state.compareService(SERVICE_RUNNING))
        pushLine(lock, *line);
}

/// The controller has found printers, and not only looked at the list for another reason.
void CaseSession::discover(const Lock& lock)
{
    if (!std::exchange(m_mayBeDiscovering, false))
        return;
    m_isInDiscovery = true;
    if (m_phase == Phase::Constructing) {
        m_hasFound = true;
        return;
    }
    CaseItem item;
    item.object = lineOf("discover");
    // Reports that are on their way to the controller are handled after it.
    if (m_receiver && m_lastMarkedStep > m_latestBegunStep)
        item.at = m_latestBegunStep + 1;
    m_lastDiscovery = pushStep(lock, std::move(item));
}

/// The step during which the controller's thread does something with a printer.
int CaseSession::stepOf(const QString& printer) const
{
    const int step = m_openSteps.value(printer, -1);
    if (step >= 0)
        return step;
    return m_isInDiscovery ? m_lastDiscovery : SpoolerState::now;
}

int CaseSession::anyOpenStep() const
{
    return m_isInDiscovery ? m_lastDiscovery : m_latestOpenStep;
}

void CaseSession::recordFailure(const Lock& lock, const char* call, const QString& printer,
                                DWORD error, int at, int& succeeded)
{
    const int after = std::exchange(succeeded, 0);
    // What the host itself does has no step.
    if (at < 0 || isOfWhatWasLost())
        return;
    QJsonObject line = lineOf("failed");
    line.insert(QStringLiteral("at"), at);
    line.insert(QStringLiteral("call"), QLatin1String(call));
    if (!printer.isNull())
        line.insert(QStringLiteral("printer"), printer);
    line.insert(QStringLiteral("error"), qint64(error));
    if (after > 0)
        line.insert(QStringLiteral("after"), after);
    pushLine(lock, line);
}

void CaseSession::openedByController(const char* printer, HANDLE handle, ACCESS_MASK access,
                                     DWORD error)
{
    if (!isControllersThread() || !printer)
        return;
    const Lock lock(m_mutex);
    const QString name = m_state.nameOf(printer);
    m_openHandle = handle;
    if (m_openName != name) {
        m_openName = name;
        m_succeeded.opened = 0;
        m_succeeded.recordsRead = 0;
    }
    const bool isForAdministration = (access & PRINTER_ACCESS_ADMINISTER) != 0;
    if (error == ERROR_SUCCESS)
        noteRunning(lock);
    if (isForAdministration)
        discover(lock);
    const bool saysRights =
        isForAdministration && (error == ERROR_SUCCESS || error == ERROR_ACCESS_DENIED);
    if (saysRights || error == ERROR_SUCCESS)
        ++m_succeeded.opened;
    if (saysRights) {
        if (const auto line = m_state.compareRights(name, error == ERROR_SUCCESS, stepOf(name)))
            pushLine(lock, *line);
    } else if (error != ERROR_SUCCESS) {
        recordFailure(lock, "OpenPrinterA", name, error, stepOf(name), m_succeeded.opened);
    }
}

void CaseSession::readByController(HANDLE printer, const BYTE* record, DWORD error)
{
    if (!isControllersThread() || printer != m_openHandle)
        return;
    if (error == ERROR_SUCCESS || error == ERROR_INSUFFICIENT_BUFFER)
        ++m_succeeded.recordsRead;
    if (error == ERROR_INSUFFICIENT_BUFFER || (error == ERROR_SUCCESS && !record))
        return;
    const Lock lock(m_mutex);
    const int step = stepOf(m_openName);
    if (error != ERROR_SUCCESS) {
        recordFailure(lock, "GetPrinterW", m_openName, error, step, m_succeeded.recordsRead);
        return;
    }
    if (const auto line = m_state.comparePrinter(
            m_openName, *reinterpret_cast<const PRINTER_INFO_2W*>(record), step, m_lastStep))
        pushLine(lock, *line);
}

/// Whether the controller has made records since this was asked last, outside of reports: it has
/// found printers. A network printer that was offline before is found without a line of the log.
bool CaseSession::hasNewRecords()
{
    if (!m_controller || m_latestOpenStep >= 0 || !(m_mayBeDiscovering || m_isInDiscovery))
        return false;
    const qsizetype count = m_controller->getAvailablePrinters().size();
    return std::exchange(m_recordCount, count) < count;
}

void CaseSession::readDefault(const WCHAR* name, DWORD error)
{
    if (!isControllersThread())
        return;
    const bool isNone = error == ERROR_FILE_NOT_FOUND;
    if (error == ERROR_SUCCESS || error == ERROR_INSUFFICIENT_BUFFER || isNone)
        ++m_succeeded.defaultsRead;
    if (error == ERROR_INSUFFICIENT_BUFFER)
        return;
    if (!isNone && error == ERROR_SUCCESS && !name)
        return;
    const bool hasFound = hasNewRecords();
    const Lock lock(m_mutex);
    if (hasFound)
        discover(lock);
    if (!isNone && error != ERROR_SUCCESS) {
        recordFailure(lock, "GetDefaultPrinterW", {}, error, anyOpenStep(),
                      m_succeeded.defaultsRead);
        return;
    }
    if (const auto line =
            m_state.compareDefault(isNone ? QString() : textFrom(name), anyOpenStep(), m_lastStep))
        pushLine(lock, *line);
}

/// The host may have named another catalogue since.
void CaseSession::noticeCatalogue()
{
    if (!m_controller)
        return;
    const QString file = m_controller->getSupplyIdController()->catalogueFile();
    if (file == m_catalogueFile)
        return;
    m_catalogueFile = file;
    CaseItem item;
    item.kind = CaseItem::Kind::Catalogue;
    item.text = file;
    const Lock lock(m_mutex);
    push(lock, std::move(item));
}

void CaseSession::beginStep(const QString& printer, int step)
{
    noticeCatalogue();
    m_succeeded = {};
    m_openSteps.insert(printer, step);
    m_latestOpenStep = step;
    m_latestBegunStep = std::max(m_latestBegunStep, step);
    m_latestPrinter = printer;
    m_mayBeDiscovering = false;
    m_isInDiscovery = false;
}

void CaseSession::endStep(const QString& printer, int step)
{
    if (m_openSteps.value(printer, -1) == step)
        m_openSteps.remove(printer);
    if (m_latestOpenStep == step)
        m_latestOpenStep =
            m_openSteps.isEmpty() ? -1 : *std::ranges::max_element(std::as_const(m_openSteps));
}

void CaseSession::recordsWanted()
{
    if (!m_controller)
        return;
    CaseItem item;
    item.kind = CaseItem::Kind::Records;
    item.object = recordsOf(*m_controller);
    const Lock lock(m_mutex);
    push(lock, std::move(item));
}

// The look ////////////////////////////////////////////////////////////////////////////////////////

unsigned CaseSession::stateVersion()
{
    const Lock lock(m_mutex);
    return m_state.version();
}

void CaseSession::lookedAtPrinters(const PRINTER_INFO_2W* records, DWORD count, unsigned version,
                                   bool mayBeRenamed)
{
    const Lock lock(m_mutex);
    if (m_state.version() == version)
        pushLines(lock,
                  m_state.compare(records, count, SpoolerState::now, m_lastStep, mayBeRenamed));
}

void CaseSession::lookedAtRights(const QString& printer, bool isAdministrable, unsigned version)
{
    const Lock lock(m_mutex);
    if (m_state.version() != version)
        return;
    // The controller may have found the printer just now, and have been told the same.
    const int at = m_state.areRightsKnown(printer) ? SpoolerState::now : m_lastStep;
    if (const auto line = m_state.compareRights(printer, isAdministrable, at))
        pushLine(lock, *line);
}

void CaseSession::lookedAtDefault(const QString& name, unsigned version)
{
    const Lock lock(m_mutex);
    if (m_state.version() != version)
        return;
    if (const auto line = m_state.compareDefault(name, SpoolerState::now, m_lastStep))
        pushLine(lock, *line);
}

void CaseSession::lookedAtService(DWORD state, unsigned version)
{
    const Lock lock(m_mutex);
    if (m_state.version() != version)
        return;
    if (const auto line = m_state.compareService(state))
        pushLine(lock, *line);
}

void CaseSession::lookedAtValues(const QString& printer, const PublishedValues& values)
{
    CaseItem item;
    item.kind = CaseItem::Kind::Values;
    item.isSeenByLook = true;
    item.text = printer;
    item.block = values.block();
    const Lock lock(m_mutex);
    push(lock, std::move(item));
}

void CaseSession::lookedAtJob(const QJsonObject& job)
{
    const Lock lock(m_mutex);
    pushLine(lock, job);
}

QStringList CaseSession::takeNotified()
{
    const Lock lock(m_mutex);
    QStringList names;
    for (const auto& [thread, watch] : m_watches) {
        if (watch->isNotified.exchange(false, std::memory_order_relaxed))
            names.append(watch->currentName);
    }
    return names;
}

QStringList CaseSession::printersWithJobs()
{
    const Lock lock(m_mutex);
    QStringList names = m_state.names();
    names.removeIf([this](const QString& name) { return m_state.jobs(name) == 0; });
    return names;
}

QStringList CaseSession::printers()
{
    const Lock lock(m_mutex);
    return m_state.names();
}

void CaseSession::resync()
{
    // What is lost while the spooler is being read may not be in the reading. But printers may
    // change all the time.
    constexpr int mostAttempts = 8;
    qint64 lost = 0;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        {
            const Lock lock(m_mutex);
            lost = m_lostItems;
        }
        const SpoolerReading reading = readSpooler();
        const Lock lock(m_mutex);
        if (!m_isOverflowing)
            return; // somebody else was faster
        if (m_lostItems == lost || attempt + 1 == mostAttempts) {
            beginAnew(lock, reading);
            return;
        }
    }
}

void CaseSession::beginAnew(const Lock& lock, const SpoolerReading& reading)
{
    m_isOverflowing = false;
    m_isResyncDue = false;
    CaseItem reset;
    reset.kind = CaseItem::Kind::Reset;
    push(lock, reset);
    takeOver(lock, reading);
    // The reports of all steps that were lost have been sent by now.
    if (m_receiver) {
        m_isCatchingUp = true;
        QCoreApplication::postEvent(
            m_receiver.get(), new StepReceiver::Mark(StepReceiver::Mark::What::CaughtUp, {}, 0));
    }
    CaseItem lost;
    lost.kind = CaseItem::Kind::Lost;
    lost.step = static_cast<int>(std::exchange(m_lostItems, 0));
    push(lock, lost);
}

// Writing /////////////////////////////////////////////////////////////////////////////////////////

/// What only the writer uses.
struct CaseSession::Writing
{
    CaseWorld world;
    CaseCatalogueRows catalogue;
    std::vector<std::shared_ptr<CaseSink>> sinks;
};

void CaseSession::write()
{
    Writing writing;
    CaseWorld& world = writing.world;
    std::vector<std::shared_ptr<CaseSink>>& sinks = writing.sinks;
    std::vector<CaseItem> items;
    QByteArray blocks;
    Lock lock(m_mutex);
    while (true) {
        const auto isUrgent = [this] {
            return m_isEnding || m_flushesWanted != m_flushesDone;
        };
        const bool hasFailedSink = std::ranges::any_of(
            sinks, [](const std::shared_ptr<CaseSink>& sink) { return sink->hasFailed(); });
        const auto hasWork = [&] {
            return isUrgent() || !m_queue.empty();
        };
        if (hasFailedSink)
            m_changed.wait_for(lock, 1s, hasWork);
        else
            m_changed.wait(lock, hasWork);
        m_changed.wait_for(lock, writingPause,
                           [&] { return isUrgent() || m_queue.size() >= enoughItems; });
        const quint64 flushes = m_flushesWanted;
        const bool isEnding = m_isEnding;
        items.swap(m_queue);
        blocks.swap(m_queuedBlocks);
        m_queuedBytes = 0;
        if (m_isOverflowing && !m_isResyncDue.exchange(true) && m_look)
            m_look->wake();
        const qint64 time = now();
        lock.unlock();

        qsizetype place = 0;
        for (CaseItem& item : items) {
            if (item.waitingSize > 0) {
                item.block = QByteArray::fromRawData(blocks.constData() + place, item.waitingSize);
                place += std::exchange(item.waitingSize, 0);
            }
            writeItem(item, writing);
        }
        items.clear();
        if (blocks.capacity() > usualBlocks)
            blocks = {};
        blocks.resize(0);
        if (items.capacity() > itemsAtOnce)
            std::vector<CaseItem>().swap(items); // it was a storm
        items.reserve(itemsAtOnce);
        bool isRecordsWanted = false;
        for (const std::shared_ptr<CaseSink>& sink : sinks) {
            const CaseStore::Need need = sink->flush(world, time);
            isRecordsWanted = isRecordsWanted || need == CaseStore::Need::Soon;
            if (need == CaseStore::Need::Now)
                sink->beginAnew(world, {}, time);
        }

        lock.lock();
        if (isRecordsWanted && m_receiver && !std::exchange(m_isRecordsAsked, true))
            postMark(StepReceiver::Mark::Records, {}, 0);
        m_flushesDone = flushes;
        m_changed.notify_all();
        if (isEnding && m_queue.empty())
            return;
    }
}

/// Rows of the catalogue come before the values that need them.
void CaseSession::writeRows(const PublishedValues& values, const CaseItem& item, Writing& writing)
{
    CaseItem rows;
    rows.time = item.time;
    rows.object = writing.catalogue.rowsFor(values);
    if (rows.object.isEmpty())
        return;
    writing.world.apply(rows);
    for (const std::shared_ptr<CaseSink>& sink : writing.sinks)
        sink->write(rows);
}

void CaseSession::writeItem(CaseItem& item, Writing& writing)
{
    CaseWorld& world = writing.world;
    std::vector<std::shared_ptr<CaseSink>>& sinks = writing.sinks;
    switch (item.kind) {
    case CaseItem::Kind::SinkAdded:
        item.sink->begin(world, item);
        sinks.push_back(item.sink);
        return;
    case CaseItem::Kind::SinkRemoved:
        item.sink->end(item.time, m_faster);
        std::erase(sinks, item.sink);
        return;
    case CaseItem::Kind::Catalogue:
        writing.catalogue.setFile(item.text);
        world.forEachPrinter(
            [&](const PublishedValues& values) { writeRows(values, item, writing); });
        return;
    case CaseItem::Kind::Flush:
        return;
    case CaseItem::Kind::Reset:
        world.reset();
        return;
    case CaseItem::Kind::Lost:
        for (const std::shared_ptr<CaseSink>& sink : sinks)
            sink->lose(item.step, world, item.time);
        return;
    case CaseItem::Kind::Records:
        for (const std::shared_ptr<CaseSink>& sink : sinks) {
            if (sink->flush(world, item.time) != CaseStore::Need::None)
                sink->beginAnew(world, item.object, item.time);
        }
        {
            const Lock lock(m_mutex);
            m_isRecordsAsked = false;
        }
        return;
    case CaseItem::Kind::Line:
    case CaseItem::Kind::Values:
        if (!item.block.isEmpty())
            writeRows(PublishedValues(item.block), item, writing);
        world.apply(item);
        break;
    case CaseItem::Kind::Signal:
    case CaseItem::Kind::Log:
        break;
    }
    if (item.isForWorldAlone || sinks.empty())
        return;
    for (std::size_t i = 0; i + 1 < sinks.size(); ++i)
        sinks[i]->write(std::as_const(item));
    sinks.back()->write(std::move(item));
}

} // namespace VxKit
