// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagramview.h"

#include <panel/model/limitediting.h>

#include <QPointer>

class QCPAbstractItem;
class QCPPainter;
class QKeyEvent;

namespace Panel
{

/*! Changes the limits of a diagram's active trace under a finger, while LimitEditing is on.

    It draws handles, and what the selected one stands at. A drag moves what lies under the finger;
    a tap selects it, and once more the next limit in the same place. Keys: Tab goes from handle to
    handle, arrows move the selected one by a tenth of a division or with Ctrl by a hundredth, Delete
    removes its limit, Escape gives a drag up or deselects.

    What a limit is, a class for each kind of diagram knows. */
class LimitEditor : public QObject
{
    Q_OBJECT

public:
    /// What a finger can take, and where, in pixels of the plot.
    struct Grip {
        int limit = -1; ///< as in LimitEditing
        LimitPart part = LimitPart::Whole;
        QPointF place;
    };

    LimitEditor(PanelModel *model, DiagramView *view);

    /// True if the press is on a limit, which the pointer moves from now on.
    bool press(const QPointF &position);
    void dragTo(const QPointF &position);
    void release();
    /// Ends a drag as if it had not been.
    void giveUp();
    /// Adds a limit around a free place; false if there can be none.
    bool addAt(const QPointF &position);
    /// False for a key that means nothing here.
    bool handleKey(const QKeyEvent *event);
    void draw(QCPPainter *painter) const;

Q_SIGNALS:
    /// What was selected or moved by a key, which is drawn beside it.
    void said(const QString &text);
    /// Why nothing was added.
    void refused(const QString &text);

protected:
    /// The trace whose limits can be changed now, or null.
    const Trace *edited() const;
    LimitEditing *editing() const { return m_model->limitEditing(); }
    /// Handles of all limits that are seen.
    virtual QVector<Grip> grips() const = 0;
    /// A limit as it is drawn.
    virtual QPolygonF outline(int limit) const = 0;
    /// What a finger takes beside the handles.
    virtual LimitPart outlinePart() const { return LimitPart::Whole; }
    /// Notes what restore() brings back.
    virtual void begin(const Grip &grip) = 0;
    /// Moves a part as far away from where it was in the beginning.
    virtual void move(const Grip &grip, const QPointF &pixels) = 0;
    virtual void restore() = 0;
    /// Moves a part by so many divisions.
    virtual void step(const Grip &grip, const QPointF &divisions) = 0;
    /// Empty, or why it was not added.
    virtual QString add(const QPointF &position) = 0;
    virtual void remove(int limit) = 0;
    /// What stands beside a selected part.
    virtual QString text(const Grip &grip) const = 0;

    PanelModel *m_model;
    DiagramView *m_view;

private:
    void follow();
    QVector<Grip> gripsAt(const QPointF &position) const;
    Grip selected() const;
    void select(const Grip &grip);
    bool selectNext(int direction);
    void drawText(QCPPainter *painter, const Grip &grip) const;

    QPointer<QCPAbstractItem> m_item; ///< draws; owned by the plot
    bool m_pressed = false;
    bool m_moved = false; ///< far enough to tell a drag from a tap
    Grip m_grip; ///< under the press
    Grip m_next; ///< what a second tap selects
    QPointF m_pressedAt;
};

/// Makes the editor of a diagram whose traces can have limits, as the view's child.
LimitEditor *makeLimitEditor(PanelModel *model, DiagramView *view);

} // namespace Panel
