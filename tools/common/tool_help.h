// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// The help of a tool with several commands, and how people ask for it: `-h`, `--help`, `help`,
/// `help COMMAND`, `COMMAND --help` and `--version`. All texts are translated already.
class ToolHelp
{
public:
    struct Option
    {
        QString spelling; ///< "--language TAG"
        QString summary;
    };
    struct Command
    {
        QString name;
        QString arguments;   ///< "FILE SKU"
        QString summary;     ///< one line, for the list of commands
        QStringList details; ///< paragraphs with what the summary does not say
        QStringList options; ///< the spellings of those that it accepts, besides the help
    };

    QString tool;
    QString summary;
    QList<Command> commands;
    QList<Option> options;
    QStringList notes; ///< paragraphs below the list of options

    /// What to print in place of running a command: the help for the whole tool or for a command,
    /// or the version. Nothing if the user did not ask for it. `words` are the arguments without
    /// the options. Throws Failure if the user asks for help about an unknown command.
    std::optional<QString> answer(const QStringList& words, bool wantsHelp,
                                  bool wantsVersion) const;

    /// The names of the commands, separated by commas.
    QString commandNames() const;

private:
    QString overview() const;
    QString about(const Command& command) const;
    const Command* find(const QString& name) const;
    QString optionList(const std::optional<QStringList>& spellings = {}) const;
};
