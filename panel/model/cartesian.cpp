// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesian.h"

#include <panel/ground/numbertext.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace Panel
{

namespace
{

constexpr double s_degrees = 180.0 / 3.14159265358979323846;
/// Columns with more points than this are thinned out.
constexpr int s_pointsPerColumn = 4;

double power(double real, double imag)
{
    return real * real + imag * imag;
}

/// Orders points by magnitude.
struct Power {
    double operator()(double real, double imag) const { return power(real, imag); }
};

/// Orders points by angle: from -2 to 2, as the angle from -180 to 180 degrees.
struct DiamondAngle {
    double operator()(double real, double imag) const
    {
        const double share = imag / (std::abs(real) + std::abs(imag));
        return real >= 0.0 ? share : imag >= 0.0 ? 2.0 - share : -2.0 - share;
    }
};

/// The lowest and the highest of some points; both the first one where all are NaN.
struct Extremes {
    int lowest;
    int highest;
};

/// Finds the extremes of the points \a begin to \a end - 1; \a order says what is low.
template<typename Order>
Extremes extremes(const double *real, const double *imag, int begin, int end, Order order)
{
    // Of each tile only the values, in lanes of their own that the processor takes side by side;
    // which points they are of is looked up in two tiles at the end.
    constexpr int lanes = 4;
    constexpr int tile = 64;
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    Extremes tiles{begin, begin};
    for (int from = begin; from < end; from += tile) {
        const int to = std::min(from + tile, end);
        double lows[lanes];
        double highs[lanes];
        std::fill_n(lows, lanes, low);
        std::fill_n(highs, lanes, high);
        const auto takeIn = [&](int i, int lane) {
            const double value = order(real[i], imag[i]);
            lows[lane] = value < lows[lane] ? value : lows[lane];
            highs[lane] = value > highs[lane] ? value : highs[lane];
        };
        int i = from;
        for (; i + lanes <= to; i += lanes) {
            for (int lane = 0; lane < lanes; ++lane)
                takeIn(i + lane, lane);
        }
        for (; i < to; ++i)
            takeIn(i, 0);
        const double lowest = *std::min_element(lows, lows + lanes);
        const double highest = *std::max_element(highs, highs + lanes);
        if (lowest < low)
            tiles.lowest = from;
        if (highest > high)
            tiles.highest = from;
        low = lowest;
        high = highest;
    }
    const auto find = [&](int from, double wanted) {
        for (int i = from; i < end; ++i) {
            if (order(real[i], imag[i]) == wanted)
                return i;
        }
        return begin;
    };
    return {find(tiles.lowest, low), find(tiles.highest, high)};
}

/// The first, lowest, highest and last index of each column.
template<typename Order>
QVector<int> outline(const Parameter &parameter, int first, int count, int columns, Order order)
{
    QVector<int> kept;
    kept.reserve(s_pointsPerColumn * columns);
    for (int column = 0; column < columns; ++column) {
        const int begin = first + int(qint64(count) * column / columns);
        const int end = first + int(qint64(count) * (column + 1) / columns);
        const auto [lowest, highest] =
            extremes(parameter.real.constData(), parameter.imag.constData(), begin, end, order);
        for (const int index : {begin, qMin(lowest, highest), qMax(lowest, highest), end - 1}) {
            if (kept.isEmpty() || kept.last() < index)
                kept.append(index);
        }
    }
    return kept;
}

} // namespace

double cartesianValue(double real, double imag, TraceFormat format)
{
    if (format == TraceFormat::Phase)
        return std::atan2(imag, real) * s_degrees;
    const double square = power(real, imag);
    if (format == TraceFormat::LogMagnitude)
        return std::isnan(square) ? square : 10.0 * std::log10(std::max(square, 1e-30));
    const double magnitude = std::sqrt(square);
    return magnitude < 1.0 ? (1.0 + magnitude) / (1.0 - magnitude)
                           : std::numeric_limits<double>::quiet_NaN();
}

ValueRange valueRange(const QVector<double> &values)
{
    ValueRange range;
    for (const double value : values) {
        range.lowest = std::fmin(range.lowest, value);
        range.highest = std::fmax(range.highest, value);
    }
    return range;
}

ValueRange valueRange(const Parameter &parameter, TraceFormat format)
{
    // The extremes of one column as wide as all points, so that no logarithm is taken of a million.
    QVector<double> places(parameter.real.size());
    std::iota(places.begin(), places.end(), 0.0);
    return valueRange(cartesianLine(places, parameter, format, 1).values);
}

double cartesianValueAt(const Parameter &parameter, double index, TraceFormat format)
{
    return cartesianValue(valueAt(parameter.real, index), valueAt(parameter.imag, index), format);
}

CartesianLine cartesianLine(const QVector<double> &frequencies, const Parameter &parameter,
                            TraceFormat format, int columns, double from, double to)
{
    const auto begin = frequencies.begin(), end = frequencies.end();
    const int size = int(frequencies.size());
    const int first = qMax(0, int(std::lower_bound(begin, end, from) - begin) - 1);
    const int count = qMin(size, int(std::upper_bound(begin, end, to) - begin) + 1) - first;
    columns = qMax(1, columns);
    CartesianLine line;
    const auto append = [&](int index) {
        line.frequencies.append(frequencies.at(index));
        line.values.append(
            cartesianValue(parameter.real.at(index), parameter.imag.at(index), format));
    };
    if (count <= s_pointsPerColumn * columns) {
        line.frequencies.reserve(count);
        line.values.reserve(count);
        for (int i = first; i < first + count; ++i)
            append(i);
        return line;
    }
    const QVector<int> kept = format == TraceFormat::Phase
        ? outline(parameter, first, count, columns, DiamondAngle())
        : outline(parameter, first, count, columns, Power());
    for (const int index : kept)
        append(index);
    return line;
}

double highestValue(const Parameter &parameter, TraceFormat format)
{
    // Of the squares, so that no logarithm is taken of a million points.
    double highest = -1.0;
    for (int i = 0; i < parameter.real.size(); ++i)
        highest = std::fmax(highest, power(parameter.real.at(i), parameter.imag.at(i)));
    return highest < 0.0 ? std::numeric_limits<double>::quiet_NaN()
                         : cartesianValue(std::sqrt(highest), 0.0, format);
}

namespace
{

/// The number and the unit of the format, which stands close to an angle.
QString withUnit(const QString &number, TraceFormat format)
{
    const QString unit = formatUnit(format);
    return unit.isEmpty() || format == TraceFormat::Phase ? number + unit
                                                          : number + QLatin1Char(' ') + unit;
}

} // namespace

QString cartesianText(double value, TraceFormat format)
{
    return std::isfinite(value) ? withUnit(numberText(value, traits(format).decimals), format)
                                : nothingText();
}

QString cartesianReferenceText(double value, TraceFormat format)
{
    return withUnit(withMinusSigns(QString::number(value, 'g', 6)), format);
}

} // namespace Panel
