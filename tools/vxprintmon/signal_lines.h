// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"
#include "records.h"

#include <QtCore/QJsonValue>
#include <QtCore/QMetaMethod>

/// Prints each signal of a controller as a line of JSON, for those who write hosts.
class SignalLines : public QObject
{
public:
    using Controller = PrinterStatusController;
    SignalLines(Output& output, Controller& controller);

private:
    template <typename... Arguments>
    void listen(void (Controller::*signal)(Arguments...));
    void print(const QMetaMethod& signal, const QList<QJsonValue>& arguments);

    Output& m_output;
    Controller& m_controller;
    records::JsonTexts m_jsonTexts;
};
