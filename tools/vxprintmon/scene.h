// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <variant>

/// The printers that the tool runs on: the system's own, or virtual ones with a story. The build
/// chooses the source file that implements it.
class Scene : public QObject
{
    Q_OBJECT

public:
    /// Sets the scene that the command line asks for.
    struct Failure
    {
        QString text;
        int exitStatus = 1;
    };
    static std::variant<std::unique_ptr<Scene>, Failure> make(const CommandLine& line);

    /// Lets time pass, and the story begin where there is one. `audience` answers how many printers
    /// are watched at that moment.
    virtual void begin(const std::function<int()>& audience) = 0;

    /// What a print queue holds, where that can be looked at.
    struct Job
    {
        int id = 0;
        QString document;
        QString datatype;
        QList<QByteArray> pages;
    };
    virtual std::optional<Job> lastJob(const QString& printer) const = 0;

Q_SIGNALS:
    /// What happens next to the printers.
    void told(const QString& caption);
    /// There may be printers that were not there before.
    void printersMayHaveCome();

protected:
    using QObject::QObject;
};
