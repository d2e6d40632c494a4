// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_pseudonyms.h"

#include <algorithm>
#include <iterator>

namespace VxKit {

namespace {

constexpr QLatin1String printerPrefix("Printer ");
/// Of one series.
constexpr qsizetype mostTexts = 100000;
/// Names that are made to lie between each other would make longer and longer labels.
constexpr qsizetype longestLabel = 200;

/// A name without the characters that the log may have broken, or put in their place.
QString asciiPartOf(const QString& name)
{
    QString part = name;
    part.removeIf([](QChar character) { return character.unicode() > 0x7e || character == u'?'; });
    return part;
}

/// The number that follows a label of digits; a longer one when there is none of that length.
QString labelAfter(const QString& label)
{
    QString digits = label.section(u'.', 0, 0);
    for (qsizetype i = digits.size(); i > 0; --i) {
        QChar& digit = digits[i - 1];
        if (digit != u'9') {
            digit = QChar(digit.unicode() + 1);
            return digits;
        }
        digit = u'0';
    }
    return label.section(u'.', 0, 0) + u'1';
}

} // namespace

QString labelBetween(const QString& before, const QString& after)
{
    if (after.isEmpty())
        return before.isEmpty() ? QStringLiteral("1") : labelAfter(before);
    const QString first = before.isEmpty() ? QStringLiteral("0") : before;
    if (!after.startsWith(first + u'.'))
        return first + QStringLiteral(".5");
    // Half of the fraction with which `after` continues.
    const QString fraction = after.sliced(first.size() + 1).section(u'.', 0, 0);
    qsizetype zeros = 0;
    while (fraction.at(zeros) == u'0')
        ++zeros;
    const int digit = fraction.at(zeros).digitValue();
    return first + u'.' + fraction.first(zeros) +
           (digit > 1 ? QString::number(digit / 2) : QStringLiteral("05"));
}

QString CasePseudonyms::of(const char* what, const QString& text)
{
    QHash<QString, QString>& series = m_series[what];
    const auto known = series.constFind(text);
    if (known != series.cend())
        return *known;
    if (series.size() >= mostTexts)
        return QStringLiteral("%1 0").arg(QLatin1String(what));
    const QString pseudonym =
        QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(series.size() + 1);
    series.insert(text, pseudonym);
    return pseudonym;
}

void CasePseudonyms::insertPrinter(const QString& name, const QString& label)
{
    m_printers.insert(name, label);
    // Of two names that the log cannot tell apart, neither is meant.
    QString& known = m_asciiNames[asciiPartOf(name)];
    known = known.isNull() ? name : QStringLiteral("");
}

void CasePseudonyms::learnPrinters(const QStringList& names)
{
    if (!m_printers.isEmpty()) {
        for (const QString& name : names)
            ofPrinter(name);
        return;
    }
    QStringList sorted = names;
    sorted.removeAll(QString());
    sorted.sort();
    sorted.removeDuplicates();
    // Numbers of one length are in the order of their characters too.
    const qsizetype digits = QString::number(sorted.size()).size();
    for (qsizetype i = 0; i < sorted.size(); ++i)
        insertPrinter(sorted.at(i),
                      QString::number(i + 1).rightJustified(digits, QLatin1Char('0')));
}

QString CasePseudonyms::ofPrinter(const QString& name)
{
    const auto found = m_printers.constFind(name);
    if (found != m_printers.cend())
        return printerPrefix + *found;
    const auto next = m_printers.lowerBound(name);
    const QString after = next == m_printers.end() ? QString() : *next;
    const QString before = next == m_printers.begin() ? QString() : *std::prev(next);
    const QString label = labelBetween(before, after);
    if (label.size() > longestLabel || m_printers.size() >= mostTexts)
        return of("Other printer", name);
    insertPrinter(name, label);
    return printerPrefix + label;
}

QString CasePseudonyms::knownInLog(const QString& name) const
{
    return m_printers.contains(name) ? name : m_asciiNames.value(asciiPartOf(name));
}

QString CasePseudonyms::printerInLog(const QString& name)
{
    const QString known = knownInLog(name);
    return ofPrinter(known.isEmpty() ? name : known);
}

bool CasePseudonyms::isPrinterInLog(const QString& name) const
{
    return !knownInLog(name).isEmpty();
}

} // namespace VxKit
