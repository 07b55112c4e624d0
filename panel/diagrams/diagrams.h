// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/panelmodel.h>

#include <QWidget>

#include <map>

class QGridLayout;

namespace Panel
{

class CartesianView;
class DiagramView;
class SmithView;

/*! The diagrams, one to four of them, as the model plans them, each with its gestures. */
class Diagrams : public QWidget
{
    Q_OBJECT

public:
    explicit Diagrams(PanelModel *model, QWidget *parent = nullptr);

    /// The diagrams on show, in reading order.
    QVector<DiagramView *> views() const { return m_shown; }
    /// All that were ever needed.
    QVector<DiagramView *> allViews() const;
    /// The diagram of the active trace, or null.
    DiagramView *activeView() const;
    /// The first of its kind.
    SmithView *smithView() const;
    CartesianView *cartesianView() const;

    /// Whether the selected marker is read over its whole diagram. False at first.
    bool largeReading() const { return m_largeReading; }
    void setLargeReading(bool large);

    /// Whether pointed() tells of the pointer, too. False at first.
    void setTellsPointer(bool tells) { m_tellsPointer = tells; }

Q_SIGNALS:
    /// Others are on show, or another one is active.
    void viewsChanged();
    /// What is where a trace is walked; empty when the walk ends.
    void said(const QString &text);
    /// A walk has come to a point of a trace, or the pointer where that is asked for.
    void pointed(int trace, double index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    DiagramView *view(const DiagramId &id);
    void arrange();
    void place(const QVector<DiagramView *> &views);
    void recolor();
    void tellPointer(const DiagramView *view, const QMouseEvent *event);

    PanelModel *m_model;
    QGridLayout *m_grid;
    std::map<DiagramId, DiagramView *> m_views;
    QVector<DiagramView *> m_shown;
    bool m_largeReading = false;
    bool m_tellsPointer = false;
};

} // namespace Panel
