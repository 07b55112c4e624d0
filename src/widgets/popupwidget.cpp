// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/popupwidget.h>

#include <base/fingersize_p.h>
#include <base/qtcompat_p.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QScroller>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

constexpr int ScreenMargin = 5;

/// Makes items that a finger can hit: rows of its height, and tiles that fill their cell and have
/// their text in the middle.
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

/// A list that takes the keyboard without making an item current, as Qt's own does.
class ChoiceList : public QListWidget
{
public:
    using QListWidget::QListWidget;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        const bool noneCurrent = !currentItem();
        QListWidget::focusInEvent(event);
        if (noneCurrent)
            setCurrentItem(nullptr);
    }
};

/// First item of exactly this text, or null.
QListWidgetItem *findItem(const QListWidget *list, const QString &text)
{
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->text() == text)
            return list->item(row);
    }
    return nullptr;
}

void setEnabled(QListWidgetItem *item, bool enabled)
{
    if (item)
        item->setFlags(item->flags().setFlag(Qt::ItemIsEnabled, enabled));
}

} // namespace

PopupWidget::PopupWidget(QWidget *parent)
    : QWidget(parent, Qt::Popup)
    , m_titleLabel(new QLabel(this))
    , m_layout(new QVBoxLayout(this))
    , m_listWidget(new ChoiceList(this))
{
    setAttribute(Qt::WA_StyledBackground); // a plain QWidget ignores the sheet's background

    m_titleLabel->setObjectName(QStringLiteral("IconModeViewTitle"));
    m_titleLabel->setAlignment(Qt::AlignCenter);
    m_titleLabel->setMargin(fontMetrics().height() / 2); // a bar that a finger can drag
    m_titleLabel->hide();
    m_titleLabel->installEventFilter(this);

    m_listWidget->setObjectName(QStringLiteral("ListModeView"));
    m_listWidget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listWidget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listWidget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_listWidget->setItemDelegate(new TouchItemDelegate(m_listWidget));
    m_listWidget->installEventFilter(this);
    m_listWidget->viewport()->installEventFilter(this);

    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_titleLabel);
    m_layout->addWidget(m_listWidget);

    if (parent)
        parent->installEventFilter(this);
    connect(m_listWidget, &QListWidget::itemClicked, this, &PopupWidget::onItemClicked);
    connect(m_listWidget, &QListWidget::currentRowChanged, this, &PopupWidget::slideToCurrentItem);
}

PopupWidget::~PopupWidget()
{
    // A slot may delete the pop-up while the list is still handling the tap: the list stays until
    // it has returned.
    if (m_picking) {
        m_listWidget->setParent(nullptr);
        m_listWidget->deleteLater();
    }
}

void PopupWidget::addItem(const QString &text)
{
    m_listWidget->addItem(text);
}

void PopupWidget::addItems(const QList<QString> &texts, int currentRow)
{
    m_listWidget->addItems(texts);
    m_listWidget->setCurrentRow(currentRow);
}

void PopupWidget::clear()
{
    m_listWidget->clear();
}

void PopupWidget::setCurrentItem(const QString &text)
{
    QListWidgetItem *const item = findItem(m_listWidget, text);
    m_currentText = item ? text : QString();
    m_listWidget->setCurrentItem(item);
    if (!item)
        m_listWidget->clearSelection();
}

void PopupWidget::setItemEnabled(const QString &text, bool enabled)
{
    ::setEnabled(findItem(m_listWidget, text), enabled);
}

void PopupWidget::setItemEnabled(int index, bool enabled)
{
    ::setEnabled(m_listWidget->item(index), enabled);
}

void PopupWidget::setItemTextAlignment(Qt::Alignment alignment)
{
    if (m_itemTextAlignment == alignment)
        return;
    m_itemTextAlignment = alignment;
    for (int row = 0; row < m_listWidget->count(); ++row)
        m_listWidget->item(row)->setTextAlignment(alignment | Qt::AlignVCenter);
}

QString PopupWidget::titleText() const
{
    return m_titleLabel->text();
}

void PopupWidget::setTitleText(const QString &text)
{
    if (m_titleLabel->text() == text)
        return;
    m_titleLabel->setText(text);
    m_titleLabel->show();
    m_listWidget->setAccessibleName(text);
}

bool PopupWidget::titleVisible() const
{
    return m_titleLabel->isVisibleTo(this);
}

void PopupWidget::setTitleVisible(bool visible)
{
    if (titleVisible() != visible)
        m_titleLabel->setVisible(visible);
}

void PopupWidget::setViewMode(QListView::ViewMode mode)
{
    if (m_viewMode == mode)
        return;
    m_viewMode = mode;
    const bool tiles = mode == QListView::IconMode;
    m_listWidget->setViewMode(mode);
    m_listWidget->setObjectName(tiles ? QStringLiteral("IconModeView")
                                      : QStringLiteral("ListModeView"));
    m_listWidget->setResizeMode(QListView::Fixed);
    m_listWidget->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_listWidget->setUniformItemSizes(tiles);
    m_listWidget->setWordWrap(tiles);
    if (!tiles)
        m_listWidget->setGridSize({}); // or the rows would keep the tiles' height
    // Style sheets look at the object name only when they polish.
    m_listWidget->style()->unpolish(m_listWidget);
    m_listWidget->style()->polish(m_listWidget);
}

void PopupWidget::setWidgetFixedWidth(int width)
{
    if (m_widgetFixedWidth == width)
        return;
    m_widgetFixedWidth = width;
    if (QListWidgetItem *const last = m_listWidget->item(m_listWidget->count() - 1))
        last->setTextAlignment(m_itemTextAlignment | Qt::AlignVCenter);
}

void PopupWidget::setIconSize(int width, int height)
{
    m_iconSize = {width, height};
}

void PopupWidget::setItemCountPerRow(int count)
{
    m_itemCountPerRow = count;
}

void PopupWidget::popup()
{
    m_listWidget->ensurePolished(); // a sheet may set the frame and the height of the rows
    const int count = m_listWidget->count();
    const int frame = 2 * m_listWidget->frameWidth();
    QSize size;
    if (m_viewMode == QListView::ListMode) {
        for (int row = 0; row < count; ++row)
            m_listWidget->item(row)->setTextAlignment(m_itemTextAlignment | Qt::AlignVCenter);
        size = {m_widgetFixedWidth, frame + count * m_listWidget->sizeHintForRow(0)};
    } else {
        const int columns = qMax(1, m_itemCountPerRow);
        m_listWidget->setGridSize(m_iconSize);
        // The extra pixel keeps the last column from wrapping.
        size = {columns * m_iconSize.width() + 1,
                frame + (count + columns - 1) / columns * m_iconSize.height()};
    }
    size = size.expandedTo({0, 0});
    const int titleHeight = titleVisible() ? m_titleLabel->sizeHint().height() : 0;
    if (m_scrollsInside) {
        const QScreen *const target = parentWidget() ? parentWidget()->screen() : screen();
        const int room = target->availableGeometry().height() - 2 * ScreenMargin - titleHeight;
        size.setHeight(qMin(size.height(), qMax(0, room)));
    }
    m_listWidget->setFixedSize(size);
    setFixedSize(size.width(), size.height() + titleHeight);
    if (QListWidgetItem *const chosen = m_scrollsInside ? m_listWidget->currentItem() : nullptr)
        m_listWidget->scrollToItem(chosen);
    else if (count > 0)
        m_listWidget->scrollToItem(m_listWidget->item(0), QAbstractItemView::PositionAtTop);
}

bool PopupWidget::eventFilter(QObject *watched, QEvent *event)
{
    // Queued, since a parent hides in its destructor too, where nobody must hear of it.
    const bool mayLeave = event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange;
    if (mayLeave && watched == parentWidget() && isVisible())
        QTimer::singleShot(0, this, &PopupWidget::closeWithoutParent);
    if (watched == m_titleLabel && filterTitle(event))
        return true;
    if ((watched == m_listWidget || watched == m_listWidget->viewport()) && filterList(event))
        return true;
    return QWidget::eventFilter(watched, event);
}

void PopupWidget::setScrollsInside(bool scrolls)
{
    if (scrolls == m_scrollsInside)
        return;
    m_scrollsInside = scrolls;
    if (scrolls)
        QScroller::grabGesture(m_listWidget->viewport(), QScroller::LeftMouseButtonGesture);
    else
        QScroller::ungrabGesture(m_listWidget->viewport());
}

void PopupWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Each time: a list that was disabled meanwhile has lost it.
    m_listWidget->setFocus(Qt::PopupFocusReason);
}

void PopupWidget::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    m_dragging = false;
    m_sliding = false;
    Q_EMIT widgetClosed();
}

/// Picks an enabled item: reports it and closes. A disabled one loses the highlight again.
void PopupWidget::onItemClicked(QListWidgetItem *item)
{
    if (!(item->flags() & Qt::ItemIsEnabled)) {
        QTimer::singleShot(0, this, &PopupWidget::selectChosenItem);
        return;
    }
    const QPointer<PopupWidget> alive(this);
    const QString text = item->text();
    m_picking = true;
    if (m_currentText != text) {
        m_currentText = text;
        Q_EMIT currentItemChanged(text);
    }
    if (alive)
        close();
    if (alive)
        m_picking = false;
}

void PopupWidget::selectChosenItem()
{
    if (QListWidgetItem *const item = findItem(m_listWidget, m_currentText))
        m_listWidget->setCurrentItem(item);
}

/// Closes a pop-up whose button is gone from the screen or no longer answers.
void PopupWidget::closeWithoutParent()
{
    if (isVisible() && !(parentWidget()->isVisible() && parentWidget()->isEnabled()))
        close();
}

/// Drags the pop-up by its title.
bool PopupWidget::filterTitle(QEvent *event)
{
    const auto globalPosition = [event] {
        return QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the press of a quick second tap
        m_dragOffset = globalPosition() - pos();
        m_dragging = true;
        return true;
    case QEvent::MouseMove:
        if (m_dragging)
            move(globalPosition() - m_dragOffset);
        return true;
    case QEvent::MouseButtonRelease:
        m_dragging = false;
        return true;
    default:
        return false;
    }
}

/// Keeps the wheel from scrolling, picks by key, and slides a list taller than its screen.
bool PopupWidget::filterList(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        if (m_scrollsInside)
            return false;
        slideTo(pos().y() + static_cast<QWheelEvent *>(event)->angleDelta().y());
        return true;
    case QEvent::KeyPress:
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
        case Qt::Key_Select:
            if (QListWidgetItem *const item = m_listWidget->currentItem())
                onItemClicked(item);
            return true;
        default:
            return false;
        }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressPosition = QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
        m_pressTop = pos().y();
        m_sliding = false;
        return false;
    case QEvent::MouseMove: {
        const auto *const mouse = static_cast<QMouseEvent *>(event);
        const int distance = QtCompat::globalPosition(mouse).toPoint().y() - m_pressPosition.y();
        if (mouse->buttons() & Qt::LeftButton
            && (m_sliding || qAbs(distance) >= QApplication::startDragDistance()))
            m_sliding = slideTo(m_pressTop + distance);
        return m_sliding;
    }
    case QEvent::MouseButtonRelease:
        if (!m_sliding)
            return false;
        m_sliding = false;
        selectChosenItem(); // the finger highlighted the item it came down on
        return true;
    default:
        return false;
    }
}

/// Moves a pop-up taller than its screen up or down, without baring the screen's edges.
bool PopupWidget::slideTo(int top)
{
    const QRect available =
        screen()->availableGeometry().adjusted(0, ScreenMargin, 0, -ScreenMargin);
    if (height() <= available.height())
        return false;
    move(pos().x(), qBound(available.bottom() + 1 - height(), top, available.top()));
    return true;
}

/// Brings the item reached by the arrow keys onto the screen.
void PopupWidget::slideToCurrentItem()
{
    const QListWidgetItem *const item = m_listWidget->currentItem();
    if (!item || !isVisible() || QApplication::mouseButtons() != Qt::NoButton)
        return;
    const QRect row = m_listWidget->visualItemRect(item);
    const int top = m_listWidget->viewport()->mapToGlobal(row.topLeft()).y();
    const QRect available = screen()->availableGeometry();
    const int below = top + row.height() - (available.bottom() + 1 - ScreenMargin);
    const int above = available.top() + ScreenMargin - top;
    if (below > 0)
        slideTo(pos().y() - below);
    else if (above > 0)
        slideTo(pos().y() + above);
}
