// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "identifier_search.h"

#include "database_reader.h"
#include "failure.h"
#include "json_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <supplyc.h>
#include <supplydb_schema.h>

#include <algorithm>

namespace {

constexpr qsizetype identifierLength = 20;

/// Whether two texts differ in one character, or in two neighbours that are swapped.
bool differByASlip(const QString& left, const QString& right)
{
    if (left.size() != right.size())
        return false;
    QList<qsizetype> places;
    for (qsizetype i = 0; i < left.size(); ++i) {
        if (left.at(i) != right.at(i))
            places.append(i);
    }
    if (places.size() == 2)
        return places.at(1) == places.at(0) + 1 &&
               left.at(places.at(0)) == right.at(places.at(1)) &&
               left.at(places.at(1)) == right.at(places.at(0));
    return places.size() == 1;
}

bool standsForNothing(const QString& identifier)
{
    const bool isZeros =
        identifier.size() == identifierLength && identifier.count(u'0') == identifierLength;
    return isZeros || identifier.isEmpty() || identifier == QLatin1String("-1") ||
           identifier == QLatin1String("0") || identifier == QLatin1String("4294967295");
}

class Search
{
public:
    Search(const QString& path, const Catalogue& catalogue, const ReportStyle& style)
        : m_path(path)
        , m_catalogue(catalogue)
        , m_style(style)
    {}

    QString report(const QString& identifier) const
    {
        if (standsForNothing(identifier))
            throw Failure(ToolText::tr("\"%1\" is what a printer reports when nothing is loaded")
                              .arg(identifier));
        if (const SupplyC supply(identifier); supply.isDecoded())
            return supplyWith(identifier, supply);
        bool isNumber = false;
        const int number = identifier.toInt(&isNumber);
        if (isNumber && number >= 1 && number <= supplydb_schema::maxRibbonNumber &&
            identifier == QString::number(number))
            return ribbonWith(number);
        throw malformed(identifier);
    }

private:
    QString supplyWith(const QString& identifier, const SupplyC& decoded) const
    {
        const auto supply =
            std::ranges::find_if(m_catalogue.supplies, [&decoded](const Catalogue::Supply& each) {
                return each.kinds.contains(decoded.kind);
            });
        const QString kind = QStringLiteral("%1").arg(decoded.kind, 6, 10, QLatin1Char('0'));
        if (supply == m_catalogue.supplies.end())
            throw notFound(ToolText::tr("no supply of the kind %1").arg(kind),
                           similar(m_catalogue.supplies, &Catalogue::Supply::kinds, decoded.kind));
        if (m_style.isJson)
            return json_text::object(
                       {{QStringLiteral("identifier"), json_text::value(identifier)},
                        {QStringLiteral("lengthInFeet"), json_text::value(decoded.lengthInFeet)},
                        {QStringLiteral("kind"), json_text::value(decoded.kind)},
                        {QStringLiteral("roll"), json_text::value(decoded.rollNumber)},
                        {QStringLiteral("found"),
                         supplyJson(m_catalogue, *supply, m_style.language, true)}}) +
                   u'\n';
        return text_layout::paragraph(
                   ToolText::tr("Roll %1 of the kind %2, which was %3 feet (%4 inches) long when "
                                "it was new.")
                       .arg(decoded.rollNumber)
                       .arg(kind)
                       .arg(decoded.lengthInFeet)
                       .arg(qint64{decoded.lengthInFeet} * 12)) +
               lengthNote(decoded, *supply) + u'\n' +
               supplyReport(m_catalogue, *supply, m_style.language);
    }

    static QString lengthNote(const SupplyC& decoded, const Catalogue::Supply& supply)
    {
        if (decoded.lengthInFeet * 12.0 == supply.length)
            return {};
        return text_layout::paragraph(
            ToolText::tr("The catalogue has another length, so the library cannot tell how much of "
                         "the roll is left."));
    }

    QString ribbonWith(int number) const
    {
        const auto ribbon =
            std::ranges::find_if(m_catalogue.ribbons, [number](const Catalogue::Ribbon& each) {
                return each.numbers.contains(number);
            });
        if (ribbon == m_catalogue.ribbons.end())
            throw notFound(ToolText::tr("no ribbon with the number %1").arg(number),
                           similar(m_catalogue.ribbons, &Catalogue::Ribbon::numbers, number));
        if (m_style.isJson)
            return json_text::object(
                       {{QStringLiteral("identifier"), json_text::value(QString::number(number))},
                        {QStringLiteral("number"), json_text::value(number)},
                        {QStringLiteral("found"),
                         ribbonJson(m_catalogue, *ribbon, m_style.language, true)}}) +
                   u'\n';
        return ribbonReport(m_catalogue, *ribbon, m_style.language);
    }

    Failure malformed(const QString& identifier) const
    {
        const bool isSku = supplyOf(m_catalogue, identifier) || ribbonOf(m_catalogue, identifier);
        return Failure(QStringLiteral("%1: %2").arg(
            m_path,
            isSku ? ToolText::tr("\"%1\" is a SKU; show prints what the file has about it")
                        .arg(identifier)
                  : ToolText::tr("\"%1\" is no identifier; expected the 20 characters of a supply "
                                 "(8 hexadecimal, 6 decimal and 6 hexadecimal digits) or the "
                                 "number of a ribbon from 1 to %2")
                        .arg(identifier, QString::number(supplydb_schema::maxRibbonNumber))));
    }

    Failure notFound(const QString& reason, const QStringList& similar) const
    {
        const QString message = QStringLiteral("%1: %2").arg(m_path, reason);
        return Failure(
            similar.isEmpty()
                ? message
                : ToolText::tr("%1; similar: %2").arg(message, similar.join(QStringLiteral(", "))));
    }

    /// The numbers that differ from the wanted one by a slip, with the SKUs that they stand for.
    template <typename Row>
    static QStringList similar(const QList<Row>& rows, QList<int> Row::*numbers, int wanted)
    {
        constexpr qsizetype most = 5;
        QStringList found;
        for (const Row& row : rows) {
            for (const int number : row.*numbers) {
                if (found.size() < most &&
                    differByASlip(QString::number(number), QString::number(wanted)))
                    found.append(QStringLiteral("%1 (%2)").arg(QString::number(number), row.sku));
            }
        }
        return found;
    }

    const QString& m_path;
    const Catalogue& m_catalogue;
    const ReportStyle& m_style;
};

} // namespace

QString identifierReport(const QString& path, const QString& identifier, const ReportStyle& style)
{
    const Catalogue catalogue = readDatabase(path);
    return Search(path, catalogue, style).report(identifier);
}
