// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planeview.h"
#include "verdict.h"

#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <QPointer>

#include <map>

namespace Panel
{

/*! Traces on a Smith chart, with a circle of constant standing wave ratio to read against, and one
    that traces must stay in, or keep out of.

    The chart is a new object after every change of density, which is fixed when a chart is made. */
class SmithView : public PlaneView
{
    Q_OBJECT

public:
    SmithView(const PanelModel *model, const DiagramId &id, QWidget *parent = nullptr);

    /// What the limit says of the traces on show; hidden without a limit.
    Verdict *verdict() const { return m_verdict; }

protected:
    void loadTraces() override;
    void updateTraces(int network) override;
    void recolor() override;
    void setTraceVisible(const Trace &trace) override;
    void showActiveTrace() override;
    QStringList titleParts() const override;
    void onLayout() override;

private:
    void showDensity();
    void followSettings();
    bool hasOneReference() const;
    void showGrid();
    void showLimit();
    void testTraces();

    GridDensity m_density;
    QPointer<SmithCircle> m_circle;
    std::map<int, QPointer<SmithLimit>> m_limits; ///< by trace
    Verdict *m_verdict;
};

} // namespace Panel
