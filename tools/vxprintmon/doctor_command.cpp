// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_file.h"
#include "command_line.h"
#include "commands.h"
#include "doctor_check.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "printer_names.h"
#include "shown_text.h"
#include "text_layout.h"

#include "windows_printer_info.h"

#include <algorithm>
#include <array>
#include <utility>

using doctor::Check;
using doctor::Verdict;

namespace {

struct VerdictWord
{
    const char* key; ///< in JSON
    const char* word;
    Colour colour;
};
constexpr std::array verdictWords{
    VerdictWord{"ok", QT_TRANSLATE_NOOP("tools", "ok"), Colour::Good},
    VerdictWord{"note", QT_TRANSLATE_NOOP("tools", "note"), Colour::Notice},
    VerdictWord{"problem", QT_TRANSLATE_NOOP("tools", "problem"), Colour::Bad},
};

const VerdictWord& wordOf(Verdict verdict)
{
    return verdictWords.at(static_cast<std::size_t>(verdict));
}

QString json(const Check& check)
{
    using json_text::value;
    return json_text::object({
        {QStringLiteral("check"), value(check.check)},
        {QStringLiteral("subject"), value(check.subject)},
        {QStringLiteral("verdict"), value(QString::fromLatin1(wordOf(check.verdict).key))},
        {QStringLiteral("text"), value(check.text)},
        {QStringLiteral("remedy"), value(check.remedy)},
    });
}

/// Prints checks as people read them: what was found, and what to do about it.
class Screen
{
public:
    explicit Screen(Output& output)
        : m_output(output)
    {
        for (const VerdictWord& each : verdictWords)
            m_wordWidth = std::max(m_wordWidth, text_layout::width(ToolText::tr(each.word)));
    }

    /// `withDetails` also prints each check of a printer that found nothing.
    void print(const QList<Check>& checks, bool withDetails)
    {
        const QList<Check> shownChecks =
            withValuesJoined(withDetails ? checks : withoutDetails(checks));
        for (qsizetype index = 0; index < shownChecks.size(); ++index) {
            const Check& check = shownChecks.at(index);
            const Check before = index > 0 ? shownChecks.at(index - 1) : Check{};
            const Check after = shownChecks.value(index + 1);
            if (index == 0 || check.subject != before.subject)
                printHeading(check.subject, index == 0);
            print(check);
            // Once for all findings that ask for the same.
            if (check.remedy != after.remedy || check.subject != after.subject)
                printRemedy(check.remedy);
        }
    }

private:
    /// A copy in which one line stands for all checks of a printer that found nothing.
    static QList<Check> withoutDetails(const QList<Check>& checks)
    {
        QList<Check> shorter;
        const auto addRest = [&shorter](const QString& printer) {
            const bool isAll = shorter.isEmpty() || shorter.last().subject != printer;
            shorter.append({.subject = printer,
                            .text = isAll ? ToolText::tr("Everything is in order.")
                                          : ToolText::tr("Everything else is in order.")});
        };
        bool isRestOwed = false;
        for (qsizetype index = 0; index < checks.size(); ++index) {
            const Check& check = checks.at(index);
            const bool isLast =
                index + 1 == checks.size() || checks.at(index + 1).subject != check.subject;
            if (check.verdict == Verdict::Ok && !check.subject.isEmpty())
                isRestOwed = true;
            else
                shorter.append(check);
            if (isLast && std::exchange(isRestOwed, false))
                addRest(check.subject);
        }
        return shorter;
    }

    /// A copy in which one check stands for all missing values with the same remedy.
    static QList<Check> withValuesJoined(const QList<Check>& checks)
    {
        QList<Check> joined;
        for (const Check& check : checks) {
            if (check.value.isEmpty() || check.isPublished) {
                joined.append(check);
                continue;
            }
            if (check.verdict == Verdict::Ok)
                continue;
            const auto sameKind = std::ranges::find_if(joined, [&](const Check& each) {
                return each.subject == check.subject && each.value.contains(u',') &&
                       each.remedy == check.remedy;
            });
            if (sameKind != joined.end()) {
                sameKind->value += check.value + u',';
                continue;
            }
            joined.append(check);
            joined.last().value += u',';
        }
        for (Check& check : joined) {
            if (!check.value.contains(u','))
                continue;
            const QString names = check.value.chopped(1).replace(u',', QLatin1String(", "));
            check.text = ToolText::tr("Driver values not published: %1.").arg(names);
        }
        return joined;
    }

    void printHeading(const QString& subject, bool isFirst)
    {
        if (!isFirst)
            m_output.text(QStringLiteral("\n"));
        const QString heading = subject.isEmpty() ? ToolText::tr("This computer") : shown(subject);
        m_output.line({{text_layout::elided(heading, m_output.columns()), Colour::Heading}});
    }

    qsizetype textBegin() const { return indent + m_wordWidth + gap; }
    qsizetype textWidth() const
    {
        constexpr qsizetype least = 20;
        return std::max(m_output.columns() - textBegin(), least);
    }

    void print(const Check& check)
    {
        const VerdictWord& verdict = wordOf(check.verdict);
        const QString word = ToolText::tr(verdict.word);
        QStringList lines = brokenLines(shown(check.text), textWidth());
        const QString space(m_wordWidth - text_layout::width(word) + gap, u' ');
        m_output.line(
            {{QString(indent, u' ')}, {word, verdict.colour}, {space + lines.takeFirst()}});
        printLines(lines);
    }

    void printRemedy(const QString& remedy)
    {
        if (!remedy.isEmpty())
            printLines(brokenLines(ToolText::tr("What to do: %1").arg(shown(remedy)), textWidth()));
    }

    void printLines(const QStringList& lines)
    {
        for (const QString& line : lines)
            m_output.line({{QString(textBegin(), u' ') + line}});
    }

    /// Also breaks what has no place to be broken, such as a long path.
    static QStringList brokenLines(const QString& text, qsizetype columns)
    {
        QStringList lines;
        for (QString line : text_layout::wrapped(text, columns)) {
            while (text_layout::width(line) > columns) {
                const QString beginning = text_layout::elided(line, columns + 1).chopped(1);
                // A single character can be wider than a line, if it is put together of many.
                const qsizetype size = std::max<qsizetype>(beginning.size(), 1);
                lines.append(line.first(size));
                line.remove(0, size);
            }
            lines.append(line);
        }
        return lines;
    }

    static constexpr qsizetype indent = 2;
    static constexpr qsizetype gap = 2;

    Output& m_output;
    qsizetype m_wordWidth = 0;
};

QList<Check> printerChecks(const CommandLine& line, const QList<AvailablePrinters>& printers,
                           const QString& catalogueFile)
{
    QList<Check> checks;
    if (line.arguments.isEmpty()) {
        for (const AvailablePrinters& printer : printers)
            checks += doctor::checkPrinter(printer, catalogueFile);
        return checks;
    }
    QStringList names;
    for (const AvailablePrinters& printer : printers)
        names.append(printer.printerName);
    const QString& typed = line.arguments.first();
    const std::optional<QString> name = printer_names::meant(typed, names);
    if (name)
        return doctor::checkPrinter(printers.at(names.indexOf(*name)), catalogueFile);
    QString text = ToolText::tr("There is no printer \"%1\".").arg(typed);
    const QStringList nearest = printer_names::nearest(typed, names);
    if (!nearest.isEmpty())
        text += QLatin1Char(' ') +
                ToolText::tr("Similar names: %1.").arg(nearest.join(QStringLiteral(", ")));
    Check check = doctor::finding(Verdict::Problem, text, doctor::Remedy::CopyName);
    check.check = QStringLiteral("printer");
    check.subject = typed;
    return {check};
}

} // namespace

void runDoctor(const CommandLine& line, Output& output, Backend& /*backend*/)
{
    const QString catalogueFile = catalogue_file::path(line);
    std::optional<QList<AvailablePrinters>> printers;
    QList<Check> checks = doctor::checkVersions() + doctor::checkSpooler(&printers) +
                          doctor::checkCatalogue(catalogueFile) + doctor::checkEndpoints();
    if (printers)
        checks += printerChecks(line, *printers, catalogueFile);

    if (line.json) {
        QStringList texts;
        for (const Check& check : std::as_const(checks))
            texts.append(json(check));
        output.text(json_text::lines(texts));
    } else {
        Screen(output).print(checks, !line.arguments.isEmpty());
    }
    const auto problems = std::ranges::count(checks, Verdict::Problem, &Check::verdict);
    if (problems > 0)
        throw Failure(ToolText::tr("problems found: %1").arg(problems));
}
