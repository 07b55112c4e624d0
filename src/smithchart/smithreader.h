// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <smithchart/tracewalk.h>
#include <smithchart/tracewords.h>

#include <QObject>

#include <memory>

class SmithChartPlot;
class SmithLimit;

/*! Makes a Smith chart readable without seeing it: through assistive tools, and by walking its traces
    with keys.

    The plot is described to screen readers (AccessiblePlot): a sentence for each trace, its points as
    a table, its markers as values, its limits as verdicts. While the plot has the focus, the arrow
    keys walk the active trace, or the first that is shown, by a point, with Ctrl to the next feature,
    Page Up and Page Down by a tenth of the view, Home and End to its ends; a ring shows where, and the
    place is said. Return does what a double click there would, Escape ends the walk.

    Like the chart it changes nothing of the host's: a marker that is set to a value from outside is
    asked for by the signals of a drag. The chart may go first.

    \code
    auto *reader = new SmithReader(chart);
    reader->setTraceName(1, QStringLiteral("S11"));
    connect(reader, &SmithReader::said, this, [](const QString &text) { qDebug() << text; });
    \endcode */
class VNAWIDGETS_EXPORT SmithReader : public QObject
{
    Q_OBJECT

public:
    /// Reads \a chart, which becomes the parent; its plot can be reached by Tab from now on.
    explicit SmithReader(SmithChartPlot *chart);
    ~SmithReader() override;

    /// What the chart is called. Default: "Smith chart", translated.
    void setName(const QString &name);
    /// What a trace is called. Default: "Trace 1" and so on.
    void setTraceName(int trace, const QString &name);
    /// How a stimulus is told. Default: as a frequency in Hz (SmithChart::hertzText()).
    void setStimulusText(const SmithChart::StimulusText &text);
    /// The standing wave ratio that counts as a match, 2 at first: of the circle that a walk stops at,
    /// and of the band in the summary. False unless finite and above 1.
    bool setVswr(double ratio);
    /// Reads the verdict of a limit too; \a trace is what it was tested for.
    void addLimit(SmithLimit *limit, int trace);
    /// Whether keys walk. Default: true.
    void setTakesKeys(bool takes);

    /// A sentence for each trace that is shown.
    QString summary() const;
    /// Walks as a key does; false where there is no trace, and for the end of one.
    bool walk(const SmithChart::WalkStep &step);
    /// Hides the ring and begins anew at the next step.
    void endWalk();
    /// The trace that is walked, or -1.
    int walkedTrace() const;
    /// Where the walk is: a fraction lies between two points; -1 while there is none.
    double walkedIndex() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// What a step has found, whether or not anybody hears it.
    void said(const QString &text);

private:
    class Private;
    const std::unique_ptr<Private> d;
};
