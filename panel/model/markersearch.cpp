// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markersearch.h"

#include "cartesian.h"

#include <cmath>

namespace Panel
{

namespace
{

double value(const Parameter &parameter, int index, TraceFormat format)
{
    const double real = parameter.real.at(index), imag = parameter.imag.at(index);
    return format == TraceFormat::Smith ? std::hypot(real, imag)
                                        : cartesianValue(real, imag, format);
}

/// The extreme of the whole; sign is 1 for the highest value and -1 for the lowest.
int extreme(const Parameter &parameter, TraceFormat format, double sign)
{
    int found = -1;
    double best = 0.0;
    for (int i = 0; i < parameter.real.size(); ++i) {
        const double here = sign * value(parameter, i, format);
        if (!std::isnan(here) && (found < 0 || here > best)) {
            best = here;
            found = i;
        }
    }
    return found;
}

/// The first peak from an index on, in steps of 1 or -1.
int nextPeak(const Parameter &parameter, TraceFormat format, int from, int step)
{
    const double needed = traits(format).peakExcursion;
    const int count = int(parameter.real.size());
    // A rise of the excursion has to come before a peak and a fall after it.
    double low = qInf(), high = -qInf();
    int candidate = -1;
    for (int i = from; i >= 0 && i < count; i += step) {
        const double here = value(parameter, i, format);
        if (std::isnan(here))
            continue;
        if (candidate < 0) {
            low = std::fmin(low, here);
            if (here - low >= needed) {
                candidate = i;
                high = here;
            }
        } else if (here > high) {
            candidate = i;
            high = here;
        } else if (high - here >= needed) {
            return candidate;
        }
    }
    return -1;
}

} // namespace

int searchMarker(const Parameter &parameter, TraceFormat format, Search search, double from)
{
    switch (search) {
    case Search::Maximum:
        return extreme(parameter, format, 1.0);
    case Search::Minimum:
        return extreme(parameter, format, -1.0);
    case Search::PeakLeft:
        return nextPeak(parameter, format, int(std::floor(from)), -1);
    case Search::PeakRight:
        return nextPeak(parameter, format, int(std::ceil(from)), 1);
    }
    return -1;
}

} // namespace Panel
