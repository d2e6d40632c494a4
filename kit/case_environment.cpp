// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A recording without any code for it: if VX_RECORD names a file when a program starts, the file
// begins when the library lists the printers for the first time, and ends with the program.
#include "case_environment.h"

#include "case_session.h"
#include "case_sink.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>

namespace VxKit {

namespace {

Q_LOGGING_CATEGORY(kitLog, "vx.kit")

/// How many files of one name there may be.
constexpr int mostFiles = 999;

std::shared_ptr<CaseSink>& sinkOfEnvironment()
{
    static std::shared_ptr<CaseSink> sink;
    return sink;
}

/// "monday.vxcase", then "monday-2.vxcase".
QString numbered(const QString& fileName, int number)
{
    const QFileInfo file(fileName);
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    return QStringLiteral("%1-%2%3").arg(fileName.chopped(suffix.size())).arg(number).arg(suffix);
}

void endRecording()
{
    if (const std::shared_ptr<CaseSink> sink = std::exchange(sinkOfEnvironment(), nullptr))
        CaseSession::instance().remove(sink);
}

void recordFromStart()
{
    CaseRecorderOptions options;
    options.fileName = qEnvironmentVariable("VX_RECORD");
    if (options.fileName.isEmpty())
        return;
    options.isPlain = qEnvironmentVariableIntValue("VX_RECORD_PLAIN") != 0;
    options = validOptions(options);
    const QString wanted = options.fileName;
    QString error;
    // An earlier run, or another process, has the file.
    for (int number = 2; QFileInfo::exists(options.fileName) && number <= mostFiles; ++number)
        options.fileName = numbered(wanted, number);
    const std::shared_ptr<CaseSink> sink = makeSink(options, error);
    if (!sink) {
        qCWarning(kitLog, "VX_RECORD: cannot create %s: %s; nothing is recorded",
                  qPrintable(options.fileName), qPrintable(error));
        return;
    }
    sinkOfEnvironment() = sink;
    CaseSession::instance().addWaiting(sink, options.lookInterval);
    qAddPostRoutine(endRecording);
}
Q_COREAPP_STARTUP_FUNCTION(recordFromStart)

} // namespace

void recordAsEnvironmentWants(PrinterStatusController* controller)
{
    if (sinkOfEnvironment())
        CaseSession::instance().attachIfAlone(controller);
}

} // namespace VxKit
