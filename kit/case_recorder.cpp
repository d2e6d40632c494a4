// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_recorder.h"

#include "case_session.h"
#include "case_sink.h"

#include <QtCore/QFile>

#include <utility>

namespace VxKit {

class CaseRecorder::Private
{
public:
    explicit Private(const CaseRecorderOptions& wanted)
        : options(validOptions(wanted))
    {}

    const CaseRecorderOptions options;
    std::shared_ptr<CaseSink> sink;
    QString error; ///< why there is no sink
    bool isRecording = false;
};

CaseRecorder::CaseRecorder(const CaseRecorderOptions& options, PrinterStatusController* controller,
                           QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(options))
{
    d->sink = makeSink(d->options, d->error);
    if (!d->sink)
        return;
    d->isRecording = true;
    CaseSession::instance().add(d->sink, d->options.lookInterval, controller);
    CaseSession::instance().attach(controller);
    // A file that is cut from now on has its beginning.
    CaseSession::instance().flush(QDeadlineTimer(5000));
}

CaseRecorder::~CaseRecorder()
{
    stop();
}

CaseRecorderOptions CaseRecorder::options() const
{
    return d->options;
}

void CaseRecorder::setController(PrinterStatusController* controller)
{
    if (d->isRecording)
        CaseSession::instance().attach(controller);
}

bool CaseRecorder::isRecording() const
{
    return d->isRecording;
}

QString CaseRecorder::errorString() const
{
    return d->sink ? d->sink->errorString() : d->error;
}

CaseRecorderSummary CaseRecorder::summary() const
{
    return d->sink ? d->sink->summary() : CaseRecorderSummary{};
}

bool CaseRecorder::flush(QDeadlineTimer deadline)
{
    return d->isRecording && CaseSession::instance().flush(deadline) && !d->sink->hasFailed();
}

QString CaseRecorder::save(const QString& fileName)
{
    if (!d->sink || !d->options.fileName.isEmpty())
        return tr("nothing is kept in memory");
    flush();
    const QByteArray content = d->sink->content();
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return file.errorString();
    if (file.write(content) != content.size() || !file.flush()) {
        const QString error = file.errorString();
        file.remove();
        return error;
    }
    return {};
}

void CaseRecorder::stop()
{
    if (!std::exchange(d->isRecording, false))
        return;
    CaseSession::instance().remove(d->sink);
}

} // namespace VxKit
