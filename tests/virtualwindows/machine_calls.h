// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The Windows calls in the short forms that the tests of the virtual machine use, and lists of all
// of them for tests of what they have in common.
#pragma once

#include "machine_test.h"

#include <functional>
#include <vector>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

inline const QString printerName = QStringLiteral("Label Printer");
/// A last error that no call sets.
inline constexpr DWORD untouched = 0x2000DEAD;

/// Adds the printer, with a value "StatusCode", and makes it the default printer.
void addDefaultPrinter();
/// Null when the printer cannot be opened.
HANDLE openHandle(const QString& name = printerName, ACCESS_MASK access = PRINTER_ALL_ACCESS);
HANDLE openNotification(HANDLE printer, DWORD filter = PRINTER_CHANGE_ALL);
/// A manual-reset event that is not signalled.
HANDLE openEvent();

bool isSignalled(HANDLE handle);
/// Re-arms the notification and returns the changes collected since it was last re-armed; all bits
/// when the call fails.
DWORD takeChanges(HANDLE notification);
/// Starts a document without a name; 0 when that fails.
DWORD startDocument(HANDLE printer);
/// An empty text when there is no default printer.
QString defaultPrinter();

struct ReadValue
{
    DWORD result = 0;
    DWORD type = 99;
    QByteArray data;
};
ReadValue readValue(HANDLE printer, const QByteArray& valueName);

/// A printer's record as texts; a null text stands for a null pointer.
struct PrinterRecord
{
    QString name;
    QString driver;
    QString port;
    DWORD attributes = 0;
    DWORD status = 0;
    DWORD jobs = 0;
};
QList<PrinterRecord> enumeratePrinters(DWORD flags = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS);
QStringList enumeratedNames(DWORD flags = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS);

/// Handles of every kind, to be passed to any function.
struct Handles
{
    HANDLE event = nullptr;
    HANDLE printer = nullptr;
    HANDLE notification = nullptr;
    SC_HANDLE manager = nullptr;
    SC_HANDLE service = nullptr;
};
/// One handle of each kind. The printer must exist.
Handles openAll();
/// The same handle for every kind.
Handles allOf(HANDLE handle);
/// Closes all of them; false when one of the calls fails.
bool closeAll(const Handles& handles);

/// The outcome of a call of one of the functions.
struct Attempt
{
    bool isFailure = false;
    DWORD error = 0;
};
using Caller = std::function<Attempt(const Handles&)>;
Q_DECLARE_METATYPE(Caller)

struct NamedCaller
{
    const char* function;
    Caller call;
    bool usesSpooler = false;
    bool opensHandle = false;
};
/// Every function but those that close a handle.
const std::vector<NamedCaller>& callers();
/// The functions that close a handle.
const std::vector<NamedCaller>& closers();

bool takesHandle(const NamedCaller& caller);
inline bool isAny(const NamedCaller& /*caller*/)
{
    return true;
}
/// Calls the function of that name; a failure without an error when there is none in callers().
Attempt callByName(const QString& function, const Handles& handles);

// For _data() functions: the columns "function" and "call" with a row for each of the functions.
void addCallerColumns();
void addCallerRows(bool (*isWanted)(const NamedCaller&) = isAny);
void addCloserRows();

/// Kinds and functions of entries of the ledger, in order.
using MisuseList = QList<QPair<virtualwindows::HandleMisuse::Kind, QString>>;
MisuseList kindsOf(const QList<virtualwindows::HandleMisuse>& misuses);
