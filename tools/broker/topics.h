// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <optional>

/// The topics of agents: "vxprint/v1/SITE/HOST/" with "state", "event" and "printer/NAME".
namespace topics {

enum class Escaping
{
    Usual,
    /// Spaces and dots too: NATS closes a connection that publishes under a topic with one.
    Nats,
};

/// A name as one level of a topic: "/", "+", "#", "%", control characters and noncharacters are
/// written as "%2F" and the like, in UTF-8. So is a "$" at its beginning, which brokers keep to
/// themselves. Half a surrogate pair, which is no character, is written as U+FFFD.
QString level(const QString& name, Escaping escaping = Escaping::Usual);
/// The name that `level` wrote; empty if it cannot have.
std::optional<QString> nameOf(const QString& level);

/// The longest topic in bytes that MQTT allows.
inline constexpr qsizetype longest = 65535;

/// The topics of one agent.
class AgentTopics
{
public:
    AgentTopics(const QString& site, const QString& host, Escaping escaping = Escaping::Usual);

    QString root() const { return m_root; } ///< with a "/" at its end
    QString state() const;
    QString event() const;
    QString printer(const QString& name) const;

private:
    Escaping m_escaping;
    QString m_root;
};

/// What a topic of an agent is about.
struct Place
{
    enum class Kind
    {
        State,
        Event,
        Printer,
    };
    Kind kind = Kind::State;
    QString site;
    QString host;
    QString printer; ///< empty unless it is about one
};
/// Empty for a topic that no agent uses.
std::optional<Place> placeOf(const QString& topic);

/// What a reader subscribes to for one site, or with an empty name for all.
QString filterOf(const QString& site);

} // namespace topics
