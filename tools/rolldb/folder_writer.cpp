// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "folder_writer.h"

#include "failure.h"
#include "file_replacement.h"
#include "mistakes.h"
#include "table_layouts.h"
#include "tool_text.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace {

Failure failureAt(const QString& path, const QString& reason)
{
    return Failure(QStringLiteral("%1: %2").arg(path, reason));
}

/// A table's form with tabs; empty for a picture.
QString tabbedForm(const QString& name)
{
    return name.endsWith(QLatin1String(".csv")) && !name.contains(u'/')
               ? name.chopped(3) + QStringLiteral("tsv")
               : QString();
}

/// The files of the folder that would be replaced.
QStringList existingFiles(const QMap<QString, QByteArray>& files, const QDir& folder)
{
    QStringList found;
    for (auto file = files.begin(); file != files.end(); ++file) {
        for (const QString& name : {file.key(), tabbedForm(file.key())}) {
            const QFileInfo info(folder.filePath(name));
            if (!name.isEmpty() && (info.exists() || info.isSymLink()))
                found.append(name);
        }
    }
    return found;
}

void requireFree(const QStringList& existing, const QDir& folder)
{
    Mistakes mistakes;
    int number = 0;
    for (const QString& name : existing)
        mistakes.add(
            0,
            Mistake(
                ++number, 0,
                ToolText::tr("%1 exists already; --force replaces it").arg(folder.filePath(name))));
    mistakes.throwIfAny();
}

void createFolder(const QString& path)
{
    if (!QDir().mkpath(path))
        throw failureAt(path, ToolText::tr("the folder cannot be created"));
}

void writeNewFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    // Two names may be the same on a system that does not distinguish upper and lower case.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered) ||
        !writeAll(file, bytes))
        throw failureAt(path, file.errorString());
}

/// Moves a file or a folder on the same disk. An existing file is replaced.
void move(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(),
                            QFileInfo(to).filesystemFilePath(), error);
    if (error)
        throw failureAt(to, QString::fromLocal8Bit(error.message()));
}

} // namespace

void writeFolder(const QMap<QString, QByteArray>& files, const QString& folder, bool isForced)
{
    const QDir target(folder);
    const bool isNew = !QFileInfo::exists(folder);
    if (!isNew && !QFileInfo(folder).isDir())
        throw failureAt(folder, ToolText::tr("not a directory"));
    const QStringList existing = existingFiles(files, target);
    if (!isForced)
        requireFree(existing, target);
    for (const QString& name : existing)
        requireFileOrNothing(target.filePath(name));

    const QString beside = isNew ? QFileInfo(target.absolutePath()).absolutePath() : folder;
    const QTemporaryDir workshop(beside + QStringLiteral("/.rolldb-XXXXXX"));
    if (!workshop.isValid())
        throw failureAt(beside, workshop.errorString());
    // The workshop itself cannot be read by others, which the folder should not keep.
    const QDir draft(workshop.filePath(QStringLiteral("draft")));
    createFolder(draft.path());
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = draft.filePath(file.key());
        createFolder(QFileInfo(path).path());
        writeNewFile(path, file.value());
    }

    if (isNew) {
        move(draft.path(), target.absolutePath());
        return;
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = target.filePath(file.key());
        createFolder(QFileInfo(path).path());
        move(draft.filePath(file.key()), path);
        // Goes with the workshop.
        const QString tabbed = tabbedForm(file.key());
        if (existing.contains(tabbed))
            move(target.filePath(tabbed), draft.filePath(tabbed));
    }
}
