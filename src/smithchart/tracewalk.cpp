// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tracewalk.h"

#include "tracenoise_p.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <vector>

namespace SmithChart
{

namespace
{

/// Two places closer than this share of a step between points are one: a marker that was set on a
/// feature comes back with its stimulus rounded.
constexpr double samePlace = 1e-6;

double radiusOf(double vswr)
{
    return (vswr - 1.0) / (vswr + 1.0);
}

/// Finds where a value passes zero for good: it must go beyond a threshold before it may come back,
/// so that noise does not count.
class CrossingScan
{
public:
    CrossingScan(double threshold, TraceFeature rising, TraceFeature falling)
        : m_threshold(threshold)
        , m_rising(rising)
        , m_falling(falling)
    {
    }

    void addPoint(int index, double value)
    {
        if (m_side == 0 || value * m_side > 0.0) {
            // On the side that it was on before; at first, that is wherever it is.
            m_side = value > 0.0 ? 1 : value < 0.0 ? -1 : 0;
            m_crossing = -1.0;
        } else {
            if (m_crossing < 0.0)
                m_crossing = index - 1 + m_value / (m_value - value);
            if (std::fabs(value) >= m_threshold)
                finish(value);
        }
        m_value = value;
    }

    /// Nothing is known of what follows: a crossing counts even if it has not got far.
    void endRun()
    {
        if (m_crossing >= 0.0 && m_value != 0.0)
            finish(m_value);
        m_side = 0;
        m_crossing = -1.0;
    }

    const std::vector<TraceStop> &stops() const { return m_stops; }

private:
    void finish(double value)
    {
        m_side = value > 0.0 ? 1 : -1;
        m_stops.push_back({m_crossing, m_side > 0 ? m_rising : m_falling});
        m_crossing = -1.0;
    }

    const double m_threshold;
    const TraceFeature m_rising;
    const TraceFeature m_falling;
    std::vector<TraceStop> m_stops;
    int m_side = 0; ///< 1 or -1, or 0 while all values were 0
    double m_value = 0.0; ///< of the point before
    double m_crossing = -1.0; ///< where it left its side, if it has
};

/// Finds where a value turns: an extreme is known once the value has left it by the excursion.
class ExtremeScan
{
public:
    explicit ExtremeScan(double excursion)
        : m_excursion(excursion)
    {
    }

    void addPoint(int index, double value)
    {
        if (value > m_high.value)
            m_high = {index, value};
        if (value < m_low.value)
            m_low = {index, value};
        if (m_trend >= 0 && m_high.value - value >= m_excursion) {
            if (m_trend > 0)
                m_stops.push_back({double(m_high.index), Maximum});
            m_trend = -1;
            m_low = {index, value};
        } else if (m_trend <= 0 && value - m_low.value >= m_excursion) {
            if (m_trend < 0)
                m_stops.push_back({double(m_low.index), Minimum});
            m_trend = 1;
            m_high = {index, value};
        }
    }

    const std::vector<TraceStop> &stops() const { return m_stops; }

private:
    struct Point {
        int index;
        double value;
    };

    const double m_excursion;
    std::vector<TraceStop> m_stops;
    int m_trend = 0; ///< 1: rises, -1: falls, 0: not known yet
    Point m_high{-1, -std::numeric_limits<double>::infinity()};
    Point m_low{-1, std::numeric_limits<double>::infinity()};
};

/// All stops that are wanted in their order, those at one place as one.
QVector<TraceStop> joined(std::initializer_list<std::vector<TraceStop>> lists, TraceFeatures wanted)
{
    std::vector<TraceStop> all;
    for (const std::vector<TraceStop> &list : lists)
        std::copy_if(list.begin(), list.end(), std::back_inserter(all),
                     [wanted](const TraceStop &stop) { return stop.features & wanted; });
    std::sort(all.begin(), all.end(),
              [](const TraceStop &a, const TraceStop &b) { return a.index < b.index; });
    QVector<TraceStop> stops;
    for (const TraceStop &stop : all) {
        if (!stops.isEmpty() && stop.index - stops.last().index < samePlace)
            stops.last().features |= stop.features;
        else
            stops.append(stop);
    }
    return stops;
}

QVector<double> sorted(QVector<double> indices)
{
    std::sort(indices.begin(), indices.end());
    return indices;
}

/// The next of some ascending places in a direction; nothing at the end.
std::optional<double> nextOf(const QVector<double> &places, double from, int direction)
{
    if (direction > 0) {
        const auto found = std::upper_bound(places.begin(), places.end(), from + samePlace);
        return found == places.end() ? std::nullopt : std::optional<double>(*found);
    }
    const auto found = std::lower_bound(places.begin(), places.end(), from - samePlace);
    return found == places.begin() ? std::nullopt : std::optional<double>(*(found - 1));
}

bool holds(const QVector<double> &places, double index)
{
    const auto found = std::lower_bound(places.begin(), places.end(), index - samePlace);
    return found != places.end() && *found <= index + samePlace;
}

} // namespace

std::optional<WalkStep> walkStepOf(int key, Qt::KeyboardModifiers modifiers)
{
    modifiers &= ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const bool plain = modifiers == Qt::NoModifier;
    const WalkUnit byArrow = plain ? WalkUnit::Point : WalkUnit::Feature;
    const bool arrowCounts = plain || modifiers == Qt::ControlModifier;
    switch (key) {
    case Qt::Key_Left:
        return arrowCounts ? std::optional<WalkStep>({byArrow, -1}) : std::nullopt;
    case Qt::Key_Right:
        return arrowCounts ? std::optional<WalkStep>({byArrow, 1}) : std::nullopt;
    case Qt::Key_PageUp:
        return plain ? std::optional<WalkStep>({WalkUnit::View, -1}) : std::nullopt;
    case Qt::Key_PageDown:
        return plain ? std::optional<WalkStep>({WalkUnit::View, 1}) : std::nullopt;
    case Qt::Key_Home:
        return plain ? std::optional<WalkStep>({WalkUnit::End, -1}) : std::nullopt;
    case Qt::Key_End:
        return plain ? std::optional<WalkStep>({WalkUnit::End, 1}) : std::nullopt;
    default:
        return std::nullopt;
    }
}

void TraceWalk::setData(const QVector<double> &real, const QVector<double> &imag)
{
    // Both are shared: the same address means the same values.
    if (real.constData() == m_real.constData() && imag.constData() == m_imag.constData())
        return;
    m_real = real;
    m_imag = imag;
    m_found = false;
}

bool TraceWalk::setVswr(double ratio)
{
    if (!std::isfinite(ratio) || ratio <= 1.0)
        return false;
    if (ratio != m_vswr)
        m_found = false;
    m_vswr = ratio;
    return true;
}

bool TraceWalk::setExcursion(double magnitude)
{
    if (!std::isfinite(magnitude) || magnitude <= 0.0)
        return false;
    if (magnitude != m_excursion)
        m_found = false;
    m_excursion = magnitude;
    return true;
}

void TraceWalk::setFeatures(TraceFeatures features)
{
    if (features != m_wanted)
        m_found = false;
    m_wanted = features;
}

void TraceWalk::setLimitEdges(const QVector<double> &indices)
{
    m_limitEdges = sorted(indices);
}

void TraceWalk::setMarkers(const QVector<double> &indices)
{
    m_markers = sorted(indices);
}

int TraceWalk::size() const
{
    return static_cast<int>(std::min(m_real.size(), m_imag.size()));
}

bool TraceWalk::isPoint(int index) const
{
    return std::isfinite(m_real.at(index)) && std::isfinite(m_imag.at(index));
}

/// The first finite point from an index on, itself included; -1 where there is none.
int TraceWalk::pointFrom(int index, int direction) const
{
    for (; index >= 0 && index < size(); index += direction) {
        if (isPoint(index))
            return index;
    }
    return -1;
}

double TraceWalk::start() const
{
    return pointFrom(0, 1);
}

double TraceWalk::end() const
{
    return pointFrom(size() - 1, -1);
}

double TraceWalk::byPoints(double from, int points) const
{
    const int direction = points < 0 ? -1 : 1;
    if (!(from >= 0.0 && from <= size() - 1.0)) // not on the trace: the nearer end
        return from < 0.0 || size() == 0 ? start() : end();
    double reached = from;
    for (int step = 0; step != points; step += direction) {
        const double beside = direction > 0 ? std::floor(reached + samePlace) + 1.0
                                            : std::ceil(reached - samePlace) - 1.0;
        const int next = pointFrom(static_cast<int>(beside), direction);
        if (next < 0)
            break;
        reached = next;
    }
    return reached;
}

double TraceWalk::byDistance(double from, int direction, double distance) const
{
    double reached = byPoints(from, 0);
    if (reached < 0.0)
        return reached;
    const int origin = pointFrom(static_cast<int>(std::round(reached)), -direction);
    const int first =
        static_cast<int>(direction > 0 ? std::floor(reached) + 1.0 : std::ceil(reached) - 1.0);
    for (int i = first; i >= 0 && i < size(); i += direction) {
        if (!isPoint(i))
            continue;
        reached = i;
        if (origin < 0)
            break;
        const double dx = m_real.at(i) - m_real.at(origin), dy = m_imag.at(i) - m_imag.at(origin);
        if (dx * dx + dy * dy >= distance * distance)
            break;
    }
    return reached;
}

const QVector<TraceStop> &TraceWalk::dataFeatures() const
{
    if (m_found)
        return m_features;
    const int count = size();
    const double radius = radiusOf(m_vswr);
    // From a valley to a peak, a million points of noise go some ten standard deviations.
    const double excursion = std::max(m_excursion, 10.0 * noiseOf(m_real, m_imag, count));
    CrossingScan axis(excursion / 2.0, Resonance, RealAxis);
    CrossingScan circle(excursion / 2.0, VswrCircle, VswrCircle);
    ExtremeScan extremes(excursion);
    for (int i = 0; i < count; ++i) {
        const double x = m_real.at(i), y = m_imag.at(i);
        if (isPoint(i)) {
            const double magnitude = std::sqrt(x * x + y * y);
            axis.addPoint(i, y);
            circle.addPoint(i, magnitude - radius);
            extremes.addPoint(i, magnitude);
        } else {
            axis.endRun();
            circle.endRun();
        }
    }
    axis.endRun();
    circle.endRun();
    m_features = joined({axis.stops(), circle.stops(), extremes.stops()}, m_wanted);
    m_found = true;
    return m_features;
}

std::optional<TraceStop> TraceWalk::nextFeature(double from, int direction) const
{
    const QVector<TraceStop> &features = dataFeatures();
    const auto isBefore = [](const TraceStop &stop, double index) { return stop.index < index; };
    std::optional<double> nearest;
    const auto consider = [&](std::optional<double> place) {
        if (place && (!nearest || direction * (*place - *nearest) < 0.0))
            nearest = place;
    };
    const auto edge =
        std::lower_bound(features.begin(), features.end(), from + direction * samePlace, isBefore);
    if (direction > 0 && edge != features.end())
        consider(edge->index);
    if (direction < 0 && edge != features.begin())
        consider((edge - 1)->index);
    consider(nextOf(m_limitEdges, from, direction));
    consider(nextOf(m_markers, from, direction));
    if (!nearest)
        return std::nullopt;
    return TraceStop{*nearest, featuresAt(*nearest)};
}

std::optional<double> TraceWalk::walked(double from, const WalkStep &step, double distance) const
{
    const double first = start();
    if (first < 0.0)
        return std::nullopt;
    const bool begins = !(from >= 0.0 && from <= size() - 1.0);
    if (step.unit == WalkUnit::End)
        return step.direction > 0 ? end() : first;
    if (step.unit == WalkUnit::Feature) {
        const double origin = !begins ? from : step.direction > 0 ? -1.0 : double(size());
        const std::optional<TraceStop> stop = nextFeature(origin, step.direction);
        return stop ? stop->index : begins ? first : from;
    }
    if (begins)
        return first;
    return step.unit == WalkUnit::View ? byDistance(from, step.direction, distance)
                                       : byPoints(from, step.direction);
}

TraceFeatures TraceWalk::featuresAt(double index) const
{
    const QVector<TraceStop> &features = dataFeatures();
    TraceFeatures found;
    auto stop =
        std::lower_bound(features.begin(), features.end(), index - samePlace,
                         [](const TraceStop &other, double place) { return other.index < place; });
    for (; stop != features.end() && stop->index <= index + samePlace; ++stop)
        found |= stop->features;
    found.setFlag(LimitEdge, holds(m_limitEdges, index));
    found.setFlag(MarkedPoint, holds(m_markers, index));
    return found;
}

} // namespace SmithChart
