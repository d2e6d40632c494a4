// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <span>

/// The help of a tool, and how people ask for it: `-h`, `--help`, `help`, `help COMMAND`,
/// `COMMAND --help` and `--version`. All texts are translated already.
///
/// Programs ask for it with `--help-json`. Manual pages and the completions of shells are made from
/// that (scripts/lib/make_help_pages.py).
class ToolHelp
{
public:
    /// What a placeholder stands for, so that a shell can offer it.
    enum class Kind
    {
        Word, ///< a text of which nothing more is known
        Number,
        File,
        Folder,
        Printer, ///< the name of a printer that the monitor lists
        Choice,  ///< one of the choices
    };
    struct Value
    {
        /// "FILE", or "--virtual FILE" if it is another thing for this option than for others.
        QString placeholder;
        Kind kind = Kind::Word;
        QStringList choices; ///< also words that stand for something beside files
    };
    /// The same as a row of a table.
    struct Placeholder
    {
        const char* name;
        Kind kind;
        const char* choices = ""; ///< separated by spaces
    };
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
    QList<Command> commands; ///< none: the tool has options only
    QList<Option> options;
    QStringList notes;   ///< paragraphs below the list of options
    QList<Value> values; ///< of each placeholder in an option or in a command's arguments

    void addValues(std::span<const Placeholder> placeholders);

    /// What to print in place of running a command: the help for the whole tool or for a command,
    /// or the version. Nothing if the user did not ask for it. `words` are the arguments without
    /// the options. Throws Failure if the user asks for help about an unknown command.
    std::optional<QString> answer(const QStringList& words, bool wantsHelp,
                                  bool wantsVersion) const;

    /// All of it as a JSON object with these members. Texts are in the language of the user, and
    /// everything else is the same in every language.
    ///
    /// | member | is |
    /// |---|---|
    /// | `format` | 1; another number if a member changes its meaning |
    /// | `tool`, `version`, `summary` | texts |
    /// | `commands` | a list of objects: `name`, `summary`, `usage` ("FILE SKU"), `details`
    /// (paragraphs), `options` (the names of those that it accepts), `arguments` | | `arguments` |
    /// a list of values with `required` and `repeated` | | `options` | a list of objects: `names`
    /// (["-h", "--help"]), `summary`, `value`, which is null if it takes none | | a value | an
    /// object: `placeholder`, `kind` (`word`, `number`, `file`, `folder`, `printer`, `choice`; null
    /// if the tool does not say), `choices` | | `notes` | paragraphs | | `exitStatus` | a text |
    QString json() const;

    /// The names of the commands, separated by commas.
    QString commandNames() const;

private:
    QString overview() const;
    QString about(const Command& command) const;
    const Command* find(const QString& name) const;
    QString optionList(const std::optional<QStringList>& spellings = {}) const;
    QJsonObject valueOf(const QString& placeholder, const QString& spelling) const;
    QJsonArray argumentsOf(const Command& command) const;
    QJsonArray commandList() const;
    QJsonArray optionObjects() const;
};
