// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "signal_lines.h"

#include "json_text.h"

SignalLines::SignalLines(Output& output, Controller& controller)
    : m_output(output)
    , m_controller(controller)
{
    listen(&Controller::availablePrintersUpdated);
    listen(&Controller::printerErrorChangedSignal);
    listen(&Controller::statusChangedSignal);
    listen(&Controller::supplyIdChangedSignal);
    listen(&Controller::ribbonIdsChangedSignal);
    listen(&Controller::activeDefaultPrinterSetSignal);
    listen(&Controller::softwareVersionUpdated);
}

template <typename... Arguments>
void SignalLines::listen(void (Controller::*signal)(Arguments...))
{
    const QMetaMethod method = QMetaMethod::fromSignal(signal);
    connect(&m_controller, signal, this,
            [=, this](Arguments... arguments) { print(method, {QJsonValue(arguments)...}); });
}

void SignalLines::print(const QMetaMethod& signal, const QList<QJsonValue>& arguments)
{
    QList<json_text::Member> members{
        {QStringLiteral("signal"), json_text::value(QString::fromLatin1(signal.name()))}};
    const QList<QByteArray> names = signal.parameterNames();
    for (qsizetype i = 0; i < names.size(); ++i)
        members.emplaceBack(QString::fromLatin1(names.at(i)), json_text::value(arguments.at(i)));
    if (signal == QMetaMethod::fromSignal(&Controller::availablePrintersUpdated))
        members.emplaceBack(QStringLiteral("printers"),
                            json_text::array(m_jsonTexts.of(records::of(m_controller))));
    m_output.text(json_text::object(members) + QLatin1Char('\n'));
}
