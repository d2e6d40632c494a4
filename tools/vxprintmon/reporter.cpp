// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "reporter.h"

#include "json_text.h"
#include "shown_text.h"

#include <algorithm>

Reporter::Reporter(const CommandLine& line, Output& output, Controller& controller,
                   std::function<QList<Record>(const Controller&)> recordsOf)
    : m_json(line.json)
    , m_output(output)
    , m_controller(controller)
    , m_recordsOf(std::move(recordsOf))
    , m_titleOf(records::titlesOf(controller))
    , m_changes([this] { printChanges(); })
{
    m_clock.start();
    listen(&Controller::availablePrintersUpdated, [this] { m_changes.schedule(); });
    listen(&Controller::printerErrorChangedSignal, [this](bool isInError) {
        print("errors",
              {{},
               {isInError ? Cell{QStringLiteral("a printer is in error"), Colour::Bad}
                          : Cell{QStringLiteral("no printer is in error"), Colour::Good}}});
    });
    listen(&Controller::statusChangedSignal, [this](int status, const QString& printer) {
        print("status", {printer, {{QStringLiteral("%1  ").arg(status, 3)}, {m_titleOf(status)}}});
    });
    listen(&Controller::supplyIdChangedSignal, [this](const QString& printer) {
        print("supply", {printer, {{QStringLiteral("changed or removed")}}});
    });
    listen(&Controller::ribbonIdsChangedSignal, [this](const QString& printer) {
        print("ribbons", {printer, {{QStringLiteral("changed or removed")}}});
    });
    listen(&Controller::activeDefaultPrinterSetSignal, [this](const QString& printer, bool isVX) {
        print("active", {printer,
                         {{isVX ? QStringLiteral("is the active printer")
                                : QStringLiteral("is the active printer but has no record"),
                           Colour::Notice}}});
    });
    listen(&Controller::softwareVersionUpdated, [this](const QString& printer) {
        print("firmware", {printer, {{QStringLiteral("changed")}}});
    });
}

void Reporter::printInitialRecords()
{
    const QList<Record> all = m_recordsOf(m_controller);
    for (const Record& record : all)
        remember(record);
    if (m_json)
        return;
    records::printTable(m_output, all, m_controller.activeDefaultPrinter(),
                        records::shortTitlesOf(m_controller));
    m_output.text(QStringLiteral("\n"));
}

void Reporter::printCaption(const QString& caption)
{
    // What happened before the event is printed before it.
    printPendingChanges();
    if (!m_json)
        m_output.line({{clock(), Colour::Faint}, {caption, Colour::Heading}});
}

void Reporter::lookForPrinters()
{
    m_controller.checkForPrinters();
    const QList<Record> all = m_recordsOf(m_controller);
    for (const Record& record : all) {
        if (m_known.contains(record.printerName))
            continue;
        remember(record);
        print("found", {record.printerName,
                        {{records::isWatched(record) ? QStringLiteral("is now watched")
                                                     : m_titleOf(record.statusEnum)}}});
    }
}

template <typename... Arguments, typename PrintText>
void Reporter::listen(void (Controller::*signal)(Arguments...), PrintText printText)
{
    const QMetaMethod method = QMetaMethod::fromSignal(signal);
    connect(&m_controller, signal, this, [=, this](Arguments... arguments) {
        if (m_json)
            printJson(method, {QJsonValue(arguments)...});
        else
            printText(arguments...);
    });
}

void Reporter::printJson(const QMetaMethod& signal, const QList<QJsonValue>& arguments)
{
    QList<json_text::Member> members{
        {QStringLiteral("signal"), json_text::value(QString::fromLatin1(signal.name()))}};
    const QList<QByteArray> names = signal.parameterNames();
    for (qsizetype i = 0; i < names.size(); ++i)
        members.emplaceBack(QString::fromLatin1(names.at(i)), json_text::value(arguments.at(i)));
    if (signal == QMetaMethod::fromSignal(&Controller::availablePrintersUpdated))
        members.emplaceBack(QStringLiteral("printers"),
                            json_text::array(m_jsonTexts.of(m_recordsOf(m_controller))));
    m_output.text(json_text::object(members) + QLatin1Char('\n'));
}

void Reporter::print(const char* label, const Words& words)
{
    if (m_json)
        return;
    constexpr int labelWidth = 9;
    const QString printer = shown(words.printer);
    m_nameWidth = std::max(m_nameWidth, printer.size());
    m_output.line(
        QList<Cell>{{clock(), Colour::Faint},
                    {printer.leftJustified(m_nameWidth + 2)},
                    {QString::fromLatin1(label).leftJustified(labelWidth), Colour::Faint}} +
        words.cells);
}

QString Reporter::clock() const
{
    return QStringLiteral("%1 s  ").arg(static_cast<double>(m_clock.elapsed()) / 1000, 6, 'f', 1);
}

void Reporter::remember(const Record& record)
{
    // The library decides whether to watch a printer when it finds it.
    if (!m_known.contains(record.printerName) && records::isWatched(record))
        ++m_watchedPrinters;
    m_known.insert(record.printerName, record);
    m_nameWidth = std::max(m_nameWidth, shown(record.printerName).size());
}

/// Prints what has changed in the records since the last look at them.
void Reporter::printChanges()
{
    const records::TitleOf titleOf = records::shortTitlesOf(m_controller);
    bool isAnythingNew = false;
    const QList<Record> all = m_recordsOf(m_controller);
    for (const Record& record : all) {
        const Record before = m_known.value(record.printerName);
        if (records::areSame(before, record))
            continue;
        remember(record);
        const QList<Cell> difference = records::difference(before, record, titleOf);
        if (difference.isEmpty())
            continue;
        isAnythingNew = true;
        print("records", {record.printerName, difference});
    }
    if (!isAnythingNew)
        print("records", {{}, {{QStringLiteral("no changes"), Colour::Faint}}});
}
