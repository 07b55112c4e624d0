// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <smithchart/accessibleplot.h>

#include <QPointer>

namespace Panel
{

/*! What a diagram tells those who cannot see it: its traces in a sentence and as tables, its markers
    as values. A reflection has impedance and standing wave ratio, a transmission decibels and phase.

    A marker that is moved is read out; one that is set from outside is asked for as a drag asks. */
class DiagramReader : public QObject, public PlotDescription
{
    Q_OBJECT

public:
    DiagramReader(const PanelModel *model, DiagramView *view);
    ~DiagramReader() override;

    /// Has a sentence said.
    void announce(const QString &text) const;

    QString name() const override;
    QString summary() const override;
    QVector<int> traces() const override;
    QString traceName(int trace) const override;
    int rows(int trace) const override;
    QStringList columns(int trace) const override;
    QString cell(int trace, int row, int column) const override;
    QVector<MarkerId> markers() const override;
    QString markerText(const MarkerId &id) const override;
    MarkerValue markerValue(const MarkerId &id) const override;
    void requestMarkerValue(const MarkerId &id, double value) override;
    QStringList verdicts() const override { return {}; } // the label that shows them is read itself

private:
    bool shows(int trace) const;

    const PanelModel *m_model;
    DiagramView *m_view;
    QPointer<AccessiblePlot> m_accessible;
};

} // namespace Panel
