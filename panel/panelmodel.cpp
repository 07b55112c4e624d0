// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelmodel.h"

#include <algorithm>

namespace Panel
{

const Trace *PanelModel::trace(int id) const
{
    const auto found = std::find_if(m_traces.begin(), m_traces.end(),
                                    [id](const Trace &trace) { return trace.id == id; });
    return found == m_traces.end() ? nullptr : &*found;
}

QString PanelModel::parameterName(const Trace &trace)
{
    return QStringLiteral("S%1%2").arg(trace.to).arg(trace.from);
}

void PanelModel::setNetworks(const QVector<Network> &networks)
{
    m_networks = networks;
    m_traces.clear();
    for (int i = 0; i < m_networks.size(); ++i) {
        for (int port = 1; port <= m_networks.at(i).ports; ++port)
            m_traces.append({m_traces.size() + 1, i, port, port, true});
    }
    m_activeTrace = m_traces.isEmpty() ? 0 : m_traces.first().id;
    Q_EMIT networksChanged();
    Q_EMIT activeTraceChanged();
}

void PanelModel::setActiveTrace(int id)
{
    if (id == m_activeTrace || !trace(id))
        return;
    m_activeTrace = id;
    Q_EMIT activeTraceChanged();
}

void PanelModel::setTraceVisible(int id, bool visible)
{
    for (Trace &trace : m_traces) {
        if (trace.id == id && trace.visible != visible) {
            trace.visible = visible;
            Q_EMIT traceVisibleChanged(id, visible);
            return;
        }
    }
}

} // namespace Panel
