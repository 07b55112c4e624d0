// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;

namespace Panel
{

class PanelModel;

/// The bar below the diagrams: start, number of points and stop of the active trace's sweep.
class SweepBar : public QFrame
{
    Q_OBJECT

public:
    explicit SweepBar(const PanelModel *model, QWidget *parent = nullptr);

private:
    void refresh();

    const PanelModel *m_model;
    QLabel *m_start;
    QLabel *m_points;
    QLabel *m_stop;
};

} // namespace Panel
