// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <smithchart/limitarea.h>

#include <QColor>
#include <QObject>

#include <memory>
#include <optional>

class SmithChartPlot;

/*! A limit area on a Smith chart: shows it quietly under the traces, tests a trace against it, and
    draws what fails in the failing colour. The host decides when to test, normally after new data.

    The chart may go first; nothing is shown or tested from then on.

    \code
    auto *limit = new SmithLimit(chart);
    SmithChart::LimitArea area;
    area.setCircle({0.0, 0.0}, 0.33, SmithChart::LimitArea::StayInside);
    limit->setArea(area);
    limit->test(1);
    \endcode */
class VNAWIDGETS_EXPORT SmithLimit : public QObject
{
    Q_OBJECT

public:
    /// On the axes of \a chart, which becomes the parent.
    explicit SmithLimit(SmithChartPlot *chart);
    ~SmithLimit() override;

    /// Shows another area; what failed before is forgotten.
    void setArea(const SmithChart::LimitArea &area);
    /// The area; empty at first.
    SmithChart::LimitArea area() const;
    /// Judges only points whose stimulus lies in a range; none, the default: all.
    void setStimulusRange(std::optional<SmithChart::StimulusRange> range);
    /// Of the border, of the area (lighter), and of what fails. Defaults: the theme's text
    /// colour, and red.
    void setColors(const QColor &area, const QColor &failing);
    /// Shows or hides the area and what fails.
    void setVisible(bool visible);
    /// Whether it is shown; true at first.
    bool isVisible() const;

    /// Tests a trace of the chart, and draws its failing points. An unknown trace has no points.
    SmithChart::LimitResult test(int traceId);
    /// Of the last test.
    SmithChart::LimitResult result() const;

Q_SIGNALS:
    /// A test ended differently from the one before, or is the first.
    void verdictChanged(bool passed);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
