// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Every Windows call that discovery and commands make fails once, at each of its uses.

#include "machine_test.h"
#include "patience.h"

#include "printer_command.h"
#include "printer_discovery.h"

#include <QtCore/QDeadlineTimer>
#include <QtTest/QtTest>

#include <memory>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::PrinterValue;
using VxKit::CommandResult;
using VxKit::JobState;
using VxKit::PrinterDiscovery;

namespace {

const QString alder = QStringLiteral("Alder at the door");
const QString birch = QStringLiteral("BirchMax upstairs");
const QString renamed = QStringLiteral("Alder at the window");
const QString alderDriver = QStringLiteral("Stratamark Alder");
const QString birchDriver = QStringLiteral("Stratamark BirchMax");

/// What a program knows that listens to every signal of a discovery.
struct Known
{
    explicit Known(PrinterDiscovery& discovery)
    {
        using Discovery = PrinterDiscovery;
        QObject::connect(&discovery, &Discovery::printersChanged, [this] { ++changes; });
        QObject::connect(&discovery, &Discovery::added, [this](const QString& name) {
            isConsistent = isConsistent && !names.contains(name);
            names.append(name);
        });
        QObject::connect(&discovery, &Discovery::gone, [this](const QString& name) {
            isConsistent = isConsistent && names.removeAll(name) == 1;
        });
        QObject::connect(&discovery, &Discovery::renamed,
                         [this](const QString& from, const QString& to) {
                             isConsistent = isConsistent && names.removeAll(from) == 1;
                             names.append(to);
                         });
    }

    int changes = 0;
    QStringList names;
    bool isConsistent = true; ///< every signal fits what was known before
};

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

} // namespace

class KitFaultsTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void discoverySurvivesEachFailure_data();
    void discoverySurvivesEachFailure();
    void commandSurvivesEachFailure_data();
    void commandSurvivesEachFailure();

private:
    using Uses = QList<QPair<QString, int>>;

    /// Lets time pass until the condition holds.
    template <typename Condition>
    bool eventually(Condition condition)
    {
        const QDeadlineTimer limit(patience);
        while (!condition() && !limit.hasExpired()) {
            machine().advance(1s);
            QTest::qWait(1);
        }
        return condition();
    }
    void plan(const QString& function, int nth);
    /// Both return what went wrong, or an empty text.
    QString discover(const QString& function, int nth);
    QString sendAndFollow(const QString& function, int nth);
    QString leaks();
    static void addRows(const Uses& uses);

    Uses m_usesOfDiscovery;
    Uses m_usesOfCommand;
};

void KitFaultsTest::plan(const QString& function, int nth)
{
    machine().reset();
    machine().driveTime();
    machine().addPrinter({.name = alder, .driver = alderDriver});
    machine().publish(alder, PrinterValue::text("StatusCode", "1"));
    machine().setDefaultPrinter(alder);
    if (nth > 0)
        machine().failCall(function, nth, ERROR_NOT_ENOUGH_MEMORY);
}

QString KitFaultsTest::leaks()
{
    QStringList texts;
    for (const virtualwindows::HandleMisuse& misuse : machine().settle())
        texts.append(misuse.text);
    return texts.join(QStringLiteral(", "));
}

QString KitFaultsTest::discover(const QString& function, int nth)
{
    plan(function, nth);
    auto discovery = std::make_unique<PrinterDiscovery>(nullptr);
    Known known(*discovery);
    if (!eventually([&] { return known.changes > 0; }))
        return QStringLiteral("the printers are not listed");
    known.names = discovery->printers();
    const auto isKnown = [&] {
        return sorted(known.names) == sorted(machine().printers()) &&
               discovery->printers() == machine().printers();
    };
    if (!isKnown())
        return QStringLiteral("the first list is wrong");

    machine().addPrinter({.name = birch, .driver = birchDriver});
    if (!eventually(isKnown))
        return QStringLiteral("a new printer is not known");
    machine().renamePrinter(alder, renamed);
    if (!eventually(isKnown))
        return QStringLiteral("a new name is not known");
    machine().setDefaultPrinter(birch);
    if (!eventually([&] { return discovery->defaultPrinter() == birch; }))
        return QStringLiteral("the default printer is not known");
    machine().stopSpooler();
    if (!eventually([&] { return !discovery->isSpoolerRunning(); }))
        return QStringLiteral("the stop of the spooler is not known");
    machine().removePrinter(renamed);
    machine().startSpooler();
    if (!eventually(isKnown))
        return QStringLiteral("a removed printer is not gone");
    machine().addPrinter({.name = alder, .driver = alderDriver});
    if (!eventually([&] { return isKnown() && discovery->isSpoolerRunning(); }))
        return QStringLiteral("a printer that is back is not known");
    if (!known.isConsistent)
        return QStringLiteral("a signal does not fit the one before");
    discovery.reset();
    return leaks();
}

QString KitFaultsTest::sendAndFollow(const QString& function, int nth)
{
    plan(function, nth);
    machine().setPrintingTime(alder, 3s);
    machine().setStatus(alder, PRINTER_STATUS_PAUSED);
    VxKit::FollowedCommand followed = VxKit::sendAndFollowCommand(alder, QStringLiteral("FEED 3"));
    followed.command.waitForFinished();
    const CommandResult result = followed.command.result();
    if (!result.isSent()) {
        if (result.function != function || result.errorCode != ERROR_NOT_ENOUGH_MEMORY ||
            result.errorText.isEmpty())
            return QStringLiteral("the failure is not reported");
        followed.job.waitForFinished();
        if (followed.job.resultCount() != 0)
            return QStringLiteral("a job is reported that does not exist");
        return leaks();
    }
    if (!eventually([&] { return followed.job.resultCount() > 0; }))
        return QStringLiteral("the job is not followed");
    machine().setStatus(alder, 0);
    if (!eventually([&] { return followed.job.isFinished(); }))
        return QStringLiteral("the job never ended");
    const JobState last = followed.job.resultAt(followed.job.resultCount() - 1);
    const bool isDone =
        last.stage == JobState::Stage::Printed || last.stage == JobState::Stage::LeftQueue;
    if (!isDone || last.isStuck())
        return QStringLiteral("the job ended otherwise: ") + last.text();
    return leaks();
}

void KitFaultsTest::initTestCase()
{
    init();
    const QString ofDiscovery = discover({}, 0);
    QVERIFY2(ofDiscovery.isEmpty(), qPrintable(ofDiscovery));
    m_usesOfDiscovery = machine().callCounts();
    const QString ofCommand = sendAndFollow({}, 0);
    QVERIFY2(ofCommand.isEmpty(), qPrintable(ofCommand));
    m_usesOfCommand = machine().callCounts();
    cleanup();
}

void KitFaultsTest::addRows(const Uses& uses)
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("count");
    // How often the thread looks depends on how fast the machine's time passes for it.
    constexpr int most = 12;
    for (const auto& [function, count] : uses)
        QTest::newRow(qPrintable(function)) << function << std::min(count, most);
}

void KitFaultsTest::discoverySurvivesEachFailure_data()
{
    addRows(m_usesOfDiscovery);
}

void KitFaultsTest::discoverySurvivesEachFailure()
{
    QFETCH(const QString, function);
    QFETCH(const int, count);
    // Without an event, the thread waits in real time, and takes twenty seconds for its ticks.
    for (int nth = 1; nth <= count; ++nth) {
        const QString fault = discover(function, nth);
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
    }
}

void KitFaultsTest::commandSurvivesEachFailure_data()
{
    addRows(m_usesOfCommand);
}

void KitFaultsTest::commandSurvivesEachFailure()
{
    QFETCH(const QString, function);
    QFETCH(const int, count);
    for (int nth = 1; nth <= count; ++nth) {
        const QString fault = sendAndFollow(function, nth);
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
    }
}

QTEST_GUILESS_MAIN(KitFaultsTest)
#include "tst_kit_faults.moc"
