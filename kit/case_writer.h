// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How the lines of a case file are put together, and where they are kept: in a file or in memory.
#pragma once

#include "case_file.h"
#include "log_file.h"

#include <QtCore/QByteArray>
#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <functional>

namespace VxKit {

/// The size of the longest line with its line feed.
inline constexpr qsizetype longestCaseLine = qsizetype(1024) * 1024;

/// Appends a text with its quotation marks. What is no valid UTF-16 becomes U+FFFD.
void appendJsonText(QByteArray& line, QStringView text);
/// Appends seconds with three decimals.
void appendSeconds(QByteArray& line, qint64 milliseconds);

/// Where the lines of a case are kept. When there is no more room, the oldest lines are left out
/// after the first ones; what is kept after them begins anew, with everything as it was then.
class CaseStore
{
public:
    CaseStore() = default;
    virtual ~CaseStore() = default;
    Q_DISABLE_COPY_MOVE(CaseStore)

    /// Lines that are complete, and how many. False when they could not be kept.
    virtual bool append(const QByteArray& lines, qint64 count) = 0;
    /// Whether `beginAnew` should be called soon, or at once.
    enum class Need
    {
        None,
        Soon,
        Now,
    };
    virtual Need needsBeginning(qsizetype added) const = 0;
    /// Everything as it is now, as lines, and the time that the file has been recorded, in
    /// milliseconds.
    virtual void beginAnew(const QByteArray& beginning, qint64 count, qint64 time) = 0;

    virtual qint64 size() const = 0;
    /// Nothing more is kept.
    virtual void close() {}
    /// All lines, if they are in memory.
    virtual QByteArray content() const { return {}; }
    /// How many lines are not kept any more.
    qint64 dropped() const { return m_dropped; }
    QString error() const { return m_error; }

protected:
    qint64 m_dropped = 0;
    QString m_error;
};

/// The line that says that lines are missing.
QByteArray gapLine(qint64 lines, qint64 until);

/// A case file. When it becomes larger than its limit, it is written anew next to itself and then
/// renamed, so that it is valid at every moment.
class CaseFileStore : public CaseStore
{
public:
    /// Creates the file. When that fails, `error()` says why.
    CaseFileStore(const QString& fileName, qint64 limit);
    ~CaseFileStore() override;

    bool isOpen() const { return m_file.isOpen(); }
    void close() override;

    bool append(const QByteArray& lines, qint64 count) override;
    Need needsBeginning(qsizetype added) const override;
    void beginAnew(const QByteArray& beginning, qint64 count, qint64 time) override;
    qint64 size() const override { return m_size; }

private:
    QString partName() const;
    bool copy(qint64 from, qint64 to, LogFile& into);
    void fail(const QString& reason);
    bool replace();
    void forgetPart();

    const QString m_fileName;
    const qint64 m_limit;
    LogFile m_file;
    qint64 m_size = 0;
    qint64 m_count = 0; ///< lines in the file
    // The lines at the start that are kept.
    qint64 m_firstSize = 0;
    qint64 m_firstCount = 0;
    bool m_isFirstFull = false;
    // What has been written of the file that is to replace this one, and from where it goes on.
    LogFile m_part;
    qint64 m_partSize = 0;
    qint64 m_partCount = 0;
    qint64 m_markSize = 0;
    qint64 m_markCount = 0;
    qint64 m_droppedAtMark = 0;
};

/// Lines in memory, without a limit.
class CaseText : public CaseStore
{
public:
    bool append(const QByteArray& lines, qint64 count) override;
    Need needsBeginning(qsizetype /*added*/) const override { return Need::None; }
    void beginAnew(const QByteArray& /*beginning*/, qint64 /*count*/, qint64 /*time*/) override {}
    qint64 size() const override { return m_lines.size(); }
    QByteArray content() const override { return m_lines; }

private:
    QByteArray m_lines;
};

} // namespace VxKit
