// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "windows_printer_info.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>
#include <span>

/// What `vxprintmon doctor` checks.
namespace doctor {

enum class Verdict
{
    Ok,
    Note,    ///< it explains what is shown, but nothing is wrong
    Problem, ///< somebody has to do something
};

/// The result of one check.
struct Check
{
    QString check{};   ///< its name in JSON: the same in every language
    QString subject{}; ///< the printer's name; empty for the computer
    Verdict verdict = Verdict::Ok;
    QString text{};   ///< what was found
    QString remedy{}; ///< what to do; empty if nothing is wrong
    /// The name of the driver's value that was checked; empty if it was something else.
    QString value{};
    bool isPublished = true; ///< whether the driver publishes that value
};

/// Everything that one can do about a problem or a note, apart from what a status code asks for.
enum class Remedy
{
    StartSpooler,
    RestartSpooler,
    InstallDriver,
    InstallAgain,
    CopyName,
    AskForRights,
    UseOnline,
    SwitchOn,
    ConnectByUsb,
    LookAtQueue,
    RestartPrinter,
    ChoosePort,
    ProvideCatalogue,
    UpdateCatalogue,
    StartHost,
    RestartHost,
    TrustFolder,
    NothingForeign,
    NothingOptional,
};
inline constexpr int remedyCount = static_cast<int>(Remedy::NothingOptional) + 1;

/// The remedy in English, marked for translation.
const char* remedyText(Remedy remedy);

/// A check that found a problem or a note.
Check finding(Verdict verdict, const QString& text, Remedy remedy);

/// The service, the spooler and the device registry. `*printers` are the printers that the spooler
/// lists, without a value if it does not answer.
QList<Check> checkSpooler(std::optional<QList<AvailablePrinters>>* printers);

/// The catalogue in a file.
QList<Check> checkCatalogue(const QString& file);

/// The endpoints of this user's programs.
QList<Check> checkEndpoints();

/// The versions of everything.
QList<Check> checkVersions();

/// A printer that the spooler lists. `catalogueFile` is searched for what is loaded.
QList<Check> checkPrinter(const AvailablePrinters& printer, const QString& catalogueFile);

/// How the library reads a value that the driver publishes.
struct ExpectedValue
{
    enum class Kind
    {
        Text,
        Number
    };
    const char* name;
    Kind kind;
    quint32 leastBytes; ///< of a text
    quint32 mostBytes;
    qint32 ceiling;      ///< of a number
    bool isRequired;     ///< without it, the library misses something that it shows
    bool ofSecondRibbon; ///< only models with two ribbons have it
};
std::span<const ExpectedValue> expectedValues();

} // namespace doctor
