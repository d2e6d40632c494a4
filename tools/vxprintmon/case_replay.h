// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/recorded_case.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

/// Lets a new controller go through everything that a case recorded, as fast as it can: one step
/// after the other, each as soon as the controller has done with the one before.
namespace case_replay {

/// What the library made of it: a list for each chapter of the case. The lines are those of the
/// steps that led to them, and so are the times.
using Outputs = QList<QList<virtualwindows::CaseOutput>>;

/// Uses the virtual Windows of this process alone, which is empty afterwards, and the event loop's
/// queue of the calling thread. `caseFile` is the case's file in messages. Throws `Failure` if its
/// catalogue cannot be used or a monitoring thread does not come to rest.
Outputs replay(const virtualwindows::Case& recorded, const QString& caseFile);

/// The first thing that the library does differently now.
struct Difference
{
    QString printer;     ///< null: the signals and lines that are about no printer
    qsizetype place = 0; ///< among the printer's signals and lines, from 1
    std::optional<virtualwindows::CaseOutput> recorded; ///< nothing: it was not recorded
    std::optional<virtualwindows::CaseOutput> replayed; ///< nothing: it does not happen now
};

/// What was recorded and what happened now, compared printer by printer, each printer's signals and
/// lines in order. Of a case that was cut, and before a gap in it, what is missing at the end of
/// the recording is no difference.
struct Comparison
{
    std::optional<Difference> first; ///< the one that was recorded first; nothing: all is the same
    qsizetype signalCount = 0;       ///< of the case; without any, only the log was compared
    qsizetype logLineCount = 0;
    qsizetype stepCount = 0;
};
Comparison compare(const virtualwindows::Case& recorded, const Outputs& outputs);

/// Replays a case file. Returns the first difference as text, null if all is the same, which makes
/// a test of a case in one line. Throws `Failure` if the file cannot be read or replayed.
QString differenceOf(const QString& caseFile);

/// A signal or a line for people and for tests.
QString described(const virtualwindows::CaseOutput& output);
/// The same for a difference, on three lines. Null: there is none.
QString described(const std::optional<Difference>& difference);

} // namespace case_replay
