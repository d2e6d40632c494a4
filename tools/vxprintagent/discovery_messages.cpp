// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "discovery_messages.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

/// A name of letters and digits for a printer, which two printers never share.
QString identifierOf(const QString& topic)
{
    constexpr qsizetype digits = 20;
    const QByteArray hash = QCryptographicHash::hash(topic.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("vxprint_") + QString::fromLatin1(hash.toHex().left(digits));
}

QString slotTitle(VxKit::Slot slot)
{
    switch (slot) {
    case VxKit::Slot::Supply:
        return QStringLiteral("Labels");
    case VxKit::Slot::Ribbon1:
        return QStringLiteral("Ribbon");
    case VxKit::Slot::Ribbon2:
        return QStringLiteral("Second ribbon");
    }
    return {};
}

} // namespace

QList<MqttMessage> discoveryMessages(const QString& prefix, const topics::AgentTopics& topics,
                                     const VxKit::PrinterReading& reading)
{
    const QString topic = topics.printer(reading.name());
    const QString id = identifierOf(topic);
    QJsonObject device{{QStringLiteral("identifiers"), QJsonArray{id}},
                       {QStringLiteral("name"), reading.name()},
                       {QStringLiteral("model"), reading.driver()}};
    if (!reading.serialNumber().isEmpty())
        device.insert(QStringLiteral("serial_number"), reading.serialNumber());
    if (!reading.firmwareVersion().isEmpty())
        device.insert(QStringLiteral("sw_version"), reading.firmwareVersion());

    QList<MqttMessage> messages;
    const auto add = [&](const QString& component, const QString& object, const QString& name,
                         const QString& value, const QJsonObject& more) {
        QJsonObject entity = more;
        entity.insert(QStringLiteral("name"), name);
        entity.insert(QStringLiteral("unique_id"), id + u'_' + object);
        entity.insert(QStringLiteral("state_topic"), topic);
        entity.insert(QStringLiteral("value_template"), value);
        entity.insert(QStringLiteral("availability_topic"), topics.state());
        entity.insert(QStringLiteral("device"), device);
        messages.append({QStringLiteral("%1/%2/%3/%4/config").arg(prefix, component, id, object),
                         QJsonDocument(entity).toJson(QJsonDocument::Compact), true});
    };
    add(QStringLiteral("sensor"), QStringLiteral("status"), QStringLiteral("Status"),
        QStringLiteral("{{ value_json.statusKey }}"), {});
    add(QStringLiteral("binary_sensor"), QStringLiteral("problem"), QStringLiteral("Problem"),
        QStringLiteral("{{ 'ON' if value_json.severity == 'error' else 'OFF' }}"),
        {{QStringLiteral("device_class"), QStringLiteral("problem")}});
    for (const QList<VxKit::Slot> places = reading.slotList(); const VxKit::Slot slot : places) {
        const QString object = VxKit::slotName(slot);
        // A level that is not known is "none" there, not 0.
        add(QStringLiteral("sensor"), object, slotTitle(slot),
            QStringLiteral(
                "{{ (value_json.%1.ratio * 100) | round(0) if value_json.%1.ratio is not "
                "none else none }}")
                .arg(object),
            {{QStringLiteral("unit_of_measurement"), QStringLiteral("%")},
             {QStringLiteral("state_class"), QStringLiteral("measurement")}});
    }
    return messages;
}
