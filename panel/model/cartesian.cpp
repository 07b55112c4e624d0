// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesian.h"

#include "tracemath.h"
#include "valueorder.h"

#include <smithchart/columnextremes.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

constexpr double s_pi = 3.14159265358979323846;
constexpr double s_degrees = 180.0 / s_pi;
/// Columns with more points than this are thinned out.
constexpr int s_pointsPerColumn = 4;

// Values of a point

double magnitude(const Complex &s, const Complex & /*reference*/)
{
    return std::abs(s);
}

/// 20 lg |S|.
double decibels(const Complex &s, const Complex & /*reference*/)
{
    const double power = std::norm(s);
    return std::isnan(power) ? power : 10.0 * std::log10(std::max(power, 1e-30));
}

double phase(const Complex &s, const Complex & /*reference*/)
{
    return std::arg(s) * s_degrees;
}

/// (1 + |S|) / (1 - |S|).
double vswr(const Complex &s, const Complex & /*reference*/)
{
    const double size = std::abs(s);
    return size < 1.0 ? (1.0 + size) / (1.0 - size) : qQNaN();
}

double realPart(const Complex &s, const Complex & /*reference*/)
{
    return s.real();
}

double imaginaryPart(const Complex &s, const Complex & /*reference*/)
{
    return s.imag();
}

double finite(double value)
{
    return std::isfinite(value) ? value : qQNaN();
}

double resistance(const Complex &s, const Complex &reference)
{
    return finite(impedanceOf(s, reference).real());
}

double reactance(const Complex &s, const Complex &reference)
{
    return finite(impedanceOf(s, reference).imag());
}

/// |X| / R of the impedance.
double quality(const Complex &s, const Complex &reference)
{
    const Complex z = impedanceOf(s, reference);
    return finite(std::abs(z.imag()) / z.real());
}

// Values of a point among its neighbours

/*! The group delay -dφ / dω in ns (Oppenheim and Schafer, "Discrete-Time Signal Processing"), as a
    difference from the point before to the one after, which must turn by less than half a turn. */
double groupDelay(const TraceData &data, int index)
{
    const int before = std::max(0, index - 1);
    const int after = std::min(data.points() - 1, index + 1);
    const double step = data.frequencies.at(after) - data.frequencies.at(before);
    const double turned = std::arg(data.at(after) * std::conj(data.at(before)));
    return step > 0.0 ? -turned / (2.0 * s_pi * step) * 1e9 : qQNaN();
}

/// How the values of a format come about: one row for each, in the order of TraceFormat.
struct Formula {
    enum Order {
        Magnitude, ///< grows with the magnitude
        Phase,
        OfItsOwn,
    };
    Order order;
    double (*ofPoint)(const Complex &s, const Complex &reference);
    double (*amongNeighbours)(const TraceData &data, int index);
    /// Of a format of its own, cheaper than all values; null if nothing is.
    QVector<double> (*valueOrder)(const TraceData &data);
};

constexpr std::array<Formula, traceFormatCount> s_formulas{{
    {Formula::Magnitude, magnitude, nullptr, nullptr},
    {Formula::Magnitude, decibels, nullptr, nullptr},
    {Formula::Phase, phase, nullptr, nullptr},
    {Formula::Magnitude, vswr, nullptr, nullptr},
    {Formula::Magnitude, magnitude, nullptr, nullptr},
    {Formula::OfItsOwn, realPart, nullptr, realOrder},
    {Formula::OfItsOwn, imaginaryPart, nullptr, imaginaryOrder},
    {Formula::OfItsOwn, phase, nullptr, unwrappedOrder}, // and whole turns
    {Formula::OfItsOwn, nullptr, groupDelay, delayOrder},
    {Formula::OfItsOwn, resistance, nullptr, resistanceOrder},
    {Formula::OfItsOwn, reactance, nullptr, reactanceOrder},
    {Formula::OfItsOwn, quality, nullptr, qualityOrder},
    {Formula::Magnitude, magnitude, nullptr, nullptr},
}};

/// Whether values are angles that go on beyond a turn, or begin anew there.
bool isPhase(TraceFormat format)
{
    return format == TraceFormat::Phase || format == TraceFormat::UnwrappedPhase;
}

const Formula &formula(TraceFormat format)
{
    return s_formulas.at(std::size_t(format));
}

double valueOfPoint(const TraceData &data, int index, TraceFormat format)
{
    const Formula &row = formula(format);
    return row.amongNeighbours ? row.amongNeighbours(data, index)
                               : row.ofPoint(data.at(index), data.reference);
}

/// The moving average of a format's values around a point, as smoothed() has it.
double averageAround(const TraceData &data, int index, TraceFormat format)
{
    const int half = std::min({data.averagedPoints / 2, index, data.points() - 1 - index});
    const int first = index - half;
    const int turnsBefore =
        format == TraceFormat::UnwrappedPhase ? turns(data, first + 1).constLast() : 0;
    double sum = 0.0;
    int count = 0, turned = turnsBefore;
    for (int i = first; i <= index + half; ++i) {
        if (i > first && isPhase(format))
            turned += turnsOfStep(data.at(i - 1), data.at(i));
        const double value = valueOfPoint(data, i, format) + 360.0 * turned;
        if (std::isnan(value) && i == index)
            return value;
        if (std::isnan(value))
            continue;
        sum += value;
        ++count;
    }
    const double average = sum / count;
    return format == TraceFormat::Phase ? std::remainder(average, 360.0) : average;
}

/// The first, lowest, highest and last index of each column of values.
QVector<int> extremesOf(const QVector<double> &values, int first, int count, int columns)
{
    QVector<int> kept;
    kept.reserve(s_pointsPerColumn * columns);
    for (int column = 0; column < columns; ++column) {
        const int begin = first + int(qint64(count) * column / columns);
        const int end = first + int(qint64(count) * (column + 1) / columns);
        int lowest = begin, highest = begin;
        for (int i = begin; i < end; ++i) {
            if (values.at(i) < values.at(lowest) || std::isnan(values.at(lowest)))
                lowest = i;
            if (values.at(i) > values.at(highest) || std::isnan(values.at(highest)))
                highest = i;
        }
        for (const int index :
             {begin, std::min(lowest, highest), std::max(lowest, highest), end - 1}) {
            if (kept.isEmpty() || kept.last() < index)
                kept.append(index);
        }
    }
    return kept;
}

} // namespace

double formatValue(const Complex &s, const Complex &reference, TraceFormat format)
{
    const Formula &row = formula(format);
    return row.ofPoint ? row.ofPoint(s, reference) : qQNaN();
}

QVector<double> formatValues(const TraceData &data, TraceFormat format)
{
    QVector<double> values(data.points());
    for (int i = 0; i < values.size(); ++i)
        values[i] = valueOfPoint(data, i, format);
    const bool averaged = data.averagedPoints > 1;
    if (format == TraceFormat::UnwrappedPhase || (averaged && format == TraceFormat::Phase)) {
        const QVector<int> whole = turns(data, data.points());
        for (int i = 0; i < values.size(); ++i)
            values[i] += 360.0 * whole.at(i);
    }
    if (!averaged)
        return values;
    values = smoothed(values, data.averagedPoints);
    if (format == TraceFormat::Phase) {
        for (double &value : values)
            value = std::remainder(value, 360.0);
    }
    return values;
}

double formatValueAt(const TraceData &data, double index, TraceFormat format)
{
    const Formula &row = formula(format);
    const int before = std::clamp(int(std::floor(index)), 0, data.points() - 1);
    if (row.amongNeighbours || data.averagedPoints > 1) {
        const auto valueOf = [&](int point) {
            return data.averagedPoints > 1 ? averageAround(data, point, format)
                                           : valueOfPoint(data, point, format);
        };
        const int after = std::min(before + 1, data.points() - 1);
        const double share = std::clamp(index - before, 0.0, 1.0);
        const double value = valueOf(before);
        const double step = share == 0.0 ? 0.0 : valueOf(after) - value;
        return value + share * (format == TraceFormat::Phase ? std::remainder(step, 360.0) : step);
    }
    const Complex here = data.at(index);
    const double value = row.ofPoint(here, data.reference);
    if (format != TraceFormat::UnwrappedPhase)
        return value;
    return value
        + 360.0 * (turns(data, before + 1).constLast() + turnsOfStep(data.at(before), here));
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

ValueRange valueRange(const TraceData &data, TraceFormat format)
{
    // The extremes of one column as wide as all points, so that no logarithm is taken of a million.
    return valueRange(cartesianLine(data, format, 1).values);
}

namespace
{

/// Points that lie in so many columns of the same number of points.
struct Stretch {
    int first;
    int count;
    int columns;

    /// Whether columns have more points than can be told apart.
    bool isDense() const { return count > s_pointsPerColumn * columns; }
};

/// Columns of a linear diagram share their points evenly; those of a logarithmic one are a stretch
/// each.
QVector<Stretch> stretches(const QVector<double> &frequencies, const Stretch &all, double from,
                           double to, FrequencyScale scale)
{
    if (scale == FrequencyScale::Linear || !all.isDense() || !(from > 0.0) || !std::isfinite(to))
        return {all};
    QVector<Stretch> result;
    const auto end = frequencies.begin() + all.first + all.count;
    int first = all.first;
    for (int column = 1; column <= all.columns && first < all.first + all.count; ++column) {
        const double edge = from * std::pow(to / from, double(column) / all.columns);
        const int next = column == all.columns
            ? all.first + all.count
            : int(std::lower_bound(frequencies.begin() + first, end, edge) - frequencies.begin());
        if (next > first)
            result.append({first, next - first, 1});
        first = next;
    }
    return result;
}

} // namespace

CartesianLine cartesianLine(const TraceData &data, TraceFormat format, int columns, double from,
                            double to, FrequencyScale scale)
{
    const auto begin = data.frequencies.begin(), end = data.frequencies.end();
    const int first = qMax(0, int(std::lower_bound(begin, end, from) - begin) - 1);
    const int count =
        qMin(data.points(), int(std::upper_bound(begin, end, to) - begin) + 1) - first;
    const Stretch all{first, count, qMax(1, columns)};
    const Formula &row = formula(format);

    // An average needs the values of all points; else those that are kept get one.
    const bool averaged = data.averagedPoints > 1;
    const QVector<double> averages = averaged ? formatValues(data, format) : QVector<double>();
    const bool unordered = averaged || row.order == Formula::OfItsOwn;
    QVector<double> order;
    if (all.isDense() && unordered)
        order = averaged     ? averages
            : row.valueOrder ? row.valueOrder(data)
                             : formatValues(data, format);
    const QVector<int> whole = format == TraceFormat::UnwrappedPhase && order.isEmpty()
        ? turns(data, data.points())
        : QVector<int>();
    const auto valueOf = [&](int index) {
        if (averaged)
            return averages.at(index);
        const double value = valueOfPoint(data, index, format);
        if (format != TraceFormat::UnwrappedPhase)
            return value;
        return value
            + 360.0
            * (order.isEmpty() ? whole.at(index)
                               : std::round((order.at(index) * s_degrees - value) / 360.0));
    };
    QVector<int> kept;
    for (const Stretch &part : stretches(data.frequencies, all, from, to, scale)) {
        if (!part.isDense()) {
            const auto before = kept.size();
            kept.resize(before + qMax(0, part.count));
            std::iota(kept.begin() + before, kept.end(), part.first);
        } else if (unordered) {
            kept += extremesOf(order, part.first, part.count, part.columns);
        } else {
            kept += SmithRender::columnExtremes(
                data.parameter.real, data.parameter.imag, part.first, part.count, part.columns,
                row.order == Formula::Phase ? SmithRender::ColumnValue::Phase
                                            : SmithRender::ColumnValue::Magnitude);
        }
    }

    CartesianLine line;
    line.frequencies.reserve(kept.size());
    line.values.reserve(kept.size());
    int before = -1;
    for (const int index : qAsConst(kept)) {
        const double value = valueOf(index);
        if (row.order == Formula::Phase && before >= 0 && index == before + 1
            && std::abs(value - line.values.constLast()) > 180.0) {
            line.frequencies.append((data.frequencies.at(index) + data.frequencies.at(before))
                                    / 2.0);
            line.values.append(qQNaN());
        }
        line.frequencies.append(data.frequencies.at(index));
        line.values.append(value);
        before = index;
    }
    return line;
}

} // namespace Panel
