// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "gridgeometry.h"

#include "preset.h"

#include <cmath>

namespace SmithChart
{

namespace
{

constexpr double twoPi = 6.283185307179586;
/// Squared radius up to which a point counts as inside: points on the rim must not fall out by
/// rounding.
constexpr double insideLimit = 1.000001;
/// Ordinate of the labels that hang below the real axis.
constexpr double realAxisLabelY = -0.03;

void appendLabel(GridLabels &labels, double x, double y, double value)
{
    labels.x.append(x);
    labels.y.append(y);
    labels.text.append(QString::number(value, 'g', 6));
}

/// One chart; \a side is 1 for impedance and -1 for admittance, its image turned by half a turn.
ChartGrid chartGrid(double side, const QVector<double> &resistances,
                    const QVector<double> &reactances, int samples)
{
    ChartGrid chart;
    for (const double r : resistances) {
        appendCircleInsideUnitDisk(side * r / (r + 1.0), 0.0, 1.0 / (r + 1.0), samples,
                                   chart.circles);
        appendLabel(chart.labels, side * (r - 1.0) / (r + 1.0), realAxisLabelY, r);
    }
    for (const double x : reactances) {
        // Every magnitude comes with both signs, so each arc is drawn twice: the overlay of the two
        // dashed strokes is part of the look.
        appendCircleInsideUnitDisk(side, 1.0 / x, 1.0 / x, samples, chart.circles);
        appendCircleInsideUnitDisk(side, -1.0 / x, 1.0 / x, samples, chart.circles);
        const double d = x * x + 1.0;
        appendLabel(chart.labels, side * (x * x - 1.0) / d, side * 2.0 * x / d, x);
    }
    return chart;
}

} // namespace

GridValues gridValues(Preset preset)
{
    switch (preset) {
    case Basic:
        return {{0, 0.5, 1, 2}, {-2, -1, -0.5, 0.5, 1, 2}};
    case Standard:
        return {{0, 0.2, 0.5, 1, 2, 5}, {-5, -2, -1, -0.5, -0.2, 0.2, 0.5, 1, 2, 5}};
    case Detailed:
        return {{0, 0.1, 0.2, 0.5, 1, 2, 5, 10},
                {-10, -5, -2, -1, -0.5, -0.2, -0.1, 0.1, 0.2, 0.5, 1, 2, 5, 10}};
    }
    return {};
}

namespace
{

/// Points around the unit circle, from 0 to 2 pi; the last ones that were asked for are kept.
struct UnitCircle {
    QVector<double> x, y;

    static UnitCircle of(int samples)
    {
        static thread_local UnitCircle last;
        if (last.x.size() != samples + 1) {
            last.x.resize(samples + 1);
            last.y.resize(samples + 1);
            for (int i = 0; i <= samples; ++i) {
                const double angle = twoPi * i / samples;
                last.x[i] = std::cos(angle);
                last.y[i] = std::sin(angle);
            }
        }
        return last;
    }
};

} // namespace

void appendCircleInsideUnitDisk(double centerX, double centerY, double radius, int samples,
                                Runs &runs)
{
    if (samples < 1)
        return;
    // Through pointers: whatever else is asked at each of some hundred points costs more than the point.
    const UnitCircle circle = UnitCircle::of(samples);
    const double *const unitX = circle.x.constData();
    const double *const unitY = circle.y.constData();
    int begin = 0; // of the run that the point in question may belong to
    const auto closeRun = [&](int end) {
        if (begin < end) {
            QVector<double> runX(end - begin);
            QVector<double> runY(end - begin);
            double *const x = runX.data();
            double *const y = runY.data();
            for (int i = begin; i < end; ++i) {
                x[i - begin] = centerX + radius * unitX[i];
                y[i - begin] = centerY + radius * unitY[i];
            }
            runs.x.append(runX);
            runs.y.append(runY);
        }
        begin = end + 1;
    };
    for (int i = 0; i <= samples; ++i) {
        const double x = centerX + radius * unitX[i];
        const double y = centerY + radius * unitY[i];
        if (!(x * x + y * y <= insideLimit))
            closeRun(i);
    }
    closeRun(samples + 1);
}

Grid gridGeometry(const QVector<double> &resistances, const QVector<double> &reactances,
                  int samples)
{
    Grid grid;
    grid.impedance = chartGrid(1.0, resistances, reactances, samples);
    grid.admittance = chartGrid(-1.0, resistances, reactances, samples);
    if (samples >= 1) {
        const UnitCircle boundary = UnitCircle::of(samples);
        grid.boundaryX = boundary.x;
        grid.boundaryY = boundary.y;
    }
    grid.realAxisX = {-1.0, 1.0};
    grid.realAxisY = {0.0, 0.0};
    return grid;
}

Qt::Alignment labelAlignment(double labelX, double labelY)
{
    if (std::abs(labelY - realAxisLabelY) < 0.001)
        return Qt::AlignTop | Qt::AlignHCenter;
    Qt::Alignment horizontal = Qt::AlignHCenter;
    if (labelX > 0.1)
        horizontal |= Qt::AlignLeft;
    else if (labelX < -0.1)
        horizontal |= Qt::AlignRight;
    Qt::Alignment vertical = Qt::AlignVCenter;
    if (labelY > 0.1)
        vertical |= Qt::AlignBottom;
    else if (labelY < -0.1)
        vertical |= Qt::AlignTop;
    return horizontal | vertical;
}

} // namespace SmithChart
