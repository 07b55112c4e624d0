// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readouts.h"

#include "markerreading.h"

#include <panel/ground/look.h>

#include <controls/thememanager.h>
#include <widgets/markerstatusitem.h>

#include <QEvent>
#include <QLabel>
#include <QScroller>

namespace Panel
{

namespace
{

constexpr int s_margin = 4;
/// Between the texts of two columns, in pixels.
constexpr int s_gap = 14;
/// A row for so much height of the diagram, in pixels, and the most rows.
constexpr int s_heightForARow = 190;
constexpr int s_mostRows = 4;

} // namespace

ReadOuts::ReadOuts(const PanelModel *model, QWidget *parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_hint(new QLabel(tr("Tap a trace twice to set a marker."), this))
{
    setAccessibleName(tr("Markers"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(false);
    setWidget(new QWidget(this));
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    m_hint->setObjectName(QStringLiteral("dim"));
    m_hint->setIndent(6 + s_margin);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    forgetWidths();

    connect(m_model, &PanelModel::stimulusChanged, this, &ReadOuts::refresh);
    connect(m_model, &PanelModel::networkUpdated, this, &ReadOuts::refresh);
    for (const auto signal :
         {&PanelModel::markerAdded, &PanelModel::markerMoved, &PanelModel::markerRemoved})
        connect(m_model, signal, this, &ReadOuts::refreshTrace);
    connect(m_model, &PanelModel::referenceMarkerChanged, this, &ReadOuts::refreshTrace);
    connect(m_model, &PanelModel::markerModeChanged, this, &ReadOuts::refresh);
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &ReadOuts::refresh);
    connect(m_model, &PanelModel::traceVisibleChanged, this, &ReadOuts::refreshTrace);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &ReadOuts::refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &ReadOuts::refresh);
}

void ReadOuts::setTraces(const QVector<int> &ids)
{
    if (ids != m_traces)
        forgetWidths();
    m_traces = ids;
    refresh();
}

void ReadOuts::setRoom(int height)
{
    m_rows = qBound(1, height / s_heightForARow, s_mostRows);
    setFixedHeight(m_rows * rowHeight());
}

int ReadOuts::rowHeight() const
{
    return fontMetrics().height() + 8;
}

void ReadOuts::refreshTrace(int traceId)
{
    if (m_traces.contains(traceId))
        refresh();
}

void ReadOuts::refresh()
{
    m_markers.clear();
    for (const int id : qAsConst(m_traces)) {
        const Trace *trace = m_model->trace(id);
        if (trace && trace->visible)
            m_markers += m_model->markersOf(id);
    }
    for (int row = 0; row < m_markers.size(); ++row) {
        if (row == m_items.size())
            m_items.append(makeItem());
        showReading(m_items.at(row), m_markers.at(row));
    }
    arrange();
    for (int row = 0; row < m_markers.size(); ++row) {
        if (m_model->isSelected(m_markers.at(row)))
            ensureWidgetVisible(m_items.at(row), 0, 0);
    }
}

MarkerStatusItem *ReadOuts::makeItem()
{
    auto *item = new MarkerStatusItem(widget());
    const int row = int(m_items.size());
    connect(item, &MarkerStatusItem::clicked, this, [this, row] {
        if (row < m_markers.size())
            Q_EMIT selectionRequested(m_markers.at(row).trace, m_markers.at(row).number);
    });
    return item;
}

void ReadOuts::showReading(MarkerStatusItem *item, const Marker &marker)
{
    const Trace &trace = *m_model->trace(marker.trace);
    const Marker *reference = m_model->referenceMarker(trace.id);
    const bool isReference = reference && reference->number == marker.number;
    const MarkerReading reading =
        readMarker(*m_model, marker, isReference ? nullptr : reference);
    QString name = QStringLiteral("M%1").arg(marker.number);
    if (isReference)
        name += QLatin1Char('R');
    else if (reference)
        name.prepend(QChar(0x0394));
    const QStringList texts{reading.frequency, reading.values.value(0), reading.values.value(1),
                            reading.values.value(2)};
    widenColumns(texts);
    item->setText(name, texts.at(0), texts.at(1), texts.at(2), texts.at(3));
    item->setSelectedStatus(m_model->isSelected(marker));
    item->setColor(currentLook().trace(trace.id));
    item->setAccessibleDescription(PanelModel::parameterName(trace) + QLatin1Char(' ')
                                   + texts.join(QLatin1Char(' ')));
}

/// Makes room for the texts in their columns. Columns only grow: numbers that change in a live
/// sweep would make them tremble.
void ReadOuts::widenColumns(const QStringList &texts)
{
    for (int i = 0; i < m_widths.size(); ++i) {
        if (!texts.at(i).isEmpty())
            m_widths[i] =
                qMax(m_widths.at(i), fontMetrics().horizontalAdvance(texts.at(i)) + s_gap);
    }
}

void ReadOuts::forgetWidths()
{
    m_widths = {0, 0, 0, 0};
}

/// Places the rows, side by side where two fit.
void ReadOuts::arrange()
{
    const int width = qMax(1, viewport()->width());
    int y = 0, rowHeight = 0, column = 0;
    for (int row = 0; row < m_items.size(); ++row) {
        MarkerStatusItem *item = m_items.at(row);
        const bool shown = row < m_markers.size();
        if (shown) {
            item->setKeyColumnWidth(m_widths.at(0));
            item->setNumLabelWidth(m_widths.at(1), m_widths.at(2), m_widths.at(3));
            const int single = item->preferredSingleLineWidth();
            const int columns = qMax(1, (width - 2 * s_margin) / (single + s_margin));
            if (column >= columns) {
                column = 0;
                y += rowHeight;
                rowHeight = 0;
            }
            item->setLayoutWidth(qMin(single, width - 2 * s_margin));
            item->move(s_margin + column * (single + s_margin), y);
            rowHeight = qMax(rowHeight, qMax(item->height(), this->rowHeight()));
            ++column;
        }
        item->setVisible(shown);
    }
    widget()->resize(width, y + rowHeight);
    m_hint->setVisible(m_markers.isEmpty());
    m_hint->setGeometry(0, 0, width, this->rowHeight());
}

void ReadOuts::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}

void ReadOuts::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        forgetWidths();
        refresh();
    }
}

} // namespace Panel
