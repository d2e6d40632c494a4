// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_redaction.h"

#include "case_log_message.h"
#include "case_pseudonyms.h"
#include "case_values.h"
#include "ordinary_names.h"
#include "plain_text.h"

#include <windows_printer_info.h>

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QTimeZone>

#include <algorithm>
#include <array>
#include <span>

namespace VxKit {

namespace {

using namespace plain_text;

constexpr std::array callNames{
    QLatin1String("AddPrinterW"),
    QLatin1String("CloseHandle"),
    QLatin1String("ClosePrinter"),
    QLatin1String("CloseServiceHandle"),
    QLatin1String("CreateEventW"),
    QLatin1String("DeletePrinter"),
    QLatin1String("EndDocPrinter"),
    QLatin1String("EndPagePrinter"),
    QLatin1String("EnumJobsW"),
    QLatin1String("EnumPrinterDataW"),
    QLatin1String("EnumPrintersW"),
    QLatin1String("FindClosePrinterChangeNotification"),
    QLatin1String("FindFirstPrinterChangeNotification"),
    QLatin1String("FindNextPrinterChangeNotification"),
    QLatin1String("FreePrinterNotifyInfo"),
    QLatin1String("GetDefaultPrinterW"),
    QLatin1String("GetJobW"),
    QLatin1String("GetPrinterDataA"),
    QLatin1String("GetPrinterDataW"),
    QLatin1String("GetPrinterW"),
    QLatin1String("OpenPrinterA"),
    QLatin1String("OpenPrinterW"),
    QLatin1String("OpenSCManagerW"),
    QLatin1String("OpenServiceW"),
    QLatin1String("QueryServiceStatus"),
    QLatin1String("RegistryKey"),
    QLatin1String("ResetEvent"),
    QLatin1String("SetDefaultPrinterW"),
    QLatin1String("SetEvent"),
    QLatin1String("SetJobW"),
    QLatin1String("SetPrinterDataA"),
    QLatin1String("SetPrinterDataW"),
    QLatin1String("SetPrinterW"),
    QLatin1String("StartDocPrinterA"),
    QLatin1String("StartDocPrinterW"),
    QLatin1String("StartPagePrinter"),
    QLatin1String("WaitForMultipleObjects"),
    QLatin1String("WaitForSingleObject"),
    QLatin1String("WritePrinter"),
};
constexpr std::array signalNames{
    QLatin1String("availablePrintersUpdated"), QLatin1String("printerErrorChangedSignal"),
    QLatin1String("statusChangedSignal"),      QLatin1String("supplyIdChangedSignal"),
    QLatin1String("ribbonIdsChangedSignal"),   QLatin1String("activeDefaultPrinterSetSignal"),
    QLatin1String("softwareVersionUpdated"),
};
constexpr std::array dataTypes{
    QLatin1String("RAW"),           QLatin1String("RAW [FF appended]"),
    QLatin1String("RAW [FF auto]"), QLatin1String("NT EMF 1.003"),
    QLatin1String("NT EMF 1.006"),  QLatin1String("NT EMF 1.007"),
    QLatin1String("NT EMF 1.008"),  QLatin1String("TEXT"),
    QLatin1String("XPS_PASS"),      QLatin1String("XPS2GDI"),
};
constexpr std::array logLevels{
    QLatin1String("trace"),   QLatin1String("debug"), QLatin1String("info"),
    QLatin1String("warning"), QLatin1String("error"), QLatin1String("fatal"),
};
/// The words that names of systems consist of. Others, such as that of an image that a company has
/// made for itself, are left out.
constexpr std::array systemWords{
    QLatin1String("Windows"),  QLatin1String("Microsoft"), QLatin1String("Server"),
    QLatin1String("Version"),  QLatin1String("R2"),        QLatin1String("LTSC"),
    QLatin1String("Linux"),    QLatin1String("GNU/Linux"), QLatin1String("Debian"),
    QLatin1String("Ubuntu"),   QLatin1String("LTS"),       QLatin1String("Fedora"),
    QLatin1String("Red"),      QLatin1String("Hat"),       QLatin1String("Enterprise"),
    QLatin1String("openSUSE"), QLatin1String("Leap"),      QLatin1String("Arch"),
    QLatin1String("Alpine"),   QLatin1String("Wine"),      QLatin1String("on"),
    QLatin1String("macOS"),    QLatin1String("bookworm"),  QLatin1String("trixie"),
};
constexpr std::array labelTypes{QLatin1String("continuous"), QLatin1String("die-cut"),
                                QLatin1String("sleeve"), QLatin1String("tag")};
constexpr std::array ribbonTypes{QLatin1String("wax"), QLatin1String("resin"),
                                 QLatin1String("wax-resin"), QLatin1String("metallic resin")};
constexpr std::array models{QLatin1String("*"),        QLatin1String("Alder"),
                            QLatin1String("AlderMax"), QLatin1String("BirchMax"),
                            QLatin1String("CedarMax"), QLatin1String("Generic")};
constexpr std::array plainPorts{QLatin1String("FILE:"),    QLatin1String("NUL:"),
                                QLatin1String("nul:"),     QLatin1String("PORTPROMPT:"),
                                QLatin1String("XPSPort:"), QLatin1String("SHRFAX:")};

bool isOneOf(const QString& text, std::span<const QLatin1String> texts)
{
    return std::ranges::find(texts, text) != texts.end();
}

/// As a name of a supply in the maker's price list: "VT-400-WH", "RP-43-YMCK", "DN-2UP-WH".
bool isListedSku(const QString& text)
{
    const QStringList parts = text.split(u'-');
    if (parts.size() != 3 || parts.first().size() != 2)
        return false;
    const QString& middle = parts.at(1);
    const bool isSize = isDigits(middle, 2, 6) ||
                        (isDigits(middle.first(std::min<qsizetype>(1, middle.size())), 1, 1) &&
                         middle.endsWith(QLatin1String("UP")) && middle.size() == 3);
    return isSize && isCapitals(parts.first(), 2, 2) && isCapitals(parts.last(), 2, 4);
}

bool isGuid(const QString& text)
{
    constexpr qsizetype size = 38;
    if (text.size() != size || !text.startsWith(u'{') || !text.endsWith(u'}'))
        return false;
    const QStringList parts = text.sliced(1, size - 2).split(u'-');
    constexpr std::array<qsizetype, 5> sizes{8, 4, 4, 4, 12};
    return std::ranges::equal(parts, sizes, [](const QString& part, qsizetype length) {
        return isHex(part, length, length);
    });
}

/// "VID_3E7A&PID_0102", as far as it is in a device's name.
QString usbNumbers(const QString& key)
{
    QString numbers;
    for (const QLatin1String token : {QLatin1String("VID_"), QLatin1String("PID_")}) {
        constexpr qsizetype digits = 4;
        const qsizetype place = key.indexOf(token, 0, Qt::CaseInsensitive);
        if (place < 0)
            continue;
        const QString number = key.mid(place + token.size(), digits);
        if (isHex(number, digits, digits))
            numbers +=
                (numbers.isEmpty() ? QString() : QStringLiteral("&")) + token + number.toUpper();
    }
    return numbers;
}

bool isColour(const QString& text)
{
    return text.startsWith(u'#') && isHex(text.sliced(1), 6, 6);
}

bool isLocale(const QString& text)
{
    QStringList parts = QString(text).replace(u'-', u'_').split(u'_');
    if (parts.size() > 3 || text == QLatin1String("C"))
        return text == QLatin1String("C");
    const auto isLetters = [](const QString& part, qsizetype least, qsizetype most) {
        return isCapitals(part.toUpper(), least, most);
    };
    if (!isLetters(parts.takeFirst(), 2, 3))
        return false;
    return std::ranges::all_of(parts, [&](const QString& part) {
        return isLetters(part, 2, 2) || isLetters(part, 4, 4) || isDigits(part, 3, 3);
    });
}

} // namespace

class CaseRedaction::Private
{
public:
    using Rule = QJsonValue (Private::*)(const QJsonValue&);
    struct Field
    {
        QLatin1String name;
        Rule rule;
    };

    QJsonObject redacted(const QJsonObject& line);

    CasePseudonyms names;

private:
    static std::span<const Field> fieldsOf(const QString& kind);
    QJsonObject withFields(const QJsonObject& object, std::span<const Field> fields);
    template <typename Keep>
    static QJsonValue kept(const QJsonValue& value, Keep keep);
    template <typename Change>
    static QJsonValue changed(const QJsonValue& value, Change change);
    QJsonValue elements(const QJsonValue& value, Rule rule);

    // clang-format off
    QJsonValue number(const QJsonValue& value);
    QJsonValue flag(const QJsonValue& value);
    QJsonValue isRedacted(const QJsonValue& /*value*/)   { return true; }
    QJsonValue version(const QJsonValue& value)          { return kept(value, isVersionNumber); }
    QJsonValue product(const QJsonValue& value);
    QJsonValue system(const QJsonValue& value);
    QJsonValue locale(const QJsonValue& value)           { return kept(value, isLocale); }
    QJsonValue timeZone(const QJsonValue& value);
    QJsonValue time(const QJsonValue& value);
    QJsonValue clock(const QJsonValue& value);
    QJsonValue recorder(const QJsonValue& value);
    QJsonValue beginning(const QJsonValue& value);
    QJsonValue seer(const QJsonValue& value);
    QJsonValue level(const QJsonValue& value);
    QJsonValue call(const QJsonValue& value)             { return keptOneOf(value, callNames); }
    QJsonValue signalName(const QJsonValue& value)       { return keptOneOf(value, signalNames); }
    QJsonValue printer(const QJsonValue& value);
    QJsonValue driver(const QJsonValue& value);
    QJsonValue port(const QJsonValue& value);
    QJsonValue deviceClass(const QJsonValue& value);
    QJsonValue deviceInterface(const QJsonValue& value);
    QJsonValue serialNumber(const QJsonValue& value);
    QJsonValue catalogueFile(const QJsonValue& value);
    QJsonValue tables(const QJsonValue& value);
    QJsonValue sku(const QJsonValue& value);
    QJsonValue colour(const QJsonValue& value)           { return kept(value, isColour); }
    QJsonValue name(const QJsonValue& value);
    QJsonValue key(const QJsonValue& value)              { return pseudonym(value, "Key"); }
    QJsonValue labelType(const QJsonValue& value)        { return keptOneOf(value, labelTypes); }
    QJsonValue ribbonType(const QJsonValue& value);
    QJsonValue model(const QJsonValue& value);
    QJsonValue firmware(const QJsonValue& value);
    QJsonValue user(const QJsonValue& value)             { return pseudonym(value, "User"); }
    QJsonValue document(const QJsonValue& value)         { return pseudonym(value, "Document"); }
    QJsonValue dataType(const QJsonValue& value);
    QJsonValue values(const QJsonValue& value)           { return elements(value, &Private::printerValue); }
    QJsonValue printerValue(const QJsonValue& value);
    QJsonValue valueName(const QJsonValue& value);
    QJsonValue valueNames(const QJsonValue& value)       { return elements(value, &Private::valueName); }
    QJsonValue failure(const QJsonValue& value);
    QJsonValue failures(const QJsonValue& value)         { return elements(value, &Private::failure); }
    QJsonValue record(const QJsonValue& value);
    QJsonValue records(const QJsonValue& value)          { return elements(value, &Private::record); }
    QJsonValue arguments(const QJsonValue& value);
    // clang-format on

    QJsonValue pseudonym(const QJsonValue& value, const char* what);
    static QJsonValue keptOneOf(const QJsonValue& value, std::span<const QLatin1String> texts);
    QString driverFor(const QString& text);
    QString skuFor(const QString& text);
    QString nameFor(const QString& text);
    QJsonObject logLine(const QJsonObject& line);
};

// What may be kept of each line
// ////////////////////////////////////////////////////////////////////

std::span<const CaseRedaction::Private::Field> CaseRedaction::Private::fieldsOf(const QString& kind)
{
    using P = Private;
    static constexpr Field t{QLatin1String("t"), &P::number};
    static constexpr Field n{QLatin1String("n"), &P::number};
    static constexpr Field at{QLatin1String("at"), &P::number};
    static constexpr Field attributes{QLatin1String("attributes"), &P::number};
    static constexpr Field status{QLatin1String("status"), &P::number};
    static constexpr Field driver{QLatin1String("driver"), &P::driver};
    static constexpr Field port{QLatin1String("port"), &P::port};
    static constexpr Field administrable{QLatin1String("administrable"), &P::flag};
    static constexpr Field named{QLatin1String("name"), &P::printer};
    static constexpr Field printer{QLatin1String("printer"), &P::printer};
    static constexpr Field failed{QLatin1String("failed"), &P::failures};

    static constexpr Field header[]{
        {QLatin1String("version"), &P::version},    {QLatin1String("product"), &P::product},
        {QLatin1String("qt"), &P::version},         {QLatin1String("system"), &P::system},
        {QLatin1String("locale"), &P::locale},      {QLatin1String("timeZone"), &P::timeZone},
        {QLatin1String("time"), &P::time},          {QLatin1String("clock"), &P::clock},
        {QLatin1String("recorder"), &P::recorder},  {QLatin1String("from"), &P::beginning},
        {QLatin1String("redacted"), &P::isRedacted}};
    static constexpr Field printerFields[]{
        t,    n,          at,     named,         driver,
        port, attributes, status, administrable, {QLatin1String("values"), &P::values}};
    static constexpr Field device[]{t,
                                    n,
                                    at,
                                    {QLatin1String("class"), &P::deviceClass},
                                    {QLatin1String("interface"), &P::deviceInterface},
                                    {QLatin1String("portNumber"), &P::number},
                                    {QLatin1String("serialNumber"), &P::serialNumber}};
    static constexpr Field service[]{t, n, at, printer, {QLatin1String("state"), &P::number}};
    static constexpr Field defaultPrinter[]{t, n, at, printer};
    static constexpr Field catalogue[]{t,
                                       n,
                                       at,
                                       {QLatin1String("file"), &P::catalogueFile},
                                       {QLatin1String("schema"), &P::number},
                                       {QLatin1String("tables"), &P::tables}};
    static constexpr Field recordFields[]{t, {QLatin1String("printers"), &P::records}};
    static constexpr Field begun[]{t, n};
    static constexpr Field removed[]{t, n, at, named};
    static constexpr Field renamed[]{t, n, at, named, {QLatin1String("newName"), &P::printer}};
    static constexpr Field values[]{t,
                                    n,
                                    at,
                                    printer,
                                    {QLatin1String("changed"), &P::values},
                                    {QLatin1String("missing"), &P::valueNames},
                                    {QLatin1String("seenBy"), &P::seer},
                                    failed};
    static constexpr Field thread[]{t, n, at, printer, failed};
    static constexpr Field failure[]{t,
                                     n,
                                     at,
                                     {QLatin1String("call"), &P::call},
                                     printer,
                                     {QLatin1String("value"), &P::valueName},
                                     {QLatin1String("error"), &P::number},
                                     {QLatin1String("after"), &P::number}};
    static constexpr Field job[]{t,
                                 n,
                                 at,
                                 printer,
                                 {QLatin1String("id"), &P::number},
                                 {QLatin1String("document"), &P::document},
                                 {QLatin1String("user"), &P::user},
                                 {QLatin1String("datatype"), &P::dataType},
                                 {QLatin1String("pages"), &P::number},
                                 {QLatin1String("bytes"), &P::number},
                                 status};
    static constexpr Field gap[]{
        t, {QLatin1String("lines"), &P::number}, {QLatin1String("until"), &P::number}};
    static constexpr Field signal[]{
        t, {QLatin1String("name"), &P::signalName}, {QLatin1String("arguments"), &P::arguments}};
    static constexpr Field log[]{t, {QLatin1String("level"), &P::level}};
    static constexpr Field end[]{t,
                                 {QLatin1String("steps"), &P::number},
                                 {QLatin1String("signals"), &P::number},
                                 {QLatin1String("logLines"), &P::number},
                                 {QLatin1String("faster"), &P::number}};

    struct Kind
    {
        QLatin1String name;
        std::span<const Field> fields;
    };
    static constexpr Kind kinds[]{
        {QLatin1String("case"), header},
        {QLatin1String("printer"), printerFields},
        {QLatin1String("device"), device},
        {QLatin1String("service"), service},
        {QLatin1String("default"), defaultPrinter},
        {QLatin1String("catalogue"), catalogue},
        {QLatin1String("records"), recordFields},
        {QLatin1String("begun"), begun},
        {QLatin1String("printerAdded"), printerFields},
        {QLatin1String("printerRemoved"), removed},
        {QLatin1String("printerRenamed"), renamed},
        {QLatin1String("printerChanged"), printerFields},
        {QLatin1String("values"), values},
        {QLatin1String("poll"), thread},
        {QLatin1String("discover"), thread},
        {QLatin1String("started"), thread},
        {QLatin1String("failed"), failure},
        {QLatin1String("job"), job},
        {QLatin1String("gap"), gap},
        {QLatin1String("faster"), defaultPrinter},
        {QLatin1String("signal"), signal},
        {QLatin1String("log"), log},
        {QLatin1String("end"), end},
    };
    const auto* const found = std::ranges::find(kinds, kind, &Kind::name);
    return found == std::end(kinds) ? std::span<const Field>() : found->fields;
}

QJsonObject CaseRedaction::Private::withFields(const QJsonObject& object,
                                               std::span<const Field> fields)
{
    QJsonObject result;
    for (const Field& field : fields) {
        const QJsonValue value = object.value(field.name);
        if (value.isUndefined())
            continue;
        // No rule finds a text in null.
        const QJsonValue safe = value.isNull() ? value : (this->*field.rule)(value);
        if (!safe.isUndefined())
            result.insert(field.name, safe);
    }
    return result;
}

QJsonObject CaseRedaction::Private::redacted(const QJsonObject& line)
{
    const QString kind = line.value(QLatin1String("kind")).toString();
    const std::span<const Field> fields = fieldsOf(kind);
    if (fields.empty())
        return {};
    QJsonObject result = withFields(line, fields);
    // A failure without its call, and a signal without its name, say nothing.
    const bool isNamed = (kind != QLatin1String("failed") || result.contains(u"call")) &&
                         (kind != QLatin1String("signal") || result.contains(u"name"));
    if (!isNamed)
        return {};
    if (kind == QLatin1String("case"))
        result.insert(QLatin1String("redacted"), true);
    if (kind == QLatin1String("log")) {
        const QJsonObject place = logLine(line);
        for (auto member = place.begin(); member != place.end(); ++member)
            result.insert(member.key(), member.value());
    }
    result.insert(QLatin1String("kind"), kind);
    return result;
}

// Rules ///////////////////////////////////////////////////////////////////////////////////////////
// A rule answers what may be written in place of a value; undefined when nothing may.

template <typename Keep>
QJsonValue CaseRedaction::Private::kept(const QJsonValue& value, Keep keep)
{
    return value.isString() && keep(value.toString()) ? value : QJsonValue::Undefined;
}

template <typename Change>
QJsonValue CaseRedaction::Private::changed(const QJsonValue& value, Change change)
{
    if (!value.isString())
        return QJsonValue::Undefined;
    const QString text = value.toString();
    return text.isEmpty() ? text : change(text);
}

QJsonValue CaseRedaction::Private::elements(const QJsonValue& value, Rule rule)
{
    if (!value.isArray())
        return QJsonValue::Undefined;
    QJsonArray result;
    const QJsonArray all = value.toArray();
    for (const QJsonValue& each : all) {
        const QJsonValue safe = (this->*rule)(each);
        if (!safe.isUndefined())
            result.append(safe);
    }
    return result;
}

QJsonValue CaseRedaction::Private::keptOneOf(const QJsonValue& value,
                                             std::span<const QLatin1String> texts)
{
    return kept(value, [texts](const QString& text) { return isOneOf(text, texts); });
}

/// The name of a colour or of a material.
QString CaseRedaction::Private::nameFor(const QString& text)
{
    return isOrdinaryName(text) ? text : names.of("Name", text);
}

QJsonValue CaseRedaction::Private::name(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) { return nameFor(text); });
}

QJsonValue CaseRedaction::Private::pseudonym(const QJsonValue& value, const char* what)
{
    return changed(value, [&](const QString& text) { return names.of(what, text); });
}

QJsonValue CaseRedaction::Private::number(const QJsonValue& value)
{
    return value.isDouble() ? value : QJsonValue::Undefined;
}

QJsonValue CaseRedaction::Private::flag(const QJsonValue& value)
{
    return value.isBool() ? value : QJsonValue::Undefined;
}

QJsonValue CaseRedaction::Private::product(const QJsonValue& value)
{
    constexpr QLatin1String name("VxPrinterStatus ");
    return kept(value, [name](const QString& text) {
        return text.startsWith(name) && isVersionNumber(text.sliced(name.size()));
    });
}

QJsonValue CaseRedaction::Private::system(const QJsonValue& value)
{
    return changed(value, [](const QString& text) {
        QStringList words = text.split(u' ', Qt::SkipEmptyParts);
        words.removeIf([](QString word) {
            word.remove(u'(').remove(u')');
            const QString release = QString(word).replace(u'H', u'.');
            return !isOneOf(word, systemWords) && !isVersionNumber(release);
        });
        return words.join(u' ');
    });
}

QJsonValue CaseRedaction::Private::timeZone(const QJsonValue& value)
{
    return kept(value, [](const QString& text) {
        constexpr qsizetype longest = 64;
        // Qt knows the usual ones itself, and the system the others.
        const QByteArray id = text.toUtf8();
        return text.size() <= longest && (!QTimeZone::ianaIdToWindowsId(id).isEmpty() ||
                                          QTimeZone::isTimeZoneIdAvailable(id));
    });
}

QJsonValue CaseRedaction::Private::time(const QJsonValue& value)
{
    return kept(value, [](const QString& text) {
        const auto belongs = [](QChar character) {
            return isDigits(QString(character), 1, 1) ||
                   QStringLiteral("-:.+TZ").contains(character);
        };
        return std::ranges::all_of(text, belongs) &&
               QDateTime::fromString(text, Qt::ISODateWithMs).isValid();
    });
}

QJsonValue CaseRedaction::Private::clock(const QJsonValue& value)
{
    static constexpr std::array texts{QLatin1String("monotonic")};
    return keptOneOf(value, texts);
}

QJsonValue CaseRedaction::Private::recorder(const QJsonValue& value)
{
    static constexpr std::array texts{QLatin1String("vxprintmon"), QLatin1String("host")};
    return keptOneOf(value, texts);
}

QJsonValue CaseRedaction::Private::beginning(const QJsonValue& value)
{
    static constexpr std::array texts{QLatin1String("start"), QLatin1String("running")};
    return keptOneOf(value, texts);
}

QJsonValue CaseRedaction::Private::seer(const QJsonValue& value)
{
    static constexpr std::array texts{QLatin1String("library"), QLatin1String("look")};
    return keptOneOf(value, texts);
}

QJsonValue CaseRedaction::Private::level(const QJsonValue& value)
{
    return kept(value, [](const QString& text) { return isOneOf(text.toLower(), logLevels); });
}

QJsonValue CaseRedaction::Private::printer(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) { return names.ofPrinter(text); });
}

QJsonValue CaseRedaction::Private::driver(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) { return driverFor(text); });
}

/// A driver of the same model, as far as the library tells models apart.
QString CaseRedaction::Private::driverFor(const QString& text)
{
    using VXPrinting::PrinterType;
    const PrinterType type = WindowsPrinterInfo::printerType(text);
    if (text.isEmpty() || VXPrinting::isSupported(type))
        return text;
    return (type == PrinterType::Generic ? QStringLiteral("Stratamark ") : QString()) +
           names.of("Driver", text);
}

/// A port on which the library finds the same: the number of a USB port, or that the printer is in
/// a network.
QJsonValue CaseRedaction::Private::port(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        const auto isNumbered = [&text](QLatin1String name, qsizetype end) {
            return text.startsWith(name) &&
                   isDigits(text.mid(name.size(), text.size() - name.size() - end), 1, 4);
        };
        const bool isColon = text.endsWith(u':');
        if (isNumbered(QLatin1String("USB"), 0) || isOneOf(text, plainPorts) ||
            (isColon &&
             (isNumbered(QLatin1String("LPT"), 1) || isNumbered(QLatin1String("COM"), 1))))
            return text;
        constexpr qsizetype partsOfAnAddress = 4;
        const QString name = names.of("Port", text);
        return QString(text).remove(QLatin1String("USB")).split(u'.').size() == partsOfAnAddress
                   ? QStringLiteral("0.0.0.") + name.section(u' ', 1)
                   : name;
    });
}

QJsonValue CaseRedaction::Private::deviceClass(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        return isGuid(text) ? text : names.of("Class", text);
    });
}

QJsonValue CaseRedaction::Private::deviceInterface(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        const QString numbers = usbNumbers(text);
        const QString name = names.of("Interface", text);
        return numbers.isEmpty() ? name : QStringLiteral("##?#USB#%1#%2").arg(numbers, name);
    });
}

QJsonValue CaseRedaction::Private::serialNumber(const QJsonValue& value)
{
    // It may be a number in the registry.
    return pseudonym(value.isDouble() ? QJsonValue(value.toVariant().toString()) : value, "Serial");
}

QJsonValue CaseRedaction::Private::sku(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) { return skuFor(text); });
}

QString CaseRedaction::Private::skuFor(const QString& text)
{
    if (text.isEmpty() || text == VXPrinting::nothingLoaded || isListedSku(text))
        return text;
    return names.of("SKU", text).replace(u' ', u'-');
}

QJsonValue CaseRedaction::Private::ribbonType(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        return isOneOf(text, ribbonTypes) ? text : names.of("Type", text);
    });
}

QJsonValue CaseRedaction::Private::model(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        return isOneOf(text, models) ? text : names.of("Model", text);
    });
}

QJsonValue CaseRedaction::Private::firmware(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        return isFirmwareVersion(text) ? text : names.of("Text", text);
    });
}

QJsonValue CaseRedaction::Private::dataType(const QJsonValue& value)
{
    return changed(value, [this](const QString& text) {
        return isOneOf(text, dataTypes) ? text : names.of("Datatype", text);
    });
}

QJsonValue CaseRedaction::Private::catalogueFile(const QJsonValue& value)
{
    return changed(value, [](const QString&) { return QStringLiteral("roll.db"); });
}

QJsonValue CaseRedaction::Private::tables(const QJsonValue& value)
{
    using P = Private;
    static constexpr Field id{QLatin1String("id"), &P::number};
    static constexpr Field nameId{QLatin1String("name_id"), &P::number};
    static constexpr Field width{QLatin1String("width"), &P::number};
    static constexpr Field length{QLatin1String("length"), &P::number};
    static constexpr Field supplySku{QLatin1String("supply_sku"), &P::sku};
    static constexpr Field ribbonSku{QLatin1String("ribbon_sku"), &P::sku};
    static constexpr Field panel{QLatin1String("panel"), &P::number};

    static constexpr Field language[]{id, {QLatin1String("tag"), &P::locale}};
    static constexpr Field name[]{id, {QLatin1String("english"), &P::name}};
    static constexpr Field translation[]{
        nameId, {QLatin1String("language_id"), &P::number}, {QLatin1String("text"), &P::name}};
    static constexpr Field colour[]{
        id, {QLatin1String("key"), &P::key}, {QLatin1String("rgb"), &P::number}, nameId};
    static constexpr Field material[]{id, nameId};
    static constexpr Field format[]{id, {QLatin1String("type"), &P::labelType}, nameId};
    static constexpr Field supply[]{{QLatin1String("sku"), &P::sku},
                                    {QLatin1String("material_id"), &P::number},
                                    {QLatin1String("format_id"), &P::number},
                                    {QLatin1String("colour_id"), &P::number},
                                    {QLatin1String("second_colour_id"), &P::number},
                                    {QLatin1String("second_colour_width"), &P::number},
                                    width,
                                    length,
                                    {QLatin1String("label_length"), &P::number},
                                    {QLatin1String("separator_width"), &P::number},
                                    {QLatin1String("is_landscape"), &P::number},
                                    {QLatin1String("multi_up_count"), &P::number},
                                    {QLatin1String("multi_up_gap"), &P::number}};
    static constexpr Field supplyKind[]{{QLatin1String("kind"), &P::number}, supplySku};
    static constexpr Field ribbon[]{
        {QLatin1String("sku"), &P::sku}, {QLatin1String("type"), &P::ribbonType}, width, length};
    static constexpr Field ribbonPanel[]{
        ribbonSku, panel, {QLatin1String("colour_id"), &P::number}};
    static constexpr Field ribbonNumber[]{{QLatin1String("number"), &P::number}, ribbonSku};
    static constexpr Field printSetting[]{ribbonSku,
                                          panel,
                                          supplySku,
                                          {QLatin1String("heat"), &P::number},
                                          {QLatin1String("heat_offset"), &P::number},
                                          {QLatin1String("max_speed"), &P::number},
                                          {QLatin1String("tension"), &P::number}};
    static constexpr Field printerFormat[]{{QLatin1String("model"), &P::model},
                                           {QLatin1String("position"), &P::number},
                                           {QLatin1String("format_id"), &P::number}};
    struct Table
    {
        QLatin1String name;
        std::span<const Field> columns;
    };
    // Pictures are left out: nobody can tell what they show.
    static constexpr Table tables[]{
        {QLatin1String("language"), language},
        {QLatin1String("name"), name},
        {QLatin1String("translation"), translation},
        {QLatin1String("colour"), colour},
        {QLatin1String("material"), material},
        {QLatin1String("format"), format},
        {QLatin1String("supply"), supply},
        {QLatin1String("supply_kind"), supplyKind},
        {QLatin1String("ribbon"), ribbon},
        {QLatin1String("ribbon_panel"), ribbonPanel},
        {QLatin1String("ribbon_number"), ribbonNumber},
        {QLatin1String("print_setting"), printSetting},
        {QLatin1String("printer_format"), printerFormat},
    };

    if (!value.isObject())
        return QJsonValue::Undefined;
    const QJsonObject all = value.toObject();
    QJsonObject result;
    for (const Table& table : tables) {
        const QJsonValue found = all.value(table.name);
        if (!found.isArray())
            continue;
        QJsonArray rows;
        const QJsonArray originals = found.toArray();
        for (const QJsonValue& row : originals)
            rows.append(withFields(row.toObject(), table.columns));
        result.insert(table.name, rows);
    }
    return result;
}

QJsonValue CaseRedaction::Private::valueName(const QJsonValue& value)
{
    return changed(value,
                   [this](const QString& text) { return case_values::safeName(text, names); });
}

QJsonValue CaseRedaction::Private::printerValue(const QJsonValue& value)
{
    return value.isObject() ? case_values::redacted(value.toObject(), names)
                            : QJsonValue(QJsonValue::Undefined);
}

QJsonValue CaseRedaction::Private::failure(const QJsonValue& value)
{
    const QJsonObject result = withFields(value.toObject(), fieldsOf(QStringLiteral("failed")));
    return result.contains(u"call") ? result : QJsonValue(QJsonValue::Undefined);
}

QJsonValue CaseRedaction::Private::record(const QJsonValue& value)
{
    using P = Private;
    static constexpr Field fields[]{
        {QLatin1String("printerName"), &P::printer},
        {QLatin1String("statusEnum"), &P::number},
        {QLatin1String("printerOnline"), &P::flag},
        {QLatin1String("printerRemote"), &P::flag},
        {QLatin1String("printerNonAdmin"), &P::flag},
        {QLatin1String("printerDefault"), &P::flag},
        {QLatin1String("ribbon1Percentage"), &P::number},
        {QLatin1String("ribbon1ColorHex"), &P::colour},
        {QLatin1String("ribbon1ColorName"), &P::name},
        {QLatin1String("ribbon1SKU"), &P::sku},
        {QLatin1String("ribbon2Percentage"), &P::number},
        {QLatin1String("ribbon2ColorHex"), &P::colour},
        {QLatin1String("ribbon2ColorName"), &P::name},
        {QLatin1String("ribbon2SKU"), &P::sku},
        {QLatin1String("softwareVersion"), &P::firmware},
        {QLatin1String("supplyPercentage"), &P::number},
        {QLatin1String("supplyColorHex"), &P::colour},
        {QLatin1String("supplyColorName"), &P::name},
        {QLatin1String("supplySKU"), &P::sku},
        {QLatin1String("supplyMaterialName"), &P::name},
        {QLatin1String("ribbon2Visible"), &P::flag},
    };
    return value.isObject() ? withFields(value.toObject(), fields)
                            : QJsonValue(QJsonValue::Undefined);
}

QJsonValue CaseRedaction::Private::arguments(const QJsonValue& value)
{
    using P = Private;
    static constexpr Field fields[]{
        {QLatin1String("status"), &P::number},
        {QLatin1String("printerName"), &P::printer},
        {QLatin1String("activePrinterName"), &P::printer},
        {QLatin1String("isVX"), &P::flag},
        {QLatin1String("printerInErrorState"), &P::flag},
    };
    return value.isObject() ? withFields(value.toObject(), fields)
                            : QJsonValue(QJsonValue::Undefined);
}

/// The place and the message of a line of the log. Of a line that is not the library's, nothing.
QJsonObject CaseRedaction::Private::logLine(const QJsonObject& line)
{
    const case_log::Replacements replacements{
        [this](const QString& text) { return names.printerInLog(text); },
        [this](const QString& text) { return names.isPrinterInLog(text); },
        [this](const QString& text) { return driverFor(text); },
        [this](const QString& text) { return skuFor(text); },
        [this](const QString& text) { return text.isEmpty() ? text : nameFor(text); },
    };
    const QString file = line.value(QLatin1String("file")).toString();
    const QString function = line.value(QLatin1String("function")).toString();
    const int number = line.value(QLatin1String("line")).toInt();
    if (!case_log::isLine(file, number, function))
        return {};
    QJsonObject result{{QLatin1String("file"), file},
                       {QLatin1String("line"), number},
                       {QLatin1String("function"), function}};
    const std::optional<QString> message = case_log::redactedMessage(
        file, number, line.value(QLatin1String("message")).toString(), replacements);
    if (message)
        result.insert(QLatin1String("message"), *message);
    return result;
}

CaseRedaction::CaseRedaction()
    : d(std::make_unique<Private>())
{}

CaseRedaction::~CaseRedaction() = default;
CaseRedaction::CaseRedaction(CaseRedaction&& other) noexcept = default;
CaseRedaction& CaseRedaction::operator=(CaseRedaction&& other) noexcept = default;

void CaseRedaction::learnPrinters(const QStringList& names)
{
    d->names.learnPrinters(names);
}

QJsonObject CaseRedaction::redacted(const QJsonObject& line)
{
    return d->redacted(line);
}

} // namespace VxKit
