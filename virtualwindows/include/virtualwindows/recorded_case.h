// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "fleet.h"

#include <QtCore/QVariantMap>

#include <chrono>
#include <functional>
#include <optional>

namespace virtualwindows {

/// A change of the system that a case recorded, and where in the file it is.
struct CaseChange
{
    int line = 0;
    std::chrono::milliseconds at{}; ///< since the start of the recording
    std::function<void(Machine&)> apply;
    /// The printer whose thread asked for the service's state for the first time when it was so, of
    /// a change of the service. Null: no thread did.
    QString firstAskedBy;
    /// The controller saw it while it handled the reports of the step that it belongs to.
    bool isOfReports = false;
};

/// The start of a printer's monitoring thread that has no step of its own.
struct CaseStart
{
    int line = 0;
    QString printer;
    QList<CallFailure> failures; ///< of the thread's first read
};

/// Something that made the library work.
struct CaseStep
{
    enum class Kind
    {
        Construction, ///< of the controller
        Values,       ///< a printer's thread was woken by a notification and read its values
        Start,        ///< a printer's thread that a step before created read its values first
        Poll,         ///< a printer's thread noticed that the service had changed its state
        Discovery,    ///< the host looked for printers
        Other,        ///< nothing that the library noticed
    };

    Kind kind = Kind::Other;
    int line = 0;
    int number = 0;
    std::chrono::milliseconds at{};
    QList<CaseChange> before; ///< what had changed when the step happened
    QString printer;          ///< the name by which its thread opened it; of Start, Values and Poll
    int startedBy = 0;        ///< the number of the step that created the thread; of Start
    /// The controller handled the reports of the steps from this number on after it; of Discovery.
    std::optional<int> handledBefore;
    QList<PrinterValue> changed;
    QList<QByteArray> missing;         ///< the names of values that were taken away
    QList<CallFailure> threadFailures; ///< of Start, Values and Poll
    QList<CallFailure> hostFailures;   ///< on the controller's thread, during the step or after it
    QList<CaseStart> starts;           ///< in the order in which the threads had read their values
};

/// A signal of the controller or a line of the library's log.
struct CaseOutput
{
    enum class Kind
    {
        Signal,
        LogLine,
    };

    Kind kind = Kind::Signal;
    int line = 0; ///< of the case file
    std::chrono::milliseconds at{};
    QString name;          ///< of the signal
    QVariantMap arguments; ///< of the signal, by name

    QString level; ///< this and the following: of the line in the log
    QString sourceFile;
    int sourceLine = 0;
    QString function;
    QString message;
};

/// A recording without a gap.
struct CaseChapter
{
    int line = 0;
    std::chrono::milliseconds at{};
    /// The controller was created then. False: it was already working.
    bool isFromStart = false;
    bool hasBegun = false; ///< the system's state at the beginning is complete
    Fleet beginning;       ///< without a story
    QList<CaseStep> steps; ///< begins with the construction of the controller
    QList<CaseChange> after;
    QList<CaseOutput> outputs;
};

/// A recording of what the system showed to the library, and of what the library made of it: the
/// content of a .vxcase file.
struct Case
{
    QString version;
    QString product;
    QString locale;
    bool isRedacted = false;
    bool isCut = true; ///< its last line is missing
    std::chrono::milliseconds length{};
    QList<CaseChapter> chapters; ///< at least one
    /// The rows of the supply database that what was loaded needs. Null: none were recorded.
    std::optional<QList<CatalogueRow>> catalogue;
};

/// Reads a case file. Throws FleetError at the first mistake in the file. A last line that is not
/// complete is skipped, as are unknown kinds of lines and unknown keys.
Case readCase(const QString& fileName);

/// The same for the text of a file. Error messages call the file `name`.
Case parseCase(const QByteArray& text, const QString& name);

/// Whether a file name is that of a case file.
bool isCaseFile(const QString& fileName);

/// The system of a case with a story of its changes. What the host did is left out: the program
/// that the story is played to looks for printers when it wants to.
Fleet fleetOf(const Case& recorded);

} // namespace virtualwindows
