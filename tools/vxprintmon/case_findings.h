// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// A condition that a fact of a case meets or does not meet: alternatives, each of which names
/// members of the fact and what they must be.
using Condition = QList<QJsonObject>;

/// What can be recognised in a case. docs/case-files.md describes the table.
struct Finding
{
    QString name;
    Condition when;
    Condition then;  ///< what must follow; empty: nothing
    Condition until; ///< what takes it back; empty: nothing does
    /// How long it must have been so before it counts, in seconds.
    double lasting = 0;
    /// How long before `when` the `until` may have been and still takes it back, in seconds.
    double forgiving = 0;
    QStringList by; ///< the members that tell apart what is found
    QString text;   ///< in the user's language, as the next one
    QString remedy;
};

/// The findings of the tool, and behind them those of a file, if one is named. Throws `Failure`
/// when there is a mistake in the file.
QList<Finding> knownFindings(const QString& fileName);

/// What was found, with its evidence.
struct Found
{
    QString name;
    QString printer; ///< empty if it concerns all printers
    QString text;
    QString remedy;
    QList<qint64> lines; ///< the first ones of the file that show it
    qint64 lineCount = 0;
    double from = 0; ///< in seconds since the start
    double until = 0;
};

/// Looks for findings in the facts of a case.
class FindingSearch
{
public:
    explicit FindingSearch(QList<Finding> findings);

    void add(const QJsonObject& fact, qint64 line, double time);
    /// What was found, in the order in which it begins. `time` is the end of the case.
    QList<Found> result(double time);

private:
    /// What has been seen of one finding, in one group of facts.
    struct Trace
    {
        QJsonObject fact; ///< the first one
        QList<qint64> lines;
        qint64 lineCount = 0;
        double from = 0;
        double until = 0;
        bool isComplete = false;  ///< `then` was seen
        bool isConfirmed = false; ///< nothing takes it back any more
    };
    struct Search
    {
        Finding finding;
        QMap<QString, Trace> traces;
        QMap<QString, double> takenBack; ///< when `until` was met last
    };

    static void note(Trace& trace, qint64 line, double time);
    void takeBack(Search& search, const QJsonObject& fact, double time);

    QList<Search> m_searches;
};
