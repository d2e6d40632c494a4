// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "agent_config.h"

#include "failure.h"
#include "located_json.h"
#include "secret_file.h"
#include "topics.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QStandardPaths>
#include <QtCore/QSysInfo>
#include <QtNetwork/QHostAddress>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace {

constexpr qint64 largestFile = qint64(1024) * 1024;
constexpr qsizetype longestName = 200;
constexpr qint64 bytesInMebibyte = qint64(1024) * 1024;

/// A value as a message quotes it.
QString quoted(const LocatedValue& value)
{
    constexpr qsizetype longestQuote = 60;
    if (value.isObject)
        return QStringLiteral("an object");
    if (value.isList)
        return QStringLiteral("a list");
    QString text =
        QString::fromUtf8(QJsonDocument(QJsonArray{value.value}).toJson(QJsonDocument::Compact));
    text = text.sliced(1, text.size() - 2);
    return text.size() > longestQuote ? text.left(longestQuote) + u'…' : text;
}

/// Reads one file and gathers everything that is wrong with it.
class ConfigReader
{
public:
    ConfigReader(const QString& fileName, ConfigUse use)
        : m_folder(QFileInfo(fileName).absolutePath())
        , m_use(use)
    {
        m_config.file = fileName;
    }

    AgentConfig read()
    {
        const LocatedValue root = parsed();
        readRoot(root);
        if (!m_mistakes.isEmpty())
            throw Failure(m_mistakes);
        return m_config;
    }

private:
    using Setter = std::function<void(const LocatedValue& value, const QString& key)>;
    struct Key
    {
        QString name;
        Setter set;
    };

    [[noreturn]] void fail(const QString& what) const
    {
        throw Failure(QStringLiteral("%1: %2").arg(m_config.file, what));
    }

    LocatedValue parsed()
    {
        QFile file(m_config.file);
        if (!QFileInfo(m_config.file).isFile())
            fail(QFileInfo::exists(m_config.file) ? QStringLiteral("expected a file")
                                                  : QStringLiteral("there is no such file"));
        if (!file.open(QIODevice::ReadOnly))
            fail(file.errorString());
        const QByteArray text = file.read(largestFile + 1);
        if (text.size() > largestFile)
            fail(QStringLiteral("expected a file of at most 1 MiB"));
        try {
            return readLocatedJson(text);
        } catch (const JsonMistake& mistake) {
            throw Failure(
                QStringLiteral("%1:%2: %3").arg(m_config.file).arg(mistake.line).arg(mistake.text));
        }
    }

    QString at(int line, const QString& key) const
    {
        const QString place = QStringLiteral("%1:%2: ").arg(m_config.file).arg(line);
        return key.isEmpty() ? place : place + key + QLatin1String(": ");
    }

    void complain(int line, const QString& key, const QString& what)
    {
        m_mistakes.append(at(line, key) + what);
    }

    void complainOf(const LocatedValue& value, const QString& key, const QString& expected)
    {
        complain(value.line, key,
                 QStringLiteral("expected %1, found %2").arg(expected, quoted(value)));
    }

    /// Reads the known keys of an object. False if it is none.
    bool readKeys(const LocatedValue& object, const QString& path, const QList<Key>& known)
    {
        if (!object.isObject) {
            complainOf(object, path, QStringLiteral("an object"));
            return false;
        }
        for (const LocatedValue::Member& member : object.members) {
            const QString key = path.isEmpty() ? member.key : path + u'.' + member.key;
            const auto found = std::ranges::find(known, member.key, &Key::name);
            if (found == known.end()) {
                complain(member.line, key,
                         QStringLiteral("unknown key; expected %1").arg(namesOf(known)));
                continue;
            }
            m_config.lines.insert(key, member.line);
            found->set(member.value, key);
        }
        return true;
    }

    static QString namesOf(const QList<Key>& known)
    {
        QStringList names;
        for (const Key& key : known)
            names.append(key.name);
        const QString last = names.takeLast();
        return names.isEmpty() ? last
                               : names.join(QLatin1String(", ")) + QLatin1String(" or ") + last;
    }

    /// @name Kinds of values
    /// @{
    Setter text(QString& target)
    {
        return [this, &target](const LocatedValue& value, const QString& key) {
            if (value.value.isString() && !value.value.toString().isEmpty())
                target = value.value.toString();
            else
                complainOf(value, key, QStringLiteral("a text that is not empty"));
        };
    }

    /// A name that becomes a level of the topics.
    Setter name(QString& target)
    {
        return [this, &target](const LocatedValue& value, const QString& key) {
            const QString found = value.value.toString();
            if (!found.trimmed().isEmpty() && found.size() <= longestName)
                target = found;
            else
                complainOf(value, key,
                           QStringLiteral("a name of at most %1 characters").arg(longestName));
        };
    }

    /// A path, relative to the configuration's folder.
    Setter path(QString& target)
    {
        return [this, &target](const LocatedValue& value, const QString& key) {
            const QString found = value.value.toString();
            if (found.isEmpty() || found.contains(QChar(u'\0')))
                complainOf(value, key, QStringLiteral("a path"));
            else
                target = QDir::cleanPath(QDir(m_folder).absoluteFilePath(found));
        };
    }

    template <typename Number>
    Setter number(Number smallest, Number largest, std::function<void(Number)> set)
    {
        return [this, smallest, largest, set](const LocatedValue& value, const QString& key) {
            const double found = value.value.toDouble(std::numeric_limits<double>::quiet_NaN());
            const qint64 whole = value.value.toInteger(-1);
            if (static_cast<double>(whole) == found && whole >= smallest && whole <= largest)
                set(static_cast<Number>(whole));
            else
                complainOf(
                    value, key,
                    QStringLiteral("a whole number from %1 to %2").arg(smallest).arg(largest));
        };
    }
    /// @}

    void readRoot(const LocatedValue& root)
    {
        const bool isObject = readKeys(
            root, {},
            {{QStringLiteral("site"), name(m_config.site)},
             {QStringLiteral("host"), name(m_config.host)},
             {QStringLiteral("dataFolder"), path(m_config.dataFolder)},
             {QStringLiteral("catalogue"), path(m_config.catalogue)},
             {QStringLiteral("eventLog"), path(m_config.eventLog)},
             {QStringLiteral("history"), path(m_config.history)},
             {QStringLiteral("mqtt"),
              [this](const LocatedValue& value, const QString& key) {
                  readMqtt(value, key);
              }},
             {QStringLiteral("metrics"), [this](const LocatedValue& value, const QString& key) {
                  readMetrics(value, key);
              }}});
        if (m_use == ConfigUse::Reader) {
            if (isObject && !m_config.mqtt)
                complain(root.line, {}, QStringLiteral("the key \"mqtt\" is missing: an object"));
        } else if (isObject && !root.find(QStringLiteral("site")))
            complain(root.line, {},
                     QStringLiteral("the key \"site\" is missing: a name of the place, such as "
                                    "\"bremen\""));
        if (m_config.host.isEmpty())
            m_config.host = QSysInfo::machineHostName();
        if (m_config.dataFolder.isEmpty())
            m_config.dataFolder = defaultDataFolder();
        if (!m_config.catalogue.isEmpty())
            requireFile(m_config.catalogue, QStringLiteral("catalogue"));
        if (m_config.mqtt && m_config.mqtt->queueFolder.isEmpty())
            m_config.mqtt->queueFolder = m_config.dataFolder + QLatin1String("/queue");
    }

    void readMqtt(const LocatedValue& object, const QString& prefix)
    {
        MqttConfig& mqtt = m_config.mqtt.emplace();
        const bool isObject = readKeys(
            object, prefix,
            {{QStringLiteral("url"),
              [this, &mqtt](const LocatedValue& value, const QString& key) {
                  QString expected;
                  const auto address = parseBrokerUrl(value.value.toString(), &expected);
                  if (address)
                      mqtt.broker = *address;
                  else // what was found is not quoted: it may hold a password
                      complain(value.line, key, QStringLiteral("expected ") + expected);
              }},
             {QStringLiteral("protocol"),
              [this, &mqtt](const LocatedValue& value, const QString& key) {
                  const QString found = value.value.toString();
                  if (found == QLatin1String("5"))
                      mqtt.protocol = MqttConfig::Protocol::Mqtt5;
                  else if (found != QLatin1String("3.1.1"))
                      complainOf(value, key, QStringLiteral("\"3.1.1\" or \"5\""));
              }},
             {QStringLiteral("username"), text(mqtt.username)},
             {QStringLiteral("passwordFile"), path(mqtt.passwordFile)},
             {QStringLiteral("caFile"), path(mqtt.caFile)},
             {QStringLiteral("certFile"), path(mqtt.certFile)},
             {QStringLiteral("keyFile"), path(mqtt.keyFile)},
             {QStringLiteral("keepAliveSeconds"),
              number<int>(5, 3600,
                          [&mqtt](int found) { mqtt.keepAlive = std::chrono::seconds(found); })},
             {QStringLiteral("reconnectSeconds"),
              number<int>(1, 3600,
                          [&mqtt](int found) { mqtt.longestDelay = std::chrono::seconds(found); })},
             {QStringLiteral("refreshMinutes"),
              number<int>(1, 1440,
                          [&mqtt](int found) { mqtt.refresh = std::chrono::minutes(found); })},
             {QStringLiteral("queueFolder"), path(mqtt.queueFolder)},
             {QStringLiteral("queueLimitMiB"),
              number<qint64>(1, 1024,
                             [&mqtt](qint64 found) { mqtt.queueLimit = found * bytesInMebibyte; })},
             {QStringLiteral("historicalAfterSeconds"),
              number<int>(
                  1, 86400,
                  [&mqtt](int found) { mqtt.historicalAfter = std::chrono::seconds(found); })},
             {QStringLiteral("natsTopics"),
              [this, &mqtt](const LocatedValue& value, const QString& key) {
                  if (value.value.isBool())
                      mqtt.isForNats = value.value.toBool();
                  else
                      complainOf(value, key, QStringLiteral("true or false"));
              }},
             {QStringLiteral("discoveryPrefix"),
              [this, &mqtt](const LocatedValue& value, const QString& key) {
                  const QString found = value.value.toString();
                  if (!found.isEmpty() && found.size() <= longestName &&
                      topics::level(found) == found)
                      mqtt.discoveryPrefix = found;
                  else
                      complainOf(value, key,
                                 QStringLiteral("one level of a topic, without \"/\", \"+\", \"#\" "
                                                "and \"%\""));
              }}});
        if (!isObject)
            return;
        if (m_use == ConfigUse::Agent && !object.find(QStringLiteral("url")))
            complain(object.line, prefix,
                     QStringLiteral("the key \"url\" is missing: mqtt://HOST:PORT or "
                                    "mqtts://HOST:PORT"));
        checkMqtt(mqtt, prefix + u'.');
    }

    /// What fits together, and the files.
    void checkMqtt(const MqttConfig& mqtt, const QString& prefix)
    {
        const QString password = prefix + QLatin1String("passwordFile");
        if (mqtt.username.isEmpty() && !mqtt.passwordFile.isEmpty())
            complain(lineOf(password), password, QStringLiteral("needs the key \"username\""));
        for (const auto& [key, file] :
             {std::pair(prefix + QLatin1String("caFile"), mqtt.caFile),
              std::pair(prefix + QLatin1String("certFile"), mqtt.certFile),
              std::pair(prefix + QLatin1String("keyFile"), mqtt.keyFile)}) {
            if (file.isEmpty())
                continue;
            if (!mqtt.broker.host.isEmpty() && !mqtt.broker.isEncrypted)
                complain(lineOf(key), key,
                         QStringLiteral("has no effect without TLS; expected a \"url\" that begins "
                                        "with mqtts://"));
            requireFile(file, key);
        }
        const QString cert = prefix + QLatin1String("certFile");
        const QString key = prefix + QLatin1String("keyFile");
        if (!mqtt.certFile.isEmpty() && mqtt.keyFile.isEmpty())
            complain(lineOf(cert), cert, QStringLiteral("needs the key \"keyFile\""));
        if (mqtt.certFile.isEmpty() && !mqtt.keyFile.isEmpty())
            complain(lineOf(key), key, QStringLiteral("needs the key \"certFile\""));
        if (!mqtt.keyFile.isEmpty())
            requireSecret(mqtt.keyFile, key);
        if (!mqtt.passwordFile.isEmpty() && requireSecret(mqtt.passwordFile, password)) {
            QString reason;
            if (!secret_file::password(mqtt.passwordFile, &reason))
                complain(lineOf(password), password, reason);
        }
        if (!mqtt.passwordFile.isEmpty() && !mqtt.broker.host.isEmpty() &&
            !mqtt.broker.isEncrypted && !mqtt.broker.isLoopback())
            m_config.warnings.append(
                at(lineOf(password), password) +
                QStringLiteral("the password crosses the network readably; use mqtts://"));
    }

    void readMetrics(const LocatedValue& object, const QString& prefix)
    {
        MetricsConfig& metrics = m_config.metrics.emplace();
        const bool isObject =
            readKeys(object, prefix,
                     {{QStringLiteral("listen"),
                       [this, &metrics](const LocatedValue& value, const QString& key) {
                           if (!readListen(value.value.toString(), metrics))
                               complainOf(value, key,
                                          QStringLiteral("an address and a port such as "
                                                         "\"127.0.0.1:9464\""));
                       }},
                      {QStringLiteral("textfile"), path(metrics.textfile)}});
        if (!isObject)
            return;
        if (object.members.isEmpty())
            complain(object.line, prefix,
                     QStringLiteral("expected \"listen\", \"textfile\" or both"));
        if (!metrics.textfile.isEmpty() && !metrics.textfile.endsWith(QLatin1String(".prom"))) {
            const QString key = prefix + QLatin1String(".textfile");
            complain(lineOf(key), key,
                     QStringLiteral("expected a file whose name ends in .prom, as collectors "
                                    "require"));
        }
    }

    static bool readListen(const QString& text, MetricsConfig& metrics)
    {
        const qsizetype colon = text.lastIndexOf(u':');
        bool isNumber = false;
        const uint port = text.sliced(colon + 1).toUInt(&isNumber);
        QString address = text.left(qMax<qsizetype>(colon, 0));
        if (address.startsWith(u'[') && address.endsWith(u']'))
            address = address.sliced(1, address.size() - 2);
        constexpr uint largestPort = 65535;
        if (!isNumber || port > largestPort || QHostAddress(address).isNull())
            return false;
        metrics.address = address;
        metrics.port = static_cast<quint16>(port);
        return true;
    }

    int lineOf(const QString& key) const { return m_config.lines.value(key); }

    void requireFile(const QString& file, const QString& key)
    {
        if (!QFileInfo(file).isFile())
            complain(lineOf(key), key, QStringLiteral("there is no file %1").arg(file));
        else if (!QFile(file).open(QIODevice::ReadOnly))
            complain(lineOf(key), key, QStringLiteral("cannot read %1").arg(file));
    }

    bool requireSecret(const QString& file, const QString& key)
    {
        const QString objection = secret_file::objection(file);
        if (!objection.isEmpty())
            complain(lineOf(key), key, objection);
        return objection.isEmpty();
    }

    AgentConfig m_config;
    QString m_folder;
    ConfigUse m_use;
    QStringList m_mistakes;
};

} // namespace

MqttOptions connectionOptions(const MqttConfig& config)
{
    MqttOptions options;
    options.broker = config.broker;
    options.protocol = config.protocol == MqttConfig::Protocol::Mqtt5
                           ? MqttOptions::Protocol::Mqtt5
                           : MqttOptions::Protocol::Mqtt311;
    options.username = config.username;
    options.passwordFile = config.passwordFile;
    options.caFile = config.caFile;
    options.certFile = config.certFile;
    options.keyFile = config.keyFile;
    options.keepAlive = config.keepAlive;
    options.longestDelay = config.longestDelay;
    options.firstDelay = std::min(options.firstDelay, options.longestDelay);
    return options;
}

QString AgentConfig::place(const QString& key) const
{
    return QStringLiteral("%1:%2: %3").arg(file).arg(lines.value(key)).arg(key);
}

QString defaultDataFolder()
{
    // https://www.freedesktop.org/software/systemd/man/systemd.exec.html, StateDirectory=
    const QString ofService = qEnvironmentVariable("STATE_DIRECTORY").section(u':', 0, 0);
    if (!ofService.isEmpty())
        return ofService;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/VxPrinterStatus/agent");
}

AgentConfig readAgentConfig(const QString& fileName, ConfigUse use)
{
    return ConfigReader(fileName, use).read();
}
