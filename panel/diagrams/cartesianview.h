// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesianlimits.h"
#include "cartesianmarkers.h"
#include "diagramview.h"
#include "fitoffer.h"
#include "freeplace.h"
#include "frequencyaxis.h"
#include "valueaxis.h"

#include <panel/model/cartesian.h>

#include <map>

namespace Panel
{

/*! Traces over the frequency, each in its own format and scale.

    The plot's own axes are the scales that are written: those of the active trace. Every line has
    a value axis of its own, which is never seen. The view magnifies the frequencies. */
class CartesianView : public DiagramView
{
    Q_OBJECT

public:
    CartesianView(const PanelModel *model, const DiagramId &id, QWidget *parent = nullptr);

    /// The line of a trace, or null.
    QCPGraph *graph(int traceId) const;
    /// The line of a trace's stored data, or null.
    QCPGraph *memoryGraph(int traceId) const;
    const FrequencyAxis &frequencyAxis() const { return m_frequencies; }
    /// What the limits say of the traces on show; hidden without limits.
    const QLabel *verdict() const { return m_limits.verdict(); }
    /// What offers to fit a trace that is wholly outside the diagram; hidden while there is none.
    QPushButton *fitButton() const { return m_fitButton; }

    void dragTo(int traceId, int number, const QPointF &position) override;
    const Plot::Marker *drawnMarker(int traceId, int number) const override;
    int pointsPerStep(int traceId) const override;
    Zoom zoomedAt(const QPointF &position, double factor) const override;
    Zoom movedTo(const QPointF &coordinates, const QPointF &position) const override;
    int drawnPoints() const override;

protected:
    void loadTraces() override;
    void updateTraces(int network) override;
    void recolor() override;
    void showZoom() override;
    void setTraceVisible(const Trace &trace) override;
    void showActiveTrace() override;
    void placeMarker(const Trace &trace, const Marker &marker) override;
    void removeMarker(int traceId, int number) override;
    void showSelectedMarker() override;
    void showMemory(const Trace &trace) override;
    QStringList titleParts() const override;
    QStringList writtenBesideAxis() const override;
    void onLayout() override;
    Hit hitLine(const QPointF &position) const override;

private:
    /// What is drawn of a trace; all owned by the plot.
    struct Line {
        QCPGraph *graph = nullptr;
        QCPGraph *memory = nullptr; ///< null while nothing is stored
        QCPAxis *values = nullptr;
        ValueRange drawn; ///< the values of the line
    };

    void setUpPlot();
    double nearestIndex(int traceId, const QPointF &position) const;
    void clearLines();
    void addLine(const Trace &trace);
    void addMemory(const Trace &trace);
    void fillLine(const Trace &trace);
    void fillLines();
    bool fitFrequencies();
    bool showFrequencies(const QCPRange &whole);
    void showPens();
    void showScale(int traceId);
    void showWrittenScale();
    void showOffScale();
    void placeReadOuts();

    FrequencyAxis m_frequencies;
    std::map<int, Line> m_lines; ///< by trace
    ValueAxis m_values;
    CartesianMarkers m_markers;
    CartesianLimits m_limits;
    FitOffer *m_fitButton;
    BoxPlace m_readOutPlace;
    BoxPlace m_verdictPlace;
    QSize m_laidOut; ///< of the axis rectangle; empty before the first layout
};

} // namespace Panel
