// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Records the awkward days of this folder from stories of the virtual Windows.
// Usage: record_cases CATALOGUE FOLDER [NAME]... writes FOLDER/NAME.vxcase for each story, or for
// those that are named. A file that exists is replaced.
#include "case_story.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <array>
#include <cstdio>

#include <windows.h>
#include <winspool.h>

namespace {

using namespace std::chrono_literals;
using virtualwindows::Machine;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;

const QString shipping = QStringLiteral("Shipping");
const QString returns = QStringLiteral("Returns");

Machine& machine()
{
    return Machine::instance();
}

QList<PrinterValue> loaded()
{
    return {PrinterValue::text("StatusCode", "1"),
            PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
            PrinterValue::number("Ribbon1Identifier", 2001),
            PrinterValue::number("Mileage", 24385),
            PrinterValue::number("Ribbon1Mileage", 96013),
            PrinterValue::text("SoftwareVersion", "4.2.0,boot 1.7"),
            PrinterValue::number("UpdateProgress", 0),
            PrinterValue::number("UpdateError", 0)};
}

void add(PrinterSetup setup, const QList<PrinterValue>& values = loaded())
{
    machine().addPrinter(setup);
    if (!values.isEmpty())
        machine().publish(setup.name, values);
}

void addShipping()
{
    add({.name = shipping, .driver = QStringLiteral("Stratamark AlderMax")});
    machine().setDefaultPrinter(shipping);
}

void addReturns()
{
    add({.name = returns,
         .driver = QStringLiteral("Stratamark BirchMax"),
         .port = QStringLiteral("USB002")});
}

void addBoth()
{
    addShipping();
    addReturns();
}

void status(const QString& printer, const QByteArray& code)
{
    machine().publish(printer, PrinterValue::text("StatusCode", code));
}

void spoolerRestartedTwice(CaseStory& story)
{
    for (const auto begin : {20s, 60s}) {
        story.at(begin, [] { machine().stopSpooler(); });
        story.at(begin + 5s, [] {});
        story.at(begin + 12s, [] {
            status(shipping, "2");
            machine().startSpooler();
        });
        story.at(begin + 17s, [] {});
    }
    story.at(90s, [] { status(shipping, "1"); });
}

void spoolerWasDownAtTheStart(CaseStory& story)
{
    story.at(10s, [&] { story.controller().checkForPrinters(); });
    story.at(15s, [] { machine().startSpooler(); });
    story.at(20s, [&] { story.controller().checkForPrinters(); });
    story.at(25s, [] { status(returns, "4"); });
}

void catalogueWithoutWhatIsLoaded(CaseStory& story)
{
    story.at(8s, [] {
        machine().publish(shipping, {PrinterValue::text("SupplyIdentifier", "00000064999998000001"),
                                     PrinterValue::number("Ribbon1Identifier", 99999)});
    });
    story.at(9s, [] { machine().publish(shipping, PrinterValue::number("Mileage", 20000)); });
    story.at(60s, [] { machine().publish(shipping, loaded()); });
}

void valuesOfTheWrongType(CaseStory& story)
{
    story.at(5s, [] {
        machine().publish(shipping, {PrinterValue::number("StatusCode", 4),
                                     PrinterValue::text("Mileage", "24385"),
                                     PrinterValue::binary("Ribbon1Identifier", "\xD1\x07")});
    });
    story.at(30s, [] {
        machine().publish(shipping, {PrinterValue::binary("StatusCode", "12"),
                                     PrinterValue::binary("Mileage", QByteArray(4, '\1'))});
    });
    story.at(40s, [] { machine().publish(shipping, loaded()); });
}

void valuesMissingAfterADriverUpdate(CaseStory& story)
{
    story.at(5s, [] {
        machine().setDriver(shipping, QStringLiteral("Stratamark CedarMax"));
        machine().publish(shipping, {},
                          {"StatusCode", "SupplyIdentifier", "Mileage", "SoftwareVersion"});
    });
    story.at(12s, [] { machine().publish(shipping, PrinterValue::text("NewStatus", "1")); });
    story.at(30s, [] { machine().publish(shipping, loaded()); });
}

void valuesLongerThanTheLibraryReads(CaseStory& story)
{
    story.at(5s, [] {
        machine().publish(shipping, {PrinterValue::text("StatusCode", QByteArray(5000, '1')),
                                     PrinterValue::text("SupplyIdentifier", QByteArray(256, 'A')),
                                     PrinterValue::binary("Mileage", QByteArray(5, '\1'))});
    });
    story.at(20s, [] {
        machine().publish(shipping,
                          {{"StatusCode", REG_SZ, "1"},
                           {"SupplyIdentifier", REG_SZ, {}},
                           {"SoftwareVersion", REG_MULTI_SZ, QByteArray("4\0 5\0\0", 6)}});
    });
    story.at(30s, [] { machine().publish(shipping, loaded()); });
}

void statusIsNoNumber(CaseStory& story)
{
    int second = 0;
    for (const char* const code : {"ready", "", " 1", "1e1", "-1", "65537", "99999999999", "1"}) {
        second += 7;
        story.at(std::chrono::seconds(second), [code] { status(shipping, code); });
    }
    story.at(90s, [] {
        machine().setStatus(shipping, PRINTER_STATUS_OFFLINE);
        status(shipping, "unplugged");
    });
}

void offlineFlagNeverCleared(CaseStory& story)
{
    constexpr quint32 workOffline = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE;
    story.at(10s, [] {
        machine().setAttributes(shipping, workOffline);
        status(shipping, "0");
    });
    // The printer is back, but Windows goes on calling it offline.
    story.at(40s, [] { status(shipping, "1"); });
    story.at(60s, [] { status(shipping, "0"); });
    story.at(61s, [] { status(shipping, "255"); });
    story.at(80s, [] {
        machine().setAttributes(shipping, PRINTER_ATTRIBUTE_LOCAL);
        status(shipping, "1");
    });
}

void allWereSwitchedOffAtTheStart(CaseStory& story)
{
    story.at(10s, [&] { story.controller().checkForPrinters(); });
    story.at(20s, [&] {
        machine().setStatus(returns, 0);
        story.controller().checkForPrinters();
    });
    story.at(30s, [] { status(returns, "5"); });
    story.at(40s, [&] {
        machine().setStatus(shipping, 0);
        story.controller().checkForPrinters();
    });
}

void rightsWereTakenAway(CaseStory& story)
{
    story.at(10s, [] {
        machine().setAdministrable(shipping, false);
        status(shipping, "255");
    });
    // While the status is not known, each read needs full access.
    story.at(20s, [] { status(shipping, "1"); });
    story.at(30s, [&] {
        add({.name = QStringLiteral("Locked"),
             .driver = QStringLiteral("Stratamark CedarMax"),
             .port = QStringLiteral("USB003"),
             .administrable = false});
        story.controller().checkForPrinters();
    });
    story.at(40s, [] {
        machine().setAdministrable(shipping, true);
        status(shipping, "2");
    });
}

void renamedWhileItWasWatched(CaseStory& story)
{
    story.at(10s, [] { machine().renamePrinter(shipping, QStringLiteral("Packing")); });
    story.at(20s, [] { status(QStringLiteral("Packing"), "4"); });
    story.at(30s, [&] { story.controller().checkForPrinters(); });
    story.at(40s, [] { machine().stopSpooler(); });
    story.at(45s, [] {});
    // The thread looks for the old name.
    story.at(50s, [] { machine().startSpooler(); });
    story.at(55s, [] { status(QStringLiteral("Packing"), "1"); });
}

void removedAndAddedAgain(CaseStory& story)
{
    story.at(10s, [] { machine().removePrinter(shipping); });
    story.at(20s, [&] {
        addShipping();
        story.controller().checkForPrinters();
    });
    story.at(30s, [] { status(shipping, "4"); });
    story.at(40s, [] { machine().stopSpooler(); });
    story.at(45s, [] {});
    story.at(50s, [] { machine().startSpooler(); });
    story.at(55s, [] { status(shipping, "2"); });
}

void defaultPrinterKeptChanging(CaseStory& story)
{
    story.at(5s, [] { machine().setDefaultPrinter(returns); });
    story.at(6s, [] { status(returns, "1"); });
    story.at(7s, [] { status(returns, "19"); });
    story.at(10s, [] { machine().setDefaultPrinter({}); });
    story.at(11s, [] { status(shipping, "4"); });
    story.at(20s, [] { machine().setDefaultPrinter(QStringLiteral("A printer at home")); });
    story.at(21s, [] {
        machine().setStatus(returns, PRINTER_STATUS_OFFLINE);
        status(returns, "0");
    });
    story.at(30s, [] { machine().setDefaultPrinter(shipping); });
    story.at(31s, [] { status(shipping, "1"); });
}

void readsFailedInTheMiddle(CaseStory& story)
{
    int second = 0;
    for (const int nth : {1, 4, 7, 11}) {
        second += 10;
        story.at(std::chrono::seconds(second), [nth] {
            machine().failCall(QStringLiteral("GetPrinterDataA"), nth, RPC_S_SERVER_UNAVAILABLE);
            machine().publish(shipping, PrinterValue::number("Mileage", 24000U - quint32(nth)));
        });
    }
    story.at(50s, [] {
        machine().failCallsFrom(QStringLiteral("GetPrinterDataA"), 1, RPC_S_SERVER_UNAVAILABLE);
        status(shipping, "4");
        machine().clearFailures();
    });
    story.at(60s, [] {
        machine().failCall(QStringLiteral("GetPrinterW"), 1, ERROR_NOT_ENOUGH_MEMORY);
        status(shipping, "0");
    });
    story.at(70s, [] { status(shipping, "1"); });
}

void reportsStoppedComing(CaseStory& story)
{
    story.at(10s, [] { machine().stopSpooler(); });
    story.at(15s, [] {
        machine().failCall(QStringLiteral("FindFirstPrinterChangeNotification"), 1,
                           ERROR_NOT_ENOUGH_MEMORY);
    });
    story.at(20s, [] { machine().startSpooler(); });
    // Nobody watches one of the printers any more.
    story.at(25s, [] {});
    story.at(30s, [] {
        status(shipping, "2");
        status(returns, "2");
    });
    story.at(60s, [] {
        status(shipping, "1");
        status(returns, "1");
    });
}

void ribbonDoesNotSuit(CaseStory& story)
{
    story.at(10s, [] {
        machine().publish(shipping, {PrinterValue::number("Ribbon1Identifier", 2017),
                                     PrinterValue::number("Ribbon1Mileage", 0)});
    });
    story.at(11s, [] { status(shipping, "15"); });
    story.at(50s, [] { status(shipping, "12"); });
    story.at(51s, [] {
        machine().publish(shipping, {PrinterValue::number("Ribbon1Identifier", 0xFFFFFFFF)},
                          {"Ribbon1Mileage"});
    });
    story.at(90s, [] { machine().publish(shipping, loaded()); });
}

void firmwareUpdateFailed(CaseStory& story)
{
    story.at(10s, [] {
        machine().publish(shipping, {PrinterValue::text("StatusCode", "21"),
                                     PrinterValue::number("UpdateProgress", 1)});
    });
    for (const quint32 progress : {20U, 55U, 80U})
        story.at(std::chrono::seconds(10 + progress), [progress] {
            machine().publish(shipping, PrinterValue::number("UpdateProgress", progress));
        });
    story.at(100s, [] {
        machine().publish(shipping, {PrinterValue::text("StatusCode", "22"),
                                     PrinterValue::number("UpdateError", 7)});
    });
    story.at(160s, [] {
        machine().publish(shipping, {PrinterValue::text("StatusCode", "1"),
                                     PrinterValue::text("SoftwareVersion", "4.3.0,boot 1.8"),
                                     PrinterValue::number("UpdateError", 0)});
    });
}

void onlyOtherPrinters(CaseStory& story)
{
    story.at(10s, [&] { story.controller().checkForPrinters(); });
    story.at(20s, [&] {
        add({.name = QStringLiteral("Branch Office"),
             .driver = QStringLiteral("Stratamark BirchMax"),
             .port = QStringLiteral("192.168.1.20")});
        story.controller().checkForPrinters();
    });
}

void addOthers()
{
    add({.name = QStringLiteral("Office"),
         .driver = QStringLiteral("Other Maker 12"),
         .port = QStringLiteral("LPT1:")},
        {});
    add({.name = QStringLiteral("Old one"), .driver = QStringLiteral("Stratamark Oak")});
    machine().setDefaultPrinter(QStringLiteral("Office"));
}

void addBothOffline()
{
    addBoth();
    machine().setStatus(shipping, PRINTER_STATUS_OFFLINE);
    machine().setStatus(returns, PRINTER_STATUS_OFFLINE);
}

void addBothWithoutSpooler()
{
    addBoth();
    machine().stopSpooler();
}

struct Day
{
    const char* name;
    void (*prepare)();
    void (*tell)(CaseStory& story);
};

constexpr std::array days{
    Day{"spooler_restarted_twice", addBoth, spoolerRestartedTwice},
    Day{"spooler_was_down_at_the_start", addBothWithoutSpooler, spoolerWasDownAtTheStart},
    Day{"catalogue_without_what_is_loaded", addShipping, catalogueWithoutWhatIsLoaded},
    Day{"values_of_the_wrong_type", addShipping, valuesOfTheWrongType},
    Day{"values_missing_after_a_driver_update", addShipping, valuesMissingAfterADriverUpdate},
    Day{"values_longer_than_the_library_reads", addShipping, valuesLongerThanTheLibraryReads},
    Day{"status_is_no_number", addBoth, statusIsNoNumber},
    Day{"offline_flag_never_cleared", addBoth, offlineFlagNeverCleared},
    Day{"all_were_switched_off_at_the_start", addBothOffline, allWereSwitchedOffAtTheStart},
    Day{"rights_were_taken_away", addShipping, rightsWereTakenAway},
    Day{"renamed_while_it_was_watched", addBoth, renamedWhileItWasWatched},
    Day{"removed_and_added_again", addShipping, removedAndAddedAgain},
    Day{"default_printer_kept_changing", addBoth, defaultPrinterKeptChanging},
    Day{"reads_failed_in_the_middle", addShipping, readsFailedInTheMiddle},
    Day{"reports_stopped_coming", addBoth, reportsStoppedComing},
    Day{"ribbon_does_not_suit", addShipping, ribbonDoesNotSuit},
    Day{"firmware_update_failed", addShipping, firmwareUpdateFailed},
    Day{"only_other_printers", addOthers, onlyOtherPrinters},
};

bool record(const Day& day, const QString& catalogue, const QString& folder)
{
    const QString fileName =
        QDir(folder).filePath(QLatin1String(day.name) + QStringLiteral(".vxcase"));
    QFile::remove(fileName);
    machine().reset();
    machine().driveTime();
    day.prepare();
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName;
    options.isPlain = true;
    CaseStory story(options, catalogue);
    day.tell(story);
    const QString error = story.end();
    machine().reset();
    const bool isDone = error.isEmpty() && story.tellStoryTimes();
    std::fprintf(isDone ? stdout : stderr, "%s: %s\n", qPrintable(fileName),
                 isDone ? "recorded" : qPrintable(error));
    return isDone;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    if (arguments.size() < 2) {
        std::fprintf(stderr, "Usage: record_cases CATALOGUE FOLDER [NAME]...\n");
        return 2;
    }
    // The serial numbers of virtual printers must not end up in the user's own settings.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const QStringList names = arguments.sliced(2);
    bool isDone = true;
    for (const Day& day : days) {
        if (names.isEmpty() || names.contains(QLatin1String(day.name)))
            isDone = record(day, arguments.at(0), arguments.at(1)) && isDone;
    }
    return isDone ? 0 : 1;
}
