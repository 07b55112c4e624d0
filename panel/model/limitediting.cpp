// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limitediting.h"

#include <cmath>

namespace Panel
{

void LimitEditing::setOn(bool on)
{
    if (on == m_on)
        return;
    m_on = on;
    m_limit = -1;
    Q_EMIT changed();
}

void LimitEditing::select(int limit, LimitPart part)
{
    if (limit == m_limit && part == m_part)
        return;
    m_limit = limit;
    m_part = part;
    Q_EMIT changed();
}

bool isLimitOf(const Trace &trace, int limit)
{
    return limit >= 0 && limit < trace.limits.size()
        && trace.limits.at(limit).format == trace.format;
}

double roundStep(double number)
{
    const double decade = std::pow(10.0, std::floor(std::log10(number)));
    return (number < 2.0 * decade ? 1.0 : number < 5.0 * decade ? 2.0 : 5.0) * decade;
}

double snapped(double value, const QVector<double> &places, double nearness, double step)
{
    double best = qQNaN();
    for (const double place : places) {
        if (std::abs(place - value) <= nearness
            && !(std::abs(best - value) <= std::abs(place - value)))
            best = place;
    }
    if (std::isfinite(best))
        return best;
    // By a whole number, where there is one, so that 0.1 is not 0.1000...01.
    return step < 1.0 ? std::round(value / step) / std::round(1.0 / step)
                      : std::round(value / step) * step;
}

LimitLine movedEnd(const LimitLine &line, LimitPart &part, double hertz, double value)
{
    LimitLine moved = line;
    (part == LimitPart::Start ? moved.start : moved.stop) = hertz;
    (part == LimitPart::Start ? moved.startValue : moved.stopValue) = value;
    if (moved.start > moved.stop) {
        std::swap(moved.start, moved.stop);
        std::swap(moved.startValue, moved.stopValue);
        part = part == LimitPart::Start ? LimitPart::Stop : LimitPart::Start;
    }
    return moved;
}

LimitLine shiftedTo(const LimitLine &line, double hertz, double value, FrequencyScale scale)
{
    LimitLine moved = line;
    moved.start = qMax(0.0, hertz);
    moved.stop = scale == FrequencyScale::Logarithmic && line.start > 0.0
        ? line.stop * (moved.start / line.start)
        : line.stop + (moved.start - line.start);
    moved.startValue = value;
    moved.stopValue = line.stopValue + (value - line.startValue);
    return moved;
}

} // namespace Panel
