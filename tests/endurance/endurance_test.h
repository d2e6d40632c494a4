// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "machine_test.h"
#include "patience.h"

#include "printer_status_controller.h"
#include "status_codes.h"

#include <QtCore/QPointer>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>

using namespace std::chrono_literals;
using virtualwindows::Call;
using virtualwindows::PrinterValue;

/// How often a thread that gets no notification queries the spooler's state.
inline constexpr auto spoolerPoll = 5000ms;

/// A label printer of a test.
struct LabelPrinter
{
    QString name;
    VXPrinting::PrinterType type = VXPrinting::PrinterType::AlderMax;

    QString driver() const;
};

/// One numbered state of a printer: everything that its driver publishes in it, and the record that
/// the controller should then have. Every value differs between consecutive numbers.
struct Moment
{
    QList<PrinterValue> values;
    PrinterStatusInformation record;
};
Moment moment(const LabelPrinter& printer, int number);
/// The values without those that the printer's percentages are computed from.
QList<PrinterValue> withoutMileages(const QList<PrinterValue>& values);

/// The differences between two records as a readable text; empty when there are none.
/// `printerDefault` is ignored, because it depends on earlier events.
QString difference(const PrinterStatusInformation& actual,
                   const PrinterStatusInformation& expected);

inline constexpr qint64 mebibyte = qint64(1024) * 1024;

/// The resources that the process holds and that a controller must not leave behind.
struct Footprint
{
    int threads = 0;
    int openFiles = 0;
    int objects = 0; ///< QObjects
    qint64 residentBytes = 0;
    qint64 usedBytes = 0; ///< allocated and not released

    static Footprint now();
    static qint64 usedBytesNow();
    QString memory() const;
};

/// Holds the printers' threads when they call a function, until they are released.
class HeldCalls
{
public:
    HeldCalls(virtualwindows::Machine& machine, const char* function);
    /// Releases all threads. They may still be inside the hook then, so the object has to live
    /// until they have ended.
    ~HeldCalls();
    Q_DISABLE_COPY_MOVE(HeldCalls)

    bool waitUntilHeld(int threads);
    void release();

private:
    void hold(const Call& call);

    virtualwindows::Machine& m_machine;
    const QString m_function;
    const Qt::HANDLE m_host;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_held = 0;
    bool m_isOver = false;
};

/// Base of the tests that run the whole controller, with the sample catalogue in their folder and
/// endpoints that no other process sees.
class EnduranceTest : public MachineTest
{
    Q_OBJECT

public:
    static void initMain();

protected:
    void addPrinter(const LabelPrinter& printer, const QString& port = QStringLiteral("USB001"));
    void publish(const LabelPrinter& printer, const Moment& moment);

    /// The number in the environment variable, or `shortForm` if it is not set.
    static int fromEnvironment(const char* variable, int shortForm);

    /// Waits until that many threads have done their work and wait again, then delivers their
    /// reports to the host. False when that takes too long.
    [[nodiscard]] bool settle(int watchingThreads);
    /// Advances the time until every thread queries the spooler's state, then settles.
    [[nodiscard]] bool letThreadsPoll(int watchingThreads);

    /// The number of printers for which the controller has a thread.
    static int watchedPrinters(const PrinterStatusController& controller);
    static std::optional<PrinterStatusInformation>
    recordOf(const PrinterStatusController& controller, const QString& name);
    /// How a printer's record differs from the one of that moment; empty when it does not.
    static QString mismatch(const PrinterStatusController& controller, const LabelPrinter& printer,
                            const Moment& moment);
    /// How much more memory the process uses after repeating the same work; empty when it is no
    /// more than the tolerance.
    static QString memoryGrowth(const Footprint& before, const Footprint& after);
    /// What the controller's threads still hold after its end; empty when there is nothing.
    static QString leftBehind();
    /// The endpoints that other processes can find.
    static QStringList publishedEndpoints();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;
};
