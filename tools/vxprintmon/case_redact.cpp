// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_command.h"

#include "case_lines.h"
#include "command_line.h"
#include "failure.h"
#include "json_text.h"
#include "output.h"
#include "tool_text.h"

#include <case_file.h>
#include <case_redaction.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryFile>

using VxKit::CaseLine;

namespace {

/// Names of so many printers are given numbers in their order.
constexpr qsizetype mostNames = 65536;

QStringList namesOfPrinters(const QString& fileName)
{
    QStringList names;
    case_lines::forEach(fileName, [&names](const CaseLine& line) {
        const bool isPrinter = line.kind == QLatin1String("printer") ||
                               line.kind == QLatin1String("printerAdded") ||
                               line.kind == QLatin1String("printerRenamed");
        if (!isPrinter || names.size() >= mostNames)
            return;
        names.append(line.object.value(QLatin1String("name")).toString());
        names.append(line.object.value(QLatin1String("newName")).toString());
    });
    return names;
}

QString reasonOf(const QString& fileName, const QFileDevice& file)
{
    return QStringLiteral("%1: %2").arg(fileName, file.errorString());
}

} // namespace

void redactCase(const CommandLine& line, Output& output)
{
    const QString& source = line.arguments.first();
    const QString& target = line.arguments.last();
    const auto alreadyThere = [&target] {
        return Failure(
            ToolText::tr("%1: there is such a file already; name another one").arg(target));
    };
    if (QFileInfo::exists(target))
        throw alreadyThere();

    VxKit::CaseRedaction redaction;
    redaction.learnPrinters(namesOfPrinters(source));
    // What has the name is complete: until then, the file has another one.
    QTemporaryFile draft(target + QStringLiteral(".XXXXXX"));
    if (!draft.open())
        throw Failure(reasonOf(target, draft));
    qint64 written = 0;
    qint64 leftOut = 0;
    case_lines::forEach(source, [&](const CaseLine& each) {
        const QJsonObject safe = redaction.redacted(each.object);
        if (safe.isEmpty()) {
            ++leftOut;
            return;
        }
        ++written;
        const QByteArray bytes = VxKit::caseLine(safe);
        if (draft.write(bytes) != bytes.size())
            throw Failure(reasonOf(target, draft));
    });
    if (!draft.flush())
        throw Failure(reasonOf(target, draft));
    // Windows does not rename a file that is open, and the object closes it here. It also fails
    // when there is a file of that name in the meantime.
    if (!draft.rename(target)) {
        if (QFileInfo::exists(target))
            throw alreadyThere();
        throw Failure(reasonOf(target, draft));
    }
    draft.setAutoRemove(false);

    if (line.json) {
        output.text(json_text::object({{QStringLiteral("file"), json_text::value(target)},
                                       {QStringLiteral("lines"), json_text::value(written)},
                                       {QStringLiteral("leftOut"), json_text::value(leftOut)}}) +
                    u'\n');
        return;
    }
    output.line({{ToolText::tr("%1: lines written: %2, left out: %3")
                      .arg(target, QString::number(written), QString::number(leftOut))}});
    output.line({{ToolText::tr("Read it before you send it: it is plain text.")}});
}
