// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "limiteditor.h"
#include "smithview.h"

namespace Panel
{

/*! The limit circle of a Smith chart: a handle in its centre moves it, one on its border, or any
    other place of that, makes it larger or smaller.

    Near the centre of the chart it is drawn to that, and its size to round standing wave ratios. */
class CircleEditor : public LimitEditor
{
    Q_OBJECT

public:
    CircleEditor(PanelModel *model, SmithView *view);

protected:
    QVector<Grip> grips() const override;
    QPolygonF outline(int limit) const override;
    LimitPart outlinePart() const override { return LimitPart::Border; }
    void begin(const Grip &grip) override;
    void move(const Grip &grip, const QPointF &pixels) override;
    void restore() override;
    void step(const Grip &grip, const QPointF &divisions) override;
    QString add(const QPointF &position) override;
    void remove(int limit) override;
    QString text(const Grip &grip) const override;

private:
    const LimitCircle &circle() const { return m_model->viewSettings()->limitCircle(); }
    QPointF pixelsOf(const QPointF &gamma) const;
    double pixel() const;
    void setCentre(const QPointF &gamma);
    void setRadius(double radius);

    LimitCircle m_before;
    double m_angle = 0.0; ///< of the handle on the border, in radians
};

} // namespace Panel
