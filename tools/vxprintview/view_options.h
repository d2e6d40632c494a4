// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the command line asks for.
struct ViewOptions
{
    QString fleetFile;        ///< empty: the built-in fleet, or the system's own printers
    QString broker;           ///< a URL; empty: that of the next
    QString brokerConfigFile; ///< empty: no user, no certificates of one's own
    QString catalogueFile;    ///< empty: what the environment names, or the default
    QString historyFile;      ///< empty: the user's own; none for virtual printers
    QString settingsFile;     ///< empty: the user's own
    QString pictureFile;      ///< save a picture of the window and end
    double pictureAfter = 3;  ///< seconds
    double speed = 1;         ///< of the virtual printers' story
    QSize size;               ///< of the window; invalid: as it was last
    QString language;         ///< a tag; empty: as it was last, or the user's
    QString colors;           ///< "light", "dark" or "system"; empty: as it was last
    bool minimized = false;
    /// Whether it is about the printers of a site.
    bool isOfSite() const { return !broker.isEmpty() || !brokerConfigFile.isEmpty(); }
    QString information; ///< the help or the version, to be printed in place of anything else
};

/// Throws `Failure` if the arguments are wrong.
ViewOptions parseViewOptions(const QStringList& arguments);
