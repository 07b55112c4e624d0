// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesianview.h"
#include "limiteditor.h"

namespace Panel
{

/*! The limit lines of a Cartesian diagram: each has a handle at both ends and one in its middle,
    which moves all of it. An end beyond the diagram has its handle at the edge.

    Whatever moves is drawn to divisions and to other lines' ends, keeps level with the other end,
    and stands at round numbers in between. */
class LineEditor : public LimitEditor
{
    Q_OBJECT

public:
    LineEditor(PanelModel *model, CartesianView *view);

protected:
    QVector<Grip> grips() const override;
    QPolygonF outline(int limit) const override;
    void begin(const Grip &grip) override;
    void move(const Grip &grip, const QPointF &pixels) override;
    void restore() override;
    void step(const Grip &grip, const QPointF &divisions) override;
    QString add(const QPointF &position) override;
    void remove(int limit) override;
    QString text(const Grip &grip) const override;

private:
    QCPAxis *frequencies() const;
    QCPAxis *values() const;
    FrequencyScale scale() const;
    QPointF inside(const QPointF &place) const;
    QPointF placeOf(const LimitLine &line, double hertz) const;
    double snappedHertz(double hertz, int limit, const QVector<double> &also) const;
    double snappedValue(double value, int limit, const QVector<double> &also) const;
    void replace(int limit, const LimitLine &line);

    LimitLine m_before;
    int m_limit = -1; ///< that it is
};

} // namespace Panel
