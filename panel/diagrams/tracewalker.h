// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <smithchart/tracewalk.h>

#include <QPointer>

class QCPItemTracer;
class QKeyEvent;

namespace Panel
{

/*! Walks the active trace of a diagram with keys or a knob, and says what is where: F2 begins and
    ends, arrows go by a point or with Ctrl by a feature, Page Up and Page Down by a tenth of the view,
    Home and End to the ends, Up and Down to another trace; Return sets a marker.

    A ring shows the place. The walk changes nothing of the model but what Up, Down and Return do. */
class TraceWalker : public QObject
{
    Q_OBJECT

public:
    TraceWalker(PanelModel *model, DiagramView *view);

    bool isWalking() const { return m_index >= 0.0; }
    /// Where the walk is in its trace's data; a fraction lies between two points; -1: nowhere.
    double index() const { return m_index; }
    /// Whether the key is one for a walk; others are left to the diagram.
    bool handleKey(const QKeyEvent *event);
    /// Goes on as far as there is anything; what is there is said.
    void walk(const SmithChart::WalkStep &step);
    void end();

Q_SIGNALS:
    void said(const QString &text);
    /// A step has come to a place on a trace.
    void walked(int trace, double index);

private:
    /// What limits were last tested for.
    struct Tested {
        QVector<double> real; ///< shared with the data: the same address means the same values
        QVector<LimitLine> limits;
        TraceFormat format = TraceFormat::Smith;

        friend bool operator==(const Tested &a, const Tested &b)
        {
            return a.real.constData() == b.real.constData() && a.limits == b.limits
                && a.format == b.format;
        }
    };

    void begin();
    void prepare(const Trace &trace);
    void goTo(double index);
    void changeTrace(int direction);
    void setMarker();
    double nextPlace(const Trace &trace, const SmithChart::WalkStep &step);
    QVector<double> limitEdges(const Trace &trace) const;
    QString textAt(const Trace &trace, double before) const;
    void showRing(const Trace &trace);

    PanelModel *m_model;
    DiagramView *m_view;
    SmithChart::TraceWalk m_walk;
    Tested m_tested;
    int m_trace = 0; ///< the one that is walked
    double m_index = -1.0;
    QPointer<QCPItemTracer> m_ring; ///< owned by the plot
};

} // namespace Panel
