// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Print jobs: documents, pages and their bytes.
#include "spooler_handles.h"

#include <algorithm>

using namespace virtualwindows;

namespace {

/// The job being written. Null when there is none or it was removed from the queue meanwhile.
PrintJob* findOpenJob(const PrinterHandleObject& handle)
{
    if (!handle.openJob)
        return nullptr;
    QList<PrintJob>& jobs = handle.printer->jobs;
    const auto found = std::find_if(jobs.begin(), jobs.end(),
                                    [&](const PrintJob& job) { return job.id == handle.openJob; });
    return found == jobs.end() ? nullptr : &*found;
}

/// The job being written. Null: the last error says why.
PrintJob* openJob(const PrinterHandleObject& handle)
{
    PrintJob* job = findOpenJob(handle);
    if (!job)
        SetLastError(handle.openJob ? ERROR_PRINT_CANCELLED : ERROR_SPL_NO_STARTDOC);
    return job;
}

/// The part that the four calls on an open document share: step gets the handle and its job.
template <typename Step>
BOOL inDocument(const ApiCall& call, HANDLE handle, Step step)
{
    if (call.failsAsPlanned())
        return FALSE;
    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(handle, call, PRINTER_ACCESS_USE);
    PrintJob* job = object ? openJob(*object) : nullptr;
    if (!job || !step(*object, *job))
        return FALSE;
    return TRUE;
}

} // namespace

void virtualwindows::endDocument(PrinterHandleObject& handle)
{
    PrintJob* job = findOpenJob(handle);
    handle.openJob = 0;
    handle.pageOpen = false;
    if (!job)
        return;
    job->finished = true;
    Printer& printer = *handle.printer;
    machine().changeJob(printer, *job, job->status & ~DWORD{JOB_STATUS_SPOOLING});
    machine().updateJobs(printer);
}

DWORD WINAPI StartDocPrinterW(HANDLE hPrinter, DWORD Level, LPBYTE pDocInfo)
{
    const ApiCall call(Function::StartDocPrinterW, hPrinter, Level);
    if (call.failsAsPlanned())
        return 0;

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, PRINTER_ACCESS_USE);
    if (!object)
        return 0;
    if (Level != 1)
        return failWith<DWORD>(ERROR_INVALID_LEVEL, 0);
    if (!pDocInfo)
        return failWith<DWORD>(ERROR_INVALID_PARAMETER, 0);
    if (object->openJob)
        return failWith<DWORD>(ERROR_INVALID_PRINTER_STATE, 0);

    const auto& info = *reinterpret_cast<const DOC_INFO_1W*>(pDocInfo);
    PrintJob job;
    job.id = machine().nextJob++;
    job.document = fromWide(info.pDocName);
    job.outputFile = fromWide(info.pOutputFile);
    job.datatype = fromWide(info.pDatatype);
    job.status = JOB_STATUS_SPOOLING;
    job.submitted = QDateTime::currentDateTimeUtc();
    object->openJob = job.id;
    object->printer->jobs.append(job);
    machine().notify(object->printer.get(), PRINTER_CHANGE_ADD_JOB, &job);
    return job.id;
}

BOOL WINAPI StartPagePrinter(HANDLE hPrinter)
{
    return inDocument(ApiCall(Function::StartPagePrinter, hPrinter), hPrinter,
                      [](PrinterHandleObject& handle, PrintJob& job) {
                          job.pages.append(QByteArray());
                          handle.pageOpen = true;
                          return true;
                      });
}

BOOL WINAPI WritePrinter(HANDLE hPrinter, LPVOID pBuf, DWORD cbBuf, LPDWORD pcWritten)
{
    if (pcWritten)
        *pcWritten = 0;
    return inDocument(ApiCall(Function::WritePrinter, hPrinter, cbBuf), hPrinter,
                      [&](PrinterHandleObject& handle, PrintJob& job) {
                          if (!pcWritten || (cbBuf && !pBuf)) {
                              SetLastError(ERROR_INVALID_PARAMETER);
                              return false;
                          }
                          // The spooler also passes on bytes outside of a page.
                          if (job.pages.isEmpty())
                              job.pages.append(QByteArray());
                          *pcWritten = std::min(cbBuf, handle.printer->writeLimit);
                          job.pages.last().append(static_cast<const char*>(pBuf),
                                                  static_cast<qsizetype>(*pcWritten));
                          machine().notify(handle.printer.get(), PRINTER_CHANGE_WRITE_JOB);
                          return true;
                      });
}

BOOL WINAPI EndPagePrinter(HANDLE hPrinter)
{
    return inDocument(ApiCall(Function::EndPagePrinter, hPrinter), hPrinter,
                      [](PrinterHandleObject& handle, PrintJob& /*job*/) {
                          if (!handle.pageOpen) {
                              SetLastError(ERROR_INVALID_PRINTER_STATE);
                              return false;
                          }
                          handle.pageOpen = false;
                          return true;
                      });
}

BOOL WINAPI EndDocPrinter(HANDLE hPrinter)
{
    return inDocument(ApiCall(Function::EndDocPrinter, hPrinter), hPrinter,
                      [](PrinterHandleObject& handle, PrintJob& /*job*/) {
                          endDocument(handle);
                          return true;
                      });
}
