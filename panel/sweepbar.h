// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QFrame>

class QLabel;

namespace Panel
{

class PanelModel;

/// The bar below the diagrams: start, number of points and stop of the active trace's sweep and,
/// while it is measured, how fast.
class SweepBar : public QFrame
{
    Q_OBJECT

public:
    explicit SweepBar(const PanelModel *model, QWidget *parent = nullptr);

private:
    void refresh();
    void countSweep();
    void showSpeed(const QString &speed);

    const PanelModel *m_model;
    QLabel *m_start;
    QLabel *m_points;
    QLabel *m_speedName;
    int m_gapAfterSpeed = 0; ///< its index in the layout
    QLabel *m_speed;
    QLabel *m_stop;
    QElapsedTimer m_clock;
    int m_sweeps = 0;
};

} // namespace Panel
