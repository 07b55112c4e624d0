// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "valueorder.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

constexpr double s_halfTurn = 3.14159265358979323846;

/// The angle of a point of the plane to within 2e-8 of itself, in a fourth of the time of
/// std::arg(): the polynomial for arctan x / x of Abramowitz and Stegun, "Handbook of Mathematical
/// Functions", 4.4.49.
double nearlyAngle(double x, double y)
{
    const double across = std::abs(x), up = std::abs(y);
    const bool steep = up > across;
    const double longer = steep ? up : across;
    const double t = longer == 0.0 ? 0.0 : (steep ? across : up) / longer;
    const double u = t * t;
    const double series = 1.0
        + u
            * (-0.3333314528
               + u
                   * (0.1999355085
                      + u
                          * (-0.1420889944
                             + u
                                 * (0.1065626393
                                    + u
                                        * (-0.0752896400
                                           + u
                                               * (0.0429096138
                                                  + u * (-0.0161657367 + u * 0.0028662257)))))));
    const double folded = steep ? s_halfTurn / 2.0 - t * series : t * series;
    return std::copysign(std::signbit(x) ? s_halfTurn - folded : folded, y);
}

/// The parts of an impedance, as impedanceOf() has it.
struct ImpedanceParts {
    double real;
    double imag;
};

ImpedanceParts impedanceParts(double x, double y, const std::complex<double> &reference)
{
    const double aboveReal = reference.real() * (1.0 + x) - reference.imag() * y;
    const double aboveImag = reference.imag() * (x - 1.0) + reference.real() * y;
    const double belowReal = 1.0 - x;
    const double size = belowReal * belowReal + y * y;
    return {(aboveReal * belowReal - aboveImag * y) / size,
            (aboveImag * belowReal + aboveReal * y) / size};
}

double finiteOrNaN(double value)
{
    return std::isfinite(value) ? value : qQNaN();
}

template<typename ValueOf>
QVector<double> ofPoints(const TraceData &data, ValueOf valueOf)
{
    const double *real = data.parameter.real.constData();
    const double *imag = data.parameter.imag.constData();
    QVector<double> order(data.points());
    for (int i = 0; i < order.size(); ++i)
        order[i] = finiteOrNaN(valueOf(impedanceParts(real[i], imag[i], data.reference)));
    return order;
}

} // namespace

int turnsOfStep(const std::complex<double> &from, const std::complex<double> &to)
{
    const double turned = to.imag() * from.real() - to.real() * from.imag();
    // As atan2() has it, for which -0 lies below the axis.
    const bool below = std::signbit(from.imag()), nowBelow = std::signbit(to.imag());
    if (below == nowBelow)
        return 0;
    return nowBelow ? (turned > 0.0 ? 1 : 0) : (turned < 0.0 ? -1 : 0);
}

QVector<int> turns(const TraceData &data, int count)
{
    QVector<int> result(count);
    std::complex<double> last(qQNaN(), qQNaN());
    int sum = 0;
    for (int i = 0; i < count; ++i) {
        const std::complex<double> here = data.at(i);
        if (!std::isnan(here.real()) && !std::isnan(here.imag())) {
            if (!std::isnan(last.real()))
                sum += turnsOfStep(last, here);
            last = here;
        }
        result[i] = sum;
    }
    return result;
}

QVector<double> realOrder(const TraceData &data)
{
    return data.parameter.real;
}

QVector<double> imaginaryOrder(const TraceData &data)
{
    return data.parameter.imag;
}

QVector<double> unwrappedOrder(const TraceData &data)
{
    const double *real = data.parameter.real.constData();
    const double *imag = data.parameter.imag.constData();
    const QVector<int> whole = turns(data, data.points());
    QVector<double> order(data.points());
    for (int i = 0; i < order.size(); ++i)
        order[i] = nearlyAngle(real[i], imag[i]) + 2.0 * s_halfTurn * whole.at(i);
    return order;
}

QVector<double> delayOrder(const TraceData &data)
{
    const double *real = data.parameter.real.constData();
    const double *imag = data.parameter.imag.constData();
    const double *hertz = data.frequencies.constData();
    QVector<double> order(data.points());
    for (int i = 0; i < order.size(); ++i) {
        const int before = std::max(0, i - 1), after = std::min(int(order.size()) - 1, i + 1);
        const double step = hertz[after] - hertz[before];
        // Of the one times the conjugate of the other.
        const double turned = nearlyAngle(real[after] * real[before] + imag[after] * imag[before],
                                          imag[after] * real[before] - real[after] * imag[before]);
        order[i] = step > 0.0 ? -turned / step : qQNaN();
    }
    return order;
}

QVector<double> resistanceOrder(const TraceData &data)
{
    return ofPoints(data, [](const ImpedanceParts &z) { return z.real; });
}

QVector<double> reactanceOrder(const TraceData &data)
{
    return ofPoints(data, [](const ImpedanceParts &z) { return z.imag; });
}

QVector<double> qualityOrder(const TraceData &data)
{
    return ofPoints(data, [](const ImpedanceParts &z) { return std::abs(z.imag) / z.real; });
}

} // namespace Panel
