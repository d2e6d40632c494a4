// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "fixture.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QtTest>

#include <atomic>

namespace {

QStringList& addedPrinters()
{
    static QStringList names;
    return names;
}

bool deletePrinter(const QString& name)
{
    const PrinterHandle printer = openPrinter(name);
    return printer && DeletePrinter(printer.get());
}

} // namespace

QString fixture::uniqueName(const QString& stem)
{
    static std::atomic<int> count = 0;
    return QStringLiteral("%1 %2-%3")
        .arg(stem, QString::number(QCoreApplication::applicationPid()), QString::number(++count));
}

fixture::NewPrinter::NewPrinter(const PrinterSetup& setup)
    : name(setup.name)
    , driver(setup.driver)
    , port(setup.port)
{
    info.pPrinterName = name;
    info.pDriverName = driver;
    info.pPortName = port;
    info.pPrintProcessor = processor;
    info.pDatatype = datatype;
    info.Attributes = setup.attributes;
}

HANDLE fixture::NewPrinter::add(DWORD level)
{
    return AddPrinterW(nullptr, level, reinterpret_cast<LPBYTE>(&info));
}

bool fixture::addPrinter(const PrinterSetup& setup)
{
    if (!system::installDriver(setup.driver) || !system::addPort(setup.port))
        return false;
    NewPrinter record(setup);
    const PrinterHandle printer(record.add());
    if (!printer)
        return false;
    addedPrinters().append(setup.name);
    return true;
}

bool fixture::removePrinter(const QString& name)
{
    addedPrinters().removeOne(name);
    return deletePrinter(name);
}

PrinterHandle openPrinter(const QString& name, DWORD access)
{
    PRINTER_DEFAULTSW defaults{};
    defaults.DesiredAccess = access;
    HANDLE handle = nullptr;
    if (!OpenPrinterW(WideText(name), &handle, &defaults))
        return {};
    return PrinterHandle(handle);
}

void WindowsApiTest::init()
{
    m_allowedMisuses.clear();
    fixture::system::begin();
}

void WindowsApiTest::cleanup()
{
    const QStringList printers = std::exchange(addedPrinters(), {});
    for (const QString& printer : printers)
        deletePrinter(printer);
    const QStringList wrong = fixture::system::end(m_allowedMisuses);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}
