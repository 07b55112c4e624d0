// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markertable.h"

#include "format.h"
#include "look.h"
#include "markerreading.h"

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
constexpr std::array<int, 5> s_cells = {6, 14, 11, 12, 12};

} // namespace

MarkerTable::MarkerTable(const PanelModel *model, Trace::Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_kind(kind)
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

void MarkerTable::setFormat(CartesianFormat format)
{
    m_format = format;
    update();
}

QVector<Marker> MarkerTable::markers() const
{
    const Trace *trace = m_model->activeTrace(m_kind);
    return trace ? m_model->markersOf(trace->id) : QVector<Marker>();
}

QStringList MarkerTable::reading(const Trace &trace, const Marker &marker) const
{
    const Network &network = m_model->network(trace);
    const Parameter &values = m_model->data(trace);
    const QString name = QStringLiteral("M%1").arg(marker.number);
    if (m_kind == Trace::Transmission)
        return {name, frequencyText(valueAt(network.frequencies, marker.index)),
                cartesianText(cartesianValueAt(values, marker.index, m_format), m_format)};
    const MarkerReading read = readMarker(network, values, marker.index);
    return {name, read.frequency, read.resistance, read.reactance, read.element};
}

void MarkerTable::refresh()
{
    const int rows = int(markers().size());
    setFixedHeight((rows + columns() - 1) / columns() * rowHeight());
    update();
}

int MarkerTable::rowHeight() const
{
    return fontMetrics().height() + 4;
}

int MarkerTable::rowWidth() const
{
    const auto end = m_kind == Trace::Reflection ? s_cells.end() : s_cells.begin() + 3;
    return std::accumulate(s_cells.begin(), end, 0) * fontMetrics().averageCharWidth();
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
    const QVector<Marker> markers = this->markers();
    for (int row = 0; row < markers.size(); ++row) {
        if (rowRect(row).contains(QtCompat::position(event).toPoint())) {
            Q_EMIT selectionRequested(markers.at(row).trace, markers.at(row).number);
            return;
        }
    }
}

void MarkerTable::paintEvent(QPaintEvent *)
{
    const Trace *trace = m_model->activeTrace(m_kind);
    if (!trace)
        return;
    const Look look = currentLook();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int character = fontMetrics().averageCharWidth();
    const Marker *selected = m_model->selectedMarker();
    const QVector<Marker> markers = this->markers();
    for (int row = 0; row < markers.size(); ++row) {
        const Marker &marker = markers.at(row);
        QRect cell = rowRect(row);
        if (selected && selected->trace == marker.trace && selected->number == marker.number) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(look.accent);
            painter.drawEllipse(QPointF(cell.left() + 4.0, cell.center().y() + 0.5), 3.5, 3.5);
        }
        const QStringList texts = reading(*trace, marker);
        painter.setPen(look.trace(trace->id));
        cell.setLeft(cell.left() + 14);
        for (int i = 0; i < texts.size(); ++i) {
            const int wide = s_cells[std::size_t(i)] * character - (i == 0 ? 14 : 0);
            // A cell that does not fit is left out: half a number would be a wrong one.
            if (i > 0 && fontMetrics().horizontalAdvance(texts.at(i)) > width() - cell.left())
                break;
            painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, texts.at(i));
            cell.setLeft(cell.left() + wide);
        }
    }
}

} // namespace Panel
