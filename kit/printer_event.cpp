// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_event.h"

#include "reading_words.h"
#include "slot_table.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace VxKit {

namespace {

using Kind = PrinterEvent::Kind;
using Values = PrinterEvent::Values;

constexpr std::array kindWords{
    Word<Kind>{Kind::Status, "status"},
    Word<Kind>{Kind::Supply, "supply"},
    Word<Kind>{Kind::Ribbon, "ribbon"},
    Word<Kind>{Kind::Level, "level"},
    Word<Kind>{Kind::CommandFailed, "command_failed"},
    Word<Kind>{Kind::PrinterAdded, "printer_added"},
    Word<Kind>{Kind::PrinterGone, "printer_gone"},
    Word<Kind>{Kind::PrinterRenamed, "printer_renamed"},
    Word<Kind>{Kind::SpoolerStopped, "spooler_stopped"},
    Word<Kind>{Kind::SpoolerRunning, "spooler_running"},
    Word<Kind>{Kind::Firmware, "firmware"},
    Word<Kind>{Kind::EventsLost, "events_lost"},
};

/// So many characters of each text are written, so that the longest line stays below 64 KiB.
constexpr qsizetype longestText = 500;

/// Whether a character is written as it is. All others are escaped, so that a terminal on which
/// the log is printed does not act on them.
bool isPlain(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return character != U'"' && character != U'\\' && !QChar::isNonCharacter(character);
    }
}

bool isPlainAscii(QChar unit)
{
    return unit >= QLatin1Char(' ') && unit <= QLatin1Char('~') && unit != QLatin1Char('"') &&
           unit != QLatin1Char('\\');
}

void appendEscaped(QString& json, QChar unit)
{
    json += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
}

/// Appends a text as JSON.
void appendText(QString& json, const QString& text)
{
    const bool isCut = text.size() > longestText;
    const QStringView rest = isCut ? QStringView(text).first(longestText) : QStringView(text);
    json += QLatin1Char('"');
    if (std::ranges::all_of(rest, isPlainAscii)) {
        json += rest;
    } else {
        for (qsizetype i = 0; i < rest.size(); ++i) {
            const QChar first = rest.at(i);
            const bool isPair =
                first.isHighSurrogate() && i + 1 < rest.size() && rest.at(i + 1).isLowSurrogate();
            if (isPair) {
                const QChar second = rest.at(++i);
                if (isPlain(QChar::surrogateToUcs4(first, second))) {
                    json += first;
                    json += second;
                } else {
                    appendEscaped(json, first);
                    appendEscaped(json, second);
                }
            } else if (first.isSurrogate()) {
                json += QChar(QChar::ReplacementCharacter); // half a character
            } else if (isPlain(first.unicode())) {
                json += first;
            } else {
                appendEscaped(json, first);
            }
        }
    }
    if (isCut)
        json += QChar(0x2026); // an ellipsis
    json += QLatin1Char('"');
}

/// RFC 3339 with milliseconds and the offset of the local time.
QString timeText(const QDateTime& time)
{
    const QDateTime local = time.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

/// Writes a JSON object whose members are in the order in which they are added. Members without a
/// value are left out.
class ObjectWriter
{
public:
    ObjectWriter() { m_json.reserve(1024); }

    void add(const char* name, const QString& text)
    {
        if (text.isEmpty())
            return;
        addName(name);
        appendText(m_json, text);
    }
    void add(const char* name, const QDateTime& time)
    {
        if (!time.isValid())
            return;
        addName(name);
        m_json += QLatin1Char('"') + timeText(time) + QLatin1Char('"');
    }
    template <typename Integer>
    void add(const char* name, std::optional<Integer> number)
    {
        if (!number)
            return;
        addName(name);
        m_json += QString::number(*number);
    }
    void add(const char* name, std::optional<double> number, int decimals)
    {
        if (!number || !std::isfinite(*number))
            return;
        QString digits = QString::number(*number, 'f', decimals);
        while (digits.endsWith(QLatin1Char('0')))
            digits.chop(1);
        if (digits.endsWith(QLatin1Char('.')))
            digits.chop(1);
        addName(name);
        m_json += digits;
    }
    void add(const char* name, const Values& values)
    {
        const qsizetype before = m_json.size();
        addName(name);
        m_json += QLatin1Char('{');
        const qsizetype begin = m_json.size();
        add("code", values.code);
        if (values.state)
            add("state", wordOf(stateWords, *values.state));
        add("identifier", values.identifier);
        add("sku", values.sku);
        add("name", values.name);
        add("ratio", values.ratio, 4);
        add("meters", values.meters, 3);
        add("labels", values.labels);
        add("printer", values.printer);
        add("firmwareVersion", values.firmwareVersion);
        add("bootVersion", values.bootVersion);
        if (m_json.size() == begin)
            m_json.truncate(before); // there is none
        else
            m_json += QLatin1Char('}');
    }
    QByteArray line() const { return (m_json + QLatin1Char('}')).toUtf8(); }

private:
    void addName(const char* name)
    {
        if (!m_json.endsWith(QLatin1Char('{')))
            m_json += QLatin1Char(',');
        m_json += QLatin1Char('"');
        m_json += QLatin1String(name);
        m_json += QLatin1String("\":");
    }

    QString m_json{QLatin1Char('{')};
};

/// Reads members of an object, and remembers the first one that has an impossible value.
class ObjectReader
{
public:
    explicit ObjectReader(const QJsonObject& object)
        : m_object(object)
    {}

    QString text(const char* name)
    {
        const QJsonValue value = member(name);
        if (value.isString())
            return value.toString();
        if (!isAbsent(value))
            refuse(name);
        return {};
    }
    QDateTime time(const char* name)
    {
        const QString text = this->text(name);
        const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
        if (!text.isEmpty() && !time.isValid())
            refuse(name);
        return time;
    }
    std::optional<double> number(const char* name)
    {
        const QJsonValue value = member(name);
        if (value.isDouble())
            return value.toDouble();
        if (!isAbsent(value))
            refuse(name);
        return std::nullopt;
    }
    template <typename Integer>
    std::optional<Integer> integer(const char* name)
    {
        const std::optional<double> number = this->number(name);
        if (!number)
            return std::nullopt;
        // A double holds whole numbers up to 2^53 exactly.
        using Limits = std::numeric_limits<Integer>;
        constexpr double largest = 9007199254740992.0;
        constexpr double least = std::max(-largest, static_cast<double>(Limits::min()));
        constexpr double most = std::min(largest, static_cast<double>(Limits::max()));
        if (std::trunc(*number) == *number && *number >= least && *number <= most)
            return static_cast<Integer>(*number);
        refuse(name);
        return std::nullopt;
    }
    /// One of `choices`, by its name; empty when the member is absent.
    template <typename Choice, typename NameOf, typename Choices>
    std::optional<Choice> oneOf(const char* name, const Choices& choices, const NameOf& nameOf)
    {
        const QString text = this->text(name);
        for (const Choice choice : choices) {
            if (nameOf(choice) == text)
                return choice;
        }
        if (!text.isEmpty())
            refuse(name);
        return std::nullopt;
    }
    Values values(const char* name)
    {
        const QJsonValue value = member(name);
        if (!value.isObject()) {
            if (!isAbsent(value))
                refuse(name);
            return {};
        }
        ObjectReader inner(value.toObject());
        Values values;
        values.code = inner.integer<int>("code");
        const QString state = inner.text("state");
        values.state = valueOf(stateWords, state);
        if (!values.state && !state.isEmpty())
            inner.refuse("state");
        values.identifier = inner.text("identifier");
        values.sku = inner.text("sku");
        values.name = inner.text("name");
        values.ratio = inner.number("ratio");
        values.meters = inner.number("meters");
        values.labels = inner.integer<int>("labels");
        values.printer = inner.text("printer");
        values.firmwareVersion = inner.text("firmwareVersion");
        values.bootVersion = inner.text("bootVersion");
        if (m_refused.isEmpty() && !inner.m_refused.isEmpty())
            m_refused = QLatin1String(name) + QLatin1Char('.') + inner.m_refused;
        return values;
    }
    /// The first member with an impossible value; empty when there is none.
    QString refused() const { return m_refused; }
    void refuse(const char* name)
    {
        if (m_refused.isEmpty())
            m_refused = QString::fromLatin1(name);
    }

private:
    QJsonValue member(const char* name) const { return m_object.value(QLatin1String(name)); }
    static bool isAbsent(const QJsonValue& value) { return value.isUndefined() || value.isNull(); }

    QJsonObject m_object;
    QString m_refused;
};

} // namespace

QString eventKindName(PrinterEvent::Kind kind)
{
    return wordOf(kindWords, kind);
}

PrinterEvent PrinterEvent::commandFailed(const QString& printer, const QString& call, int error,
                                         const QString& reason)
{
    PrinterEvent event;
    event.time = QDateTime::currentDateTime();
    event.severity = Severity::Error;
    event.kind = Kind::CommandFailed;
    event.printer = printer;
    event.code = error;
    event.key = eventKindName(event.kind);
    event.text = QStringLiteral("Command failed: %1, error %2").arg(call).arg(error);
    event.reason = reason;
    return event;
}

QByteArray PrinterEvent::toLine() const
{
    ObjectWriter object;
    object.add("time", time.isValid() ? time : QDateTime::currentDateTime());
    object.add("severity", severityKey(severity));
    object.add("kind", eventKindName(kind));
    object.add("printer", printer);
    object.add("serial", serial);
    if (slot)
        object.add("slot", slotName(*slot));
    object.add("code", code);
    object.add("key", key.isEmpty() ? eventKindName(kind) : key);
    object.add("text", text.isEmpty() ? eventText(*this, QStringLiteral("en")) : text);
    object.add("mark", mark);
    object.add("before", before);
    object.add("after", after);
    object.add("reason", reason);
    object.add("lost", lost);
    object.add("since", since);
    return object.line();
}

std::optional<PrinterEvent> PrinterEvent::fromLine(const QByteArray& line, QString* error)
{
    const auto refuse = [error](const QString& reason) {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(line, &parseError);
    if (!document.isObject())
        return refuse(parseError.error == QJsonParseError::NoError
                          ? QStringLiteral("expected an object")
                          : parseError.errorString());
    ObjectReader object(document.object());
    PrinterEvent event;
    event.time = object.time("time");
    if (!event.time.isValid())
        object.refuse("time");
    const std::optional<Severity> severity =
        object.oneOf<Severity>("severity", allSeverities, severityKey);
    if (severity)
        event.severity = *severity;
    else
        object.refuse("severity");
    const QString kind = object.text("kind");
    if (const std::optional<Kind> known = valueOf(kindWords, kind))
        event.kind = *known;
    else
        object.refuse("kind");
    event.printer = object.text("printer");
    event.serial = object.text("serial");
    event.slot = object.oneOf<Slot>("slot", allSlots, slotName);
    event.code = object.integer<int>("code");
    event.key = object.text("key");
    event.text = object.text("text");
    event.mark = object.integer<int>("mark");
    event.before = object.values("before");
    event.after = object.values("after");
    event.reason = object.text("reason");
    event.lost = object.integer<qint64>("lost");
    event.since = object.time("since");
    if (!object.refused().isEmpty())
        return refuse(
            QStringLiteral("\"%1\" is missing or has an impossible value").arg(object.refused()));
    return event;
}

} // namespace VxKit
