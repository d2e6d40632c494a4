// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_sink.h"

#include "case_session.h"

#include <Logger.h>

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QLocale>
#include <QtCore/QSysInfo>
#include <QtCore/QTimeZone>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <span>

namespace VxKit {

namespace {

/// After a failure, writing is tried again so much later, in milliseconds.
constexpr qint64 retryPause = 1000;
constexpr qint64 smallestFile = qint64(1024) * 1024;
constexpr qint64 smallestRing = qint64(64) * 1024;
/// Longer values are not remembered in their redacted form.
constexpr qsizetype longestRemembered = 128;
/// More memory than this is given back when it is not needed.
constexpr qsizetype keptCapacity = qsizetype(24) * 1024;
/// So much is written at once.
constexpr qsizetype writtenAtOnce = qsizetype(16) * 1024;

/// A signal's line: what is before its number or flag, between that and the printer, and whether it
/// has them.
struct SignalText
{
    std::string_view begin;
    enum class Argument
    {
        None,
        Number,
        Flag,
    } argument;
    std::string_view printer; ///< empty: it has none
};
using Argument = SignalText::Argument;
constexpr std::array signalTexts{
    SignalText{R"(,"name":"availablePrintersUpdated","arguments":{)", Argument::None, {}},
    SignalText{R"(,"name":"printerErrorChangedSignal","arguments":{"printerInErrorState":)",
               Argument::Flag,
               {}},
    SignalText{R"(,"name":"statusChangedSignal","arguments":{"status":)", Argument::Number,
               R"(,"printerName":)"},
    SignalText{R"(,"name":"supplyIdChangedSignal","arguments":{)", Argument::None,
               R"("printerName":)"},
    SignalText{R"(,"name":"ribbonIdsChangedSignal","arguments":{)", Argument::None,
               R"("printerName":)"},
    SignalText{R"(,"name":"activeDefaultPrinterSetSignal","arguments":{"isVX":)", Argument::Flag,
               R"(,"activePrinterName":)"},
    SignalText{R"(,"name":"softwareVersionUpdated","arguments":{)", Argument::None,
               R"("printerName":)"},
};

/// The place of a text among those that are remembered, or that of one which it may replace.
template <typename Text, typename IsSame>
Text& placeOf(std::vector<Text>& texts, std::size_t hash, IsSame isSame)
{
    constexpr std::size_t places = 64;
    constexpr std::size_t ways = 4;
    if (texts.empty())
        texts.resize(places);
    const auto group = std::span(texts).subspan(hash % (places / ways) * ways, ways);
    if (const auto found = std::ranges::find_if(group, isSame); found != group.end())
        return *found;
    const auto unused = std::ranges::find_if(group, &Text::isUnused);
    return unused != group.end() ? *unused : group[hash / places % ways];
}

/// What is before the number of a value that the library reads.
const std::array<QByteArray, libraryValues.size()>& numberTexts()
{
    static const auto texts = [] {
        std::array<QByteArray, libraryValues.size()> all;
        std::ranges::transform(libraryValues, all.begin(), [](const char* name) {
            return QByteArray(R"({"name":")") + name + R"(","type":4,"number":)";
        });
        return all;
    }();
    return texts;
}

/// Whether a value is an identifier of a roll as printers have it: twenty digits.
bool isRoll(const PublishedValues::Value& value)
{
    constexpr qsizetype digits = 20;
    constexpr DWORD registryText = 1;
    return value.type == registryText && value.bytes.size() == digits + 1 &&
           value.known == SupplyIdentifier && value.bytes.back() == '\0' &&
           std::all_of(value.bytes.begin(), value.bytes.end() - 1, [](char character) {
               return (character >= '0' && character <= '9') ||
                      (character >= 'A' && character <= 'F');
           });
}

QString levelName(int level)
{
    return Logger::levelToString(static_cast<Logger::LogLevel>(level)).toLower();
}

/// A number in place of a text may be an address.
bool isLibraryNumber(const PublishedValues::Value& value)
{
    constexpr DWORD registryNumber = 4;
    return value.type == registryNumber && value.bytes.size() == sizeof(DWORD) &&
           (value.known == Ribbon1Identifier || value.known == Ribbon2Identifier ||
            value.known >= Mileage);
}

QByteArray objectText(const QJsonObject& object)
{
    const QByteArray text = caseLine(object);
    return text.first(text.size() - 1);
}

} // namespace

CaseSink::CaseSink(const CaseRecorderOptions& options, std::unique_ptr<CaseStore> store)
    : m_options(options)
    , m_store(std::move(store))
{
    if (!options.isPlain)
        m_redaction.emplace();
}

/// Writes at the end of the lines that have not been kept yet.
class CaseSink::Line
{
public:
    explicit Line(QByteArray& text)
        : m_text(text)
        , m_begin(text.size())
        , m_end(text.size())
    {}
    /// Without `end`, nothing is left of the line.
    ~Line() { m_text.truncate(m_end); }
    Q_DISABLE_COPY_MOVE(Line)

    Line& operator<<(std::string_view text)
    {
        char* const place = room(text.size());
        std::memcpy(place, text.data(), text.size());
        m_place += static_cast<qsizetype>(text.size());
        return *this;
    }
    Line& operator<<(const char* text) { return *this << std::string_view(text); }
    Line& operator<<(QByteArrayView text)
    {
        return *this << std::string_view(text.data(), static_cast<std::size_t>(text.size()));
    }
    Line& operator<<(const QByteArray& text) { return *this << QByteArrayView(text); }
    Line& operator<<(qint64 number)
    {
        constexpr std::size_t mostDigits = 24;
        char* const place = room(mostDigits);
        m_place += std::to_chars(place, place + mostDigits, number).ptr - place;
        return *this;
    }
    /// False when the line is too long.
    bool end()
    {
        *this << "\n";
        if (m_place > longestCaseLine)
            return false;
        m_end = m_begin + m_place;
        return true;
    }

private:
    char* room(std::size_t size)
    {
        const qsizetype wanted = m_begin + m_place + static_cast<qsizetype>(size);
        if (wanted > m_text.size()) {
            constexpr qsizetype usualLine = 256;
            m_text.resize(wanted + usualLine);
        }
        return m_text.data() + m_begin + m_place;
    }

    QByteArray& m_text;
    const qsizetype m_begin;
    qsizetype m_place = 0;
    qsizetype m_end;
};

/// A line as it may be written; empty if nothing can be kept of it, and for one that is too long.
QByteArray CaseSink::line(const QJsonObject& object)
{
    const QJsonObject safe = m_redaction ? m_redaction->redacted(object) : object;
    if (safe.isEmpty())
        return {};
    QByteArray text = caseLine(safe);
    if (text.size() > longestCaseLine)
        text.clear();
    return text;
}

void CaseSink::add(const QByteArray& text)
{
    if (text.isEmpty())
        return;
    m_text.append(text);
    ++m_textLines;
}

QByteArray CaseSink::beginning(const CaseWorld& world, const QJsonObject& records, int firstStep,
                               qint64& count)
{
    if (m_redaction)
        m_redaction->learnPrinters(world.names());
    QByteArray text;
    const auto append = [&](const QJsonObject& object) {
        const QByteArray part = line(object);
        text.append(part);
        count += part.isEmpty() ? 0 : 1;
    };
    for (const QList<QJsonObject> lines = world.beginning(); const QJsonObject& object : lines)
        append(object);
    if (!records.isEmpty())
        append(records);
    QJsonObject begun{{QStringLiteral("kind"), QStringLiteral("begun")}};
    if (firstStep > 0)
        begun.insert(QStringLiteral("n"), firstStep);
    append(begun);
    return text;
}

void CaseSink::writeHeader(bool isFromStart)
{
    add(line(
        {{QStringLiteral("kind"), QStringLiteral("case")},
         {QStringLiteral("version"), QStringLiteral("1.0")},
         {QStringLiteral("product"), QStringLiteral("VxPrinterStatus " VX_VERSION)},
         {QStringLiteral("qt"), QLatin1String(qVersion())},
         {QStringLiteral("system"), QSysInfo::prettyProductName()},
         {QStringLiteral("locale"), QLocale().name()},
         {QStringLiteral("timeZone"), QString::fromLatin1(QTimeZone::systemTimeZoneId())},
         {QStringLiteral("time"),
          m_startTime.toOffsetFromUtc(m_startTime.offsetFromUtc()).toString(Qt::ISODateWithMs)},
         {QStringLiteral("clock"), QStringLiteral("monotonic")},
         {QStringLiteral("recorder"), m_options.recorder},
         {QStringLiteral("from"),
          isFromStart ? QStringLiteral("start") : QStringLiteral("running")},
         {QStringLiteral("redacted"), !m_options.isPlain}}));
}

void CaseSink::begin(const CaseWorld& world, const CaseItem& item)
{
    m_timeBase = item.time;
    m_stepBase = item.step;
    m_lastStep = item.step;
    m_hasBegun = true;
    m_printers = world.printerCount();
    m_startTime = QDateTime::currentDateTime();
    if (!m_store) {
        const std::lock_guard lock(m_mutex);
        m_base = world;
        m_baseRecords = item.object;
        m_baseStep = item.step;
        return;
    }
    writeHeader(item.object.isEmpty());
    m_text.append(beginning(world, item.object, 0, m_textLines));
    keep(item.time);
}

// Lines ///////////////////////////////////////////////////////////////////////////////////////////

void CaseSink::appendHead(Line& line, std::string_view kind, const CaseItem& item)
{
    const qint64 time = std::max<qint64>(item.time - m_timeBase, 0);
    // Most lines are written together with others of the same millisecond.
    if (time != m_timeOfText || m_timeText.isEmpty()) {
        m_timeOfText = time;
        m_timeText.clear();
        appendSeconds(m_timeText, time);
    }
    line << R"({"kind":")" << kind << R"(","t":)" << m_timeText;
    if (item.step >= 0) {
        m_lastStep = item.step;
        line << R"(,"n":)" << qint64(relative(item.step));
    }
    if (item.at >= 0)
        line << R"(,"at":)" << qint64(relative(item.at));
}

/// A member of a line with values, as far as it may be written.
void CaseSink::appendMembers(Line& line, const char* key, const QJsonValue& value)
{
    QJsonObject object{{QStringLiteral("kind"), QStringLiteral("values")},
                       {QLatin1String(key), value}};
    if (m_redaction)
        object = m_redaction->redacted(object);
    object.remove(QStringLiteral("kind"));
    const QByteArray text = objectText(object);
    if (text.size() > 2)
        line << "," << QByteArrayView(text).sliced(1).chopped(1);
}

/// The name of a printer as JSON.
const QByteArray& CaseSink::nameText(const QString& printer)
{
    // The same text lies in few places, and most lines are about the printer of the one before.
    if (m_lastName && m_lastName->name.constData() == printer.constData())
        return m_lastName->text;
    constexpr qsizetype mostPlaces = 1024;
    if (m_namePlaces.size() > mostPlaces)
        m_namePlaces.clear();
    auto found = m_namePlaces.find(printer.constData());
    if (found == m_namePlaces.end()) {
        QByteArray& text = m_names[printer];
        if (text.isNull()) {
            QString name = printer;
            if (m_redaction)
                name = m_redaction
                           ->redacted({{QStringLiteral("kind"), QStringLiteral("faster")},
                                       {QStringLiteral("printer"), printer}})
                           .value(QLatin1String("printer"))
                           .toString();
            appendJsonText(text, name);
        }
        found = m_namePlaces.insert(printer.constData(), {printer, text});
    }
    m_lastName = &*found;
    return found->text;
}

QByteArray CaseSink::valueText(const PublishedValues::Value& value)
{
    QJsonObject object = valueObject(value);
    if (m_redaction)
        object = m_redaction
                     ->redacted({{QStringLiteral("kind"), QStringLiteral("values")},
                                 {QStringLiteral("changed"), QJsonArray{object}}})
                     .value(QLatin1String("changed"))
                     .toArray()
                     .first()
                     .toObject();
    return objectText(object);
}

void CaseSink::appendValue(Line& line, const PublishedValues::Value& value)
{
    if (isLibraryNumber(value)) {
        DWORD number = 0;
        std::memcpy(&number, value.bytes.data(), sizeof(number));
        line << numberTexts()[static_cast<std::size_t>(value.known) - 1] << qint64(number) << "}";
        return;
    }
    if (isRoll(value)) {
        line << R"({"name":"SupplyIdentifier","type":1,"text":")" << value.bytes.chopped(1)
             << "\"}";
        return;
    }
    if (!value.known || value.bytes.isNull() || value.bytes.size() > longestRemembered) {
        line << valueText(value);
        return;
    }
    ValueText& known =
        placeOf(m_valueTexts,
                fingerprint(value.bytes.data(), static_cast<std::size_t>(value.bytes.size()),
                            static_cast<quint64>(value.known)),
                [&](const ValueText& other) {
                    return other.known == value.known && other.type == value.type &&
                           other.bytes == value.bytes;
                });
    if (known.known != value.known || known.type != value.type || known.bytes != value.bytes)
        known = {value.known, value.type, value.bytes.toByteArray(), valueText(value)};
    line << known.text;
}

void CaseSink::writeValues(const CaseItem& item)
{
    Line line(m_text);
    appendHead(line, "values", item);
    line << R"(,"printer":)" << nameText(item.text);
    const PublishedValues values(item.block);
    bool hasMissing = false;
    std::string_view separator = R"(,"changed":[)";
    values.forEach([&](const PublishedValues::Value& value) {
        hasMissing = hasMissing || value.isMissing;
        if (value.isMissing)
            return;
        line << separator;
        separator = ",";
        appendValue(line, value);
    });
    if (separator == ",")
        line << "]";
    if (hasMissing) {
        QJsonArray missing;
        values.forEach([&](const PublishedValues::Value& value) {
            if (value.isMissing)
                missing.append(QString::fromUtf8(value.name));
        });
        appendMembers(line, "missing", missing);
    }
    line << R"(,"seenBy":)" << (item.isSeenByLook ? "\"look\"" : "\"library\"");
    const QJsonValue failed = item.object.value(QLatin1String("failed"));
    if (!failed.isUndefined())
        appendMembers(line, "failed", failed);
    line << "}";
    m_textLines += line.end() ? 1 : 0;
}

void CaseSink::writeSignal(const CaseItem& item)
{
    const SignalText& signal = signalTexts[item.signal];
    Line line(m_text);
    appendHead(line, "signal", item);
    line << signal.begin;
    if (signal.argument == Argument::Flag)
        line << (item.level ? "true" : "false");
    else if (signal.argument == Argument::Number)
        line << qint64(item.level);
    if (!signal.printer.empty())
        line << signal.printer << nameText(item.text);
    line << "}}";
    m_textLines += line.end() ? 1 : 0;
}

/// Where in a message the name of a printer ends that it begins with in quotation marks, as that of
/// a changed supply does; negative when it does not. The rest comes again for each printer.
qsizetype CaseSink::endOfName(const QString& message, QByteArrayView& name) const
{
    constexpr QLatin1String begin("\n \"");
    if (!message.startsWith(begin))
        return -1;
    const qsizetype end = message.indexOf(QLatin1Char('"'), begin.size());
    if (end < 0)
        return -1;
    // A name that is escaped in the message is not found here.
    const QStringView inMessage = QStringView(message).sliced(begin.size(), end - begin.size());
    if (m_lastName && m_lastName->name == inMessage) {
        name = QByteArrayView(m_lastName->text).sliced(1, m_lastName->text.size() - 2);
        return end;
    }
    const auto known = m_names.constFind(inMessage.toString());
    if (known == m_names.constEnd())
        return -1;
    name = QByteArrayView(*known).sliced(1, known->size() - 2);
    return end;
}

/// What follows the time of a line of the log.
QByteArray CaseSink::logText(const CaseItem& item)
{
    QJsonObject object{{QStringLiteral("kind"), QStringLiteral("log")},
                       {QStringLiteral("level"), levelName(item.level)},
                       {QStringLiteral("file"), QString::fromUtf8(item.file)},
                       {QStringLiteral("line"), item.line},
                       {QStringLiteral("function"), QString::fromUtf8(item.function)},
                       {QStringLiteral("message"), item.text}};
    if (m_redaction)
        object = m_redaction->redacted(object);
    object.remove(QStringLiteral("kind"));
    // "message" comes last, without its braces.
    const QJsonValue safeMessage = object.take(QStringLiteral("message"));
    QByteArray text = objectText(object);
    text = text.sliced(1, text.size() - 2);
    if (safeMessage.isString()) {
        text.append(",\"message\":");
        appendJsonText(text, safeMessage.toString());
    }
    return text;
}

void CaseSink::writeLog(const CaseItem& item)
{
    QByteArrayView name;
    const qsizetype nameEnd = endOfName(item.text, name);
    const QStringView rest =
        nameEnd < 0 ? QStringView(item.text) : QStringView(item.text).sliced(nameEnd);
    LogText& place = placeOf(
        m_logTexts,
        fingerprint(rest.data(), static_cast<std::size_t>(rest.size()) * sizeof(QChar),
                    static_cast<quint64>(item.line)),
        [&](const LogText& other) { return other.line == item.line && other.message == rest; });
    const LogText* text = &place;
    LogText unknown;
    if (place.line != item.line || place.message != rest) {
        unknown = {item.line, rest.toString(), logText(item), {}};
        bool mayComeAgain = true;
        if (nameEnd >= 0) {
            const QByteArrayView begin(R"(\n \")");
            const qsizetype found =
                unknown.before.indexOf(begin.toByteArray() + name.toByteArray() + R"(\")");
            mayComeAgain = found >= 0; // else the name was left out
            if (mayComeAgain) {
                unknown.after = unknown.before.sliced(found + begin.size() + name.size());
                unknown.before.truncate(found + begin.size());
            }
        }
        if (mayComeAgain)
            place = std::move(unknown);
        else
            text = &unknown;
    }
    if (text->before.isEmpty())
        return;
    Line line(m_text);
    appendHead(line, "log", item);
    line << "," << text->before;
    if (!text->after.isEmpty())
        line << name << text->after;
    line << "}";
    m_textLines += line.end() ? 1 : 0;
}

void CaseSink::writeLine(const CaseItem& item)
{
    QJsonObject object = item.object;
    object.insert(QStringLiteral("t"), 0);
    const QByteArray text = [&] {
        QJsonObject body = m_redaction ? m_redaction->redacted(object) : object;
        if (body.isEmpty())
            return QByteArray();
        for (const auto& key :
             {QLatin1String("kind"), QLatin1String("t"), QLatin1String("n"), QLatin1String("at")})
            body.remove(key);
        return objectText(body);
    }();
    if (text.isEmpty())
        return;
    const QByteArray kind = object.value(QLatin1String("kind")).toString().toLatin1();
    Line line(m_text);
    appendHead(line, {kind.constData(), static_cast<std::size_t>(kind.size())}, item);
    if (text.size() > 2)
        line << "," << QByteArrayView(text).sliced(1).chopped(1);
    line << "}";
    m_textLines += line.end() ? 1 : 0;
}

/// Whether there is anything to write yet.
bool CaseSink::count(const CaseItem& item)
{
    if (!m_hasBegun)
        return false;
    const auto add = [](std::atomic<qint64>& number) {
        number.store(number.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    };
    if (item.step >= 0)
        m_steps.store(relative(item.step), std::memory_order_relaxed);
    if (item.kind == CaseItem::Kind::Signal)
        add(m_signals);
    else if (item.kind == CaseItem::Kind::Log)
        add(m_logLines);
    return true;
}

void CaseSink::write(const CaseItem& item)
{
    if (!count(item))
        return;
    if (m_store)
        writeText(item);
    else
        keepInMemory(CaseItem(item));
}

void CaseSink::write(CaseItem&& item)
{
    if (!count(item))
        return;
    if (m_store)
        writeText(item);
    else
        keepInMemory(std::move(item));
}

/// Drops the oldest when there is no more room.
void CaseSink::keepInMemory(CaseItem&& item)
{
    if (!item.block.isEmpty())
        item.block.detach(); // it may lie in the memory of the session
    const std::lock_guard lock(m_mutex);
    m_itemBytes += item.bytes();
    m_items.push_back(std::move(item));
    while (m_itemBytes > m_options.ringSize && m_items.size() > 1) {
        const CaseItem& oldest = m_items.front();
        m_base.apply(oldest);
        m_baseStep = std::max(m_baseStep, oldest.step);
        m_itemBytes -= oldest.bytes();
        ++m_itemsDropped;
        m_items.pop_front();
    }
}

void CaseSink::writeText(const CaseItem& item)
{
    switch (item.kind) {
    case CaseItem::Kind::Values:
        writeValues(item);
        break;
    case CaseItem::Kind::Signal:
        writeSignal(item);
        break;
    case CaseItem::Kind::Log:
        writeLog(item);
        break;
    case CaseItem::Kind::Line:
        writeLine(item);
        break;
    default:
        break;
    }
    if (m_text.size() >= writtenAtOnce && !m_isFailing)
        keep(item.time);
}

// Keeping them ////////////////////////////////////////////////////////////////////////////////////

CaseStore::Need CaseSink::keep(qint64 time)
{
    const std::lock_guard lock(m_mutex);
    m_lastTime = time - m_timeBase;
    if (!m_store)
        return CaseStore::Need::None;
    CaseStore::Need need = CaseStore::Need::None;
    if (!m_text.isEmpty()) {
        const bool isKept = m_store->append(m_text, m_textLines);
        m_error = m_store->error();
        if (!isKept) {
            m_isFailing = true;
            m_lostSinceFailure += m_textLines;
            m_lost += m_textLines;
            m_nextAttempt = time + retryPause;
        }
    }
    need = m_store->needsBeginning(0);
    m_text.resize(0);
    if (m_text.capacity() > keptCapacity) {
        m_text = {};
        m_text.reserve(keptCapacity);
    }
    m_textLines = 0;
    return need;
}

CaseStore::Need CaseSink::flush(const CaseWorld& world, qint64 time)
{
    if (!m_hasBegun)
        return CaseStore::Need::None;
    m_printers = world.printerCount();
    if (!m_isFailing)
        return keep(time);
    m_lostSinceFailure += m_textLines;
    m_lost += m_textLines;
    m_text.resize(0);
    m_textLines = 0;
    if (time < m_nextAttempt)
        return CaseStore::Need::None;
    // What was lost has one place in the file, and what follows begins with everything as it is.
    const qint64 lost = m_lostSinceFailure;
    m_isFailing = false;
    m_text = gapLine(lost, time - m_timeBase);
    m_textLines = 1;
    m_text.append(beginning(world, {}, relative(m_lastStep), m_textLines));
    const qint64 attempted = m_textLines;
    const CaseStore::Need need = keep(time);
    if (m_isFailing) {
        m_lostSinceFailure = lost;
        m_lost -= attempted;
    } else {
        m_lostSinceFailure = 0;
    }
    return need;
}

void CaseSink::beginAnew(const CaseWorld& world, const QJsonObject& records, qint64 time)
{
    qint64 count = 0;
    const QByteArray text = beginning(world, records, relative(m_lastStep), count);
    const std::lock_guard lock(m_mutex);
    if (m_store)
        m_store->beginAnew(text, count, time - m_timeBase);
}

void CaseSink::lose(int count, const CaseWorld& world, qint64 time)
{
    m_lost += count;
    if (!m_store) {
        // What is kept now would not fit what follows.
        const std::lock_guard lock(m_mutex);
        m_itemsDropped += static_cast<qint64>(m_items.size());
        m_items.clear();
        m_itemBytes = 0;
        m_base = world;
        m_baseStep = m_lastStep;
        return;
    }
    if (!m_hasBegun || m_isFailing) {
        m_lostSinceFailure += count;
        return;
    }
    m_text.append(gapLine(count, time - m_timeBase));
    ++m_textLines;
    m_text.append(beginning(world, {}, relative(m_lastStep), m_textLines));
}

QByteArray CaseSink::endLine(qint64 time) const
{
    QByteArray text(R"({"kind":"end","t":)");
    appendSeconds(text, std::max<qint64>(time, 0));
    const auto append = [&text](const char* key, qint64 number) {
        text.append(",\"").append(key).append("\":").append(QByteArray::number(number));
    };
    append("steps", m_steps);
    append("signals", m_signals);
    append("logLines", m_logLines);
    append("faster", m_faster);
    text.append("}\n");
    return text;
}

void CaseSink::end(qint64 time, qint64 faster)
{
    m_faster = faster;
    if (!m_hasBegun || !m_store)
        return;
    if (!m_isFailing) {
        m_text.append(endLine(time - m_timeBase));
        ++m_textLines;
        keep(time);
    }
    const std::lock_guard lock(m_mutex);
    m_store->close();
}

QString CaseSink::errorString() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

CaseRecorderSummary CaseSink::summary() const
{
    const std::lock_guard lock(m_mutex);
    CaseRecorderSummary summary;
    summary.fileName = m_options.fileName;
    summary.bytes = m_store ? m_store->size() : m_itemBytes;
    summary.steps = m_steps;
    summary.signalCount = m_signals;
    summary.logLines = m_logLines;
    summary.faster = m_faster;
    summary.dropped = m_store ? m_store->dropped() : m_itemsDropped;
    summary.lost = m_lost;
    summary.printers = m_printers;
    summary.duration = std::chrono::milliseconds(m_lastTime);
    return summary;
}

QByteArray CaseSink::content() const
{
    const std::lock_guard lock(m_mutex);
    if (m_store)
        return {};
    CaseSink text(m_options, std::make_unique<CaseText>());
    text.m_timeBase = m_timeBase;
    text.m_stepBase = m_stepBase;
    text.m_lastStep = m_baseStep;
    text.m_hasBegun = true;
    text.m_startTime = m_startTime;
    text.writeHeader(m_itemsDropped == 0 && m_baseRecords.isEmpty());
    text.m_text.append(text.beginning(m_base, m_itemsDropped == 0 ? m_baseRecords : QJsonObject(),
                                      relative(m_baseStep), text.m_textLines));
    for (const CaseItem& item : m_items)
        text.write(item);
    text.m_steps = m_steps.load();
    text.m_faster = m_faster.load();
    text.m_text.append(text.endLine(m_lastTime));
    text.keep(m_lastTime);
    return text.m_store->content();
}

CaseRecorderOptions validOptions(CaseRecorderOptions options)
{
    if (!options.fileName.isEmpty())
        options.fileName = QFileInfo(options.fileName).absoluteFilePath();
    options.maxFileSize = std::max(options.maxFileSize, smallestFile);
    options.ringSize = std::max(options.ringSize, smallestRing);
    options.lookInterval = std::max(options.lookInterval, std::chrono::milliseconds::zero());
    return options;
}

namespace {

CaseStoreMaker& storeMaker()
{
    static CaseStoreMaker maker;
    return maker;
}

} // namespace

void setCaseStoreMaker(const CaseStoreMaker& maker)
{
    storeMaker() = maker;
}

std::shared_ptr<CaseSink> makeSink(const CaseRecorderOptions& options, QString& error)
{
    if (options.fileName.isEmpty())
        return std::make_shared<CaseSink>(options, nullptr);
    if (const CaseStoreMaker& make = storeMaker())
        return std::make_shared<CaseSink>(options, make(options.fileName, options.maxFileSize));
    auto file = std::make_unique<CaseFileStore>(options.fileName, options.maxFileSize);
    error = file->error();
    if (!file->isOpen())
        return nullptr;
    return std::make_shared<CaseSink>(options, std::move(file));
}

} // namespace VxKit
