// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "case_item.h"

#include <QtCore/QJsonArray>

#include <array>
#include <atomic>
#include <vector>

namespace VxKit {

/// What one of the library's threads has read last, and what it finds different while it reads.
/// Only that thread uses it once it has it.
class CaseWatch
{
public:
    CaseWatch(QString printerName, int discovery, std::optional<PublishedValues> initialValues)
        : printer(std::move(printerName))
        , at(discovery)
        , m_initialValues(std::move(initialValues))
    {}

    /// What makes a thread read.
    enum class Batch
    {
        None,
        Start,
        Wake,
        Poll,
    };

    /// By which the controller knows it.
    QString printer;
    QString currentName;
    int at; ///< the step at which the controller has started the thread
    bool isClaimed = false;
    bool isReporting = false;             ///< it holds the order of the reports
    std::atomic<bool> isNotified = false; ///< since the look asked last
    qint64 lastFaster = -1;               ///< when a line said so last
    Batch batch = Batch::Start;
    int openStep = -1;
    bool isServiceKnown = false;
    DWORD serviceState = 0;
    int opened = 0;      ///< calls of OpenPrinterA that have succeeded since one failed
    int recordsRead = 0; ///< the same of GetPrinterW
    PublishedValues changed;
    QJsonArray failed;
    std::vector<CaseItem> heldOutputs; ///< lines of the log that belong to the batch

    /// A read of a value. Cheap when nothing has changed.
    void read(const char* name, DWORD type, const BYTE* bytes, DWORD size, DWORD needed,
              DWORD error);
    /// `after` is how many calls of the function have succeeded in the batch since the last one
    /// that failed.
    void addFailure(const char* call, DWORD error, const char* value = nullptr, int after = 0);
    /// Null: they are not known, as those of a printer with a new name, so all that is read is new.
    void setInitialValues(std::optional<PublishedValues> values)
    {
        m_initialValues = std::move(values);
    }
    /// Whether a value has been read. A thread that could not open its printer reads them later.
    bool hasRead() const { return m_slots.front().name != nullptr; }
    /// After the first read of all values.
    void forgetInitialValues() { m_initialValues.reset(); }

private:
    struct Slot
    {
        const char* name = nullptr;
        quint64 state = 0;
    };
    bool isInitially(const char* name, DWORD type, const BYTE* bytes, DWORD size, DWORD needed,
                     DWORD error) const;

    std::array<Slot, 12> m_slots{};
    std::array<quint8, 12> m_known{}; ///< the places of the slots' values
    std::size_t m_next = 0;
    std::optional<PublishedValues> m_initialValues;
};

} // namespace VxKit
