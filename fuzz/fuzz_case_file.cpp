// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The input is a case file. Either it is refused in one line that names a line of the file, or the
// machine can be populated with it and its story played.
#include "one_line.h"
#include "qt_application.h"
#include "require.h"

#include "virtualwindows/recorded_case.h"

#include <QtCore/QRegularExpression>

#include <cstddef>
#include <cstdint>

namespace {

using virtualwindows::Case;
using virtualwindows::CaseChapter;
using virtualwindows::CaseStep;
using virtualwindows::Fleet;
using virtualwindows::Machine;

void play(const Fleet& fleet)
{
    Machine& machine = Machine::instance();
    machine.reset();
    virtualwindows::populate(machine, fleet);
    std::chrono::milliseconds now{};
    for (const virtualwindows::StoryEvent& event : fleet.story) {
        require(event.at >= now, "the story is in chronological order");
        now = event.at;
        event.happen(machine);
    }
    machine.reset();
}

void check(const Case& recorded)
{
    require(!recorded.chapters.isEmpty(), "there is a chapter");
    for (const CaseChapter& chapter : recorded.chapters) {
        require(chapter.hasBegun == !chapter.steps.isEmpty(), "a chapter begins with a step");
        int number = -1;
        for (const CaseStep& step : chapter.steps) {
            require(step.number > number, "the numbers of steps rise");
            number = step.number;
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ensureCoreApplication();
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const Case recorded = virtualwindows::parseCase(text, QStringLiteral("case"));
        check(recorded);
        play(virtualwindows::fleetOf(recorded));
    } catch (const virtualwindows::FleetError& error) {
        static const QRegularExpression located(QStringLiteral("^case:[0-9]+: ."));
        require(isOneLine(error.message()), "a mistake is one line");
        require(located.match(error.message()).hasMatch(), "a mistake names its line");
    }
    return 0;
}
