// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "svg_drawing.h"

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>
#include <QtGui/QPainter>
#include <QtGui/QPen>

namespace VxKit {

namespace {

/// Numbers separated by spaces or commas; empty if a word is not a number.
std::optional<QList<double>> numbersOf(QString text)
{
    QList<double> numbers;
    const QStringList words = text.replace(QLatin1Char(','), QLatin1Char(' '))
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        bool isNumber = false;
        numbers.append(word.toDouble(&isNumber));
        if (!isNumber)
            return std::nullopt;
    }
    return numbers;
}

/// The path that the attribute "d" describes.
class PathReader
{
public:
    bool append(QChar command, const QList<double>& numbers)
    {
        switch (command.unicode()) {
        case 'M':
            return eachPair(numbers, [this](QPointF point) { m_path.moveTo(point); });
        case 'L':
            return eachPair(numbers, [this](QPointF point) { m_path.lineTo(point); });
        case 'H':
            return numbers.size() == 1 && lineTo({numbers.first(), m_path.currentPosition().y()});
        case 'V':
            return numbers.size() == 1 && lineTo({m_path.currentPosition().x(), numbers.first()});
        case 'C':
            if (numbers.size() != 6)
                return false;
            m_path.cubicTo(numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3),
                           numbers.at(4), numbers.at(5));
            return true;
        case 'Z':
            m_path.closeSubpath();
            return numbers.isEmpty();
        default:
            return false;
        }
    }

    QPainterPath path() const { return m_path; }

private:
    bool lineTo(QPointF point)
    {
        m_path.lineTo(point);
        return true;
    }

    template <typename Draw>
    static bool eachPair(const QList<double>& numbers, const Draw& draw)
    {
        for (qsizetype i = 0; i + 1 < numbers.size(); i += 2)
            draw(QPointF(numbers.at(i), numbers.at(i + 1)));
        return !numbers.isEmpty() && numbers.size() % 2 == 0;
    }

    QPainterPath m_path;
};

std::optional<QPainterPath> pathOf(const QString& description)
{
    PathReader reader;
    qsizetype at = 0;
    while (at < description.size()) {
        const QChar command = description.at(at);
        qsizetype end = at + 1;
        while (end < description.size() && !description.at(end).isLetter())
            ++end;
        const auto numbers = numbersOf(description.mid(at + 1, end - at - 1));
        if (!numbers || !reader.append(command, *numbers))
            return std::nullopt;
        at = end;
    }
    return reader.path();
}

std::optional<QPainterPath> shapeOf(const QString& element, const QXmlStreamAttributes& attributes)
{
    if (element == QLatin1String("path"))
        return pathOf(attributes.value(QLatin1String("d")).toString());
    if (element != QLatin1String("circle"))
        return std::nullopt;
    const double radius = attributes.value(QLatin1String("r")).toDouble();
    if (!(radius > 0))
        return std::nullopt;
    QPainterPath path;
    path.addEllipse(QPointF(attributes.value(QLatin1String("cx")).toDouble(),
                            attributes.value(QLatin1String("cy")).toDouble()),
                    radius, radius);
    return path;
}

bool isPainted(const QXmlStreamAttributes& attributes, QLatin1String what)
{
    return attributes.hasAttribute(what) && attributes.value(what) != QLatin1String("none");
}

} // namespace

std::optional<SvgDrawing> SvgDrawing::parse(const QByteArray& text)
{
    SvgDrawing drawing;
    QXmlStreamReader xml(text);
    while (xml.readNext() != QXmlStreamReader::EndDocument && !xml.hasError()) {
        if (!xml.isStartElement())
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("svg")) {
            const auto box = numbersOf(attributes.value(QLatin1String("viewBox")).toString());
            if (!box || box->size() != 4)
                return std::nullopt;
            drawing.m_viewBox = QRectF(box->at(0), box->at(1), box->at(2), box->at(3));
            continue;
        }
        const auto path = shapeOf(xml.name().toString(), attributes);
        const auto dashes =
            numbersOf(attributes.value(QLatin1String("stroke-dasharray")).toString());
        if (!path || !dashes)
            return std::nullopt;
        Part part;
        part.path = *path;
        part.isSign = attributes.value(QLatin1String("class")) == QLatin1String("sign");
        part.isFilled = isPainted(attributes, QLatin1String("fill"));
        if (isPainted(attributes, QLatin1String("stroke")))
            part.strokeWidth = attributes.value(QLatin1String("stroke-width")).toDouble();
        part.dashes = *dashes;
        drawing.m_parts.append(part);
    }
    if (xml.hasError() || drawing.m_viewBox.isEmpty() || drawing.m_parts.isEmpty())
        return std::nullopt;
    return drawing;
}

void SvgDrawing::paint(QPainter& painter, const QRectF& rect, const QColor& color,
                       const QColor& sign) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / m_viewBox.width(), rect.height() / m_viewBox.height());
    painter.translate(-m_viewBox.topLeft());
    for (const Part& part : m_parts) {
        const QColor& own = part.isSign ? sign : color;
        if (part.isFilled)
            painter.fillPath(part.path, own);
        if (part.strokeWidth > 0) {
            QPen pen(own, part.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
            if (!part.dashes.isEmpty()) {
                pen.setCapStyle(Qt::FlatCap); // round ends would close the gaps
                QList<double> inWidths = part.dashes;
                for (double& dash : inWidths)
                    dash /= part.strokeWidth;
                pen.setDashPattern(inWidths);
            }
            painter.strokePath(part.path, pen);
        }
    }
    painter.restore();
}

} // namespace VxKit
