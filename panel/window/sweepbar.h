// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class RectangularBottomWidget;

namespace Panel
{

class PanelModel;

/*! The bar below the diagrams: the ends of the active trace's sweep, how fast it is measured, and a
    line above that grows with a slow sweep. */
class SweepBar : public QWidget
{
    Q_OBJECT

public:
    explicit SweepBar(const PanelModel *model, QWidget *parent = nullptr);

    /// How far the sweep is, from 0 to 1. A sweep that is done before the display could show its
    /// progress draws no line.
    void setProgress(double progress);
    /// How fast it is measured, as the bar shows it.
    QString speed() const { return m_speed; }
    /// So many sweeps have ended.
    void countSweeps(int sweeps);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showRange();
    void showSpeed(const QString &speed);

    const PanelModel *m_model;
    RectangularBottomWidget *m_bar;
    QString m_speed;
    double m_progress = 0.0;
    QElapsedTimer m_clock;
    int m_sweeps = 0;
};

} // namespace Panel
