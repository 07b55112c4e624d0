// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markertable.h"

#include "look.h"
#include "markerreading.h"
#include "panelmodel.h"

#include <utils/qtcompat_p.h>

#include <QPainter>

#include <array>
#include <numeric>

namespace Panel
{

namespace
{

constexpr int s_margin = 10;
/// Widths of the cells in average characters: dot and number, frequency, resistance, reactance,
/// element.
constexpr std::array<int, 5> s_cells = {6, 15, 12, 13, 14};

} // namespace

MarkerTable::MarkerTable(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
{
    setAccessibleName(tr("Markers"));
    connect(m_model, &PanelModel::networksChanged, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::stimulusChanged, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::networkUpdated, this, qOverload<>(&MarkerTable::update));
    connect(m_model, &PanelModel::activeTraceChanged, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::markerAdded, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::markerMoved, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::markerRemoved, this, &MarkerTable::refresh);
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &MarkerTable::refresh);
    refresh();
}

void MarkerTable::refresh()
{
    const int rows = int(m_model->activeMarkers().size());
    setFixedHeight((rows + columns() - 1) / columns() * rowHeight());
    update();
}

int MarkerTable::rowHeight() const
{
    return fontMetrics().height() + 4;
}

int MarkerTable::rowWidth() const
{
    return std::accumulate(s_cells.begin(), s_cells.end(), 0) * fontMetrics().averageCharWidth();
}

int MarkerTable::columns() const
{
    return qMax(1, (width() - s_margin) / rowWidth());
}

QRect MarkerTable::rowRect(int row) const
{
    return {s_margin + row % columns() * rowWidth(), row / columns() * rowHeight(), rowWidth(),
            rowHeight()};
}

void MarkerTable::resizeEvent(QResizeEvent *)
{
    refresh();
}

void MarkerTable::mousePressEvent(QMouseEvent *event)
{
    const QVector<Marker> markers = m_model->activeMarkers();
    for (int row = 0; row < markers.size(); ++row) {
        if (rowRect(row).contains(QtCompat::position(event).toPoint())) {
            Q_EMIT selectionRequested(markers.at(row).trace, markers.at(row).number);
            return;
        }
    }
}

void MarkerTable::paintEvent(QPaintEvent *)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const Look look = currentLook();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int character = fontMetrics().averageCharWidth();
    const Marker *selected = m_model->selectedMarker();
    const QVector<Marker> markers = m_model->activeMarkers();
    for (int row = 0; row < markers.size(); ++row) {
        const Marker &marker = markers.at(row);
        QRect cell = rowRect(row);
        if (selected && selected->trace == marker.trace && selected->number == marker.number) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(look.accent);
            painter.drawEllipse(QPointF(cell.left() + 4.0, cell.center().y() + 0.5), 3.5, 3.5);
        }
        const MarkerReading reading =
            readMarker(m_model->network(*trace), m_model->data(*trace), marker.index);
        const QString texts[] = {QStringLiteral("M%1").arg(marker.number), reading.frequency,
                                 reading.resistance, reading.reactance, reading.element};
        painter.setPen(look.trace(trace->id));
        cell.setLeft(cell.left() + 14);
        for (std::size_t i = 0; i < s_cells.size(); ++i) {
            painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, texts[i]);
            cell.setLeft(cell.left() + s_cells[i] * character - (i == 0 ? 14 : 0));
        }
    }
}

} // namespace Panel
