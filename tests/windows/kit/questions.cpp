// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "questions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <cstdio>

#include <windows.h>

namespace {

struct QuestionText
{
    Q_DECLARE_TR_FUNCTIONS(vxtestkit)
};

HANDLE input()
{
    return GetStdHandle(STD_INPUT_HANDLE);
}

bool isConsole()
{
    DWORD mode = 0;
    return GetConsoleMode(input(), &mode);
}

/// Nothing at the end of the input.
std::optional<QString> readLine()
{
    if (isConsole()) {
        wchar_t line[200] = {};
        DWORD size = 0;
        if (!ReadConsoleW(input(), line, 199, &size, nullptr) || size == 0)
            return {};
        return QString::fromWCharArray(line, static_cast<qsizetype>(size)).trimmed();
    }
    char line[200] = {};
    if (!std::fgets(line, sizeof line, stdin))
        return {};
    return QString::fromUtf8(line).trimmed();
}

} // namespace

std::optional<bool> answerOf(const QString& word)
{
    static const QStringList yes{
        QStringLiteral("y"),    QStringLiteral("yes"), QStringLiteral("j"),  QStringLiteral("ja"),
        QStringLiteral("s"),    QStringLiteral("si"),  QStringLiteral("sí"), QStringLiteral("sì"),
        QStringLiteral("o"),    QStringLiteral("oui"), QStringLiteral("h"),  QStringLiteral("hai"),
        QStringLiteral("はい"), QStringLiteral("是")};
    static const QStringList no{QStringLiteral("n"),    QStringLiteral("no"),
                                QStringLiteral("nein"), QStringLiteral("non"),
                                QStringLiteral("iie"),  QStringLiteral("いいえ"),
                                QStringLiteral("否"),   QStringLiteral("不是")};
    const QString lower = word.trimmed().toLower();
    if (yes.contains(lower))
        return true;
    if (no.contains(lower))
        return false;
    return {};
}

bool Questions::isYes(const QString& question)
{
    for (;;) {
        m_output.write(question + QLatin1Char(' ') +
                       QuestionText::tr("[y/n]", "the first letters of yes and no") +
                       QLatin1Char(' '));
        const std::optional<QString> line = readLine();
        if (!line) {
            m_output.write(QStringLiteral("\n"));
            return false;
        }
        if (const std::optional<bool> answer = answerOf(*line))
            return *answer;
    }
}

void Questions::waitForEnter(const QString& text)
{
    if (!isConsole())
        return;
    m_output.write(text);
    readLine();
}
