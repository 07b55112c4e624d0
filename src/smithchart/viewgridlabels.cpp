// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "viewgridlabels_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace SmithChart
{

namespace
{

constexpr double labelGapPx = 5.0; ///< between labels side by side, at least
constexpr double labelRowGapPx = 2.0; ///< between labels one below the other
constexpr double lineGapPx = 2.0; ///< between a label and the axis, the rim or the view's edge

QString numberText(double value)
{
    constexpr int digits = 12; // more would show what scaling to a unit rounds
    return QString::number(value, 'g', digits);
}

/// All drawn pieces of one line.
struct LabelledLine {
    GridPart part;
    double value;
    double weight;
    QVector<ViewGridLine> pieces;
};

/// One entry a line, the coarsest first; of two alike the one nearer to zero.
QVector<LabelledLine> byWeight(const QVector<ViewGridLine> &lines)
{
    QVector<LabelledLine> result;
    for (const ViewGridLine &line : lines) { // pieces of a line follow each other
        if (result.isEmpty() || result.last().part != line.part
            || result.last().value != line.value)
            result.append({line.part, line.value, 0.0, {}});
        result.last().weight = std::max(result.last().weight, line.weight);
        result.last().pieces.append(line);
    }
    std::sort(result.begin(), result.end(), [](const LabelledLine &a, const LabelledLine &b) {
        // Weights of a line and its mirror image differ by rounding.
        const double ratio = a.weight / b.weight;
        if (ratio > 1.001 || ratio < 0.999)
            return a.weight > b.weight;
        if (std::abs(a.value) != std::abs(b.value))
            return std::abs(a.value) < std::abs(b.value);
        return a.value > b.value;
    });
    return result;
}

class Placer
{
public:
    Placer(const GridMapping &mapping, const ViewGridLabelRules &rules,
           const QVector<ViewGridLabel> &taken)
        : m_mapping(mapping)
        , m_rules(rules)
        , m_pixels(mapping.pixelRect())
        , m_taken(taken)
    {
    }

    /// The place of a line's label, if there is a free one.
    std::optional<QRectF> placeOf(const LabelledLine &line, const QSizeF &size) const
    {
        if (const std::optional<QRectF> place = atHome(line, size))
            return isFree(*place) ? place : std::nullopt;
        for (const QRectF &place : atEdges(line, size)) {
            if (isFree(place))
                return place;
        }
        return std::nullopt;
    }

private:
    bool isFree(const QRectF &rect) const
    {
        if (crossesRim(rect))
            return false;
        const QRectF roomy = rect.adjusted(-labelGapPx, -labelRowGapPx, labelGapPx, labelRowGapPx);
        return std::none_of(m_taken.cbegin(), m_taken.cend(), [&](const ViewGridLabel &other) {
            return other.rect.intersects(roomy);
        });
    }

    /// The rim is drawn over everything and would strike the text through.
    bool crossesRim(const QRectF &rect) const
    {
        const QPointF middle = m_mapping.toPixel({0.0, 0.0});
        const double radius = std::abs(m_mapping.toPixel({1.0, 0.0}).x() - middle.x());
        const double nearX = middle.x() - std::clamp(middle.x(), rect.left(), rect.right());
        const double nearY = middle.y() - std::clamp(middle.y(), rect.top(), rect.bottom());
        const double farX =
            std::max(std::abs(rect.left() - middle.x()), std::abs(rect.right() - middle.x()));
        const double farY =
            std::max(std::abs(rect.top() - middle.y()), std::abs(rect.bottom() - middle.y()));
        return std::hypot(nearX, nearY) < radius && std::hypot(farX, farY) > radius;
    }

    static QRectF centred(const QPointF &centre, const QSizeF &size)
    {
        return {centre - QPointF(size.width(), size.height()) / 2.0, size};
    }

    /// At the real axis or at the rim, if the line meets it in view.
    std::optional<QRectF> atHome(const LabelledLine &line, const QSizeF &size) const
    {
        const bool reachesHome =
            std::any_of(line.pieces.cbegin(), line.pieces.cend(), [](const ViewGridLine &piece) {
                return piece.from <= 0.0 && piece.to >= 0.0;
            });
        if (!reachesHome)
            return std::nullopt;
        const double value = line.value / m_rules.reference;
        const bool onAxis = line.part == GridPart::Real;
        const double square = value * value;
        const QPointF point = onAxis
            ? QPointF((value - 1.0) / (value + 1.0), 0.0)
            : QPointF((square - 1.0) / (square + 1.0), 2.0 * value / (square + 1.0));
        const QPointF pixel = m_mapping.toPixel(point);
        if (!m_pixels.contains(pixel))
            return std::nullopt;
        QPointF away(0.0, 1.0); // below the axis, or out of the rim
        if (!onAxis)
            away = pixel - m_mapping.toPixel({0.0, 0.0});
        away /= std::hypot(away.x(), away.y());
        const double distance = lineGapPx + std::abs(away.x()) * size.width() / 2.0
            + std::abs(away.y()) * size.height() / 2.0;
        const double side = m_rules.asSecondChart ? -1.0 : 1.0;
        for (const double direction : {side, -side}) {
            const QRectF rect = centred(pixel + away * distance * direction, size);
            if (m_pixels.contains(rect))
                return rect;
        }
        return std::nullopt;
    }

    /// Where the line leaves the view, the edges that it crosses squarely first.
    QVector<QRectF> atEdges(const LabelledLine &line, const QSizeF &size) const
    {
        const double marginX = size.width() / 2.0 + lineGapPx;
        const double marginY = size.height() / 2.0 + lineGapPx;
        const QRectF inset = m_pixels.adjusted(marginX, marginY, -marginX, -marginY);
        std::array<QVector<QRectF>, 4> found; // left, right, top, bottom
        if (inset.isEmpty())
            return {};
        const QRectF area = m_mapping.toChart(inset);
        for (const ViewGridLine &piece : line.pieces) {
            const GridArc arc = gridArc(piece, m_rules.reference);
            for (const ArcStretch &stretch : arc.within(area)) {
                for (const double angle : {stretch.first, stretch.last}) {
                    const QPointF pixel = m_mapping.toPixel(arc.at(angle));
                    const std::array<double, 4> distances = {
                        std::abs(pixel.x() - inset.left()), std::abs(pixel.x() - inset.right()),
                        std::abs(pixel.y() - inset.top()), std::abs(pixel.y() - inset.bottom())};
                    const auto nearest = std::min_element(distances.begin(), distances.end());
                    constexpr double onEdgePx = 0.01; // else the line ends within the view
                    if (*nearest < onEdgePx)
                        found[static_cast<std::size_t>(nearest - distances.begin())].append(
                            centred(pixel, size));
                }
            }
        }
        // Resistances below, reactances at the left, as on axis and rim of the whole chart.
        const std::array<std::size_t, 4> order = line.part == GridPart::Real
            ? std::array<std::size_t, 4>{3, 2, 0, 1}
            : std::array<std::size_t, 4>{0, 1, 2, 3};
        QVector<QRectF> places;
        for (const std::size_t edge : order)
            places += found[edge];
        return places;
    }

    const GridMapping &m_mapping;
    const ViewGridLabelRules &m_rules;
    QRectF m_pixels;
    const QVector<ViewGridLabel> &m_taken;
};

} // namespace

QString gridLabelText(GridPart part, double value, GridUnit unit)
{
    const double size = std::abs(value);
    QString text;
    if (unit == GridUnit::Ohms && size >= 1e6)
        text = numberText(size / 1e6) + QLatin1Char('M');
    else if (unit == GridUnit::Ohms && size >= 1e3)
        text = numberText(size / 1e3) + QLatin1Char('k');
    else if (unit == GridUnit::Siemens && size < 1e-3)
        text = numberText(size * 1e6) + QChar(0xb5); // micro
    else if (unit == GridUnit::Siemens && size < 1.0)
        text = numberText(size * 1e3) + QLatin1Char('m');
    else
        text = numberText(size);
    if (part == GridPart::Imaginary)
        text.prepend(QLatin1Char('j'));
    if (value < 0.0)
        text.prepend(QChar(0x2212)); // minus
    return text;
}

GridView GridMapping::chartView() const
{
    GridView view = m_view;
    if (m_sign < 0.0)
        view.rect.moveTo(-m_view.rect.right(), -m_view.rect.bottom());
    return view;
}

QRectF GridMapping::pixelRect() const
{
    return {0.0, 0.0, m_view.rect.width() * m_view.pixelsPerUnit,
            m_view.rect.height() * m_view.pixelsPerUnit};
}

QPointF GridMapping::toPixel(const QPointF &chartPoint) const
{
    return {(m_sign * chartPoint.x() - m_view.rect.left()) * m_view.pixelsPerUnit,
            (m_view.rect.bottom() - m_sign * chartPoint.y()) * m_view.pixelsPerUnit};
}

QRectF GridMapping::toChart(const QRectF &pixels) const
{
    const QPointF upperLeft(m_view.rect.left() + pixels.left() / m_view.pixelsPerUnit,
                            m_view.rect.bottom() - pixels.top() / m_view.pixelsPerUnit);
    const QPointF lowerRight(m_view.rect.left() + pixels.right() / m_view.pixelsPerUnit,
                             m_view.rect.bottom() - pixels.bottom() / m_view.pixelsPerUnit);
    return QRectF(m_sign * upperLeft, m_sign * lowerRight).normalized();
}

void appendViewGridLabels(const QVector<ViewGridLine> &lines, const GridMapping &mapping,
                          const ViewGridLabelRules &rules, QVector<ViewGridLabel> &labels)
{
    const Placer placer(mapping, rules, labels);
    int counts[2] = {0, 0};
    for (const LabelledLine &line : byWeight(lines)) {
        int &count = counts[line.part == GridPart::Real ? 0 : 1];
        if (count >= rules.mostOfAPart)
            continue;
        ViewGridLabel label{
            line.part, line.value, gridLabelText(line.part, line.value, rules.unit), {}};
        const std::optional<QRectF> place = placer.placeOf(line, rules.measure(label.text));
        if (!place)
            continue;
        label.rect = *place;
        labels.append(label);
        ++count;
    }
}

} // namespace SmithChart
