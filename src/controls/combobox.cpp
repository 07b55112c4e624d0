// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/combobox.h>

#include <controls/popupplacement_p.h>

#include <QFrame>
#include <QListView>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

namespace Controls
{

namespace
{

/*! Draws the rows of the list, which is exactly as wide as its longest text: the space that styles
    keep free beside a text is taken from outside the row rather than from the text. */
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem row(option);
        const int missing = sizeHint(option, index).width() - option.rect.width();
        if (missing > 0 && index.data(Qt::DecorationRole).isNull())
            row.rect.adjust(-missing / 2, 0, (missing + 1) / 2, 0);
        QStyledItemDelegate::paint(painter, row, index);
    }
};

} // namespace

ComboBox::ComboBox(QWidget *parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("combobox"));
    setView(new QListView(this));
    setItemDelegate(new RowDelegate(this));
}

void ComboBox::setItemDisabled(int index, bool disabled)
{
    const auto *items = qobject_cast<QStandardItemModel *>(model());
    if (QStandardItem *item = items ? items->item(index) : nullptr)
        item->setEnabled(!disabled);
}

int ComboBox::popupWidgetCalculateWidth()
{
    const QFontMetrics metrics = fontMetrics();
    int widest = width();
    for (int row = 0; row < count(); ++row) {
        const QString text = model()->index(row, 0).data(Qt::DisplayRole).toString();
        widest = qMax(widest, metrics.horizontalAdvance(text));
    }
    return widest;
}

QPoint ComboBox::popupWidgetTopLeftConer(const QSize &size)
{
    const QRect box(mapToGlobal(QPoint()), this->size());
    return popupTopLeft(box, size, availableGeometryAt(box.center()), 1);
}

QSize ComboBox::popupWidgetAdjustSize()
{
    const QWidget *container = popupContainer();
    return {popupWidgetCalculateWidth(), container ? container->height() : 0};
}

void ComboBox::showPopup()
{
    view()->setCurrentIndex(model()->index(currentIndex(), 0));
    QComboBox::showPopup();
    QWidget *container = popupContainer();
    if (!container) {
        qWarning("ComboBox: Could not find popup widget after base showPopup()!");
        return;
    }
    const QSize size = popupWidgetAdjustSize();
    container->setGeometry(QRect(popupWidgetTopLeftConer(size), size));
}

/// The window around the list, which Qt makes when the list first opens.
QWidget *ComboBox::popupContainer() const
{
    QWidget *frame = findChild<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
    return frame ? frame : view()->parentWidget();
}

} // namespace Controls
