// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_info.h"

#include "status_codes.h"

#include <vxerror.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMutex>
#include <QtCore/QMutexLocker>
#include <QtCore/QStringList>
#include <QtCore/QTranslator>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace VxKit {

namespace {

namespace StatusCodes = VXPrinting::StatusCodes;

/// A text as the translations know it. A null remark is no remark.
struct Source
{
    const char* context;
    const char* text;
    const char* remark = nullptr;
};

constexpr char context[] = "VxKit::StatusInfo";

/// The titles are translated with the library. Their sources are repeated here because the library
/// gives its titles in the application's language only.
constexpr Source libraryTitle(const char* text)
{
    return {"QObject", text, "Printer status message"};
}
constexpr Source faultTitle(const char* text)
{
    return {"VXError", text};
}

struct Entry
{
    int code;
    const char* key;
    Severity severity;
    Source title;
    const char* explanation;
    const char* remedy;
};

// clang-format off
constexpr std::array entries{
    Entry{StatusCodes::disconnected, "disconnected", Severity::Warning,
          libraryTitle("Disconnected"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer is switched off, or it is not connected to this computer. Its driver "
              "is installed, and no fault has been reported."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer on. Check its power cable and its USB cable at both ends. If "
              "it stays disconnected, use another USB port of the computer.")},
    Entry{StatusCodes::ready, "ready", Severity::Ok,
          libraryTitle("Ready"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer is switched on, is connected and can print."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Nothing needs to be done.")},
    Entry{2, "out_of_labels", Severity::Error,
          faultTitle("The printer is out of labels"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The labels that were loaded are used up. What has not been printed yet waits in "
              "the print queue."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Open the cover, take out the empty core and load a new roll of the same labels. "
              "Close the cover; printing continues.")},
    Entry{3, "ribbon_ran_out", Severity::Error,
          faultTitle("The ribbon has run out"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The ribbon is used up to its end. The labels are not the cause."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Open the cover and take out the used ribbon with both cores. Load a new ribbon of "
              "the same kind, pull it tight and close the cover.")},
    Entry{4, "cover_open", Severity::Error,
          faultTitle("The cover is open"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer's cover is open or not latched. For safety the printer does not print "
              "with an open cover."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Close the cover and press it down on both sides until it clicks. If it does not "
              "close, check that labels and ribbon are seated correctly.")},
    Entry{5, "labels_jammed", Severity::Error,
          faultTitle("The labels are jammed"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The labels do not move through the printer. A label may have stuck to the roller "
              "or to the print head."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer off and open the cover. Remove stuck labels by hand, without "
              "sharp tools. Load the labels again, close the cover and switch the printer on.")},
    Entry{6, "cutter_jammed", Severity::Error,
          faultTitle("The cutter is jammed"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The cutter cannot move its blade. Usually a label or its adhesive is stuck "
              "between the blades."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer off and open the cutter cover. Remove what is stuck, without "
              "touching the blades. Close the cover and switch the printer on. If the cutter "
              "jams again, have it serviced.")},
    Entry{7, "cutter_cover_open", Severity::Error,
          faultTitle("The cutter cover is open"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The cover of the cutter is open or not latched. For safety the printer neither "
              "cuts nor prints until it is closed."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Close the cutter cover until it clicks. If it does not close, switch the printer "
              "off and remove label scraps from the cutter.")},
    Entry{8, "print_head_too_hot", Severity::Warning,
          faultTitle("The print head is too hot"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The print head has become too hot and must cool down. This happens with long jobs "
              "and dark prints, and is not a defect."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Leave the printer switched on and wait some minutes; printing continues by "
              "itself. If this happens often, lower the darkness or the speed and keep the vents "
              "clear.")},
    Entry{9, "print_head_not_connected", Severity::Error,
          faultTitle("The print head is not connected"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer does not detect its print head. The head or its cable may be loose or "
              "defective."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer off, wait ten seconds and switch it on. If the message "
              "returns, switch it off, unplug it and have the print head checked by the service.")},
    Entry{10, "motor_too_hot", Severity::Warning,
          faultTitle("The motor is too hot"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The motor has become too hot and must cool down. This happens with long jobs, or "
              "when the labels run heavily."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Leave the printer switched on and wait some minutes; printing continues by "
              "itself. If this happens often, check that the roll turns freely.")},
    Entry{11, "no_labels", Severity::Error,
          faultTitle("No labels are loaded"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "There are no labels in the printer, or they do not reach the sensor."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Load a roll of labels. Push the start of the labels under the guides as far as "
              "the print head, and close the cover.")},
    Entry{12, "no_ribbon", Severity::Error,
          faultTitle("No ribbon is loaded"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "There is no ribbon in the printer, but the labels need one."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Load a ribbon that suits the labels, pull it tight and close the cover.")},
    Entry{13, "labels_not_recognized", Severity::Error,
          faultTitle("The labels are not recognized"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer cannot tell which labels are loaded. Their identification cannot be "
              "read, or the printer does not know this kind."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Take the roll out and put it in again the right way round. Clean the place where "
              "the printer reads the roll. Try another roll. If new rolls are not recognized "
              "either, update the firmware.")},
    Entry{14, "ribbon_not_recognized", Severity::Error,
          faultTitle("The ribbon is not recognized"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer cannot tell which ribbon is loaded. Its identification cannot be "
              "read, or the printer does not know this kind."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Take the ribbon out and put it in again. Clean the place where the printer reads "
              "it. Try another ribbon. If new ribbons are not recognized either, update the "
              "firmware.")},
    Entry{15, "ribbon_labels_mismatch", Severity::Error,
          faultTitle("The ribbon does not suit the labels"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The ribbon and the labels do not go together. Each of them is in order, but the "
              "print would not hold."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Load a ribbon that suits the labels, or labels that suit the ribbon. The "
              "packaging and the supply catalogue name the pairs.")},
    Entry{16, "label_start_not_found", Severity::Error,
          faultTitle("The start of the label was not found"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer does not find where a label begins. The loaded labels differ from "
              "those it was set up for, or a mark or gap cannot be seen."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Check that the label roll is straight between the guides. Compare the label size "
              "in the print settings with the loaded labels. Clean the label sensor, then "
              "calibrate it.")},
    Entry{17, "ribbon_torn_or_slack", Severity::Error,
          faultTitle("The ribbon is torn or slack"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The ribbon is torn, or it is not tight. It need not be used up."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Open the cover. If the ribbon is torn, fix its end to the take-up core with "
              "adhesive tape. Turn the take-up core until the ribbon is tight and smooth. Close "
              "the cover.")},
    Entry{18, "sensor_needs_calibration", Severity::Error,
          faultTitle("The label sensor must be calibrated"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The label sensor must be adjusted to the loaded labels. This is usual after a "
              "change of supply and is not a defect."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Check that the labels lie straight and the cover is closed. Start the calibration "
              "at the printer or in its driver settings. Wait until it has fed a few labels and "
              "stopped.")},
    Entry{19, "paused", Severity::Warning,
          faultTitle("The printer is paused"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Somebody has paused the printer at the printer itself. Nothing is broken; jobs "
              "wait until it is resumed."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Press the pause key at the printer to resume printing.")},
    Entry{20, "memory_full", Severity::Error,
          faultTitle("The printer's memory is full"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The job needs more memory than the printer has free. The memory of this computer "
              "is not meant."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Delete the job from the print queue. Switch the printer off and on. Print fewer "
              "labels at a time, with smaller or fewer pictures.")},
    Entry{21, "firmware_updating", Severity::Information,
          faultTitle("The firmware is being updated"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer is installing new firmware and does not print meanwhile. This is not "
              "a fault."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Wait until the update is complete. Do not switch the printer off and do not "
              "unplug it.")},
    Entry{22, "firmware_update_failed", Severity::Error,
          faultTitle("The firmware update has failed"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer could not install the new firmware. It may still work with the old "
              "one."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer off and on. Check that the firmware is the right one for this "
              "model and start the update again. If it fails again, ask the service for help.")},
    Entry{23, "battery_low", Severity::Warning,
          faultTitle("The battery is low"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer's battery is nearly empty. The printer still prints, but will soon "
              "switch itself off."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Connect the printer to its power supply, or change the battery.")},
    Entry{StatusCodes::spoolerDown, "spooler_not_running", Severity::Error,
          faultTitle("The print spooler is not running"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The Windows service that all printing goes through is stopped, so no printer of "
              "this computer can print or be read. The printers themselves are not the cause."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "As an administrator, open services.msc, select \"Print Spooler\" and choose "
              "Start. The printers are read again a few seconds later. If the service stops "
              "again, restart the computer.")},
    Entry{StatusCodes::unknown, "unknown", Severity::Information,
          libraryTitle("Unable To Retrieve Printer Info. (Code 255)"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer has not reported its status yet, or it could not be read. This says "
              "nothing about whether the printer can print."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Wait a few seconds. If the status stays unknown, switch the printer off and on, "
              "and check that its driver is installed correctly.")},
    Entry{StatusCodes::networkPrinter, "network_printer", Severity::Information,
          libraryTitle("Printer Is Remotely Connected.\nUnable to retrieve printer info."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The printer is reached over a network. It is listed but never watched from this "
              "computer. It can print all the same."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "To see its status and what is loaded, use the computer that the printer is "
              "connected to.")},
    Entry{StatusCodes::offline, "offline", Severity::Warning,
          libraryTitle("Disconnected"),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Windows lists the printer as offline. It is switched off, disconnected, or set to "
              "\"Use Printer Offline\"; jobs wait in the print queue."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Switch the printer on and check its cable. Open its print queue and make sure "
              "that \"Use Printer Offline\" is not ticked.")},
    Entry{StatusCodes::notManaged, "not_managed", Severity::Warning,
          libraryTitle("Printer Is Not Managed.\nUnable to retrieve printer info."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "The current user may print but may not manage this printer, so its status and "
              "what is loaded cannot be read. The printer itself may be in order."),
          QT_TRANSLATE_NOOP("VxKit::StatusInfo",
              "Ask an administrator to give your account the right \"Manage this printer\" "
              "(printer properties, Security). Then start this program again.")},
};

/// For all other codes. %1 is the code.
constexpr Entry unlisted{0, "printer_error", Severity::Error,
    faultTitle("Printer error %1"),
    QT_TRANSLATE_NOOP("VxKit::StatusInfo",
        "The printer reports the status code %1, for which there is no description. It is "
        "connected and reports this itself."),
    QT_TRANSLATE_NOOP("VxKit::StatusInfo",
        "Look at the printer's display and its manual. Switch the printer off and on. If the "
        "code returns, give the number %1 and the printer's model to the service.")};
// clang-format on

struct SeverityName
{
    Severity severity;
    const char* key;
    const char* name;
};

constexpr std::array severityNames{
    SeverityName{Severity::Ok, "ok", QT_TRANSLATE_NOOP("VxKit::StatusInfo", "OK")},
    SeverityName{Severity::Information, "information",
                 QT_TRANSLATE_NOOP("VxKit::StatusInfo", "information")},
    SeverityName{Severity::Warning, "warning", QT_TRANSLATE_NOOP("VxKit::StatusInfo", "warning")},
    SeverityName{Severity::Error, "error", QT_TRANSLATE_NOOP("VxKit::StatusInfo", "error")},
};

const SeverityName& nameOf(Severity severity)
{
    const auto found = std::ranges::find(severityNames, severity, &SeverityName::severity);
    return found == severityNames.end() ? severityNames.back() : *found;
}

/// The languages with texts, by the ending of their translation files.
constexpr std::array languages{"en", "de", "es", "fr", "it", "ja", "zh_CN"};

/// The place in `languages` for a language tag.
std::optional<std::size_t> languageOf(const QString& tag)
{
    // No tag with texts is longer, and tags may come from other processes.
    constexpr qsizetype longestTag = 40;
    if (tag.isEmpty() || tag.size() > longestTag)
        return std::nullopt;
    // "de_DE.UTF-8@euro" is what Linux calls its locales.
    QString plain = tag.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0).toLower();
    const QStringList parts =
        plain.replace(QLatin1Char('_'), QLatin1Char('-')).split(QLatin1Char('-'));
    if (parts.first() == QLatin1String("zh")) {
        const bool isTraditional = std::ranges::any_of(parts, [&parts](const QString& part) {
            const bool isElsewhere = part == QLatin1String("tw") || part == QLatin1String("hk") ||
                                     part == QLatin1String("mo");
            return part == QLatin1String("hant") ||
                   (isElsewhere && !parts.contains(QLatin1String("hans")));
        });
        return isTraditional ? std::nullopt : std::optional(languages.size() - 1);
    }
    const auto* const found = std::ranges::find_if(languages, [&parts](const char* language) {
        return parts.first() == QLatin1String(language);
    });
    if (found == languages.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - languages.begin());
}

/// The texts of one language.
class Texts
{
public:
    explicit Texts(const char* language)
    {
        for (Carrier& carrier : m_carriers) {
            const QString name = QLatin1String(carrier.name);
            carrier.hasTexts = carrier.translator.load(
                QStringLiteral(":/%1/translations/%1_%2.qm").arg(name, QLatin1String(language)));
        }
    }

    QString of(const Source& source) const
    {
        for (const Carrier& carrier : m_carriers) {
            const QString text =
                carrier.hasTexts
                    ? carrier.translator.translate(source.context, source.text, source.remark)
                    : QString();
            if (!text.isEmpty())
                return text;
        }
        return QString::fromUtf8(source.text);
    }

private:
    struct Carrier
    {
        const char* name;
        QTranslator translator{};
        bool hasTexts = false;
    };
    std::array<Carrier, 2> m_carriers{{{"vxprinterstatuskit"}, {"vxprinterstatus"}}};
};

/// The texts of a language, loaded at the first use. They are never unloaded.
const Texts& textsOf(std::size_t language)
{
    static QMutex mutex;
    static std::array<std::unique_ptr<const Texts>, languages.size()> loaded;
    const QMutexLocker locker(&mutex);
    std::unique_ptr<const Texts>& texts = loaded.at(language);
    if (!texts)
        texts = std::make_unique<const Texts>(languages.at(language));
    return *texts;
}

/// A text without a code in brackets at its end: "Ready (Code 1)" becomes "Ready". It is looked for
/// by hand: a thread that has used a regular expression crashes as it ends in programs built with
/// MinGW, whose run time releases the thread's variables before Qt does.
QString withoutCode(const QString& text)
{
    const auto isOneOf = [](QChar character, char16_t plain, char16_t wide) {
        return character == plain || character == wide;
    };
    if (text.size() < 2 || !isOneOf(text.back(), u')', u'\uff09') ||
        !text.at(text.size() - 2).isDigit())
        return text;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        if (isOneOf(text.at(i), u'(', u'\uff08'))
            return text.first(i).trimmed();
    }
    return text;
}

/// The first line of the title, without the code in brackets and the full stop at its end.
QString shortTitleOf(const StatusInfo& info)
{
    QString line = withoutCode(info.title.section(QLatin1Char('\n'), 0, 0)).trimmed();
    if (line.endsWith(QLatin1Char('.')) || line.endsWith(QChar(0x3002)))
        line.chop(1);
    return line;
}

/// Translates into one language: a given one, or the application's.
class Translation
{
public:
    explicit Translation(const QString& language)
    {
        if (const std::optional<std::size_t> known = languageOf(language))
            m_texts = &textsOf(*known);
    }

    QString text(const Source& source) const
    {
        return m_texts ? m_texts->of(source)
                       : QCoreApplication::translate(source.context, source.text, source.remark);
    }
    QString text(const char* source) const { return text({context, source}); }

    StatusInfo info(int code, const Entry& entry) const
    {
        StatusInfo info{.code = code,
                        .key = QString::fromLatin1(entry.key),
                        .severity = entry.severity,
                        .title = titleOf(code, entry),
                        .shortTitle = {},
                        .explanation = text(entry.explanation),
                        .remedy = text(entry.remedy)};
        if (&entry == &unlisted) {
            info.explanation = info.explanation.arg(code);
            info.remedy = info.remedy.arg(code);
        }
        info.shortTitle = shortTitleOf(info);
        return info;
    }

private:
    QString titleOf(int code, const Entry& entry) const
    {
        const bool isFault = qstrcmp(entry.title.context, "VXError") == 0;
        // The library's own function, so that a status-messages library that replaces ours is
        // asked.
        if (isFault && !m_texts)
            return getErrorDescription(VXError(code));
        const QString title = text(entry.title);
        return &entry == &unlisted ? title.arg(code) : title;
    }

    const Texts* m_texts = nullptr; ///< null: the application's language
};

const Entry& entryOf(int code)
{
    const auto* const found = std::ranges::find(entries, code, &Entry::code);
    return found == entries.end() ? unlisted : *found;
}

} // namespace

QString severityKey(Severity severity)
{
    return QString::fromLatin1(nameOf(severity).key);
}

QString severityName(Severity severity, const QString& language)
{
    return Translation(language).text(nameOf(severity).name);
}

QJsonObject StatusInfo::toJson() const
{
    return {
        {QStringLiteral("code"), code},
        {QStringLiteral("key"), key},
        {QStringLiteral("severity"), severityKey(severity)},
        {QStringLiteral("title"), title},
        {QStringLiteral("shortTitle"), shortTitle},
        {QStringLiteral("explanation"), explanation},
        {QStringLiteral("remedy"), remedy},
    };
}

Severity statusSeverity(int code)
{
    return entryOf(code).severity;
}

QString statusKey(int code)
{
    return QString::fromLatin1(entryOf(code).key);
}

StatusInfo statusInfo(int code)
{
    return statusInfo(code, QString());
}

StatusInfo statusInfo(int code, const QString& language)
{
    return Translation(language).info(code, entryOf(code));
}

QList<StatusInfo> allStatusInfo(const QString& language)
{
    const Translation translation(language);
    QList<StatusInfo> all;
    all.reserve(entries.size());
    for (const Entry& entry : entries)
        all.append(translation.info(entry.code, entry));
    return all;
}

} // namespace VxKit
