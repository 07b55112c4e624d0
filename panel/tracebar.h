// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <QVector>

class QHBoxLayout;

namespace Panel
{

class PanelModel;
class TraceButton;

/*! The list of traces in the top bar, in their colours and with the active one inverse. It scrolls
   under a finger where it is too long, and asks for a trace to become active rather than making it
   so. */
class TraceBar : public QScrollArea
{
    Q_OBJECT

public:
    explicit TraceBar(const PanelModel *model, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void activationRequested(int traceId);

private:
    void rebuild();
    void refresh();

    const PanelModel *m_model;
    QHBoxLayout *m_row;
    QVector<TraceButton *> m_buttons;
};

} // namespace Panel
