// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Calls of a Smith chart in any order, also from inside its own signals and replot handler, and the
// end of chart or plot in between; what must hold at all times is checked after each call.
#include "input.h"

#include <smithchart/smithchartplot.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <cmath>
#include <memory>

namespace
{

using Fuzz::Input;

/// A host with one plot and one chart, either of which may be gone.
class Desk : public QObject
{
public:
    explicit Desk(Input &input)
        : m_input(input)
    {
        setUp();
    }
    ~Desk() override { tearDown(m_input.flag()); }

    void run()
    {
        for (int call = 0; call < 300 && !m_input.atEnd(); ++call) {
            if (m_input.integer(0, 199) == 0)
                rebuild();
            else
                act();
            check();
        }
    }

private:
    void setUp()
    {
        // Small from its first moment, which the plot of a window is not: its buffers cost more than
        // the calls.
        m_plot = new QCustomPlot(&m_window);
        m_plot->setGeometry(0, 0, 64, 64);
        // A grid takes longer than all calls, and what it consists of no input reaches: most charts
        // have one of a rim and an axis, one in 16 any preset's.
        const int grid = m_input.byte();
        m_chart = new SmithChartPlot(
            m_plot, static_cast<SmithChart::Preset>(grid < 16 ? grid % 5 - 1 : -1));
        m_chart->setOnlyHandleActiveTrace(m_input.flag());
        if (m_input.flag())
            m_chart->setQueuedReplotHandler([this] { react(); });
        const auto connectAll = [this](auto... signal) {
            (connect(m_chart, signal, this, &Desk::react), ...);
        };
        connectAll(&SmithChartPlot::activeTraceDoubleClicked, &SmithChartPlot::pointDoubleClicked,
                   &SmithChartPlot::markerDeleteRequested, &SmithChartPlot::markerPositionChanged,
                   &SmithChartPlot::markerSelected, &SmithChartPlot::markerSelectionCleared,
                   &SmithChartPlot::markerDragStarted, &SmithChartPlot::markerDragFinished,
                   &SmithChartPlot::markerSelectionRequested);
        connect(m_chart, &SmithChartPlot::markerPositionChanged, m_chart,
                &SmithChartPlot::setMarkerIndex);
        connect(m_chart, &SmithChartPlot::markerSelectionRequested, m_chart,
                &SmithChartPlot::selectMarker);
    }

    void tearDown(bool plotFirst)
    {
        m_depth = deepest; // a chart half destroyed must not be destroyed once more
        if (plotFirst)
            delete m_plot.data();
        delete m_chart.data();
        delete m_plot.data();
        m_depth = 0;
    }

    /// The plot goes, and with it or after some more calls the chart.
    void rebuild()
    {
        if (m_plot && m_input.flag()) {
            delete m_plot.data();
            return;
        }
        tearDown(m_input.flag());
        setUp();
    }

    /// The host answers a signal or a replot request with a call of its own, now and then.
    void react()
    {
        if (!m_chart || m_depth == deepest || m_input.integer(0, 3) != 0)
            return;
        const int depth = m_depth;
        const int what = m_input.integer(0, 127);
        // What goes now calls the host once more, which then keeps still.
        m_depth = what < 2 ? deepest : depth + 1;
        if (what == 0)
            delete m_chart.data();
        else if (what == 1 && !m_inPlotEvent)
            delete m_plot.data();
        else
            act();
        m_depth = depth;
    }

    QVector<double> values(int count)
    {
        QVector<double> values;
        for (int i = 0; i < count; ++i)
            values << m_input.real();
        return values;
    }

    /// Long data costs few bytes: a polygon with corners from the input.
    void setData(int trace)
    {
        const int count = m_input.flag() ? m_input.integer(0, 8) : m_input.integer(0, 1200);
        if (count <= 8) {
            m_chart->setCurveData(trace, values(m_input.integer(0, 9)), values(count),
                                  values(m_input.integer(0, 9)));
            return;
        }
        const QVector<double> corners = values(8);
        QVector<double> real(count), imag(count);
        double *const x = real.data();
        double *const y = imag.data();
        for (int i = 0; i < count; ++i) {
            x[i] = corners.at(i % 8) + i * 1e-4;
            y[i] = corners.at((i * 3 + 1) % 8);
        }
        m_chart->setCurveData(trace, {}, real, imag);
    }

    void sendMouse(QEvent::Type type, const QPoint &pos)
    {
        QMouseEvent event(type, QPointF(pos), QPointF(pos), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        sendToPlot(event);
    }

    /// Nobody may delete a widget from inside its own event.
    void sendToPlot(QEvent &event)
    {
        const bool nested = m_inPlotEvent;
        m_inPlotEvent = true;
        if (m_plot)
            QCoreApplication::sendEvent(m_plot, &event);
        m_inPlotEvent = nested;
    }

    /// What a call is about; each does with it what it likes.
    struct Call {
        Desk &desk;
        SmithChartPlot &chart;
        Input &input;
        int trace;
        int local;
        bool flag;
    };

    void act()
    {
        using Chart = SmithChartPlot;
        using Act = void (*)(const Call &);
        static constexpr Act addCurve = [](const Call &c) {
            c.chart.addCurve(c.trace, QPen(Qt::GlobalColor(c.input.integer(2, 18))));
        };
        static constexpr Act setLine = [](const Call &c) { c.desk.setData(c.trace); };
        static constexpr Act addMarker = [](const Call &c) {
            c.chart.addMarkerVisual(c.trace, c.local, c.input.integer(-2, 800) / 2.0,
                                    static_cast<Plot::MarkerType>(c.flag));
        };
        // What occurs more often stands here more often; the corpus counts on the order.
        static constexpr Act acts[] = {
            addCurve,
            addCurve,
            [](const Call &c) { c.chart.removeCurve(c.trace); },
            [](const Call &c) {
                if (c.input.integer(0, 9) == 0)
                    c.chart.clearAllCurves();
            },
            setLine,
            setLine,
            setLine,
            [](const Call &c) { c.chart.setCurveVisible(c.trace, c.flag); },
            [](const Call &c) {
                if (c.chart.getCurve(c.trace) || c.flag)
                    c.chart.setActiveTrace(c.chart.getCurve(c.trace) ? c.trace : 0);
            },
            [](const Call &c) { c.chart.clearActiveTrace(); },
            [](const Call &c) {
                c.chart.setGridMode(static_cast<Chart::GridMode>(c.input.integer(-1, 3)));
            },
            [](const Call &c) {
                const QPointF anchor(c.input.real(), c.input.real());
                c.chart.zoomAt(anchor, c.input.real());
            },
            [](const Call &c) {
                if (QCustomPlot *const plot = c.desk.m_plot)
                    c.chart.setAxes(c.flag ? plot->xAxis : plot->xAxis2, plot->yAxis);
            },
            addMarker,
            addMarker,
            [](const Call &c) { c.chart.removeMarkerVisual(c.trace, c.local); },
            [](const Call &c) {
                const double index = c.flag ? c.input.real() : c.input.integer(-2, 800) / 2.0;
                c.chart.setMarkerIndex(c.trace, c.local, index);
            },
            [](const Call &c) { c.chart.setMarkerVisible(c.trace, c.local, c.flag); },
            [](const Call &c) { c.chart.selectMarker(c.trace, c.local); },
            [](const Call &c) {
                c.flag ? c.chart.clearMarkerSelection()
                       : (void)c.chart.setCurvePen(c.trace, QPen(Qt::red));
            },
            [](const Call &c) { c.desk.press(c.chart.getMarker(c.trace, c.local), c.flag); },
            [](const Call &c) {
                c.flag ? c.chart.updateMarkerDragAt(c.desk.point())
                       : c.chart.endMarkerDragAt(c.desk.point());
            },
            [](const Call &c) { c.chart.handleDoubleClick(c.desk.point(), Qt::NoModifier); },
            [](const Call &c) {
                const QCPRange x(c.input.real(), c.input.real());
                c.chart.setViewFromRequestedRanges(x, QCPRange(c.input.real(), c.input.real()));
            },
            [](const Call &c) { c.chart.resetView(); },
            [](const Call &c) {
                QKeyEvent key(QEvent::KeyPress, c.flag ? Qt::Key_Delete : Qt::Key_A,
                              Qt::NoModifier);
                c.desk.sendToPlot(key);
            },
            [](const Call &c) {
                c.desk.sendMouse(c.flag ? QEvent::MouseMove : QEvent::MouseButtonRelease,
                                 c.desk.point());
            },
            [](const Call &c) { c.chart.setMarkerHitTolerancePx(c.input.real()); },
            [](const Call &c) {
                (void)c.chart.hasSourceDataAtIndex(c.trace, c.input.real());
                (void)c.chart.hasSourceDataAtParameter(c.trace, c.input.real());
                c.chart.setMarkerLabelText(c.trace, c.local, c.input.text(8));
            },
            [](const Call &c) { c.desk.reshape(); },
        };
        if (!m_chart)
            return;
        const int trace = m_input.integer(0, 4);
        const int local = m_input.integer(1, 3);
        const Call call{*this, *m_chart, m_input, trace, local, m_input.flag()};
        acts[m_input.integer(0, int(std::size(acts)) - 1)](call);
    }

    QPoint point() { return {m_input.integer(-8, 72), m_input.integer(-8, 72)}; }

    void press(const Plot::Marker *marker, bool byMouse)
    {
        if (!marker || !marker->getTracer())
            return;
        const QPointF pixel = marker->getTracer()->position->pixelPosition();
        if (!(std::abs(pixel.x()) < 1e4 && std::abs(pixel.y()) < 1e4))
            return;
        if (byMouse)
            sendMouse(QEvent::MouseButtonPress, pixel.toPoint());
        else
            m_chart->beginMarkerDragAt(pixel.toPoint());
    }

    /// What the toolkit does to the plot, outside of any call of the chart.
    void reshape()
    {
        if (m_depth > 0 || !m_plot)
            return;
        m_plot->resize(m_input.integer(1, 80), m_input.integer(1, 80));
        QResizeEvent resize(m_plot->size(), {});
        sendToPlot(resize);
        m_inPlotEvent = true;
        m_plot->xAxis->setRange(m_input.real(), m_input.real());
        // What the chart has asked for by now comes in the same picture.
        m_plot->replot(QCustomPlot::rpQueuedReplot);
        QCoreApplication::processEvents();
        m_inPlotEvent = false;
    }

    void check()
    {
        if (!m_chart)
            return;
        const SmithChartPlot &chart = *m_chart;
        const SmithChart::ViewState view = chart.viewState();
        FUZZ_CHECK(view.zoom >= 1.0 && view.zoom <= SmithChart::maximumZoom);
        FUZZ_CHECK(std::isfinite(view.centerX) && std::isfinite(view.centerY));
        if (!m_plot) {
            FUZZ_CHECK(!chart.getPlot());
            FUZZ_CHECK(!m_chart->addCurve(77, QPen()));
            return;
        }

        bool anyVisible = false;
        int markers = 0;
        const QVector<int> ids = chart.traceIds();
        for (const int id : ids) {
            QCPCurve *const curve = chart.getCurve(id);
            FUZZ_CHECK(curve && m_plot->hasPlottable(curve));
            FUZZ_CHECK(curve->layer()->name()
                       == (id == chart.activeTrace() ? QStringLiteral("tracers_active")
                                                     : QStringLiteral("tracers")));
            anyVisible |= curve->visible();
            markers += static_cast<int>(chart.markers(id).size());
            checkTrace(id);
        }
        const auto countOn = [this](const char *layer) {
            return static_cast<int>(m_plot->layer(QLatin1String(layer))->children().size());
        };
        FUZZ_CHECK(countOn("tracers") + countOn("tracers_active") == ids.size());
        FUZZ_CHECK(countOn("markers") == 2 * markers);
        FUZZ_CHECK(m_plot->layer(m_plot->layerCount() - 1)->name() == QLatin1String("markers"));
        const auto grid = m_plot->layer(QStringLiteral("smithGrid"))->children();
        for (const QCPLayerable *const part : grid)
            FUZZ_CHECK(part->visible() == anyVisible);
        FUZZ_CHECK(!chart.hasActiveTrace() || chart.getCurve(chart.activeTrace()));

        int trace = 0;
        int local = 0;
        FUZZ_CHECK(!chart.getSelectedMarker(trace, local) || chart.getMarker(trace, local));
        FUZZ_CHECK(!chart.isDraggingMarker() || markers > 0);
    }

    /// What is displayed of a trace is its own data, and of its markers the selected one is filled.
    void checkTrace(int id) const
    {
        const QVector<double> *frequencies = nullptr;
        const QVector<double> *real = nullptr;
        const QVector<double> *imag = nullptr;
        FUZZ_CHECK(m_chart->sourceCurveData(id, frequencies, real, imag));
        FUZZ_CHECK(real->size() == imag->size() && real->size() == frequencies->size());
        const auto shown = m_chart->getCurve(id)->data();
        FUZZ_CHECK(shown->isEmpty() == real->isEmpty());
        // Through pointers: this looks at every point after every call.
        const double *const t = frequencies->constData();
        const double *const x = real->constData();
        const double *const y = imag->constData();
        const int count = static_cast<int>(real->size());
        int i = 0;
        for (auto point = shown->constBegin(); point != shown->constEnd(); ++point, ++i) {
            while (i < count
                   && !(same(point->t, t[i]) && same(point->key, x[i]) && same(point->value, y[i])))
                ++i;
            FUZZ_CHECK(i < count);
        }
        int trace = 0;
        int local = 0;
        const bool selection = m_chart->getSelectedMarker(trace, local);
        const int selected = selection ? SmithChartPlot::makeMarkerId(trace, local) : -1;
        for (const Plot::Marker *const marker : m_chart->markers(id)) {
            FUZZ_CHECK((marker->getTracer()->brush().style() == Qt::SolidPattern)
                       == (marker->getId() == selected));
            const QCPItemPosition *const position = marker->getTracer()->position;
            FUZZ_CHECK(std::isfinite(position->key()) && std::isfinite(position->value()));
        }
    }

    static bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

    Input &m_input;
    QWidget m_window; ///< never shown
    QPointer<QCustomPlot> m_plot;
    QPointer<SmithChartPlot> m_chart;
    static constexpr int deepest = 2;
    int m_depth = 0; ///< of calls from inside the chart's own
    bool m_inPlotEvent = false;
};

} // namespace

void Fuzz::run(Input &input)
{
    Desk(input).run();
}
