// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/popupwidget.h>

#include "popupwidget_p.h"

#include <QEvent>
#include <QScreen>
#include <QScroller>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

void setEnabled(QListWidgetItem *item, bool enabled)
{
    if (item)
        item->setFlags(item->flags().setFlag(Qt::ItemIsEnabled, enabled));
}

} // namespace

PopupWidget::PopupWidget(QWidget *parent)
    : QWidget(parent, Qt::Popup)
    , d(std::make_unique<PopupWidgetPrivate>(this))
{
    setAttribute(Qt::WA_StyledBackground); // a plain QWidget ignores the sheet's background

    d->title->setObjectName(QStringLiteral("IconModeViewTitle"));
    d->title->setAlignment(Qt::AlignCenter);
    d->title->setMargin(fontMetrics().height() / 2); // a bar that a finger can drag
    d->title->hide();
    d->title->installEventFilter(this);

    d->list->installEventFilter(this);
    d->list->viewport()->installEventFilter(this);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d->title);
    layout->addWidget(d->list);

    if (parent)
        parent->installEventFilter(this);
    connect(d->list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { d->pick(item); });
    connect(d->list, &QListWidget::currentRowChanged, this, [this] { d->slideToCurrentItem(); });
}

PopupWidget::~PopupWidget()
{
    // An open pop-up is closed after this class has ended, which may give its list the focus.
    d->list->disconnect(this);
    // A slot may delete the pop-up while the list is still handling the tap: the list stays until
    // it has returned.
    if (d->picking) {
        d->list->setParent(nullptr);
        d->list->deleteLater();
    }
}

void PopupWidget::addItem(const QString &text)
{
    d->list->addItem(text);
}

void PopupWidget::addItems(const QList<QString> &texts, int currentRow)
{
    d->list->addItems(texts);
    d->list->setCurrentRow(currentRow);
}

void PopupWidget::clear()
{
    d->list->clear();
}

void PopupWidget::setCurrentItem(const QString &text)
{
    QListWidgetItem *const item = d->list->find(text);
    d->chosen = item ? text : QString();
    d->list->setCurrentItem(item);
    if (!item)
        d->list->clearSelection();
}

void PopupWidget::setItemEnabled(const QString &text, bool enabled)
{
    ::setEnabled(d->list->find(text), enabled);
}

void PopupWidget::setItemEnabled(int index, bool enabled)
{
    ::setEnabled(d->list->item(index), enabled);
}

Qt::Alignment PopupWidget::itemTextAlignment() const
{
    return d->itemTextAlignment;
}

void PopupWidget::setItemTextAlignment(Qt::Alignment alignment)
{
    if (d->itemTextAlignment == alignment)
        return;
    d->itemTextAlignment = alignment;
    for (int row = 0; row < d->list->count(); ++row)
        d->list->item(row)->setTextAlignment(alignment | Qt::AlignVCenter);
}

QString PopupWidget::titleText() const
{
    return d->title->text();
}

void PopupWidget::setTitleText(const QString &text)
{
    if (d->title->text() == text)
        return;
    d->title->setText(text);
    d->title->show();
    d->list->setAccessibleName(text);
}

bool PopupWidget::titleVisible() const
{
    return d->title->isVisibleTo(this);
}

void PopupWidget::setTitleVisible(bool visible)
{
    if (titleVisible() != visible)
        d->title->setVisible(visible);
}

QListView::ViewMode PopupWidget::viewMode() const
{
    return d->list->viewMode();
}

void PopupWidget::setViewMode(QListView::ViewMode mode)
{
    if (mode != viewMode())
        d->list->setMode(mode);
}

int PopupWidget::widgetFixedWidth() const
{
    return d->fixedWidth;
}

void PopupWidget::setWidgetFixedWidth(int width)
{
    if (d->fixedWidth == width)
        return;
    d->fixedWidth = width;
    if (QListWidgetItem *const last = d->list->item(d->list->count() - 1))
        last->setTextAlignment(d->itemTextAlignment | Qt::AlignVCenter);
}

QSize PopupWidget::iconSize() const
{
    return d->iconSize;
}

void PopupWidget::setIconSize(int width, int height)
{
    d->iconSize = {width, height};
}

int PopupWidget::itemCountPerRow() const
{
    return d->itemCountPerRow;
}

void PopupWidget::setItemCountPerRow(int count)
{
    d->itemCountPerRow = count;
}

void PopupWidget::popup()
{
    d->list->ensurePolished(); // a sheet may set the frame and the height of the rows
    const int count = d->list->count();
    const int frame = 2 * d->list->frameWidth();
    QSize size;
    if (viewMode() == QListView::ListMode) {
        for (int row = 0; row < count; ++row)
            d->list->item(row)->setTextAlignment(d->itemTextAlignment | Qt::AlignVCenter);
        size = {d->fixedWidth, frame + count * d->list->sizeHintForRow(0)};
    } else {
        const int columns = qMax(1, d->itemCountPerRow);
        d->list->setGridSize(d->iconSize);
        // The extra pixel keeps the last column from wrapping.
        size = {columns * d->iconSize.width() + 1,
                frame + (count + columns - 1) / columns * d->iconSize.height()};
    }
    size = size.expandedTo({0, 0});
    const int titleHeight = titleVisible() ? d->title->sizeHint().height() : 0;
    if (d->scrollsInside) {
        const QScreen *const target = parentWidget() ? parentWidget()->screen() : screen();
        const int room = target->availableGeometry().height() - 2 * d->screenMargin - titleHeight;
        size.setHeight(qMin(size.height(), qMax(0, room)));
    }
    d->list->setFixedSize(size);
    setFixedSize(size.width(), size.height() + titleHeight);
    if (QListWidgetItem *const shown = d->scrollsInside ? d->list->currentItem() : nullptr)
        d->list->scrollToItem(shown);
    else if (count > 0)
        d->list->scrollToItem(d->list->item(0), QAbstractItemView::PositionAtTop);
}

bool PopupWidget::eventFilter(QObject *watched, QEvent *event)
{
    // Queued, since a parent hides in its destructor too, where nobody must hear of it.
    const bool mayLeave = event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange;
    if (mayLeave && watched == parentWidget() && isVisible())
        QTimer::singleShot(0, this, [this] { d->closeWithoutParent(); });
    if (watched == d->title && d->filterTitle(event))
        return true;
    if ((watched == d->list || watched == d->list->viewport()) && d->filterList(event))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool PopupWidget::scrollsInside() const
{
    return d->scrollsInside;
}

void PopupWidget::setScrollsInside(bool scrolls)
{
    if (scrolls == d->scrollsInside)
        return;
    d->scrollsInside = scrolls;
    if (scrolls)
        QScroller::grabGesture(d->list->viewport(), QScroller::LeftMouseButtonGesture);
    else
        QScroller::ungrabGesture(d->list->viewport());
}

void PopupWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Each time: a list that was disabled meanwhile has lost it.
    d->list->setFocus(Qt::PopupFocusReason);
}

void PopupWidget::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    d->dragging = false;
    d->sliding = false;
    Q_EMIT widgetClosed();
}
