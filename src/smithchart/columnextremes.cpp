// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <smithchart/columnextremes.h>

#include <smithrender/columnextremes_p.h>

#include <cmath>

namespace SmithRender
{

namespace
{

/// Ordered as the magnitude, without its root.
struct Power {
    double operator()(double real, double imag) const { return real * real + imag * imag; }
};

/// Ordered as the angle, without its arc tangent: from -2 to 2 for -180 to 180 degrees.
struct DiamondAngle {
    double operator()(double real, double imag) const
    {
        const double sum = std::fabs(real) + std::fabs(imag);
        const double share = sum == 0.0 ? 0.0 : imag / sum;
        return real >= 0.0 ? share : std::copysign(2.0, imag) - share;
    }
};

template<typename Order>
QVector<int> extremesOfColumns(const double *real, const double *imag, int first, int count,
                               int columns, Order order)
{
    constexpr int pointsPerColumn = 4;
    QVector<int> kept;
    kept.reserve(pointsPerColumn * columns);
    for (int column = 0; column < columns; ++column) {
        const int begin = first + static_cast<int>(qint64(count) * column / columns);
        const int end = first + static_cast<int>(qint64(count) * (column + 1) / columns);
        const auto [lowest, highest] = extremes(real, imag, begin, end, order);
        for (const int index :
             {begin, std::min(lowest, highest), std::max(lowest, highest), end - 1}) {
            if (kept.isEmpty() || kept.last() < index)
                kept.append(index);
        }
    }
    return kept;
}

} // namespace

QVector<int> columnExtremes(const QVector<double> &real, const QVector<double> &imag, int first,
                            int count, int columns, ColumnValue value)
{
    const int size = static_cast<int>(std::min(real.size(), imag.size()));
    const int begin = std::max(first, 0);
    const int end = static_cast<int>(std::min<qint64>(qint64(first) + count, size));
    if (end <= begin)
        return {};
    columns = std::clamp(columns, 1, end - begin);
    return value == ColumnValue::Phase ? extremesOfColumns(
               real.constData(), imag.constData(), begin, end - begin, columns, DiamondAngle())
                                       : extremesOfColumns(real.constData(), imag.constData(),
                                                           begin, end - begin, columns, Power());
}

} // namespace SmithRender
