// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readouts.h"

#include "markerreading.h"
#include <panel/look/look.h>

#include <controls/thememanager.h>
#include <widgets/markerstatusitem.h>

#include <QEvent>

namespace Panel
{

namespace
{

constexpr int s_margin = 4;
/// Widths in average characters of the stimulus and of the values.
constexpr int s_stimulusWidth = 14;
constexpr int s_valueWidths[] = {10, 12, 11};

} // namespace

ReadOuts::ReadOuts(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
{
    setAccessibleName(tr("Markers"));
    const auto refreshOwn = [this](int traceId) {
        if (traceId == m_trace)
            refresh();
    };
    connect(m_model, &PanelModel::stimulusChanged, this, &ReadOuts::refresh);
    connect(m_model, &PanelModel::networkUpdated, this, &ReadOuts::refresh);
    connect(m_model, &PanelModel::markerAdded, this, refreshOwn);
    connect(m_model, &PanelModel::markerMoved, this, refreshOwn);
    connect(m_model, &PanelModel::markerRemoved, this, refreshOwn);
    connect(m_model, &PanelModel::referenceMarkerChanged, this, refreshOwn);
    connect(m_model, &PanelModel::selectedMarkerChanged, this, &ReadOuts::refresh);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &ReadOuts::refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &ReadOuts::refresh);
}

void ReadOuts::setTrace(int traceId)
{
    m_trace = traceId;
    refresh();
}

void ReadOuts::setRoom(int height)
{
    if (height == m_room)
        return;
    m_room = height;
    arrange();
}

void ReadOuts::refresh()
{
    QVector<Marker> markers = m_model->markersOf(m_trace);
    const Marker *selected = m_model->selectedMarker();
    std::stable_partition(markers.begin(), markers.end(), [selected](const Marker &marker) {
        return selected && marker.trace == selected->trace && marker.number == selected->number;
    });
    m_numbers.clear();
    for (int row = 0; row < markers.size(); ++row) {
        const Marker &marker = markers.at(row);
        if (row == m_items.size())
            m_items.append(makeItem());
        showReading(m_items.at(row), marker);
        m_numbers.append(marker.number);
    }
    arrange();
}

MarkerStatusItem *ReadOuts::makeItem()
{
    auto *item = new MarkerStatusItem(this);
    const int row = int(m_items.size());
    connect(item, &MarkerStatusItem::clicked, this, [this, row] {
        if (row < m_numbers.size())
            Q_EMIT selectionRequested(m_trace, m_numbers.at(row));
    });
    return item;
}

void ReadOuts::showReading(MarkerStatusItem *item, const Marker &marker) const
{
    const Trace &trace = *m_model->trace(m_trace);
    const auto point = [&](const Marker &marked) {
        return MarkedPoint{&m_model->network(trace), &m_model->data(trace), marked.index};
    };
    const Marker *reference = m_model->referenceMarker(m_trace);
    const bool isReference = reference && reference->number == marker.number;
    MarkerReading reading;
    if (trace.onSmithChart()) {
        const ReadoutFormat format = m_model->viewSettings()->effectiveReadoutFormat();
        reading = reference && !isReference
            ? readOnSmithChart(point(marker), format, point(*reference))
            : readOnSmithChart(point(marker), format);
    } else {
        reading = reference && !isReference
            ? readOnCartesian(point(marker), trace.format, point(*reference))
            : readOnCartesian(point(marker), trace.format);
    }
    QString name = QStringLiteral("M%1").arg(marker.number);
    if (isReference)
        name += QLatin1Char('R');
    else if (reference)
        name.prepend(QChar(0x0394));
    item->setText(name, reading.frequency, reading.values.value(0), reading.values.value(1),
                  reading.values.value(2));
    const Marker *selected = m_model->selectedMarker();
    item->setSelectedStatus(selected && selected->trace == marker.trace
                            && selected->number == marker.number);
    item->setColor(currentLook().trace(m_trace));
    item->setAccessibleDescription(reading.frequency + QLatin1Char(' ')
                                   + reading.values.join(QLatin1Char(' ')));
}

/// Places the items in columns, and takes the height that they need.
void ReadOuts::arrange()
{
    const int character = fontMetrics().averageCharWidth();
    int y = 0, rowHeight = 0, column = 0;
    for (int row = 0; row < m_items.size(); ++row) {
        MarkerStatusItem *item = m_items.at(row);
        bool shown = row < m_numbers.size();
        if (shown) {
            item->setKeyColumnWidth(s_stimulusWidth * character);
            item->setNumLabelWidth(s_valueWidths[0] * character, s_valueWidths[1] * character,
                                   s_valueWidths[2] * character);
            const int single = item->preferredSingleLineWidth();
            const int columns = qMax(1, (width() - 2 * s_margin) / (single + s_margin));
            if (column == columns) {
                column = 0;
                y += rowHeight;
                rowHeight = 0;
            }
            item->setLayoutWidth(qMin(single, width() - 2 * s_margin));
            shown = row == 0 || y + item->height() <= m_room;
            item->move(s_margin + column * (single + s_margin), y);
            rowHeight = shown ? qMax(rowHeight, item->height()) : rowHeight;
            ++column;
        }
        item->setVisible(shown);
    }
    const int height = y + rowHeight;
    if (height != this->height() || minimumHeight() != height)
        setFixedHeight(height);
}

void ReadOuts::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        arrange();
}

void ReadOuts::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrange();
}

} // namespace Panel
