// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The files of a catalogue: each follows a line of "@" and its name, those that are not there are
// the ones of a small catalogue that is in order. A catalogue is refused in one line that names a
// file, or a database can be made of it, which the check finds in order.
#include "require.h"
#include "small_catalogue.h"

#include <database_check.h>
#include <fault.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

void takeFiles(const QByteArray& bytes, SmallCatalogue& catalogue)
{
    QString name;
    for (const QByteArray& line : bytes.split('\n')) {
        if (line.startsWith('@')) {
            name = QString::fromUtf8(line.mid(1));
            catalogue.files.insert(name, {});
        } else if (!name.isNull()) {
            catalogue.files[name] += line + '\n';
        }
    }
}

bool isOneLine(const QString& text)
{
    return std::ranges::none_of(text, [](QChar character) {
        return character.category() == QChar::Other_Control ||
               character.category() == QChar::Separator_Line ||
               character.category() == QChar::Separator_Paragraph;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_catalogue";
    static char* argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    static const QTemporaryDir folder;

    SmallCatalogue files;
    takeFiles(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), files);
    Catalogue catalogue;
    try {
        catalogue = files.read();
    } catch (const Fault& fault) {
        const QString file = fault.message().section(u':', 0, 0);
        require(files.files.contains(file), "a fault says in which file it is");
        require(isOneLine(fault.message()), "a fault is one line");
        return 0;
    }
    try {
        const QString path = folder.filePath(QStringLiteral("roll.db"));
        writeDatabase(catalogue, path);
        const DatabaseCounts counts = checkDatabase(path);
        require(counts.supplies == catalogue.supplies.size(), "all supplies are there");
        require(counts.ribbons == catalogue.ribbons.size(), "all ribbons are there");
        require(counts.settings == catalogue.settings.size(), "all print settings are there");
        require(counts.languages == catalogue.languages.size(), "all languages are there");
    } catch (const Fault& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        require(false, "a catalogue that was read can be written");
    }
    return 0;
}
