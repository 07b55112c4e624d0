// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cartesian.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

/// Grows with the angle from -2 to 2, as the angle does from -180 to 180 degrees.
double diamondAngle(double real, double imag)
{
    const double share = imag / (std::abs(real) + std::abs(imag));
    return real >= 0.0 ? share : imag >= 0.0 ? 2.0 - share : -2.0 - share;
}

/// Appends the first, lowest, highest and last index of each column; order says what is low.
template<typename Order>
QVector<int> outline(const Parameter &parameter, int count, int columns, Order order)
{
    const double *real = parameter.real.constData();
    const double *imag = parameter.imag.constData();
    QVector<int> kept;
    kept.reserve(s_pointsPerColumn * columns);
    for (int column = 0; column < columns; ++column) {
        const int begin = int(qint64(count) * column / columns);
        const int end = int(qint64(count) * (column + 1) / columns);
        int lowest = begin, highest = begin;
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (int i = begin; i < end; ++i) {
            const double value = order(real[i], imag[i]);
            if (value < low) {
                low = value;
                lowest = i;
            }
            if (value > high) {
                high = value;
                highest = i;
            }
        }
        for (const int index : {begin, qMin(lowest, highest), qMax(lowest, highest), end - 1}) {
            if (kept.isEmpty() || kept.last() < index)
                kept.append(index);
        }
    }
    return kept;
}

} // namespace

double cartesianValue(double real, double imag, CartesianFormat format)
{
    if (format == CartesianFormat::Phase)
        return std::atan2(imag, real) * s_degrees;
    return 10.0 * std::log10(std::max(power(real, imag), 1e-30));
}

double cartesianValueAt(const Parameter &parameter, double index, CartesianFormat format)
{
    return cartesianValue(valueAt(parameter.real, index), valueAt(parameter.imag, index), format);
}

CartesianLine cartesianLine(const QVector<double> &frequencies, const Parameter &parameter,
                            CartesianFormat format, int columns)
{
    const int count = int(frequencies.size());
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
        for (int i = 0; i < count; ++i)
            append(i);
        return line;
    }
    const QVector<int> kept = format == CartesianFormat::Phase
        ? outline(parameter, count, columns, diamondAngle)
        : outline(parameter, count, columns, power);
    for (const int index : kept)
        append(index);
    return line;
}

QString cartesianText(double value, CartesianFormat format)
{
    const bool phase = format == CartesianFormat::Phase;
    QString text = QString::number(value, 'f', phase ? 1 : 2);
    text.replace(QLatin1Char('-'), QChar(0x2212));
    return text + (phase ? QStringLiteral("\u00b0") : QStringLiteral(" dB"));
}

} // namespace Panel
