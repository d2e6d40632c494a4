// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_event.h>
#include <printer_reading.h>

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

/// How it stands with the source of a site's readings.
struct SiteState
{
    bool isConnected = false;
    /// Why there is no connection, in one line that says what to do; empty while there is one, and
    /// during the first attempt.
    QString reason{};
    /// Since when there is no connection; invalid while there is one, and if there never was.
    QDateTime unconnectedSince{};
    /// The agents that are offline, by name.
    QStringList offlineAgents{};
    /// How many messages could not be read, and why the last one could not, in one line.
    qint64 unreadable = 0;
    QString lastUnreadable{};
    /// How many messages told of more printers or agents than are kept.
    qint64 beyondLimits = 0;

    bool operator==(const SiteState&) const = default;
};

/// The printers of a whole site, as its agents publish them.
///
/// A printer is named "NAME (HOST)", or "NAME (SITE/HOST)" when all sites are shown, so that
/// printers with one name on two computers are two. A reading of an agent that is offline has no
/// known status, and `watching()` and `unheardSince()` say why; so they do while there is no
/// connection.
///
/// Changes come in batches, ten a second at most.
class SiteSource : public QObject
{
    Q_OBJECT

public:
    virtual void start() = 0;
    virtual SiteState state() const = 0;
    virtual QList<VxKit::PrinterReading> readings() const = 0;

Q_SIGNALS:
    void changed(const QList<VxKit::PrinterReading>& readings);
    void removed(const QStringList& names);
    /// What has happened just now. Events that reach the broker late are left out.
    void happened(const QList<VxKit::PrinterEvent>& events);
    void stateChanged(const SiteState& state);
    /// What the broker has kept is known, for the first time.
    void listed();
    /// One line for those who look after the site, at most one a minute of each kind.
    void warned(const QString& line);

protected:
    using QObject::QObject;
};

/// A site as the command line names it.
struct Site
{
    QString name;   ///< empty: all sites of the broker
    QString broker; ///< its URL
    /// Makes the source, on the thread on which it is to live.
    std::function<std::unique_ptr<SiteSource>()> open{};
    /// What is allowed but unwise.
    QStringList warnings{};
};

struct SiteArguments
{
    QString url;        ///< of --broker; empty: that of the file
    QString configFile; ///< of --broker-config; empty: no user, no certificates of one's own
    QString program;    ///< names the client to the broker
};

/// Throws a `Failure` if the arguments or the file are wrong, or if the build has no MQTT.
Site siteOf(const SiteArguments& arguments);

Q_DECLARE_METATYPE(SiteState)
