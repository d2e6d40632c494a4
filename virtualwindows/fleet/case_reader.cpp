// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_changes.h"
#include "located_json.h"
#include "message_text.h"
#include "virtualwindows/recorded_case.h"
#include "whole_file.h"

#include <QtCore/QHash>

#include <algorithm>
#include <limits>
#include <utility>

namespace virtualwindows {

namespace {

constexpr int readableMajor = 1;
constexpr qsizetype mebibyte = qsizetype(1024) * 1024;
constexpr qsizetype mostBytes = 1024 * mebibyte;
constexpr qsizetype mostBytesOfALine = 4 * mebibyte;
/// A value, a change or a row of the catalogue takes a hundred times the memory of its shortest
/// text, so their number is limited besides the size of the file.
constexpr int mostEntries = 10'000'000;
/// Of a value whose bytes were left out, so that its text does not limit it.
constexpr quint32 mostBytesOfAValue = mebibyte;
constexpr qsizetype mostBytesOfAllValues = 256 * mebibyte;

/// The key's value; nothing if the key is absent or null.
std::optional<JsonPlace> given(const JsonPlace& place, const char* key)
{
    if (!place.has(key))
        return std::nullopt;
    const JsonPlace value = place.at(key);
    return value.isNull() ? std::nullopt : std::optional(value);
}

/// The entries of a list; none if the key is absent or null.
QList<JsonPlace> entriesOf(const JsonPlace& place, const char* key)
{
    const std::optional<JsonPlace> list = given(place, key);
    return list ? list->entries() : QList<JsonPlace>();
}

QString textOrNull(const JsonPlace& place, const char* key)
{
    const std::optional<JsonPlace> value = given(place, key);
    // An empty text is not null.
    return value ? QLatin1String("") + value->text() : QString();
}

int lineNumber(const JsonPlace& place)
{
    const quint32 number = place.number();
    if (number > std::numeric_limits<int>::max())
        place.fail(QStringLiteral("expected a smaller number, found ") + place.found());
    return static_cast<int>(number);
}

CallFailure readFailure(const JsonPlace& place, CallFailure::Caller caller, const QString& printer)
{
    CallFailure failure;
    failure.function = place.at("call").text();
    failure.printer = given(place, "printer") ? place.at("printer").text() : printer;
    if (const std::optional<JsonPlace> value = given(place, "value"))
        failure.value = value->text().toUtf8();
    failure.error = place.at("error").number();
    if (const std::optional<JsonPlace> after = given(place, "after"))
        failure.after = lineNumber(*after);
    failure.caller = caller;
    return failure;
}

QList<CallFailure> readFailures(const JsonPlace& line, CallFailure::Caller caller,
                                const QString& printer = {})
{
    QList<CallFailure> failures;
    const QList<JsonPlace> entries = entriesOf(line, "failed");
    for (const JsonPlace& entry : entries)
        failures.append(readFailure(entry, caller, printer));
    return failures;
}

PrinterValue readValue(const JsonPlace& place)
{
    const QByteArray name = place.at("name").nonEmptyText().toUtf8();
    const quint32 type = place.at("type").number();
    if (place.has("text")) {
        PrinterValue value = PrinterValue::text(name, place.at("text").text().toUtf8());
        value.type = type;
        return value;
    }
    if (place.has("number")) {
        PrinterValue value = PrinterValue::number(name, place.at("number").number());
        value.type = type;
        return value;
    }
    if (place.has("base64"))
        return {name, type, place.at("base64").base64Bytes()};
    if (!place.has("size"))
        place.fail(QStringLiteral(
            "expected one of the keys \"text\", \"number\", \"base64\" and \"size\""));
    // Left out when the file was made fit to be handed on.
    const quint32 size = place.at("size").number();
    if (size > mostBytesOfAValue)
        place.at("size").fail(
            QStringLiteral("expected at most %1 bytes, found %2").arg(mostBytesOfAValue).arg(size));
    return {name, type, QByteArray(static_cast<qsizetype>(size), '\0')};
}

QList<PrinterValue> readValues(const JsonPlace& line, const char* key)
{
    QList<PrinterValue> values;
    const QList<JsonPlace> entries = entriesOf(line, key);
    for (const JsonPlace& entry : entries)
        values.append(readValue(entry));
    return values;
}

FleetPrinter readPrinter(const JsonPlace& line)
{
    FleetPrinter printer;
    printer.setup.name = line.at("name").nonEmptyText();
    printer.setup.driver = textOrNull(line, "driver");
    printer.setup.port = textOrNull(line, "port");
    if (line.has("attributes"))
        printer.setup.attributes = line.at("attributes").number();
    if (line.has("status"))
        printer.setup.status = line.at("status").number();
    if (line.has("administrable"))
        printer.setup.administrable = line.at("administrable").flag();
    printer.values = readValues(line, "values");
    return printer;
}

/// Null when the job has left the queue.
std::optional<JobSetup> readJob(const JsonPlace& line)
{
    if (!given(line, "status"))
        return std::nullopt;
    const auto numberOf = [&line](const char* key) {
        const std::optional<JsonPlace> number = given(line, key);
        return number ? number->number() : 0;
    };
    JobSetup job;
    job.id = line.at("id").number();
    job.document = textOrNull(line, "document");
    job.user = textOrNull(line, "user");
    job.datatype = textOrNull(line, "datatype");
    job.pages = numberOf("pages");
    job.bytes = numberOf("bytes");
    job.status = line.at("status").number();
    return job;
}

DeviceSetup readDevice(const JsonPlace& line)
{
    DeviceSetup device;
    device.classGuid = line.at("class").text();
    device.interfaceKey = line.at("interface").text();
    if (const std::optional<JsonPlace> port = given(line, "portNumber"))
        device.portNumber = port->number();
    if (const std::optional<JsonPlace> serial = given(line, "serialNumber"))
        device.serialNumber = serial->text();
    return device;
}

/// Reads the lines of a case one after the other, and puts what belongs to a step to that step,
/// wherever in the file it is.
class CaseReader
{
public:
    void read(const LocatedJson& file, int number)
    {
        const JsonPlace line(file, file.root(), QString());
        if (!line.isObject())
            line.fail(QStringLiteral("expected an object, found ") + line.found());
        m_line = number;
        if (m_case.chapters.isEmpty()) {
            readHeader(line);
            return;
        }
        if (const std::optional<JsonPlace> time = given(line, "t"))
            m_now = std::max(m_now, std::chrono::milliseconds(qRound64(time->seconds() * 1000)));
        readLine(line, line.at("kind").text());
    }

    bool isEmpty() const { return m_case.chapters.isEmpty(); }

    Case finished()
    {
        endChapter();
        m_case.length = m_now;
        return std::move(m_case);
    }

private:
    using Caller = CallFailure::Caller;

    CaseChapter& chapter() { return m_case.chapters.last(); }

    void readHeader(const JsonPlace& line)
    {
        if (!line.at("kind").isText() || line.at("kind").text() != QLatin1String("case"))
            line.fail(QStringLiteral("expected the first line of a case file, "
                                     "{\"kind\": \"case\", …}"));
        m_case.version = line.at("version").text();
        const QStringList parts = m_case.version.split(QLatin1Char('.'));
        bool hasMajor = false;
        bool hasMinor = false;
        const int major = parts.value(0).toInt(&hasMajor);
        parts.value(1).toInt(&hasMinor);
        if (parts.size() != 2 || !hasMajor || !hasMinor)
            line.at("version").fail(QStringLiteral("expected a version such as \"1.0\", found ") +
                                    line.at("version").found());
        if (major != readableMajor)
            line.at("version").fail(
                QStringLiteral("cannot read version %1, only version %2; use a %3 program")
                    .arg(shortened(m_case.version))
                    .arg(readableMajor)
                    .arg(major > readableMajor ? QStringLiteral("newer")
                                               : QStringLiteral("older")));
        m_case.product = textOrNull(line, "product");
        m_case.locale = textOrNull(line, "locale");
        if (line.has("redacted"))
            m_case.isRedacted = line.at("redacted").flag();
        beginChapter(textOrNull(line, "from") != QLatin1String("running"));
    }

    void beginChapter(bool isFromStart)
    {
        CaseChapter next;
        next.line = m_line;
        next.at = m_now;
        next.isFromStart = isFromStart;
        m_case.chapters.append(next);
        m_stepPlaces.clear();
        m_startPlaces.clear();
        m_ahead.clear();
        m_pending.clear();
        m_beginningNames.clear();
    }

    void readLine(const JsonPlace& line, const QString& kind)
    {
        if (kind == QLatin1String("end")) {
            m_case.isCut = false;
        } else if (kind == QLatin1String("gap")) {
            endChapter();
            beginChapter(false);
        } else if (kind == QLatin1String("catalogue")) {
            readCatalogue(line);
        } else if (kind == QLatin1String("signal") || kind == QLatin1String("log")) {
            readOutput(line, kind == QLatin1String("signal"));
        } else if (!chapter().hasBegun) {
            readBeginning(line, kind);
        } else {
            readEvent(line, kind);
        }
    }

    void readBeginning(const JsonPlace& line, const QString& kind)
    {
        Fleet& fleet = chapter().beginning;
        if (kind == QLatin1String("printer")) {
            fleet.printers.append(readPrinter(line));
            const FleetPrinter& printer = fleet.printers.last();
            count(line, printer.values, 1);
            const QString key = printer.setup.name.toCaseFolded();
            if (m_beginningNames.contains(key))
                line.at("name").fail(
                    QStringLiteral("duplicate printer \"%1\"").arg(shortened(printer.setup.name)));
            m_beginningNames.insert(key, fleet.printers.size() - 1);
        } else if (kind == QLatin1String("device")) {
            fleet.devices.append(readDevice(line));
            count(line, 1);
        } else if (kind == QLatin1String("job")) {
            readBeginningsJob(line);
        } else if (kind == QLatin1String("service")) {
            fleet.spoolerState = line.at("state").number();
        } else if (kind == QLatin1String("default")) {
            fleet.defaultPrinter = textOrNull(line, "printer");
        } else if (kind == QLatin1String("begun")) {
            m_beginningNames.clear();
            chapter().hasBegun = true;
            CaseStep construction;
            construction.kind = CaseStep::Kind::Construction;
            construction.line = m_line;
            construction.at = m_now;
            if (const std::optional<JsonPlace> number = given(line, "n"))
                construction.number = lineNumber(*number);
            append(construction);
        }
    }

    void readBeginningsJob(const JsonPlace& line)
    {
        count(line, 1);
        const std::optional<JobSetup> job = readJob(line);
        const auto printer = m_beginningNames.constFind(line.at("printer").text().toCaseFolded());
        if (job && printer != m_beginningNames.cend())
            chapter().beginning.printers[*printer].jobs.append(*job);
    }

    void readEvent(const JsonPlace& line, const QString& kind)
    {
        const std::optional<JsonPlace> number = given(line, "n");
        if (kind == QLatin1String("values"))
            readValuesLine(line, number.has_value());
        else if (kind == QLatin1String("poll"))
            readStep(line, CaseStep::Kind::Poll);
        else if (kind == QLatin1String("discover"))
            readStep(line, CaseStep::Kind::Discovery);
        else if (kind == QLatin1String("started"))
            readStart(line, number.has_value());
        else if (kind == QLatin1String("failed"))
            readHostFailure(line);
        else if (readState(line, kind) && number)
            readStep(line, CaseStep::Kind::Other);
    }

    /// False if the line is of another kind.
    bool readState(const JsonPlace& line, const QString& kind)
    {
        if (kind == QLatin1String("printerAdded")) {
            const FleetPrinter printer = readPrinter(line);
            count(line, printer.values);
            change(line, [printer](Machine& machine) { case_changes::add(machine, printer); });
        } else if (kind == QLatin1String("printerRemoved")) {
            const QString name = line.at("name").text();
            change(line, [name](Machine& machine) { case_changes::remove(machine, name); });
        } else if (kind == QLatin1String("printerRenamed")) {
            const QString name = line.at("name").text();
            const QString newName = line.at("newName").nonEmptyText();
            change(line, [name, newName](Machine& machine) {
                case_changes::rename(machine, name, newName);
            });
        } else if (kind == QLatin1String("printerChanged")) {
            readPrinterChange(line);
        } else if (kind == QLatin1String("default")) {
            printerChange(
                line,
                [name = textOrNull(line, "printer")](Machine& machine) {
                    machine.setDefaultPrinter(name);
                },
                true);
        } else if (kind == QLatin1String("service")) {
            const quint32 state = line.at("state").number();
            change(
                line, [state](Machine& machine) { machine.setSpoolerState(state); },
                textOrNull(line, "printer"));
        } else if (kind == QLatin1String("job")) {
            const QString printer = line.at("printer").text();
            const quint32 id = line.at("id").number();
            change(line, [=, job = readJob(line)](Machine& machine) {
                case_changes::setJob(machine, printer, id, job);
            });
        } else {
            return false;
        }
        return true;
    }

    void readPrinterChange(const JsonPlace& line)
    {
        case_changes::PrinterChange changed;
        changed.name = line.at("name").text();
        if (line.has("attributes"))
            changed.attributes = line.at("attributes").number();
        if (line.has("status"))
            changed.status = line.at("status").number();
        if (line.has("port"))
            changed.port = textOrNull(line, "port");
        if (line.has("driver"))
            changed.driver = textOrNull(line, "driver");
        if (line.has("administrable"))
            changed.administrable = line.at("administrable").flag();
        printerChange(
            line, [changed](Machine& machine) { case_changes::apply(machine, changed); },
            !changed.administrable);
    }

    void readValuesLine(const JsonPlace& line, bool isStep)
    {
        const QString printer = line.at("printer").text();
        const QList<PrinterValue> changed = readValues(line, "changed");
        QList<QByteArray> missing;
        const QList<JsonPlace> entries = entriesOf(line, "missing");
        for (const JsonPlace& entry : entries)
            missing.append(entry.text().toUtf8());
        count(line, changed, missing.size());
        if (!isStep) {
            change(line, [=](Machine& machine) {
                case_changes::publish(machine, printer, changed, missing);
            });
            return;
        }
        CaseStep& step = readStep(line, CaseStep::Kind::Values);
        step.changed = changed;
        step.missing = missing;
    }

    CaseStep& readStep(const JsonPlace& line, CaseStep::Kind kind)
    {
        CaseStep step;
        step.kind = kind;
        step.line = m_line;
        step.at = m_now;
        step.number = lineNumber(line.at("n"));
        if (step.number <= chapter().steps.last().number)
            line.at("n").fail(QStringLiteral("expected a number above %1, found %2")
                                  .arg(chapter().steps.last().number)
                                  .arg(step.number));
        if (kind == CaseStep::Kind::Start)
            step.startedBy = lineNumber(line.at("at"));
        if (kind == CaseStep::Kind::Start || kind == CaseStep::Kind::Values ||
            kind == CaseStep::Kind::Poll) {
            step.printer = line.at("printer").text();
            step.threadFailures = readFailures(line, Caller::OtherThreads, step.printer);
        } else if (kind == CaseStep::Kind::Discovery) {
            step.hostFailures = readFailures(line, Caller::ThisThread);
            if (const std::optional<JsonPlace> at = given(line, "at"))
                step.handledBefore = lineNumber(*at);
        }
        count(line, 1 + step.threadFailures.size() + step.hostFailures.size());
        return append(step);
    }

    void readStart(const JsonPlace& line, bool isStep)
    {
        if (isStep) {
            const CaseStep& step = readStep(line, CaseStep::Kind::Start);
            m_startPlaces.insert(step.printer, chapter().steps.size() - 1);
            return;
        }
        CaseStart start;
        start.line = m_line;
        start.printer = line.at("printer").text();
        start.failures = readFailures(line, Caller::OtherThreads, start.printer);
        count(line, 1 + start.failures.size());
        // What failed after its first read is on a line of its own.
        if (const auto place = m_startPlaces.constFind(start.printer);
            place != m_startPlaces.cend()) {
            chapter().steps[*place].threadFailures += start.failures;
            return;
        }
        QList<CaseStart>& starts = stepOf(line).starts;
        const auto known = std::ranges::find(starts, start.printer, &CaseStart::printer);
        if (known == starts.end())
            starts.append(start);
        else
            known->failures += start.failures;
    }

    void readHostFailure(const JsonPlace& line)
    {
        count(line, 1);
        stepOf(line).hostFailures.append(readFailure(line, Caller::ThisThread, {}));
    }

    void readCatalogue(const JsonPlace& line)
    {
        if (!m_case.catalogue)
            m_case.catalogue.emplace();
        const std::optional<JsonPlace> tables = given(line, "tables");
        if (!tables)
            return;
        const QStringList names = tables->keys();
        for (const QString& name : names) {
            const QList<JsonPlace> rows = tables->at(name.toUtf8()).entries();
            count(line, rows.size());
            for (const JsonPlace& row : rows) {
                CatalogueRow read{m_line, name, {}};
                const QStringList columns = row.keys();
                for (const QString& column : columns) {
                    const JsonPlace value = row.at(column.toUtf8());
                    read.columns.insert(column, value.isObject() ? value.at("base64").base64Bytes()
                                                                 : value.variant());
                }
                m_case.catalogue->append(read);
            }
        }
    }

    void readOutput(const JsonPlace& line, bool isSignal)
    {
        count(line, 1);
        CaseOutput output;
        output.line = m_line;
        output.at = m_now;
        if (isSignal) {
            output.kind = CaseOutput::Kind::Signal;
            output.name = line.at("name").text();
            if (const std::optional<JsonPlace> arguments = given(line, "arguments")) {
                const QStringList names = arguments->keys();
                for (const QString& name : names)
                    output.arguments.insert(name, arguments->at(name.toUtf8()).variant());
            }
        } else {
            output.kind = CaseOutput::Kind::LogLine;
            output.level = textOrNull(line, "level");
            output.sourceFile = textOrNull(line, "file");
            if (const std::optional<JsonPlace> number = given(line, "line"))
                output.sourceLine = lineNumber(*number);
            output.function = textOrNull(line, "function");
            output.message = textOrNull(line, "message");
        }
        chapter().outputs.append(output);
    }

    /// What belongs to a step that has not been read yet.
    struct Ahead
    {
        QList<CaseChange> changes;
        QList<CaseStart> starts;
        QList<CallFailure> hostFailures;
    };

    /// The step that the key "at" names, or where to keep what belongs to it.
    struct StepParts
    {
        QList<CaseStart>& starts;
        QList<CallFailure>& hostFailures;
    };
    StepParts stepOf(const JsonPlace& line)
    {
        const int number = lineNumber(line.at("at"));
        const auto place = m_stepPlaces.constFind(number);
        if (place == m_stepPlaces.cend()) {
            Ahead& ahead = m_ahead[number];
            return {ahead.starts, ahead.hostFailures};
        }
        CaseStep& step = chapter().steps[*place];
        return {step.starts, step.hostFailures};
    }

    void change(const JsonPlace& line, const std::function<void(Machine&)>& apply,
                const QString& firstAskedBy = {}, bool isOfReports = false)
    {
        count(line, 1);
        const CaseChange entry{m_line, m_now, apply, firstAskedBy, isOfReports};
        const std::optional<JsonPlace> at = given(line, "at");
        if (!at) {
            m_pending.append(entry);
            return;
        }
        const int number = lineNumber(*at);
        const auto place = m_stepPlaces.constFind(number);
        if (place == m_stepPlaces.cend())
            m_ahead[number].changes.append(entry);
        else
            chapter().steps[*place].before.append(entry);
    }

    /// Of a printer, or the name of one. A printer that was added or got its name after the step
    /// that the line belongs to is not known by it there, so the change is made here as well.
    void printerChange(const JsonPlace& line, const std::function<void(Machine&)>& apply,
                       bool isOfReports)
    {
        const std::optional<JsonPlace> at = given(line, "at");
        change(line, apply, {}, at && isOfReports);
        if (at && m_stepPlaces.contains(lineNumber(*at)))
            m_pending.append({m_line, m_now, apply, {}, false});
    }

    CaseStep& append(CaseStep step)
    {
        const Ahead ahead = m_ahead.take(step.number);
        step.before = std::exchange(m_pending, {}) + ahead.changes;
        std::ranges::stable_sort(step.before, {}, &CaseChange::line);
        step.starts += ahead.starts;
        step.hostFailures += ahead.hostFailures;
        m_stepPlaces.insert(step.number, chapter().steps.size());
        chapter().steps.append(step);
        return chapter().steps.last();
    }

    void endChapter()
    {
        if (!isEmpty())
            chapter().after = std::exchange(m_pending, {});
    }

    void count(const JsonPlace& line, const QList<PrinterValue>& values, qsizetype more = 0)
    {
        count(line, values.size() + more);
        for (const PrinterValue& value : values)
            m_bytes += value.data.size();
        if (m_bytes > mostBytesOfAllValues)
            line.fail(QStringLiteral("expected at most %1 MiB in all values")
                          .arg(mostBytesOfAllValues / mebibyte));
    }

    void count(const JsonPlace& line, qsizetype entries)
    {
        m_entries += entries;
        if (m_entries > mostEntries)
            line.fail(QStringLiteral("expected at most %1 events and values").arg(mostEntries));
    }

    Case m_case;
    int m_line = 0;
    std::chrono::milliseconds m_now{};
    qsizetype m_entries = 0;
    qsizetype m_bytes = 0;
    QHash<QString, qsizetype> m_beginningNames; ///< the printers' places, by name
    QHash<int, qsizetype> m_stepPlaces;         ///< in the chapter, by number
    QHash<QString, qsizetype> m_startPlaces;    ///< in the chapter, of the last one of a printer
    QHash<int, Ahead> m_ahead;                  ///< by the number of the step
    QList<CaseChange> m_pending;                ///< before the next step
};

} // namespace

bool isCaseFile(const QString& fileName)
{
    return fileName.endsWith(QLatin1String(".vxcase"), Qt::CaseInsensitive);
}

Case parseCase(const QByteArray& text, const QString& name)
{
    CaseReader reader;
    int number = 0;
    for (qsizetype begin = 0; begin < text.size();) {
        ++number;
        const qsizetype lineFeed = text.indexOf('\n', begin);
        const qsizetype end = lineFeed < 0 ? text.size() : lineFeed;
        const QByteArray line = QByteArray::fromRawData(text.constData() + begin, end - begin);
        begin = end + 1;
        if (line.trimmed().isEmpty())
            continue;
        if (line.size() > mostBytesOfALine)
            throw FleetError(escaped(QStringLiteral("%1:%2: expected a line of at most %3 MiB")
                                         .arg(name)
                                         .arg(number)
                                         .arg(mostBytesOfALine / mebibyte)));
        std::optional<LocatedJson> json;
        try {
            json.emplace(line, name, number);
        } catch (const FleetError&) {
            // The recording was interrupted while the last line was written.
            if (lineFeed < 0 && !reader.isEmpty())
                break;
            throw;
        }
        reader.read(*json, number);
    }
    if (reader.isEmpty())
        throw FleetError(escaped(QStringLiteral("%1:1: expected the first line of a case file, "
                                                "{\"kind\": \"case\", …}")
                                     .arg(name)));
    return reader.finished();
}

Case readCase(const QString& fileName)
{
    return parseCase(readWholeFile(fileName, mostBytes), fileName);
}

} // namespace virtualwindows
