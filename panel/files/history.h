// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>
#include <QVector>

namespace Panel
{

class PanelModel;

/*! Takes back what the user changes of the view, the traces, the limits and the markers, step by
    step, and does it again.

    A step is whatever has changed until nothing does for a moment: a drag is one step. Measured data
    are no part of it; new networks begin a new history. */
class History : public QObject
{
    Q_OBJECT

public:
    /// How long changes belong to the same step, in milliseconds after the last one.
    static constexpr int pause = 400;
    /// How many steps are kept.
    static constexpr int longest = 100;

    /// The model must outlive it.
    explicit History(PanelModel *model, QObject *parent = nullptr);

    bool canUndo() const { return m_current > 0 || m_timer.isActive(); }
    bool canRedo() const { return m_current + 1 < m_states.size() && !m_timer.isActive(); }

public Q_SLOTS:
    /// Without a step to go, nothing happens.
    void undo();
    void redo();

Q_SIGNALS:
    /// What can be undone or done again may have changed.
    void changed();

private:
    void followModel();
    void noteChange();
    void record();
    void begin();
    void goTo(int step);

    PanelModel *m_model;
    QVector<QJsonObject> m_states;
    int m_current = 0; ///< the one of them on show
    QTimer m_timer; ///< runs while a step is going on
    bool m_restoring = false;
};

} // namespace Panel
