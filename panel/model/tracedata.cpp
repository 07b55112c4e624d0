// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracedata.h"

#include <QtNumeric>

namespace Panel
{

namespace
{

/// A distance from a pole that no measurement resolves, in units of the reference.
constexpr double s_nothing = 1e-9;

std::complex<double> endless()
{
    return {qInf(), qInf()};
}

} // namespace

TraceData traceData(const Network &network, int to, int from)
{
    return {network.frequencies, network.s(to, from), network.reference(to), 0};
}

bool sharesData(const TraceData &a, const TraceData &b)
{
    return a.frequencies.constData() == b.frequencies.constData()
        && a.parameter.real.constData() == b.parameter.real.constData();
}

std::complex<double> impedanceOf(const std::complex<double> &reflection,
                                 const std::complex<double> &reference)
{
    const std::complex<double> below = 1.0 - reflection;
    return std::abs(below) < s_nothing ? endless()
                                       : (std::conj(reference) + reflection * reference) / below;
}

std::complex<double> admittanceOf(const std::complex<double> &reflection,
                                  const std::complex<double> &reference)
{
    const std::complex<double> below = std::conj(reference) + reflection * reference;
    return std::abs(below) < s_nothing * std::abs(reference) ? endless()
                                                             : (1.0 - reflection) / below;
}

} // namespace Panel
