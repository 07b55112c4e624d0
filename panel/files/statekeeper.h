// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

namespace Panel
{

class PanelModel;

/*! Writes the panel's state soon after each change, so that little is lost however the program
    ends. */
class StateKeeper : public QObject
{
    Q_OBJECT

public:
    /// How long a change waits for others, in milliseconds.
    static constexpr int interval = 500;

    /// Keeps the state in the file of this path; nothing is written before something changes.
    StateKeeper(const PanelModel *model, const QString &path, QObject *parent = nullptr);

    /// Something changed: the state is written soon.
    void noteChange();
    /// Writes what has not been written; false if it could not be.
    bool save();

Q_SIGNALS:
    /// The state cannot be written; told once until it can.
    void failed(const QString &path);

private:
    void followModel();
    void write();

    const PanelModel *m_model;
    QString m_path;
    QTimer m_timer; ///< runs while there is something to write
    bool m_failed = false;
};

} // namespace Panel
