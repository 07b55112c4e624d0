// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/ground/elidedlabel.h>

#include <QTimer>

namespace Panel
{

class Diagrams;

/// A line that tells, while it is shown, how many points the diagrams draw and what a frame costs
/// them.
class TimingLine : public ElidedLabel
{
    Q_OBJECT

public:
    explicit TimingLine(const Diagrams *diagrams, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void refresh();

    const Diagrams *m_diagrams;
    QTimer m_timer;
};

} // namespace Panel
