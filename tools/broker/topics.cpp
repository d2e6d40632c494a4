// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "topics.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringDecoder>
#include <QtCore/QStringList>

namespace {

const QString prefix = QStringLiteral("vxprint/v1/");

/// Brokers do not accept noncharacters either.
bool mustBeEscaped(char32_t code, bool isFirst, topics::Escaping escaping)
{
    return code == U'/' || code == U'+' || code == U'#' || code == U'%' ||
           QChar::category(code) == QChar::Other_Control || QChar::isNonCharacter(code) ||
           (isFirst && code == U'$') ||
           (escaping == topics::Escaping::Nats && (code == U' ' || code == U'.'));
}

/// The value of a hexadecimal digit; negative if it is none.
int digitOf(QChar letter)
{
    const QString digits = QStringLiteral("0123456789ABCDEF");
    return static_cast<int>(digits.indexOf(letter.toUpper()));
}

} // namespace

QString topics::level(const QString& name, Escaping escaping)
{
    QString text;
    for (const QList<uint> codes = name.toUcs4(); const char32_t given : codes) {
        const char32_t code =
            QChar::isSurrogate(given) ? char32_t(QChar::ReplacementCharacter) : given;
        const QString letter = QString::fromUcs4(&code, 1);
        if (!mustBeEscaped(code, text.isEmpty(), escaping)) {
            text += letter;
            continue;
        }
        for (const QByteArray bytes = letter.toUtf8(); const char byte : bytes)
            text += u'%' +
                    QString::number(static_cast<uchar>(byte), 16).toUpper().rightJustified(2, u'0');
    }
    return text;
}

std::optional<QString> topics::nameOf(const QString& level)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < level.size(); ++i) {
        if (level.at(i) != u'%') {
            const bool isPair = level.at(i).isHighSurrogate() && i + 1 < level.size();
            bytes += QStringView(level).sliced(i, isPair ? 2 : 1).toUtf8();
            i += isPair ? 1 : 0;
            continue;
        }
        const int high = i + 2 < level.size() ? digitOf(level.at(i + 1)) : -1;
        const int low = i + 2 < level.size() ? digitOf(level.at(i + 2)) : -1;
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes += static_cast<char>(high * 16 + low);
        i += 2;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString name = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(name);
}

topics::AgentTopics::AgentTopics(const QString& site, const QString& host, Escaping escaping)
    : m_escaping(escaping)
    , m_root(prefix + level(site, escaping) + u'/' + level(host, escaping) + u'/')
{}

QString topics::AgentTopics::state() const
{
    return m_root + QLatin1String("state");
}

QString topics::AgentTopics::event() const
{
    return m_root + QLatin1String("event");
}

QString topics::AgentTopics::printer(const QString& name) const
{
    return m_root + QLatin1String("printer/") + level(name, m_escaping);
}

std::optional<topics::Place> topics::placeOf(const QString& topic)
{
    if (!topic.startsWith(prefix))
        return std::nullopt;
    const QStringList levels = topic.sliced(prefix.size()).split(u'/');
    const QString kind = levels.value(2);
    const bool isPrinter = kind == QLatin1String("printer") && levels.size() == 4;
    const bool isState = kind == QLatin1String("state") && levels.size() == 3;
    const bool isEvent = kind == QLatin1String("event") && levels.size() == 3;
    if (!isPrinter && !isState && !isEvent)
        return std::nullopt;
    const std::optional<QString> site = nameOf(levels.at(0));
    const std::optional<QString> host = nameOf(levels.at(1));
    const std::optional<QString> printer = nameOf(levels.value(3));
    if (!site || !host || !printer)
        return std::nullopt;
    return Place{isPrinter ? Place::Kind::Printer
                 : isState ? Place::Kind::State
                           : Place::Kind::Event,
                 *site, *host, *printer};
}

QString topics::filterOf(const QString& site)
{
    return prefix + (site.isEmpty() ? QStringLiteral("+") : level(site)) + QLatin1String("/#");
}
