// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagramview.h"

#include "readouts.h"
#include <panel/look/elidedlabel.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QElapsedTimer>
#include <QVBoxLayout>

namespace Panel
{

DiagramView::DiagramView(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_title(new ElidedLabel(Qt::ElideRight, this))
    , m_readOuts(new ReadOuts(model, this))
    , m_plot(new QCustomPlot(this))
{
    m_title->setObjectName(QStringLiteral("dim"));
    m_title->setContentsMargins(10, 4, 10, 2);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_title);
    column->addWidget(m_readOuts);
    column->addWidget(m_plot, 1);
    m_plot->setFocusPolicy(Qt::StrongFocus);
    connect(m_readOuts, &ReadOuts::selectionRequested, this,
            &DiagramView::markerSelectionRequested);
    followModel();
}

void DiagramView::followModel()
{
    /// For a change of one trace that is on show.
    const auto onTrace = [this](auto member) {
        return [this, member](int id) {
            if (m_traceIds.contains(id) && m_model->trace(id))
                (this->*member)(*m_model->trace(id));
        };
    };
    const auto onMarker = [this](auto member) {
        return [this, member](int traceId, int number) {
            const Marker *marker = m_model->marker(traceId, number);
            if (m_traceIds.contains(traceId) && marker)
                (this->*member)(*m_model->trace(traceId), *marker);
        };
    };
    connect(m_model, &PanelModel::stimulusChanged, this, [this] { loadTraces(); });
    connect(m_model, &PanelModel::networkUpdated, this, [this](int network) {
        // A hidden diagram catches up when it is shown.
        m_stale = !isVisible();
        if (m_stale)
            return;
        QElapsedTimer timer;
        timer.start();
        updateTraces(network);
        m_dataMilliseconds = double(timer.nsecsElapsed()) / 1e6;
    });
    connect(m_model, &PanelModel::activeTraceChanged, this, [this] {
        showActiveTrace();
        const Trace *active = activeTrace();
        m_readOuts->setTrace(active ? active->id : 0);
        updateTitle();
    });
    connect(m_model, &PanelModel::traceVisibleChanged, this,
            onTrace(&DiagramView::setTraceVisible));
    connect(m_model, &PanelModel::traceVisibleChanged, this, &DiagramView::updateTitle);
    connect(m_model, &PanelModel::memoryChanged, this, onTrace(&DiagramView::showMemory));
    connect(m_model, &PanelModel::markerAdded, this, onMarker(&DiagramView::addMarker));
    connect(m_model, &PanelModel::markerMoved, this, onMarker(&DiagramView::moveMarker));
    connect(m_model, &PanelModel::markerRemoved, this, [this](int traceId, int number) {
        if (m_traceIds.contains(traceId))
            removeMarker(traceId, number);
    });
    connect(m_model, &PanelModel::selectedMarkerChanged, this, [this] { showSelectedMarker(); });
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            [this] { recolor(); });
}

void DiagramView::setTraces(const QVector<int> &ids)
{
    m_traceIds = ids;
    loadTraces();
    const Trace *active = activeTrace();
    m_readOuts->setTrace(active ? active->id : 0);
    updateTitle();
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

QPointF DiagramView::coordinates(const QPointF &position) const
{
    return {m_plot->xAxis->pixelToCoord(position.x()), m_plot->yAxis->pixelToCoord(position.y())};
}

void DiagramView::updateTitle()
{
    QStringList names;
    for (const Trace &trace : traces()) {
        const QString name = PanelModel::parameterName(trace);
        if (trace.visible && !names.contains(name))
            names << name;
    }
    QStringList parts;
    if (!names.isEmpty())
        parts << names.join(QStringLiteral(", "));
    else if (!m_traceIds.isEmpty())
        parts << tr("All traces are hidden");
    parts << titleParts();
    m_title->setText(parts.join(QStringLiteral(" \u00b7 ")));
}

void DiagramView::replotLater()
{
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void DiagramView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // The diagram keeps the greater part.
    m_readOuts->setRoom(height() / 4);
}

void DiagramView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_stale)
        loadTraces();
    m_stale = false;
}

bool DiagramView::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    // A plot reads the pixel ratio once, and the window may move to a screen with another one. Its
    // new buffers hold nothing until they are painted.
    if (event->type() == QEvent::ScreenChangeInternal) {
        m_plot->setBufferDevicePixelRatio(devicePixelRatioF());
        m_plot->replot();
    }
    return handled;
}

} // namespace Panel
