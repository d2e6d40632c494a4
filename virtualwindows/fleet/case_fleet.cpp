// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A case as a fleet, for programs that watch it as they would watch printers.
#include "case_changes.h"
#include "virtualwindows/recorded_case.h"

#include <QtCore/QHash>

namespace virtualwindows {

namespace {

using Happening = std::function<void(Machine&)>;

/// The failures of each step. Those of a thread's start are the ones of the step that creates it,
/// because the program that the story is played to starts it itself.
QHash<int, QList<CallFailure>> failuresByStep(const CaseChapter& chapter)
{
    QHash<int, QList<CallFailure>> failures;
    for (const CaseStep& step : chapter.steps) {
        const bool isStart = step.kind == CaseStep::Kind::Start;
        failures[step.number] += step.hostFailures;
        failures[isStart ? step.startedBy : step.number] += step.threadFailures;
        for (const CaseStart& start : step.starts)
            failures[step.number] += start.failures;
    }
    return failures;
}

void plan(Machine& machine, const QList<CallFailure>& failures)
{
    for (const CallFailure& failure : failures)
        machine.failNextCall(failure);
}

class StoryWriter
{
public:
    QList<StoryEvent> write(const QList<CaseChapter>& chapters)
    {
        for (qsizetype place = 0; place < chapters.size(); ++place) {
            const CaseChapter& chapter = chapters.at(place);
            if (place > 0 && chapter.hasBegun)
                add(chapter.at, [fleet = chapter.beginning](Machine& machine) {
                    case_changes::turnInto(machine, fleet);
                });
            m_failures = failuresByStep(chapter);
            for (const CaseStep& step : chapter.steps) {
                // Those of the first chapter are preparations.
                if (place > 0 || step.kind != CaseStep::Kind::Construction)
                    addStep(step);
            }
            addChanges(chapter.after);
        }
        return m_story;
    }

private:
    void addStep(const CaseStep& step)
    {
        addChanges(step.before);
        const QList<CallFailure> failures = m_failures.value(step.number);
        if (step.kind == CaseStep::Kind::Values) {
            add(step.at, [printer = step.printer, changed = step.changed, missing = step.missing,
                          failures](Machine& machine) {
                // What has not failed by now was not called again.
                machine.forgetNextFailures(printer);
                plan(machine, failures);
                case_changes::publish(machine, printer, changed, missing);
            });
        } else if (!failures.isEmpty()) {
            // A thread polls when its own five seconds are over, so its failures wait for it from
            // the change of the service on.
            const bool isPoll = step.kind == CaseStep::Kind::Poll;
            add(isPoll ? std::chrono::milliseconds() : step.at,
                [failures](Machine& machine) { plan(machine, failures); });
        }
    }

    void addChanges(const QList<CaseChange>& changes)
    {
        for (const CaseChange& change : changes)
            add(change.at, change.apply);
    }

    /// Changes were recorded when they were noticed; their order is that of the file.
    void add(std::chrono::milliseconds at, const Happening& happen)
    {
        const bool isLater = m_story.isEmpty() || at > m_story.last().at;
        m_story.append({isLater ? at : m_story.last().at, {}, happen});
    }

    QList<StoryEvent> m_story;
    QHash<int, QList<CallFailure>> m_failures; ///< of the chapter, by the number of the step
};

} // namespace

Fleet fleetOf(const Case& recorded)
{
    const CaseChapter& first = recorded.chapters.first();
    Fleet fleet = first.beginning;
    for (const CaseStep& step : first.steps) {
        if (step.kind != CaseStep::Kind::Construction)
            continue;
        for (const CaseChange& change : step.before)
            fleet.preparations.append(change.apply);
        const QList<CallFailure> failures = failuresByStep(first).value(step.number);
        if (!failures.isEmpty())
            fleet.preparations.append([failures](Machine& machine) { plan(machine, failures); });
    }
    fleet.story = StoryWriter().write(recorded.chapters);
    fleet.catalogue = recorded.catalogue;
    return fleet;
}

} // namespace virtualwindows
