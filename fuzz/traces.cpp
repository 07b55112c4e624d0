// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Raw doubles as traces and views: the trace index must answer as the plain routines do.
#include "input.h"
#include "tracejudge.h"

#include <smithchart/gridgeometry.h>
#include <smithchart/tracepoint.h>
#include <smithchart/viewstate.h>
#include <utils/formatting.h>

using namespace SmithRender;

namespace
{

constexpr int longestTrace = 1500;
/// Beyond this, squares of pixel coordinates overflow and distances compare no more.
constexpr double largestPixel = 1e150;

Viewport viewport(Fuzz::Input &input)
{
    Viewport view;
    const bool square = input.integer(0, 3) > 0;
    const bool rawEnds = input.integer(0, 7) == 0;
    const auto number = [&] { return rawEnds ? input.raw() : input.real(); };
    view.width = input.integer(-1, 400);
    view.height = input.integer(-1, 400);
    view.xMin = number();
    view.yMin = number();
    view.xMax = view.xMin + std::abs(number());
    view.yMax = square ? view.yMin + (view.xMax - view.xMin) * view.height / view.width : number();
    view.devicePixelRatio = input.flag() ? 1.0 : input.real();
    view.tolerancePx = input.flag() ? 0.5 : input.real();
    return view;
}

TraceJudge::Trace trace(Fuzz::Input &input)
{
    TraceJudge::Trace trace;
    const int kind = input.integer(0, 3);
    const int repeats = 1 + input.integer(0, 40);
    double x = 0.0;
    double y = 0.0;
    while (!input.atEnd() && trace.real.size() + repeats <= longestTrace) {
        const double stepX = kind == 0 ? input.raw() : input.real() / 8.0;
        const double stepY = kind == 0 ? input.raw() : input.real() / 8.0;
        for (int i = 0; i < repeats; ++i) {
            const bool walks = kind > 1 && std::isfinite(x + stepX) && std::isfinite(y + stepY);
            x = walks ? x + stepX * (i % kind) : stepX;
            y = walks ? y + stepY : stepY;
            trace.real.append(x);
            trace.imag.append(y);
        }
    }
    return trace;
}

/// Whether distances in this view are numbers that a comparison can rest on.
bool isWithinBounds(const TraceJudge::Trace &trace, const Viewport &view)
{
    if (!view.isUsable())
        return false;
    const Projection projection = projectionOf(view);
    for (int i = 0; i < trace.real.size(); ++i) {
        if (!std::isfinite(trace.real[i]) || !std::isfinite(trace.imag[i]))
            continue;
        if (!(std::abs(projection.x(trace.real[i])) < largestPixel)
            || !(std::abs(projection.y(trace.imag[i])) < largestPixel))
            return false;
    }
    return true;
}

void checkKept(const TraceJudge::Trace &trace, const DecimationResult &result)
{
    const QVector<int> &kept = result.keptIndices;
    const int count = static_cast<int>(trace.real.size());
    FUZZ_CHECK(kept.size() <= count && kept.isEmpty() == (count == 0));
    FUZZ_CHECK(result.decimated == (kept.size() < count));
    FUZZ_CHECK(std::adjacent_find(kept.begin(), kept.end(), std::greater_equal<int>())
               == kept.end());
    FUZZ_CHECK(kept.isEmpty() || (kept.first() == 0 && kept.last() == count - 1));
}

void checkIndex(const IndexedTrace &tree, const TraceJudge::Trace &trace, const Viewport &view,
                const QPointF &pointer)
{
    const DecimationResult plain = decimate(trace.real, trace.imag, view);
    const DecimationResult fast = tree.decimate(view);
    checkKept(trace, plain);
    checkKept(trace, fast);
    FUZZ_CHECK(fast.passedThrough == plain.passedThrough);
    if (fast.keptIndices != plain.keptIndices && isWithinBounds(trace, view))
        FUZZ_CHECK(TraceJudge::Judge(trace, view, fast.keptIndices).accepts());

    double wanted = 0.0;
    double distance = 0.0;
    const int index = nearestIndex(trace.real, trace.imag, view, pointer, &wanted);
    FUZZ_CHECK(tree.nearestIndex(view, pointer, &distance) == index);
    FUZZ_CHECK(distance == wanted || (std::isnan(distance) && std::isnan(wanted)));
    FUZZ_CHECK(index >= -1 && index < trace.real.size());
}

/// The other plain arithmetic that takes any double.
void checkNumbers(Fuzz::Input &input)
{
    using namespace SmithChart;
    const HalfRanges base = baseHalfRanges(input.integer(1, 4000), input.integer(1, 4000));
    ViewState state = clampViewState({input.raw(), input.raw(), input.raw()}, base);
    for (int i = 0; i < 2; ++i) {
        FUZZ_CHECK(std::isfinite(state.centerX) && std::isfinite(state.centerY));
        FUZZ_CHECK(state.zoom >= 1.0 && state.zoom <= maximumZoom);
        const ViewRanges ranges = viewRanges(state, base);
        FUZZ_CHECK(ranges.xLower < ranges.xUpper && ranges.yLower < ranges.yUpper);
        state = i == 0
            ? zoomedViewState(state, input.raw(), input.raw(), input.raw(), base)
            : viewStateFromRanges({input.raw(), input.raw(), input.raw(), input.raw()}, base);
    }
    const double value = input.raw();
    const auto [mantissa, exponent] = Utils::getScientificNotation(value);
    FUZZ_CHECK(!std::isfinite(value) || mantissa == 0.0
               || (std::abs(mantissa) >= 1.0 && std::abs(mantissa) < 10.0));
    FUZZ_CHECK(std::abs(exponent) <= 400);
    (void)Utils::isStep125Value(value);
    const QString text = Utils::toString(value, input.integer(-2, 20));
    FUZZ_CHECK(!text.isEmpty());

    Runs runs;
    appendCircleInsideUnitDisk(input.raw(), input.raw(), input.raw(), input.integer(-1, 200), runs);
    FUZZ_CHECK(runs.x.size() == runs.y.size());
    const Grid grid = gridGeometry({input.raw(), input.raw()}, {input.raw(), input.raw()}, 32);
    FUZZ_CHECK(grid.impedance.labels.x.size() == grid.impedance.labels.text.size());
}

} // namespace

void Fuzz::run(Input &input)
{
    const int views = input.integer(1, 3);
    Viewport view[3];
    for (int i = 0; i < views; ++i)
        view[i] = viewport(input);
    const QPointF pointer(input.real() * 100.0, input.real() * 100.0);
    if (input.flag())
        checkNumbers(input);
    const TraceJudge::Trace data = trace(input);
    IndexedTrace tree;
    tree.setSource(data.real, data.imag);
    for (int i = 0; i < views; ++i)
        checkIndex(tree, data, view[i], pointer);
    for (const double index : {pointer.x(), pointer.y(), data.real.value(0)}) {
        const auto point = SmithChart::tracePoint(data.real, data.imag, index);
        FUZZ_CHECK(!point || (std::isfinite(point->x()) && std::isfinite(point->y())));
    }
}
