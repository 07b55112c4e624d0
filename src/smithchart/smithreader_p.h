// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "accessibleplot.h"
#include "smithchartplot.h"
#include "smithlimit.h"
#include "smithreader.h"

#include <QCoreApplication>
#include <QHash>
#include <QPointer>

#include <algorithm>

using SmithChart::PointValues;

/// The data of a trace; empty for an unknown one.
struct ReadTrace {
    QVector<double> stimulus;
    QVector<double> real;
    QVector<double> imag;

    int size() const { return static_cast<int>(real.size()); }
    bool holds(double index) const { return index >= 0.0 && index <= size() - 1.0; }
    /// At a fractional index, which it holds.
    double stimulusAt(double index) const
    {
        const int below = static_cast<int>(index);
        const int above = qMin(below + 1, size() - 1);
        return stimulus.at(below) + (index - below) * (stimulus.at(above) - stimulus.at(below));
    }
    /// The index of a stimulus value, as far as there are points.
    double indexOf(double wanted) const
    {
        const auto above = std::lower_bound(stimulus.begin(), stimulus.end(), wanted);
        if (above == stimulus.begin())
            return 0.0;
        if (above == stimulus.end())
            return size() - 1.0;
        const double index = static_cast<double>(above - stimulus.begin());
        return index - (*above - wanted) / (*above - *(above - 1));
    }
};

/// What the reader says of its chart, and where it walks.
class SmithReader::Private : public PlotDescription
{
    Q_DECLARE_TR_FUNCTIONS(SmithReader)

public:
    struct Limit {
        QPointer<SmithLimit> limit;
        int trace;
    };

    QString name() const override { return ownName.isEmpty() ? tr("Smith chart") : ownName; }
    QString summary() const override;
    QVector<int> traces() const override;
    QString traceName(int trace) const override
    {
        return names.value(trace, tr("Trace %1").arg(trace));
    }
    int rows(int trace) const override { return data(trace).size(); }
    QStringList columns(int) const override { return SmithChart::pointColumns(unit()); }
    QString cell(int trace, int row, int column) const override;
    QVector<MarkerId> markers() const override;
    QString markerText(const MarkerId &id) const override;
    MarkerValue markerValue(const MarkerId &id) const override;
    void requestMarkerValue(const MarkerId &id, double value) override;
    QStringList verdicts() const override;

    ReadTrace data(int trace) const;
    QString unit() const { return chart->gridReference() ? QStringLiteral("\u03a9") : QString(); }
    PointValues point(const ReadTrace &of, double at) const;
    int traceToWalk() const;
    QVector<double> limitEdges(int trace) const;
    bool step(const SmithChart::WalkStep &step);
    void showRing(const QPointF &place);

    QPointer<SmithChartPlot> chart;
    QPointer<AccessiblePlot> accessible;
    QString ownName;
    QHash<int, QString> names;
    SmithChart::StimulusText stimulusText = [](double hertz) {
        return SmithChart::hertzText(hertz);
    };
    QVector<Limit> limits;
    bool takesKeys = true;
    SmithChart::TraceWalk walk;
    int walked = -1; ///< trace
    double index = -1.0;
    QString text; ///< of the last step
    QPointer<QCPItemTracer> ring; ///< owned by the plot
};
