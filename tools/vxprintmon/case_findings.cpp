// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_findings.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>

#include <algorithm>
#include <array>

// Resources of a static library are only found after this. The macro must be outside of namespaces.
static void initResource()
{
    Q_INIT_RESOURCE(case_findings);
}

namespace {

constexpr qint64 largestTable = qint64(1024) * 1024;
constexpr qsizetype mostFindings = 1000;
/// Of one finding: printers, or printers and values.
constexpr qsizetype mostTraces = 4096;
constexpr qsizetype mostLines = 100;
/// Words that are put into one text.
constexpr qsizetype mostWords = 8;

constexpr std::array members{"name",      "when", "then", "until",  "lasting",
                             "forgiving", "by",   "text", "remedy", "comment"};
constexpr std::array comparisons{"not", "above", "below", "has", "lacks", "contains", "present"};

/// Reads a table of findings.
class Table
{
public:
    Table(QString fileName, const QByteArray& bytes)
        : m_fileName(std::move(fileName))
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
        if (error.error != QJsonParseError::NoError)
            refuse(ToolText::tr("byte %1: %2").arg(error.offset).arg(error.errorString()));
        const QJsonValue all = document.object().value(QLatin1String("findings"));
        if (!all.isArray())
            refuse(ToolText::tr("expected an object with the list \"findings\""));
        const QJsonArray list = all.toArray();
        if (list.size() > mostFindings)
            refuse(ToolText::tr("there are more than %1 findings").arg(mostFindings));
        for (const QJsonValue& each : list) {
            m_place = QStringLiteral("findings[%1]").arg(m_findings.size());
            m_findings.append(read(each.toObject()));
        }
    }

    QList<Finding> findings() const { return m_findings; }

private:
    [[noreturn]] void refuse(const QString& reason) const
    {
        throw Failure(m_place.isEmpty()
                          ? QStringLiteral("%1: %2").arg(m_fileName, reason)
                          : QStringLiteral("%1: %2: %3").arg(m_fileName, m_place, reason));
    }
    void expect(bool isRight, const char* member, const QString& what) const
    {
        if (!isRight)
            refuse(ToolText::tr("\"%1\" must be %2").arg(QLatin1String(member), what));
    }

    Finding read(const QJsonObject& object) const;
    Condition condition(const QJsonObject& object, const char* member) const;
    double seconds(const QJsonObject& object, const char* member) const;
    QString text(const QJsonObject& object, const char* member) const;

    QString m_fileName;
    QString m_place;
    QList<Finding> m_findings;
};

bool isAnyOf(const QString& key, const auto& keys)
{
    return std::ranges::any_of(keys,
                               [&key](const char* each) { return key == QLatin1String(each); });
}

Finding Table::read(const QJsonObject& object) const
{
    for (const QString& key : object.keys()) {
        if (!isAnyOf(key, members))
            refuse(ToolText::tr("there is no member \"%1\"").arg(key));
    }
    Finding finding;
    finding.name = object.value(QLatin1String("name")).toString();
    expect(!finding.name.isEmpty(), "name", ToolText::tr("a text"));
    finding.when = condition(object, "when");
    expect(!finding.when.isEmpty(), "when", ToolText::tr("a condition or a list of conditions"));
    finding.then = condition(object, "then");
    finding.until = condition(object, "until");
    finding.lasting = seconds(object, "lasting");
    finding.forgiving = seconds(object, "forgiving");
    finding.text = text(object, "text");
    finding.remedy = text(object, "remedy");
    const QJsonValue by = object.value(QLatin1String("by"));
    expect(by.isUndefined() || by.isArray(), "by", ToolText::tr("a list of texts"));
    const QJsonArray names = by.toArray({QStringLiteral("printer")});
    for (const QJsonValue& name : names)
        finding.by.append(name.toString());
    return finding;
}

Condition Table::condition(const QJsonObject& object, const char* member) const
{
    const QJsonValue value = object.value(QLatin1String(member));
    const QString what = ToolText::tr("a condition or a list of conditions");
    if (value.isUndefined())
        return {};
    Condition result;
    const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray{value};
    for (const QJsonValue& each : list) {
        const QJsonObject alternative = each.toObject();
        expect(!alternative.isEmpty(), member, what);
        for (const QJsonValue& expected : alternative) {
            const QStringList keys = expected.toObject().keys();
            expect(!expected.isObject() ||
                       (!keys.isEmpty() &&
                        std::ranges::all_of(
                            keys, [](const QString& key) { return isAnyOf(key, comparisons); })),
                   member, what);
        }
        result.append(alternative);
    }
    return result;
}

double Table::seconds(const QJsonObject& object, const char* member) const
{
    const QJsonValue value = object.value(QLatin1String(member));
    expect(value.isUndefined() || value.toDouble(-1) >= 0, member,
           ToolText::tr("a number of seconds"));
    return value.toDouble(0);
}

/// A text, or the one of an object's texts that is in the user's language.
QString Table::text(const QJsonObject& object, const char* member) const
{
    const QJsonValue value = object.value(QLatin1String(member));
    if (value.isString() && !value.toString().isEmpty())
        return value.toString();
    const QJsonObject texts = value.toObject();
    QStringList languages = QLocale().uiLanguages();
    languages.append(QStringLiteral("en"));
    for (QString language : std::as_const(languages)) {
        language.replace(u'-', u'_');
        // "zh_Hans_CN" is found as "zh_CN", and "de_AT" as "de".
        const QStringList parts = language.split(u'_');
        for (const QString& key : {language, parts.first() + u'_' + parts.last(), parts.first()}) {
            const QString found = texts.value(key).toString();
            if (!found.isEmpty())
                return found;
        }
    }
    expect(false, member,
           ToolText::tr("a text, or texts by their languages with \"en\" among them"));
    return {};
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    const QByteArray bytes = file.read(largestTable + 1);
    if (file.error() != QFileDevice::NoError)
        throw Failure(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    if (bytes.size() > largestTable)
        throw Failure(
            ToolText::tr("%1: the file is larger than %2 bytes").arg(fileName).arg(largestTable));
    return bytes;
}

// Conditions //////////////////////////////////////////////////////////////////////////////////////

bool isMet(const QJsonValue& found, const QString& comparison, const QJsonValue& expected)
{
    if (comparison == QLatin1String("present"))
        return !found.isUndefined() == expected.toBool();
    if (comparison == QLatin1String("not"))
        return !found.isUndefined() && found != expected;
    if (comparison == QLatin1String("contains"))
        return found.toString().contains(expected.toString());
    if (!found.isDouble())
        return false;
    const bool hasBits = (found.toInteger() & expected.toInteger()) != 0;
    return comparison == QLatin1String("has")     ? hasBits
           : comparison == QLatin1String("lacks") ? !hasBits
           : comparison == QLatin1String("above") ? found.toDouble() > expected.toDouble()
                                                  : found.toDouble() < expected.toDouble();
}

bool isMet(const QJsonValue& found, const QJsonValue& expected)
{
    if (expected.isArray())
        return expected.toArray().contains(found);
    if (!expected.isObject())
        return found == expected;
    const QJsonObject all = expected.toObject();
    for (auto each = all.begin(); each != all.end(); ++each) {
        if (!isMet(found, each.key(), each.value()))
            return false;
    }
    return true;
}

bool isMet(const QJsonObject& fact, const Condition& condition)
{
    return std::ranges::any_of(condition, [&fact](const QJsonObject& alternative) {
        for (auto member = alternative.begin(); member != alternative.end(); ++member) {
            if (!isMet(fact.value(member.key()), member.value()))
                return false;
        }
        return true;
    });
}

/// The group that a fact belongs to: the texts of the members that tell groups apart.
QString groupOf(const QJsonObject& fact, const QStringList& by)
{
    QString group;
    for (const QString& member : by)
        group += fact.value(member).toVariant().toString() + u'\n';
    return group;
}

/// Whether a fact concerns what is in a group: a fact without a member concerns all its texts.
bool concerns(const QJsonObject& fact, const QJsonObject& first, const QStringList& by)
{
    return std::ranges::all_of(by, [&](const QString& member) {
        const QJsonValue value = fact.value(member);
        return value.isUndefined() || value == first.value(member);
    });
}

/// A text with the words in place of "{printer}", "{value}" and so on.
QString filled(const QString& text, const QHash<QString, QStringList>& words)
{
    QString result;
    qsizetype place = 0;
    while (place < text.size()) {
        const qsizetype begin = text.indexOf(u'{', place);
        const qsizetype end = begin < 0 ? -1 : text.indexOf(u'}', begin);
        if (end < 0)
            break;
        const QStringList all = words.value(text.sliced(begin + 1, end - begin - 1));
        result += text.sliced(place, begin - place) + all.join(QStringLiteral(", "));
        place = end + 1;
    }
    return result + text.sliced(place);
}

} // namespace

QList<Finding> knownFindings(const QString& fileName)
{
    initResource();
    const QString own = QStringLiteral(":/vxprintmon/case_findings.json");
    QList<Finding> findings = Table(own, bytesOf(own)).findings();
    if (!fileName.isEmpty())
        findings += Table(fileName, bytesOf(fileName)).findings();
    return findings;
}

FindingSearch::FindingSearch(QList<Finding> findings)
{
    for (Finding& finding : findings)
        m_searches.append({std::move(finding), {}, {}});
}

void FindingSearch::note(Trace& trace, qint64 line, double time)
{
    trace.until = time;
    if (!trace.lines.isEmpty() && trace.lines.last() == line)
        return;
    ++trace.lineCount;
    if (trace.lines.size() < mostLines)
        trace.lines.append(line);
}

void FindingSearch::takeBack(Search& search, const QJsonObject& fact, double time)
{
    for (auto trace = search.traces.begin(); trace != search.traces.end();) {
        const bool isConcerned =
            !trace->isConfirmed && concerns(fact, trace->fact, search.finding.by);
        // What has lasted long enough was true, also when it ends.
        const bool hasLasted =
            search.finding.lasting > 0 && time - trace->from >= search.finding.lasting;
        if (isConcerned && hasLasted)
            trace->isConfirmed = true;
        trace = isConcerned && !hasLasted ? search.traces.erase(trace) : std::next(trace);
    }
    const QString group = groupOf(fact, search.finding.by);
    if (search.takenBack.contains(group) || search.takenBack.size() < mostTraces)
        search.takenBack.insert(group, time);
}

void FindingSearch::add(const QJsonObject& fact, qint64 line, double time)
{
    for (Search& search : m_searches) {
        const Finding& finding = search.finding;
        if (isMet(fact, finding.until))
            takeBack(search, fact, time);
        if (isMet(fact, finding.then)) {
            for (Trace& trace : search.traces) {
                if (trace.isComplete || !concerns(fact, trace.fact, finding.by))
                    continue;
                trace.isComplete = true;
                note(trace, line, time);
            }
        }
        if (!isMet(fact, finding.when))
            continue;
        const QString group = groupOf(fact, finding.by);
        const auto takenBack = search.takenBack.constFind(group);
        const bool isForgiven = takenBack != search.takenBack.cend() && finding.forgiving > 0 &&
                                time - *takenBack <= finding.forgiving;
        const bool isNew = !search.traces.contains(group);
        if (isForgiven || (isNew && search.traces.size() >= mostTraces))
            continue;
        Trace& trace = search.traces[group];
        if (isNew) {
            trace.fact = fact;
            trace.from = time;
        }
        trace.isComplete = trace.isComplete || finding.then.isEmpty();
        note(trace, line, time);
    }
}

QList<Found> FindingSearch::result(double time)
{
    QList<Found> all;
    for (const Search& search : std::as_const(m_searches)) {
        const Finding& finding = search.finding;
        // What differs in other members than the printer is told in one text.
        QMap<QString, QList<Trace>> ofPrinters;
        for (const Trace& trace : search.traces) {
            const bool hasLasted = trace.isConfirmed || time - trace.from >= finding.lasting;
            if (hasLasted && trace.isComplete)
                ofPrinters[trace.fact.value(QLatin1String("printer")).toString()].append(trace);
        }
        for (auto printer = ofPrinters.cbegin(); printer != ofPrinters.cend(); ++printer) {
            Found found{finding.name, printer.key(), {}, {}, {}, 0, printer->first().from, 0};
            QHash<QString, QStringList> words;
            for (const Trace& trace : *printer) {
                found.lines += trace.lines;
                found.lineCount += trace.lineCount;
                found.from = std::min(found.from, trace.from);
                found.until = std::max(found.until, trace.until);
                for (const QString& member : trace.fact.keys()) {
                    const QString word = trace.fact.value(member).toVariant().toString();
                    QStringList& known = words[member];
                    if (!known.contains(word) && known.size() < mostWords)
                        known.append(word);
                }
            }
            std::ranges::sort(found.lines);
            found.lines.erase(std::unique(found.lines.begin(), found.lines.end()),
                              found.lines.end());
            if (found.lines.size() < mostLines)
                found.lineCount = found.lines.size();
            else
                found.lines.resize(mostLines);
            found.text = filled(finding.text, words);
            found.remedy = filled(finding.remedy, words);
            all.append(found);
        }
    }
    std::ranges::stable_sort(all, {}, &Found::from);
    return all;
}
