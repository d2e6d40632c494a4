// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_recorder.h"
#include "case_redaction.h"
#include "case_world.h"
#include "case_writer.h"

#include <QtCore/QDateTime>

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string_view>
#include <vector>

namespace VxKit {

/// Turns what has happened into the lines of one case, redacted if that is wanted, and keeps them.
/// The session's writer uses it; what is asked for a summary may be asked on any thread.
class CaseSink
{
public:
    /// Without a store, what happens is kept in memory.
    CaseSink(const CaseRecorderOptions& options, std::unique_ptr<CaseStore> store);

    /// The first line, and everything as it is.
    void begin(const CaseWorld& world, const CaseItem& item);
    void write(const CaseItem& item);
    /// The same with an item that nobody else needs.
    void write(CaseItem&& item);
    /// Keeps the lines written so far.
    CaseStore::Need flush(const CaseWorld& world, qint64 time);
    void beginAnew(const CaseWorld& world, const QJsonObject& records, qint64 time);
    /// Lines could not be taken, and what is known has been read again.
    void lose(int count, const CaseWorld& world, qint64 time);
    void end(qint64 time, qint64 faster);

    bool hasFailed() const { return m_isFailing.load(std::memory_order_relaxed); }
    QString errorString() const;
    CaseRecorderSummary summary() const;
    /// Everything that is kept in memory, as the content of a file.
    QByteArray content() const;

private:
    class Line;

    QByteArray line(const QJsonObject& object);
    QByteArray beginning(const CaseWorld& world, const QJsonObject& records, int firstStep,
                         qint64& count);
    void add(const QByteArray& text);
    bool count(const CaseItem& item);
    void appendHead(Line& line, std::string_view kind, const CaseItem& item);
    void appendMembers(Line& line, const char* key, const QJsonValue& value);
    const QByteArray& nameText(const QString& printer);
    QByteArray valueText(const PublishedValues::Value& value);
    void appendValue(Line& line, const PublishedValues::Value& value);
    void writeLine(const CaseItem& item);
    void writeValues(const CaseItem& item);
    void writeSignal(const CaseItem& item);
    void writeLog(const CaseItem& item);
    QByteArray logText(const CaseItem& item);
    qsizetype endOfName(const QString& message, QByteArrayView& name) const;
    void writeHeader(bool isFromStart);
    void writeText(const CaseItem& item);
    void keepInMemory(CaseItem&& item);
    int relative(int step) const { return std::max(step - m_stepBase, 0); }
    CaseStore::Need keep(qint64 time);
    QByteArray endLine(qint64 time) const;

    const CaseRecorderOptions m_options;
    std::optional<CaseRedaction> m_redaction;
    QHash<QString, QByteArray> m_names; ///< of printers, as JSON
    struct NameText
    {
        QString name; ///< keeps its place
        QByteArray text;
    };
    QHash<const QChar*, NameText> m_namePlaces; ///< the same by where a name lies
    const NameText* m_lastName = nullptr;       ///< asked for last
    /// A value that the library reads, as JSON.
    struct ValueText
    {
        bool isUnused() const { return known == 0; }

        int known = 0;
        DWORD type = 0;
        QByteArray bytes;
        QByteArray text;
    };
    /// What a line of the log says, as JSON, before and after the name of its printer.
    struct LogText
    {
        bool isUnused() const { return line < 0; }

        int line = -1;
        QString message; ///< without the name
        QByteArray before;
        QByteArray after; ///< empty: no name
    };
    // What comes again and again.
    std::vector<ValueText> m_valueTexts;
    std::vector<LogText> m_logTexts;
    qint64 m_timeOfText = -1;
    QByteArray m_timeText;
    QDateTime m_startTime;
    qint64 m_timeBase = 0;
    int m_stepBase = 0;
    int m_lastStep = 0;
    bool m_hasBegun = false;

    QByteArray m_text; ///< lines that have not been kept yet
    qint64 m_textLines = 0;
    qint64 m_lostSinceFailure = 0;
    qint64 m_nextAttempt = 0;

    mutable std::mutex m_mutex;
    // Guarded by the mutex.
    std::unique_ptr<CaseStore> m_store;
    // What is kept without a store: everything as it was, and what has happened since.
    CaseWorld m_base;
    QJsonObject m_baseRecords;
    int m_baseStep = 0;
    std::deque<CaseItem> m_items;
    qint64 m_itemBytes = 0;
    qint64 m_itemsDropped = 0;
    QString m_error;

    std::atomic<bool> m_isFailing = false;
    std::atomic<qint64> m_steps = 0;
    std::atomic<qint64> m_signals = 0;
    std::atomic<qint64> m_logLines = 0;
    std::atomic<qint64> m_faster = 0;
    std::atomic<qint64> m_lost = 0;
    std::atomic<qint64> m_lastTime = 0;
    std::atomic<int> m_printers = 0;
};

/// The options with the values that are in effect.
CaseRecorderOptions validOptions(CaseRecorderOptions options);
/// A sink for a file or for memory. Null when the file cannot be created; `error` then says why.
std::shared_ptr<CaseSink> makeSink(const CaseRecorderOptions& options, QString& error);

/// What makes the stores of files instead, for tests of disks that cannot be had. Null: nothing
/// does. To be set while nobody records.
using CaseStoreMaker =
    std::function<std::unique_ptr<CaseStore>(const QString& fileName, qint64 limit)>;
VX_KIT_EXPORT void setCaseStoreMaker(const CaseStoreMaker& maker);

} // namespace VxKit
