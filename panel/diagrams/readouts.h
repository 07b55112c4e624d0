// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QScrollArea>

class MarkerStatusItem;
class QLabel;

namespace Panel
{

/*! The read-outs of the markers of a diagram: trace by trace in their colours, the selected one with
    a dot, the others as their difference from their trace's reference marker where it has one; then
    the bandwidth around the selected one.

    Rows keep their order. Beside or below a diagram the size follows from the room alone, never from
    how many markers there are, so that the diagram does not move; over a diagram it follows from the
    rows. What does not fit scrolls under a finger. A tap on a row asks for its marker to be
    selected. */
class ReadOuts : public QScrollArea
{
    Q_OBJECT

public:
    explicit ReadOuts(const PanelModel *model, QWidget *parent = nullptr);

    /// The traces whose markers are read.
    void setTraces(const QVector<int> &ids);
    /// Takes what a square diagram leaves of a height, in pixels, but two to four lines at least.
    void showBelow(const QSize &diagram);
    /// Takes at most so much width beside a diagram, in pixels, within what lines can use; and its
    /// height.
    void showBeside(int width);
    /// Lies over a diagram, a row for each marker, and takes at most this size, in pixels; whoever
    /// owns the diagram moves it, at each overlaySizeChanged().
    void showOver(const QSize &room);
    /// The markers on show, from the first row on.
    const QVector<Marker> &markers() const { return m_markers; }
    /// What is read, a line for each marker and one for the bandwidth.
    QStringList readings() const;
    /// The part of it that readings fill, in pixels of its parent.
    QRect contentGeometry() const { return {pos(), widget()->size().boundedTo(size())}; }
    /// The first line of a marker's reading, or null.
    MarkerStatusItem *item(int row) const;

Q_SIGNALS:
    void selectionRequested(int traceId, int number);
    void overlaySizeChanged();

protected:
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// A line of readings; one that has no room on a line goes over several.
    struct Line {
        MarkerStatusItem *item = nullptr;
        int marker = -1; ///< its place in m_markers; -1 while the line is hidden
    };

    QVector<Marker> visibleMarkers() const;
    void refresh();
    void refreshTrace(int traceId);
    QString bandwidthText() const;
    QStringList textsOf(const Marker &marker) const;
    void widenColumns(const QStringList &texts);
    void forgetWidths();
    int columnsFrom(int first, int count, int width) const;
    void arrange();
    void fitOverlay(const QSize &content);
    void showSelected();
    void showMore();
    MarkerStatusItem *showLine(int index, int row, int first, int columns);
    MarkerStatusItem *makeItem(int index);
    int lineHeight() const;

    const PanelModel *m_model;
    QLabel *m_hint; ///< in place of the rows while there are none
    QLabel *m_bandwidth; ///< below the rows, where it is asked for
    QLabel *m_more; ///< above the readings, while there are more than fit
    QVector<int> m_traces;
    QVector<Marker> m_markers;
    QVector<QStringList> m_texts; ///< of the markers
    QVector<Line> m_lines; ///< made when first needed, hidden when not
    QSize m_room; ///< over a diagram; empty beside or below one
    QVector<int> m_widths; ///< of the columns, in pixels: frequency and three values
};

} // namespace Panel
