// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_listener.h"

#include <printer_status_controller.h>

#include <AbstractAppender.h>
#include <Logger.h>

#include <QtCore/QMetaMethod>

#include <utility>

using virtualwindows::CaseOutput;

class CaseListener::Appender : public AbstractAppender
{
public:
    explicit Appender(CaseListener& listener)
        : m_listener(listener)
    {}

protected:
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& /*category*/, const QString& message) override
    {
        CaseOutput output;
        output.kind = CaseOutput::Kind::LogLine;
        output.level = Logger::levelToString(level);
        output.sourceFile = QString::fromUtf8(file);
        output.sourceLine = line;
        output.function = QString::fromUtf8(function);
        output.message = message;
        m_listener.add(std::move(output));
    }

private:
    CaseListener& m_listener;
};

CaseListener::CaseListener()
    : m_appender(new Appender(*this))
{
    m_appender->setDetailsLevel(Logger::Trace);
    Logger::globalInstance()->registerAppender(m_appender);
}

CaseListener::~CaseListener()
{
    Logger::globalInstance()->removeAppender(m_appender);
    delete m_appender;
}

void CaseListener::listen(const PrinterStatusController& controller)
{
    using Controller = PrinterStatusController;
    listen(controller, &Controller::availablePrintersUpdated);
    listen(controller, &Controller::printerErrorChangedSignal);
    listen(controller, &Controller::statusChangedSignal);
    listen(controller, &Controller::supplyIdChangedSignal);
    listen(controller, &Controller::ribbonIdsChangedSignal);
    listen(controller, &Controller::activeDefaultPrinterSetSignal);
    listen(controller, &Controller::softwareVersionUpdated);
}

template <typename... Arguments>
void CaseListener::listen(const PrinterStatusController& controller,
                          void (PrinterStatusController::*signal)(Arguments...))
{
    const QMetaMethod method = QMetaMethod::fromSignal(signal);
    connect(&controller, signal, this, [=, this](Arguments... arguments) {
        CaseOutput output;
        output.name = QString::fromLatin1(method.name());
        const QVariantList values{QVariant(arguments)...};
        const QList<QByteArray> names = method.parameterNames();
        for (qsizetype i = 0; i < values.size(); ++i)
            output.arguments.insert(QString::fromLatin1(names.at(i)), values.at(i));
        add(std::move(output));
    });
}

void CaseListener::begin(int line, std::chrono::milliseconds at)
{
    const QMutexLocker lock(&m_lock);
    m_line = line;
    m_time = at;
}

QList<CaseOutput> CaseListener::take()
{
    const QMutexLocker lock(&m_lock);
    return std::exchange(m_outputs, {});
}

void CaseListener::add(CaseOutput output)
{
    const QMutexLocker lock(&m_lock);
    output.line = m_line;
    output.at = m_time;
    m_outputs.append(std::move(output));
}
