// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "choicelist_p.h"

#include <base/fingersize_p.h>

#include <QStyle>
#include <QStyledItemDelegate>

namespace
{

/// Makes items that a finger can hit.
class TouchItemDelegate : public QStyledItemDelegate
{
public:
    explicit TouchItemDelegate(QListView *view)
        : QStyledItemDelegate(view)
        , m_view(view)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (m_view->viewMode() == QListView::IconMode)
            return m_view->gridSize();
        const QSize hint = QStyledItemDelegate::sizeHint(option, index);
        return hint.expandedTo({0, Utils::fingerSize(m_view)});
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (m_view->viewMode() == QListView::IconMode)
            option->displayAlignment = Qt::AlignCenter;
    }

private:
    QListView *m_view;
};

} // namespace

ChoiceList::ChoiceList(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("ListModeView"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setItemDelegate(new TouchItemDelegate(this));
}

QListWidgetItem *ChoiceList::find(const QString &text) const
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->text() == text)
            return item(row);
    }
    return nullptr;
}

void ChoiceList::setMode(QListView::ViewMode mode)
{
    const bool tiles = mode == QListView::IconMode;
    setViewMode(mode);
    setObjectName(tiles ? QStringLiteral("IconModeView") : QStringLiteral("ListModeView"));
    setResizeMode(QListView::Fixed);
    setDragDropMode(QAbstractItemView::NoDragDrop);
    setUniformItemSizes(tiles);
    setWordWrap(tiles);
    if (!tiles)
        setGridSize({}); // or the rows would keep the tiles' height
    // Style sheets look at the object name only when they polish.
    style()->unpolish(this);
    style()->polish(this);
}

void ChoiceList::focusInEvent(QFocusEvent *event)
{
    const bool noneCurrent = !currentItem();
    QListWidget::focusInEvent(event);
    if (noneCurrent)
        setCurrentItem(nullptr);
}

void ChoiceList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    if (hasFocus())
        QListWidget::currentChanged(current, previous);
    else
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): it is what the view adds that is left out
        QAbstractItemView::currentChanged(current, previous);
}
