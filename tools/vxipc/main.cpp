// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include <QtCore/QCoreApplication>

namespace {

constexpr const char* Help = R"(Calls the endpoints that run for this user.

vxipc [OPTIONS] list                            endpoints: name, service, process, application
vxipc [OPTIONS] describe SERVICE                methods of an endpoint
vxipc [OPTIONS] call SERVICE METHOD [ARGUMENT]...

SERVICE is supplyd, m4, printqd, a number, or a name that list prints. A text argument is taken as
it is typed, all others as JSON.

--json          prints JSON
--timeout MS    how long to wait for an endpoint, in milliseconds (10000)
--help          prints this
--              what follows is no option

Exit status: 0 done, 1 failed, 2 wrong usage. Output that cannot be written is
a failure, a pipe that its reader has closed is not.
)";

/// Carries out the command line, and answers the exit status.
int run()
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
            output().write(QString::fromLatin1(Help));
            return Done;
        }
        if (word == QStringLiteral("--json")) {
            options.isJson = true;
        } else if (word == QStringLiteral("--timeout")) {
            bool ok = false;
            const int timeout = given.value(++i).toInt(&ok);
            if (!ok || timeout <= 0)
                return complain(WrongUsage,
                                QStringLiteral("--timeout takes a number of milliseconds"));
            options.timeout = std::chrono::milliseconds(timeout);
        } else if (word.startsWith(QStringLiteral("--"))) {
            return complain(WrongUsage, QStringLiteral("there is no option %1").arg(word));
        } else {
            words.append(word);
        }
    }
    return runCommand(words, options);
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput& standardOutput = output();
    const QCoreApplication app(argc, argv);
    return standardOutput.exitStatus(run());
}
