// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "output.h"

#include "terminal.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QtGlobal>

#include <algorithm>
#include <cstdio>

namespace {

const char* escapeOf(Colour colour)
{
    switch (colour) {
    case Colour::None:
        return "";
    case Colour::Good:
        return "\033[32m";
    case Colour::Notice:
        return "\033[33m";
    case Colour::Bad:
        return "\033[1;31m";
    case Colour::Faint:
        return "\033[2m";
    case Colour::Heading:
        return "\033[1m";
    }
    return "";
}

bool wantsColours()
{
    return qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb" &&
           terminal::takesColours();
}

QString jsonText(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

} // namespace

Output::Output()
    : m_stream(stdout)
    , m_hasColours(wantsColours())
{}

QString Output::coloured(const Cell& cell, qsizetype width) const
{
    const QString padding(std::max<qsizetype>(0, width - cell.text.size()), QLatin1Char(' '));
    if (!m_hasColours || cell.colour == Colour::None)
        return cell.text + padding;
    return QLatin1String(escapeOf(cell.colour)) + cell.text + QLatin1String("\033[0m") + padding;
}

void Output::line(const QList<Cell>& cells)
{
    QString text;
    for (const Cell& cell : cells)
        text += coloured(cell);
    this->text(text + QLatin1Char('\n'));
}

void Output::text(const QString& text)
{
    m_stream << text;
    m_stream.flush();
}

void Output::table(const QStringList& heading, const QList<QList<Cell>>& rows)
{
    QList<QList<Cell>> all;
    QList<Cell>& first = all.emplace_back();
    for (const QString& title : heading)
        first.append({title, Colour::Heading});
    all += rows;

    QList<qsizetype> widths(heading.size(), 0);
    for (const QList<Cell>& row : std::as_const(all)) {
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths.at(column), row.at(column).text.size());
    }
    for (const QList<Cell>& row : std::as_const(all)) {
        QString text;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const bool isLast = column == row.size() - 1;
            text += coloured(row.at(column), isLast ? 0 : widths.at(column) + 2);
        }
        this->text(text + QLatin1Char('\n'));
    }
}

QString Output::jsonObject(const QList<QPair<QString, QJsonValue>>& members)
{
    QStringList texts;
    for (const auto& [key, value] : members)
        texts.append(jsonText(key) + QLatin1Char(':') + jsonText(value));
    return QLatin1Char('{') + texts.join(QLatin1Char(',')) + QLatin1Char('}');
}
