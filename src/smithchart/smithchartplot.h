// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <plot/marker.h>
#include <plot/qcp.h>
#include <smithchart/gridlook.h>
#include <smithchart/preset.h>
#include <smithchart/viewstate.h>

#include <QObject>
#include <QPen>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

class SmithChartPlotPrivate;

/*! Turns a QCustomPlot that the caller owns into a Smith chart.

    The chart draws a grid, traces of reflection coefficients and markers on the plot, keeps the
    view round at every size, and reports what the user does as request signals: it never moves a
    marker, selects one or changes data by itself. It measures nothing, owns neither plot nor axes,
    and does not pan or zoom on its own; the host calls zoomAt() and setViewFromRequestedRanges(). A
    plot or an axis destroyed before the chart is survived: the chart then does nothing and its
    setters return false.

    \code
    auto *plot = new QCustomPlot(mainWindow);
    auto *chart = new SmithChartPlot(plot, SmithChart::Standard, mainWindow);
    chart->addCurve(1, QPen(Qt::yellow));
    chart->setCurveData(1, frequencies, real, imaginary);
    chart->setActiveTrace(1);
    chart->addMarkerVisual(1, 1, 100.0, Plot::PointingDown);
    connect(chart, &SmithChartPlot::markerPositionChanged, chart, &SmithChartPlot::setMarkerIndex);
    connect(chart, &SmithChartPlot::markerSelectionRequested, chart, &SmithChartPlot::selectMarker);
    \endcode

    Table of contents, one room a file:
      -# construction, layers, replot   smithchartplot.cpp
      -# grid                           smithchartplot_grid.cpp
      -# traces                         smithchartplot_traces.cpp
      -# view                           smithchartplot_view.cpp
      -# display                        smithchartplot_display.cpp
      -# pointer                        smithchartplot_pointer.cpp
      -# markers                        smithchartplot_markers.cpp

    Layers, bottom to top: "smithGrid", "tracers", "tracers_active", "smithBoundary", the base layer
    ("rect_traces" if the plot has it, else "main"), what stood above it, and "markers". */
class VNAWIDGETS_EXPORT SmithChartPlot : public QObject
{
    Q_OBJECT

    Q_PROPERTY(GridMode gridMode READ gridMode WRITE setGridMode NOTIFY gridModeChanged)
    Q_PROPERTY(int activeTrace READ activeTrace WRITE setActiveTrace NOTIFY activeTraceChanged)
    Q_PROPERTY(bool onlyHandleActiveTrace READ onlyHandleActiveTrace WRITE setOnlyHandleActiveTrace)
    Q_PROPERTY(bool gridFollowsView READ gridFollowsView WRITE setGridFollowsView)
    Q_PROPERTY(bool followsTheme READ followsTheme WRITE setFollowsTheme)
    Q_PROPERTY(double maximumZoom READ maximumZoom WRITE setMaximumZoom)

public:
    /// Which charts the grid shows.
    enum GridMode : int {
        Impedance = 0, ///< circles of resistance and reactance
        Admittance = 1, ///< circles of conductance and susceptance
        ImpedanceAndAdmittance = 2, ///< both
    };
    Q_ENUM(GridMode)

    /*! \name Construction, layers, replot (smithchartplot.cpp)
        @{ */

    /// A chart on \a xAxis (real part) and \a yAxis (imaginary part) of \a plot; a null axis stands
    /// for the plot's own. With a null plot the chart does nothing.
    SmithChartPlot(QCustomPlot *plot, QCPAxis *xAxis, QCPAxis *yAxis, SmithChart::Preset preset,
                   QObject *parent = nullptr);
    /// A chart on the plot's own axes.
    SmithChartPlot(QCustomPlot *plot, SmithChart::Preset preset, QObject *parent = nullptr);
    /// Takes traces and markers off the plot; the grid's items stay, hidden.
    ~SmithChartPlot() override;

    /// The plot, or null without one or once it has been destroyed.
    QCustomPlot *getPlot() const;
    /// Moves chart and traces to other axes; a null axis stands for the plot's own of that
    /// direction.
    void setAxes(QCPAxis *xAxis, QCPAxis *yAxis);
    /// Called in place of a queued replot of the plot, so that a host can join several; empty
    /// restores that.
    void setQueuedReplotHandler(const std::function<void()> &handler);
    /*! @} */

    /*! \name Grid (smithchartplot_grid.cpp)
        @{ */

    /// Shows the impedance grid, the admittance grid or both. Default: Impedance.
    void setGridMode(GridMode mode);
    /// Which charts the grid shows.
    GridMode gridMode() const;
    /// Fills the point and label lists of a grid for normalised \a resistances and \a reactances,
    /// with \a samples steps a full circle. Every output is cleared first; x and y lists have equal
    /// lengths.
    static void generateSmithChartGridExtended(
        QVector<QVector<double>> &impedanceCircleX, QVector<QVector<double>> &impedanceCircleY,
        QVector<QVector<double>> &admittanceCircleX, QVector<QVector<double>> &admittanceCircleY,
        QVector<double> &boundaryX, QVector<double> &boundaryY, QVector<double> &realAxisX,
        QVector<double> &realAxisY, QVector<double> &impedanceLabelX,
        QVector<double> &impedanceLabelY, QVector<QString> &impedanceLabelText,
        QVector<double> &admittanceLabelX, QVector<double> &admittanceLabelY,
        QVector<QString> &admittanceLabelText, const QVector<double> &resistances,
        const QVector<double> &reactances, int samples);
    /*! @} */

    /*! \name Traces (smithchartplot_traces.cpp)
        @{ */

    /// Adds an empty trace; false for an id below 1 or one that exists. Only the pen's colour and
    /// style count: traces are drawn one pixel wide.
    Q_INVOKABLE bool addCurve(int traceId, const QPen &pen);
    /// Removes a trace with its markers; false if there is none of this id.
    bool removeCurve(int traceId);
    /// Removes all traces with their markers.
    void clearAllCurves();
    /// Replaces a trace's data: reflection coefficients by \a real and \a imag, cut to the shorter
    /// of both, at the stimulus values \a frequencies (0, 1, 2, ... if these are fewer). NaN makes
    /// a gap.
    Q_INVOKABLE bool setCurveData(int traceId, const QVector<double> &frequencies,
                                  const QVector<double> &real, const QVector<double> &imag);
    /// Hands out the stored data, valid until the trace changes; false if there is no such trace.
    bool sourceCurveData(int traceId, const QVector<double> *&frequencies,
                         const QVector<double> *&real, const QVector<double> *&imag) const;
    /// Sets colour and style of a trace and its markers; false for an unknown id.
    bool setCurvePen(int traceId, const QPen &pen);
    /// The width of the solid lines of traces in pixels of the widget; 0 (the default): one device
    /// pixel, whatever the screen's scale, which dashed ones always have.
    double traceWidth() const;
    /// The same of the active trace. Default: 0.
    double activeTraceWidth() const;
    /// Sets traceWidth() and activeTraceWidth(); negative values count as 0, others than finite ones
    /// are ignored. Lines of up to 8 device pixels take hardly longer than thin ones.
    void setTraceWidths(double width, double activeWidth);
    /// Shows or hides a trace; the grid is shown exactly while at least one trace is.
    bool setCurveVisible(int traceId, bool visible);
    /// The ids of all traces, in the order they were added.
    QVector<int> traceIds() const;
    /// The curve that draws a trace, or null. It belongs to the plot.
    QCPCurve *getCurve(int traceId) const;
    /// Whether the trace has a finite value at this index; a fraction interpolates between two
    /// points.
    bool hasSourceDataAtIndex(int traceId, double index) const;
    /// Whether the trace has a finite value at this stimulus value, interpolated where needed.
    bool hasSourceDataAtParameter(int traceId, double frequency) const;
    /// Draws a trace above the others; an id of 0 or less leaves none active. False for an unknown
    /// id.
    bool setActiveTrace(int traceId);
    /// Leaves no trace active.
    void clearActiveTrace();
    /// The id given to setActiveTrace(), or -1 when there is none.
    int activeTrace() const;
    /// Whether activeTrace() is above 0.
    bool hasActiveTrace() const;
    /*! @} */

    /*! \name View (smithchartplot_view.cpp)
        @{ */

    /// Centre and magnification of the view.
    SmithChart::ViewState viewState() const;
    /// Shows the whole chart.
    void resetView();
    /// Whether the view shows less than the whole chart.
    bool isMagnified() const;
    /// Multiplies the magnification (1 to maximumZoom()) by \a factor about \a anchor in chart
    /// coordinates.
    void zoomAt(const QPointF &anchor, double factor);
    /// Shows both ranges, as large as square units and the limits of the view allow.
    void setViewFromRequestedRanges(const QCPRange &xRange, const QCPRange &yRange);
    /*! @} */

    /*! \name Pointer (smithchartplot_pointer.cpp)
        @{ */

    /// Whether double clicks and marker drags are confined to the active trace. Default: true.
    bool onlyHandleActiveTrace() const;
    /// Sets onlyHandleActiveTrace().
    void setOnlyHandleActiveTrace(bool only);
    /// Reports the trace point within 15 pixels of \a pos (plot widget pixels) through a signal;
    /// false if there is none. The host calls it from its own double click or double tap.
    bool handleDoubleClick(const QPoint &pos, Qt::KeyboardModifiers modifiers);

    bool eventFilter(QObject *watched, QEvent *event) override;
    /*! @} */

    /*! \name Markers (smithchartplot_markers.cpp)
        A marker is known by its trace and a number of 1 to 99 within the trace.
        @{ */

    /// traceId x 100 + localId.
    static int makeMarkerId(int traceId, int localId);
    /// The trace and number of an id; 0 and -1 for one below 1.
    static void parseMarkerId(int id, int &traceId, int &localId);
    /// Adds a marker at a fractional index into the trace's data. One outside the data is kept
    /// hidden until setMarkerIndex() and setMarkerVisible(). False for an unknown trace, a pair
    /// that exists, or a number above 99.
    bool addMarkerVisual(int traceId, int localId, double sourceIndex, Plot::MarkerType type);
    /// Removes a marker; false if there is none.
    bool removeMarkerVisual(int traceId, int localId);
    /// Removes all markers.
    void clearAllMarkers();
    /// Draws a marker selected; false if it does not exist or its trace is hidden.
    bool selectMarker(int traceId, int localId);
    /// Draws no marker selected.
    void clearMarkerSelection();
    /// The selected marker; false, without touching either, when there is none.
    bool getSelectedMarker(int &traceId, int &localId) const;
    /// A marker, or null. It belongs to the chart.
    Plot::Marker *getMarker(int traceId, int localId);
    /// The same, for a chart that is only read.
    const Plot::Marker *getMarker(int traceId, int localId) const;
    /// The markers of a trace, in the order they were added.
    QVector<const Plot::Marker *> markers(int traceId) const;
    /// Whether any marker is shown.
    bool hasVisibleMarkers() const;
    /// Moves a marker along its trace, interpolating between points; false outside the data.
    bool setMarkerIndex(int traceId, int localId, double sourceIndex);
    /// The index into its trace's data that a marker was last set to; -1 for an unknown one.
    double markerIndex(int traceId, int localId) const;
    /// Sets the text beside a marker; false for an unknown one.
    bool setMarkerLabelText(int traceId, int localId, const QString &text);
    /// Shows or hides a marker; false for an unknown one.
    bool setMarkerVisible(int traceId, int localId, bool visible);
    /// Drives a drag from input that does not reach the plot as mouse events; points are plot
    /// widget pixels. True if a marker was caught.
    bool beginMarkerDragAt(const QPoint &pos);
    /// Goes on with that drag.
    void updateMarkerDragAt(const QPoint &pos);
    /// Ends it.
    void endMarkerDragAt(const QPoint &pos);
    /// Whether a marker is being dragged, by whatever input.
    bool isDraggingMarker() const;
    /// How near a press must be to catch a marker, in logical pixels. Default: 18.
    double markerHitTolerancePx() const;
    /// Sets markerHitTolerancePx().
    void setMarkerHitTolerancePx(double px);
    /*! @} */

    /*! \name For a host with a hit test of its own (smithchartplot_pointer.cpp)
        @{ */

    /// Whether a press on the plot catches the marker under it. Default: true. A host that decides
    /// by itself what a finger means turns it off and calls beginMarkerDrag().
    bool pressDragsMarkers() const;
    /// Sets pressDragsMarkers().
    void setPressDragsMarkers(bool drags);
    /// What a press on this marker does: asks for its selection and begins to drag it, until the
    /// left button is released. False for an unknown marker, and when the host has removed it.
    bool beginMarkerDrag(int traceId, int localId);
    /// The point of a trace that is nearest to \a pos (plot widget pixels), and its distance in
    /// logical pixels. False, without touching either, for a trace that is unknown, hidden or
    /// without points in view.
    bool nearestPoint(int traceId, const QPoint &pos, int &index, double &distance) const;
    /*! @} */

    /*! \name Beyond the presets: off until a host asks for it
        @{ */

    /// Draws, in place of the preset's values, a grid whose lines and labels follow the view: at
    /// every magnification they stand some 30 to 70 pixels apart. Default: false.
    void setGridFollowsView(bool follows);
    /// Whether the grid follows the view.
    bool gridFollowsView() const;
    /// Labels that grid in ohms and siemens, at round values of these, for a reference impedance.
    /// Without one, the default, values are normalised. False unless it is finite and above 0.
    bool setGridReference(std::optional<double> ohms);
    /// The reference impedance in ohms, or none.
    std::optional<double> gridReference() const;
    /// Pens, font and colours of the grid.
    void setGridLook(const SmithChart::GridLook &look);
    /// How the grid looks.
    SmithChart::GridLook gridLook() const;
    /*! Takes the colours of ground, grid and labels from Controls::ThemeManager, now and at every
        themeChanged(), and draws no lines along the axes. What gridLook() says besides colours
        stays. Turned off, the chart stays as it is. Default: false. */
    void setFollowsTheme(bool follows);
    /// Whether the theme's colours are taken.
    bool followsTheme() const;
    /// How far the view may be magnified: 1 to 1,000,000, else false. Default: 20.
    bool setMaximumZoom(double zoom);
    /// How far the view may be magnified.
    double maximumZoom() const;
    /// The axes of real and imaginary part; null once they are gone.
    QCPAxis *xAxis() const;
    /// The axis of the imaginary part, likewise.
    QCPAxis *yAxis() const;
    /// Keeps a dragged marker on its branch where a trace crosses itself: it moves to the nearest
    /// point that it can reach along the trace, and to another only if that one is farther from
    /// the pointer than \a px logical pixels; a line shows where the pointer is. 0, the default:
    /// to the nearest point always. False unless it is finite and at least 0.
    bool setMarkerDragJumpPx(double px);
    /// See setMarkerDragJumpPx().
    double markerDragJumpPx() const;
    /*! @} */

Q_SIGNALS:
    /// A double click near a point of the active trace, at that point's stimulus value.
    void activeTraceDoubleClicked(int activeTraceId, double stimulus,
                                  Qt::KeyboardModifiers modifiers);
    /// A double click near a point of any trace, while not confined to the active one.
    void pointDoubleClicked(int traceId, int dataIndex, Qt::KeyboardModifiers modifiers);
    /// Backspace or Delete while a marker is selected.
    void markerDeleteRequested(int traceId, int localId);
    /// A dragged marker is asked to move to a point of its trace.
    void markerPositionChanged(int traceId, int localId, double dataIndex);
    /// A marker was drawn selected.
    void markerSelected(int traceId, int localId);
    /// No marker is drawn selected any more.
    void markerSelectionCleared();
    /// A press has caught a marker. One of a trace that is not active follows only where
    /// onlyHandleActiveTrace() is off: otherwise neither of the next two is told.
    void markerDragStarted(int traceId, int localId);
    /// A drag has ended, with the marker at the index that the host last set.
    void markerDragFinished(int traceId, int localId, double finalDataIndex);
    /// A press on or near a marker asks for it to be selected.
    void markerSelectionRequested(int traceId, int localId);
    /// Another trace is active, or none: its id, or what setActiveTrace() was given.
    void activeTraceChanged(int traceId);
    /// A trace was shown or hidden.
    void curveVisibleChanged(int traceId, bool visible);
    /// The grid shows other charts.
    void gridModeChanged(SmithChartPlot::GridMode mode);

private:
    friend class SmithLimit;

    const std::unique_ptr<SmithChartPlotPrivate> d;
};
