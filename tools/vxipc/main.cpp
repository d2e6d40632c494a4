// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"
#include "failure.h"

#include <QtCore/QCoreApplication>

namespace {

constexpr char helpText[] = R"(Usage: vxipc [OPTION]... COMMAND

Calls the endpoints that run for this user.

Commands:
  list                   list the endpoints: name, service, process, application
  describe SERVICE       list the methods and signals of an endpoint
  call SERVICE METHOD [ARGUMENT]...
                         call a method and print its result
  watch SERVICE [SIGNAL]...
                         print a line of JSON for each emission of the signals,
                         or of all signals, until interrupted

SERVICE is supplyd, m4, printqd, status, a number, or a name printed by list.
Arguments for text parameters are taken as they are, all others are read as
JSON.

Options:
  --json                 print JSON
  --for SECONDS          watch for SECONDS only
  --timeout MS           wait up to MS milliseconds for an endpoint (10000)
  --help                 print this help
  --                     what follows is not an option

Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output
is a failure, unless the reader has closed the pipe.
)";

std::chrono::milliseconds secondsOf(const QString& word)
{
    constexpr double mostSeconds = 1e6;
    bool ok = false;
    const double seconds = word.toDouble(&ok);
    if (!ok || !(seconds > 0) || seconds > mostSeconds)
        throw wrongUsage(QStringLiteral("--for takes a number of seconds"));
    return std::chrono::milliseconds(qRound64(seconds * 1000));
}

void run(StandardOutput& output)
{
    const QStringList given = QCoreApplication::arguments().mid(1);
    QStringList words;
    Options options;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const QString& word = given.at(i);
        if (word == QStringLiteral("--")) {
            words += given.mid(i + 1);
            break;
        }
        if (word == QStringLiteral("--help")) {
            output.write(QString::fromLatin1(helpText));
            return;
        }
        if (word == QStringLiteral("--json")) {
            options.isJson = true;
        } else if (word == QStringLiteral("--timeout")) {
            bool ok = false;
            const int timeout = given.value(++i).toInt(&ok);
            if (!ok || timeout <= 0)
                throw wrongUsage(QStringLiteral("--timeout takes a number of milliseconds"));
            options.timeout = std::chrono::milliseconds(timeout);
        } else if (word == QStringLiteral("--for")) {
            options.watchTime = secondsOf(given.value(++i));
        } else if (word.startsWith(QStringLiteral("--"))) {
            throw wrongUsage(QStringLiteral("unknown option %1").arg(word));
        } else {
            words.append(word);
        }
    }
    runCommand(words, options, output);
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("vxipc");
    const QCoreApplication app(argc, argv);
    return runTool(output, [&output] { run(output); });
}
