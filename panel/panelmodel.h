// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"

#include <QObject>

namespace Panel
{

/// One line on the panel: a parameter of a network.
struct Trace {
    int id = 0; ///< from 1, unique on the panel
    int network = 0; ///< index into PanelModel::networks()
    int to = 1; ///< port that the wave leaves
    int from = 1; ///< port that the wave enters
    bool visible = true;
};

/*! What the panel shows, apart from how: the networks, the traces made from them and which one is
   active.

    Everything that changes here is told by a signal; views read the model and never keep a copy. It
   knows no widget and no file: whoever has measured or read networks hands them over with
   setNetworks().

    \code
    PanelModel model;
    model.setNetworks({readTouchstone(path).network});
    for (const Trace &trace : model.traces())
        chart->setCurveData(trace.id, model.network(trace).frequencies, ...);
    \endcode */
class PanelModel : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const QVector<Network> &networks() const { return m_networks; }
    /// One trace for each reflection parameter, numbered from 1 in the order of the networks.
    const QVector<Trace> &traces() const { return m_traces; }
    /// The trace of this id, or null.
    const Trace *trace(int id) const;
    /// The active trace, or null when there are no traces.
    const Trace *activeTrace() const { return trace(m_activeTrace); }

    const Network &network(const Trace &trace) const { return m_networks.at(trace.network); }
    const Parameter &data(const Trace &trace) const
    {
        return network(trace).s(trace.to, trace.from);
    }
    /// "S11".
    static QString parameterName(const Trace &trace);

    /// Replaces all networks and makes new traces of them; the first becomes active.
    void setNetworks(const QVector<Network> &networks);
    /// An unknown id is ignored.
    void setActiveTrace(int id);
    void setTraceVisible(int id, bool visible);

Q_SIGNALS:
    /// All networks and traces are new.
    void networksChanged();
    void activeTraceChanged();
    void traceVisibleChanged(int id, bool visible);

private:
    QVector<Network> m_networks;
    QVector<Trace> m_traces;
    int m_activeTrace = 0;
};

} // namespace Panel
