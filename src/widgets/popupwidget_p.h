// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "choicelist_p.h"

#include <widgets/popupwidget.h>

#include <QLabel>

/// What a PopupWidget keeps, and what it does with the pointer and the keyboard.
class PopupWidgetPrivate
{
public:
    static constexpr int screenMargin = 5; ///< that stays free around the pop-up

    explicit PopupWidgetPrivate(PopupWidget *popup)
        : q(popup)
        , title(new QLabel(popup))
        , list(new ChoiceList(popup))
    {
    }

    void pick(QListWidgetItem *item);
    void selectChosenItem() const;
    void closeWithoutParent() const;

    bool filterTitle(QEvent *event);
    bool filterList(QEvent *event);
    bool slideTo(int top) const;
    void slideToCurrentItem() const;

    PopupWidget *const q;
    QLabel *const title;
    ChoiceList *const list;
    int fixedWidth = 100;
    QSize iconSize = {120, 100};
    int itemCountPerRow = 4;
    QString chosen;
    Qt::Alignment itemTextAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool scrollsInside = false;

    QPoint dragOffset; ///< from the pop-up to the pointer on its title
    bool dragging = false;
    QPoint pressPosition; ///< of the finger on the list, on the screen
    int pressTop = 0; ///< of the pop-up when the finger came down
    bool sliding = false;
    bool picking = false;

private:
    Q_DISABLE_COPY(PopupWidgetPrivate)
};
