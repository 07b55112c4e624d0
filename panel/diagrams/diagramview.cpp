// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramview.h"

#include "markernumbers.h"
#include "readouts.h"
#include "titlelabel.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

#include <controls/thememanager.h>
#include <plot/markerselection.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QVBoxLayout>

#include <cmath>

namespace Panel
{

namespace
{

/// A stretch beside the plot's 1: the read-outs get what they can use, and the plot the rest.
constexpr int s_readOutsFirst = 1000;

} // namespace

DiagramView::DiagramView(const PanelModel *model, const DiagramId &id, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_id(id)
    , m_title(new TitleLabel(this))
    , m_readOuts(new ReadOuts(model, this))
    , m_plot(new QCustomPlot(this))
    , m_body(new QBoxLayout(QBoxLayout::TopToBottom))
{
    m_title->setObjectName(QStringLiteral("dim"));
    m_title->setContentsMargins(10, 4, 10, 2);
    m_title->installEventFilter(this);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_title);
    column->addLayout(m_body, 1);
    m_body->addWidget(m_plot, 1);
    if (m_id.kind != DiagramKind::Cartesian)
        m_body->addWidget(m_readOuts, s_readOutsFirst);
    else
        m_readOuts->setParent(m_plot);
    m_plot->setFocusPolicy(Qt::WheelFocus);
    connect(m_readOuts, &ReadOuts::selectionRequested, this,
            &DiagramView::markerSelectionRequested);
    followLayout();
    m_plot->installEventFilter(this);
    followModel();
    followMarkers();
}

void DiagramView::followLayout()
{
    disconnect(m_layout);
    m_layout = connect(m_plot, &QCustomPlot::afterLayout, this, [this] {
        onLayout();
        QVector<const Plot::Marker *> drawn;
        for (const Trace &trace : traces()) {
            for (const Marker &marker : m_model->markersOf(trace.id))
                drawn << drawnMarker(trace.id, marker.number);
        }
        fanOutNumbers(drawn, currentLook().background);
    });
}

void DiagramView::followModel()
{
    connect(m_model, &PanelModel::stimulusChanged, this, &DiagramView::reload);
    connect(m_model, &PanelModel::networkUpdated, this, [this](int network) {
        // A diagram that nobody sees catches up when it is shown.
        m_stale = !isVisible() || window()->isMinimized();
        if (m_stale)
            return;
        QElapsedTimer timer;
        timer.start();
        updateTraces(network);
        m_loaded = revisions();
        m_dataMilliseconds = double(timer.nsecsElapsed()) / 1e6;
    });
    connect(m_model, &PanelModel::activeTraceChanged, this, [this] {
        showActiveTrace();
        updateTitle();
    });
    connect(m_model, &PanelModel::traceScaleChanged, this, &DiagramView::updateTitle);
    connect(m_model, &PanelModel::traceVisibleChanged, this, [this](int id) {
        if (follows(id))
            setTraceVisible(*m_model->trace(id));
        updateTitle();
    });
    connect(m_model, &PanelModel::memoryChanged, this, [this](int id) {
        if (follows(id))
            showMemory(*m_model->trace(id));
    });
    connect(m_model, &PanelModel::zoomChanged, this, [this](const DiagramId &changed) {
        if (changed != m_id)
            return;
        showZoom();
        updateTitle();
    });
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] { recolor(); });
}

void DiagramView::followMarkers()
{
    const auto place = [this](int traceId, int number) {
        const Marker *marker = m_model->marker(traceId, number);
        if (follows(traceId) && marker)
            placeMarker(*m_model->trace(traceId), *marker);
    };
    connect(m_model, &PanelModel::markerAdded, this, place);
    connect(m_model, &PanelModel::markerMoved, this, place);
    connect(m_model, &PanelModel::markerRemoved, this, [this](int traceId, int number) {
        if (m_traceIds.contains(traceId))
            removeMarker(traceId, number);
    });
    connect(m_model, &PanelModel::markerModeChanged, this, [this] {
        for (const Trace &trace : traces())
            placeMarkers(trace);
    });
    connect(m_model, &PanelModel::selectedMarkerChanged, this, [this] { showSelectedMarker(); });
}

void DiagramView::setTraces(const QVector<int> &ids)
{
    if (ids != m_traceIds)
        m_loaded.reset();
    m_traceIds = ids;
    reload();
}

/// Loads the traces if they have changed since they were loaded.
void DiagramView::reload()
{
    if (m_model->isChanging())
        return;
    const QVector<TraceRevision> current = revisions();
    if (m_loaded == current)
        return;
    m_loaded = current;
    loadTraces();
    m_readOuts->setTraces(m_traceIds);
    updateTitle();
}

bool DiagramView::follows(int traceId) const
{
    return m_traceIds.contains(traceId) && m_model->trace(traceId)
        && !(m_model->isChanging() && m_loaded != revisions());
}

QVector<TraceRevision> DiagramView::revisions() const
{
    QVector<TraceRevision> result;
    for (const Trace &trace : traces())
        result.append(m_model->revision(trace));
    return result;
}

QVector<Trace> DiagramView::traces() const
{
    QVector<Trace> result;
    for (const int id : m_traceIds) {
        if (const Trace *trace = m_model->trace(id))
            result.append(*trace);
    }
    return result;
}

bool DiagramView::reaches(const Trace &trace) const
{
    const Trace *active = activeTrace();
    return trace.visible
        && (!m_model->viewSettings()->onlyActiveTrace() || (active && active->id == trace.id));
}

void DiagramView::placeMarkers(const Trace &trace)
{
    for (const Marker &marker : m_model->markersOf(trace.id))
        placeMarker(trace, marker);
}

Hit DiagramView::hit(const QPointF &position) const
{
    const Hit marker = hitMarker(position);
    return marker.kind == Hit::Nothing ? hitLine(position) : marker;
}

Hit DiagramView::hitMarker(const QPointF &position) const
{
    QVector<Hit> hits;
    QVector<const Plot::Marker *> drawn;
    const Trace *active = activeTrace();
    const auto collect = [&](auto isWanted) {
        for (const Trace &trace : traces()) {
            if (!reaches(trace))
                continue;
            for (const Marker &marker : m_model->markersOf(trace.id)) {
                if (!isWanted(trace, marker))
                    continue;
                hits.append({Hit::MarkerBody, trace.id, marker.number, m_model->indexOf(marker)});
                drawn.append(drawnMarker(trace.id, marker.number));
            }
        }
    };
    // Of those that coincide, the selected one, then the active trace's.
    collect([&](const Trace &, const Marker &marker) { return m_model->isSelected(marker); });
    collect([&](const Trace &trace, const Marker &) { return active && active->id == trace.id; });
    collect([](const Trace &, const Marker &) { return true; });
    const int nearest = Plot::markerInReach(drawn, position, reach);
    return nearest < 0 ? Hit() : hits.at(nearest);
}

bool DiagramView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_title && event->type() == QEvent::MouseButtonDblClick)
        Q_EMIT titleDoubleTapped();
    // A plot draws itself at once when it is resized: what was to be drawn later is drawn with it.
    if (watched == m_plot && event->type() == QEvent::Resize)
        QCoreApplication::removePostedEvents(m_plot, QEvent::MetaCall);
    return QWidget::eventFilter(watched, event);
}

QPointF DiagramView::coordinates(const QPointF &position) const
{
    return {m_plot->xAxis->pixelToCoord(position.x()), m_plot->yAxis->pixelToCoord(position.y())};
}

QString DiagramView::title() const
{
    return m_title->text();
}

void DiagramView::updateTitle()
{
    QStringList names, networks;
    for (const Trace &trace : traces()) {
        if (trace.visible) {
            const QString math = mathText(trace.math);
            names << (trace.name.isEmpty() ? PanelModel::parameterName(trace) : trace.name)
                    + (math.isEmpty() ? QString() : QLatin1Char(' ') + math);
            networks << m_model->network(trace).name;
        }
    }
    names.removeDuplicates();
    networks.removeDuplicates();
    QStringList parts;
    if (!names.isEmpty())
        parts << names.join(QStringLiteral(", "));
    else if (!m_traceIds.isEmpty())
        parts << tr("All traces are hidden");
    parts << titleParts() << processingTexts();
    QStringList spare;
    if (!networks.isEmpty())
        spare << (networks.size() > 2 ? tr("%n files", nullptr, int(networks.size()))
                                      : networks.join(QStringLiteral(", ")));
    parts << spare;
    m_title->setParts(parts, spare + writtenBesideAxis());
}

QStringList DiagramView::otherScales(const Trace &written) const
{
    QStringList others;
    for (const Trace &trace : traces()) {
        if (trace.visible && (trace.format != written.format || trace.scale != written.scale))
            others << trace.label();
    }
    if (!others.isEmpty())
        return {tr("own scale: %1").arg(others.join(QLatin1String(", ")))};
    return {};
}

/// What is done to the data of the active trace, as long as it holds.
QStringList DiagramView::processingTexts() const
{
    const Trace *active = activeTrace();
    if (!active)
        return {};
    QStringList texts;
    const Correction &correction = m_model->correction(*active);
    for (int port = 1; port <= correction.delays.size(); ++port) {
        if (correction.delay(port) != 0.0)
            texts << tr("Port %1: %2")
                         .arg(port)
                         .arg(engineeringText(correction.delay(port), QStringLiteral("s")));
    }
    if (correction.referenceOhms > 0.0)
        texts << tr("to %1").arg(ohmsText(correction.referenceOhms));
    if (active->smoothing > 0.0)
        texts << tr("smoothed %1 %").arg(active->smoothing);
    return texts;
}

void DiagramView::replotLater()
{
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void DiagramView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeReadOuts();
}

/// Below the plot, or beside it; those of a Cartesian diagram lie over it.
void DiagramView::placeReadOuts()
{
    if (m_id.kind == DiagramKind::Cartesian)
        return;
    // A square diagram leaves room beside it where it is much wider than high.
    const int side = width() - height();
    if (2 * side >= height()) {
        m_body->setDirection(QBoxLayout::RightToLeft);
        m_readOuts->showBeside(side);
    } else {
        m_body->setDirection(QBoxLayout::TopToBottom);
        m_readOuts->showBelow(size() - QSize(0, m_title->sizeHint().height()));
    }
}

void DiagramView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    clearEdges();
    if (m_stale)
        reload();
    m_stale = false;
}

/// A plot says that it fills its rectangle, but at 1.25 or 1.5 device pixels a pixel it leaves the
/// last one of a row as it was.
void DiagramView::clearEdges()
{
    const double ratio = devicePixelRatioF();
    m_plot->setAttribute(Qt::WA_OpaquePaintEvent, ratio == std::floor(ratio));
}

bool DiagramView::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // A plot reads the pixel ratio once, and the window may move to a screen with another one. Its
    // new buffers hold nothing until they are painted.
    if (event->type() == QEvent::ScreenChangeInternal) {
        clearEdges();
        m_plot->setBufferDevicePixelRatio(devicePixelRatioF());
        m_plot->replot();
    }
    // The title takes its lines by the width that it gets, after this has been resized.
    if (event->type() == QEvent::LayoutRequest)
        placeReadOuts();
    return handled;
}

} // namespace Panel
