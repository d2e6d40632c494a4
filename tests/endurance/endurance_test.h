// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "machine_test.h"
#include "patience.h"

#include "printer_status_controller.h"

#include <QtCore/QPointer>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>

using namespace std::chrono_literals;
using virtualwindows::Call;
using virtualwindows::PrinterValue;

/// A thread that gets no notification asks for the spooler's state this often.
inline constexpr auto spoolerPoll = 5000ms;

/// A label printer of a test.
struct LabelPrinter
{
    QString name;
    VXPrinting::PrinterType type = VXPrinting::PrinterType::AlderMax;

    QString driver() const;
};

/// A moment in a printer's life: everything that its driver publishes then, and the record that
/// follows from it. In neighbouring moments every value differs.
struct Moment
{
    QList<PrinterValue> values;
    PrinterStatusInformation record;
};
Moment moment(const LabelPrinter& printer, int number);
/// The same but for the values that the printer's mileages are computed from.
QList<PrinterValue> withoutMileages(const QList<PrinterValue>& values);

/// What two records differ in, for people to read; empty when it is nothing. `printerDefault` is
/// left out: it tells of the past.
QString difference(const PrinterStatusInformation& actual,
                   const PrinterStatusInformation& expected);

inline constexpr qint64 mebibyte = 1024 * 1024;

/// What the process has of things that a host must not be left with.
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

/// Holds the printers' threads as they call a function, until they are let go.
class HeldCalls
{
public:
    HeldCalls(virtualwindows::Machine& machine, const char* function);
    /// Lets everybody go. Threads may still be on their way out of the hold, so the object has to
    /// live until they have ended.
    ~HeldCalls();
    Q_DISABLE_COPY_MOVE(HeldCalls)

    bool waitUntilHeld(int threads);
    void letGo();

private:
    void meet(const Call& call);

    virtualwindows::Machine& m_machine;
    const QString m_function;
    const Qt::HANDLE m_host;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_held = 0;
    bool m_isOver = false;
};

/// Base of the tests that run the whole controller, with the sample catalogue beside them and
/// endpoints that nobody else sees.
class EnduranceTest : public MachineTest
{
    Q_OBJECT

public:
    static void initMain();

protected:
    void addPrinter(const LabelPrinter& printer, const QString& port = QStringLiteral("USB001"));
    void publish(const LabelPrinter& printer, const Moment& moment);

    /// A number from the environment, or the one of the short form.
    static int fromEnvironment(const char* variable, int shortForm);

    /// Waits until so many threads have done their work, and lets the host have their reports.
    [[nodiscard]] bool settle(int watchingThreads);
    /// Time without a notification passes until every thread asks for the spooler's state.
    [[nodiscard]] bool letThreadsPoll(int watchingThreads);

    /// How many printers a controller has a thread for.
    static int watchedPrinters(const PrinterStatusController& controller);
    static std::optional<PrinterStatusInformation>
    recordOf(const PrinterStatusController& controller, const QString& name);
    /// What keeps a printer's record from being that moment's; empty when nothing does.
    static QString mismatch(const PrinterStatusController& controller, const LabelPrinter& printer,
                            const Moment& moment);
    /// Fails when a process that has come to do the same over and over uses more memory for it.
    static void checkMemoryIsFlat(const Footprint& before, const Footprint& after);
    /// The endpoints that other processes can find.
    static QStringList publishedEndpoints();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;
};
