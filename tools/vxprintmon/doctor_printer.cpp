// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_check.h"
#include "doctor_system.h"
#include "printer_words.h"
#include "tool_text.h"

#include "printer_types.h"
#include "vxsupplydatabase.h"
#include "windows_printer_info.h"

#include <printer_reading.h>
#include <status_info.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QtEndian>

#include <winspool.h>

#include <array>
#include <limits>

using doctor::Check;
using doctor::ExpectedValue;
using doctor::finding;
using doctor::Remedy;
using doctor::Verdict;
using doctor_system::CallFailure;
using doctor_system::PrinterRecord;
using doctor_system::RawValue;
using VxKit::Slot;
using VXPrinting::PrinterType;

namespace {

constexpr qint32 noCeiling = std::numeric_limits<qint32>::max();
constexpr quint32 numberBytes = 4;

constexpr ExpectedValue text(const char* name, quint32 leastBytes, quint32 mostBytes,
                             bool isRequired)
{
    return {name, ExpectedValue::Kind::Text, leastBytes, mostBytes, noCeiling, isRequired, false};
}

constexpr ExpectedValue number(const char* name, qint32 ceiling, bool isRequired,
                               bool ofSecondRibbon = false)
{
    return {name, ExpectedValue::Kind::Number, 0, numberBytes, ceiling, isRequired, ofSecondRibbon};
}

// The names and limits are the driver's; docs/support.md explains them.
constexpr std::array values{
    text("StatusCode", 0, 128, true),
    text("SupplyIdentifier", 21, 21, true),
    number("Mileage", 152400, true),
    number("Ribbon1Identifier", 100000, true),
    number("Ribbon1Mileage", 130000, true),
    number("Ribbon2Identifier", 100000, true, true),
    number("Ribbon2Mileage", 120700, true, true),
    text("SoftwareVersion", 0, 37, false),
    text("EthernetConfig", 0, 74, false),
    number("UpdateProgress", noCeiling, false),
    number("UpdateError", noCeiling, false),
};

bool isOfExpectedType(const ExpectedValue& expected, DWORD type)
{
    if (expected.kind == ExpectedValue::Kind::Text)
        return type == REG_SZ || type == REG_BINARY;
    return type == REG_BINARY || type == REG_DWORD;
}

QString textOf(const QByteArray& data)
{
    return QString::fromUtf8(
        data.constData(),
        static_cast<qsizetype>(qstrnlen(data.constData(), static_cast<size_t>(data.size()))));
}

quint32 numberOf(const QByteArray& data)
{
    std::array<char, numberBytes> bytes{};
    std::copy_n(data.constBegin(), std::min<qsizetype>(data.size(), numberBytes), bytes.begin());
    return qFromLittleEndian<quint32>(bytes.data());
}

/// The name, type, size and bytes of a value, and what they mean.
QString rawText(const ExpectedValue& expected, const RawValue& value)
{
    constexpr qsizetype mostShown = 24;
    QString bytes =
        QString::fromLatin1(value.data.first(std::min(mostShown, value.data.size())).toHex(' '));
    if (value.data.size() > mostShown || value.error != ERROR_SUCCESS)
        bytes += QStringLiteral(" \u2026");
    QString meaning;
    if (value.error == ERROR_SUCCESS && value.type == REG_DWORD)
        meaning = QStringLiteral(" (%1)").arg(numberOf(value.data));
    else if (value.error == ERROR_SUCCESS && expected.kind == ExpectedValue::Kind::Text)
        meaning = QStringLiteral(" (\"%1\")")
                      .arg(textOf(value.data.first(
                          std::min<qsizetype>(value.data.size(), expected.mostBytes))));
    return QStringLiteral("%1: %2, %3 B: %4%5")
        .arg(QString::fromLatin1(expected.name), doctor_system::typeName(value.type))
        .arg(value.size)
        .arg(bytes.trimmed(), meaning);
}

/// What the checks of one printer share.
struct Subject
{
    const AvailablePrinters& printer;
    PrinterType model;
    bool isWatchable; ///< the library watches it, so what is missing is a problem
};

Check checkValue(const Subject& subject, const ExpectedValue& expected, const RawValue& value)
{
    const QString name = QString::fromLatin1(expected.name);
    VxKit::PrinterReading reading;
    reading.setModel(subject.model);
    if (value.error == ERROR_FILE_NOT_FOUND) {
        if (expected.ofSecondRibbon && !reading.hasSlot(Slot::Ribbon2))
            return {.text = ToolText::tr("%1: not published; this model has one ribbon").arg(name)};
        const QString text = ToolText::tr("%1: not published").arg(name);
        if (subject.printer.isOffline)
            return finding(Verdict::Note, text, Remedy::SwitchOn);
        if (!expected.isRequired)
            return finding(Verdict::Note, text, Remedy::NothingOptional);
        return finding(subject.isWatchable ? Verdict::Problem : Verdict::Note, text,
                       Remedy::RestartPrinter);
    }
    if (value.error != ERROR_SUCCESS && value.error != ERROR_MORE_DATA)
        return finding(Verdict::Problem,
                       name + QStringLiteral(": ") +
                           CallFailure{"GetPrinterDataA", value.error}.text(),
                       Remedy::RestartPrinter);

    const QString raw = rawText(expected, value);
    if (value.error == ERROR_SUCCESS && !isOfExpectedType(expected, value.type))
        return finding(Verdict::Problem,
                       ToolText::tr("%1; expected the type %2")
                           .arg(raw, expected.kind == ExpectedValue::Kind::Text
                                         ? QStringLiteral("REG_SZ, REG_BINARY")
                                         : QStringLiteral("REG_DWORD, REG_BINARY")),
                       Remedy::RestartPrinter);
    if (value.size > expected.mostBytes || value.size < expected.leastBytes)
        return finding(Verdict::Problem,
                       ToolText::tr("%1; expected %2 to %3 bytes")
                           .arg(raw)
                           .arg(expected.leastBytes)
                           .arg(expected.mostBytes),
                       Remedy::RestartPrinter);
    if (expected.kind == ExpectedValue::Kind::Number &&
        static_cast<qint32>(numberOf(value.data)) > expected.ceiling)
        return finding(
            Verdict::Problem,
            ToolText::tr("%1; a number up to %2 is plausible").arg(raw).arg(expected.ceiling),
            Remedy::RestartPrinter);
    return {.text = raw};
}

/// What the status code means, and what it asks for.
Check checkStatus(const RawValue& value)
{
    bool isNumber = false;
    const QString text = textOf(value.data);
    const int code = text.toInt(&isNumber);
    if (!isNumber)
        return finding(Verdict::Problem,
                       ToolText::tr("The status code \"%1\" is not a number.").arg(text),
                       Remedy::RestartPrinter);
    const VxKit::StatusInfo info = VxKit::statusInfo(code);
    Check check{
        .text = ToolText::tr("Status %1: %2. %3").arg(code).arg(info.shortTitle, info.explanation)};
    if (info.severity == VxKit::Severity::Error)
        check.verdict = Verdict::Problem;
    else if (info.severity != VxKit::Severity::Ok)
        check.verdict = Verdict::Note;
    if (check.verdict != Verdict::Ok)
        check.remedy = info.remedy;
    return check;
}

/// Whether the catalogue knows what is loaded in a slot.
Check checkLoaded(Slot slot, const QString& identifier, const QString& catalogueFile)
{
    VXSupplyDatabase database;
    database.setup(catalogueFile, QStringLiteral("doctor loaded"));
    QString sku;
    if (slot == Slot::Supply) {
        database.setSupplyId(identifier);
        sku = database.supplySKU();
    } else {
        database.setRibbonIds({identifier});
        sku = database.supplyRibbonSKUs().value(0);
    }
    const QString name = printer_words::slotName(slot);
    if (sku == VXPrinting::nothingLoaded)
        return {.text = ToolText::tr("%1: nothing is loaded.").arg(name)};
    if (sku.isEmpty())
        return finding(Verdict::Problem,
                       ToolText::tr("%1: the catalogue does not know %2.").arg(name, identifier),
                       Remedy::UpdateCatalogue);
    return {.text = ToolText::tr("%1: %2 is %3 in the catalogue.").arg(name, identifier, sku)};
}

class PrinterChecks
{
public:
    PrinterChecks(const AvailablePrinters& printer, const QString& catalogueFile)
        : m_catalogueFile(catalogueFile)
        , m_subject{printer, WindowsPrinterInfo::printerType(printer.driverName), false}
    {}

    QList<Check> run()
    {
        if (!checkModel())
            return m_checks;
        checkRights();
        checkRecord();
        // The library does not read the values of network printers.
        if (!m_subject.printer.isNetworkPrinter)
            checkValues();
        return m_checks;
    }

private:
    void add(const QString& name, Check check)
    {
        check.check = name;
        check.subject = m_subject.printer.printerName;
        m_checks.append(check);
    }
    void addFailure(const QString& name, const CallFailure& failure)
    {
        add(name, finding(Verdict::Problem, failure.text(), Remedy::InstallAgain));
    }

    /// False if there is nothing more to check.
    bool checkModel()
    {
        const AvailablePrinters& printer = m_subject.printer;
        const QString check = QStringLiteral("model");
        if (m_subject.model == PrinterType::Unknown) {
            add(check, finding(Verdict::Note,
                               ToolText::tr("The driver \"%1\" is another maker's, so the printer "
                                            "is not watched.")
                                   .arg(printer.driverName),
                               Remedy::NothingForeign));
            return false;
        }
        constexpr int lastUnsupportedType = 100;
        if (static_cast<int>(m_subject.model) <= lastUnsupportedType) {
            add(check, finding(Verdict::Note,
                               ToolText::tr("The driver \"%1\" is for a model that is not "
                                            "supported, so the printer is not watched.")
                                   .arg(printer.driverName),
                               Remedy::NothingForeign));
            return false;
        }
        const QString model = QString::fromLatin1(
            QMetaEnum::fromType<PrinterType>().valueToKey(static_cast<int>(m_subject.model)));
        add(check,
            {.text = ToolText::tr("Model %1, driver \"%2\".").arg(model, printer.driverName)});
        return true;
    }

    void checkRights()
    {
        const bool isAdministrator =
            WindowsPrinterInfo::isPrinterAdmin(m_subject.printer.printerName);
        m_subject.isWatchable =
            isAdministrator && !m_subject.printer.isOffline && !m_subject.printer.isNetworkPrinter;
        add(QStringLiteral("rights"),
            isAdministrator
                ? Check{.text = ToolText::tr("You may manage the printer.")}
                : finding(Verdict::Problem,
                          ToolText::tr("You may not manage the printer, so it is not watched."),
                          Remedy::AskForRights));
    }

    void checkRecord()
    {
        const auto answer = doctor_system::printerRecord(m_subject.printer.printerName);
        if (const auto* const failure = std::get_if<CallFailure>(&answer)) {
            addFailure(QStringLiteral("record"), *failure);
            return;
        }
        const auto& record = std::get<PrinterRecord>(answer);
        checkPort(record);
        checkOffline(record);
        checkFlags(record);
    }

    void checkPort(const PrinterRecord& record)
    {
        const QString check = QStringLiteral("port");
        if (m_subject.printer.isNetworkPrinter) {
            add(check, finding(Verdict::Note,
                               ToolText::tr("The printer is reached over a network (port %1), so "
                                            "it is listed, but not watched.")
                                   .arg(record.port),
                               Remedy::ConnectByUsb));
            return;
        }
        constexpr qsizetype prefix = 3;
        bool isNumber = false;
        const ushort number = record.port.mid(prefix).toUShort(&isNumber);
        const bool isUsb =
            isNumber && record.port.startsWith(QLatin1String("USB"), Qt::CaseInsensitive);
        const QString serial =
            isUsb ? WindowsPrinterInfo::getDeviceSerialNumbers().value(number) : QString();
        add(check,
            serial.isEmpty()
                ? finding(Verdict::Note,
                          ToolText::tr("No USB device of a label printer is on the "
                                       "printer's port %1.")
                              .arg(record.port),
                          Remedy::ChoosePort)
                : Check{.text =
                            ToolText::tr("Port %1, with the device %2.").arg(record.port, serial)});
    }

    void checkOffline(const PrinterRecord& record)
    {
        const QString check = QStringLiteral("online");
        if ((record.attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) != 0)
            add(check,
                finding(Verdict::Problem, ToolText::tr("The printer is set to be used offline."),
                        Remedy::UseOnline));
        if ((record.status & PRINTER_STATUS_OFFLINE) != 0)
            add(check,
                finding(Verdict::Problem, ToolText::tr("Windows reports the printer offline."),
                        Remedy::SwitchOn));
        if (!m_subject.printer.isOffline)
            add(check, {.text = ToolText::tr("The printer is online.")});
    }

    void checkFlags(const PrinterRecord& record)
    {
        // That the printer is offline has a check of its own.
        const DWORD status = record.status & ~DWORD(PRINTER_STATUS_OFFLINE);
        const QString text =
            status == 0
                ? ToolText::tr("The queue reports nothing.")
                : ToolText::tr("The queue reports: %1.").arg(doctor_system::statusFlags(status));
        add(QStringLiteral("queue"), (status & ~DWORD(PRINTER_STATUS_PRINTING)) == 0
                                         ? Check{.text = text}
                                         : finding(Verdict::Note, text, Remedy::LookAtQueue));
    }

    void checkValues()
    {
        QList<const char*> names;
        for (const ExpectedValue& expected : values)
            names.append(expected.name);
        const auto answer = doctor_system::printerValues(m_subject.printer.printerName, names);
        if (const auto* const failure = std::get_if<CallFailure>(&answer)) {
            addFailure(QStringLiteral("values"), *failure);
            return;
        }
        const auto& raw = std::get<QList<RawValue>>(answer);
        QHash<QString, QByteArray> valid;
        for (qsizetype index = 0; index < raw.size(); ++index) {
            const ExpectedValue& expected = values.at(static_cast<std::size_t>(index));
            Check check = checkValue(m_subject, expected, raw.at(index));
            check.value = QString::fromLatin1(expected.name);
            check.isPublished = raw.at(index).error != ERROR_FILE_NOT_FOUND;
            add(QStringLiteral("value.") + check.value, check);
            if (check.verdict == Verdict::Ok && check.isPublished)
                valid.insert(check.value, raw.at(index).data);
        }
        // For other printers, what the driver publishes is not what the screen says.
        if (m_subject.isWatchable && valid.contains(QStringLiteral("StatusCode")))
            add(QStringLiteral("status"),
                checkStatus({.data = valid.value(QStringLiteral("StatusCode"))}));
        checkSlots(valid);
    }

    void checkSlots(const QHash<QString, QByteArray>& valid)
    {
        const auto supply = valid.constFind(QStringLiteral("SupplyIdentifier"));
        if (supply != valid.constEnd())
            addLoaded(Slot::Supply, textOf(*supply));
        VxKit::PrinterReading reading;
        reading.setModel(m_subject.model);
        for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
            const auto ribbon =
                valid.constFind(slot == Slot::Ribbon1 ? QStringLiteral("Ribbon1Identifier")
                                                      : QStringLiteral("Ribbon2Identifier"));
            if (ribbon != valid.constEnd() && reading.hasSlot(slot))
                addLoaded(slot, QString::number(numberOf(*ribbon)));
        }
    }
    void addLoaded(Slot slot, const QString& identifier)
    {
        add(QStringLiteral("loaded.") + VxKit::slotName(slot),
            checkLoaded(slot, identifier, m_catalogueFile));
    }

    const QString& m_catalogueFile;
    Subject m_subject;
    QList<Check> m_checks;
};

} // namespace

std::span<const ExpectedValue> doctor::expectedValues()
{
    return values;
}

QList<Check> doctor::checkPrinter(const AvailablePrinters& printer, const QString& catalogueFile)
{
    return PrinterChecks(printer, catalogueFile).run();
}
