// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markersearch.h"

#include "cartesian.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// The extreme of the whole; sign is 1 for the highest value and -1 for the lowest.
int extreme(const QVector<double> &values, double sign)
{
    int found = -1;
    double best = 0.0;
    for (int i = 0; i < values.size(); ++i) {
        const double here = sign * values.at(i);
        if (!std::isnan(here) && (found < 0 || here > best)) {
            best = here;
            found = i;
        }
    }
    return found;
}

/// The first peak of a needed height from an index on, in steps of 1 or -1.
int nextPeak(const QVector<double> &values, double needed, int from, int step)
{
    const int count = int(values.size());
    // A rise of the excursion has to come before a peak and a fall after it.
    double low = qInf(), high = -qInf();
    int candidate = -1;
    for (int i = from; i >= 0 && i < count; i += step) {
        const double here = values.at(i);
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

double searchTarget(const TraceData &data, TraceFormat format, double target, double from,
                    int direction)
{
    constexpr double same = 1e-6; // of a step between two points
    const QVector<double> values = formatValues(data, format);
    const int count = int(values.size());
    int i = direction > 0 ? int(std::floor(from)) : int(std::ceil(from));
    for (; i >= 0 && i < count && i + direction >= 0 && i + direction < count; i += direction) {
        const double here = values.at(i) - target, next = values.at(i + direction) - target;
        if (!((here <= 0.0 && next >= 0.0) || (here >= 0.0 && next <= 0.0)) || here == next)
            continue;
        // A phase that begins anew passes nothing.
        if (format == TraceFormat::Phase && std::abs(here - next) > 180.0)
            continue;
        const double found = i + direction * here / (here - next);
        if (direction * (found - from) > same)
            return found;
    }
    return -1.0;
}

QVector<int> highestPeaks(const TraceData &data, TraceFormat format, int maximum)
{
    const QVector<double> values = formatValues(data, format);
    QVector<int> peaks;
    for (int i = nextPeak(values, traits(format).peakExcursion, 0, 1); i >= 0;
         i = nextPeak(values, traits(format).peakExcursion, i, 1))
        peaks.append(i);
    std::stable_sort(peaks.begin(), peaks.end(),
                     [&values](int a, int b) { return values.at(a) > values.at(b); });
    peaks.resize(qMin(maximum, int(peaks.size())));
    return peaks;
}

int searchMarker(const TraceData &data, TraceFormat format, Search search, double from)
{
    const QVector<double> values = formatValues(data, format);
    const double excursion = traits(format).peakExcursion;
    switch (search) {
    case Search::Maximum:
        return extreme(values, 1.0);
    case Search::Minimum:
        return extreme(values, -1.0);
    case Search::PeakLeft:
        return nextPeak(values, excursion, int(std::floor(from)), -1);
    case Search::PeakRight:
        return nextPeak(values, excursion, int(std::ceil(from)), 1);
    }
    return -1;
}

} // namespace Panel
