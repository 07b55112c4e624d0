// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QListWidget>

/*! The list inside a pop-up: rows of a finger's height, or tiles that fill their cell and have their
    text in the middle. It takes the keyboard without making an item current, as Qt's own does. */
class ChoiceList : public QListWidget
{
public:
    explicit ChoiceList(QWidget *parent);

    /// First item of exactly this text, or null.
    QListWidgetItem *find(const QString &text) const;
    /// Shows rows or tiles; a style sheet knows the list by another name then.
    void setMode(QListView::ViewMode mode);

protected:
    void focusInEvent(QFocusEvent *event) override;
    /// Qt's tells screen readers of a new current item as if the list had the focus.
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
};
