// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"

#include <QtCore/QObject>

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

    /// Lets the story begin, where there is one.
    virtual void begin() {}

Q_SIGNALS:
    /// What happens next to the printers.
    void told(const QString& caption);

protected:
    using QObject::QObject;
};
