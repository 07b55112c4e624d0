// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "viewgrid_p.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <iterator>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace SmithChart
{

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

double powerOfTen(int exponent)
{
    // All that a double holds exactly, so that quotients are rounded once.
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    return exponent < static_cast<int>(std::size(powers)) ? powers[exponent]
                                                          : std::pow(10.0, exponent);
}

/// digits x 10^exponent: values of lines are compared, and labelled, exactly.
struct Decimal {
    qint64 digits = 0;
    int exponent = 0;

    double value() const
    {
        const double power = powerOfTen(std::abs(exponent));
        return exponent < 0 ? static_cast<double>(digits) / power
                            : static_cast<double>(digits) * power;
    }
    /// Without zeros at the end.
    Decimal reduced() const
    {
        Decimal result = *this;
        while (result.digits != 0 && result.digits % 10 == 0) {
            result.digits /= 10;
            ++result.exponent;
        }
        return result;
    }
    /// The largest of the steps 1, 2, 5, 10, ... that leads from 0 to this value; twice that for
    /// these values themselves.
    double rank() const
    {
        const Decimal shortest = reduced();
        const qint64 step = shortest.digits % 5 == 0 ? 5 : shortest.digits % 2 == 0 ? 2 : 1;
        return Decimal{step == shortest.digits ? 2 * step : step, shortest.exponent}.value();
    }
};

/// The side of a cell, in units of a power of ten.
struct Side {
    qint64 low = 0;
    qint64 length = 0;
    int exponent = 0;

    double first() const { return Decimal{low, exponent}.value(); }
    double last() const { return Decimal{low + length, exponent}.value(); }
};

/// The side between two values.
Side sideBetween(Decimal first, Decimal last)
{
    const int exponent =
        std::min(first.digits == 0 ? last.exponent : first.exponent, last.exponent);
    for (Decimal *end : {&first, &last}) {
        for (; end->digits != 0 && end->exponent > exponent; --end->exponent)
            end->digits *= 10;
    }
    return {first.digits, last.digits - first.digits, exponent};
}

/// The next of the values 1, 2, 5, 10, ... above one of them.
Decimal nextValue(const Decimal &value)
{
    const Decimal reduced = value.reduced();
    return Decimal{reduced.digits == 2 ? 5 : reduced.digits * 2, reduced.exponent}.reduced();
}

/// One of the values 1, 2, 5, 10, ... nearest to \a value by ratio.
Decimal nearestValue(double value)
{
    const int exponent = static_cast<int>(std::floor(std::log10(value)));
    Decimal best;
    double bestRatio = infinity;
    for (const qint64 digits : {1, 2, 5, 10}) {
        const Decimal candidate{digits, exponent};
        const double ratio = std::abs(std::log(candidate.value() / value));
        if (ratio < bestRatio) {
            bestRatio = ratio;
            best = candidate.reduced();
        }
    }
    return best;
}

/// The parts that a side is divided into: their lengths in tenths of its unit.
struct Parts {
    int count;
    int lengths[5];
};

/// How a side of so many units may be divided, the finest way first; a count of 0 ends the list.
const Parts *partsFor(qint64 length)
{
    static constexpr Parts none{0, {}};
    static constexpr Parts ofOne[] = {{5, {2, 2, 2, 2, 2}}, {2, {5, 5}}, none};
    static constexpr Parts ofTwo[] = {{2, {10, 10}}, none};
    static constexpr Parts ofThree[] = {{3, {10, 10, 10}}, {2, {10, 20}}, none};
    // A quarter of ten is better than an empty cell.
    static constexpr Parts ofFive[] = {{5, {10, 10, 10, 10, 10}}, {2, {25, 25}}, none};
    static constexpr Parts ofTwentyFive[] = {{5, {50, 50, 50, 50, 50}}, none};
    switch (length) {
    case 1:
        return ofOne;
    case 2:
        return ofTwo;
    case 3:
        return ofThree;
    case 5:
        return ofFive;
    default:
        return ofTwentyFive;
    }
}

constexpr double tightest = 0.6; ///< of the spacing: how near lines may come where they end

/// A way to divide the side of a cell.
struct Division {
    const Parts *parts = nullptr; ///< none
    double spacing = 0.0; ///< minimum distance between the lines, in pixels
};

class Divider
{
public:
    Divider(const GridView &view, const ViewGridRules &rules)
        : m_view(view)
        , m_rules(rules)
    {
    }

    /// Collects the lines of the half of the plane above the real axis, or of its mirror image.
    void divideHalf(bool mirrored)
    {
        m_sign = mirrored ? -1.0 : 1.0;
        Decimal edge = nearestValue(m_rules.reference);
        Side inner = sideBetween({}, edge);
        divide(inner, inner);
        addCorner(edge, inner);
        // Around the square between 0 and the reference, one frame after the other up to the next
        // value, until the open circuit is near.
        for (;;) {
            const Decimal next = nextValue(edge);
            if (distanceToOpen(shifted(next.value(), 0.0)) < m_rules.spacingPx)
                break;
            const Side frame = sideBetween(edge, next);
            addCorner(edge, frame);
            divide(frame, inner);
            divide(inner, frame);
            divide(frame, frame);
            edge = next;
            inner = sideBetween({}, edge);
            addCorner(edge, inner);
        }
    }

    /// The lines, pieces that meet joined.
    QVector<ViewGridLine> lines()
    {
        std::sort(m_pieces.begin(), m_pieces.end(), [](const Piece &a, const Piece &b) {
            return std::tie(a.line.part, a.line.value, a.line.from)
                < std::tie(b.line.part, b.line.value, b.line.from);
        });
        QVector<ViewGridLine> lines;
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const double rank = m_pieces[i].rank;
            ViewGridLine line = m_pieces[i].line;
            for (; i + 1 < m_pieces.size(); ++i) {
                const ViewGridLine &next = m_pieces[i + 1].line;
                if (next.part != line.part || next.value != line.value || next.from > line.to)
                    break;
                line.to = std::max(line.to, next.to);
            }
            line.weight = weight(line, rank);
            lines.append(line);
        }
        return lines;
    }

private:
    /// A line through one cell.
    struct Piece {
        ViewGridLine line;
        double rank;
    };

    std::complex<double> shifted(double real, double imaginary) const
    {
        return {real / m_rules.reference + 1.0, imaginary / m_rules.reference};
    }

    /// Pixels between the images of two impedances.
    double distance(std::complex<double> a, std::complex<double> b) const
    {
        return 2.0 * m_view.pixelsPerUnit * std::abs(a - b) / (std::abs(a) * std::abs(b));
    }
    double distanceToOpen(std::complex<double> a) const
    {
        return 2.0 * m_view.pixelsPerUnit / std::abs(a);
    }

    /// Whether the image of a cell may reach into the view: that of the circle around the cell is
    /// a circle, too.
    bool isInView(const Side &real, const Side &imaginary) const
    {
        const std::complex<double> near = shifted(real.first(), imaginary.first());
        const std::complex<double> far = shifted(real.last(), imaginary.last());
        const std::complex<double> middle = (near + far) / 2.0;
        const double squaredRadius = std::norm(far - near) / 4.0;
        // 1 / (z + 1) of a circle that does not go around z = -1; G = 1 - 2 / (z + 1).
        const double power = std::norm(middle) - squaredRadius;
        const double x = 1.0 - 2.0 * middle.real() / power;
        const double y = m_sign * 2.0 * middle.imag() / power;
        const double radius = 2.0 * std::sqrt(squaredRadius) / power;
        const double dx = x - std::clamp(x, m_view.rect.left(), m_view.rect.right());
        const double dy = y - std::clamp(y, m_view.rect.top(), m_view.rect.bottom());
        return dx * dx + dy * dy <= radius * radius;
    }

    /// The finest division of a bounded side whose lines keep apart: on the average of the cell,
    /// and not much less at its far corner.
    Division finestDivision(const Side &side, std::complex<double> near, std::complex<double> far,
                            std::complex<double> direction) const
    {
        const double tenth = Decimal{1, side.exponent - 1}.value() / m_rules.reference;
        for (const Parts *parts = partsFor(side.length); parts->count > 0; ++parts) {
            const double first = parts->lengths[0] * tenth;
            const double last = parts->lengths[parts->count - 1] * tenth;
            const double smallest = distance(far, far - last * direction);
            const double largest = distance(near, near + first * direction);
            if (smallest >= tightest * m_rules.spacingPx
                && smallest * largest >= m_rules.spacingPx * m_rules.spacingPx)
                return {parts, smallest};
        }
        return {};
    }

    Division divisionOf(GridPart part, const Side &real, const Side &imaginary) const
    {
        const bool alongReal = part == GridPart::Real;
        return finestDivision(
            alongReal ? real : imaginary, shifted(real.first(), imaginary.first()),
            shifted(real.last(), imaginary.last()),
            alongReal ? std::complex<double>(1.0, 0.0) : std::complex<double>(0.0, 1.0));
    }

    /// The sides of the parts.
    struct Sides {
        int count = 0;
        std::array<Side, 5> sides;

        const Side *begin() const { return sides.data(); }
        const Side *end() const { return sides.data() + count; }
    };

    static Sides divided(const Side &side, const Parts *parts)
    {
        if (!parts)
            return {1, {side}};
        const int *const lengths = parts->lengths;
        const bool inTenths = std::any_of(lengths, lengths + parts->count,
                                          [](int length) { return length % 10 != 0; });
        const int unit = inTenths ? 1 : 10;
        Sides result;
        Side part{inTenths ? side.low * 10 : side.low, 0, side.exponent - (inTenths ? 1 : 0)};
        for (; result.count < parts->count; ++result.count) {
            part.length = lengths[result.count] / unit;
            result.sides[static_cast<std::size_t>(result.count)] = part;
            part.low += part.length;
        }
        return result;
    }

    void divide(const Side &real, const Side &imaginary)
    {
        if (!isInView(real, imaginary))
            return;
        Division across = divisionOf(GridPart::Real, real, imaginary);
        Division along = divisionOf(GridPart::Imaginary, real, imaginary);
        if (!across.parts && !along.parts)
            return;
        // A square is divided both ways at once; else first where lines would be farther apart.
        constexpr double alike = 1.01;
        if (across.spacing > along.spacing * alike)
            along = {};
        else if (along.spacing > across.spacing * alike)
            across = {};
        const Sides reals = divided(real, across.parts);
        const Sides imaginaries = divided(imaginary, along.parts);
        for (const Side &r : reals) {
            if (r.low != reals.begin()->low)
                addLine(GridPart::Real, {r.low, r.exponent}, imaginary);
        }
        for (const Side &x : imaginaries) {
            if (x.low != imaginaries.begin()->low)
                addLine(GridPart::Imaginary, {x.low, x.exponent}, real);
        }
        for (const Side &r : reals) {
            for (const Side &x : imaginaries)
                divide(r, x);
        }
    }

    /// Takes up both lines of a value.
    void addCorner(const Decimal &value, const Side &along)
    {
        addLine(GridPart::Real, value, along);
        addLine(GridPart::Imaginary, value, along);
    }

    /// Takes up the piece of a line that divides a cell with the side \a along.
    void addLine(GridPart part, const Decimal &value, const Side &along)
    {
        ViewGridLine line{part, value.value(), along.first(), along.last(), 0.0};
        if (m_sign < 0.0 && part == GridPart::Imaginary)
            line.value = -line.value;
        else if (m_sign < 0.0)
            std::tie(line.from, line.to) = std::pair(-line.to, -line.from);
        m_pieces.push_back({line, value.rank()});
    }

    /// The pixels between lines of a rank at the middle of the line.
    double weight(const ViewGridLine &line, double rank) const
    {
        const GridArc arc = gridArc(line, m_rules.reference);
        const QPointF toOpen =
            QPointF(1.0, 0.0) - arc.at((arc.firstAngle() + arc.lastAngle()) / 2.0);
        // |dG/dz| = 2 / |z + 1|^2 = |1 - G|^2 / 2
        return m_view.pixelsPerUnit * rank / m_rules.reference * QPointF::dotProduct(toOpen, toOpen)
            / 2.0;
    }

    GridView m_view;
    ViewGridRules m_rules;
    double m_sign = 1.0;
    std::vector<Piece> m_pieces;
};

bool isPositive(double value)
{
    return std::isfinite(value) && value > 0.0;
}

} // namespace

bool GridView::isUsable() const
{
    return isPositive(rect.width()) && isPositive(rect.height()) && std::isfinite(rect.left())
        && std::isfinite(rect.top()) && isPositive(pixelsPerUnit);
}

QVector<ViewGridLine> viewGridLines(const GridView &view, const ViewGridRules &rules)
{
    if (!view.isUsable() || !isPositive(rules.reference) || !isPositive(rules.spacingPx))
        return {};
    Divider divider(view, rules);
    divider.divideHalf(false);
    divider.divideHalf(true);
    return divider.lines();
}

} // namespace SmithChart
