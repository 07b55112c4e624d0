// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "viewstate.h"

#include <QObject>
#include <QTimer>

namespace Panel
{

class PanelModel;

/*! Takes back what the user changes of the view, the traces, the limits and the markers, step by
    step, and does it again; also which files are on show, and what was stored of traces.

    A step is whatever has changed until nothing does for a moment and no finger is down: a drag is
    one step. Steps share the data of files and memories with the panel. The data of a measurement
    are no part of them: a history begins and ends with a source. */
class History : public QObject
{
    Q_OBJECT

public:
    /// How long changes belong to the same step, in milliseconds after the last one.
    static constexpr int pause = 400;
    /// How many steps are kept.
    static constexpr int longest = 100;
    /// How many numbers of files and memories older steps may keep, beside those of the last two
    /// openings: 256 MB.
    static constexpr qint64 largest = 1 << 25;

    /// The model must outlive it.
    explicit History(PanelModel *model, QObject *parent = nullptr);

    /// False while what a source begins with is still coming: there is nothing before it.
    bool canUndo() const { return m_current > 0 || (m_timer.isActive() && !m_steps.isEmpty()); }
    bool canRedo() const { return m_current + 1 < m_steps.size() && !m_timer.isActive(); }

public Q_SLOTS:
    /// Without a step to go, nothing happens.
    void undo();
    void redo();

Q_SIGNALS:
    /// What can be undone or done again may have changed.
    void changed();

private:
    /// All that comes back together.
    struct Step {
        QJsonObject view;
        Memories memories;
        int opening; ///< index into m_openings

        bool operator==(const Step &other) const;
    };

    void followModel();
    void onNetworksChanged();
    void noteChange();
    void record();
    void goTo(int index);
    void trim();
    QVector<Network> shownFiles() const;
    Step shownStep() const;

    PanelModel *m_model;
    QVector<Step> m_steps;
    QVector<QVector<Network>> m_openings; ///< the files that steps show; none of a measurement
    int m_current = 0; ///< the step on show
    int m_opening = 0; ///< what it shows
    QTimer m_timer; ///< runs while a step is going on
    bool m_restoring = false;
};

} // namespace Panel
