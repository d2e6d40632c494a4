// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "manifest.h"

#include <QtCore/QString>

#include <atomic>
#include <chrono>

/// What became of a test.
struct TestResult
{
    enum class Outcome
    {
        Passed,
        Failed,  ///< a function of it
        Crashed, ///< or ended without a summary
        Silent,  ///< printed nothing for too long and was ended
        Skipped, ///< no function ran, and all say why
        NotRun,
        Interrupted, ///< by the person
    };

    QString name;
    Outcome outcome = Outcome::NotRun;
    QString reason; ///< why it was not run, and how it ended if not by itself
    double seconds = 0;
    int passed = 0; ///< functions and rows
    int failed = 0;
    int skipped = 0;
    QString output; ///< the beginning and the end, if it is long

    bool isBad() const
    {
        return outcome == Outcome::Failed || outcome == Outcome::Crashed ||
               outcome == Outcome::Silent;
    }
    /// "passed", "not run", …, as in reports.
    static QString word(Outcome outcome);
};

struct RunSettings
{
    QString folder;  ///< of the kit
    QString scratch; ///< for what tests write
    bool maySpoolerStop = false;
    std::chrono::seconds silence{180}; ///< a test that prints nothing for so long is ended
    const std::atomic<bool>* isInterrupted = nullptr;
};

/// Runs a test until it ends, is silent for too long, or the person interrupts it. The processes
/// that it has started and left behind are ended.
TestResult runTest(const KitTest& test, const RunSettings& settings);
