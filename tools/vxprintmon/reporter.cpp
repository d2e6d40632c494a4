// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "reporter.h"

#include "json_text.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <algorithm>
#include <array>

namespace {

/// What the lines of the monitor begin with, after the printer.
namespace labels {
constexpr char errors[] = QT_TRANSLATE_NOOP("tools", "errors");
constexpr char status[] = QT_TRANSLATE_NOOP("tools", "status");
constexpr char supply[] = QT_TRANSLATE_NOOP("tools", "supply");
constexpr char ribbons[] = QT_TRANSLATE_NOOP("tools", "ribbons");
constexpr char active[] = QT_TRANSLATE_NOOP("tools", "active");
constexpr char firmware[] = QT_TRANSLATE_NOOP("tools", "firmware");
constexpr char found[] = QT_TRANSLATE_NOOP("tools", "found");
constexpr char records[] = QT_TRANSLATE_NOOP("tools", "records");
constexpr std::array<const char*, 8> all{errors, status,   supply, ribbons,
                                         active, firmware, found,  records};
} // namespace labels

qsizetype widestLabel()
{
    qsizetype widest = 0;
    for (const char* text : labels::all)
        widest = std::max(widest, text_layout::width(ToolText::tr(text)));
    return widest;
}

} // namespace

Reporter::Reporter(const CommandLine& line, Output& output, Controller& controller,
                   std::function<QList<Record>(const Controller&)> recordsOf)
    : m_json(line.json)
    , m_output(output)
    , m_controller(controller)
    , m_recordsOf(std::move(recordsOf))
    , m_labelWidth(widestLabel())
    , m_changes([this] { printChanges(); })
{
    m_clock.start();
    listen(&Controller::availablePrintersUpdated, [this] { m_changes.schedule(); });
    listen(&Controller::printerErrorChangedSignal, [this](bool isInError) {
        print(labels::errors,
              {{},
               {isInError ? Cell{ToolText::tr("a printer is in error"), Colour::Bad}
                          : Cell{ToolText::tr("no printer is in error"), Colour::Good}}});
    });
    listen(&Controller::statusChangedSignal, [this](int status, const QString& printer) {
        print(labels::status,
              {printer, {{QStringLiteral("%1  ").arg(status, 3)}, {records::titleOf(status)}}});
    });
    listen(&Controller::supplyIdChangedSignal, [this](const QString& printer) {
        print(labels::supply, {printer, {{ToolText::tr("changed or removed")}}});
    });
    listen(&Controller::ribbonIdsChangedSignal, [this](const QString& printer) {
        print(labels::ribbons, {printer, {{ToolText::tr("changed or removed")}}});
    });
    listen(&Controller::activeDefaultPrinterSetSignal, [this](const QString& printer, bool isVX) {
        print(labels::active, {printer,
                               {{isVX ? ToolText::tr("is the active printer")
                                      : ToolText::tr("is the active printer but has no record"),
                                 Colour::Notice}}});
    });
    listen(&Controller::softwareVersionUpdated, [this](const QString& printer) {
        print(labels::firmware, {printer, {{ToolText::tr("changed")}}});
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
                        records::titleOrNotKnown);
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
        print(labels::found,
              {record.printerName,
               {{records::isWatched(record) ? ToolText::tr("is now watched")
                                            : records::titleOf(record.statusEnum)}}});
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
    const QString printer = shown(words.printer);
    m_nameWidth = std::max(m_nameWidth, text_layout::width(printer));
    m_output.line(
        QList<Cell>{{clock(), Colour::Faint},
                    {text_layout::padded(printer, m_nameWidth + 2)},
                    {text_layout::padded(ToolText::tr(label), m_labelWidth + 1), Colour::Faint}} +
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
    m_nameWidth = std::max(m_nameWidth, text_layout::width(shown(record.printerName)));
}

/// Prints what has changed in the records since the last look at them.
void Reporter::printChanges()
{
    const records::TitleOf titleOf = records::titleOrNotKnown;
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
        print(labels::records, {record.printerName, difference});
    }
    if (!isAnythingNew)
        print(labels::records, {{}, {{ToolText::tr("no changes"), Colour::Faint}}});
}
