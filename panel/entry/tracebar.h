// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <QVector>

class QAbstractButton;
class QHBoxLayout;
class QToolButton;

namespace Panel
{

class PanelModel;
class TraceButton;

/*! The list of traces in the top bar, "Tr1 S11 Smith 1.00 U/" in their colours and with the active
    one framed, and behind them a key that adds one. It scrolls under a finger where it is too long; where it would be, the others are
    named only.

    A tap on a trace asks for it to become active; on a field of the active one, for that field to
    be edited. */
class TraceBar : public QScrollArea
{
    Q_OBJECT

public:
    /// What can be edited of a trace.
    enum Field {
        Parameter,
        Format,
        Scale,
    };

    explicit TraceBar(const PanelModel *model, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// The button of a trace, or null.
    QAbstractButton *button(int traceId) const;
    /// The place of a field within its button.
    QRect fieldRect(int traceId, Field field) const;

Q_SIGNALS:
    void activationRequested(int traceId);
    /// The key behind the last trace was tapped.
    void addRequested();
    void editRequested(int traceId, Panel::TraceBar::Field field);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    TraceButton *traceButton(int traceId) const;
    void rebuild();
    void refresh();
    void fit();

    const PanelModel *m_model;
    QHBoxLayout *m_row;
    QVector<TraceButton *> m_buttons;
    QToolButton *m_add;
};

} // namespace Panel
