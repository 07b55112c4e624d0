// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "valueaxis.h"

#include <panel/ground/numbertext.h>

namespace Panel
{

namespace
{

/// How long and wide the arrow is, in pixels.
constexpr double s_arrow = 8.0;

/// Numbers with true minus signs, and with a point in every language as all that the panel writes.
class Ticker : public QCPAxisTickerFixed
{
protected:
    QString getTickLabel(double tick, const QLocale &, QChar format, int precision) override
    {
        return withMinusSigns(
            QCPAxisTickerFixed::getTickLabel(tick, QLocale::c(), format, precision));
    }
};

} // namespace

ValueAxis::ValueAxis(QCustomPlot *plot)
    : m_axis(plot->yAxis)
    , m_ticker(new Ticker)
    , m_arrow(new QCPItemLine(plot))
{
    m_arrow->setLayer(QStringLiteral("axes"));
    m_arrow->setSelectable(false);
    m_arrow->setClipToAxisRect(false);
    m_arrow->setHead({QCPLineEnding::esSpikeArrow, s_arrow, s_arrow});
    m_arrow->end->setTypeX(QCPItemPosition::ptAxisRectRatio);
    m_arrow->end->setAxisRect(plot->axisRect());
    m_arrow->end->setTypeY(QCPItemPosition::ptPlotCoords);
    m_arrow->end->setAxes(plot->xAxis, plot->yAxis);
    m_arrow->start->setParentAnchor(m_arrow->end);
    m_arrow->start->setCoords(-s_arrow, 0.0);
    m_axis->setTickLabelPadding(8);
    m_axis->grid()->setZeroLinePen(Qt::NoPen);
    m_axis->setNumberFormat(QStringLiteral("gb"));
    m_axis->setNumberPrecision(4);
    m_axis->setTicker(m_ticker);
}

void ValueAxis::write(const Trace &trace, int height)
{
    m_ticker->setTickOrigin(trace.scale.top);
    const double division = height / double(traits(trace.format).divisions);
    const double needed = QFontMetricsF(m_axis->tickLabelFont()).height() / division;
    const int step = needed <= 1.0 ? 1 : needed <= 2.0 ? 2 : 5;
    m_ticker->setTickStep(step * trace.scale.perDivision);
    m_axis->setRange(bottom(trace.format, trace.scale), trace.scale.top);
    m_arrow->end->setCoords(0.0, trace.scale.reference());
}

void ValueAxis::setColors(const QColor &arrow, const QColor &numbers)
{
    m_arrow->setPen(arrow);
    m_axis->setTickLabelColor(numbers);
}

} // namespace Panel
