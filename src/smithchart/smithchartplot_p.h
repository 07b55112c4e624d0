// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "indexedtrace_p.h"
#include "smithchartplot.h"

#include <QPointer>

#include <optional>
#include <vector>

class QMouseEvent;

/*! What SmithChartPlot keeps and how it works, room by room as in its table of contents: hidden, so
    that a change of the engine does not change the layout that hosts were compiled with. */
class SmithChartPlotPrivate
{
public:
    /// A trace: its curve on the plot, its source data, and what was last drawn of it.
    struct OwnedCurve {
        int traceId = 0;
        QPointer<QCPCurve> curve; ///< owned by the plot
        QPen basePen; ///< as the caller gave it
        QVector<double> frequencies; ///< as many as there are points
        QVector<double> real;
        QVector<double> imag; ///< as many as real parts
        SmithRender::IndexedTrace index; ///< over the source data

        SmithRender::Viewport cachedViewport;
        QVector<int> keptIndices;
        quint64 markerRevision = 0;
        quint64 cachedMarkerRevision = 0;
        qint64 lastDecimationNs = -1; ///< -1: not measured
        int displayedPointCount = 0;
        qint64 lastReportMs = 0;
    };

    /// A marker: its items on the plot and the point of the trace it marks.
    struct OwnedMarker {
        std::unique_ptr<Plot::Marker> marker; ///< never null
        QPointer<QCPCurve> curve;
        int traceId = 0;
        int localId = 0;
        double sourceIndex = -1.0; ///< -1: never placed
    };

    SmithChartPlotPrivate(SmithChartPlot *chart, QCustomPlot *plot, SmithChart::Preset preset);

    // Construction, layers, replot
    QCustomPlot *plot() const;
    QCPAxisRect *axisRect() const;
    void initializePlot();
    void connectAxes();
    void requestQueuedReplot();

    // Grid
    void addSmithChartGrid();
    void clearSmithChartGrid();
    void rebuildSmithChartGrid();
    void syncGridFlags();
    void setGridVisible(bool visible);
    void addPresetGrid();
    void addViewGrid();
    void applyGridChange();
    void applyTheme();
    QString boundaryLayer() const;
    bool isOurs(const QObject *object) const;

    // Traces
    OwnedCurve *findTrace(int traceId);
    int findCurveIndexByTraceId(int traceId) const;
    OwnedCurve *findOwnedCurve(QCPCurve *curve);
    const OwnedCurve *findOwnedCurve(QCPCurve *curve) const;
    QVector<QCPCurve *> dataCurves() const;
    bool anyCurveVisible() const;
    void moveCurveToLayer(int traceId, const QString &layer);
    void applyPen(const OwnedCurve &record) const;
    void reportPerformance(OwnedCurve &record, qint64 elapsedNs);

    // View
    void applyViewState();
    void applyFixedView();
    void ensureAspectRatio();
    void setViewState(const SmithChart::ViewState &state);

    // Display
    static SmithRender::Viewport viewportOf(const QCPAxis *xAxis, const QCPAxis *yAxis);
    SmithRender::Viewport currentRenderViewport() const;
    bool refreshDisplayCurve(OwnedCurve &record, bool force);
    void refreshAllDisplayCurves(bool force);
    QVector<int> mandatorySourceIndices(const OwnedCurve &record) const;

    // Pointer
    const OwnedMarker *markerToCatchAt(const QPointF &pos) const;
    bool dragIsConfined() const;
    void finishDrag();
    int draggedIndex(const OwnedMarker &record, const QPoint &pos) const;
    void showDragLine(const OwnedMarker &record, const QPoint &pos);
    void hideDragLine();
    void forgetDrag();
    void onPlotMousePress(QMouseEvent *event);
    void catchMarkerAt(const QPointF &pos);
    bool catchMarker(int traceId, int localId);
    void onPlotMouseMove(QMouseEvent *event);
    int nearestCurveDataIndex(QCPCurve *curve, const QPoint &pos, double *squaredDistance) const;
    bool nearestCurveAndIndex(const QPoint &pos, QCPCurve *&curve, int &index,
                              double &squaredDistance) const;

    // Markers
    OwnedMarker *findMarker(int traceId, int localId);
    void removeMarkersOfTrace(int traceId);
    void bumpMarkerRevision(OwnedCurve &record);
    int findMarkerIndexByID(int traceId, int localId) const;
    bool createMarkerVisualAt(OwnedCurve &trace, int localId, double sourceIndex,
                              Plot::MarkerType type);
    static bool positionMarker(const OwnedCurve &trace, const OwnedMarker &record,
                               double sourceIndex);
    void drawMarkerSelection(const OwnedMarker &record, bool selected);
    void updateMarkerVisualSelection(int traceId, int localId, bool selected);
    void recolorMarkers(QCPCurve *curve);
    void replaceMarkers(const OwnedCurve &trace);

    SmithChartPlot *const q;
    std::function<void()> m_queuedReplotHandler;
    QPointer<QObject> m_plot; ///< a QObject, because a plot half destroyed must not pass for a plot
    QPointer<QCPAxis> m_xAxis;
    QPointer<QCPAxis> m_yAxis;
    SmithChart::Preset m_preset;
    SmithChart::ViewState m_viewState;
    SmithChartPlot::GridMode m_gridMode = SmithChartPlot::Impedance;
    bool m_showImpedanceGrid = true;
    bool m_showAdmittanceGrid = false;
    SmithChart::GridLook m_gridLook;
    bool m_gridFollowsView = false;
    QMetaObject::Connection m_themeConnection; ///< while the theme is followed
    std::optional<double> m_gridReference; ///< ohms; none: normalised values
    double m_maximumZoom = SmithChart::maximumZoom;
    QVector<OwnedCurve> m_curves;
    int m_activeTraceId = -1;
    double m_traceWidth = 0.0;
    double m_activeTraceWidth = 0.0;
    std::vector<OwnedMarker> m_ownedMarkers;
    int m_draggingMarkerId = -1;
    bool m_finishingDrag = false;
    int m_selectedMarkerId = -1;
    double m_markerHitTolerancePx = 18.0;
    double m_markerDragJumpPx = 0.0;
    QPointer<QCPItemLine> m_dragLine; ///< owned by the plot; made when first shown
    bool m_onlyHandleActiveTrace = true;
    bool m_pressDragsMarkers = true;
    bool m_resizeRefitPending = false;
};
