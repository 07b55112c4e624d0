// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "correction.h"
#include "stimulus.h"

namespace Panel
{

/// The networks of the panel, what is done to each, and the part of it that is on show.
class Networks
{
public:
    const QVector<Network> &all() const { return m_all; }
    int count() const { return int(m_all.size()); }
    /// The part of a network that is on show, corrected: the points within its stimulus, and never
    /// less than the two around it.
    const Network &shown(int index) const { return m_shown.at(index); }
    /// The frequencies that the user asked to see; points at both ends need not lie on them.
    const Stimulus &stimulus(int index) const { return m_stimuli.at(index); }
    /// What a frequency axis has to show: the stimulus, and all points on show.
    Stimulus shownRange(int index) const;
    /// The frequencies that the whole network has.
    Stimulus limits(int index) const;

    /// Another number whenever something else of a network is on show.
    quint64 revision(int index) const { return m_revisions.at(index); }
    const Correction &correction(int index) const { return m_corrections.at(index); }

    /// All of each network is on show, and nothing is done to any.
    void replace(const QVector<Network> &networks);
    /// Shows another part, bounded by the limits; false if it is the present one or none.
    bool setStimulus(int index, const Stimulus &stimulus);
    /// False if nothing changes.
    bool setCorrection(int index, const Correction &correction);
    /// Takes a new measurement of a network; the part on show stays as far as there is any of it.
    /// False, without a change, for an index without a network, another number of ports, or no
    /// points.
    bool update(int index, const Network &network);

private:
    void cutOut(int index);

    QVector<Network> m_all;
    QVector<Network> m_shown;
    QVector<Stimulus> m_stimuli;
    QVector<Correction> m_corrections;
    QVector<quint64> m_revisions;
    quint64 m_revision = 0; ///< that of the network that changed last
};

} // namespace Panel
