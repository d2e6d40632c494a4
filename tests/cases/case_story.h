// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/machine.h"

#include "case_recorder.h"
#include "printer_status_controller.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QList>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <memory>

/// Plays a story to a controller of its own and records it as a case. The machine's time is driven,
/// so the story takes a moment, however long it is.
class CaseStory
{
public:
    /// The printers of the beginning must be there. The catalogue is that of the controller.
    CaseStory(const VxKit::CaseRecorderOptions& options, const QString& catalogue);

    PrinterStatusController& controller() { return *m_controller; }

    /// Waits until all monitoring threads wait for something to happen. False: they do not.
    bool settle();
    /// Delivers the reports of the threads to the controller.
    static void deliver();

    /// Lets time pass up to a moment of the story, then something happen, and waits for everything
    /// that comes of it.
    void at(std::chrono::milliseconds moment, const std::function<void()>& happen);

    /// Ends the recording and destroys the controller. Returns what went wrong; null: nothing.
    QString end();

    /// Gives the lines of the file the times of the story, instead of those of its recording.
    /// Returns false if the file cannot be changed.
    bool tellStoryTimes() const;

private:
    /// When in the recording a moment of the story began.
    struct Moment
    {
        double recorded; ///< in seconds
        double told;
    };
    void begin(std::chrono::milliseconds moment);
    double toldTime(double recorded) const;

    QString m_fileName;
    QElapsedTimer m_clock;
    std::unique_ptr<VxKit::CaseRecorder> m_recorder;
    std::unique_ptr<PrinterStatusController> m_controller;
    bool m_isRecording = false;
    bool m_hasComeToRest = true;
    std::chrono::milliseconds m_now{};
    QList<Moment> m_moments;
};
