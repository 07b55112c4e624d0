// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <controls/announcer.h>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <memory>

class PlotParts;
class QCustomPlot;

/*! What a chart tells those who cannot see it: a name, a sentence, its traces as tables, its markers
    as values, and the verdicts of its limits.

    Everything is asked for when somebody wants to know it, cell by cell, so that a trace of any length
    costs nothing. AccessiblePlot::add() makes it known. */
class VNAWIDGETS_EXPORT PlotDescription
{
public:
    /// A marker by its trace and its number there.
    struct MarkerId {
        int trace; ///< id of the trace
        int number; ///< of the marker, within the trace
    };
    /// What a marker stands at, and from where to where it can go, in units of the stimulus.
    struct MarkerValue {
        double value; ///< where it stands
        double minimum; ///< where its trace begins
        double maximum; ///< where its trace ends
    };

    PlotDescription() = default;
    virtual ~PlotDescription();

    /// In a word or two, such as "Smith chart".
    virtual QString name() const = 0;
    /// In a sentence for each trace.
    virtual QString summary() const = 0;

    /// The ids of the traces that are shown.
    virtual QVector<int> traces() const = 0;
    /// Such as "S11".
    virtual QString traceName(int trace) const = 0;
    /// How many points the trace has; 0 for an unknown one.
    virtual int rows(int trace) const = 0;
    /// What the columns of its table are; no more or less of them from one call to the next.
    virtual QStringList columns(int trace) const = 0;
    /// A value as text; row and column exist.
    virtual QString cell(int trace, int row, int column) const = 0;

    /// The markers of the traces that are shown.
    virtual QVector<MarkerId> markers() const = 0;
    /// Such as "Marker 1 on S11, 50.2 ohms".
    virtual QString markerText(const MarkerId &id) const = 0;
    /// Where a marker stands.
    virtual MarkerValue markerValue(const MarkerId &id) const = 0;
    /// Asks for a marker to move to a stimulus value, as a drag does.
    virtual void requestMarkerValue(const MarkerId &id, double value) = 0;

    /// What the limits say, a sentence each.
    virtual QStringList verdicts() const = 0;

private:
    Q_DISABLE_COPY(PlotDescription)
};

/*! Lets screen readers and other assistive tools read a QCustomPlot, through QAccessible.

    The plot gets the role of a chart, with a table for each trace, a slider for each marker and a text
    for each limit. Several charts on one plot are read one after the other. It belongs to the plot.

    \code
    AccessiblePlot::on(plot)->announce(tr("The sweep is complete.")); // add() your description first
    \endcode */
class VNAWIDGETS_EXPORT AccessiblePlot : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds between two announcements.
    static constexpr int pause = Controls::Announcer::pause;

    /// The one of this plot, made when it is first asked for; null for a null plot.
    static AccessiblePlot *on(QCustomPlot *plot);
    ~AccessiblePlot() override;

    /// Reads a description from now on, until remove(); it must be there until then.
    void add(PlotDescription *description);
    /// Reads it no more; to be called before it is destroyed.
    void remove(PlotDescription *description);

    /// Has a text said, as Controls::Announcer does.
    void announce(const QString &text);

    /// A marker has moved.
    void tellMarkerMoved(PlotDescription *description, const PlotDescription::MarkerId &id);
    /// Data have changed: the tables are read anew, once a pause at most.
    void tellDataChanged();

Q_SIGNALS:
    /// A text is handed to the assistive tools.
    void announced(const QString &text);

private:
    friend class PlotAccessible;

    explicit AccessiblePlot(QCustomPlot *plot);
    void resetTables();

    const std::unique_ptr<PlotParts> m_parts;
    Controls::Announcer *const m_announcer; ///< speaks from the plot
    QTimer m_dataPause; ///< until the tables are read anew
};
