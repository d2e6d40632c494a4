// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "failure.h"

#include <QtCore/QString>

#include <functional>
#include <map>
#include <tuple>

/// A mistake in a table, with its place: the line and the column of the table, both counted from 1,
/// or 0 if it concerns the whole file or the whole line.
class Mistake : public Failure
{
public:
    Mistake(int line, qsizetype column, const QString& message)
        : Failure(message)
        , m_line(line)
        , m_column(column)
    {}

    int line() const { return m_line; }
    qsizetype column() const { return m_column; }

private:
    int m_line;
    qsizetype m_column;
};

using ReportMistake = std::function<void(const Mistake& mistake)>;

/// The mistakes that were found in one run. The first `most` of them are kept, in the order of
/// their places and not of their discovery. The others are counted.
class Mistakes
{
public:
    static constexpr std::size_t most = 50;

    /// `file` is the number of the file in the order in which files are reported.
    void add(int file, const Mistake& mistake);

    /// Throws a Failure with all of them, if there is one.
    void throwIfAny() const;

private:
    struct Place
    {
        int file;
        int line;
        qsizetype column;
        bool operator<(const Place& other) const
        {
            return std::tie(file, line, column) < std::tie(other.file, other.line, other.column);
        }
    };

    std::multimap<Place, QString> m_kept;
    qsizetype m_others = 0;
};
