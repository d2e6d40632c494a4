// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Makes docs/status-codes.md from the kit's table.
//
// Usage: status_codes_document [--write] FILE
//   Compares FILE with what it should be: exit status 0 if they are the same, 1 if not.
//   --write  writes FILE instead
#include "status_info.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>

#include <cstdio>

namespace {

constexpr char introduction[] = R"(# Status codes

Every printer has one status code at a time: `PrinterStatusInformation::statusEnum` in the library,
`statusCode` in a reading of the kit. This page lists the codes that are known, what each means and what to do
about it. `VxKit::statusInfo` gives the same texts to a host, in seven languages, and
`vxprintmon title CODE` prints them.

The key names a code in JSON and logs. It never changes and is never translated. The severity says how much a
status matters to the person who wants to print:

| severity | meaning |
|---|---|
| `ok` | the printer can print |
| `information` | nothing is wrong: wait, or look elsewhere |
| `warning` | it does not print at the moment, or soon will not, but nothing is broken or used up |
| `error` | it does not print until somebody has done what the remedy says |

Any other code is an error of the printer's driver that is not known. It has the key `printer_error` and the
severity `error`, and its texts contain the number.

This page is made from the kit's table. After a change there, build the target `status_codes_document_update`.

| code | key | severity | title |
|---|---|---|---|
)";

QString document()
{
    const QString english = QStringLiteral("en");
    const QList<VxKit::StatusInfo> all = VxKit::allStatusInfo(english);
    QString text = QString::fromLatin1(introduction);
    for (const VxKit::StatusInfo& info : all)
        text += QStringLiteral("| %1 | `%2` | %3 | %4 |\n")
                    .arg(QString::number(info.code), info.key, VxKit::severityKey(info.severity),
                         info.shortTitle);
    for (const VxKit::StatusInfo& info : all)
        text +=
            QStringLiteral("\n## %1: %2\n\n%3\n\n**What to do:** %4\n")
                .arg(QString::number(info.code), info.shortTitle, info.explanation, info.remedy);
    return text;
}

QByteArray contentsOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll().replace("\r\n", "\n") : QByteArray();
}

bool write(const QString& fileName, const QByteArray& text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool writes = arguments.removeOne(QStringLiteral("--write"));
    QTextStream messages(stderr);
    if (arguments.size() != 1) {
        messages << "status_codes_document: expected [--write] FILE\n";
        return 2;
    }
    const QString& file = arguments.first();
    const QByteArray wanted = document().toUtf8();
    if (writes ? write(file, wanted) : contentsOf(file) == wanted)
        return 0;
    messages << "status_codes_document: " << file
             << (writes ? ": cannot be written\n"
                        : " is not what the kit's table says; build the target "
                          "status_codes_document_update\n");
    return 1;
}
