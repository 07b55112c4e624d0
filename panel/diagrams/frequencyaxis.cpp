// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequencyaxis.h"

#include <panel/ground/numbertext.h>

#include <cmath>

namespace Panel
{

namespace
{

/// Digits of a span that its ends are told with.
constexpr double s_spanDigits = 4.0;

QCPItemText *makeText(QCustomPlot *plot, double place, Qt::Alignment alignment)
{
    auto *text = new QCPItemText(plot);
    text->setLayer(QStringLiteral("axes"));
    text->setSelectable(false);
    text->setClipToAxisRect(false);
    text->setPadding(QMargins(0, 4, 0, 0));
    text->setPositionAlignment(alignment | Qt::AlignTop);
    text->position->setType(QCPItemPosition::ptAxisRectRatio);
    text->position->setAxisRect(plot->axisRect());
    text->position->setCoords(place, 1.0);
    return text;
}

} // namespace

FrequencyAxis::FrequencyAxis(QCustomPlot *plot)
    : m_axis(plot->xAxis)
    , m_left(makeText(plot, 0.0, Qt::AlignLeft))
    , m_centre(makeText(plot, 0.5, Qt::AlignHCenter))
    , m_right(makeText(plot, 1.0, Qt::AlignRight))
{
    m_axis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    m_axis->setTickLabels(false);
    m_axis->grid()->setZeroLinePen(Qt::NoPen);
    setRange(m_whole);
}

bool FrequencyAxis::show(const QCPRange &whole, const Zoom &zoom)
{
    m_whole = whole;
    const QCPRange before = range();
    const double half = whole.size() / 2.0;
    const double centre = whole.center() + zoom.x * half;
    // The ends themselves, where sums would round.
    setRange(zoom.isWhole() ? whole
                            : QCPRange(centre - half / zoom.factor, centre + half / zoom.factor));
    return range() != before;
}

Zoom FrequencyAxis::zoomFor(double centre, double factor) const
{
    return bounded({factor, (centre - m_whole.center()) / (m_whole.size() / 2.0), 0.0}, false);
}

Zoom FrequencyAxis::zoomedAt(double hertz, const Zoom &before, double factor) const
{
    if (!std::isfinite(factor))
        return before;
    const double wanted = qBound(1.0, before.factor * factor, Zoom::maximum);
    const double ratio = m_whole.size() / wanted / range().size();
    return zoomFor(hertz + (range().center() - hertz) * ratio, wanted);
}

Zoom FrequencyAxis::shifted(double hertz, const Zoom &before) const
{
    return zoomFor(range().center() + hertz, before.factor);
}

void FrequencyAxis::setRange(const QCPRange &hertz)
{
    auto ticker = qSharedPointerCast<QCPAxisTickerFixed>(m_axis->ticker());
    ticker->setTickOrigin(hertz.lower);
    ticker->setTickStep(hertz.size() / divisions);
    m_axis->setRange(hertz);
    const double digit = std::pow(10.0, std::floor(std::log10(hertz.size())) - s_spanDigits);
    const auto text = [digit](double value) {
        return shortFrequencyText(std::round(value / digit) * digit);
    };
    m_left->setText(text(hertz.lower));
    m_right->setText(text(hertz.upper));
    m_divisionText = shortFrequencyText(hertz.size() / divisions) + QLatin1Char('/');
    m_centreText = text(hertz.center());
    fit();
}

QStringList FrequencyAxis::texts() const
{
    return {m_left->text(), m_centre->text(), m_right->text()};
}

void FrequencyAxis::setLook(const QFont &font, const QColor &color)
{
    for (QCPItemText *text : {m_left, m_centre, m_right}) {
        text->setFont(font);
        text->setColor(color);
    }
}

void FrequencyAxis::fit()
{
    const QFontMetrics metrics(m_centre->font());
    const int gap = metrics.averageCharWidth();
    const int outer =
        qMax(metrics.horizontalAdvance(m_left->text()), metrics.horizontalAdvance(m_right->text()));
    const int room = m_axis->axisRect()->width() - 2 * (outer + gap);
    const QString oneLine = m_centreText + QStringLiteral(" \u00b7 ") + m_divisionText;
    if (metrics.horizontalAdvance(oneLine) <= room)
        m_centre->setText(oneLine);
    else if (metrics.horizontalAdvance(m_centreText) <= room)
        m_centre->setText(m_centreText + QLatin1Char('\n') + m_divisionText);
    else if (metrics.horizontalAdvance(oneLine) <= m_axis->axisRect()->width())
        m_centre->setText(QLatin1Char('\n') + oneLine);
    else
        m_centre->setText(QLatin1Char('\n') + m_divisionText);
}

int FrequencyAxis::heightFor(const QFontMetrics &metrics, int width)
{
    constexpr int widthOfOneLine = 340;
    return (width < widthOfOneLine ? 2 : 1) * metrics.height() + 6;
}

} // namespace Panel
