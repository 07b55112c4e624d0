// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracecolors.h"

#include <array>
#include <cmath>

namespace Panel
{

namespace
{

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr double s_pi = 3.14159265358979323846;

Triple times(const Matrix &matrix, const Triple &v)
{
    Triple result{};
    for (size_t i = 0; i < 3; ++i)
        result[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
    return result;
}

/// Linear light of the parts of sRGB.
Triple linear(const QColor &color)
{
    Triple parts{color.redF(), color.greenF(), color.blueF()};
    for (double &part : parts)
        part = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    return parts;
}

QColor fromLinear(Triple parts)
{
    for (double &part : parts) {
        part = qBound(0.0, part, 1.0);
        part = part <= 0.0031308 ? 12.92 * part : 1.055 * std::pow(part, 1.0 / 2.4) - 0.055;
    }
    return QColor(qRound(255.0 * parts[0]), qRound(255.0 * parts[1]), qRound(255.0 * parts[2]));
}

/// From linear sRGB to XYZ, for D65.
constexpr Matrix s_xyz{{{0.4124564, 0.3575761, 0.1804375},
                        {0.2126729, 0.7151522, 0.0721750},
                        {0.0193339, 0.1191920, 0.9503041}}};

/// L*, a* and b*.
Triple lab(const QColor &color)
{
    const Triple xyz = times(s_xyz, linear(color));
    const Triple white = times(s_xyz, {1.0, 1.0, 1.0});
    Triple f{};
    for (size_t i = 0; i < 3; ++i) {
        const double share = xyz[i] / white[i];
        f[i] = share > 216.0 / 24389.0 ? std::cbrt(share) : (24389.0 / 27.0 * share + 16.0) / 116.0;
    }
    return {116.0 * f[1] - 16.0, 500.0 * (f[0] - f[1]), 200.0 * (f[1] - f[2])};
}

double radians(double degrees)
{
    return degrees * s_pi / 180.0;
}

/// The angle of a hue in degrees, from 0 on; 0 for grey.
double hue(double a, double b)
{
    const double angle = a == 0.0 && b == 0.0 ? 0.0 : std::atan2(b, a) * 180.0 / s_pi;
    return angle < 0.0 ? angle + 360.0 : angle;
}

QVector<QColor> colors(std::initializer_list<QRgb> values)
{
    QVector<QColor> all;
    for (const QRgb value : values)
        all << QColor(value);
    return all;
}

} // namespace

QVector<QColor> traceColors(bool dark)
{
    return dark
        ? colors({0xecfa48, 0xeba4f7, 0x10ae9c, 0xf59800, 0xc4ffb3, 0xd20ad4, 0x98c286, 0xed0800})
        : colors({0x137452, 0x5e072d, 0x284fff, 0x7d436b, 0x546f13, 0x3603c3, 0x2b4500, 0x3c1c65});
}

QVector<QColor> memoryColors(bool dark)
{
    const QColor ground(dark ? 0x000000 : 0xece9e4);
    QVector<QColor> all;
    for (const QColor &color : traceColors(dark)) {
        const auto between = [](int a, int b) { return (a + b) / 2; };
        all << QColor(between(color.red(), ground.red()), between(color.green(), ground.green()),
                      between(color.blue(), ground.blue()));
    }
    return all;
}

QColor seen(const QColor &color, Sight sight)
{
    static constexpr Matrix protan{{{0.152286, 1.052583, -0.204868},
                                    {0.114503, 0.786281, 0.099216},
                                    {-0.003882, -0.048116, 1.051998}}};
    static constexpr Matrix deutan{{{0.367322, 0.860646, -0.227968},
                                    {0.280085, 0.672501, 0.047413},
                                    {-0.011820, 0.042940, 0.968881}}};
    static constexpr Matrix tritan{{{1.255528, -0.076749, -0.178779},
                                    {-0.078411, 0.930809, 0.147602},
                                    {0.004733, 0.691367, 0.303900}}};
    switch (sight) {
    case Sight::Protan:
        return fromLinear(times(protan, linear(color)));
    case Sight::Deutan:
        return fromLinear(times(deutan, linear(color)));
    case Sight::Tritan:
        return fromLinear(times(tritan, linear(color)));
    case Sight::Normal:
        break;
    }
    return color;
}

double colorDifference(const QColor &first, const QColor &second)
{
    const Triple one = lab(first), two = lab(second);
    const auto power7 = [](double c) { return std::pow(c, 7.0); };
    constexpr double grey = 6103515625.0; // 25^7
    const double meanChroma = (std::hypot(one[1], one[2]) + std::hypot(two[1], two[2])) / 2.0;
    const double g = 0.5 * (1.0 - std::sqrt(power7(meanChroma) / (power7(meanChroma) + grey)));
    const double a1 = (1.0 + g) * one[1], a2 = (1.0 + g) * two[1];
    const double c1 = std::hypot(a1, one[2]), c2 = std::hypot(a2, two[2]);
    const double h1 = hue(a1, one[2]), h2 = hue(a2, two[2]);
    const bool isGrey = c1 * c2 == 0.0;

    double turn = isGrey ? 0.0 : h2 - h1;
    if (std::abs(turn) > 180.0)
        turn -= std::copysign(360.0, turn);
    double meanHue = h1 + h2;
    if (!isGrey) {
        if (std::abs(h1 - h2) > 180.0)
            meanHue += meanHue < 360.0 ? 360.0 : -360.0;
        meanHue /= 2.0;
    }
    const double lightness = two[0] - one[0];
    const double chroma = c2 - c1;
    const double hueDistance = 2.0 * std::sqrt(c1 * c2) * std::sin(radians(turn / 2.0));

    const double meanLightness = (one[0] + two[0]) / 2.0 - 50.0;
    const double meanC = (c1 + c2) / 2.0;
    const double t = 1.0 - 0.17 * std::cos(radians(meanHue - 30.0))
        + 0.24 * std::cos(radians(2.0 * meanHue)) + 0.32 * std::cos(radians(3.0 * meanHue + 6.0))
        - 0.20 * std::cos(radians(4.0 * meanHue - 63.0));
    const double blue = (meanHue - 275.0) / 25.0;
    const double rotation = -std::sin(radians(60.0 * std::exp(-blue * blue))) * 2.0
        * std::sqrt(power7(meanC) / (power7(meanC) + grey));
    const double l = lightness
        / (1.0
           + 0.015 * meanLightness * meanLightness
               / std::sqrt(20.0 + meanLightness * meanLightness));
    const double c = chroma / (1.0 + 0.045 * meanC);
    const double h = hueDistance / (1.0 + 0.015 * meanC * t);
    return std::sqrt(l * l + c * c + h * h + rotation * c * h);
}

double contrast(const QColor &a, const QColor &b)
{
    const double one = times(s_xyz, linear(a))[1] + 0.05;
    const double two = times(s_xyz, linear(b))[1] + 0.05;
    return qMax(one, two) / qMin(one, two);
}

} // namespace Panel
