// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "report.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace {

using Outcome = TestResult::Outcome;

constexpr Outcome outcomes[] = {Outcome::Failed,     Outcome::Crashed, Outcome::Silent,
                                Outcome::Passed,     Outcome::Skipped, Outcome::NotRun,
                                Outcome::Interrupted};

QString escaped(const QString& text)
{
    return text.toHtmlEscaped();
}

QJsonValue redactedValue(const QJsonValue& value, const Redaction& redaction)
{
    if (value.isString())
        return redaction.redacted(value.toString());
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue& element : value.toArray())
            array.append(redactedValue(element, redaction));
        return array;
    }
    if (value.isObject()) {
        QJsonObject object;
        const QJsonObject members = value.toObject();
        for (auto member = members.begin(); member != members.end(); ++member)
            object.insert(member.key(), redactedValue(member.value(), redaction));
        return object;
    }
    return value;
}

QJsonObject testObject(const TestResult& test)
{
    return {{QStringLiteral("name"), test.name},
            {QStringLiteral("result"), TestResult::word(test.outcome)},
            {QStringLiteral("reason"), test.reason},
            {QStringLiteral("seconds"), test.seconds},
            {QStringLiteral("passed"), test.passed},
            {QStringLiteral("failed"), test.failed},
            {QStringLiteral("skipped"), test.skipped},
            {QStringLiteral("output"), test.output}};
}

QJsonObject reportObject(const Report& report, const Redaction& redaction)
{
    QJsonArray tests;
    for (const TestResult& test : report.tests)
        tests.append(testObject(test));
    QJsonObject counts;
    for (const Outcome outcome : outcomes)
        counts.insert(TestResult::word(outcome), report.count(outcome));
    const QJsonObject all{
        {QStringLiteral("format"), QStringLiteral("VxPrinterStatus test report")},
        {QStringLiteral("formatVersion"), 1},
        {QStringLiteral("version"), report.version},
        {QStringLiteral("compiler"), report.compiler},
        {QStringLiteral("begun"), report.begun.toString(Qt::ISODate)},
        {QStringLiteral("ended"), report.ended.toString(Qt::ISODate)},
        {QStringLiteral("interrupted"), report.isInterrupted},
        {QStringLiteral("agreed"), report.agreed},
        {QStringLiteral("system"), report.system},
        {QStringLiteral("files"), report.files},
        {QStringLiteral("printerCheck"), report.printerCheck},
        {QStringLiteral("before"), report.before},
        {QStringLiteral("cleanedUp"), QJsonArray::fromStringList(report.cleanedUp)},
        {QStringLiteral("leftBehind"), QJsonArray::fromStringList(report.leftBehind)},
        {QStringLiteral("othersAdded"), report.othersAdded},
        {QStringLiteral("notes"), QJsonArray::fromStringList(report.notes)},
        {QStringLiteral("counts"), counts},
        {QStringLiteral("tests"), tests},
    };
    QJsonObject object = redactedValue(all, redaction).toObject();
    object.insert(QStringLiteral("replacedNames"),
                  QJsonArray::fromStringList(redaction.replacements()));
    return object;
}

QString table(const QJsonObject& object)
{
    QString rows;
    for (auto member = object.begin(); member != object.end(); ++member) {
        QString value = member.value().toVariant().toString();
        if (member.value().isArray())
            value = member.value().toVariant().toStringList().join(QLatin1String(", "));
        rows += QStringLiteral("<tr><th>%1</th><td>%2</td></tr>\n")
                    .arg(escaped(member.key()), escaped(value));
    }
    return QStringLiteral("<table>\n%1</table>\n").arg(rows);
}

QString list(const QString& title, const QJsonValue& lines)
{
    QString items;
    for (const QJsonValue& line : lines.toArray())
        items += QStringLiteral("<li>%1</li>\n").arg(escaped(line.toString()));
    if (items.isEmpty())
        items = QStringLiteral("<li>nothing</li>\n");
    return QStringLiteral("<h2>%1</h2>\n<ul>\n%2</ul>\n").arg(title, items);
}

QString filesTable(const QJsonArray& files)
{
    QString rows;
    for (const QJsonValue& file : files) {
        rows +=
            QStringLiteral("<tr><th>%1</th><td>%2</td><td>%3</td><td><code>%4</code></td></tr>\n")
                .arg(escaped(file[QLatin1String("name")].toString()),
                     QString::number(file[QLatin1String("size")].toInteger()),
                     escaped(file[QLatin1String("version")].toString()),
                     escaped(file[QLatin1String("sha256")].toString()));
    }
    return QStringLiteral("<table>\n%1</table>\n").arg(rows);
}

bool isOf(const QJsonValue& test, std::initializer_list<Outcome> wanted)
{
    return std::any_of(wanted.begin(), wanted.end(), [&](Outcome outcome) {
        return test[QLatin1String("result")].toString() == TestResult::word(outcome);
    });
}

/// Those that went wrong come first, and open.
QString testList(const QJsonArray& tests)
{
    QString wrong;
    QString others;
    for (const QJsonValue& test : tests) {
        const bool isWrong =
            isOf(test, {Outcome::Failed, Outcome::Crashed, Outcome::Silent, Outcome::Interrupted});
        const QString reason = test[QLatin1String("reason")].toString();
        const QString output = test[QLatin1String("output")].toString();
        QString line = QStringLiteral("<b>%1</b>: %2")
                           .arg(escaped(test[QLatin1String("name")].toString()),
                                escaped(test[QLatin1String("result")].toString()));
        if (!isOf(test, {Outcome::NotRun})) {
            line += QStringLiteral(" (%1 passed, %2 failed, %3 skipped, %4 s)")
                        .arg(QString::number(test[QLatin1String("passed")].toInt()),
                             QString::number(test[QLatin1String("failed")].toInt()),
                             QString::number(test[QLatin1String("skipped")].toInt()),
                             QString::number(test[QLatin1String("seconds")].toDouble(), 'f', 1));
        }
        if (!reason.isEmpty())
            line += QStringLiteral(" – ") + escaped(reason);
        QString& part = isWrong ? wrong : others;
        if (output.isEmpty())
            part += QStringLiteral("<p class=\"%1\">%2</p>\n")
                        .arg(isWrong ? QStringLiteral("wrong") : QString(), line);
        else
            part += QStringLiteral("<details%1><summary>%2</summary><pre>%3</pre></details>\n")
                        .arg(isWrong ? QStringLiteral(" open class=\"wrong\"") : QString(), line,
                             escaped(output));
    }
    return wrong + others;
}

constexpr const char* style =
    "body { font: 15px/1.5 system-ui, sans-serif; max-width: 70em; margin: 2em auto; padding: 0 "
    "1em }\n"
    "th { text-align: left; font-weight: normal; color: #555; padding-right: 1.5em;"
    " vertical-align: top }\n"
    "td { padding-right: 1.5em; vertical-align: top }\n"
    "pre { background: #f4f4f4; padding: 0.7em; overflow-x: auto; font-size: 13px }\n"
    ".wrong > summary, p.wrong { color: #a00016 }\n"
    "code { font-size: 11px }\n";

} // namespace

int Report::count(TestResult::Outcome outcome) const
{
    return static_cast<int>(std::count_if(tests.begin(), tests.end(), [&](const TestResult& test) {
        return test.outcome == outcome;
    }));
}

QByteArray Report::html(const Redaction& redaction) const
{
    const QJsonObject object = reportObject(*this, redaction);
    const auto array = [&](const char* name) {
        return object[QLatin1String(name)].toArray();
    };
    const auto members = [&](const char* name) {
        return object[QLatin1String(name)].toObject();
    };
    QString text;
    text += QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                           "<title>Test report of VxPrinterStatus %1</title>\n<style>\n%2</style>\n"
                           "</head>\n<body>\n<h1>Test report of VxPrinterStatus %1</h1>\n")
                .arg(escaped(version), QString::fromLatin1(style));
    text +=
        QStringLiteral("<p>From %1 to %2%3. Names of people, computers and printers were replaced"
                       " before this file was written, by: %4.</p>\n")
            .arg(object[QLatin1String("begun")].toString(),
                 object[QLatin1String("ended")].toString(),
                 isInterrupted ? QStringLiteral(", interrupted") : QString(),
                 escaped(array("replacedNames").toVariantList().isEmpty()
                             ? QStringLiteral("nothing, there was none")
                             : QVariant(array("replacedNames").toVariantList())
                                   .toStringList()
                                   .join(QLatin1String(", "))));
    text += table(members("counts"));
    text += list(QStringLiteral("Notes"), object[QLatin1String("notes")]);
    text += QStringLiteral("<h2>Agreed to</h2>\n") + table(members("agreed"));
    text += QStringLiteral("<h2>Tests</h2>\n") + testList(array("tests"));
    text += QStringLiteral("<h2>A first printer</h2>\n<p>%1</p>\n")
                .arg(escaped(object[QLatin1String("printerCheck")].toString()));
    text += list(QStringLiteral("Left behind"), object[QLatin1String("leftBehind")]);
    text += list(QStringLiteral("Cleaned up after the tests"), object[QLatin1String("cleanedUp")]);
    text += QStringLiteral("<h2>There before</h2>\n") + table(members("before"));
    text += QStringLiteral("<h2>Added meanwhile by others</h2>\n") + table(members("othersAdded"));
    text += QStringLiteral("<h2>The computer</h2>\n") + table(members("system"));
    text += QStringLiteral("<h2>The product</h2>\n") + filesTable(array("files"));
    // For programs. "<" would end the element.
    const QString json = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact))
                             .replace(QLatin1Char('<'), QLatin1String("\\u003c"));
    text += QStringLiteral("<script type=\"application/json\" id=\"report\">\n");
    // Not arg(), because outputs contain %1.
    text += json;
    text += QStringLiteral("\n</script>\n</body>\n</html>\n");
    return text.toUtf8();
}
