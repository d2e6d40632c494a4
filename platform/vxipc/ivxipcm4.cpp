// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ivxipcm4.h"

namespace {

constexpr qsizetype maximumPrinters = 4096;
/// Two backslashes, the print server's DNS name (255, Microsoft's page "Computer Names",
/// learn.microsoft.com/windows/win32/sysinfo/computer-names), a backslash, and the printer's own
/// name (220, ReactOS, win32ss/printing/providers/localspl/precomp.h, MAX_PRINTER_NAME).
constexpr qsizetype maximumNameLength = 2 + 255 + 1 + 220;

} // namespace

IVXIPCM4::IVXIPCM4(int serverType, QObject* parent)
    : VXIPCServer(serverType, parent)
{
    checkCalls(QByteArrayLiteral("onStatusChanged"), [this](const QVariantList& arguments) {
        return objectionToStoring(arguments.value(1).toString());
    });
}

IVXIPCM4::~IVXIPCM4() = default;

QString IVXIPCM4::objectionToStoring(const QString& printerName)
{
    if (printerName.size() > maximumNameLength) {
        return QStringLiteral("a printer's name has at most %1 characters, got %2")
            .arg(maximumNameLength)
            .arg(printerName.size());
    }
    if (m_reportedPrinters.size() >= maximumPrinters && !m_reportedPrinters.contains(printerName)) {
        return QStringLiteral("%1 printers were reported by other processes, and no more are kept")
            .arg(maximumPrinters);
    }
    m_reportedPrinters.insert(printerName);
    return {};
}
