// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "limitline.h"
#include "networks.h"
#include "tracedata.h"
#include "traceformat.h"
#include "tracemath.h"

#include <QHash>

namespace Panel
{

/// One line on the panel: a parameter of a network in a format.
struct Trace {
    int id = 0; ///< from 1, unique on the panel
    int network = 0; ///< index into Networks::all()
    int to = 1; ///< port that the wave leaves
    int from = 1; ///< port that the wave enters
    TraceFormat format = TraceFormat::Smith; ///< decides which diagram shows it
    Scale scale; ///< of a Cartesian or polar diagram; a Smith chart has a zoom
    bool visible = true;
    QString name; ///< that the user gave it; empty without one
    /// The diagram that the user has put it in, from 1, which it shares with those of its kind that
    /// have the same number; 0: format and layout decide.
    int diagram = 0;
    TraceMath math = TraceMath::DataAndMemory; ///< with what was stored, where anything is
    QVector<LimitLine> limits; ///< of all formats; those of the present one hold
    double smoothing = 0.0; ///< share of the points that are averaged, in percent
    quint64 revision = 0; ///< another one whenever what it makes of its network's data is another

    /// How many traces there can be, beyond those that networks begin with.
    static constexpr int maximumCount = 32;
    /// Largest share of the points that can be averaged, in percent.
    static constexpr double maximumSmoothing = 20.0;
    /// Characters that a name can have.
    static constexpr int longestName = 24;

    /// What it is called on the panel: its name, or "Tr1".
    QString label() const { return name.isEmpty() ? QStringLiteral("Tr%1").arg(id) : name; }
    DiagramKind kind() const { return diagramKind(format); }
    bool onSmithChart() const { return kind() == DiagramKind::Smith; }
    bool overFrequency() const { return kind() == DiagramKind::Cartesian; }
};

/// The traces made of the networks, which of them is active, and what was stored of each.
class Traces
{
public:
    const QVector<Trace> &all() const { return m_all; }
    QVector<int> ids() const;
    /// The trace of this id, or null.
    const Trace *find(int id) const;
    /// The active trace, or null when there are no traces.
    const Trace *active() const { return find(m_recent.value(0)); }
    /// The one of these traces that is active or was last, or null when there is none.
    const Trace *active(const QVector<int> &among) const;
    /// A trace's data as they were stored to compare later ones with, or null.
    const TraceData *memory(int id) const;
    /// All that was stored, by trace.
    const QHash<int, TraceData> &memories() const { return m_memories; }

    /// Makes new traces, of which the first is active: the reflections of up to four ports on the
    /// Smith chart, then what they get from port 1 in dB, of a two-port also the way back; of a
    /// one-port its reflection in both ways.
    void rebuild(const Networks &networks);
    /// Adds a trace that is like another one, under the lowest free id or, where that is free, the
    /// wanted one; its id, or 0 when there are as many traces as there can be. Memories are not
    /// shared, nor is the name.
    int addLike(int id, int wanted = 0);
    /// \name Each returns whether anything changed
    ///@{
    /// The last one of all stays.
    bool remove(int id);
    bool setActive(int id);
    bool setVisible(int id, bool visible);
    /// Blanks around it go, and what is longer than a name can be; an empty one ends it.
    bool setName(int id, const QString &name);
    /// False for a number below 0.
    bool setDiagram(int id, int number);
    /// Shows the same parameter of another network, or that of its highest port. What was stored
    /// stays, to compare with. False for a network that is not there.
    bool setNetwork(int id, int network, const Networks &networks);
    /// The scale becomes the default one.
    bool setFormat(int id, TraceFormat format, const Networks &networks);
    /// False for a parameter that the trace's network does not have. What was stored is dropped: it
    /// is nothing to compare with.
    bool setParameter(int id, int to, int from, const Networks &networks);
    /// False for a scale that is not finite, not above zero a division, or with its reference outside
    /// the diagram. Of a polar diagram, only the division counts.
    bool setScale(int id, const Scale &scale);
    bool storeMemory(int id, const TraceData &memory);
    /// The trace shows its data again.
    bool clearMemory(int id);
    /// False for a line that is not valid, and for too many of them.
    bool setLimits(int id, const QVector<LimitLine> &limits);
    /// False while nothing is stored.
    bool setMath(int id, TraceMath math);
    /// Bounded; false for what is not finite.
    bool setSmoothing(int id, double percent);
    ///@}

private:
    Trace *edit(int id);
    void renew(Trace *trace) { trace->revision = ++m_revision; }
    Scale startScale(TraceFormat format, const Networks &networks) const;

    QVector<Trace> m_all;
    QVector<int> m_recent; ///< ids, the active one in front and the one before behind it
    QHash<int, TraceData> m_memories; ///< by trace
    quint64 m_revision = 0; ///< that of the trace that changed last
};

} // namespace Panel
