// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "source.h"

#include <QCoreApplication>

namespace Panel
{

namespace
{

/// Of sweeps of a simulated source.
constexpr double s_maximumAverages = 999.0;

struct SourceText {
    Q_DECLARE_TR_FUNCTIONS(Panel::Source)
};

} // namespace

bool SourceLimits::allow(const Sweep &sweep) const
{
    return frequency.holds(sweep.start) && frequency.holds(sweep.stop)
        && sweep.stop - sweep.start >= smallestSpan && points.holds(sweep.points);
}

Acquisition SourceLimits::bounded(const Acquisition &acquisition) const
{
    Acquisition result = acquisition;
    if (!bandwidth.isEmpty() && !std::isnan(result.bandwidth))
        result.bandwidth = bandwidth.bounded(result.bandwidth);
    if (!power.isEmpty() && !std::isnan(result.power))
        result.power = power.bounded(result.power);
    result.averages = averages.isEmpty() ? 1 : int(averages.bounded(result.averages));
    return result;
}

SourceLimits sourceLimits(Source source)
{
    SourceLimits limits;
    if (!isSimulated(source))
        return limits;
    limits.frequency = {Sweep::limits.start, Sweep::limits.stop};
    limits.smallestSpan = Sweep::smallestSpan;
    limits.points = {double(Sweep::minimumPoints), double(Sweep::maximumPoints)};
    limits.averages = {1.0, s_maximumAverages};
    if (source == Source::Antenna)
        limits.tuning = {tuningLimits.start, tuningLimits.stop};
    return limits;
}

QString sourceName(Source source)
{
    switch (source) {
    case Source::Files:
        return SourceText::tr("File");
    case Source::Antenna:
        return SourceText::tr("Antenna");
    case Source::Filter:
        return SourceText::tr("Filter");
    case Source::Cable:
        return SourceText::tr("Long cable");
    case Source::Instrument:
        return SourceText::tr("Instrument");
    }
    return {};
}

} // namespace Panel
