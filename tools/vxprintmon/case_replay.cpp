// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_replay.h"

#include "case_listener.h"
#include "failure.h"
#include "recorded_catalogue.h"
#include "tool_text.h"

#include <printer_status_controller.h>
#include <printer_status_thread.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QSet>

#include <chrono>
#include <condition_variable>
#include <limits>
#include <memory>
#include <mutex>
#include <utility>

namespace {

using virtualwindows::CallFailure;
using virtualwindows::Case;
using virtualwindows::CaseChange;
using virtualwindows::CaseChapter;
using virtualwindows::CaseOutput;
using virtualwindows::CaseStart;
using virtualwindows::CaseStep;
using virtualwindows::Machine;

Machine& machine()
{
    return Machine::instance();
}

/// Lets monitoring threads begin only one by one, in the order of the recording. They would
/// otherwise race each other, and their first reports would arrive in any order. A thread whose
/// first question for the service's state was answered later is held there once more.
class StartGate
{
public:
    StartGate()
    {
        machine().setCallHook(
            [state = m_state, host = QThread::currentThreadId()](const virtualwindows::Call& call) {
                // What the calling thread has opened: null before its first call, and empty when it
                // is not to be held any more.
                static thread_local QString printer;
                if (call.thread == host || (!printer.isNull() && printer.isEmpty()))
                    return;
                if (call.function == QLatin1String("OpenPrinterA") && printer.isNull()) {
                    printer = call.arguments.value(0);
                    state->passStart(printer);
                } else if (call.function == QLatin1String("QueryServiceStatus")) {
                    state->passQuestion(std::exchange(printer, QStringLiteral("")));
                }
            });
    }
    ~StartGate()
    {
        m_state->open();
        machine().setCallHook(nullptr);
    }
    Q_DISABLE_COPY_MOVE(StartGate)

    void start(const QString& printer) { m_state->let(&State::started, printer); }
    void answer(const QString& printer) { m_state->let(&State::answered, printer); }
    /// Waits until the printer's thread is held at its question. False: it is not within the limit.
    bool waitForQuestion(const QString& printer, std::chrono::milliseconds limit)
    {
        std::unique_lock guard(m_state->lock);
        return m_state->changed.wait_for(guard, limit,
                                         [&] { return m_state->asked.contains(printer); });
    }

private:
    /// Lives as long as a thread may be in it.
    struct State
    {
        std::mutex lock;
        std::condition_variable changed;
        QSet<QString> started;
        QSet<QString> asked;
        QSet<QString> answered;
        bool isOpen = false;

        void let(QSet<QString> State::*passed, const QString& printer)
        {
            const std::lock_guard guard(lock);
            (this->*passed).insert(printer);
            changed.notify_all();
        }
        void open()
        {
            const std::lock_guard guard(lock);
            isOpen = true;
            changed.notify_all();
        }
        void passStart(const QString& printer)
        {
            std::unique_lock guard(lock);
            changed.wait(guard, [&] { return isOpen || started.contains(printer); });
        }
        void passQuestion(const QString& printer)
        {
            std::unique_lock guard(lock);
            asked.insert(printer);
            changed.notify_all();
            changed.wait(guard, [&] { return isOpen || answered.contains(printer); });
        }
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

/// Names of supplies are in the language of the recording.
class RecordedLocale
{
public:
    explicit RecordedLocale(const QString& name)
    {
        if (!name.isEmpty())
            QLocale::setDefault(QLocale(name));
    }
    ~RecordedLocale() { QLocale::setDefault(m_before); }
    Q_DISABLE_COPY_MOVE(RecordedLocale)

private:
    QLocale m_before;
};

/// The controller of one chapter.
class ChapterPlayer
{
public:
    ChapterPlayer(const CaseChapter& chapter, CaseListener& listener, const QString& catalogueFile)
        : m_listener(listener)
        , m_catalogueFile(catalogueFile)
    {
        for (const CaseStep& step : chapter.steps) {
            if (step.kind == CaseStep::Kind::Start)
                m_startSteps.insert(step.printer, step.number);
            expectQuestions(step.before);
        }
        expectQuestions(chapter.after);
        int handledBefore = std::numeric_limits<int>::max();
        for (qsizetype i = chapter.steps.size() - 1; i >= 0; --i) {
            const CaseStep& step = chapter.steps.at(i);
            m_firstHandledLater.prepend(handledBefore);
            if (step.kind == CaseStep::Kind::Discovery && step.handledBefore)
                handledBefore = std::min(handledBefore, *step.handledBefore);
        }
    }
    ~ChapterPlayer() = default;
    Q_DISABLE_COPY_MOVE(ChapterPlayer)

    void play(const CaseStep& step)
    {
        m_listener.begin(step.line, step.at);
        // The controller may have looked for printers before it handled the reports of the step.
        const int firstHandledLater = m_firstHandledLater.takeFirst();
        const bool hasReports = step.kind == CaseStep::Kind::Values ||
                                step.kind == CaseStep::Kind::Start ||
                                step.kind == CaseStep::Kind::Poll;
        const bool isHandledLater = hasReports && step.number >= firstHandledLater;
        for (const CaseChange& change : step.before) {
            if (!isHandledLater || !change.isOfReports)
                apply(change);
        }
        if (isHandledLater)
            m_unhandled.append(&step);
        else
            plan(step.hostFailures);
        plan(step.threadFailures);
        switch (step.kind) {
        case CaseStep::Kind::Construction:
            m_controller.emplace();
            m_controller->getSupplyIdController()->setCatalogueFile(m_catalogueFile);
            m_listener.listen(*m_controller);
            start(step);
            break;
        case CaseStep::Kind::Discovery:
            m_controller->checkForPrinters();
            start(step);
            break;
        case CaseStep::Kind::Start:
            if (heldPrinters().contains(step.printer))
                start(step.printer);
            break;
        case CaseStep::Kind::Values:
            publish(step);
            if (machine().endWaitByNotification(step.printer))
                settle();
            break;
        case CaseStep::Kind::Poll:
            if (machine().endWaitByTimeOut(step.printer))
                settle();
            break;
        case CaseStep::Kind::Other:
            break;
        }
        // The reports of the threads to the controller.
        if (m_unhandled.isEmpty() || m_unhandled.last()->number < firstHandledLater) {
            for (const CaseStep* const late : std::exchange(m_unhandled, {}))
                handle(*late);
            QCoreApplication::sendPostedEvents();
        }
        machine().forgetNextFailures();
    }

private:
    void expectQuestions(const QList<CaseChange>& changes)
    {
        for (const CaseChange& change : changes) {
            if (!change.firstAskedBy.isNull())
                m_lateQuestions.insert(change.firstAskedBy);
        }
    }

    void apply(const CaseChange& change)
    {
        change.apply(machine());
        if (!m_started.contains(change.firstAskedBy))
            return;
        m_lateQuestions.remove(change.firstAskedBy);
        m_gate.answer(change.firstAskedBy);
        settle();
    }

    /// Prepares what the controller saw while it handled the reports of a step.
    void handle(const CaseStep& step)
    {
        for (const CaseChange& change : step.before) {
            if (change.isOfReports)
                apply(change);
        }
        plan(step.hostFailures);
    }

    static void plan(const QList<CallFailure>& failures)
    {
        for (const CallFailure& failure : failures)
            machine().failNextCall(failure);
    }

    static void publish(const CaseStep& step)
    {
        // A thread goes on watching a printer that was renamed or removed.
        if (!machine().publishWatched(step.printer, step.changed, step.missing) &&
            machine().hasPrinter(step.printer))
            machine().publish(step.printer, step.changed, step.missing);
    }

    QStringList heldPrinters() const
    {
        QStringList names;
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& record : records) {
            const QString name = record.value<PrinterStatusInformation>().printerName;
            if (m_controller->statusThread(name) && !m_started.contains(name))
                names.append(name);
        }
        return names;
    }

    /// Starts the threads that a step has created and that have no step of their own.
    void start(const CaseStep& step)
    {
        QStringList held = heldPrinters();
        for (const CaseStart& entry : step.starts) {
            if (!held.removeOne(entry.printer))
                continue;
            plan(entry.failures);
            start(entry.printer);
        }
        for (const QString& printer : std::as_const(held)) {
            if (m_startSteps.value(printer, -1) <= step.number)
                start(printer);
        }
    }

    void start(const QString& printer)
    {
        m_started.insert(printer);
        if (!m_lateQuestions.contains(printer))
            m_gate.answer(printer);
        m_gate.start(printer);
        settle();
    }

    bool isRunning(const QString& printer) const
    {
        const PrinterStatusThread* const thread = m_controller->statusThread(printer);
        return thread && thread->isRunning();
    }

    /// Whether all threads that have been started have ended, wait again, or are held.
    bool isAtRest()
    {
        constexpr std::chrono::milliseconds interval(20);
        int waiting = 0;
        for (const QString& printer : std::as_const(m_started)) {
            if (!isRunning(printer))
                continue;
            if (!m_lateQuestions.contains(printer))
                ++waiting;
            else if (!m_gate.waitForQuestion(printer, interval))
                return false;
        }
        return machine().waitForWaitingThreads(waiting, interval);
    }

    void settle()
    {
        constexpr std::chrono::minutes patience(2);
        const auto begin = std::chrono::steady_clock::now();
        while (!isAtRest()) {
            if (std::chrono::steady_clock::now() - begin > patience)
                throw Failure(ToolText::tr("a monitoring thread does not come to rest"));
        }
    }

    CaseListener& m_listener;
    QString m_catalogueFile;
    QHash<QString, int> m_startSteps; ///< the number of the last one of each printer
    QSet<QString> m_started;
    /// Of each step that is still to be played: from which number on the reports of steps are
    /// handled after a later one.
    QList<int> m_firstHandledLater;
    QList<const CaseStep*> m_unhandled; ///< played, but their reports are still on their way
    QSet<QString> m_lateQuestions;      ///< the printers whose threads are held at their question
    std::optional<PrinterStatusController> m_controller;
    // Destroyed before the controller, which could not end a thread that is held.
    StartGate m_gate;
};

QList<CaseOutput> played(const CaseChapter& chapter, CaseListener& listener,
                         const QString& catalogueFile)
{
    machine().reset();
    // Time stands still, so no wait times out, and nothing is signalled but what was recorded.
    machine().driveTime();
    machine().holdNotifications();
    // What failed was recorded. A printer with another name may have been taken for a new one, and
    // a call was possible before the service was noticed to be stopped.
    machine().failOnlyAsPlanned();
    virtualwindows::populate(machine(), chapter.beginning);
    listener.take();
    ChapterPlayer player(chapter, listener, catalogueFile);
    for (const CaseStep& step : chapter.steps) {
        player.play(step);
        // A controller that was already working had made its first reports.
        if (step.kind == CaseStep::Kind::Construction && !chapter.isFromStart)
            listener.take();
    }
    return listener.take();
}

} // namespace

case_replay::Outputs case_replay::replay(const Case& recorded, const QString& caseFile)
{
    const RecordedCatalogue catalogue(
        recorded.catalogue.value_or(QList<virtualwindows::CatalogueRow>()), caseFile);
    if (recorded.catalogue && catalogue.file().isEmpty())
        throw Failure(ToolText::tr("%1: its catalogue can only be played with a supply database "
                                   "of the product itself")
                          .arg(caseFile));
    // Without rows, the library had no catalogue.
    const QString catalogueFile =
        catalogue.file() + (recorded.catalogue ? QString() : QStringLiteral(".none"));
    const RecordedLocale locale(recorded.locale);
    CaseListener listener;
    Outputs outputs;
    for (const CaseChapter& chapter : recorded.chapters)
        outputs.append(played(chapter, listener, catalogueFile));
    machine().reset();
    return outputs;
}

QString case_replay::differenceOf(const QString& caseFile)
{
    try {
        const Case recorded = virtualwindows::readCase(caseFile);
        return described(compare(recorded, replay(recorded, caseFile)).first);
    } catch (const virtualwindows::FleetError& error) {
        throw Failure(error.message());
    }
}
