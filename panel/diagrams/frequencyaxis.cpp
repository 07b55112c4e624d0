// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequencyaxis.h"

#include <panel/ground/numbertext.h>

#include <cmath>

namespace Panel
{

namespace
{

/// Between the diagram and the texts below it, in pixels.
constexpr int s_padding = 5;
/// What stands for zero on a logarithmic axis, in Hz.
constexpr double s_lowestHertz = 1e-3;
/// Steps of an axis that shows less than a decade.
constexpr double s_stepsInADecade = 8.0;
/// Digits of a span that its ends are told with.
constexpr double s_spanDigits = 4.0;

QCPItemText *makeText(QCustomPlot *plot, double place, Qt::Alignment alignment)
{
    auto *text = new QCPItemText(plot);
    text->setLayer(QStringLiteral("axes"));
    text->setSelectable(false);
    text->setClipToAxisRect(false);
    text->setPadding(QMargins(0, s_padding, 0, 0));
    text->setPositionAlignment(alignment | Qt::AlignTop);
    text->position->setType(QCPItemPosition::ptAxisRectRatio);
    text->position->setAxisRect(plot->axisRect());
    text->position->setCoords(place, 1.0);
    return text;
}

/// Round frequencies of a logarithmic axis: decades with 2 and 5 between them, or even steps within a
/// decade. Those that stand too near to an end or to each other are not written.
class RoundFrequencies : public QCPAxisTicker
{
public:
    explicit RoundFrequencies(const QCPAxis *axis)
        : m_axis(axis)
    {
    }

protected:
    QVector<double> createTickVector(double, const QCPRange &range) override
    {
        QVector<double> ticks;
        if (!(range.lower > 0.0) || !std::isfinite(range.upper))
            return ticks;
        if (range.upper < 10.0 * range.lower) {
            const double step = cleanMantissa(range.size() / s_stepsInADecade);
            for (double tick = std::ceil(range.lower / step) * step; tick <= range.upper;
                 tick += step)
                ticks << tick;
            return ticks;
        }
        for (double decade = std::pow(10.0, std::floor(std::log10(range.lower)));
             decade <= range.upper; decade *= 10.0) {
            for (const double multiple : {1.0, 2.0, 5.0}) {
                if (multiple * decade >= range.lower && multiple * decade <= range.upper)
                    ticks << multiple * decade;
            }
        }
        return ticks;
    }

    QVector<QString> createLabelVector(const QVector<double> &ticks, const QLocale &, QChar,
                                       int) override
    {
        const QFontMetrics metrics(m_axis->tickLabelFont());
        const double gap = 1.5 * metrics.averageCharWidth();
        const QCPRange range = m_axis->range();
        const auto width = [&](double hertz) {
            return double(metrics.horizontalAdvance(shortFrequencyText(hertz)));
        };
        // The texts at the ends stand within, those of ticks around their places.
        double free = m_axis->coordToPixel(range.lower) + width(range.lower) + gap;
        const double end = m_axis->coordToPixel(range.upper) - width(range.upper) - gap;
        QVector<QString> labels(ticks.size());
        // Decades first; what lies between them takes what room is left.
        const auto isDecade = [](double hertz) {
            const double decade = std::log10(hertz);
            return std::abs(decade - std::round(decade)) < 1e-6;
        };
        for (int i = 0; i < ticks.size(); ++i) {
            const double place = m_axis->coordToPixel(ticks.at(i)), half = width(ticks.at(i)) / 2.0;
            double until = end;
            for (int next = i + 1; !isDecade(ticks.at(i)) && next < ticks.size(); ++next) {
                if (isDecade(ticks.at(next)))
                    until = qMin(until,
                                 m_axis->coordToPixel(ticks.at(next)) - width(ticks.at(next)) / 2.0
                                     - gap);
            }
            if (place - half < free || place + half > until)
                continue;
            labels[i] = shortFrequencyText(ticks.at(i));
            free = place + half + gap;
        }
        return labels;
    }

private:
    const QCPAxis *m_axis;
};

} // namespace

FrequencyAxis::FrequencyAxis(QCustomPlot *plot)
    : m_axis(plot->xAxis)
    , m_left(makeText(plot, 0.0, Qt::AlignLeft))
    , m_centre(makeText(plot, 0.5, Qt::AlignHCenter))
    , m_right(makeText(plot, 1.0, Qt::AlignRight))
{
    m_axis->setTicker(QSharedPointer<QCPAxisTickerFixed>::create());
    m_axis->setTickLabels(false);
    m_axis->setTickLabelPadding(s_padding);
    m_axis->grid()->setZeroLinePen(Qt::NoPen);
    setRange(m_whole);
}

FrequencyScale FrequencyAxis::scale() const
{
    return m_axis->scaleType() == QCPAxis::stLogarithmic ? FrequencyScale::Logarithmic
                                                         : FrequencyScale::Linear;
}

/// What is linear along the axis.
double FrequencyAxis::along(double hertz) const
{
    return scale() == FrequencyScale::Linear ? hertz : std::log10(qMax(hertz, s_lowestHertz));
}

QCPRange FrequencyAxis::along(const QCPRange &hertz) const
{
    return {along(hertz.lower), along(hertz.upper)};
}

double FrequencyAxis::hertzAt(double along) const
{
    return scale() == FrequencyScale::Linear ? along : std::pow(10.0, along);
}

bool FrequencyAxis::show(const QCPRange &whole, const Zoom &zoom, FrequencyScale wanted)
{
    const QCPRange before = range();
    const FrequencyScale scaleBefore = scale();
    const bool logarithmic = wanted == FrequencyScale::Logarithmic && whole.lower > 0.0;
    if (logarithmic != (scaleBefore == FrequencyScale::Logarithmic)) {
        m_axis->setScaleType(logarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
        m_axis->setTicker(logarithmic ? QSharedPointer<QCPAxisTicker>(new RoundFrequencies(m_axis))
                                      : QSharedPointer<QCPAxisTicker>(new QCPAxisTickerFixed));
        m_axis->setTickLabels(logarithmic);
        m_centre->setVisible(!logarithmic);
    }
    m_whole = whole;
    const QCPRange axis = along(whole);
    const double half = axis.size() / 2.0;
    const double centre = axis.center() + zoom.x * half;
    // The ends themselves, where sums would round.
    setRange(zoom.isWhole() ? whole
                            : QCPRange(hertzAt(centre - half / zoom.factor),
                                       hertzAt(centre + half / zoom.factor)));
    return range() != before || scale() != scaleBefore;
}

Zoom FrequencyAxis::zoomFor(double centre, double factor) const
{
    const QCPRange axis = along(m_whole);
    return bounded({factor, (centre - axis.center()) / (axis.size() / 2.0), 0.0},
                   DiagramKind::Cartesian);
}

Zoom FrequencyAxis::zoomedAt(double hertz, const Zoom &before, double factor) const
{
    if (!std::isfinite(factor))
        return before;
    const double wanted = qBound(1.0, before.factor * factor, Zoom::maximum);
    const QCPRange axis = along(range());
    const double ratio = along(m_whole).size() / wanted / axis.size();
    return zoomFor(along(hertz) + (axis.center() - along(hertz)) * ratio, wanted);
}

Zoom FrequencyAxis::shifted(double hertz, double to, const Zoom &before) const
{
    return zoomFor(along(range()).center() + along(hertz) - along(to), before.factor);
}

void FrequencyAxis::setRange(const QCPRange &hertz)
{
    if (const auto fixed = m_axis->ticker().dynamicCast<QCPAxisTickerFixed>()) {
        fixed->setTickOrigin(hertz.lower);
        fixed->setTickStep(hertz.size() / divisions);
    }
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
    QStringList texts{m_left->text()};
    if (scale() == FrequencyScale::Linear)
        texts << m_centre->text();
    else
        texts += m_axis->tickVectorLabels().toList();
    texts.removeAll(QString());
    return texts << m_right->text();
}

void FrequencyAxis::setLook(const QFont &font, const QColor &color)
{
    m_axis->setTickLabelFont(font);
    m_axis->setTickLabelColor(color);
    for (QCPItemText *text : {m_left, m_centre, m_right}) {
        text->setFont(font);
        text->setColor(color);
    }
}

void FrequencyAxis::fit()
{
    if (scale() == FrequencyScale::Logarithmic) {
        // Which labels have room is known once the layout is.
        m_axis->axisRect()->update(QCPLayoutElement::upPreparation);
        return;
    }
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
