// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "raw_print_job.h"

#include "wide_text.h"
#include "windows_handles.h"

namespace {

/// The command as bytes, up to its first zero byte: printers read commands as zero-terminated text.
QByteArray payloadOf(const QString& command)
{
    const QByteArray text = (command + QLatin1String("\r\n")).toLocal8Bit();
    return text.constData();
}

/// The spooler's records declare their texts as writable, though the spooler does not write to
/// them.
WCHAR* writable(const WCHAR* text)
{
    return const_cast<WCHAR*>(text);
}

/// Starts a document, and ends it on destruction if it could be started. Page does the same for a
/// page.
class Document
{
public:
    Document(HANDLE printer, const QString& name)
        : m_printer(printer)
    {
        DOC_INFO_1W description{};
        description.pDocName = writable(reinterpret_cast<const WCHAR*>(name.utf16()));
        description.pDatatype = writable(wide(u"RAW"));
        m_started = StartDocPrinterW(printer, 1, reinterpret_cast<BYTE*>(&description)) != 0;
    }
    ~Document()
    {
        if (m_started)
            EndDocPrinter(m_printer);
    }
    Q_DISABLE_COPY_MOVE(Document)

    bool isStarted() const { return m_started; }

private:
    HANDLE m_printer;
    bool m_started;
};

class Page
{
public:
    explicit Page(HANDLE printer)
        : m_printer(printer)
        , m_started(StartPagePrinter(printer) != FALSE)
    {}
    ~Page()
    {
        if (m_started)
            EndPagePrinter(m_printer);
    }
    Q_DISABLE_COPY_MOVE(Page)

    bool isStarted() const { return m_started; }

private:
    HANDLE m_printer;
    bool m_started;
};

} // namespace

RawPrintJobResult sendRawPrintJob(const QString& command, const QString& printerName)
{
    QByteArray payload = payloadOf(command);

    const PrinterHandle printer = openPrinter(printerName);
    if (!printer.isValid())
        return RawPrintJobResult::PrinterNotOpened;
    const Document document(printer.get(), command);
    if (!document.isStarted())
        return RawPrintJobResult::DocumentNotStarted;
    const Page page(printer.get());
    if (!page.isStarted())
        return RawPrintJobResult::PageNotStarted;

    // The number of bytes written is not checked: a spooler that accepts only a part fails.
    DWORD written = 0;
    if (!WritePrinter(printer.get(), payload.data(), static_cast<DWORD>(payload.size()), &written))
        return RawPrintJobResult::DataNotAccepted;
    return RawPrintJobResult::Sent;
}
