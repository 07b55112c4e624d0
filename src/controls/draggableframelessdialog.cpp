// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/draggableframelessdialog.h>

#include <base/qtcompat_p.h>
#include <base/secondfinger_p.h>
#include <platform/placement.h>

#include <QAbstractSlider>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace Controls
{

namespace
{

bool isOnPlatform(const char *name)
{
    return QGuiApplication::platformName().startsWith(QLatin1String(name));
}

/// On Wayland a window does not know where it is and cannot place itself: the system moves it.
bool startSystemMove(const QWidget *dialog)
{
    return dialog->isWindow() && dialog->windowHandle() && isOnPlatform("wayland")
        && dialog->windowHandle()->startSystemMove();
}

/// Where a press says that a dialog is. Under some window managers of X11 the position of a window
/// without a frame is that within a parent that the manager has given it.
QPoint positionByPress(const QWidget *dialog, const QPoint &inDialog, const QPoint &global)
{
    return dialog->isWindow() && isOnPlatform("xcb") ? global - inDialog : dialog->pos();
}

} // namespace

class DraggableDialogTitleBarPrivate
{
public:
    QPointer<QDialog> dialog;
    QLabel *titleLabel = nullptr;
    QHBoxLayout *layout = nullptr;
    QPushButton *minimizeButton = nullptr;
    QPushButton *maximizeButton = nullptr;
    QPushButton *closeButton = nullptr;
    int titleHeight = 35;
};

class DraggableFramelessDialogPrivate
{
public:
    QPointer<DraggableDialogTitleBar> titleBar;
    bool dragging = false;
    QPoint pressGlobalPos;
    QPoint dialogStartPos;
};

DraggableDialogTitleBar::DraggableDialogTitleBar(QDialog *dialog)
    : QFrame(dialog)
    , d(std::make_unique<DraggableDialogTitleBarPrivate>())
{
    d->dialog = dialog;
    setObjectName(QStringLiteral("draggableDialogTitleBar"));
    setFixedHeight(d->titleHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    d->titleLabel = new QLabel(dialog ? dialog->windowTitle() : QString(), this);
    d->titleLabel->setObjectName(QStringLiteral("draggableDialogTitleLabel"));
    d->titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->layout->addSpacing(8);
    d->layout->addWidget(d->titleLabel);
    d->layout->addStretch(1);
    d->layout->addSpacing(8);
}

DraggableDialogTitleBar::~DraggableDialogTitleBar() = default;

int DraggableDialogTitleBar::titleHeight() const
{
    return d->titleHeight;
}

Qt::Alignment DraggableDialogTitleBar::windowTitleAlignment() const
{
    return d->titleLabel->alignment();
}

void DraggableDialogTitleBar::setHeaderButton(QFlags<Button> buttons)
{
    if (provideButton(d->minimizeButton, buttons.testFlag(MinimizeButton),
                      QStringLiteral("draggableDialogMinimizeButton"), tr("Minimize")))
        connect(d->minimizeButton, &QPushButton::clicked, this,
                &DraggableDialogTitleBar::onMinimizeClicked);

    if (provideButton(d->maximizeButton, buttons.testFlag(MaximizeButton),
                      QStringLiteral("draggableDialogMaximizeButton"), tr("Maximize")))
        connect(d->maximizeButton, &QPushButton::clicked, this,
                &DraggableDialogTitleBar::onMaximizeClicked);
    if (d->maximizeButton && d->dialog)
        d->maximizeButton->setProperty("max", d->dialog->isMaximized());

    if (provideButton(d->closeButton, buttons.testFlag(CloseButton),
                      QStringLiteral("draggableDialogCloseButton"), tr("Close"))) {
        // Escape closes from the keyboard.
        d->closeButton->setFocusPolicy(Qt::NoFocus);
        d->closeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        if (d->dialog)
            connect(d->closeButton, &QPushButton::clicked, d->dialog.data(), &QDialog::reject);
    }
    updateButtonSizes();
}

void DraggableDialogTitleBar::setTitleHeight(int height)
{
    height = qMax(height, 0);
    if (d->titleHeight == height)
        return;
    d->titleHeight = height;
    setFixedHeight(height);
    updateButtonSizes();
}

void DraggableDialogTitleBar::setWindowTitle(const QString &title)
{
    d->titleLabel->setText(title);
}

void DraggableDialogTitleBar::setWindowTitleAlignment(Qt::Alignment alignment)
{
    d->titleLabel->setAlignment(alignment);
}

void DraggableDialogTitleBar::onMaximizeClicked(bool checked)
{
    Q_UNUSED(checked)
    if (!d->dialog)
        return;
    const QPointer<DraggableDialogTitleBar> self(this);
    if (d->dialog->isMaximized())
        d->dialog->showNormal();
    else
        d->dialog->showMaximized();
    if (!self || !d->maximizeButton)
        return;
    d->maximizeButton->setProperty("max", d->dialog->isMaximized());
    d->maximizeButton->style()->unpolish(d->maximizeButton);
    d->maximizeButton->style()->polish(d->maximizeButton);
    d->maximizeButton->update();
}

void DraggableDialogTitleBar::onMinimizeClicked(bool checked)
{
    Q_UNUSED(checked)
    if (d->dialog)
        d->dialog->setWindowState(Qt::WindowMinimized);
}

bool DraggableDialogTitleBar::provideButton(QPushButton *&button, bool wanted,
                                            const QString &objectName,
                                            const QString &accessibleName)
{
    if (wanted == (button != nullptr))
        return false;
    if (!wanted) {
        d->layout->removeWidget(button);
        // It may be the one whose click asks for this: it goes when the click is over.
        button->hide();
        button->deleteLater();
        button = nullptr;
        return false;
    }
    button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setAccessibleName(accessibleName);
    // Enter in the dialog must not minimise it.
    button->setAutoDefault(false);
    d->layout->addWidget(button);
    return true;
}

void DraggableDialogTitleBar::updateButtonSizes()
{
    const int icon = qMax(d->titleHeight - 14, 12);
    for (QPushButton *button : {d->minimizeButton, d->maximizeButton, d->closeButton}) {
        if (button) {
            button->setFixedSize(d->titleHeight, d->titleHeight);
            button->setIconSize({icon, icon});
        }
    }
}

DraggableFramelessDialog::DraggableFramelessDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::CustomizeWindowHint)
    , d(std::make_unique<DraggableFramelessDialogPrivate>())
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_StyledBackground);
    d->titleBar = new DraggableDialogTitleBar(this);
    d->titleBar->installEventFilter(this);
    d->titleBar->setAttribute(Qt::WA_AcceptTouchEvents);
    d->titleBar->raise();
    if (parent)
        parent->installEventFilter(this);
}

DraggableFramelessDialog::~DraggableFramelessDialog() = default;

void DraggableFramelessDialog::setHeaderButton(QFlags<DraggableDialogTitleBar::Button> buttons)
{
    if (d->titleBar)
        d->titleBar->setHeaderButton(buttons);
}

void DraggableFramelessDialog::setWindowTitle(const QString &title)
{
    setAccessibleName(title);
    if (d->titleBar)
        d->titleBar->setWindowTitle(title);
}

void DraggableFramelessDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange)
        setWindowTitle(QWidget::windowTitle());
}

void DraggableFramelessDialog::centerInParent()
{
    if (parentWidget())
        Utils::centerWidgetInHost(this, parentWidget());
}

void DraggableFramelessDialog::clampToParentVisibleRect()
{
    if (parentWidget())
        Utils::clampWidgetToHost(this, parentWidget());
}

void DraggableFramelessDialog::doMoveByDelta(const QPoint &delta)
{
    move(d->dialogStartPos + delta);
    if (parentWidget())
        clampToParentVisibleRect();
    else
        move(Utils::boundedTopLeft(pos(), size(), screen()->availableGeometry(), 0));
}

bool DraggableFramelessDialog::startSystemMoveIfSupported() const
{
    return false;
}

bool DraggableFramelessDialog::shouldStartDrag(QWidget *bar, const QPoint &localPos) const
{
    if (!bar)
        return false;
    const QWidget *child = bar->childAt(localPos);
    if (!child)
        return true;
    if (qobject_cast<const QAbstractButton *>(child) || qobject_cast<const QAbstractSlider *>(child)
        || qobject_cast<const QLineEdit *>(child))
        return false;
    return child->focusPolicy() == Qt::NoFocus;
}

bool DraggableFramelessDialog::resolveGlobalPosFromEvent(QEvent *event, QPoint &position) const
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        position = QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
        return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: {
        const auto *touch = static_cast<QTouchEvent *>(event);
        if (QtCompat::touchPointCount(touch) == 0)
            return false;
        position = QtCompat::firstTouchGlobalPosition(touch).toPoint();
        return true;
    }
    default:
        return false;
    }
}

bool DraggableFramelessDialog::eventFilter(QObject *watched, QEvent *event)
{
    // The cast fails for a bar that is being destroyed, which still sends events to its filters.
    const auto *bar = qobject_cast<DraggableDialogTitleBar *>(watched);
    if (bar && bar == d->titleBar && filterTitleBar(event))
        return true;
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        clampToParentVisibleRect();
    return QDialog::eventFilter(watched, event);
}

void DraggableFramelessDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (d->titleBar) {
        d->titleBar->setGeometry(0, 0, width(), d->titleBar->titleHeight());
        d->titleBar->raise();
    }
}

void DraggableFramelessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // A drag that was under way when the dialog was hidden is over.
    d->dragging = false;
    adjustSize();
    // As wide as its title, where there is room for that.
    const int room =
        (parentWidget() ? parentWidget()->rect() : screen()->availableGeometry()).width();
    const int wanted = d->titleBar ? qMin(d->titleBar->sizeHint().width(), room) : 0;
    if (width() < wanted)
        resize(wanted, height());
    centerInParent();
    raise();
}

bool DraggableFramelessDialog::filterTitleBar(QEvent *event)
{
    QPoint global;
    const bool resolved = resolveGlobalPosFromEvent(event, global);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        return mouse->button() == Qt::LeftButton
            && startDrag(event, QtCompat::position(mouse).toPoint(), global);
    }
    case QEvent::TouchBegin:
        return resolved && !Utils::isSecondFinger(event)
            && startDrag(
                   event,
                   isOnPlatform("xcb")
                       ? QtCompat::firstTouchPosition(static_cast<QTouchEvent *>(event)).toPoint()
                       : d->titleBar->mapFromGlobal(global),
                   global);
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        if (!d->dragging)
            return false;
        if (resolved) {
            doMoveByDelta(global - d->pressGlobalPos);
            event->accept();
        }
        return true;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (!d->dragging)
            return false;
        d->dragging = false;
        event->accept();
        return true;
    default:
        return false;
    }
}

bool DraggableFramelessDialog::startDrag(QEvent *event, const QPoint &localPos,
                                         const QPoint &globalPos)
{
    if (!shouldStartDrag(d->titleBar, localPos))
        return false;
    event->accept();
    if (startSystemMove(this))
        return true; // and no release comes
    d->pressGlobalPos = globalPos;
    d->dialogStartPos = positionByPress(this, d->titleBar->mapTo(this, localPos), globalPos);
    d->dragging = true;
    return true;
}

} // namespace Controls
