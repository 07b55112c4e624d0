// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readouts.h"

#include "markerreading.h"

#include <panel/ground/look.h>

#include <controls/thememanager.h>
#include <widgets/markerstatusitem.h>

#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QScroller>

namespace Panel
{

namespace
{

constexpr int s_margin = 4;
/// Between the texts of two columns, in pixels.
constexpr int s_gap = 14;
/// A row for so much height of the diagram, in pixels, and the most rows.
constexpr int s_heightForARow = 110;
constexpr int s_maximumRows = 4;
/// What a row takes whose three values stand on one line, and what one takes whose values fold, in
/// pixels.
constexpr int s_widthOfThreeValues = 420;
constexpr int s_narrowestColumn = 150;
/// Over a diagram a line about a band breaks here, in pixels.
constexpr int s_widthOfABandwidth = 260;
/// A frequency and three values.
constexpr int s_columns = 4;
/// What the dot and the name of a marker take, in pixels.
constexpr int s_nameWidth = 50;
/// Between two lines of readings, in pixels.
constexpr int s_lineGap = 4;

} // namespace

ReadOuts::ReadOuts(const PanelModel *model, QWidget *parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_hint(new QLabel(tr("Tap a trace twice to set a marker."), this))
    , m_bandwidth(new QLabel)
    , m_more(new QLabel(this))
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
    m_more->setObjectName(QStringLiteral("more"));
    m_more->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ReadOuts::showMore);
    m_bandwidth->setParent(widget());
    m_bandwidth->setObjectName(QStringLiteral("dim"));
    m_bandwidth->setIndent(6 + s_margin);
    m_bandwidth->setWordWrap(true);
    m_bandwidth->setAttribute(Qt::WA_TransparentForMouseEvents);
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

void ReadOuts::showBelow(const QSize &diagram)
{
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
    m_hint->setWordWrap(false);
    // A reading of several values that has no room on one line takes two.
    const int fewest = diagram.width() < s_widthOfThreeValues ? 2 : 1;
    const int lines = qBound(fewest, diagram.height() / s_heightForARow, s_maximumRows);
    // A chart with its labels is as high as wide.
    const int left = diagram.height() - diagram.width();
    setMinimumHeight(fewest * lineHeight());
    setMaximumHeight(qMax(lines * lineHeight(), left));
}

void ReadOuts::showBeside(int width)
{
    setMinimumHeight(0);
    setMaximumHeight(QWIDGETSIZE_MAX);
    m_hint->setWordWrap(true);
    setMinimumWidth(s_narrowestColumn);
    setMaximumWidth(qBound(s_narrowestColumn, width, s_widthOfThreeValues));
}

void ReadOuts::showOver(const QSize &room)
{
    if (room == m_room)
        return;
    m_room = room;
    arrange();
}

/// As large as the rows, or the hint, where there is room.
void ReadOuts::fitOverlay(const QSize &content)
{
    const bool box = !m_markers.isEmpty();
    if (property("box") != box) {
        setProperty("box", box);
        repolish(this);
    }
    const int hint = m_hint->sizeHint().width();
    m_hint->setVisible(!box && hint <= m_room.width()); // or it would lie over the axis
    resize(box ? (content + QSize(2, 2)).boundedTo(m_room)
               : QSize(qMin(hint, m_room.width()), lineHeight()));
    Q_EMIT overlaySizeChanged();
}

int ReadOuts::lineHeight() const
{
    return fontMetrics().height() + s_lineGap;
}

void ReadOuts::refreshTrace(int traceId)
{
    if (m_traces.contains(traceId))
        refresh();
}

/// The markers of the traces that are visible.
QVector<Marker> ReadOuts::visibleMarkers() const
{
    QVector<Marker> markers;
    for (const int id : m_traces) {
        const Trace *trace = m_model->trace(id);
        if (trace && trace->visible)
            markers += m_model->markersOf(id);
    }
    return markers;
}

void ReadOuts::refresh()
{
    // In the table's place nobody sees them, and a live sweep need not fill them.
    const bool wanted = !m_model->viewSettings()->markerTable();
    if (!wanted && isHidden() && m_markers.isEmpty())
        return;
    m_markers = wanted ? visibleMarkers() : QVector<Marker>();
    m_texts.clear();
    for (const Marker &marker : qAsConst(m_markers)) {
        m_texts.append(textsOf(marker));
        widenColumns(m_texts.last());
    }
    m_bandwidth->setText(wanted ? bandwidthText() : QString());
    setVisible(wanted);
    arrange();
    showSelected();
}

/// Scrolls to the selected marker.
void ReadOuts::showSelected()
{
    for (const Line &line : qAsConst(m_lines)) {
        if (line.marker >= 0 && m_model->isSelected(m_markers.at(line.marker)))
            ensureWidgetVisible(line.item, 0, 0);
    }
    showMore();
}

/// Says how many markers cannot be seen.
void ReadOuts::showMore()
{
    const QRect seen(QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()),
                     viewport()->size());
    QVector<int> hidden;
    for (const Line &line : qAsConst(m_lines)) {
        if (line.marker >= 0 && !seen.contains(line.item->geometry().center())
            && !hidden.contains(line.marker))
            hidden.append(line.marker);
    }
    m_more->setText(QStringLiteral("+%1").arg(hidden.size()));
    m_more->adjustSize();
    // Above the readings, or at the end of a column beside the diagram, which is higher.
    const bool beside = m_room.isEmpty() && height() > parentWidget()->height() / 2;
    m_more->setParent(parentWidget());
    m_more->move(x() + width() - m_more->width() - s_margin,
                 y() + (beside ? height() - m_more->height() : -m_more->height() - 1));
    m_more->setVisible(!hidden.isEmpty());
    m_more->raise();
}

/// What is read of the band around the selected marker, if it is one of these.
QString ReadOuts::bandwidthText() const
{
    const Marker *selected = m_model->selectedMarker();
    return selected && m_traces.contains(selected->trace) ? Panel::bandwidthText(*m_model)
                                                          : QString();
}

/// What is read of a marker: its frequency and its values.
QStringList ReadOuts::textsOf(const Marker &marker) const
{
    const MarkerReading reading = readMarker(*m_model, marker);
    return QStringList(reading.frequency) + reading.values.mid(0, s_columns - 1);
}

QStringList ReadOuts::readings() const
{
    QStringList lines;
    for (const Marker &marker : visibleMarkers())
        lines << m_model->trace(marker.trace)->label() + QLatin1Char(' ')
                + PanelModel::parameterName(*m_model->trace(marker.trace)) + QLatin1Char(' ')
                + markerName(*m_model, marker) + QStringLiteral(": ")
                + textsOf(marker).join(QStringLiteral(" \u00b7 "));
    const QString band = bandwidthText();
    if (!band.isEmpty())
        lines << band;
    return lines;
}

/// Makes room for the texts in their columns. Columns only grow: numbers that change in a live
/// sweep would make them tremble.
void ReadOuts::widenColumns(const QStringList &texts)
{
    for (int i = 0; i < texts.size(); ++i)
        m_widths[i] = qMax(m_widths.at(i), fontMetrics().horizontalAdvance(texts.at(i)) + s_gap);
}

void ReadOuts::forgetWidths()
{
    m_widths.fill(0, s_columns);
}

/// The columns that share a line, from the first one on: as many as the width has room for.
int ReadOuts::columnsFrom(int first, int count, int width) const
{
    int columns = 1;
    for (int taken = m_widths.at(first) + s_nameWidth; first + columns < count; ++columns) {
        taken += m_widths.at(first + columns);
        if (taken > width)
            break;
    }
    return columns;
}

/// Places the readings: side by side where two fit, over several lines where one does not.
void ReadOuts::arrange()
{
    const bool over = !m_room.isEmpty();
    const int width = qMax(1, over ? m_room.width() - 2 : viewport()->width());
    const int room = width - 2 * s_margin;
    int x = s_margin, y = 0, used = 0, right = 0;
    for (int row = 0; row < m_markers.size(); ++row) {
        const QStringList &texts = m_texts.at(row);
        const int count = int(texts.size());
        const bool folds = columnsFrom(0, count, room) < count;
        for (int first = 0; first < count;) {
            const int columns = columnsFrom(first, count, room);
            MarkerStatusItem *item = showLine(used++, row, first, columns);
            const int taken = item->preferredSingleLineWidth();
            if (x > s_margin && (folds || over || x + taken > room)) {
                x = s_margin;
                y += lineHeight();
            }
            item->setLayoutWidth(taken);
            item->move(x, y + (lineHeight() - item->height()) / 2);
            x += taken + s_margin;
            right = qMax(right, x);
            first += columns;
        }
        if (folds)
            y += s_margin;
    }
    for (int i = 0; i < m_lines.size(); ++i) {
        m_lines.at(i).item->setVisible(i < used);
        if (i >= used)
            m_lines[i].marker = -1;
    }
    const bool banded = !m_bandwidth->text().isEmpty();
    if (banded) {
        right = over ? qMax(right, qMin(width, s_widthOfABandwidth)) : width;
        y += lineHeight();
        m_bandwidth->setGeometry(0, y, right, m_bandwidth->heightForWidth(right));
        y += m_bandwidth->height() - lineHeight();
    }
    m_bandwidth->setVisible(banded);
    const QSize content(over ? right : width, y + lineHeight());
    widget()->resize(content);
    m_hint->setVisible(m_markers.isEmpty());
    m_hint->setGeometry(0, 0, over ? m_hint->sizeHint().width() : width,
                        qMax(lineHeight(), m_hint->heightForWidth(width)));
    if (over)
        fitOverlay(content);
}

/// The item of a line, with some of a marker's texts: columns from the first one on.
MarkerStatusItem *ReadOuts::showLine(int index, int row, int first, int columns)
{
    if (index == m_lines.size())
        m_lines.append({makeItem(index), row});
    m_lines[index].marker = row;
    MarkerStatusItem *item = m_lines.at(index).item;
    const Marker &marker = m_markers.at(row);
    const QStringList texts = m_texts.at(row).mid(first, columns);
    const auto width = [&](int column) {
        return column < columns ? m_widths.at(first + column) : 0;
    };
    item->setText(first == 0 ? markerName(*m_model, marker) : QString(), texts.at(0),
                  texts.value(1), texts.value(2), texts.value(3));
    item->setKeyColumnWidth(width(0));
    item->setNumLabelWidth(width(1), width(2), width(3));
    item->setSelectedStatus(first == 0 && m_model->isSelected(marker));
    item->setColor(currentLook().trace(marker.trace));
    item->setAccessibleDescription(PanelModel::parameterName(*m_model->trace(marker.trace))
                                   + QLatin1Char(' ') + m_texts.at(row).join(QLatin1Char(' ')));
    return item;
}

MarkerStatusItem *ReadOuts::makeItem(int index)
{
    auto *item = new MarkerStatusItem(widget());
    // A finger selects no text here, and what can be selected is laid out as a document: a fifth of a
    // live sweep's frame.
    const auto labels = item->findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextInteractionFlags(Qt::NoTextInteraction);
    connect(item, &MarkerStatusItem::clicked, this, [this, index] {
        // The scroller holds a press back, and the marker may be gone when it comes.
        const int row = m_lines.at(index).marker;
        if (row < 0)
            return;
        const Marker marker = m_markers.at(row);
        Q_EMIT selectionRequested(marker.trace, marker.number);
    });
    return item;
}

MarkerStatusItem *ReadOuts::item(int row) const
{
    for (const Line &line : m_lines) {
        if (line.marker == row)
            return line.item;
    }
    return nullptr;
}

void ReadOuts::moveEvent(QMoveEvent *event)
{
    QScrollArea::moveEvent(event);
    showMore();
}

void ReadOuts::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (m_room.isEmpty())
        arrange();
    showSelected();
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
