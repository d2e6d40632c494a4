// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "redaction.h"

#include <algorithm>

namespace {

/// Whether the character continues a word. A name that is a part of a longer word is not the name.
bool isOfWord(QChar character)
{
    return character.isLetterOrNumber();
}

} // namespace

void Redaction::add(const QString& name, const QString& replacement)
{
    addSpelling(name, replacement);
    // As programs write it whose code page lacks some of its letters, or is taken for UTF-8.
    for (const QChar substitute : {QChar(u'?'), QChar(QChar::ReplacementCharacter)}) {
        QString spelling = name;
        for (QChar& letter : spelling) {
            if (letter.unicode() > 0x7f)
                letter = substitute;
        }
        if (spelling != name)
            addSpelling(spelling, replacement);
    }
}

void Redaction::addSpelling(const QString& name, const QString& replacement)
{
    const QString text = name.trimmed();
    const auto isSame = [&](const Name& other) {
        return other.text.compare(text, Qt::CaseInsensitive) == 0;
    };
    if (text.size() < 2 || std::any_of(m_names.begin(), m_names.end(), isSame))
        return;
    const auto place = std::find_if(m_names.begin(), m_names.end(), [&](const Name& other) {
        return other.text.size() < text.size();
    });
    m_names.insert(place, {text, replacement});
}

QString Redaction::redacted(const QString& text) const
{
    QString result = text;
    for (const Name& name : m_names) {
        qsizetype from = 0;
        while ((from = result.indexOf(name.text, from, Qt::CaseInsensitive)) >= 0) {
            const qsizetype end = from + name.text.size();
            const bool continuesLeft =
                from > 0 && isOfWord(name.text.front()) && isOfWord(result.at(from - 1));
            const bool continuesRight =
                end < result.size() && isOfWord(name.text.back()) && isOfWord(result.at(end));
            if (continuesLeft || continuesRight) {
                from = end;
                continue;
            }
            result.replace(from, name.text.size(), name.replacement);
            from += name.replacement.size();
        }
    }
    return result;
}

QStringList Redaction::replacements() const
{
    QStringList all;
    for (const Name& name : m_names) {
        if (!all.contains(name.replacement))
            all.append(name.replacement);
    }
    std::sort(all.begin(), all.end());
    return all;
}
