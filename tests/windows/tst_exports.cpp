// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What the library exports.
#include "printer_status_thread.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

#include <windows.h>

class ExportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportsOnlyItsClasses();
    void carriesItsVersion();
};

void ExportsTest::exportsOnlyItsClasses()
{
    const HMODULE module = GetModuleHandleW(L"vxprinterstatus.dll");
    QVERIFY(module);
    const auto* base = reinterpret_cast<const BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* exports =
        reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + directory.VirtualAddress);
    const auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);

    // A member of a class, its tables, or the namespace's meta-object. A symbol that only mentions
    // a class, as an instance of a template does, is exported by accident.
    const QRegularExpression known(QStringLiteral(
        "^_Z(?:T[VIS]|(?:Th\\d*n?\\d+_)?NK?)\\d+"
        "(PrinterStatusThread|PrinterStatusInformation|PrinterStatusController|WindowsPrinterInfo|"
        "AvailablePrinters|SupplyInformation|PrintJobMetaData|VXIPCSUPPLYDController|"
        "VXIPCM4Controller|VXIPCPRINTQDController|VXPrinting)(?![a-z])"));
    QStringList unknown;
    QSet<QString> classes;
    for (DWORD index = 0; index < exports->NumberOfNames; ++index) {
        const QString name =
            QString::fromLatin1(reinterpret_cast<const char*>(base + names[index]));
        const QRegularExpressionMatch match = known.match(name);
        if (match.hasMatch())
            classes.insert(match.captured(1));
        else
            unknown.append(name);
    }
    QCOMPARE(unknown, QStringList());
    // The records need no exported symbols: all of their members are in the headers.
    for (const char* name :
         {"PrinterStatusController", "PrinterStatusThread", "WindowsPrinterInfo",
          "VXIPCSUPPLYDController", "VXIPCM4Controller", "VXIPCPRINTQDController", "VXPrinting"})
        QVERIFY2(classes.contains(QString::fromLatin1(name)), name);
}

void ExportsTest::carriesItsVersion()
{
    const HMODULE module = GetModuleHandleW(L"vxprinterstatus.dll");
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    QVERIFY(resource);
    const auto* bytes = static_cast<const char*>(LockResource(LoadResource(module, resource)));
    const QString text = QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes),
                                            SizeofResource(module, resource) / 2);
    QVERIFY(text.contains(QStringLiteral("FileVersion")));
    QVERIFY(text.contains(QStringLiteral(VX_VERSION)));
    QVERIFY(text.contains(QStringLiteral("vxprinterstatus.dll")));
    // Linked when the program is loaded, and not only found by this test.
    QCOMPARE(PrinterStatusThread::staticMetaObject.className(), "PrinterStatusThread");
}

QTEST_GUILESS_MAIN(ExportsTest)
#include "tst_exports.moc"
