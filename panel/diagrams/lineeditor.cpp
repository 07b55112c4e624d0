// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "lineeditor.h"

#include <panel/ground/numbertext.h>

#include <cmath>

namespace Panel
{

namespace
{

/// A line that is bent by a logarithmic axis is followed in so many straight pieces.
constexpr int s_pieces = 50;
/// So near, in pixels, what moves is drawn to a division or to another end.
constexpr double s_nearness = 6.0;
/// Of the diagram's width, that a new line has to either side of the finger.
constexpr double s_halfOfNew = 0.15;

QString sideText(bool upper)
{
    return upper ? QStringLiteral("\u2264 ") : QStringLiteral("\u2265 ");
}

} // namespace

LineEditor::LineEditor(PanelModel *model, CartesianView *view)
    : LimitEditor(model, view)
{
}

/// The plot's own axes, which are those of the active trace.
QCPAxis *LineEditor::frequencies() const
{
    return m_view->plot()->xAxis;
}

QCPAxis *LineEditor::values() const
{
    return m_view->plot()->yAxis;
}

FrequencyScale LineEditor::scale() const
{
    return frequencies()->scaleType() == QCPAxis::stLogarithmic ? FrequencyScale::Logarithmic
                                                                : FrequencyScale::Linear;
}

QPointF LineEditor::inside(const QPointF &place) const
{
    const QRectF rect = m_view->plot()->axisRect()->rect();
    return {qBound(rect.left(), place.x(), rect.right()),
            qBound(rect.top(), place.y(), rect.bottom())};
}

/// Where a line is seen at a frequency, or at the nearest one on show.
QPointF LineEditor::placeOf(const LimitLine &line, double hertz) const
{
    const QCPRange shown = frequencies()->range();
    const double seen = qBound(shown.lower, hertz, shown.upper);
    return {frequencies()->coordToPixel(seen), values()->coordToPixel(line.valueAt(seen))};
}

QVector<LimitEditor::Grip> LineEditor::grips() const
{
    QVector<Grip> result;
    const Trace *trace = edited();
    const QCPRange shown = frequencies()->range();
    for (int i = 0; trace && i < trace->limits.size(); ++i) {
        const LimitLine &line = trace->limits.at(i);
        if (!isLimitOf(*trace, i) || line.stop < shown.lower || line.start > shown.upper)
            continue;
        const QPointF start = placeOf(line, line.start), stop = placeOf(line, line.stop);
        const double middle = frequencies()->pixelToCoord((start.x() + stop.x()) / 2.0);
        result.append({i, LimitPart::Start, inside(start)});
        result.append({i, LimitPart::Whole, inside(placeOf(line, middle))});
        result.append({i, LimitPart::Stop, inside(stop)});
    }
    return result;
}

QPolygonF LineEditor::outline(int limit) const
{
    const LimitLine &line = edited()->limits.at(limit);
    const double from = placeOf(line, line.start).x(), to = placeOf(line, line.stop).x();
    const int pieces = scale() == FrequencyScale::Linear ? 1 : s_pieces;
    QPolygonF result;
    for (int i = 0; i <= pieces; ++i)
        result << placeOf(line, frequencies()->pixelToCoord(from + i * (to - from) / pieces));
    return result;
}

void LineEditor::begin(const Grip &grip)
{
    m_limit = grip.limit;
    m_before = edited()->limits.at(grip.limit);
}

void LineEditor::restore()
{
    replace(m_limit, m_before);
}

void LineEditor::replace(int limit, const LimitLine &line)
{
    const Trace *trace = edited();
    if (!trace || !isLimitOf(*trace, limit))
        return;
    QVector<LimitLine> all = trace->limits;
    all[limit] = line;
    m_model->setLimits(trace->id, all);
}

/// To what is near of the divisions, the ends of other lines, and some frequencies more.
double LineEditor::snappedHertz(double hertz, int limit, const QVector<double> &also) const
{
    const Trace &trace = *edited();
    const QCPRange shown = frequencies()->range();
    QVector<double> places =
        also + frequencies()->tickVector() + QVector<double>{shown.lower, shown.upper};
    for (int i = 0; i < trace.limits.size(); ++i) {
        if (i != limit && isLimitOf(trace, i))
            places << trace.limits.at(i).start << trace.limits.at(i).stop;
    }
    const double pixel = frequencies()->coordToPixel(hertz);
    const double step =
        frequencies()->pixelToCoord(pixel + 1.0) - frequencies()->pixelToCoord(pixel);
    return snapped(hertz, places, s_nearness * step, qMax(1.0, roundStep(step)));
}

double LineEditor::snappedValue(double value, int limit, const QVector<double> &also) const
{
    const Trace &trace = *edited();
    QVector<double> places = also;
    for (int i = 0; i <= traits(trace.format).divisions; ++i)
        places << trace.scale.top - i * trace.scale.perDivision;
    for (int i = 0; i < trace.limits.size(); ++i) {
        if (i != limit && isLimitOf(trace, i))
            places << trace.limits.at(i).startValue << trace.limits.at(i).stopValue;
    }
    const double step = values()->range().size() / qMax(1, m_view->plot()->axisRect()->height());
    const double finest = std::pow(10.0, -traits(trace.format).decimals);
    return snapped(value, places, s_nearness * step, qMax(finest, roundStep(step)));
}

void LineEditor::move(const Grip &grip, const QPointF &pixels)
{
    const Trace *trace = edited();
    if (!trace || !isLimitOf(*trace, m_limit))
        return;
    const QPointF to = m_view->coordinates(inside(grip.place + pixels));
    const QCPRange shown = frequencies()->range(), seen = values()->range();
    LimitPart part = grip.part;
    if (part != LimitPart::Whole) {
        const double other = part == LimitPart::Start ? m_before.stopValue : m_before.startValue;
        const double hertz = snappedHertz(to.x(), m_limit, {});
        const double value = snappedValue(to.y(), m_limit, {other});
        replace(m_limit,
                movedEnd(m_before, part, qBound(shown.lower, hertz, shown.upper),
                         qBound(seen.lower, value, seen.upper)));
        editing()->select(m_limit, part);
        return;
    }
    const QPointF from = m_view->coordinates(grip.place);
    const double hertz = scale() == FrequencyScale::Linear ? m_before.start + to.x() - from.x()
                                                           : m_before.start * to.x() / from.x();
    replace(m_limit,
            shiftedTo(m_before, snappedHertz(hertz, m_limit, {m_before.start}),
                      snappedValue(m_before.startValue + to.y() - from.y(), m_limit, {}), scale()));
}

void LineEditor::step(const Grip &grip, const QPointF &divisions)
{
    const Trace &trace = *edited();
    const LimitLine line = trace.limits.at(grip.limit);
    const QCPRange shown = frequencies()->range(), seen = values()->range();
    const bool atStop = grip.part == LimitPart::Stop;
    // Of the axis, in its own scale.
    const double share = divisions.x() / FrequencyAxis::divisions;
    const double along = scale() == FrequencyScale::Linear ? share * shown.size() : 0.0;
    const double times =
        scale() == FrequencyScale::Linear ? 1.0 : std::pow(shown.upper / shown.lower, share);
    const double hertz = (atStop ? line.stop : line.start) * times + along;
    const double value =
        (atStop ? line.stopValue : line.startValue) + divisions.y() * trace.scale.perDivision;
    if (grip.part == LimitPart::Whole) {
        replace(grip.limit, shiftedTo(line, hertz, value, scale()));
        return;
    }
    LimitPart part = grip.part;
    replace(grip.limit,
            movedEnd(line, part, qBound(shown.lower, hertz, shown.upper),
                     qBound(seen.lower, value, seen.upper)));
    editing()->select(grip.limit, part);
}

/// What lies above the trace is a limit from above.
QString LineEditor::add(const QPointF &position)
{
    const Trace &trace = *edited();
    if (trace.limits.size() >= LimitLine::perTrace)
        return tr("A trace can have %n limit line(s).", nullptr, LimitLine::perTrace);
    const int id = trace.id;
    const int index = int(trace.limits.size());
    const QPointF half(s_halfOfNew * m_view->plot()->axisRect()->width(), 0.0);
    const auto hertzAt = [this](const QPointF &place) {
        return snappedHertz(m_view->coordinates(inside(place)).x(), -1, {});
    };
    const double value = snappedValue(m_view->coordinates(position).y(), -1, {});
    const TraceData data = m_model->traceData(trace);
    const double hertz = m_view->coordinates(position).x();
    const bool below = data.points() > 0
        && value < formatValueAt(data, indexOfFrequency(data.frequencies, hertz), trace.format);
    const LimitLine line{trace.format, !below, hertzAt(position - half), hertzAt(position + half),
                         value,        value};
    m_model->setLimits(id, QVector<LimitLine>(trace.limits) << line);
    editing()->select(index, LimitPart::Whole);
    return {};
}

void LineEditor::remove(int limit)
{
    const Trace &trace = *edited();
    QVector<LimitLine> left = trace.limits;
    left.remove(limit);
    m_model->setLimits(trace.id, left);
}

QString LineEditor::text(const Grip &grip) const
{
    if (grip.limit < 0)
        return {};
    const LimitLine &line = edited()->limits.at(grip.limit);
    const QString start = sideText(line.upper) + cartesianText(line.startValue, line.format);
    const QString stop = sideText(line.upper) + cartesianText(line.stopValue, line.format);
    const QString from = frequencyText(line.start), to = frequencyText(line.stop);
    QString atStart = QStringLiteral("%1: %2").arg(from, start);
    QString atStop = QStringLiteral("%1: %2").arg(to, stop);
    if (grip.part == LimitPart::Start)
        return atStart;
    if (grip.part == LimitPart::Stop)
        return atStop;
    return start == stop ? tr("%1 to %2\n%3").arg(from, to, start)
                         : atStart + QLatin1Char('\n') + atStop;
}

} // namespace Panel
