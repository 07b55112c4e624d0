// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "gridlook.h"
#include "viewgridlabels_p.h"

#include <plot/qcp.h>

#include <QPointer>
#include <QPolygonF>

#include <optional>

/// What of a chart lies on the axes' pixels; not usable without axes or size.
[[nodiscard]] SmithChart::GridView gridViewOf(const QCPAxis *xAxis, const QCPAxis *yAxis);

/*! Draws the grid that follows the view: lines, real axis and labels. It looks at the axes when it
    is drawn, and computes anew only what has changed since; it is never hit. */
class ViewGridItem : public QCPAbstractItem
{
    Q_OBJECT

public:
    struct Content {
        bool impedance = true;
        bool admittance = false;
        std::optional<double> referenceOhms; ///< normalised values without
        SmithChart::GridLook look;
    };

    ViewGridItem(QCPAxis *xAxis, QCPAxis *yAxis, const Content &content);

    double selectTest(const QPointF &pos, bool onlySelectable,
                      QVariant *details = nullptr) const override;

protected:
    void draw(QCPPainter *painter) override;

private:
    /// Lines of one strength and colour.
    struct Strokes {
        QPen pen;
        QVector<QPolygonF> lines;
    };

    QFont labelFont() const;
    void update(const SmithChart::GridView &view);
    void addChart(SmithChart::GridChart chart, const SmithChart::GridView &view, const QPen &pen);
    void cutOutLabels();

    QPointer<QCPAxis> m_xAxis;
    QPointer<QCPAxis> m_yAxis;
    Content m_content;
    SmithChart::GridView m_view; ///< that was computed
    QVector<Strokes> m_strokes; ///< pixels from the axis rectangle's corner
    QVector<SmithChart::ViewGridLabel> m_labels;
    int m_firstSecondLabel = 0; ///< from here on they are of a second chart
};

/// Draws the rim of the chart, exact at every magnification; it is never hit.
class ViewRimItem : public QCPAbstractItem
{
    Q_OBJECT

public:
    ViewRimItem(QCPAxis *xAxis, QCPAxis *yAxis, const QPen &pen);

    double selectTest(const QPointF &pos, bool onlySelectable,
                      QVariant *details = nullptr) const override;

protected:
    void draw(QCPPainter *painter) override;

private:
    QPointer<QCPAxis> m_xAxis;
    QPointer<QCPAxis> m_yAxis;
    QPen m_pen;
};
