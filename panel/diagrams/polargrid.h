// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <plot/qcp.h>

namespace Panel
{

/// The grid of a polar diagram around the origin of a plot, whose unit circle is the outermost one.
class PolarGrid : public QCPAbstractItem
{
    Q_OBJECT

public:
    /// The plot owns it.
    explicit PolarGrid(QCustomPlot *plot);

    /// What the outermost circle stands for, and how many circles there are at least.
    void setScale(double full, int divisions);
    void setLook(const QFont &labels);

    double selectTest(const QPointF &, bool, QVariant * = nullptr) const override { return -1.0; }

protected:
    void draw(QCPPainter *painter) override;

private:
    void drawLabel(QCPPainter *painter, const QPointF &middle, const QString &text) const;

    QFont m_font;
    double m_full = 1.0;
    int m_divisions = 1;
};

} // namespace Panel
