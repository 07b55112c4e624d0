// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planeview.h"

#include <QPointer>

namespace Panel
{

class PolarGrid;

/*! Traces by magnitude and angle, each in its own scale; the circles are labelled for the active one.

    Its data are divided by the full scale, so that the chart shows any magnitude. */
class PolarView : public PlaneView
{
    Q_OBJECT

public:
    PolarView(const PanelModel *model, const DiagramId &id, QWidget *parent = nullptr);

    double fullScale(const Trace &trace) const override { return trace.scale.top; }

protected:
    void recolor() override;
    void showActiveTrace() override;
    QStringList titleParts() const override;

private:
    void showScale();

    QPointer<PolarGrid> m_grid;
};

} // namespace Panel
