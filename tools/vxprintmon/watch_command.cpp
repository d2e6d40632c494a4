// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "interruption.h"
#include "json_text.h"
#include "records.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMetaMethod>
#include <QtCore/QTimer>

#include <algorithm>

namespace {

using Controller = PrinterStatusController;
using Record = records::Record;

/// What a signal says to people.
struct Words
{
    QString printer; ///< empty: none in particular
    QList<Cell> cells;
};

/// Prints a line for every signal of the controller.
class Reporter : public QObject
{
public:
    Reporter(const CommandLine& line, Output& output, Controller& controller)
        : m_json(line.json)
        , m_output(output)
        , m_controller(controller)
        , m_titleOf(records::titlesOf(controller))
    {
        m_clock.start();
        listen(&Controller::availablePrintersUpdated, "records", [this] { return changes(); });
        listen(&Controller::printerErrorChangedSignal, "errors", [](bool isInError) {
            return isInError
                       ? Words{{}, {{QStringLiteral("some printer is in error"), Colour::Bad}}}
                       : Words{{}, {{QStringLiteral("no printer is in error"), Colour::Good}}};
        });
        listen(&Controller::statusChangedSignal, "status",
               [this](int status, const QString& printer) {
                   return Words{printer,
                                {{QStringLiteral("%1  ").arg(status, 3)}, {m_titleOf(status)}}};
               });
        listen(&Controller::supplyIdChangedSignal, "supply", [](const QString& printer) {
            return Words{printer, {{QStringLiteral("was changed or taken out")}}};
        });
        listen(&Controller::ribbonIdsChangedSignal, "ribbons", [](const QString& printer) {
            return Words{printer, {{QStringLiteral("were changed or taken out")}}};
        });
        listen(&Controller::activeDefaultPrinterSetSignal, "active",
               [](const QString& printer, bool isVX) {
                   return Words{printer,
                                {{isVX ? QStringLiteral("is the active printer")
                                       : QStringLiteral("is the active printer, without a record"),
                                  Colour::Notice}}};
               });
        listen(&Controller::softwareVersionUpdated, "firmware", [](const QString& printer) {
            return Words{printer, {{QStringLiteral("was changed")}}};
        });
    }

    /// What is there when the watching begins, of which no signal tells.
    void tellBeginning()
    {
        const QList<Record> all = records::of(m_controller);
        for (const Record& record : all)
            remember(record);
        if (m_json)
            return;
        records::printTable(m_output, all, m_controller.activeDefaultPrinter(),
                            records::shortTitlesOf(m_controller));
        m_output.text(QStringLiteral("\n"));
    }

    void tellStory(const QString& caption)
    {
        if (!m_json)
            m_output.line({{clock(), Colour::Faint}, {caption, Colour::Heading}});
    }

    /// As a host does when it hears of a new device. No signal tells of printers that are found.
    void lookForPrinters()
    {
        m_controller.checkForPrinters();
        const QList<Record> all = records::of(m_controller);
        for (const Record& record : all) {
            if (m_known.contains(record.printerName))
                continue;
            remember(record);
            print("found", {record.printerName,
                            {{records::isWatched(record) ? QStringLiteral("is watched from now on")
                                                         : m_titleOf(record.statusEnum)}}});
        }
    }

private:
    template <typename... Arguments, typename InWords>
    void listen(void (Controller::*signal)(Arguments...), const char* label, InWords inWords)
    {
        const QMetaMethod method = QMetaMethod::fromSignal(signal);
        connect(&m_controller, signal, this, [=, this](Arguments... arguments) {
            if (m_json)
                printJson(method, {QJsonValue(arguments)...});
            else
                print(label, inWords(arguments...));
        });
    }

    void printJson(const QMetaMethod& signal, const QList<QJsonValue>& arguments)
    {
        QList<json_text::Member> members{
            {QStringLiteral("signal"), json_text::value(QString::fromLatin1(signal.name()))}};
        const QList<QByteArray> names = signal.parameterNames();
        for (qsizetype i = 0; i < names.size(); ++i)
            members.emplaceBack(QString::fromLatin1(names.at(i)),
                                json_text::value(arguments.at(i)));
        if (signal == QMetaMethod::fromSignal(&Controller::availablePrintersUpdated)) {
            QStringList all;
            const QList<Record> found = records::of(m_controller);
            for (const Record& record : found)
                all.append(records::json(record));
            members.emplaceBack(QStringLiteral("printers"), json_text::array(all));
        }
        m_output.text(json_text::object(members) + QLatin1Char('\n'));
    }

    void print(const char* label, const Words& words)
    {
        if (m_json)
            return;
        constexpr int labelWidth = 9;
        m_nameWidth = std::max(m_nameWidth, words.printer.size());
        m_output.line(
            QList<Cell>{{clock(), Colour::Faint},
                        {words.printer.leftJustified(m_nameWidth + 2)},
                        {QString::fromLatin1(label).leftJustified(labelWidth), Colour::Faint}} +
            words.cells);
    }

    QString clock() const
    {
        return QStringLiteral("%1 s  ").arg(static_cast<double>(m_clock.elapsed()) / 1000, 6, 'f',
                                            1);
    }

    void remember(const Record& record)
    {
        m_known.insert(record.printerName, record);
        m_nameWidth = std::max(m_nameWidth, record.printerName.size());
    }

    /// What has changed in the records since they were looked at last.
    Words changes()
    {
        QStringList printers;
        QList<Cell> cells;
        const QList<Record> all = records::of(m_controller);
        for (const Record& record : all) {
            const QList<Cell> difference = records::difference(
                m_known.value(record.printerName), record, records::shortTitlesOf(m_controller));
            remember(record);
            if (difference.isEmpty())
                continue;
            if (!printers.isEmpty())
                cells.append({QStringLiteral("; ")});
            printers.append(record.printerName);
            cells += difference;
        }
        if (printers.isEmpty())
            return {{}, {{QStringLiteral("nothing new"), Colour::Faint}}};
        return {printers.join(QStringLiteral("; ")), cells};
    }

    bool m_json;
    Output& m_output;
    Controller& m_controller;
    records::TitleOf m_titleOf;
    QElapsedTimer m_clock;
    QMap<QString, Record> m_known;
    qsizetype m_nameWidth = 0;
};

} // namespace

QString runWatch(const CommandLine& line, Output& output, Scene& scene)
{
    Controller controller;
    Reporter reporter(line, output, controller);
    reporter.tellBeginning();
    QObject::connect(&scene, &Scene::told, &reporter, &Reporter::tellStory);
    QObject::connect(&scene, &Scene::printersMayHaveCome, &reporter, &Reporter::lookForPrinters);

    const Interruption interruption;
    QObject::connect(&interruption, &Interruption::happened, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    if (line.seconds)
        QTimer::singleShot(qRound(*line.seconds * 1000), Qt::PreciseTimer,
                           QCoreApplication::instance(), &QCoreApplication::quit);

    scene.begin([&controller] {
        const QList<Record> all = records::of(controller);
        return static_cast<int>(std::ranges::count_if(all, records::isWatched));
    });
    QCoreApplication::exec();
    return {};
}
