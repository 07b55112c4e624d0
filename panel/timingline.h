// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "elidedlabel.h"

#include <QTimer>

namespace Panel
{

class SmithView;

/// A line that tells, while it is shown, how many points a diagram draws and what a frame costs.
class TimingLine : public ElidedLabel
{
    Q_OBJECT

public:
    explicit TimingLine(const SmithView *view, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void refresh();

    const SmithView *m_view;
    QTimer m_timer;
};

} // namespace Panel
