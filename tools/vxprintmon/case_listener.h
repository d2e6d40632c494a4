// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/recorded_case.h"

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QObject>

#include <chrono>

class PrinterStatusController;

/// Collects the signals of controllers and the lines of the log, in the order in which they come.
class CaseListener : public QObject
{
public:
    CaseListener();
    ~CaseListener() override;
    Q_DISABLE_COPY_MOVE(CaseListener)

    void listen(const PrinterStatusController& controller);
    /// What comes from now on belongs to a step that is on that line of a case.
    void begin(int line, std::chrono::milliseconds at);
    /// Returns what has come since it was called last.
    QList<virtualwindows::CaseOutput> take();

private:
    class Appender;

    template <typename... Arguments>
    void listen(const PrinterStatusController& controller,
                void (PrinterStatusController::*signal)(Arguments...));
    void add(virtualwindows::CaseOutput output);

    QMutex m_lock;
    int m_line = 0;
    std::chrono::milliseconds m_time{};
    QList<virtualwindows::CaseOutput> m_outputs;
    Appender* m_appender;
};
