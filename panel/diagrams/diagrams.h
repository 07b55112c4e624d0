// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QWidget>

class QGridLayout;

namespace Panel
{

class CartesianView;
class DiagramFrame;
class DiagramView;
class SmithView;

/*! Which traces share a diagram, in reading order.

    One diagram shows all traces of the active one's kind; two have the Smith chart first and the
    Cartesian diagram second; four are for a parameter and format each, and of more the four with
    the active trace. A diagram without traces is left out. */
QVector<QVector<int>> assignTraces(Graph::LayoutType layout, const QVector<Trace> &traces,
                                   int activeTrace);

/*! The diagrams, one to four of them, as the layout of the view settings says. */
class Diagrams : public QWidget
{
    Q_OBJECT

public:
    explicit Diagrams(const PanelModel *model, QWidget *parent = nullptr);

    /// The diagrams on show, in reading order.
    QVector<DiagramView *> views() const { return m_shown; }
    /// All that were ever needed.
    QVector<DiagramView *> allViews() const;
    /// The diagram of the active trace, or null.
    DiagramView *activeView() const;
    /// The first of its kind.
    SmithView *smithView() const { return m_smithViews.first(); }
    CartesianView *cartesianView() const { return m_cartesianViews.first(); }

    /// Shows all of every diagram.
    void resetViews();

Q_SIGNALS:
    /// A further diagram was needed; it stays from now on.
    void viewMade(Panel::DiagramView *view);
    /// Others are on show, or another one is active.
    void viewsChanged();

private:
    void arrange(bool reload);
    template<typename View>
    View *view(QVector<View *> &views, int index);
    void place(const QVector<DiagramView *> &views);
    void recolor();

    const PanelModel *m_model;
    QGridLayout *m_grid;
    QVector<SmithView *> m_smithViews;
    QVector<CartesianView *> m_cartesianViews;
    QVector<DiagramView *> m_shown;
};

} // namespace Panel
